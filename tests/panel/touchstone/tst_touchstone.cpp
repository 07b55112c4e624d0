// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "vnatest.h"

#include <panel/touchstone/touchstone.h>

#include <cmath>
#include <complex>

using namespace VnaTest;
using namespace Panel;

namespace
{

const double degree = std::acos(-1.0) / 180.0;

std::complex<double> value(const Network &network, int to, int from, int point)
{
    const Parameter &parameter = network.s(to, from);
    return {parameter.real.at(point), parameter.imag.at(point)};
}

} // namespace

class TouchstoneTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    // Each row is the same point: 2.5 GHz, reflection coefficient 0.5j.
    void readsEveryWayToWriteOnePoint()
    {
        const struct {
            const char *name, *text;
            double ohms = 50.0;
        } rows[] = {
            {"no option line", "2.5 0.5 90\n"},
            {"empty option line", "#\n2.5 0.5 90\n"},
            {"real and imaginary", "# Hz S RI R 75\n2.5e9 0 0.5\n", 75.0},
            {"magnitude and angle", "# MHz S MA R 50\n2500 .5 -270\n"},
            {"decibel", "# kHz S DB R 1\n2500000 -6.0205999132796 90\n", 1.0},
            {"lower case, other order", "# ri r 376.7 s ghz\n2.5 0 .5\n", 376.7},
            {"second option line", "# GHz S RI\n# Hz S MA R 9\n2.5 0 0.5\n"},
            {"option line after a point", "# GHz S RI\n2.5 0 .5\n# kHz Z\n"},
            {"comments anywhere", "! a\n# GHz S RI ! R 75\n  !b\n2.5 0!c\n! [d]\n0.5 !1 2 3\n!"},
            {"spread over lines", "# GHz S RI\n2.5\n\n0\n0.5"},
            {"tabs and blanks", "\t# GHz\tS\tRI \n\t2.5\t0 \t0.5\t \n"},
            {"CR LF", "# GHz S RI\r\n2.5 0 0.5\r\n"},
            {"CR", "# GHz S RI\r! x\r2.5 0 0.5\r"},
            {"Latin-1", "! \xe9t\xe9\n# GHz S RI\n2.5 0 0.5 ! \xb0\n"},
            {"UTF-8 with its mark", "\xef\xbb\xbf# GHz S RI\n2.5 0 0.5 ! \xc2\xb0\n"},
            {"Ctrl-Z at the end", "# GHz S RI\n2.5 0 0.5\r\n\x1a"},
            {"signs and exponents", "# Hz S RI\n+2.5E+009 -1e-400 +5.0e-01\n"},
        };
        for (const auto &[name, text, ohms] : rows) {
            const TouchstoneResult result = parseTouchstone(text, 1);
            QVERIFY2(result.ok(), name);
            QCOMPARE(result.network.frequencies, QVector<double>{2.5e9});
            QVERIFY2(std::abs(value(result.network, 1, 1, 0) - std::complex(0.0, 0.5)) < 1e-12,
                     name);
            QCOMPARE(result.network.referenceOhms, ohms);
        }
    }

    // Two points, of which S<to><from> of the first is <to><from> and of the second ten times that.
    void readsTwoPorts()
    {
        const QByteArray points = "# GHz S RI\n2 11 0 21 0 12 0 22 0\n3 110 0 210 0 120 0 220 0\n";
        const QByteArray texts[] = {
            points,
            "# GHz S RI\n2 11 0 21 0\n12 0 22 0\n3 110 0 210 0\n120 0 220 0\n",
            // A zero-span sweep; its second point looks like noise data until the next line is
            // seen.
            "# GHz S RI\n2 11 0 21 0 12 0 22 0\n2 110 0 210 0\n120 0 220 0\n",
            // Noise data, also from and at the last frequency.
            points + "1 1.1 .6 130 .3\n2 1.2 .5 120 .3\n9 1.3 .5 110 .3\n",
            points + "! noise\n3 1.1 .6 130 .3\n4 1.2 .5 120 .3\n",
            points + "3 1.1 .6 130 .3",
        };
        for (const QByteArray &text : texts) {
            const Row row(QString::fromUtf8(text));
            const TouchstoneResult result = parseTouchstone(text, 2);
            QVERIFY2(result.ok(), qPrintable(result.reason));
            const double last = text.contains("\n2 110") ? 2e9 : 3e9;
            QCOMPARE(result.network.frequencies, (QVector<double>{2e9, last}));
            for (const int port : {11, 21, 12, 22})
                QCOMPARE(result.network.s(port / 10, port % 10).real,
                         (QVector<double>{double(port), 10.0 * port}));
        }
    }

    void leavesGaps()
    {
        const TouchstoneResult result = parseTouchstone("# Hz S MA\n1 1 0\n2 nan 90\n3 1 NaN\n", 1);
        QCOMPARE(result.network.points(), 3);
        const Parameter &s = result.network.s(1, 1);
        QCOMPARE(s.real.at(0), 1.0);
        for (const double gap : {s.real.at(1), s.imag.at(1), s.real.at(2), s.imag.at(2)})
            QVERIFY(std::isnan(gap));
    }

    void refusesText_data()
    {
        columns<QString, int, QString>("text", "ports", "fault");
        const auto word = [](const char *name, const char *text, int line, const QString &shown) {
            const QString form = "%1: \"%2\" stands where a finite number belongs"_s;
            row(name, text, 1, form.arg(QString::number(line), shown));
        };
        const char *const noResistance =
            "1: the reference resistance after R must be a number above zero";
        const char *const badFrequency =
            "1: the frequency must not be below zero nor beyond all bounds";
        row("unknown option", "# THz S RI\n", 1, "1: \"THz\" is no option of a Touchstone file");
        row("R without a number", "# Hz S RI R fifty\n", 1, noResistance);
        row("R zero", "# Hz S RI R 0\n", 1, noResistance);
        row("late option line", "1 0 0\n# Hz S RI\n", 1, "2: the option line comes after data");
        word("text for a number", "# Hz S RI\n1 0 0\n\n2 abc 0\n", 4, "abc"_s);
        word("decimal comma", "1 0,5 0\n", 1, "0,5"_s);
        word("two signs", "1 +-5 0\n", 1, "+-5"_s);
        word("infinite", "1 inf 0\n", 1, "inf"_s);
        word("too large", "1 1e999 0\n", 1, "1e999"_s);
        word("binary", "\177ELF\002\001\001 1 2", 1, "?ELF???"_s);
        word("unending word", "0123456789012345678901234567890123456789x", 1,
             "012345678901234567890123…"_s);
        row("unending decibels", "# Hz S DB\n1 99999 0\n", 1, "2: a value is beyond all bounds");
        row("negative frequency", "-1 0 0\n", 1, badFrequency);
        row("frequency NaN", "nan 0 0\n", 1, badFrequency);
        row("short last line", "1 0 0\n2 0\n!\n", 1, "2: the last point has 2 of 3 numbers");
        row("short last line of two ports", "1 0 0 0 0 0 0 0 0\n2 0 0 0 0 0 0\n", 2,
            "2: the last point has 7 of 9 numbers");
        row("short line within", "1 0 0 0 0 0 0 0\n2 0 0 0 0 0 0 0 0\n", 2,
            "2: the point has more than 9 numbers");
        row("two-port data named .s1p", "1 0 0 0 0 0 0 0 0\n", 1,
            "1: the point has more than 3 numbers");
        const char *const fallsBack = "2: the frequency falls back";
        row("frequency falls back", "2 0 0\n1 0 0\n", 1, fallsBack);
        row("frequency of a two-port falls back", "2 0 0 0 0 0 0 0 0\n1 0 0 0 0 0 0 0 0\n", 2,
            fallsBack);
        row("noise data of one port", "2 0 0\n1 1 1 1 1\n", 1,
            "2: the point has more than 3 numbers");
        row("noise data alone", "1 1 1 1 1\n", 2, "1: the last point has 5 of 9 numbers");
        row("line of four in noise data", "2 0 0 0 0 0 0 0 0\n1 1 1 1 1\n2 1 1 1\n", 2,
            "3: a line of noise data has 5 numbers, not 4");
        row("noise data falls back", "2 0 0 0 0 0 0 0 0\n1 1 1 1 1\n.5 1 1 1 1\n", 2,
            "3: the frequency falls back in the noise data");
    }

    void refusesText()
    {
        QFETCH(QString, text);
        QFETCH(int, ports);
        QFETCH(QString, fault);
        const TouchstoneResult result = parseTouchstone(text.toUtf8(), ports);
        QCOMPARE(result.sentence("x"_s), "x, line %1."_s.arg(fault));
        QVERIFY(result.network.frequencies.isEmpty());
    }

    // What stands where a file should be is tried with the other readers, in tests/reliability.
    void refusesNames()
    {
        const QTemporaryDir folder;
        const QString extension =
            "the name of a Touchstone file ends in .s1p, .s2p and so on, or in .ts"_s;
        for (const auto &[name, reason] :
             {std::pair("a.S1000P"_s, "a network of 1000 ports, and at most 256 ports are read"_s),
              {"a.s99999999999p"_s, extension},
              {"good.TS"_s, QString()},
              {"a.txt"_s, extension},
              {"a.sxp"_s, extension},
              {"good.S1P"_s, QString()}}) {
            const Row row(name);
            const QString path = writeFile(folder.filePath(name), "1 0.5 0\n");
            const TouchstoneResult result = readTouchstone(path);
            QCOMPARE(result.reason, reason);
            QCOMPARE(result.network.name, name);
            QCOMPARE(result.network.path, path);
        }
    }

    void readsAMillionPoints()
    {
        constexpr int count = 1000000;
        QByteArray text = "# Hz S RI\n";
        text.reserve(count * 16);
        for (int i = 0; i < count; ++i)
            text += QByteArray::number(i) + (i % 2 == 0 ? " 0.25 -0.5\n" : "\t0.125 1e-1\n");
        int told = 0;
        const auto until = [&told](int last) {
            return [&told, last](int percent) {
                const bool rises = percent >= told;
                told = percent;
                return rises && percent < last;
            };
        };
        const TouchstoneResult result = parseTouchstone(text, 1, until(101));
        QVERIFY2(result.ok(), qPrintable(result.reason));
        QVERIFY(told > 90);
        QCOMPARE(result.network.frequencies.size(), count);
        QCOMPARE(result.network.frequencies.last(), count - 1.0);
        QCOMPARE(value(result.network, 1, 1, count - 1), std::complex<double>(0.125, 0.1));
        told = 0;
        QVERIFY(!parseTouchstone(text, 1, until(20)).ok());
        QVERIFY(told >= 20 && told < 40);
    }

    void opensMeasuredFiles()
    {
        // How many points, the last frequency in Hz and the largest |S11|, found by other means.
        const std::tuple<QString, int, double, double> rows[] = {
            {"radiating-open.s1p"_s, 201, 750e9, 0.214861},
            {"simulated-oneport.s1p"_s, 401, 750e9, 0.214966},
            {"ring-slot.s2p"_s, 201, 110e9, 0.856179},
            {"low-pass-filter.s2p"_s, 2006, 50e9, 0.761650},
            {"microstrip-line.s2p"_s, 10000, 10e9, 0.442851},
            {"transistor-with-noise.s2p"_s, 37, 2e9, 0.540540},
            {"latin1-comments.s2p"_s, 1, 1e9, 1.414214},
            {"version2-header.s1p"_s, 5, 500e6, 0.999651},
        };
        // One value of each; angles in degrees.
        const struct {
            QString name;
            int ports, to, from, point;
            std::complex<double> s;
        } values[] = {
            {"v2-reference-per-port.ts"_s, 4, 1, 2, 0, std::polar(0.4, -42.2 * degree)},
            {"v2-lower-triangle.ts"_s, 4, 2, 1, 0, std::polar(0.4, -42.2 * degree)},
            {"v2-z-in-ohms.ts"_s, 1, 1, 1, 0, {0.576066, -0.023342}},
            {"v2-two-port-noise.ts"_s, 2, 2, 1, 0, std::polar(3.57, 157 * degree)},
            {"v2-mixed-modes.ts"_s, 6, 1, 1, 0, {5.5, -7.0}},
            {"v2-mixed-modes.ts"_s, 6, 6, 6, 0, {5.65, 6.5}},
            {"v2-three-ports-reference-over-lines.ts"_s, 3, 2, 2, 0, -0.994583},
            {"three-ports-port-impedances.s3p"_s, 3, 2, 1, 0,
             std::polar(0.696804, -9.887444 * degree)},
            {"eight-ports-wrapped-rows.s8p"_s, 8, 8, 8, 2, {0.597830, 0.538853}},
        };
        // Beside the source tree, or as the environment says.
        const QDir folder(qEnvironmentVariable(
            "VNA_TOUCHSTONE_DIR", QStringLiteral(VNA_SOURCE_DIR "/../shared/touchstone")));
        if (!folder.exists())
            QSKIP("the folder of measured files is absent (VNA_TOUCHSTONE_DIR can name it)");
        for (const auto &[name, points, stop, largest] : rows) {
            const Row row(name);
            const TouchstoneResult result = readTouchstone(folder.filePath(name));
            QVERIFY2(result.ok(), qPrintable(result.reason));
            QCOMPARE(result.network.frequencies.size(), points);
            QCOMPARE(result.network.frequencies.last(), stop);
            double most = 0.0;
            for (int i = 0; i < points; ++i)
                most = std::max(most, std::abs(value(result.network, 1, 1, i)));
            QVERIFY2(std::abs(most - largest) < 1e-6, qPrintable(QString::number(most)));
        }
        for (const auto &[name, ports, to, from, point, s] : values) {
            const Row row(name);
            const TouchstoneResult result = readTouchstone(folder.filePath(name));
            QVERIFY2(result.ok(), qPrintable(result.reason));
            QCOMPARE(result.network.ports, ports);
            QVERIFY(std::abs(value(result.network, to, from, point) - s) < 1e-6);
        }
    }
};

QTEST_GUILESS_MAIN(TouchstoneTest)
#include "tst_touchstone.moc"
