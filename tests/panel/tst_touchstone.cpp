// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "vnatest.h"

#include <panel/touchstone.h>

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

#include <cmath>
#include <complex>

using namespace Panel;

namespace
{

std::complex<double> value(const Network &network, int to, int from, int point)
{
    const Parameter &parameter = network.s(to, from);
    return {parameter.real.at(point), parameter.imag.at(point)};
}

/// Folder of measured files beside the source tree, or as the environment says.
QString measuredFolder()
{
    const QString named = qEnvironmentVariable("VNA_TOUCHSTONE_DIR");
    return named.isEmpty() ? QStringLiteral(VNA_SOURCE_DIR "/../shared/touchstone") : named;
}

} // namespace

class TouchstoneTest : public VnaTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void readsEveryWayToWriteOnePoint_data();
    void readsEveryWayToWriteOnePoint();
    void keepsTheOrderOfTwoPorts();
    void leavesNoiseDataOut_data();
    void leavesNoiseDataOut();
    void takesEqualFrequencies();
    void refusesText_data();
    void refusesText();
    void refusesFiles_data();
    void refusesFiles();
    void readsAMillionPoints();
    void opensMeasuredFiles_data();
    void opensMeasuredFiles();
};

void TouchstoneTest::readsEveryWayToWriteOnePoint_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<double>("ohms");

    // Each row is the same point: 2.5 GHz, reflection coefficient 0.5j.
    QTest::newRow("no option line") << QByteArray("2.5 0.5 90\n") << 50.0;
    QTest::newRow("empty option line") << QByteArray("#\n2.5 0.5 90\n") << 50.0;
    QTest::newRow("real and imaginary") << QByteArray("# Hz S RI R 75\n2.5e9 0 0.5\n") << 75.0;
    QTest::newRow("magnitude and angle") << QByteArray("# MHz S MA R 50\n2500 .5 -270\n") << 50.0;
    QTest::newRow("decibel") << QByteArray("# kHz S DB R 1\n2500000 -6.0205999132796 90\n") << 1.0;
    QTest::newRow("lower case, other order")
        << QByteArray("# ri r 376.7 s ghz\n2.5 0 .5\n") << 376.7;
    QTest::newRow("second option line")
        << QByteArray("# GHz S RI\n# Hz S MA R 9\n2.5 0 0.5\n") << 50.0;
    QTest::newRow("option line after a point")
        << QByteArray("# GHz S RI\n2.5 0 .5\n# kHz Z\n") << 50.0;
    QTest::newRow("comments anywhere")
        << QByteArray("! a\n# GHz S RI ! R 75\n  !b\n2.5 0!c\n! [d]\n0.5 !1 2 3\n!") << 50.0;
    QTest::newRow("spread over lines") << QByteArray("# GHz S RI\n2.5\n\n0\n0.5") << 50.0;
    QTest::newRow("tabs and blanks") << QByteArray("\t# GHz\tS\tRI \n\t2.5\t0 \t0.5\t \n") << 50.0;
    QTest::newRow("CR LF") << QByteArray("# GHz S RI\r\n2.5 0 0.5\r\n") << 50.0;
    QTest::newRow("CR") << QByteArray("# GHz S RI\r! x\r2.5 0 0.5\r") << 50.0;
    QTest::newRow("Latin-1") << QByteArray("! \xe9t\xe9\n# GHz S RI\n2.5 0 0.5 ! \xb0\n") << 50.0;
    QTest::newRow("UTF-8 with its mark")
        << QByteArray("\xef\xbb\xbf# GHz S RI\n2.5 0 0.5 ! \xc2\xb0\n") << 50.0;
    QTest::newRow("Ctrl-Z at the end") << QByteArray("# GHz S RI\n2.5 0 0.5\r\n\x1a") << 50.0;
    QTest::newRow("signs and exponents")
        << QByteArray("# Hz S RI\n+2.5E+009 -1e-400 +5.0e-01\n") << 50.0;
}

