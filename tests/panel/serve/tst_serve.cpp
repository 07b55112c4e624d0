// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desk.h"

#include <panel/serve/panelserver.h>

#include <QProcess>
#include <QRandomGenerator>
#include <QStandardPaths>
#include <QTcpSocket>

using namespace VnaTest;
using namespace Panel;

namespace
{

QByteArray ask(PanelCommands &commands, const char *line)
{
    return commands.execute(line);
}

} // namespace

/// Scripts that drive the panel over TCP.
class ServeTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { setUpApplication(); }

    void readsHeaders()
    {
        const std::tuple<const char *, const char *, int> rows[] = {
            // header, pattern, number or -1 for another one
            {"SENS1:FREQ:STAR", "[SENSe:]FREQuency:STARt", 0},
            {"freq:start", "[SENSe:]FREQuency:STARt", 0},
            {"SENSE:FREQU:STAR", "[SENSe:]FREQuency:STARt", -1},
            {"SENS2:FREQ:STAR", "[SENSe:]FREQuency:STARt", -1},
            {"CALC:MARK7", "CALCulate:MARKer#[:STATe]", 7},
            {"CALC:MARK:STAT", "CALCulate:MARKer#[:STATe]", 1},
            {"CALC:MARK99999999999", "CALCulate:MARKer#[:STATe]", 999999},
            {"CALC:", "CALCulate:MARKer#[:STATe]", -1},
            {"*IDN", "*IDN", 0},
        };
        for (const auto &[header, pattern, wanted] : rows) {
            const Row row(QString::fromLatin1(header));
            int number = 0;
            QCOMPARE(matches(header, pattern, number), wanted >= 0);
            QCOMPARE(number, qMax(0, wanted));
        }
        const QList<ScpiCommand> commands =
            parseCommands(" CALC:PAR:SEL 'a;b', \"c,d\" ;CAT?;*IDN?;DEL x;:FORM real,64;; ");
        QStringList headers;
        for (const ScpiCommand &command : commands)
            headers << QString::fromLatin1(command.header);
        QCOMPARE(headers,
                 (QStringList{"CALC:PAR:SEL"_s, "CALC:PAR:CAT"_s, "*IDN"_s, "CALC:PAR:DEL"_s,
                              "FORM"_s}));
        QCOMPARE(commands.first().words, (QByteArrayList{"a;b", "c,d"}));
    }

    void refusesWhatCannotBe()
    {
        PanelDesk desk;
        PanelCommands commands(&desk.model, [] { return QByteArray("png"); });
        const std::pair<const char *, const char *> rows[] = {
            {"FREQ:STAR 1e9", "-221"}, // a file has what it has
            {"INIT", "-221"},
            {"FREQ:STAR", "-109"},
            {"FREQ:STAR fast", "-104"},
            {"CALC:MARK1:X 1", "-222"},
            {"CALC:MARK1:Y?", "-221"},
            {"CALC:DATA? HDATA", "-224"},
            {"CALC:PAR:SEL 'Tr9'", "-224"},
            {"FORM REAL,32", "-224"},
            {"BWID 1e3", "-222"},
            {"*IDN", "-113"},
            {"\xff\xfe:?", "-113"},
        };
        for (const auto &[line, code] : rows) {
            const Row row(QString::fromLatin1(line));
            QCOMPARE(ask(commands, line), QByteArray());
            QVERIFY(ask(commands, "SYST:ERR?").startsWith(code));
            QCOMPARE(ask(commands, "SYST:ERR?"), QByteArray("0,\"No error\""));
        }
        QCOMPARE(ask(commands, "*OPC?;*OPC?"), QByteArray("1;1")); // nothing is under way
        desk.show({});
        for (const char *const query :
             {"FREQ:STAR?", "CALC:DATA? SDAT", "CALC:MARK1:X?", "INST:PORT:COUN?"})
            QCOMPARE(ask(commands, query), QByteArray());
        QVERIFY(ask(commands, "SYST:ERR?").startsWith("-230"));

        // Whatever comes, it is survived, and no more errors than there is room for are kept.
        QRandomGenerator random(7);
        const QByteArrayList pieces{"CALC", ":", "MARK", "12",   "?",    ";",    "'",
                                    "\"",   ",", " ",    "*OPC", "FREQ", "STAR", "1e400",
                                    "nan",  "-", "DATA", "SDAT", "INIT", "\0",   "FORM"};
        desk.open({startSample()});
        for (int i = 0; i < 5000; ++i) {
            QByteArray line;
            for (int n = random.bounded(12); n >= 0; --n)
                line += pieces.at(random.bounded(int(pieces.size())));
            commands.execute(line);
        }
        int errors = 0;
        while (!ask(commands, "SYST:ERR?").startsWith("0,"))
            ++errors;
        QCOMPARE(errors, 16);
        ask(commands, "*CLS");
        QCOMPARE(ask(commands, "*ESR?"), QByteArray("0"));
    }

    void boundsItsClients()
    {
        PanelDesk desk;
        QString error;
        const QString place = desk.controller.serve("0"_s, error);
        QVERIFY2(place.startsWith("127.0.0.1:"_s), qPrintable(place + error));
        const auto connected = [&place] {
            auto socket = std::make_unique<QTcpSocket>();
            socket->connectToHost("127.0.0.1"_s,
                                  quint16(place.section(QLatin1Char(':'), 1).toInt()));
            return socket;
        };
        std::vector<std::unique_ptr<QTcpSocket>> clients;
        for (int i = 0; i < PanelServer::maximumConnections; ++i) {
            clients.push_back(connected());
            QTRY_COMPARE(clients.back()->state(), QAbstractSocket::ConnectedState);
            clients.back()->write("*IDN?\n");
            QTRY_VERIFY(clients.back()->canReadLine());
        }
        const auto tooMany = connected();
        QTRY_COMPARE(tooMany->state(), QAbstractSocket::UnconnectedState);
        clients.back()->write(QByteArray(PanelServer::longestLine + 2, 'x'));
        QTRY_COMPARE(clients.back()->state(), QAbstractSocket::UnconnectedState);

        // A query behind a sweep waits for it; the others go on.
        desk.model.setSource(Source::Filter);
        QTRY_VERIFY(desk.model.showsMeasurement());
        clients.front()->readAll();
        clients.front()->write("SWE:POIN 100001;:INIT;*OPC?;SWE:POIN?\n");
        QTRY_VERIFY(!desk.model.isSweeping());
        clients.at(1)->readAll();
        clients.at(1)->write("*IDN?\n");
        QTRY_VERIFY(clients.at(1)->canReadLine());
        QVERIFY(!clients.front()->canReadLine());
        QTRY_VERIFY_WITH_TIMEOUT(clients.front()->canReadLine(), 20000);
        QCOMPARE(clients.front()->readLine(), QByteArray("1;100001\n"));
        clients.front()->write("HCOP:DATA?\n");
        clients.front()->abort(); // gone before the answer
    }

    void endsBeforeItsClients()
    {
        QTcpSocket client;
        {
            PanelDesk desk;
            QString error;
            const QString place = desk.controller.serve("0"_s, error);
            client.connectToHost("127.0.0.1"_s,
                                 quint16(place.section(QLatin1Char(':'), 1).toInt()));
            client.write("*IDN?\n");
            QTRY_VERIFY(client.canReadLine());
        }
        QTRY_COMPARE(client.state(), QAbstractSocket::UnconnectedState);
    }

    /// Two programs that laboratories use.
    void answersOthersClients()
    {
        QProcess panel;
        const QTemporaryDir folder;
        panel.setWorkingDirectory(folder.path());
        panel.start(QStringLiteral(VNAPANEL_PROGRAM),
                    {"--simulate"_s, "--serve"_s, "0"_s, "--state"_s, "s.json"_s});
        QVERIFY(panel.waitForReadyRead(30000));
        const QString port =
            QString::fromLatin1(panel.readLine()).trimmed().section(QLatin1Char(':'), -1);
        QTest::qWait(1000);
        int tried = 0;
        const auto run = [&tried](const QString &program, const QStringList &arguments) {
            QProcess client;
            client.start(program, arguments);
            if (!client.waitForFinished(60000) || client.exitStatus() != QProcess::NormalExit)
                return QByteArray();
            ++tried;
            return client.readAllStandardOutput() + client.readAllStandardError();
        };
        if (!QStandardPaths::findExecutable("lxi"_s).isEmpty()) {
            const QByteArray told =
                run("lxi"_s, {"scpi"_s, "-a"_s, "127.0.0.1"_s, "-p"_s, port, "-r"_s, "*IDN?"_s});
            QVERIFY2(told.startsWith("VnaWidgets,vnapanel,0,"), told.constData());
        }
        for (const QString &python : {"python3"_s, "/usr/bin/python3"_s}) {
            QProcess probe;
            probe.start(python, {"-c"_s, "import pyvisa, pyvisa_py"_s});
            if (!probe.waitForFinished(30000) || probe.exitCode() != 0)
                continue;
            const QByteArray told = run(python, {QStringLiteral(VNA_CLIENT), port});
            QVERIFY2(told.startsWith("well"), told.constData());
            break;
        }
        panel.terminate();
        QVERIFY(panel.waitForFinished(30000));
        if (tried == 0)
            QSKIP("Neither lxi-tools nor PyVISA is here.");
    }
};

QTEST_MAIN(ServeTest)
#include "tst_serve.moc"
