// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What the panel writes, while the power goes and disks are full: a child process writes, and is
// killed. Afterwards each file is the old or the new one, whole. $VNA_KILLS sets how often, 25 times a
// writer otherwise.
#include "desk.h"

#include <panel/files/panelstate.h>
#include <panel/touchstone/saving.h>
#include <panel/touchstone/touchstone.h>
#include <panel/window/exports.h>

#include <csignal>
#include <functional>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Panel;
using namespace VnaTest;

namespace
{

/// Two panels whose files differ in size and contents.
struct Scene {
    PanelModel models[2];
    std::unique_ptr<CartesianView> view;
    QTemporaryDir temporary;

    Scene()
    {
        const QString samples[] = {"band-pass.s2p"_s, "antenna.s1p"_s};
        for (int i = 0; i < 2; ++i) {
            const TouchstoneResult read =
                readTouchstone(sampleFolder() + QLatin1Char('/') + samples[i]);
            models[i].openNetworks({read.network});
        }
        view = std::make_unique<CartesianView>(&models[0], DiagramId{DiagramKind::Cartesian, 0});
        view->setTraces({models[0].traces().first().id});
        view->resize(300, 200);
    }
    QString folder() const { return temporary.filePath("home"_s); }
    QString path(const QString &name) const { return folder() + QLatin1Char('/') + name; }
    const Network &network(int which) const { return models[which].networks().first(); }
};

/// Writes the files of one of both panels; false if that was refused.
using Write = std::function<bool(Scene &scene, int which)>;

bool save(const Scene &scene, int which, const QString &name)
{
    SaveOptions options;
    options.overwrite = true;
    QDir().mkpath(scene.folder());
    return saveNetwork(scene.path(name), scene.network(which), options).isEmpty();
}

const std::pair<const char *, Write> s_writers[] = {
    {"the state",
     [](Scene &scene, int which) {
         return PanelState::save(scene.models[which], scene.path("state.json"_s));
     }},
    {"a network as Touchstone",
     [](Scene &scene, int which) { return save(scene, which, "network.ts"_s); }},
    {"a network as CSV",
     [](Scene &scene, int which) { return save(scene, which, "network.csv"_s); }},
    {"a screenshot",
     [](Scene &scene, int) {
         return exportScreenshot(scene.view.get(), scene.folder()).error.isEmpty();
     }},
    {"a drawing",
     [](Scene &scene, int which) {
         QDir().mkpath(scene.folder());
         const QString path = scene.path(which ? "vnapanel-1.svg"_s : "vnapanel-0.pdf"_s);
         return saveDiagram(scene.view.get(), path).isEmpty();
     }},
};

/// Contents by file name, or of a whole drawing or picture its last bytes: the rest tells the time.
QMap<QString, QByteArray> filesIn(const QString &folder)
{
    QMap<QString, QByteArray> files;
    for (const QFileInfo &info : QDir(folder).entryInfoList(QDir::Files)) {
        // What is left of a file that was cut, where it has a name before it is whole.
        if (info.suffix().size() == 6)
            continue;
        QFile file(info.filePath());
        const bool tellsTime = info.fileName().startsWith("vnapanel-"_s);
        files[info.fileName()] = !file.open(QIODevice::ReadOnly) ? QByteArray("unreadable")
            : tellsTime                                          ? file.readAll().right(6)
                                                                 : file.readAll();
    }
    return files;
}

/// What a process of its own returns that does this; SIGKILL's number if it is killed after so many
/// microseconds.
int inChild(const std::function<int()> &act, int killedAfter = -1)
{
    const pid_t child = fork();
    if (child == 0)
        _exit(act());
    if (killedAfter >= 0) {
        usleep(useconds_t(killedAfter));
        kill(child, SIGKILL);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFSIGNALED(status) ? WTERMSIG(status) : WEXITSTATUS(status);
}

} // namespace

class tst_PowerCut : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyFileIsWhole_data()
    {
        QTest::addColumn<int>("writer");
        for (int i = 0; i < int(std::size(s_writers)); ++i)
            row(s_writers[i].first, i);
    }

