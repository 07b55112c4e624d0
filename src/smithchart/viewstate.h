// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
/*! \file
    The view of a Smith chart as plain numbers: a centre and a magnification, from which both axis
    ranges follow for any widget shape, so that units stay square and the chart stays round. */
#pragma once

#include <vnawidgets_export.h>

#include <QtGlobal>

namespace SmithChart
{

/// What is shown: the centre in the plane of the reflection coefficient, and the magnification.
struct ViewState {
    double centerX = 0.0; ///< real part at the view's centre
    double centerY = 0.0; ///< imaginary part at the view's centre
    double zoom = 1.0; ///< 1 shows the whole chart; 1 to maximumZoom
};

constexpr double viewMargin =
    1.05; ///< half the height shown at zoom 1: the unit circle and 5 % of room
constexpr double maximumZoom = 20.0; ///< where a chart sets no other
constexpr double magnifiedThreshold = 1.000000001; ///< a zoom up to this counts as 1

/// Half the lengths of the two axis ranges.
struct HalfRanges {
    double x; ///< of the real part
    double y; ///< of the imaginary part
};

/// Both axis ranges, lower and upper ends.
struct ViewRanges {
    double xLower; ///< real part at the left
    double xUpper; ///< at the right
    double yLower; ///< imaginary part at the bottom
    double yUpper; ///< at the top
};

/// The half ranges at zoom 1 for an axis rectangle of \a width x \a height pixels (each at least
/// 1).
[[nodiscard]] VNAWIDGETS_EXPORT HalfRanges baseHalfRanges(int width, int height);

/// \a state brought inside its limits: finite, zoom 1 to \a maximum, never showing more than zoom
/// 1 does.
[[nodiscard]] VNAWIDGETS_EXPORT ViewState clampViewState(ViewState state, HalfRanges base,
                                                         double maximum = maximumZoom);

/// The axis ranges that show \a state, which must be clamped.
[[nodiscard]] VNAWIDGETS_EXPORT ViewRanges viewRanges(const ViewState &state, HalfRanges base);

/// The closest state that shows all of \a ranges; the whole chart for spans that are 0 or not
/// finite.
[[nodiscard]] VNAWIDGETS_EXPORT ViewState viewStateFromRanges(const ViewRanges &ranges,
                                                              HalfRanges base,
                                                              double maximum = maximumZoom);

/*! \a state magnified by \a factor so that the chart point (\a anchorX, \a anchorY) stays where it
    is. Merely clamped when the anchor is not finite or \a factor is not a finite number above 0. */
[[nodiscard]] VNAWIDGETS_EXPORT ViewState zoomedViewState(const ViewState &state, double anchorX,
                                                          double anchorY, double factor,
                                                          HalfRanges base,
                                                          double maximum = maximumZoom);

/// Exact comparison.
inline bool operator==(const ViewState &a, const ViewState &b)
{
    return a.centerX == b.centerX && a.centerY == b.centerY && a.zoom == b.zoom;
}

/// Exact comparison.
inline bool operator!=(const ViewState &a, const ViewState &b)
{
    return !(a == b);
}

} // namespace SmithChart
