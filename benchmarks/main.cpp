// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "charts.h"
#include "densetraces.h"
#include "files.h"
#include "panel.h"
#include "peers.h"
#include "ratiotable.h"
#include "traces.h"

#include <smithchart/indexedtrace_p.h>

#include <QApplication>
#include <QCommandLineParser>

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <cstdio>
#include <functional>
#include <memory>
#include <optional>

using namespace Bench;
using SmithRender::IndexedTrace;
using Row = RatioTable::Row;

namespace
{

using TracePointer = std::shared_ptr<const Trace>;

/// A trace that is computed when first asked for.
std::function<const Trace &()> later(const std::function<Trace()> &make)
{
    const auto made = std::make_shared<std::optional<Trace>>();
    return [made, make]() -> const Trace & {
        if (!made->has_value())
            *made = make();
        return **made;
    };
}

template<typename Work>
void add(const std::string &name, const Work &work)
{
    benchmark::RegisterBenchmark(name.c_str(), work)
        ->Unit(benchmark::kMillisecond)
        ->Repetitions(7)
        ->MinTime(0.05)
        ->ReportAggregatesOnly();
}

/// The peers' simplification of a trace; returns the names of the benchmarks.
std::vector<std::string> addPeers(const std::string &data, const TracePointer &trace)
{
    std::vector<std::string> names;
    for (const std::string &peerName : peerNames()) {
        names.push_back(peerName + ", " + data);
        add(names.back(), [trace, peerName](benchmark::State &state) {
            const std::unique_ptr<Peer> peer = makePeer(peerName, *trace);
            int kept = 0;
            for (auto _ : state)
                benchmark::DoNotOptimize(kept = peer->simplify(tolerance()));
            state.counters["kept"] = kept;
        });
    }
    return names;
}

std::string addFirstView(const std::string &data, const TracePointer &trace)
{
    const std::string name = "first view, " + data;
    add(name, [trace](benchmark::State &state) {
        const SmithRender::Viewport view = fullView();
        IndexedTrace tree;
        int kept = 0;
        for (auto _ : state) {
            tree.setSource(trace->real, trace->imag);
            kept = static_cast<int>(tree.decimate(view).keptIndices.size());
        }
        state.counters["kept"] = kept;
    });
    return name;
}

/// One zoom step in, one out, and so on.
std::string addZoomSteps(const std::string &data, const TracePointer &trace)
{
    const std::string name = "zoom steps, " + data;
    add(name, [trace](benchmark::State &state) {
        IndexedTrace tree;
        tree.setSource(trace->real, trace->imag);
        const SmithRender::Viewport views[] = {fullView(), fullView(1.25)};
        bool in = true;
        for (auto _ : state) {
            benchmark::DoNotOptimize(tree.decimate(views[in]));
            in = !in;
        }
    });
    return name;
}

/// A zoom step onto a view that the tree has not been asked for, right after the first view.
std::string addFirstZoomStep(const std::string &data, const TracePointer &trace)
{
    const std::string name = "first zoom step, " + data;
    add(name, [trace](benchmark::State &state) {
        IndexedTrace tree;
        for (auto _ : state) {
            state.PauseTiming();
            tree.setSource(trace->real, trace->imag);
            benchmark::DoNotOptimize(tree.decimate(fullView()));
            state.ResumeTiming();
            benchmark::DoNotOptimize(tree.decimate(fullView(1.25)));
        }
    });
    return name;
}

/// Where the pointer goes: over the whole view.
QPointF pointerAt(int step)
{
    return {(step * 37) % 800 + 0.3, (step * 101) % 800 + 0.7};
}

std::string addNearest(const std::string &data, const TracePointer &trace)
{
    const std::string name = "nearest point, " + data;
    add(name, [trace](benchmark::State &state) {
        IndexedTrace tree;
        tree.setSource(trace->real, trace->imag);
        benchmark::DoNotOptimize(tree.decimate(fullView()));
        int step = 0;
        for (auto _ : state)
            benchmark::DoNotOptimize(tree.nearestIndex(fullView(), pointerAt(step++)));
    });
    return name;
}

std::string addFullScan(const std::string &data, const TracePointer &trace)
{
    const std::string name = "full scan, " + data;
    add(name, [trace](benchmark::State &state) {
        int step = 0;
        for (auto _ : state) {
            benchmark::DoNotOptimize(
                SmithRender::nearestIndex(trace->real, trace->imag, fullView(), pointerAt(step++)));
        }
    });
    return name;
}

/// What the heap holds for a tree that has answered views at all zooms and the pointer.
std::string addMemory(const std::string &data, const TracePointer &trace)
{
    const std::string name = "memory, " + data;
    add(name, [trace](benchmark::State &state) {
        const auto heap = [] {
            const auto info = mallinfo2();
            return static_cast<double>(info.uordblks + info.hblkhd);
        };
        double bytes = 0.0;
        for (auto _ : state) {
            const double before = heap();
            IndexedTrace tree;
            tree.setSource(trace->real, trace->imag);
            for (double zoom = 1.0; zoom < 20.0; zoom *= 1.5)
                benchmark::DoNotOptimize(tree.decimate(fullView(zoom)));
            benchmark::DoNotOptimize(tree.nearestIndex(fullView(), {400.0, 400.0}));
            bytes = heap() - before;
        }
        state.counters["bytes_a_point"] = bytes / static_cast<double>(trace->real.size());
    });
    return name;
}

void addAll(RatioTable &table)
{
    constexpr int million = 1000000;
    constexpr int sweep = 1601;
    const auto shared = [](const Trace &trace) { return std::make_shared<const Trace>(trace); };

    const auto smooth = shared(spiral(million, 20.0));
    const std::vector<std::string> smoothPeers = addPeers("smooth spiral", smooth);
    table.addRow({"zoom step, in and out, smooth spiral", million, Row::TimesFaster, 1000.0,
                  addZoomSteps("smooth spiral", smooth), smoothPeers});
    table.addRow({"zoom step, never seen, smooth spiral", million, Row::TimesFaster, 1000.0,
                  addFirstZoomStep("smooth spiral", smooth), smoothPeers});
    table.addRow({"first view, smooth spiral", million, Row::TimesFaster, 5.0,
                  addFirstView("smooth spiral", smooth), smoothPeers});

    const auto firstViewRow = [&](const std::string &data, const TracePointer &trace,
                                  double target) {
        table.addRow({"first view, " + data, static_cast<int>(trace->real.size()), Row::TimesFaster,
                      target, addFirstView(data, trace), addPeers(data, trace)});
    };
    firstViewRow("noise of 0.4 px", shared(spiral(million, 20.0, 0.4)), 1.3);
    firstViewRow("long Lissajous", shared(lissajous(million, 300.0, 301.0)), 8.0);
    // A golden section of a turn from each point to the next: they fill the ring in no order.
    firstViewRow("spiral wound too fast", shared(spiral(100000, 61803.4)), 20.0);
    firstViewRow("short sweep, smooth", shared(spiral(sweep, 3.0)), 1.0);
    firstViewRow("short sweep, noise of 0.4 px", shared(spiral(sweep, 3.0, 0.4)), 1.0);

    table.addRow({"nearest point, smooth spiral",
                  million,
                  Row::TimesFaster,
                  200.0,
                  addNearest("smooth spiral", smooth),
                  {addFullScan("smooth spiral", smooth)}});

    table.addRow({"memory, smooth spiral",
                  million,
                  Row::BytesAPoint,
                  2.0,
                  addMemory("smooth spiral", smooth),
                  {}});
    table.addRow({"memory, all points kept",
                  million,
                  Row::BytesAPoint,
                  48.0,
                  addMemory("all points kept", shared(spiral(million, 618034.0))),
                  {}});

    add("limit test, star", [smooth](benchmark::State &state) { testLimit(state, *smooth); });
    add("one pass, smooth spiral", [smooth](benchmark::State &state) { onePass(state, *smooth); });
    table.addRow({"limit test, star of 60 corners, to one pass",
                  million,
                  Row::ShareOfTime,
                  10.0,
                  "limit test, star",
                  {"one pass, smooth spiral"}});

    const auto longTrace = shared(spiral(million, 3.0));
    const auto shortTrace = shared(spiral(sweep, 3.0));
    add("zoom and replot, long",
        [longTrace](benchmark::State &state) { zoomAndReplot(state, *longTrace); });
    add("zoom and replot, short",
        [shortTrace](benchmark::State &state) { zoomAndReplot(state, *shortTrace); });
    table.addRow({"zoomAt and replot, 4 traces, to 4 x 1601",
                  million,
                  Row::ShareOfTime,
                  1.5,
                  "zoom and replot, long",
                  {"zoom and replot, short"}});
    add("zoom and replot, grid follows", [shortTrace](benchmark::State &state) {
        zoomAndReplot(state, *shortTrace, GridKind::FollowsView);
    });
    table.addRow({"zoomAt and replot, grid follows, to preset",
                  sweep,
                  Row::ShareOfTime,
                  1.5,
                  "zoom and replot, grid follows",
                  {"zoom and replot, short"}});
    add("setCurveData and replot",
        [smooth](benchmark::State &state) { setDataAndReplot(state, *smooth); });
    add("QCPCurve::setData and replot",
        [smooth](benchmark::State &state) { setDataAndReplotPlainCurve(state, *smooth); });
    table.addRow({"setCurveData and replot, to QCPCurve",
                  million,
                  Row::ShareOfTime,
                  0.25,
                  "setCurveData and replot",
                  {"QCPCurve::setData and replot"}});
}

/// A trace on the chart against a plain curve: new data, steps of the view, and four of them.
void addDense(RatioTable &table, const std::string &data, int points, double target,
              const std::function<Trace()> &make)
{
    const auto trace = later(make);
    const std::string name = data + " of " + std::to_string(points);
    add("new data, " + name,
        [trace](benchmark::State &state) { newDataToPicture(state, trace(), Drawn::ByChart); });
    add("plain curve, " + name, [trace](benchmark::State &state) {
        newDataToPicture(state, trace(), Drawn::AsPlainCurve);
    });
    table.addRow({data + ", to a plain curve",
                  points,
                  Row::ShareOfRest,
                  target,
                  "new data, " + name,
                  {"plain curve, " + name},
                  "grid",
                  "grid"});
    const auto addSteps = [&](const std::string &view, double magnification, double most) {
        const std::string steps = "view step" + view + ", ";
        add(steps + name, [trace, magnification](benchmark::State &state) {
            stepToPicture(state, trace(), magnification);
        });
        table.addRow({data + ", zoom or pan" + view,
                      points,
                      Row::ShareOfRest,
                      most,
                      steps + name,
                      {"new data, " + name},
                      steps + "grid",
                      "grid"});
    };
    addSteps("", 1.0, 1.0);
    if (data == "noise 2 %" && points == 1000000)
        addSteps(" at 4 x", 4.0, 0.5);
}

void addDenseTraces(RatioTable &table, unsigned seed)
{
    constexpr int million = 1000000;
    constexpr int frameMs = 16;

    add("grid", [](benchmark::State &state) { newDataToPicture(state, {}, Drawn::ByChart); });
    add("view step, grid", [](benchmark::State &state) { stepToPicture(state, {}, 1.0); });
    add("view step at 4 x, grid", [](benchmark::State &state) { stepToPicture(state, {}, 4.0); });
    for (const auto &[points, target] : {std::pair(1601, 1.0), std::pair(million, 0.05)})
        addDense(table, "clean", points, target, [points = points] { return spiral(points, 3.0); });

    const struct {
        double percent;
        int points;
        double target;
    } noisy[] = {{0.1, 20001, 1.0},   {0.1, 200001, 0.8},  {0.1, million, 0.8},  {0.5, 1601, 1.3},
                 {0.5, 20001, 1.0},   {0.5, 200001, 0.75}, {0.5, million, 0.75}, {2.0, 1601, 1.3},
                 {2.0, 20001, 0.8},   {2.0, 200001, 0.6},  {2.0, million, 0.6},  {10.0, 20001, 0.6},
                 {10.0, million, 0.4}};
    const auto noise = [seed](double percent, int points) {
        return [=] { return noisySweep(points, percent / 100.0, seed); };
    };
    const auto nameOf = [](double percent) {
        char name[32];
        std::snprintf(name, sizeof name, "noise %g %%", percent);
        return std::string(name);
    };
    for (const auto &[percent, points, target] : noisy)
        addDense(table, nameOf(percent), points, target, noise(percent, points));
    addDense(table, "long line", million, 0.2, [] { return spiral(million, 1700.0); });
    addDense(table, "undersampled spiral", 100000, 0.6, [] { return spiral(100000, 61803.4); });
    addDense(table, "random walk", million, 0.35, [seed] { return randomWalk(million, seed); });

    for (const double percent : {0.0, 0.1, 0.5, 2.0, 10.0}) {
        constexpr int points = 100000;
        const std::string data = percent == 0.0 ? "clean" : nameOf(percent);
        const auto trace = later(noise(percent, points));
        add("replot of four, " + data,
            [trace](benchmark::State &state) { replotFour(state, trace(), Drawn::ByChart); });
        add("replot of four plain, " + data,
            [trace](benchmark::State &state) { replotFour(state, trace(), Drawn::AsPlainCurve); });
        table.addRow({data + ", replot of 4 traces",
                      points,
                      Row::Frame,
                      frameMs,
                      "replot of four, " + data,
                      {"replot of four plain, " + data}});
    }
}

void addPanel(RatioTable &table)
{
    constexpr int sweep = 1601;
    constexpr int million = 1000001;
    for (const auto &[points, name] : {std::pair(sweep, "1601"), std::pair(million, "1000001")}) {
        add(std::string("live frame, ") + name,
            [points = points](benchmark::State &state) { liveFrame(state, points); });
    }
    add("replot of the same", [](benchmark::State &state) { sameReplot(state, sweep); });
    table.addRow({"panel: live frame, 4 traces, to a replot",
                  sweep,
                  Row::ShareOfTime,
                  2.0,
                  "live frame, 1601",
                  {"replot of the same"}});
    table.addRow({"panel: live frame, 4 traces, to 4 x 1601",
                  million,
                  Row::ShareOfTime,
                  4.0,
                  "live frame, 1000001",
                  {"live frame, 1601"}});

    const auto addStart = [](const std::string &name, const char *program, QStringList arguments) {
        benchmark::RegisterBenchmark(name.c_str(),
                                     [program, arguments](benchmark::State &state) {
                                         startProgram(state, program, arguments);
                                     })
            ->Unit(benchmark::kMillisecond)
            ->UseManualTime()
            ->Iterations(3)
            ->Repetitions(7)
            ->ReportAggregatesOnly();
    };
    const QStringList shown{QStringLiteral("--exit-when-shown")};
    addStart("start, panel", VNAPANEL_PROGRAM, shown);
    addStart("start, empty plot", EMPTYPLOT_PROGRAM, {});
    addStart("start, all samples", VNAPANEL_PROGRAM, shown + sampleFiles());
    table.addRow({"panel: start to first picture, to an empty plot",
                  0,
                  Row::ShareOfTime,
                  3.0,
                  "start, panel",
                  {"start, empty plot"}});
    table.addRow({"panel: peak memory with the samples",
                  0,
                  Row::Mebibytes,
                  120.0,
                  "start, all samples",
                  {}});
}

void addFiles(RatioTable &table)
{
    constexpr int points = 4000000;
    add("file, network", [](benchmark::State &state) { readNetwork(state, points); });
    add("file, numbers", [](benchmark::State &state) { readNumbers(state, points); });
    table.addRow({"file of a two-port, to its bytes and numbers",
                  points,
                  Row::ShareOfTime,
                  1.5,
                  "file, network",
                  {"file, numbers"}});
    // Twice its frequency and its eight numbers.
    table.addRow(
        {"memory, file of a two-port", points, Row::BytesAPoint, 144.0, "file, network", {}});
}

} // namespace

int main(int argc, char **argv)
{
    benchmark::Initialize(&argc, argv);
    QApplication app(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Times the Smith chart, its peers and the panel, and prints one table of "
                       "ratios. Options of Google "
                       "Benchmark, such as --benchmark_filter=, work too."));
    parser.addHelpOption();
    const QCommandLineOption json(QStringLiteral("json"),
                                  QStringLiteral("Writes the table as JSON too."),
                                  QStringLiteral("file"));
    const QCommandLineOption seed(QStringLiteral("seed"),
                                  QStringLiteral("Of the noise of dense traces (default: 1)."),
                                  QStringLiteral("number"), QStringLiteral("1"));
    parser.addOptions({json, seed});
    parser.process(app);

    RatioTable table;
    addAll(table);
    addDenseTraces(table, parser.value(seed).toUInt());
    addPanel(table);
    addFiles(table);
    benchmark::RunSpecifiedBenchmarks(&table);
    table.print();
    if (parser.isSet(json) && !table.writeJson(parser.value(json))) {
        std::fprintf(stderr, "Cannot write %s\n", qPrintable(parser.value(json)));
        return 1;
    }
    return 0;
}
