// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tracedata.h"
#include "traceformat.h"

namespace Panel
{

/// A straight line over the frequency that a trace in one format must stay below, or above.
struct LimitLine {
    TraceFormat format = TraceFormat::LogMagnitude;
    bool upper = true; ///< what lies above fails; otherwise what lies below
    double start = 0.0; ///< in Hz
    double stop = 0.0; ///< in Hz, not below the start
    double startValue = 0.0; ///< in the unit of the format
    double stopValue = 0.0;

    /// How many lines a trace can have.
    static constexpr int perTrace = 50;

    bool covers(double hertz) const { return hertz >= start && hertz <= stop; }
    double valueAt(double hertz) const;
    /// Whether all numbers are finite, in order, and of a format over the frequency.
    bool isValid() const;
    friend bool operator==(const LimitLine &a, const LimitLine &b)
    {
        return a.format == b.format && a.upper == b.upper && a.start == b.start && a.stop == b.stop
            && a.startValue == b.startValue && a.stopValue == b.stopValue;
    }
    friend bool operator!=(const LimitLine &a, const LimitLine &b) { return !(a == b); }
};

/// What became of a trace between its limits.
struct LimitVerdict {
    int tested = 0; ///< points that a limit covers and that have a value
    /// Indices of points that fail, rising.
    QVector<int> failing;

    bool passed() const { return failing.isEmpty(); }
};

/*! Tests the points of a trace, as its format has them, against the lines of that format. Lines that
    overlap all hold. A line between two points of the trace is not noticed. */
LimitVerdict testLimits(const TraceData &data, TraceFormat format,
                        const QVector<LimitLine> &limits);

} // namespace Panel
