// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desk.h"
#include "doubleprocess.h"

#include <panel/link/linksession.h>
#include <panel/link/programdata.h>
#include <panel/link/scpi.h>
#include <panel/link/shellscan.h>
#include <panel/link/wire.h>

#include <QThread>

#include <complex>

using namespace VnaTest;
using namespace Panel;

namespace
{

std::complex<double> expected(int parameter, double hertz)
{
    const double magnitude = parameter == 0 || parameter == 3 ? 0.5 : 0.8;
    return std::polar(magnitude, -hertz / 1e8);
}

/// How far a network is from what the double measures; NaN counts.
double deviation(const Network &network, int parameters)
{
    double worst = 0.0;
    for (int p = 0; p < parameters; ++p) {
        for (int i = 0; i < network.points(); ++i) {
            const std::complex<double> value(network.parameters.at(p).real.at(i),
                                             network.parameters.at(p).imag.at(i));
            const double off = std::abs(value - expected(p, network.frequencies.at(i)));
            worst = off <= worst ? worst : off;
        }
    }
    return worst;
}

struct Session : LinkSession {
    explicit Session(const QString &text)
        : LinkSession(read(text), nullptr, nullptr)
    {
    }
    static LinkAddress read(const QString &text)
    {
        LinkAddress address;
        QString error;
        parseLinkAddress(text, address, error);
        return address;
    }
};

/// Measures, and wants one sentence in time.
void checkTrouble(const QString &address)
{
    Session session(address);
    QElapsedTimer clock;
    clock.start();
    Network network;
    if (session.open()) {
        clock.start();
        QVERIFY2(!session.analyser()->sweep(network, {}), qPrintable(address));
    }
    QVERIFY2(clock.elapsed() <= 5000, qPrintable(address + QString::number(clock.elapsed())));
    QVERIFY(session.trouble().endsWith(QLatin1Char('.')));
    QVERIFY(!session.trouble().contains(QLatin1Char('\n')));
}

} // namespace

