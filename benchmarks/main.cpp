// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "rows.h"

#include <QApplication>
#include <QCommandLineParser>

#include <cstdio>

using namespace Bench;

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
    addIndexRows(table);
    addChartRows(table);
    addDenseRows(table, parser.value(seed).toUInt());
    addPanelRows(table);
    addFileRows(table);
    benchmark::RunSpecifiedBenchmarks(&table);
    table.print();
    if (parser.isSet(json) && !table.writeJson(parser.value(json))) {
        std::fprintf(stderr, "Cannot write %s\n", qPrintable(parser.value(json)));
        return 1;
    }
    return 0;
}
