// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <benchmark/benchmark.h>

#include <QString>

#include <map>
#include <string>
#include <vector>

namespace Bench
{

/*! Collects the medians of a run and prints them as one table of ratios. Times are processor time:
    all work is single-threaded, and other load on the machine then weighs less. Those of whole
    programs are what passed on the clock. */
class RatioTable : public benchmark::BenchmarkReporter
{
public:
    /// A line of the table.
    struct Row {
        enum Kind {
            TimesFaster, ///< the fastest of the others over ours must be at least \c target
            ShareOfTime, ///< ours over the fastest of the others must be at most \c target
            ShareOfRest, ///< the same, less what \c base and \c otherBase take
            Frame, ///< ours must be below \c target milliseconds wherever the fastest other is
            Milliseconds, ///< ours must be at most \c target milliseconds
            BytesAPoint, ///< the counter "bytes_a_point" of ours must be at most \c target
            Mebibytes, ///< the same with the counter "mebibytes"
        };
        std::string work;
        int points;
        Kind kind;
        double target;
        std::string ours; ///< names of benchmarks
        std::vector<std::string> others;
        std::string base = {}; ///< part of ours
        std::string otherBase = {}; ///< part of the others
    };

    void addRow(const Row &row) { m_rows.push_back(row); }

    bool ReportContext(const Context &) override { return true; }
    void ReportRuns(const std::vector<Run> &runs) override;

    void print() const;
    bool writeJson(const QString &fileName) const;

private:
    struct Measured {
        double milliseconds;
        std::map<std::string, double> counters;
    };
    struct Outcome {
        const Row *row;
        double value; ///< what the target is for
        bool reached;
    };

    std::vector<Outcome> outcomes() const;
    const Measured *find(const std::string &name) const;

    std::vector<Row> m_rows;
    std::map<std::string, Measured> m_medians;
};

} // namespace Bench
