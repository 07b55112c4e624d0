// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "networks.h"
#include "vnatest.h"

#include <panel/touchstone/csvwriter.h>
#include <panel/touchstone/saving.h>
#include <panel/touchstone/touchstone.h>
#include <panel/touchstone/touchstonewriter.h>

using namespace VnaTest;
using namespace Panel;

namespace
{

QByteArray touchstoneText(const Network &network, int version)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    writeTouchstone(buffer, network, version);
    return buffer.data();
}

/// One point of a network whose S<to><from> is 10 <to> + <from>, imaginary part 0.
Network counted(int ports)
{
    Network network;
    network.ports = ports;
    network.frequencies = {1e9};
    for (int from = 1; from <= ports; ++from) {
        for (int to = 1; to <= ports; ++to)
            network.parameters.append({{10.0 * to + from}, {0.0}});
    }
    return network;
}

/// The lines without comments.
QString values(const QByteArray &text)
{
    QString lines = QString::fromUtf8(text);
    return lines.remove(QRegularExpression("![^\n]*\n"_s));
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : "?";
}

} // namespace

class SavingTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyNetworkComesBack()
    {
        Networks::Doubles random(1);
        for (int i = 0; i < 800; ++i) {
            const Row row(QString::number(i));
            const int ports = 1 + i % 8;
            const Network network = Networks::random(random, ports, i % 3 > 0);
            for (const int version : {1, 2}) {
                QCOMPARE(touchstoneObstacle(network, version), QString());
                const QByteArray text = touchstoneText(network, version);
                for (const int named : {ports, 0}) {
                    const TouchstoneResult result = parseTouchstone(text, named);
                    QVERIFY2(result.ok(), qPrintable(result.sentence("x"_s)));
                    QCOMPARE(Networks::difference(result.network, network), QString());
                    QVERIFY(result.network.remarks.isEmpty());
                }
            }
        }
    }

    void csvHoldsEveryDouble()
    {
        Networks::Doubles random(2);
        for (int ports = 1; ports <= 8; ++ports) {
            const Network network = Networks::random(random, ports, false);
            QBuffer buffer;
            buffer.open(QIODevice::ReadWrite);
            writeCsv(buffer, network);
            const QList<QByteArray> lines = buffer.data().split('\n');
            QCOMPARE(int(lines.size()), network.points() + 3); // two lines of words, and an end
            for (int point = 0; point < network.points(); ++point) {
                const QList<QByteArray> fields = lines.at(point + 2).split(',');
                QVector<double> read, expected{network.frequencies.at(point)};
                for (const QByteArray &field : fields)
                    read << field.toDouble();
                for (const Parameter &parameter : network.parameters)
                    expected << parameter.real.at(point) << parameter.imag.at(point);
                QVERIFY(Networks::sameBits(read, expected));
            }
        }
    }

    void csvSaysWhatItHolds()
    {
        Network network = counted(2);
        network.parameters[1].imag[0] = qQNaN();
        network.setReferences({50.0, {75.0, -2.5}});
        QBuffer buffer;
        buffer.open(QIODevice::ReadWrite);
        writeCsv(buffer, network);
        QCOMPARE(buffer.data(),
                 QByteArray("# VnaWidgets: S parameters of 2 ports, reference in ohms 50 75-2.5j\n"
                            "frequency_Hz,S11_real,S11_imag,S21_real,S21_imag,S12_real,S12_imag,"
                            "S22_real,S22_imag\n"
                            "1e+09,11,0,21,,12,0,22,0\n"));
        QCOMPARE(parameterName(2, 10, 12), "S2_10"_s);
    }

    void layouts()
    {
        QCOMPARE(values(touchstoneText(counted(1), 1)), "# Hz S RI R 50\n1e+09 11 0\n"_s);
        QCOMPARE(values(touchstoneText(counted(3), 1)),
                 "# Hz S RI R 50\n1e+09 11 0 12 0 13 0\n  21 0 22 0 23 0\n  31 0 32 0 33 0\n"_s);
        const QString five = values(touchstoneText(counted(5), 1));
        QVERIFY(five.startsWith("# Hz S RI R 50\n1e+09 11 0 12 0 13 0 14 0\n  15 0\n  21 0"_s));
        Network network = counted(2);
        network.setReferences({75.0, 25.0});
        QVERIFY(values(touchstoneText(network, 1)).startsWith("# Hz S RI R 75 25\n"_s));
        network.noise = {{5e8}, {0.5}, {0.25}, {90.0}, {19.0}, 50.0};
        QCOMPARE(values(touchstoneText(network, 2)),
                 "[Version] 2.0\n# Hz S RI R 50\n[Number of Ports] 2\n[Two-Port Data Order] 21_12\n"
                 "[Number of Frequencies] 1\n[Number of Noise Frequencies] 1\n[Reference] 75 25\n"
                 "[Matrix Format] Full\n[Network Data]\n1e+09 11 0 21 0 12 0 22 0\n"
                 "[Noise Data]\n5e+08 0.5 0.25 90 19\n[End]\n"_s);
    }

    void writesWhatItReadAgain()
    {
        const TouchstoneResult first =
            parseTouchstone("! Port[1] = in\n# MHz S MA R 50 ! of the fixture\n1 1 0 ! one\n! "
                            "Gamma 1\n2 1 0\n!\xe9",
                            1);
        const QByteArray once = touchstoneText(first.network, 1);
        QCOMPARE(int(first.network.comments.size()), 4);
        QVERIFY(once.contains("! Port[1] = in\n! of the fixture\n# Hz S RI R 50\n1e+06 1 0\n"
                              "! Gamma 1\n2e+06 1 0\n!\xc3\xa9\n"));
        QCOMPARE(touchstoneText(parseTouchstone(once, 1).network, 1), once);
    }

    void names_data()
    {
        columns<QString, int, int, QString>("name", "ports", "version", "startOrSentence");
        row("one-port", "a.s1p", 1, 0, "# Hz");
        row("capitals", "a.S2P", 2, 0, "# Hz");
        row("version 2 by its name", "a.ts", 2, 0, "[Version]");
        row("version 2 where asked for", "a.s2p", 2, 2, "[Version]");
        row("version 1 where asked for", "a.ts", 2, 1, "# Hz");
        row("CSV", "a.csv", 2, 0, "# VnaWidgets");
        row("other ports", "a.s3p", 2, 0, "%1: the name of a file with 2 ports ends in .s2p.");
        row("no such form", "a.txt", 2, 0,
            "%1: the name of a network's file ends in .s1p, .s2p and so on, .ts or .csv.");
        row("no such folder", "b/a.s2p", 2, 0,
            "%1: the file cannot be written (No such file or directory).");
    }

    void names()
    {
        QFETCH(QString, name);
        QFETCH(int, ports);
        QFETCH(int, version);
        QFETCH(QString, startOrSentence);
        const QTemporaryDir folder;
        const QString path = folder.filePath(name);
        const QString sentence = saveNetwork(path, counted(ports), {version, false});
        if (startOrSentence.startsWith("%1"_s))
            QCOMPARE(sentence, startOrSentence.arg(path));
        else
            QVERIFY(values(contents(path)).startsWith(startOrSentence));
    }

    void takesTheVersionThatFits()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath("a.s2p"_s);
        Network network = counted(2);
        // Above the last frequency a reader of version 1 would take noise for a point.
        network.noise = {{2e9}, {0.5}, {0.25}, {90.0}, {19.0}, 50.0};
        QCOMPARE(saveNetwork(path, network), QString());
        QVERIFY(contents(path).contains("[Version] 2.0"));
        QCOMPARE(saveNetwork(path, network, {1, true}),
                 path + ": version 1 has no room for this noise data."_s);
        network.noise.frequencies = {1e9};
        network.noise.referenceOhms = 75.0;
        QCOMPARE(saveNetwork(path, network, {1, true}),
                 path + ": version 1 has no room for this noise data."_s);
        network.noise = NoiseData();
        network.setReferences({50.0, 75.0});
        QCOMPARE(saveNetwork(path, network, {0, true}), QString());
        QVERIFY(contents(path).contains("[Reference] 50 75\n"));
    }

    void refusesWhatHasNoForm()
    {
        const auto obstacle = [](auto change) {
            Network network = counted(2);
            network.noise = {{5e8}, {0.5}, {0.25}, {90.0}, {19.0}, 50.0};
            change(network);
            return touchstoneObstacle(network, 2);
        };
        QCOMPARE(obstacle([](Network &) {}), QString());
        QCOMPARE(obstacle([](Network &n) { n.parameters[1].imag[0] = qQNaN(); }),
                 "S21 has no finite value at 1000000000 Hz"_s);
        QCOMPARE(obstacle([](Network &n) {
                     n.setReferences({50.0, {50.0, 1.0}});
                 }),
                 "Touchstone files have no complex references"_s);
        QCOMPARE(obstacle([](Network &n) { n.referenceOhms = 0.0; }),
                 "a reference must be a number above zero, and not 0"_s);
        QCOMPARE(obstacle([](Network &n) { n.frequencies = {-1.0}; }),
                 "the frequency falls back"_s);
        QCOMPARE(obstacle([](Network &n) { n.noise.resistance.clear(); }),
                 "the noise data is not complete"_s);
        QCOMPARE(obstacle([](Network &n) { n = Network(); }), "the network holds no data"_s);
        QCOMPARE(obstacle([](Network &n) { n.parameters.removeLast(); }),
                 "the network holds no data"_s);
    }

    void converts()
    {
        const QTemporaryDir folder;
        const auto path = [&folder](const char *name) {
            return folder.filePath(QString::fromLatin1(name));
        };
        const QString two = writeFile(path("two.s2p"), "# GHz S RI R\n1 11 0 21 0 12 0 22 0\n");
        const Conversion first = convertFile(two, path("two.ts"));
        QCOMPARE(first.error, QString());
        QCOMPARE(first.remarks, QStringList{two + ": R has no number, and 50 ohms are assumed."_s});
        QVERIFY(contents(path("two.ts")).contains("[Version] 2.0"));
        // Back again: what is there is older than what it came from, or is not.
        const QDateTime before = QFileInfo(two).lastModified();
        const auto setTime = [](const QString &name, const QDateTime &time) {
            QFile file(name);
            return file.open(QIODevice::ReadWrite)
                && file.setFileTime(time, QFileDevice::FileModificationTime);
        };
        QVERIFY(setTime(path("two.ts"), before.addSecs(-60)));
        QCOMPARE(convertFile(path("two.ts"), two).error,
                 two + ": the file that is there is newer than what was to be saved."_s);
        QVERIFY(setTime(path("two.ts"), before.addSecs(60)));
        QCOMPARE(convertFile(path("two.ts"), two).error, QString());
        QVERIFY(!contents(two).contains("GHz"));
        QCOMPARE(convertFile(path("none.s1p"), path("none.csv")).error,
                 path("none.s1p") + ": there is no such file."_s);
        QVERIFY(!QFile::exists(path("none.csv")));
    }

    void keepsWhatIsThere()
    {
        const QTemporaryDir folder;
        const QString path = writeFile(folder.filePath("a.s1p"_s), "# Hz S RI\n1 1 0\n");
        const QByteArray before = contents(path);
        Network network = readTouchstone(path).network;
        // Read from it and not changed since: that is what saving is for.
        network.parameters[0].real[0] = 0.5;
        QCOMPARE(saveNetwork(path, network), QString());
        QVERIFY(contents(path) != before);

        QVERIFY(network.fileTime.isValid());
        network.fileTime = network.fileTime.addSecs(-1);
        const QByteArray saved = contents(path);
        QCOMPARE(saveNetwork(path, network),
                 path + ": the file that is there is newer than what was to be saved."_s);
        network.fileTime = QDateTime(); // measured
        QCOMPARE(saveNetwork(path, network), path + ": there is such a file already."_s);
        network.parameters[0].real[0] = qQNaN();
        QVERIFY(!saveNetwork(path, network, {0, true}).isEmpty());
        QCOMPARE(contents(path), saved);
        network.parameters[0].real[0] = 0.25;
        QCOMPARE(saveNetwork(path, network, {0, true}), QString());
        QVERIFY(contents(path).contains("0.25"));
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList{"a.s1p"_s});
    }
};

QTEST_GUILESS_MAIN(SavingTest)
#include "tst_saving.moc"
