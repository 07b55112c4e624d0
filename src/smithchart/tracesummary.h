// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <vnawidgets_export.h>

#include <QVector>

namespace SmithChart
{

/// What a trace is like as a whole.
struct TraceSummary {
    int first = -1; ///< index of the first finite point; -1 where there is none
    int last = -1; ///< index of the last one
    int best = -1; ///< index of the best match: the smallest magnitude, the first of equals
    double magnitude = 0.0; ///< there
    double bandLow =
        -1.0; ///< fractional index where the band around the best match begins; -1: none
    double bandHigh = -1.0; ///< and where it ends
    /// How often the trace goes round: the turns of its tangent (Whitney, On regular closed curves in
    /// the plane, 1937), less what is missing to a whole one. Loops of less than 0.05 are not seen.
    int loops = 0;

    /// The standing wave ratio at the best match; infinite for a full reflection or more.
    VNAWIDGETS_EXPORT double vswr() const;
    /// Whether the best match lies within the circle that was asked for.
    bool hasBand() const { return bandLow >= 0.0; }
};

/// Summarises a trace, with the band in which the standing wave ratio stays below \a vswr; a band
/// ends at a gap and at the ends of the data.
[[nodiscard]] VNAWIDGETS_EXPORT TraceSummary summarise(const QVector<double> &real,
                                                       const QVector<double> &imag,
                                                       double vswr = 2.0);

} // namespace SmithChart
