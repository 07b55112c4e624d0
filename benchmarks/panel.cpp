// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel.h"

#include <controls/thememanager.h>
#include <panel/diagrams/diagrams.h>
#include <panel/diagrams/diagramview.h>
#include <panel/files/samples.h>
#include <panel/files/viewstate.h>
#include <panel/ground/look.h>
#include <panel/model/panelmodel.h>
#include <panel/source/simulateddevice.h>
#include <panel/window/panelcontroller.h>
#include <panel/window/panelwindow.h>
#include <plot/qcp.h>

#include <QApplication>
#include <QDir>
#include <QProcess>

#include <chrono>
#include <functional>

namespace Bench
{

namespace
{

/// A panel that shows a filter, and two measurements of it that take turns.
struct LivePanel {
    Panel::PanelModel model;
    Panel::PanelWindow window;
    Panel::PanelController controller;
    Panel::Network frames[2];

    explicit LivePanel(int points)
        : window(&model)
        , controller(&model, &window)
    {
        using Panel::Source;
        Panel::SimulatedDevice filter(Source::Filter, Panel::defaultSweep(Source::Filter, points));
        for (int i = 0; i < 2; ++i) {
            frames[i] = filter.preview();
            filter.measure(frames[i], 0, filter.points(), quint64(i) * 60);
        }
        window.resize(1280, 800);
        window.show();
        model.openNetworks({frames[0]});
        for (const Panel::Trace &trace : model.traces())
            model.addMarker(trace.id, points / 3.0);
        settle();
    }

    /// Lets all that is queued happen, painting included.
    static void settle()
    {
        for (int i = 0; i < 3; ++i)
            QApplication::processEvents();
    }
};

void setUpOnce()
{
    static const bool done = [] {
        Panel::setUpApplication();
        return true;
    }();
    benchmark::DoNotOptimize(done);
}

} // namespace

void liveFrame(benchmark::State &state, int points)
{
    setUpOnce();
    LivePanel panel(points);
    int turn = 0;
    const auto showNext = [&] {
        turn = 1 - turn;
        panel.model.updateNetwork(0, panel.frames[turn]);
        QApplication::processEvents();
    };
    // A live sweep goes on for hours: its first frames, which get their memory, do not count.
    for (int i = 0; i < 4; ++i)
        showNext();
    for (auto _ : state)
        showNext();
    int drawn = 0;
    for (const Panel::DiagramView *view : panel.window.diagrams()->views())
        drawn += view->drawnPoints();
    state.counters["drawn"] = drawn;
}

void sameReplot(benchmark::State &state, int points)
{
    setUpOnce();
    LivePanel panel(points);
    panel.model.updateNetwork(0, panel.frames[1]);
    LivePanel::settle();
    for (auto _ : state) {
        for (const Panel::DiagramView *view : panel.window.diagrams()->views())
            view->plot()->replot(QCustomPlot::rpQueuedReplot);
        QApplication::processEvents();
    }
}

namespace
{

/// Times the way to what is asked for; the way back, and what plots need at first, do not count.
void timeSwitch(benchmark::State &state, const std::function<void(bool there)> &change)
{
    const auto show = [&](bool there) {
        change(there);
        LivePanel::settle();
    };
    show(true);
    show(false);
    for (auto _ : state) {
        show(true);
        state.PauseTiming();
        show(false);
        state.ResumeTiming();
    }
}

} // namespace

void switchFormat(benchmark::State &state, int points, Panel::TraceFormat format)
{
    setUpOnce();
    LivePanel panel(points);
    const Panel::Trace trace = panel.model.traces().last();
    timeSwitch(state, [&](bool there) {
        panel.model.setTraceFormat(trace.id, there ? format : trace.format);
    });
}

void switchLimit(benchmark::State &state, int points)
{
    setUpOnce();
    LivePanel panel(points);
    const Panel::Trace trace = panel.model.traces().last();
    Panel::LimitLine limit;
    limit.format = trace.format;
    limit.start = panel.frames[0].frequencies.constFirst();
    limit.stop = panel.frames[0].frequencies.constLast();
    limit.startValue = limit.stopValue = -20.0;
    timeSwitch(state, [&](bool there) {
        panel.model.setLimits(trace.id, there ? QVector<Panel::LimitLine>{limit} : trace.limits);
    });
}

void switchSetup(benchmark::State &state, int points)
{
    using Panel::TraceFormat;
    setUpOnce();
    LivePanel panel(points);
    const QVector<Panel::Trace> traces = panel.model.traces();
    const QVector<double> &frequencies = panel.frames[0].frequencies;
    const QJsonObject before = Panel::viewState(panel.model);
    const TraceFormat formats[] = {TraceFormat::Phase, TraceFormat::Vswr, TraceFormat::Smith,
                                   TraceFormat::Polar};
    for (int i = 0; i < traces.size(); ++i) {
        panel.model.setTraceFormat(traces.at(i).id, formats[i % 4]);
        panel.model.fitTrace(traces.at(i).id);
    }
    Panel::LimitLine limit;
    limit.format = formats[0];
    limit.start = frequencies.at(points / 4);
    limit.stop = frequencies.at(points / 2);
    limit.startValue = limit.stopValue = 90.0;
    panel.model.setLimits(traces.first().id, {limit});
    panel.model.setStimulus(traces.first(), {limit.start, limit.stop});
    const QJsonObject setup = Panel::viewState(panel.model);
    timeSwitch(state,
               [&](bool there) { Panel::restoreViewState(&panel.model, there ? setup : before); });
}

void changeTheme(benchmark::State &state)
{
    setUpOnce();
    LivePanel panel(1601);
    for (auto _ : state) {
        Controls::ThemeManager::instance()->toggleTheme();
        state.PauseTiming();
        LivePanel::settle();
        state.ResumeTiming();
    }
}

void changeSheet(benchmark::State &state)
{
    setUpOnce();
    LivePanel panel(1601);
    QString sheets[2];
    for (QString &sheet : sheets) {
        Controls::ThemeManager::instance()->toggleTheme();
        sheet = qApp->styleSheet();
    }
    LivePanel::settle();
    int turn = 0;
    for (auto _ : state) {
        qApp->setStyleSheet(sheets[turn]);
        turn = 1 - turn;
        state.PauseTiming();
        LivePanel::settle();
        state.ResumeTiming();
    }
    Controls::ThemeManager::instance()->setTheme(Controls::ThemeManager::Dark);
}

void startProgram(benchmark::State &state, const char *program, const QStringList &arguments)
{
    double kibibytes = 0.0;
    for (auto _ : state) {
        const auto begin = std::chrono::steady_clock::now();
        QProcess child;
        child.start(QString::fromLocal8Bit(program), arguments);
        // Its first word says that it is shown.
        const bool shown = child.waitForReadyRead();
        const std::chrono::duration<double> time = std::chrono::steady_clock::now() - begin;
        if (!shown || !child.waitForFinished() || child.exitCode() != 0) {
            state.SkipWithError("the program failed");
            return;
        }
        state.SetIterationTime(time.count());
        // "Peak memory: 71234 kB"
        kibibytes = child.readAllStandardOutput().split(' ').value(2).toDouble();
    }
    state.counters["mebibytes"] = kibibytes / 1024.0;
}

QStringList sampleFiles()
{
    QStringList paths;
    const QDir folder(Panel::sampleFolder());
    const QStringList names = folder.entryList(QDir::Files);
    for (const QString &name : names)
        paths << folder.filePath(name);
    return paths;
}

} // namespace Bench
