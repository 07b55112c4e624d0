// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <base/testexport_p.h>

#include <smithchart/viewport.h>

#include <QPointF>
#include <QVector>

namespace SmithRender
{

/*! The point nearest to \a pointer (logical pixels from the axis rectangle's corner) among those
    that one reaches from \a start along the trace without getting farther from the pointer than one
    was there: where a trace crosses itself, those of the same branch. -1 without a finite point at
    \a start, which is no negative one; the squared distance is in logical pixels. */
[[nodiscard]] VNAWIDGETS_TEST_EXPORT int
reachableIndex(const QVector<double> &real, const QVector<double> &imag, const Viewport &viewport,
               const QPointF &pointer, int start, double &squaredDistance);

} // namespace SmithRender
