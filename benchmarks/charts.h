// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "traces.h"

#include <plot/qcp.h>

#include <benchmark/benchmark.h>

/// Whole charts, replot included, on an axis rectangle of 800 x 800 pixels without a screen.
namespace Bench
{

/// Which grid a chart has.
enum class GridKind {
    Standard, ///< of the preset
    FollowsView,
};

/// Makes a plot one axis rectangle of 800 x 800 pixels.
void layOut(QCustomPlot &plot);

/// 0, 1, 2 and so on.
QVector<double> indices(int count);

/// A trace turned by so many quarters.
Trace turned(const Trace &trace, int quarters);

/// Magnifies four traces like \a trace by a step and back, and draws after each.
void zoomAndReplot(benchmark::State &state, const Trace &trace, GridKind grid = GridKind::Standard);

/// Tests a trace against a polygon with many corners, most of whose border it crosses.
void testLimit(benchmark::State &state, const Trace &trace);

/// Reads a trace once.
void onePass(benchmark::State &state, const Trace &trace);

/// Gives a chart new data and draws it.
void setDataAndReplot(benchmark::State &state, const Trace &trace);

/// The same with QCustomPlot's own curve on an empty plot.
void setDataAndReplotPlainCurve(benchmark::State &state, const Trace &trace);

} // namespace Bench