void TouchstoneTest::readsEveryWayToWriteOnePoint()
{
    QFETCH(QByteArray, text);
    QFETCH(double, ohms);

    const TouchstoneResult result = parseTouchstone(text, 1);
    QVERIFY2(result.ok(), qPrintable(result.reason));
    QCOMPARE(result.network.frequencies, QVector<double>{2.5e9});
    QVERIFY(std::abs(value(result.network, 1, 1, 0) - std::complex<double>(0.0, 0.5)) < 1e-12);
    QCOMPARE(result.network.referenceOhms, ohms);
}

void TouchstoneTest::keepsTheOrderOfTwoPorts()
{
    const TouchstoneResult result = parseTouchstone(QByteArray("# Hz S RI\n"
                                                               "1 11 -11 21 -21 12 -12 22 -22\n"
                                                               "2 110 0 210 0\n120 0 220 0\n"),
                                                    2);
    QVERIFY2(result.ok(), qPrintable(result.reason));
    for (int to = 1; to <= 2; ++to) {
        for (int from = 1; from <= 2; ++from) {
            const double expected = 10 * to + from;
            QCOMPARE(value(result.network, to, from, 0), std::complex<double>(expected, -expected));
            QCOMPARE(value(result.network, to, from, 1), std::complex<double>(10 * expected, 0.0));
        }
    }
}

void TouchstoneTest::leavesNoiseDataOut_data()
{
    QTest::addColumn<QByteArray>("tail");
    QTest::newRow("frequency falls back")
        << QByteArray("1 1.1 .6 130 .3\n2 1.2 .5 120 .3\n9 1.3 .5 110 .3\n");
    QTest::newRow("starts at the last frequency")
        << QByteArray("! noise\n3 1.1 .6 130 .3\n4 1.2 .5 120 .3\n");
    QTest::newRow("one line at the last frequency") << QByteArray("3 1.1 .6 130 .3");
}

void TouchstoneTest::leavesNoiseDataOut()
{
    QFETCH(QByteArray, tail);
    const QByteArray points = "# GHz S RI\n2 1 0 2 0 3 0 4 0\n3 1 0 2 0 3 0 4 0\n";

    const TouchstoneResult result = parseTouchstone(points + tail, 2);
    QVERIFY2(result.ok(), qPrintable(result.reason));
    QCOMPARE(result.network.frequencies, (QVector<double>{2e9, 3e9}));
    QCOMPARE(result.network.s(2, 2).real, (QVector<double>{4.0, 4.0}));
}

void TouchstoneTest::takesEqualFrequencies()
{
    // A zero-span sweep; its second point looks like noise data until the next line is seen.
    const TouchstoneResult result =
        parseTouchstone("# GHz S RI\n2 1 0 2 0 3 0 4 0\n2 5 0 6 0\n7 0 8 0\n", 2);
    QVERIFY2(result.ok(), qPrintable(result.reason));
    QCOMPARE(result.network.s(2, 2).real, (QVector<double>{4.0, 8.0}));
}

