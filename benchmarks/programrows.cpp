// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "files.h"
#include "panel.h"
#include "rows.h"

#include <utility>

namespace Bench
{

using Row = RatioTable::Row;

void addPanelRows(RatioTable &table)
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
                  3.0,
                  "live frame, 1000001",
                  {"live frame, 1601"}});

    // Of each kind of format one: extremes of columns, values of all points, and other diagrams.
    using Panel::TraceFormat;
    const std::pair<TraceFormat, const char *> formats[] = {
        {TraceFormat::Phase, "phase"},
        {TraceFormat::UnwrappedPhase, "unwrapped phase"},
        {TraceFormat::GroupDelay, "group delay"},
        {TraceFormat::Reactance, "reactance"},
        {TraceFormat::Smith, "Smith chart"},
        {TraceFormat::Polar, "polar"},
    };
    const auto addSwitch = [&table](const std::string &name, auto run) {
        add(name, run);
        table.addRow({"panel: 4 traces, " + name, million, Row::Milliseconds, 50.0, name, {}});
    };
    for (const auto &[format, name] : formats)
        addSwitch(std::string("to ") + name, [format = format](benchmark::State &state) {
            switchFormat(state, million, format);
        });
    addSwitch("a limit", [](benchmark::State &state) { switchLimit(state, million); });
    addSwitch("a set-up", [](benchmark::State &state) { switchSetup(state, million); });

    add("theme", changeTheme);
    add("style sheet", changeSheet);
    table.addRow({"panel: change of theme, to one style sheet",
                  0,
                  Row::ShareOfTime,
                  1.2,
                  "theme",
                  {"style sheet"}});

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
                  1.7,
                  "start, panel",
                  {"start, empty plot"}});
    table.addRow({"panel: peak memory with the samples",
                  0,
                  Row::Mebibytes,
                  120.0,
                  "start, all samples",
                  {}});
}

void addFileRows(RatioTable &table)
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

} // namespace Bench
