// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "verdict.h"

#include <panel/model/traces.h>

#include <plot/qcp.h>

#include <map>

namespace Panel
{

/// The limits of the traces of a Cartesian diagram: their lines, the points that fail, and the
/// verdict over all traces.
class CartesianLimits
{
public:
    explicit CartesianLimits(QCustomPlot *plot);

    Verdict *verdict() const { return m_verdict; }
    /// Tests a trace, and draws its limits against its values in a diagram of so many columns.
    /// Without limits, or hidden, it has neither lines nor a part in the verdict.
    void show(const Trace &trace, const TraceData &data, QCPAxis *values, int columns);
    /// Ends it for all traces; to be called when the graphs of the plot are gone.
    void forget();
    void recolor();
    void showVerdict();

private:
    /// What there is of a trace; owned by the plot.
    struct Drawn {
        QCPCurve *lines = nullptr; ///< which may lie over each other
        QCPGraph *failures = nullptr;
        LimitVerdict verdict;
        double firstFailure = 0.0; ///< in Hz
        QString label; ///< what the trace is called
    };

    void remove(int traceId);
    void setLook(const Drawn &drawn) const;

    QCustomPlot *m_plot;
    Verdict *m_verdict;
    std::map<int, Drawn> m_drawn; ///< by trace
};

} // namespace Panel
