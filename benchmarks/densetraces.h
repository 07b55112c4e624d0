// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "traces.h"

#include <benchmark/benchmark.h>

/*! A trace on a chart of 800 x 800 pixels against a plain QCPCurve with the same pen on the same
    grid; without data, what the grid alone costs. */
namespace Bench
{

enum class Drawn {
    ByChart,
    AsPlainCurve,
};

/// Takes new data and draws it.
void newDataToPicture(benchmark::State &state, const Trace &trace, Drawn drawn);

/// In a view that is magnified: magnifies by a step, moves by a tenth of the view, and goes back the
/// same way; draws each time.
void stepToPicture(benchmark::State &state, const Trace &trace, double magnification);

/// Draws four traces, each turned by another quarter, once more; lines of a width in pixels, or, at 0, as
/// thin as they can be.
void replotFour(benchmark::State &state, const Trace &trace, Drawn drawn, double width = 0.0);

} // namespace Bench
