// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
/*! \file
    Which points of a trace must be drawn over the frequency, where every point has its column of
    pixels. */
#pragma once

#include <vnawidgets_export.h>

#include <QVector>

namespace SmithRender
{

/// The value over which a trace's points are drawn, up to a function that never falls.
enum class ColumnValue {
    Magnitude, ///< also in decibels, or as a standing wave ratio
    Phase, ///< from -180 to 180 degrees
};

/*! The indices of the first, lowest, highest and last point of each of \a columns equal parts of
    the points \a first to \a first + \a count - 1 of a trace: ascending, without duplicates. Drawn
    as a line over that many columns of pixels, they give the picture that all points give (M4
    aggregation: Jugel, Jerzak, Hackenbroich and Markl 2014). A point without a value, such as a
    NaN, is neither lowest nor highest; the earlier one of equals counts. Parts outside the data are
    left out; with fewer points than columns, all are kept. */
[[nodiscard]] VNAWIDGETS_EXPORT QVector<int> columnExtremes(const QVector<double> &real,
                                                            const QVector<double> &imag, int first,
                                                            int count, int columns,
                                                            ColumnValue value);

} // namespace SmithRender
