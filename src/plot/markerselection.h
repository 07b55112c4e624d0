// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
/*! \file
    How a selected marker looks on every diagram, and which one a press on a chart catches. */
#pragma once

#include <vnawidgets_export.h>

#include <plot/marker.h>

#include <QPen>
#include <QVector>

namespace Plot
{

/// Draws a marker in the colour of its trace's pen: outlined, or filled, lighter and bolder when it
/// is selected.
VNAWIDGETS_EXPORT void drawMarker(Marker &marker, const QPen &tracePen, bool selected);

/// The place in \a markers of the one that a press at \a pos (plot widget pixels) catches: the one
/// whose item is under the pointer, else the nearest within \a tolerancePx logical pixels, the
/// earlier of equals. Hidden ones and null are passed over. -1 if there is none.
[[nodiscard]] VNAWIDGETS_EXPORT int markerAt(const QVector<const Marker *> &markers,
                                             const QPointF &pos, double tolerancePx);

/// The same for a finger: the nearest whose triangle, from its tip to its far edge, lies within
/// \a reachPx. Of those that coincide, less than a pixel apart, the earlier: put first what the user
/// has selected.
[[nodiscard]] VNAWIDGETS_EXPORT int markerInReach(const QVector<const Marker *> &markers,
                                                  const QPointF &pos, double reachPx);

} // namespace Plot
