// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <cmath>

/// What turns long traces into what a screen can show of them.
namespace SmithRender
{

/// The part of the plane that is on screen and how finely: all that a trace's displayed points
/// depend on.
struct Viewport {
    double xMin = -1.0; ///< lower end of the x axis (real part)
    double xMax = 1.0; ///< its upper end
    double yMin = -1.0; ///< lower end of the y axis (imaginary part)
    double yMax = 1.0; ///< its upper end
    int width = 0; ///< of the axis rectangle, in logical pixels
    int height = 0; ///< likewise
    double devicePixelRatio = 1.0; ///< device pixels per logical pixel, at least 1
    double tolerancePx = 0.5; ///< how far a drawn line may stray from the points, in device pixels

    /// Length of the range of the x axis.
    double xSpan() const { return xMax - xMin; }
    /// Length of the range of the y axis.
    double ySpan() const { return yMax - yMin; }
    /// Width in device pixels.
    double deviceWidth() const { return width * devicePixelRatio; }
    /// Height in device pixels.
    double deviceHeight() const { return height * devicePixelRatio; }

    /// Whether points can be projected: finite ranges of positive span, a size, a ratio of at least
    /// 1 and a finite tolerance of at least 0.
    bool isUsable() const
    {
        return std::isfinite(xMin) && std::isfinite(xMax) && std::isfinite(yMin)
            && std::isfinite(yMax) && std::isfinite(xSpan()) && std::isfinite(ySpan())
            && xSpan() > 0.0 && ySpan() > 0.0 && width > 0 && height > 0
            && std::isfinite(devicePixelRatio) && devicePixelRatio >= 1.0
            && std::isfinite(tolerancePx) && tolerancePx >= 0.0;
    }
};

/// Exact comparison, field by field: a NaN equals nothing, itself included.
inline bool operator==(const Viewport &a, const Viewport &b)
{
    return a.xMin == b.xMin && a.xMax == b.xMax && a.yMin == b.yMin && a.yMax == b.yMax
        && a.width == b.width && a.height == b.height && a.devicePixelRatio == b.devicePixelRatio
        && a.tolerancePx == b.tolerancePx;
}

/// Exact comparison.
inline bool operator!=(const Viewport &a, const Viewport &b)
{
    return !(a == b);
}

} // namespace SmithRender
