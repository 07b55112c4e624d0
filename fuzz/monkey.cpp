// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// A monkey at the panel: what it does follows from a seed, and is written down as it happens.
//   monkey [--seed N] [--events N] [--log FILE] [--limit MS]
//                                                 plays, and checks the panel every 100 events
//   monkey --replay FILE                          plays a log once more; script/shorten leaves out
//                                                 what its failure does not need
#include "monkeychecks.h"
#include "monkeypanel.h"
#include "process.h"
#include "shownrules.h"

#include <panel/ground/look.h>

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>
#include <cstdio>

using namespace Monkey;

namespace
{

constexpr int eventsPerCheck = 100;
constexpr int eventsPerCensus = 5000;
/// What 50,000 events may leave in use of the heap that no count sees, after the first thousands have
/// filled the caches of fonts and texts. What the process holds in all says nothing of leaks.
constexpr double maximumGrowthKiB = 4096.0;

// Unoptimised or watched by a sanitizer, an event's time says nothing about the panel.
#if defined(NDEBUG) && !defined(__SANITIZE_ADDRESS__)
constexpr double usualLimit = 200.0;
#else
constexpr double usualLimit = 0.0;
#endif

QByteArray readAll(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

struct Game {
    std::uint64_t seed = 1;
    int events = 5000;
    QVector<Event> replayed; ///< in place of drawn ones
    QString log; ///< empty: none is written
    double limit = usualLimit; ///< of an event's processor time in milliseconds; 0 for none
};

/// 0 if everything held.
int play(const Game &game)
{
    QFile log(game.log);
    if (!game.log.isEmpty() && !log.open(QIODevice::WriteOnly)) {
        std::fprintf(stderr, "monkey: %s cannot be written\n", qUtf8Printable(game.log));
        return 2;
    }
    Files files;
    QDir::setCurrent(files.folder());
    Desk desk(&files);
    Fuzz::ShownRules shown;
    (void)desk.dropAndCount(); // what is made once is there after the first panel
    Random random(game.seed);
    const bool replays = !game.replayed.isEmpty();
    const int count = replays ? int(game.replayed.size()) : game.events;
    double longest = 0.0;
    Event slowest;
    double atFirst = 0.0; // of the heap, with a new panel, after the first thousands of events
    double growth = 0.0;
    QStringList broken;
    int played = 0;
    while (played < count && broken.isEmpty()) {
        const Event event = replays ? game.replayed.at(played) : desk.draw(random);
        if (log.isOpen()) {
            // Before it happens, and out of this process, which may end with it.
            log.write(toLine(event));
            log.flush();
        }
        const double start = Fuzz::cpuMilliseconds();
        desk.perform(event);
        const double took = Fuzz::cpuMilliseconds() - start;
        ++played;
        // A new panel is not an event of the old one.
        const bool anew = event.species == Species::DropPanel || event.species == Species::Restart;
        if (took > longest && !anew) {
            longest = took;
            slowest = event;
        }
        const bool twice = event.species == Species::DoubleTap;
        if (game.limit > 0.0 && !anew && took > (twice ? 2.0 : 1.0) * game.limit)
            broken << QStringLiteral("an event took %1 ms").arg(took);
        // A replayed log is to tell which event it was.
        if (replays || played % eventsPerCheck == 0 || played == count)
            broken << shown.broken(*desk.model(), *desk.window()) << brokenRules(desk);
        if (played % eventsPerCensus == 0 || played == count) {
            for (const QString &left : desk.dropAndCount())
                broken << QStringLiteral("not destroyed: ") + left;
            const double heap = Fuzz::heapKiB();
            growth = atFirst > 0.0 ? heap - atFirst : 0.0;
            atFirst = atFirst > 0.0 ? atFirst : heap;
            if (game.limit > 0.0 && growth > maximumGrowthKiB)
                broken << QStringLiteral("memory has grown by %1 KiB").arg(growth);
        }
        broken << desk.takeBroken() << Fuzz::takeWarnings();
    }
    std::printf("monkey: seed %llu, %d events, grown by %.0f KiB, the longest took %.0f ms of "
                "processor time: %s",
                static_cast<unsigned long long>(game.seed), played, growth, longest,
                toLine(slowest).constData());
    for (const QString &sentence : qAsConst(broken))
        std::printf("monkey: event %d: %s\n", played, qUtf8Printable(sentence));
    std::fflush(stdout);
    return broken.isEmpty() ? 0 : 1;
}

int refuse(const QString &argument)
{
    std::fprintf(stderr, "monkey: what is %s?\n", qUtf8Printable(argument));
    return 2;
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QStandardPaths::setTestModeEnabled(true);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    Panel::setUpApplication();

    Game game;
    const QStringList arguments = QApplication::arguments().mid(1);
    for (int i = 0; i < arguments.size(); i += 2) {
        const QString &name = arguments.at(i);
        const QString value = arguments.value(i + 1);
        if (value.isEmpty())
            return refuse(name);
        if (name == QLatin1String("--seed")) {
            game.seed = value.toULongLong();
        } else if (name == QLatin1String("--events")) {
            game.events = value.toInt();
        } else if (name == QLatin1String("--log")) {
            game.log = QFileInfo(value).absoluteFilePath();
        } else if (name == QLatin1String("--limit")) {
            game.limit = value.toDouble();
        } else if (name == QLatin1String("--replay")) {
            game.replayed = readLog(readAll(value));
            if (game.replayed.isEmpty())
                return refuse(value);
        } else {
            return refuse(name);
        }
    }
    Fuzz::watchWarnings();
    Fuzz::Doorkeeper doorkeeper;
    application.installEventFilter(&doorkeeper);
    return play(game);
}
