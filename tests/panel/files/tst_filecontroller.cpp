// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desk.h"

#include <panel/entry/panelkeys.h>
#include <panel/files/filecontroller.h>
#include <panel/files/filenotes.h>
#include <panel/touchstone/touchstone.h>
#include <panel/window/exports.h>
#include <panel/window/savedialog.h>

#include <widgets/menubutton.h>

#include <QLineEdit>

using namespace VnaTest;
using namespace Panel;

namespace
{

/// A one-port of so many points from 1 GHz on, 1 kHz apart, with S11 = reflection.
QByteArray onePort(int points, double reflection)
{
    QByteArray text = "# kHz S RI\n";
    for (int i = 0; i < points; ++i)
        text += QByteArray::number(1000000 + i) + ' ' + QByteArray::number(reflection) + " 0\n";
    return text;
}

/// The panel with a folder of files, and its message bar.
struct Desk : PanelDesk {
    using PanelDesk::open;
    using PanelDesk::PanelDesk;

    QTemporaryDir folder;
    FileController *files() const { return controller.fileController(); }
    QPushButton *action() const { return bar()->findChild<QPushButton *>("messageAction"_s); }
    int points() const { return model.networks().first().points(); }
    double firstValue() const { return model.networks().first().s(1, 1).real.first(); }

    QString write(const char *name, const QByteArray &text) const
    {
        return writeFile(folder.filePath(QLatin1String(name)), text);
    }
    /// Shows a file "x.s1p".
    QString open(const QByteArray &text)
    {
        const QString path = write("x.s1p", text);
        if (!PanelDesk::open(QStringList{path}))
            qFatal("cannot open");
        return path;
    }
};

void waitForRest()
{
    QTest::qWait(3 * FileWatch::restInterval);
}

} // namespace

class FileControllerTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { setUpApplication(); }

    void loadsWhileThePanelGoesOn()
    {
        Desk desk;
        const QString good = desk.write("good.s1p", onePort(3, 0.5));
        const QString bad = desk.write("bad.s1p", "1 0\n");
        desk.files()->loadFiles({good, bad});
        QCOMPARE(desk.keys().file->value(), "band-pass.s2p"_s);
        QTRY_COMPARE(desk.keys().file->value(), "good.s1p"_s);
        QCOMPARE(desk.model.networks().first().path, good);
        QCOMPARE(desk.bar()->message(), "bad.s1p, line 1: the last point has 2 of 3 numbers."_s);
        desk.click(desk.bar()->findChild<QToolButton *>("closeMessage"_s));
        QVERIFY(!desk.bar()->isVisible());
        // Nothing can be read of these, and not all of it fits.
        desk.files()->loadFiles(QVector<QString>(9, "/none.s1p"_s).toList());
        QTRY_VERIFY(desk.bar()->message().endsWith("no such file. (5 more)"_s));
        QCOMPARE(desk.keys().file->value(), "good.s1p"_s);
    }

    void cancelKeepsWhatWasShown()
    {
        Desk desk;
        const QString large = desk.write("large.s1p", QByteArray("1 0.5 0\n").repeated(1000000));
        const QStringList slow = QVector<QString>(20, large).toList();
        desk.files()->loadFiles(slow);
        QVERIFY(!desk.bar()->isVisible());
        QTRY_VERIFY(desk.bar()->showsProgress());
        QCOMPARE(desk.bar()->message(), "Reading 20 files"_s);
        QVERIFY(!desk.bar()->findChild<QToolButton *>("closeMessage"_s)->isVisible());
        // Pressed while the bar moves on.
        mousePress(desk.action());
        const auto *progress = desk.bar()->findChild<QProgressBar *>();
        const int percent = progress->value();
        QTRY_VERIFY(progress->value() > percent);
        mouseRelease(desk.action());
        QVERIFY(!desk.files()->isLoading() && !desk.bar()->isVisible());
        QCOMPARE(desk.keys().file->value(), "band-pass.s2p"_s);

        // Opening at once overtakes, and closing the panel in the middle is no harm.
        desk.files()->loadFiles(slow);
        QVERIFY(desk.open({startSample()}));
        QVERIFY(!desk.files()->isLoading());
        desk.files()->loadFiles(slow);
        QTest::qWait(20);
    }

    void loaderDropsWhatIsNotAskedForAnyMore()
    {
        const Desk desk;
        const QString large = desk.write("large.s1p", QByteArray("1 0.5 0\n").repeated(400000));
        const QString small = desk.write("small.s1p", onePort(2, 0.5));
        QStringList names;
        int percent = 0;
        FileLoader loader;
        connect(&loader, &FileLoader::progressed, this, [&percent](int told) {
            QVERIFY(told >= percent && told <= 100);
            percent = told;
        });
        connect(&loader, &FileLoader::finished, this,
                [&](const ReadFiles &files) { names << files.networks.last().name; });
        loader.load({large, large});
        loader.load({small});
        loader.load({small, large});
        QTRY_COMPARE(names, QStringList{"large.s1p"_s});
        QCOMPARE(percent, 100);
        loader.load({small});
        loader.cancel();
        QTest::qWait(50);
        QCOMPARE(names.size(), 1);
    }

    void offersToReload()
    {
        Desk desk;
        const QString path = desk.open(onePort(101, 0.5));
        desk.model.addMarker(1, 50.0);
        desk.model.setTraceVisible(1, false);
        desk.write("x.s1p", onePort(201, 0.25));
        QTRY_COMPARE(desk.bar()->message(), "x.s1p has changed on disk."_s);
        QCOMPARE(desk.firstValue(), 0.5);
        desk.click(desk.action());
        QTRY_COMPARE(desk.firstValue(), 0.25);
        QVERIFY(!desk.bar()->isVisible());
        QCOMPARE(desk.index(1, 1), 50.0); // 1.00005 GHz as before
        QVERIFY(!desk.model.activeTrace()->visible);
        // What is written while it is read is noticed, whichever of both was read.
        desk.files()->loadFiles({path});
        desk.write("x.s1p", onePort(301, 0.125));
        QTRY_COMPARE(desk.bar()->message(), "x.s1p has changed on disk."_s);
        desk.click(desk.action());
        QTRY_COMPARE(desk.points(), 301);
        // A file that cannot be read any more takes nothing away.
        desk.write("x.s1p", "1 0\n");
        QTRY_VERIFY(desk.bar()->isVisible());
        desk.click(desk.action());
        QTRY_VERIFY(desk.bar()->message().startsWith("x.s1p, line 1"_s));
        QCOMPARE(desk.points(), 301);
    }

    void reloadTakesOtherPorts()
    {
        Desk desk;
        const QString a = desk.write("a.s2p", "1 1 0 .2 0 .2 0 1 0\n2 1 0 .2 0 .2 0 1 0\n");
        const QString b = desk.write("b.s1p", onePort(3, 0.5));
        QVERIFY(desk.open({a, b}));
        desk.write("b.s1p", onePort(4, 0.25));
        // Replaced as editors do it.
        QVERIFY(QFile::rename(desk.write("a.new", "3 1 0 .2 0 .2 0 1 0\n"), a + QLatin1Char('~')));
        QVERIFY(QFile::remove(a) && QFile::rename(a + QLatin1Char('~'), a));
        QTRY_COMPARE(desk.bar()->message(), "2 files have changed on disk."_s);
        desk.click(desk.action());
        QTRY_COMPARE(desk.model.networks().last().points(), 4);
        QCOMPARE(desk.model.networks().first().points(), 1);
        QCOMPARE(desk.model.traces().size(), 6);

        // What was arranged of the other file stays.
        const QString data = "[Version] 2.0\n# Hz S RI R 50\n[Number of Ports] %1\n"
                             "%2[Number of Frequencies] 1\n[Network Data]\n%3\n[End]\n"_s;
        const QString c = desk.write("c.ts", data.arg("1"_s, QString(), "1 1 0"_s).toUtf8());
        QVERIFY(desk.open({c, b}));
        desk.model.setTraceFormat(3, TraceFormat::GroupDelay);
        desk.write(
            "c.ts",
            data.arg("2"_s, "[Two-Port Data Order] 12_21\n"_s, "1 1 0 .2 0 .2 0 1 0"_s).toUtf8());
        QTRY_COMPARE(desk.bar()->message(), "c.ts has changed on disk."_s);
        desk.click(desk.action());
        QTRY_COMPARE(desk.model.networks().first().ports, 2);
        const QVector<Trace> traces = desk.model.traces();
        QVERIFY(std::any_of(traces.begin(), traces.end(), [](const Trace &trace) {
            return trace.network == 1 && trace.format == TraceFormat::GroupDelay;
        }));
    }

    void tellsOfChangesWhileSimulating()
    {
        Desk desk;
        desk.open(onePort(3, 0.5));
        desk.model.setSource(Source::Antenna);
        QTRY_COMPARE(desk.model.networks().first().path, QString());
        desk.write("x.s1p", onePort(4, 0.25));
        waitForRest();
        QVERIFY(!desk.bar()->isVisible());
        desk.model.setSource(Source::Files);
        QVERIFY(desk.bar()->isVisible());
        desk.click(desk.action());
        QTRY_COMPARE(desk.firstValue(), 0.25);
    }

    void tellsWhatVanished()
    {
        Desk desk;
        const QString path = desk.open(onePort(3, 0.5));
        QVERIFY(QFile::remove(path));
        QTRY_COMPARE(desk.bar()->message(), "x.s1p is gone; the panel keeps what it read."_s);
        QVERIFY(!desk.action()->isVisible());
        QCOMPARE(desk.firstValue(), 0.5);
        desk.write("x.s1p", onePort(4, 0.25));
        QTRY_COMPARE(desk.bar()->message(), "x.s1p has changed on disk."_s);
        // What is opened in its place is not spoken for by the old file.
        QVERIFY(desk.open({startSample()}));
        QVERIFY(QFile::remove(path));
        waitForRest();
        QVERIFY(!desk.bar()->isVisible());
    }

    void watchTellsOncePerChange()
    {
        const Desk desk;
        const QString path = desk.write("x.s1p", "1");
        FileWatch watch;
        const QSignalSpy changed(&watch, &FileWatch::changed);
        const QSignalSpy vanished(&watch, &FileWatch::vanished);
        watch.setPaths({path, startSample(), QString()});
        QCOMPARE(watch.paths(), QStringList{path});
        // Growing for longer than the rest, and with other files coming and going.
        QFile file(path);
        QVERIFY(file.open(QIODevice::Append));
        for (int i = 0; i < 12; ++i) {
            file.write("2");
            file.flush();
            desk.write("other.s1p", "1");
            QTest::qWait(FileWatch::restInterval / 5);
        }
        QCOMPARE(changed.count(), 0);
        QTRY_COMPARE(changed.count(), 1);
        waitForRest();
        QCOMPARE(changed.count(), 1);
        QCOMPARE(vanished.count(), 0);
        file.remove();
        QTRY_COMPARE(vanished.count(), 1);
        watch.setPaths({});
        desk.write("x.s1p", "123");
        waitForRest();
        QCOMPARE(changed.count(), 1);
    }

    void takesDrops()
    {
        Desk desk;
        const QUrl good = QUrl::fromLocalFile(desk.write("good.s1p", onePort(3, 0.5)));
        const QUrl text = QUrl::fromLocalFile(desk.write("notes.txt", "a\n"));
        const auto drop = [&desk](const QList<QUrl> &urls) {
            QMimeData data;
            if (!urls.isEmpty())
                data.setUrls(urls);
            QDragEnterEvent enter({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
            enter.ignore();
            QCoreApplication::sendEvent(&desk.window, &enter);
            QDropEvent event(QPoint(9, 9), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
            if (enter.isAccepted())
                QCoreApplication::sendEvent(&desk.window, &event);
            return enter.isAccepted();
        };
        QVERIFY(!drop({}));
        QVERIFY(drop({QUrl("https://example.org/x.s1p"_s)}));
        QCOMPARE(desk.bar()->message(), "Only files of this computer can be opened."_s);
        QVERIFY(drop({text, good}));
        QTRY_COMPARE(desk.keys().file->value(), "good.s1p"_s);
        QCOMPARE(
            desk.bar()->message(),
            "notes.txt: the name of a Touchstone file ends in .s1p, .s2p and so on, or in .ts."_s);
    }

    void notesWhatLooksUnlikeExpected()
    {
        const QString two = "# GHz S MA\n1 1 0\n2 1 0"_s;
        const std::pair<QStringList, QStringList> rows[] = {
            {{two, "8 1 0\n9 1 0"_s}, {}}, // other frequencies
            {{two, "# R 75\n1 1 0\n2 1 0"_s},
             {"Each file is shown in its own reference: 0 50 \u03a9, 1 75 \u03a9."_s}},
            {{"2.5 1 0"_s}, {"0 holds a single point, at 2.500 GHz: set a marker to see it."_s}},
            {{"1 nan 0\n2 nan 0"_s}, {"0: S11 holds no values."_s}},
        };
        for (const auto &[texts, notes] : rows) {
            QVector<Network> networks;
            for (const QString &text : texts) {
                networks << parseTouchstone(text.toUtf8(), 1).network;
                networks.last().name = QString::number(networks.size() - 1);
            }
            QCOMPARE(fileNotes(networks), notes);
            // The panel shows them all the same.
            PanelDesk desk;
            desk.show(networks);
            desk.model.addMarker(1, 0.0);
            PanelDesk::settle();
            QVERIFY(!desk.window.grab().isNull());
        }
    }

    void offersOneAnswerAtATime()
    {
        Desk desk;
        // An answer that makes another offer keeps it, and one whose asker is gone is not called.
        auto asker = std::make_unique<QObject>();
        desk.bar()->offer("a"_s, "b"_s, this, [&] {
            desk.bar()->offer("c"_s, "d"_s, asker.get(), [] { QFAIL("nobody asks any more"); });
        });
        desk.click(desk.action());
        QCOMPARE(desk.bar()->message(), "c"_s);
        asker.reset();
        desk.click(desk.action());
    }

    void savesScreenshots()
    {
        Desk desk;
        const QString folder = desk.folder.filePath("new/pictures"_s);
        for (int i = 1; i <= 3; ++i) {
            const Exported shot = exportScreenshot(&desk.window, folder);
            QCOMPARE(shot.error, QString());
            QCOMPARE(QDir(folder).entryList(QDir::Files).size(), i); // none in another's place
            QCOMPARE(QImage(shot.path).size(), desk.window.size());
            const QRegularExpression form("/vnapanel-\\d{8}-\\d{6}(-\\d+)?\\.png$"_s);
            QVERIFY(shot.path.contains(form));
        }
        const QString file = desk.write("file", "");
        QCOMPARE(exportScreenshot(&desk.window, file).error,
                 "The folder %1 cannot be made."_s.arg(file));
        const auto [path, error] = exportScreenshot(&desk.window, "/proc"_s);
        QVERIFY(path.isEmpty());
        QVERIFY2(error.startsWith("Nothing can be written to /proc ("_s), qPrintable(error));
        QVERIFY(QDir(folderForExports(*desk.model.preferences())).isAbsolute());
    }

    /// Data are saved whole, whatever part is on show, and read back as they were.
    void savesDataAndDrawings()
    {
        Desk desk;
        desk.model.preferences()->setExportFolder(desk.folder.filePath("out"_s));
        const QDir folder(desk.model.preferences()->exportFolder());
        const Network whole = desk.model.networks().first();
        desk.model.setStimulus(*desk.model.activeTrace(), {2.4e9, 2.5e9});
        const auto dialog = [&desk] { return desk.window.findChild<SaveDialog *>(); };
        const auto key = [&] { return dialog()->findChild<QPushButton *>("save"_s); };
        QVERIFY(QDir().mkpath(folder.path()));
        for (const int command : {0, 1, 2, 3}) {
            Q_EMIT desk.window.keys().save->menuItemClicked(command);
            desk.click(key());
            QVERIFY(!dialog());
        }
        QCOMPARE(folder.entryList(QDir::Files).size(), 4);
        QCOMPARE(folder.entryList({"band-pass-S11-*.svg"_s}).size(), 1);
        // What would replace a file says so, and what cannot be written changes nothing.
        Q_EMIT desk.window.keys().save->menuItemClicked(2);
        auto *line = dialog()->findChild<QLineEdit *>();
        line->setText("re/port"_s);
        QCOMPARE(key()->text(), "Save"_s);
        QCOMPARE(dialog()->path(), folder.filePath("report.pdf"_s));
        writeFile(folder.filePath("report.pdf"_s), "old");
        line->setText("report"_s);
        QCOMPARE(key()->text(), "Replace"_s);
        dialog()->setFolder("/proc"_s);
        desk.click(key());
        QVERIFY(dialog() && dialog()->path().startsWith("/proc/"_s));
        const auto labels = dialog()->findChildren<QLabel *>();
        QVERIFY(std::any_of(labels.begin(), labels.end(), [](const QLabel *label) {
            return label->text().startsWith("Nothing can be written to /proc ("_s);
        }));
        desk.press(Qt::Key_Escape);
        QVERIFY(QFile::remove(folder.filePath("report.pdf"_s)));
        QVERIFY(!takesFiles("/proc"_s) && takesFiles(folder.path()));
        const TouchstoneResult read =
            readTouchstone(folder.filePath(folder.entryList({"*.s2p"_s}).value(0)));
        QVERIFY(read.ok());
        QCOMPARE(read.network.frequencies, whole.frequencies);
        QCOMPARE(read.network.s(2, 1).imag, whole.s(2, 1).imag);
        QFile csv(folder.filePath(folder.entryList({"*.csv"_s}).value(0)));
        QVERIFY(csv.open(QIODevice::ReadOnly));
        QCOMPARE(csv.readAll().count('\n'), whole.points() + 2); // a comment and the names
        const std::pair<QString, QByteArray> drawings[] = {{"*.pdf"_s, "%PDF"},
                                                           {"*.svg"_s, "<?xml"}};
        for (const auto &[name, start] : drawings) {
            QFile drawing(folder.filePath(folder.entryList({name}).value(0)));
            QVERIFY(drawing.open(QIODevice::ReadOnly));
            QVERIFY(drawing.size() > 2000 && drawing.size() < 400000);
            QCOMPARE(drawing.read(start.size()), start);
        }
    }
};

QTEST_MAIN(FileControllerTest)
#include "tst_filecontroller.moc"