/// Instruments at the other end of a cable: well, and at their worst.
class LinkTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        setUpApplication();
        if (!Double::isPossible())
            QSKIP("There is no python3 to stand in for an instrument.");
    }

    void readsAddresses()
    {
        const std::pair<QString, QString> rows[] = {
            {"nanovna:/dev/ttyACM0"_s, "nanovna:/dev/ttyACM0"_s},
            {"librevna:bench"_s, "librevna:bench:19542"_s},
            {"scpi:[2001:db8::1]"_s, "scpi:[2001:db8::1]:5025"_s},
            {"scpi:10.0.0.7:1"_s, "scpi:10.0.0.7:1"_s},
            {"scpi:2001:db8::1"_s, {}},
            {"scpi:h:65536"_s, {}},
            {"scpi:"_s, {}},
            {"nanovna:"_s, {}},
            {"usb:0"_s, {}},
        };
        for (const auto &[text, wanted] : rows) {
            const Row row(text);
            LinkAddress address;
            QString error;
            QCOMPARE(parseLinkAddress(text, address, error), !wanted.isEmpty());
            QCOMPARE(error.isEmpty() ? address.text() : QString(), wanted);
        }
    }

    void readsBytes()
    {
        QCOMPARE(identityFields("CMT, C1209 ,1"), (QByteArrayList{"CMT", "C1209", "1"}));
        int code = 0;
        QByteArray text;
        QVERIFY(readErrorEntry("-113,\"Undefined header\"", code, text) && code == -113);
        QVERIFY(!readErrorEntry("\"Trc1,S11\"", code, text)
                && !readErrorEntry("1.5,2", code, text));
        QCOMPARE(blockSize("000016"), 16);
        QCOMPARE(blockSize("1x"), -1);
        QCOMPARE(parseNumberList("+1.0E+009, -2,nan,junk").mid(0, 2), (QVector<double>{1e9, -2.0}));
        QCOMPARE(parseNumberList("1,2,junk,4").size(), 2);
        QCOMPARE(parseCatalogue("'Trc1,S11,b,s21'").at(1).parameter, QByteArray("S21"));
        QCOMPARE(announcedPoints(QByteArray("\x87\0\x91\1", 4)), 401);
        QCOMPARE(announcedPoints("freq"), -1);
        const Scan scan = parseScanRows("100 0,5 -1 0 1 \r\n200 1 1 1 1 \r\n", 2);
        QCOMPARE(scan.points.first().s11, std::complex<double>(0.5, -1.0));
        QCOMPARE(int(checkScan(scan, 100.0, 200.0)), int(ScanFault::None));
        QCOMPARE(int(checkScan(scan, 100.0, 900.0)), int(ScanFault::OtherFrequencies));
        QCOMPARE(int(parseScanRows("100 1 1 1\r\n", 1).fault), int(ScanFault::Unreadable));
        QCOMPARE(parseProgramTrace("[1e9,0.5,-1],[2e9, 1,1]", 2).imag.size(), 2);
        for (const char *const broken : {"[1,2]", "[1,2,3", "[1,2,3][1,2,3]", "EMPTY", "[,,]"})
            QVERIFY2(!parseProgramTrace(broken, 1).readable, broken);
    }

    void measuresWithEachProtocol()
    {
        for (const QString &kind :
             {"shell"_s, "textshell"_s, "oldshell"_s, "program"_s, "oldprogram"_s, "A"_s, "B"_s,
              "C"_s, "F"_s, "A --text"_s, "B --late 0.3"_s}) {
            const Row row(kind);
            const Double device(kind);
            Session session(device.address());
            QVERIFY2(session.open(), qPrintable(session.trouble()));
            Analyser &analyser = *session.analyser();
            QCOMPARE(analyser.settings().sweep, (Sweep{1e6, 3e9, 201}));
            Network network;
            QVERIFY2(analyser.sweep(network, {}), qPrintable(session.trouble()));
            QCOMPARE(network.points(), 201);
            const int measured = kind.contains("shell"_s) ? 2 : 4;
            QVERIFY2(deviation(network, measured) < 2e-4, qPrintable(kind));
            // In pieces, where the device holds fewer.
            MeasurementSettings settings = analyser.settings();
            settings.sweep = {2e6, 2.6e9, 1001};
            settings.acquisition.bandwidth = 300.0;
            QVERIFY2(analyser.apply(settings), qPrintable(session.trouble()));
            QCOMPARE(analyser.settings().sweep, settings.sweep);
            double last = 0.0;
            int steps = 0;
            QVERIFY2(analyser.sweep(network,
                                    [&](const Network &, double progress) {
                                        last = progress;
                                        ++steps;
                                    }),
                     qPrintable(session.trouble()));
            QCOMPARE(last, 1.0);
            QVERIFY(steps > 1 || !kind.contains("shell"_s));
            QCOMPARE(network.points(), 1001);
            QVERIFY2(deviation(network, measured) < 2e-4, qPrintable(kind));
        }
    }

    /// Whatever is wrong, it is one sentence, in time, and the next connection is as good as new.
    void saysWhatIsWrong()
    {
        const QStringList kinds{"shell"_s, "textshell"_s, "program"_s, "A"_s, "C --text"_s};
        for (const QString &kind : kinds) {
            QStringList faults{"cut"_s, "huge"_s, "fewer"_s, "nan"_s, "error"_s};
            faults << (kind.contains("shell"_s) ? "noise"_s : "identity"_s);
            for (const QString &fault : qAsConst(faults)) {
                if (kind == "C --text"_s && fault == "huge"_s)
                    continue; // announced in blocks alone
                const Row row(kind + fault);
                const Double device(kind + " --fault "_s + fault);
                checkTrouble(device.address());
            }
        }
        // What takes its time, side by side.
        std::vector<std::unique_ptr<Double>> devices;
        std::vector<std::unique_ptr<QThread>> sessions;
        for (const QString &kind : kinds) {
            for (const QString &fault : {"silence"_s, "trickle"_s, "mute"_s}) {
                devices.push_back(std::make_unique<Double>(kind + " --fault "_s + fault));
                sessions.emplace_back(QThread::create(checkTrouble, devices.back()->address()));
                sessions.back()->start();
            }
        }
        for (const auto &session : sessions)
            session->wait();
        Session nowhere("nanovna:/dev/none"_s);
        QVERIFY(!nowhere.open() && !nowhere.trouble().isEmpty());
        Session refused("scpi:127.0.0.1:1"_s);
        QVERIFY(!refused.open() && !refused.trouble().isEmpty());
    }

    /// VNA_SWEEPS: how many.
    void survivesRandomFaults()
    {
        const int sweeps = qEnvironmentVariableIntValue("VNA_SWEEPS");
        for (const QString &kind : {"A"_s, "program"_s}) {
            const Row row(kind);
            const Double device(kind + " --random 0.02"_s);
            int good = 0, bad = 0;
            std::unique_ptr<Session> session;
            for (int i = 0; i < qMax(200, sweeps); ++i) {
                if (!session || !session->trouble().isEmpty()) {
                    session = std::make_unique<Session>(device.address());
                    QVERIFY2(session->open(), qPrintable(session->trouble()));
                }
                Network network;
                if (session->analyser()->sweep(network, {})) {
                    QVERIFY(deviation(network, 4) < 2e-4);
                    ++good;
                } else {
                    QVERIFY(!session->trouble().isEmpty());
                    ++bad;
                }
            }
            QVERIFY2(bad > 0 && good > bad, qPrintable("%1 %2"_s.arg(good).arg(bad)));
        }
    }

    /// The panel follows an instrument that comes, goes and comes back.
    void panelFollowsAnInstrument()
    {
        PanelDesk desk;
        auto device = std::make_unique<Double>("A"_s);
        const QString address = device->address();
        desk.model.setInstrument(address);
        QVERIFY(!desk.model.showsMeasurement()); // the file stays until there are data
        QTRY_VERIFY(desk.model.showsMeasurement());
        QCOMPARE(desk.model.sweep(), (Sweep{1e6, 3e9, 201}));
        QVERIFY(desk.keys().ifBandwidth->isEnabled());
        QCOMPARE(desk.model.preferences()->instruments(), QStringList{address});

        desk.model.setSweep({1e9, 2e9, 301});
        QTRY_COMPARE(desk.model.networks().first().points(), 301);
        desk.model.setSweep({1e9, 21e9, 301}); // beyond what it says of itself
        QCOMPARE(desk.model.sweep().stop, 2e9);
        desk.model.setSweeping(false);
        // What is under way may come yet, and nothing after it.
        QSignalSpy updated(&desk.model, &PanelModel::networkUpdated);
        const auto isQuiet = [&updated] {
            updated.clear();
            QTest::qWait(300);
            return updated.isEmpty();
        };
        QTRY_VERIFY(isQuiet());
        desk.click(desk.keys().single);
        QTRY_COMPARE(updated.count(), 1);

        device.reset();
        QTRY_VERIFY(desk.model.isStale());
        QVERIFY(!desk.bar()->message().isEmpty());
        QCOMPARE(desk.model.networks().first().points(), 301);
        device = std::make_unique<Double>("A --port "_s + address.section(QLatin1Char(':'), -1));
        QTRY_VERIFY_WITH_TIMEOUT(!desk.model.isStale(), 15000);
        // What was set holds for what comes back.
        desk.model.setSweeping(true);
        const auto before = updated.count();
        QTRY_VERIFY(updated.count() > before);
        QCOMPARE(desk.model.networks().first().points(), 301);

        device = nullptr;
        device = std::make_unique<Double>("B --port "_s + address.section(QLatin1Char(':'), -1));
        QTRY_COMPARE_WITH_TIMEOUT(int(desk.model.sourceState().phase), int(SourceState::Refused),
                                  15000);
        QVERIFY(desk.bar()->message().contains("another instrument"_s));
        desk.model.setSource(Source::Files);
        QVERIFY(!desk.model.showsMeasurement());
    }

    void commandLineMeasures()
    {
        const QTemporaryDir folder;
        const Double device("C"_s);
        const Double broken("A --fault nan --after 5"_s);
        const std::tuple<QString, int, QString> rows[] = {
            {"--connect %1 --save a.s2p --start 1e9 --stop 2e9 --points 11 --sweeps 3"_s.arg(
                 device.address()),
             0,
             {}},
            {"--connect %1 --save b.s1p"_s.arg(device.address()), 0, {}},
            {"--connect %1 --save c.s2p --sweeps 9"_s.arg(broken.address()), 1, "no numbers"_s},
            {"--connect %1 --save d.s2p --stop 1e12"_s.arg(device.address()), 1, "does not take"_s},
            {"--connect scpi:127.0.0.1:1 --save e.s2p"_s, 1, "cannot be reached"_s},
            {"--connect usb:1 --save f.s2p"_s, 2, "An instrument is written as"_s},
            {"--points 5 --save f.s2p a.s2p"_s, 2, "goes with --connect"_s},
        };
        for (const auto &[arguments, status, told] : rows) {
            const Row row(arguments);
            QProcess panel;
            QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
            environment.remove("DISPLAY"_s);
            environment.remove("QT_QPA_PLATFORM"_s);
            panel.setProcessEnvironment(environment);
            panel.setWorkingDirectory(folder.path());
            panel.start(QStringLiteral(VNAPANEL_PROGRAM), arguments.split(QLatin1Char(' ')));
            QVERIFY(panel.waitForFinished(60000));
            const QString error = QString::fromUtf8(panel.readAllStandardError());
            QCOMPARE(panel.exitCode(), status);
            QCOMPARE(error.count(QLatin1Char('\n')), status ? 1 : 0);
            QVERIFY2(error.contains(told), qPrintable(error));
        }
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files), (QStringList{"a.s2p"_s, "b.s1p"_s}));
        QFile saved(folder.filePath("a.s2p"_s));
        QVERIFY(saved.open(QIODevice::ReadOnly));
        QVERIFY(saved.readAll().contains("\n1e+09 "));
    }
};

QTEST_MAIN(LinkTest)
#include "tst_link.moc"
