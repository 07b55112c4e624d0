// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// A panel at work for days in fast motion, and what it holds at the end of each hour.
//   soak [--hours N] [--frames N] [--seed N] [--every N]
//                                72 hours of 3600 frames each; a line of the table every 6 hours
// Ends with 1 if anything has grown, or did not come about.
#include "census.h"
#include "process.h"
#include "soakday.h"
#include "soakfigures.h"

#include <panel/ground/look.h>

#include <QApplication>
#include <QDir>
#include <QStandardPaths>

#include <cstdio>
#include <memory>

namespace
{

constexpr int hoursOfADay = 24;

void print(int hour, const Soak::Figures &figures, const Soak::Day &day)
{
    if (hour == 1)
        std::printf("hour  resident   heap in use  descr.  threads  objects  widgets  ms a frame  "
                    "drawn  delivered\n");
    std::printf("%4d  %5.1f MiB  %8.0f KiB  %6d  %7d  %7d  %7d  %10.3f  %5.2f  %9d\n", hour,
                figures.residentKiB / 1024.0, figures.heapKiB, figures.descriptors, figures.threads,
                figures.objects, figures.widgets, figures.frameMs, day.drawn(), day.delivered());
    std::fflush(stdout);
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

    int hours = 72, frames = 3600, every = 6;
    quint64 seed = 1;
    const QStringList arguments = QApplication::arguments().mid(1);
    for (int i = 0; i < arguments.size(); i += 2) {
        const QString &name = arguments.at(i);
        bool isNumber = false;
        const int value = arguments.value(i + 1).toInt(&isNumber);
        int *const number = name == QLatin1String("--hours") ? &hours
            : name == QLatin1String("--frames")              ? &frames
            : name == QLatin1String("--every")               ? &every
                                                             : nullptr;
        if (!isNumber || value < 1 || (!number && name != QLatin1String("--seed"))) {
            std::fprintf(stderr, "soak: what is %s?\n", qUtf8Printable(name));
            return 2;
        }
        if (number)
            *number = value;
        else
            seed = quint64(value);
    }
    Fuzz::watchWarnings();
    Fuzz::Doorkeeper doorkeeper;
    application.installEventFilter(&doorkeeper);

    QStringList broken;
    QVector<Soak::Figures> figures;
    Soak::Day day(seed, frames);
    day.restart(); // what each language makes once is there
    std::unique_ptr<Fuzz::Census> census; // after the hours that fill caches
    for (int hour = 1; hour <= hours && broken.isEmpty(); ++hour) {
        if (hour > 1 && hour % hoursOfADay == 1)
            day.restart();
        day.playHour();
        figures << Soak::Figures::now();
        figures.last().frameMs = Soak::median(day.costs());
        if (hour == 1 || hour % every == 0 || hour == hours)
            print(hour, figures.last(), day);
        if (hour == (hours + 5) / 6)
            census = std::make_unique<Fuzz::Census>();
        broken = day.takeBroken();
    }
    // Unoptimised or watched by a sanitizer, a frame's time says nothing about the panel.
#if defined(NDEBUG) && !defined(__SANITIZE_ADDRESS__)
    constexpr bool judgesTime = true;
#else
    constexpr bool judgesTime = false;
#endif
    const QStringList grown = Soak::growth(figures, judgesTime);
    if (!grown.isEmpty() && census)
        broken << grown << census->grown();
    for (const QString &sentence : qAsConst(broken))
        std::printf("soak: %s\n", qUtf8Printable(sentence));
    std::printf("soak: seed %llu, %d hours of %d frames: %s\n",
                static_cast<unsigned long long>(seed), int(figures.size()), frames,
                broken.isEmpty() ? "all is level" : "a finding");
    return broken.isEmpty() ? 0 : 1;
}
