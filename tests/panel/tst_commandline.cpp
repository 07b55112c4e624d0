// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "vnatest.h"

#include <panel/commandline.h>

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

using namespace Panel;

/// The command line as it is read, and as the program answers it.
class CommandLineTest : public VnaTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void reads_data();
    void reads();
    void grabsEveryScreen();
    void answers_data();
    void answers();
};

void CommandLineTest::reads_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("error");
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QSize>("size");

    const auto row = [](const char *name, const char *arguments, const char *error,
                        const QStringList &files = {}, const char *folder = "",
                        const QSize &size = QSize(1280, 800)) {
        QTest::newRow(name) << QString::fromUtf8(arguments) << QString::fromUtf8(error) << files
                            << QString::fromUtf8(folder) << size;
    };
    const QString a = QStringLiteral("a.s1p");
    const QString b = QStringLiteral("b.s2p");
    row("nothing", "", "");
    row("files around options", "a.s1p --size 800x480 b.s2p", "", {a, b}, "", {800, 480});
    row("values after =", "--grab=out --size=1920X1080", "", {}, "out", {1920, 1080});
    row("file that looks like an option", "-- --grab", "", {QStringLiteral("--grab")});
    row("options without a value", "a.s1p --simulate --version", "", {a});
    row("simulate with a value", "--simulate=1", "--simulate takes no value.");
    row("unknown", "--gräb x", "There is no option --gräb.");
    row("unknown short", "-x", "There is no option -x.");
    row("value missing", "--grab", "--grab needs a value.");
    row("value empty", "--grab= a.s1p", "--grab needs a value.");
    row("value too many", "--help=yes", "--help takes no value.");
    row("size too small", "--size 799x480",
        "--size wants WIDTHxHEIGHT from 800x480 to 7680x4320, not \"799x480\".");
    row("size too large", "--size 99999x480",
        "--size wants WIDTHxHEIGHT from 800x480 to 7680x4320, not \"99999x480\".");
    row("size with a tail", "--size 800x480!",
        "--size wants WIDTHxHEIGHT from 800x480 to 7680x4320, not \"800x480!\".");
}

void CommandLineTest::reads()
{
    QFETCH(QString, arguments);
    QFETCH(QString, error);
    QFETCH(QStringList, files);
    QFETCH(QString, folder);
    QFETCH(QSize, size);

    const CommandLine result =
        parseCommandLine(arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts));
    QCOMPARE(result.error, error);
    if (!error.isEmpty())
        return;
    QCOMPARE(result.files, files);
    QCOMPARE(result.grabFolder, folder);
    QCOMPARE(result.size, size);
}

void CommandLineTest::grabsEveryScreen()
{
    const QTemporaryDir folder;
    QProcess panel;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(QLatin1String(name));
    panel.setProcessEnvironment(environment);
    panel.start(QStringLiteral(VNAPANEL_PROGRAM),
                {QStringLiteral("--grab"), folder.filePath(QStringLiteral("new/folder")),
                 QStringLiteral("--size"), QStringLiteral("800x480")});
    QVERIFY(panel.waitForFinished(60000));
    QCOMPARE(panel.readAllStandardError(), QByteArray());
    QCOMPARE(panel.exitCode(), 0);

    const QDir pictures(folder.filePath(QStringLiteral("new/folder")));
    const QStringList names = pictures.entryList(QDir::Files);
    QVERIFY(names.size() >= 10);
    QList<QImage> screens;
    for (const QString &name : names) {
        const QImage screen(pictures.filePath(name));
        const QStringList dialogs{QStringLiteral("file-dialog.png"), QStringLiteral("help.png"),
                                  QStringLiteral("settings.png")};
        if (!dialogs.contains(name))
            QCOMPARE(screen.size(), QSize(800, 480));
        QVERIFY2(!screens.contains(screen), qPrintable(name));
        screens << screen;
    }
}

void CommandLineTest::answers_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("output");
    QTest::addColumn<QString>("errors");

    QTest::newRow("help") << QStringList{QStringLiteral("--help")} << 0
                          << "Usage: vnapanel [options] [files]\n"
                          << "";
    QTest::newRow("version") << QStringList{QStringLiteral("--version")} << 0 << "vnapanel 0."
                             << "";
    QTest::newRow("wrong usage") << QStringList{QStringLiteral("--what")} << 2 << ""
                                 << "vnapanel: There is no option --what. Try vnapanel --help.\n";
    QTest::newRow("file missing") << QStringList{QStringLiteral("--grab=."),
                                                 QStringLiteral("none.s1p")}
                                  << 1 << ""
                                  << "vnapanel: none.s1p: there is no such file.\n";
    QTest::newRow("folder in the way")
        << QStringList{QStringLiteral("--grab=file/below")} << 1 << ""
        << "vnapanel: file/below: the folder cannot be made.\n";
}

void CommandLineTest::answers()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, status);
    QFETCH(QString, output);
    QFETCH(QString, errors);

    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("file")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QProcess panel;
    panel.setWorkingDirectory(folder.path());
    panel.start(QStringLiteral(VNAPANEL_PROGRAM), arguments);
    QVERIFY(panel.waitForFinished(60000));
    QCOMPARE(QString::fromUtf8(panel.readAllStandardError()), errors);
    QCOMPARE(QString::fromUtf8(panel.readAllStandardOutput()).left(output.size()), output);
    QCOMPARE(panel.exitCode(), status);
}

QTEST_GUILESS_MAIN(CommandLineTest)
#include "tst_commandline.moc"
