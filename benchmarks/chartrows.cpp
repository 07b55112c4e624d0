// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "charts.h"
#include "densetraces.h"
#include "rows.h"

#include <cstdio>
#include <functional>
#include <memory>
#include <optional>
#include <utility>

namespace Bench
{

using Row = RatioTable::Row;

namespace
{

constexpr int million = 1000000;
constexpr int sweep = 1601;

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
    const auto addSteps = [&](const std::string &view, double magnification, double maximum) {
        const std::string steps = "view step" + view + ", ";
        add(steps + name, [trace, magnification](benchmark::State &state) {
            stepToPicture(state, trace(), magnification);
        });
        table.addRow({data + ", zoom or pan" + view,
                      points,
                      Row::ShareOfRest,
                      maximum,
                      steps + name,
                      {"new data, " + name},
                      steps + "grid",
                      "grid"});
    };
    const bool isVeryLong = data == "noise 2 %" && points == million;
    addSteps("", 1.0, isVeryLong ? 0.5 : 1.0);
    if (isVeryLong)
        addSteps(" at 4 x", 4.0, 0.5);
}

} // namespace

void addChartRows(RatioTable &table)
{
    const auto shared = [](const Trace &trace) { return std::make_shared<const Trace>(trace); };
    const auto smooth = shared(spiral(million, 20.0));
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

void addDenseRows(RatioTable &table, unsigned seed)
{
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
    addDense(table, "long line with loss", million, 0.2, [] { return lossyLine(million, 1700.0); });
    addDense(table, "undersampled spiral", 100000, 0.6, [] { return spiral(100000, 61803.4); });
    addDense(table, "random walk", million, 0.35,
             [seed] { return randomWalk(million, 0.0006, seed); });
    addDense(table, "random walk, long steps", million, 0.35,
             [seed] { return randomWalk(million, 0.002, seed); });

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

    for (const double percent : {0.0, 2.0}) {
        constexpr int points = 1601;
        constexpr double width = 2.0;
        const std::string data = (percent == 0.0 ? "clean" : nameOf(percent)) + ", 1601";
        const auto trace = later(noise(percent, points));
        for (const double pixels : {0.0, width}) {
            add((pixels > 0.0 ? "wide, " : "thin, ") + data, [=](benchmark::State &state) {
                replotFour(state, trace(), Drawn::ByChart, pixels);
            });
        }
        add("wide by a painter, " + data, [=](benchmark::State &state) {
            replotFour(state, trace(), Drawn::AsPlainCurve, width);
        });
        table.addRow({data + ", 4 lines of 2 pixels, to thin ones",
                      points,
                      Row::ShareOfTime,
                      1.5,
                      "wide, " + data,
                      {"thin, " + data}});
        table.addRow({data + ", 4 lines of 2 pixels, to a painter's",
                      points,
                      Row::ShareOfTime,
                      0.3,
                      "wide, " + data,
                      {"wide by a painter, " + data}});
    }
}

} // namespace Bench