    void everyFileIsWhole()
    {
        QFETCH(int, writer);
        const Write &write = s_writers[writer].second;
        Scene scene;
        QSet<QByteArray> whole;
        QElapsedTimer timer;
        timer.start();
        for (const int which : {0, 1}) {
            QVERIFY(write(scene, which));
            for (const QByteArray &content : filesIn(scene.folder()))
                whole << content;
        }
        const int once = int(timer.nsecsElapsed() / 2000);
        const int kills = qMax(25, qEnvironmentVariableIntValue("VNA_KILLS"));
        int cut = 0;
        void *shared =
            mmap(nullptr, sizeof(bool), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
        QVERIFY(shared != MAP_FAILED);
        auto *isWriting = static_cast<volatile bool *>(shared);
        for (int i = 0; i < kills; ++i) {
            const auto writeOn = [&] {
                for (int which = 0;; which ^= 1) {
                    *isWriting = true;
                    if (!write(scene, which))
                        return 1;
                    *isWriting = false;
                }
            };
            QCOMPARE(inChild(writeOn, QRandomGenerator::global()->bounded(4 * once)), SIGKILL);
            cut += *isWriting;
            const auto files = filesIn(scene.folder());
            for (auto file = files.begin(); file != files.end(); ++file)
                QVERIFY2(whole.contains(file.value()), qPrintable(file.key()));
            // What is left of a file that was cut is in no next one's way.
            QVERIFY(write(scene, i & 1));
            const QDir folder(scene.folder());
            for (const QString &name : folder.entryList(QDir::Files | QDir::Hidden))
                QFile::remove(folder.filePath(name));
            QVERIFY(write(scene, i & 1));
        }
        munmap(shared, sizeof(bool));
        qInfo("%d kills, %d of them while a file was written", kills, cut);
        QVERIFY(cut > 0);
    }

    /// A disk without room, or a folder that takes nothing, is told, and the old files stay.
    void whatCannotBeWrittenIsTold_data() { everyFileIsWhole_data(); }

    void whatCannotBeWrittenIsTold()
    {
        QFETCH(int, writer);
        const Write &write = s_writers[writer].second;
        Scene scene;
        QVERIFY(write(scene, 0));
        const auto before = filesIn(scene.folder());
        // At once, in the middle, and where the last bytes stand.
        rlim_t size = 0;
        for (const QFileInfo &info : QDir(scene.folder()).entryInfoList(QDir::Files))
            size = rlim_t(info.size());
        for (const rlim_t room : {rlim_t(0), size / 2, size - 1}) {
            const auto onFullDisk = [&] {
                signal(SIGXFSZ, SIG_IGN);
                const rlimit limit = {room, room};
                setrlimit(RLIMIT_FSIZE, &limit);
                return int(write(scene, 0));
            };
            QCOMPARE(inChild(onFullDisk), 0);
            QCOMPARE(filesIn(scene.folder()), before);
        }

        const auto kept = [&] {
            chmod(qPrintable(scene.temporary.path()), 0755);
            chmod(qPrintable(scene.folder()), 0555);
            return seteuid(65534) != 0 ? 2 : int(write(scene, 1));
        };
        QCOMPARE(inChild(kept), 0);
        QCOMPARE(filesIn(scene.folder()), before);

        // A home that has gone is made anew, or that is told.
        chmod(qPrintable(scene.folder()), 0755);
        QVERIFY(QDir(scene.folder()).removeRecursively());
        QVERIFY(write(scene, 1));
        const auto gone = [&] {
            QDir(scene.folder()).removeRecursively();
            return seteuid(65534) != 0 ? 2 : int(write(scene, 1));
        };
        QCOMPARE(inChild(gone), 0);
    }
};

QTEST_MAIN(tst_PowerCut)
#include "tst_powercut.moc"
