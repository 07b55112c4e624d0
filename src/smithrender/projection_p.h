// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <algorithm>
#include <cmath>

namespace SmithRender
{

/// Maps a rectangle of the plane to device pixels from its top-left corner, y downwards.
class Projection
{
public:
    /// The rectangle's ranges, of positive span, and its size in device pixels, which is positive.
    Projection(double xMin, double xMax, double yMin, double yMax, double width, double height)
        : m_xMin(xMin)
        , m_xMax(xMax)
        , m_yMin(yMin)
        , m_yMax(yMax)
        , m_xSpan(xMax - xMin)
        , m_ySpan(yMax - yMin)
        , m_width(width)
        , m_height(height)
    {
    }

    double x(double real) const { return (real - m_xMin) / m_xSpan * m_width; }
    double y(double imag) const { return (m_yMax - imag) / m_ySpan * m_height; }

    double xMin() const { return m_xMin; }
    double yMax() const { return m_yMax; }
    /// Device pixels per unit.
    double xScale() const { return m_width / m_xSpan; }
    double yScale() const { return m_height / m_ySpan; }
    /// The size of a device pixel, in units of x.
    double pixel() const { return m_xSpan / m_width; }
    /// The largest magnitude of an edge of the rectangle.
    double largestX() const { return std::max(std::fabs(m_xMin), std::fabs(m_xMax)); }
    double largestY() const { return std::max(std::fabs(m_yMin), std::fabs(m_yMax)); }

private:
    double m_xMin;
    double m_xMax;
    double m_yMin;
    double m_yMax;
    double m_xSpan;
    double m_ySpan;
    double m_width;
    double m_height;
};

} // namespace SmithRender
