// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "vnatest.h"

#include <panel/window/commandline.h>

#include <csignal>

using namespace VnaTest;
using namespace Panel;

/// The command line as it is read, and as the program answers it.
class CommandLineTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void leavesToolkitOptionsToQt()
    {
        const CommandLine line =
            parseCommandLine({"-platform"_s, "vnc:port=5901"_s, "a.s2p"_s, "--style=fusion"_s,
                              "-reverse"_s, "-style"_s, "fusion"_s, "b.s2p"_s});
        QVERIFY2(line.error.isEmpty(), qPrintable(line.error));
        QCOMPARE(line.files, (QStringList{"a.s2p"_s, "b.s2p"_s}));
        QVERIFY(!parseCommandLine({"--plattform"_s, "vnc"_s}).error.isEmpty());
    }

    void reads()
    {
        const QString badSize =
            "--size wants WIDTHxHEIGHT from 800x480 to 7680x4320, not \"%1\"."_s;
        const struct {
            QString arguments;
            QString error = {};
            QStringList files = {};
            QString folder = {};
            QSize size = {1280, 800};
        } rows[] = {
            {QString()},
            {"a.s1p --size 800x480 b.s2p"_s, {}, {"a.s1p"_s, "b.s2p"_s}, {}, {800, 480}},
            {"--grab=out --size=1920X1080"_s, {}, {}, "out"_s, {1920, 1080}},
            {"-- --grab"_s, {}, {"--grab"_s}},
            {"a.s1p --simulate --version"_s, {}, {"a.s1p"_s}},
            {"--simulate=1"_s, "Unexpected value after '--simulate'."_s},
            {"--gräb x"_s, "Unknown option 'gräb'."_s},
            {"--grab"_s, "Missing value after '--grab'."_s},
            {"--grab= a.s1p"_s, "--grab needs a value."_s},
            {"--size 799x480"_s, badSize.arg("799x480"_s)},
            {"--size 99999x480"_s, badSize.arg("99999x480"_s)},
            {"--size 800x480!"_s, badSize.arg("800x480!"_s)},
        };
        for (const auto &[arguments, error, files, folder, wanted] : rows) {
            const Row row(arguments);
            const CommandLine result =
                parseCommandLine(arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts));
            QCOMPARE(result.error, error);
            if (error.isEmpty()) {
                QCOMPARE(result.files, files);
                QCOMPARE(result.grabFolder, folder);
                QCOMPARE(result.size, wanted);
            }
        }
    }

    void grabsEveryScreen()
    {
        const QTemporaryDir folder;
        QProcess panel;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
            environment.remove(QLatin1String(name));
        panel.setProcessEnvironment(environment);
        panel.start(QStringLiteral(VNAPANEL_PROGRAM),
                    {"--grab"_s, folder.filePath("new/folder"_s), "--size"_s, "800x480"_s});
        QVERIFY(panel.waitForFinished(60000));
        QCOMPARE(panel.readAllStandardError(), QByteArray());
        QCOMPARE(panel.exitCode(), 0);

        const QDir pictures(folder.filePath("new/folder"_s));
        const QStringList names = pictures.entryList(QDir::Files);
        QVERIFY(names.size() >= 10);
        const QStringList dialogs{"file-dialog.png"_s, "help.png"_s, "settings.png"_s};
        QList<QImage> screens;
        for (const QString &name : names) {
            const QImage screen(pictures.filePath(name));
            if (!dialogs.contains(name))
                QCOMPARE(screen.size(), QSize(800, 480));
            QVERIFY2(!screens.contains(screen), qPrintable(name));
            screens << screen;
        }
    }

    void answers()
    {
        // What succeeds is written to the standard output, and a fault to the other one.
        const std::tuple<QString, int, QString> rows[] = {
            {"--help"_s, 0,
             "Usage: "_s + QStringLiteral(VNAPANEL_PROGRAM) + " [options] [files...]\n"_s},
            {"--version"_s, 0, "vnapanel 0."_s},
            {"--what"_s, 2, "vnapanel: Unknown option 'what'. Try vnapanel --help.\n"_s},
            {"--grab=. none.s1p"_s, 1, "vnapanel: none.s1p: there is no such file.\n"_s},
            {"--grab=file/below"_s, 1, "vnapanel: file/below: the folder cannot be made.\n"_s},
        };
        const QTemporaryDir folder;
        writeFile(folder.filePath("file"_s), {});
        for (const auto &[arguments, status, text] : rows) {
            const Row row(arguments);
            QProcess panel;
            panel.setWorkingDirectory(folder.path());
            panel.start(QStringLiteral(VNAPANEL_PROGRAM), arguments.split(QLatin1Char(' ')));
            QVERIFY(panel.waitForFinished(60000));
            const QString output = QString::fromUtf8(panel.readAllStandardOutput());
            QVERIFY2(status || output.startsWith(text), qPrintable(output));
            QCOMPARE(QString::fromUtf8(panel.readAllStandardError()), status ? text : QString());
            QCOMPARE(panel.exitCode(), status);
        }
    }

    /// A signal ends the program as closing its window does, and its state is kept.
    void endsInOrder()
    {
        const QTemporaryDir folder;
        writeFile(folder.filePath("file"_s), {});
        const std::tuple<int, QString, int> rows[] = {
            {SIGTERM, "term.json"_s, 0},
            {SIGINT, "int.json"_s, 0},
            {SIGHUP, "hup.json"_s, 0},
            {SIGTERM, "file/state.json"_s, 1}, // cannot be written
        };
        for (const auto &[number, state, status] : rows) {
            const Row row(state);
            QProcess panel;
            panel.setWorkingDirectory(folder.path());
            panel.start(QStringLiteral(VNAPANEL_PROGRAM), {"--simulate"_s, "--state"_s, state});
            QVERIFY(panel.waitForStarted());
            if (status == 0)
                QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(folder.filePath(state)), 30000);
            else
                QTest::qWait(3000);
            ::kill(pid_t(panel.processId()), number);
            QVERIFY(panel.waitForFinished(30000));
            QCOMPARE(panel.exitStatus(), QProcess::NormalExit);
            QCOMPARE(panel.exitCode(), status);
            const QString told = QString::fromUtf8(panel.readAllStandardError());
            QCOMPARE(told.contains("could not be saved to file/state.json"_s), status == 1);
        }
    }
};

QTEST_GUILESS_MAIN(CommandLineTest)
#include "tst_commandline.moc"
