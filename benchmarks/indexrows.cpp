// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "peers.h"
#include "rows.h"
#include "traces.h"

#include <smithchart/indexedtrace_p.h>
#include <smithchart/tracewalk.h>

#include <malloc.h>

#include <memory>
#include <vector>

namespace Bench
{

using SmithRender::IndexedTrace;
using Row = RatioTable::Row;

namespace
{

using TracePointer = std::shared_ptr<const Trace>;

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

/// The first step to a feature after new data, which finds all of them.
std::string addFirstFeature(const std::string &data, const TracePointer &trace)
{
    const std::string name = "first feature, " + data;
    add(name, [trace](benchmark::State &state) {
        double features = 0.0;
        for (auto _ : state) {
            SmithChart::TraceWalk walk; // one that knows the data finds nothing anew
            walk.setData(trace->real, trace->imag);
            benchmark::DoNotOptimize(walk.nextFeature(0.0, 1));
            features = static_cast<double>(walk.dataFeatures().size());
        }
        state.counters["features"] = features;
    });
    return name;
}

} // namespace

void addIndexRows(RatioTable &table)
{
    constexpr int million = 1000000;
    constexpr int sweep = 1601;
    const auto shared = [](const Trace &trace) { return std::make_shared<const Trace>(trace); };

    const auto smooth = shared(spiral(million, 20.0));
    const std::vector<std::string> smoothPeers = addPeers("smooth spiral", smooth);
    table.addRow({"zoom step, in and out, smooth spiral", million, Row::TimesFaster, 1000.0,
                  addZoomSteps("smooth spiral", smooth), smoothPeers});
    table.addRow({"zoom step, never seen, smooth spiral", million, Row::TimesFaster, 500.0,
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
    // Ten times the points, a little more than ten times the work.
    table.addRow({"first view, seven points, to a tenth of them",
                  100000,
                  Row::ShareOfTime,
                  15.0,
                  addFirstView("seven points", shared(sevenPoints(100000))),
                  {addFirstView("seven points, short", shared(sevenPoints(10000)))}});
    firstViewRow("short sweep, smooth", shared(spiral(sweep, 3.0)), 1.0);
    firstViewRow("short sweep, noise of 0.4 px", shared(spiral(sweep, 3.0, 0.4)), 1.0);

    table.addRow({"nearest point, smooth spiral",
                  million,
                  Row::TimesFaster,
                  200.0,
                  addNearest("smooth spiral", smooth),
                  {addFullScan("smooth spiral", smooth)}});

    const auto noisy = shared(spiral(million, 20.0, 4.0));
    table.addRow({"walk to the first feature, noise of 4 px",
                  million,
                  Row::Frame,
                  20.0,
                  addFirstFeature("noise of 4 px", noisy),
                  {addFullScan("noise of 4 px", noisy)}});

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
}

} // namespace Bench
