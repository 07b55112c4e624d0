// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
/*! \file
    A grid for every magnification: lines of constant resistance and reactance at values of
    1, 2 and 5 times powers of ten, and quarters of them, as close together as the pixels allow.

    The plane of the impedance is divided into cells, each of them further while its image has room
    for more lines. A line is drawn through the cells that it divides and ends at the coarser lines
    around these, as on the printed chart, so the number of arcs follows the pixels. */
#pragma once

#include <base/testexport_p.h>

#include <QRectF>
#include <QVector>

#include <smithchart/gridarc_p.h>

namespace SmithChart
{

/// The part of the plane of the reflection coefficient that a grid is to fill.
struct GridView {
    QRectF rect; ///< from the lower left corner; the imaginary part grows from top() to bottom()
    double pixelsPerUnit = 0.0; ///< logical pixels

    bool isUsable() const;
};

/// How a grid is laid out.
struct ViewGridRules {
    double reference = 1.0; ///< the value of the middle: values are normalised, or in ohms of it
    double spacingPx = 27.0; ///< lines come no nearer to each other, but where they end
};

/// A line of the grid, or the piece of it that is drawn.
struct ViewGridLine {
    GridPart part = GridPart::Real;
    double value = 0.0; ///< in units of the reference
    double from = 0.0; ///< of the other part, in units of the reference; may be infinite
    double to = 0.0;
    double weight = 0.0; ///< pixels between lines of its rank at most: the larger, the coarser
};

/// The lines of resistance and reactance that cross \a view, without rim and real axis. Empty for
/// a view or rules that are not finite and above 0.
[[nodiscard]] VNAWIDGETS_TEST_EXPORT QVector<ViewGridLine>
viewGridLines(const GridView &view, const ViewGridRules &rules);

/// The arc that draws a line.
[[nodiscard]] inline GridArc gridArc(const ViewGridLine &line, double reference)
{
    return GridArc(line.part, line.value / reference, line.from / reference, line.to / reference);
}

} // namespace SmithChart
