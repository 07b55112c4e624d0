// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tracedata.h"
#include "traceformat.h"

namespace Panel
{

/// Where a marker search goes.
enum class Search {
    Maximum,
    Minimum,
    PeakLeft, ///< the next peak at a lower frequency
    PeakRight, ///< the next peak at a higher frequency
};

/*! The index of the point that a search from a fractional index finds, or -1 when there is none.

    The values are those of the format, on the Smith chart the magnitude. A peak is higher than the
    points around it by an excursion that noise does not reach: 3 dB, 10 degrees, 0.1 of the VSWR,
    0.02 of a magnitude; traits() has all. Points without a value are no candidates. */
int searchMarker(const TraceData &data, TraceFormat format, Search search, double from);

/// The indices of the highest peaks, at most so many, the highest first; a peak as above.
QVector<int> highestPeaks(const TraceData &data, TraceFormat format, int maximum);

/*! The fractional index at which the values first pass a target, from an index on to the right (1) or
    to the left (-1), interpolated between the points; -1 where they do not. A place at the very start
    does not count, so that a search goes on from what it has found. On the Smith chart the magnitude
    counts. */
double searchTarget(const TraceData &data, TraceFormat format, double target, double from,
                    int direction);

} // namespace Panel
