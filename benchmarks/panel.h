// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <panel/model/traceformat.h>

#include <QStringList>

#include <benchmark/benchmark.h>

/// The panel as a whole, in a window of 1280 x 800 pixels without a screen.
namespace Bench
{

/// A new measurement of a filter with so many points: four traces, with markers and read-outs,
/// until they are painted.
void liveFrame(benchmark::State &state, int points);

/// \name A change to one of four traces of so many points each, until it is painted
///@{
void switchFormat(benchmark::State &state, int points, Panel::TraceFormat format);
/// A limit line over all frequencies.
void switchLimit(benchmark::State &state, int points);
/// A set-up: the formats of all four, a scale, a limit, and a part of the frequencies.
void switchSetup(benchmark::State &state, int points);
///@}

/// The same plots with the same data, drawn once more and no more than that.
void sameReplot(benchmark::State &state, int points);

/// The panel changes from dark to light and back: colours, pictures and style sheets, not painted.
void changeTheme(benchmark::State &state);

/// The same window when the application gets the same style sheets, and nothing else happens.
void changeSheet(benchmark::State &state);

/// Starts a program that ends by itself, and waits for that; the counter "mebibytes" is the maximum of
/// the memory that it held, where it prints that.
void startProgram(benchmark::State &state, const char *program, const QStringList &arguments);

/// The panel's samples, as it names them.
QStringList sampleFiles();

} // namespace Bench
