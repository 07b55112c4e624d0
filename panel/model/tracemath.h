// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
/*! \file
    What a trace makes of its data and of those that were stored of it. */
#pragma once

#include "tracedata.h"

namespace Panel
{

/// What a trace shows once data have been stored.
enum class TraceMath {
    DataAndMemory, ///< both, beside each other
    Memory, ///< what was stored alone
    Divided, ///< the data by what was stored
    Subtracted, ///< what was stored from the data
    Added, ///< both
};
constexpr int traceMathCount = 5;

/// "Data / memory".
QString mathName(TraceMath math);
/// What the title of a diagram has behind the name of a parameter: "/ M"; nothing for data.
QString mathText(TraceMath math);

/*! Puts data and memory together, point by point of the data. A memory of other frequencies is
    interpolated; where it has none, the result is NaN. */
TraceData combined(const TraceData &data, const TraceData &memory, TraceMath math);

/*! The moving average of values over so many points, fewer at both ends, so that the window stays
    centred; values that are NaN count as none. At most 1 point leaves them. */
QVector<double> smoothed(const QVector<double> &values, int points);

} // namespace Panel
