// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
/*! \file
    A viewport counts in logical pixels, as hosts do; the routines of smithrender/ in those of the
    device. */
#pragma once

#include <smithchart/viewport.h>
#include <smithrender/nearestscan_p.h>
#include <smithrender/projection_p.h>

#include <QPointF>

namespace SmithRender
{

/// Of a viewport that is usable.
inline Projection projectionOf(const Viewport &viewport)
{
    return {viewport.xMin, viewport.xMax,          viewport.yMin,
            viewport.yMax, viewport.deviceWidth(), viewport.deviceHeight()};
}

inline NearestScan scanFor(const Viewport &viewport, const QPointF &pointer, const double *real,
                           const double *imag)
{
    return NearestScan(real, imag, projectionOf(viewport), pointer.x() * viewport.devicePixelRatio,
                       pointer.y() * viewport.devicePixelRatio);
}

/// What \a scan found, or -1; its squared distance, if asked for, in logical pixels.
inline int nearestOf(const NearestScan &scan, const Viewport &viewport, double *squaredDistance)
{
    if (squaredDistance) {
        const double ratio = viewport.devicePixelRatio;
        *squaredDistance = scan.index() < 0 ? scan.best() : scan.best() / (ratio * ratio);
    }
    return scan.index();
}

} // namespace SmithRender
