// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <algorithm>

namespace SmithRender
{

inline double squaredDistance(double px, double py, double qx, double qy)
{
    return (px - qx) * (px - qx) + (py - qy) * (py - qy);
}

/// From a point p to the segment from a to b; a segment without length counts as a.
inline double squaredDistanceToSegment(double px, double py, double ax, double ay, double bx,
                                       double by)
{
    const double dx = bx - ax;
    const double dy = by - ay;
    const double squaredLength = dx * dx + dy * dy;
    if (squaredLength <= 0.0)
        return squaredDistance(px, py, ax, ay);
    const double u = std::clamp(((px - ax) * dx + (py - ay) * dy) / squaredLength, 0.0, 1.0);
    return squaredDistance(px, py, ax + u * dx, ay + u * dy);
}

} // namespace SmithRender