void TouchstoneTest::refusesText_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("ports");
    QTest::addColumn<QString>("sentence");

    const auto row = [](const char *name, const char *text, int ports, const char *sentence) {
        QTest::newRow(name) << QByteArray(text) << ports << QString::fromUtf8(sentence);
    };
    row("empty", "", 1, "x: the file holds no data.");
    row("only comments", "! a\n# Hz S RI\n\n", 2, "x: the file holds no data.");
    row("Z parameters", "! a\n# MHz z MA R 75\n", 1,
        "x, line 2: the file holds Z parameters, and only S parameters are read.");
    row("Y parameters", "#Hz Y RI\n", 2,
        "x, line 1: the file holds Y parameters, and only S parameters are read.");
    row("version 2", "!\n[Version] 2.0\n# Hz S RI\n", 1,
        "x, line 2: \"[Version]\" is a keyword of Touchstone version 2, and only version 1 is "
        "read.");
    row("unknown option", "# THz S RI\n", 1,
        "x, line 1: \"THz\" is no option of a Touchstone file.");
    row("R without a number", "# Hz S RI R\n", 1,
        "x, line 1: the reference resistance after R must be a number above zero.");
    row("R zero", "# Hz S RI R 0\n", 1,
        "x, line 1: the reference resistance after R must be a number above zero.");
    row("late option line", "1 0 0\n# Hz S RI\n", 1,
        "x, line 2: the option line comes after data.");
    row("text for a number", "# Hz S RI\n1 0 0\n\n2 abc 0\n", 1,
        "x, line 4: \"abc\" stands where a finite number belongs.");
    row("decimal comma", "1 0,5 0\n", 1,
        "x, line 1: \"0,5\" stands where a finite number belongs.");
    row("number with a tail", "1 0.5x 0\n", 1,
        "x, line 1: \"0.5x\" stands where a finite number belongs.");
    row("two signs", "1 +-5 0\n", 1, "x, line 1: \"+-5\" stands where a finite number belongs.");
    row("not a number", "1 nan 0\n", 1, "x, line 1: \"nan\" stands where a finite number belongs.");
    row("infinite", "1 1e999 0\n", 1, "x, line 1: \"1e999\" stands where a finite number belongs.");
    row("binary",
        "\x7f"
        "ELF\x02\x01\x01 1 2",
        1, "x, line 1: \"?ELF???\" stands where a finite number belongs.");
    row("unending word", "0123456789012345678901234567890123456789x", 1,
        "x, line 1: \"012345678901234567890123…\" stands where a finite number belongs.");
    row("unending decibels", "# Hz S DB\n1 99999 0\n", 1,
        "x, line 2: a value is beyond all bounds.");
    row("negative frequency", "-1 0 0\n", 1,
        "x, line 1: the frequency must not be below zero nor beyond all bounds.");
    row("short last line", "1 0 0\n2 0\n!\n", 1, "x, line 2: the last point has 2 of 3 numbers.");
    row("short last line of two ports", "1 0 0 0 0 0 0 0 0\n2 0 0 0 0 0 0\n", 2,
        "x, line 2: the last point has 7 of 9 numbers.");
    row("short line within", "1 0 0 0 0 0 0 0\n2 0 0 0 0 0 0 0 0\n", 2,
        "x, line 2: the point has more than the 9 numbers of a two-port.");
    row("two-port data named .s1p", "1 0 0 0 0 0 0 0 0\n", 1,
        "x, line 1: the point has more than the 3 numbers of a one-port.");
    row("ten numbers", "1 0 0 0 0 0 0 0 0 0\n", 2,
        "x, line 1: the point has more than the 9 numbers of a two-port.");
    row("frequency falls back", "2 0 0\n1 0 0\n", 1, "x, line 2: the frequency falls back.");
    row("frequency of a two-port falls back", "2 0 0 0 0 0 0 0 0\n1 0 0 0 0 0 0 0 0\n", 2,
        "x, line 2: the frequency falls back.");
    row("noise data of one port", "2 0 0\n1 1 1 1 1\n", 1, "x, line 2: the frequency falls back.");
    row("noise data alone", "1 1 1 1 1\n", 2, "x, line 1: the last point has 5 of 9 numbers.");
    row("line of four in noise data", "2 0 0 0 0 0 0 0 0\n1 1 1 1 1\n2 1 1 1\n", 2,
        "x, line 3: a line of noise data has 5 numbers, not 4.");
    row("noise data falls back", "2 0 0 0 0 0 0 0 0\n1 1 1 1 1\n.5 1 1 1 1\n", 2,
        "x, line 3: the frequency falls back in the noise data.");
}

void TouchstoneTest::refusesText()
{
    QFETCH(QByteArray, text);
    QFETCH(int, ports);
    QFETCH(QString, sentence);

    const TouchstoneResult result = parseTouchstone(text, ports);
    QCOMPARE(result.sentence(QStringLiteral("x")), sentence);
    QVERIFY(result.network.frequencies.isEmpty());
}

void TouchstoneTest::refusesFiles_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("reason");

    QTest::newRow("missing") << "missing.s1p"
                             << "there is no such file";
    QTest::newRow("folder") << "folder.s2p"
                            << "this is a folder, not a file";
    QTest::newRow("three ports") << "a.S3P"
                                 << "a network of 3 ports, and only one and two ports are read";
    QTest::newRow("other extension") << "a.txt"
                                     << "the name of a Touchstone file ends in .s1p or .s2p";
    QTest::newRow("no digits") << "a.sxp"
                               << "the name of a Touchstone file ends in .s1p or .s2p";
    QTest::newRow("empty") << "a.s2p"
                           << "the file holds no data";
    QTest::newRow("upper case is no fault") << "good.S1P"
                                            << "";
}

