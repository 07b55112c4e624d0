// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
/*! \file
    What is timed, and the rows of the table that it gives. */
#pragma once

#include "ratiotable.h"

#include <benchmark/benchmark.h>

#include <string>

namespace Bench
{

/// Has \a work timed under that name.
template<typename Work>
void add(const std::string &name, const Work &work)
{
    benchmark::RegisterBenchmark(name.c_str(), work)
        ->Unit(benchmark::kMillisecond)
        ->Repetitions(7)
        ->MinTime(0.05)
        ->ReportAggregatesOnly();
}

/// The index over a trace, against the simplification of other libraries and a plain scan.
void addIndexRows(RatioTable &table);
/// Charts, each against a chart or curve that has less to do.
void addChartRows(RatioTable &table);
/// Dense traces against a plain curve; \a seed is that of their noise.
void addDenseRows(RatioTable &table, unsigned seed);
void addPanelRows(RatioTable &table);
void addFileRows(RatioTable &table);

} // namespace Bench
