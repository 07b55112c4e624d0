// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
/*! \file
    Which points of a trace must be drawn, and which of them is nearest to the pointer: the plain
    routines, linear in the trace's length or worse. SmithChartPlot gives the same answers faster,
    from an index over the trace. */
#pragma once

#include <vnawidgets_export.h>

#include <smithchart/viewport.h>

#include <QPointF>
#include <QVector>

namespace SmithRender
{

/// The points of a trace that stand for all of it at one viewport.
struct DecimationResult {
    QVector<int> keptIndices; ///< ascending
    bool decimated = false; ///< fewer indices kept than points given
    bool passedThrough = false; ///< all points kept because no simplification was tried
};

/*! Whether a trace of \a count points is shown whole at \a viewport: it has at most two points a
    device pixel column (256 points on narrow widgets), or the viewport is not usable. */
[[nodiscard]] VNAWIDGETS_EXPORT bool showsAllPoints(int count, const Viewport &viewport);

/*! Simplifies the trace (\a real, \a imag), cut to the shorter of both, by the
    Ramer-Douglas-Peucker method (Ramer 1972; Douglas and Peucker 1973) with distances to the
    segment: in device pixels, no point left out is farther than the viewport's tolerance from the
    drawn line. A point with a part that is not finite is kept and splits the trace. All points pass
    through where showsAllPoints(), or where a finite point cannot be projected. Quadratic in the
    worst case; never recursive. */
[[nodiscard]] VNAWIDGETS_EXPORT DecimationResult decimate(const QVector<double> &real,
                                                          const QVector<double> &imag,
                                                          const Viewport &viewport);

/// \a kept (ascending) joined with those of \a mandatory (in any order) that lie in 0 to \a count -
/// 1: ascending, without duplicates.
[[nodiscard]] VNAWIDGETS_EXPORT QVector<int> mergeIndices(const QVector<int> &kept,
                                                          const QVector<int> &mandatory, int count);

/*! The trace point nearest to \a pointer, in logical pixels from the axis rectangle's top-left
    corner; where the line between two neighbours comes nearer than any point, the nearer of the
    two. Points that are not finite, or cannot be projected, are skipped and break the line. Earlier
    points win ties. \a squaredDistance, if given, receives the squared distance to point or line in
    logical pixels. -1 and infinity if there is no point or the viewport is not usable. */
[[nodiscard]] VNAWIDGETS_EXPORT int nearestIndex(const QVector<double> &real,
                                                 const QVector<double> &imag,
                                                 const Viewport &viewport, const QPointF &pointer,
                                                 double *squaredDistance = nullptr);

} // namespace SmithRender