void TouchstoneTest::refusesFiles()
{
    QFETCH(QString, name);
    QFETCH(QString, reason);

    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("folder.s2p")));
    if (!name.startsWith(QLatin1String("missing")) && !name.startsWith(QLatin1String("folder"))) {
        QFile file(folder.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        if (name.startsWith(QLatin1String("good")))
            file.write("1 0.5 0\n");
    }
    const TouchstoneResult result = readTouchstone(folder.filePath(name));
    QCOMPARE(result.reason, reason);
    QCOMPARE(result.network.name,
             reason.isEmpty() || name == QLatin1String("a.s2p") ? name : QString());
}

void TouchstoneTest::readsAMillionPoints()
{
    constexpr int count = 1000000;
    QByteArray text = "# Hz S RI\n";
    text.reserve(count * 16);
    for (int i = 0; i < count; ++i) {
        text += QByteArray::number(i);
        text += i % 2 == 0 ? " 0.25 -0.5\n" : "\t0.125 1e-1\n";
    }
    const TouchstoneResult result = parseTouchstone(text, 1);
    QVERIFY2(result.ok(), qPrintable(result.reason));
    QCOMPARE(result.network.frequencies.size(), count);
    QCOMPARE(result.network.frequencies.last(), count - 1.0);
    QCOMPARE(value(result.network, 1, 1, count - 1), std::complex<double>(0.125, 0.1));
}

void TouchstoneTest::opensMeasuredFiles_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("sentence");
    QTest::addColumn<int>("points");
    QTest::addColumn<double>("stop");
    QTest::addColumn<double>("largest");

    // How many points, the last frequency in Hz and the largest |S11|, found by other means.
    QTest::newRow("radiating open") << "radiating-open.s1p"
                                    << "" << 201 << 750e9 << 0.214861;
    QTest::newRow("no R, comments between lines") << "simulated-oneport.s1p"
                                                  << "" << 401 << 750e9 << 0.214966;
    QTest::newRow("ring slot") << "ring-slot.s2p"
                               << "" << 201 << 110e9 << 0.856179;
    QTest::newRow("decibel, MHz") << "low-pass-filter.s2p"
                                  << "" << 2006 << 50e9 << 0.761650;
    QTest::newRow("large") << "microstrip-line.s2p"
                           << "" << 10000 << 10e9 << 0.442851;
    QTest::newRow("noise block") << "transistor-with-noise.s2p"
                                 << "" << 37 << 2e9 << 0.540540;
    QTest::newRow("Latin-1") << "latin1-comments.s2p"
                             << "" << 1 << 1e9 << 1.414214;
    QTest::newRow("Z parameters") << "version2-header.s1p"
                                  << "version2-header.s1p, line 2: the file holds Z parameters, "
                                     "and only S parameters are read."
                                  << 0 << 0.0 << 0.0;
}

void TouchstoneTest::opensMeasuredFiles()
{
    QFETCH(QString, name);
    QFETCH(QString, sentence);
    QFETCH(int, points);
    QFETCH(double, stop);
    QFETCH(double, largest);

    const QDir folder(measuredFolder());
    if (!folder.exists())
        QSKIP("the folder of measured files is absent (VNA_TOUCHSTONE_DIR can name it)");
    const TouchstoneResult result = readTouchstone(folder.filePath(name));
    QCOMPARE(result.ok() ? QString() : result.sentence(name), sentence);
    QCOMPARE(result.network.frequencies.size(), points);
    if (points == 0)
        return;
    QCOMPARE(result.network.frequencies.last(), stop);
    double most = 0.0;
    for (int i = 0; i < points; ++i)
        most = std::max(most, std::abs(value(result.network, 1, 1, i)));
    QVERIFY2(std::abs(most - largest) < 1e-6, qPrintable(QString::number(most)));
}

QTEST_GUILESS_MAIN(TouchstoneTest)
#include "tst_touchstone.moc"
