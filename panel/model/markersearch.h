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

} // namespace Panel
