// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "gridarc_p.h"

#include "arcstretch_p.h"

#include <algorithm>
#include <cmath>

namespace SmithChart
{

namespace
{

/// The angle of z + 1.
double angleOf(double real, double imaginary)
{
    if (std::isinf(real))
        return 0.0;
    return std::atan2(imaginary, real + 1.0);
}

/// Adds the angles whose double has this sine.
void addSineOfDouble(ArcCrossings &crossings, double sine)
{
    const double half = std::asin(sine) / 2.0;
    crossings.add(half);
    crossings.add(pi / 2.0 - half);
    crossings.add(-pi / 2.0 - half);
}

void addBothSigns(ArcCrossings &crossings, double angle)
{
    crossings.add(angle);
    crossings.add(-angle);
}

} // namespace

GridArc::GridArc(GridPart part, double value, double from, double to)
    : m_part(part)
    , m_value(value)
    , m_first(part == GridPart::Real ? angleOf(value, from) : angleOf(from, value))
    , m_last(part == GridPart::Real ? angleOf(value, to) : angleOf(to, value))
{
    if (m_first > m_last)
        std::swap(m_first, m_last);
}

double GridArc::radius() const
{
    return m_part == GridPart::Real ? 1.0 / (m_value + 1.0) : 1.0 / std::abs(m_value);
}

QPointF GridArc::at(double angle) const
{
    return at(std::cos(angle), std::sin(angle));
}

QPointF GridArc::at(double cosine, double sine) const
{
    // 1 - G = 2 / (z + 1), of which the angle is known and the length follows from either part.
    const double length =
        2.0 * (m_part == GridPart::Real ? cosine / (m_value + 1.0) : sine / m_value);
    return {1.0 - length * cosine, length * sine};
}

QVector<ArcStretch> GridArc::within(const QRectF &rect) const
{
    ArcCrossings crossings(m_first, m_last);
    for (const double x : {rect.left(), rect.right()}) {
        if (m_part == GridPart::Real)
            addBothSigns(crossings, std::acos((1.0 - x) * (m_value + 1.0) - 1.0) / 2.0);
        else
            addSineOfDouble(crossings, (1.0 - x) * m_value);
    }
    for (const double y : {rect.top(), rect.bottom()}) {
        if (m_part == GridPart::Real)
            addSineOfDouble(crossings, y * (m_value + 1.0));
        else
            addBothSigns(crossings, std::asin(std::sqrt(y * m_value / 2.0)));
    }
    return crossings.stretches([&](double angle) {
        const QPointF point = at(angle);
        return point.x() >= rect.left() && point.x() <= rect.right() && point.y() >= rect.top()
            && point.y() <= rect.bottom();
    });
}

QVector<QPointF> GridArc::points(const ArcStretch &stretch, double tolerance) const
{
    // A chord over the angle 2a at the centre strays by r (1 - cos a), about r a^2 / 2.
    const double step = std::sqrt(2.0 * tolerance / radius());
    const int count =
        std::clamp(static_cast<int>(std::ceil((stretch.last - stretch.first) / step)), 1, 1000);
    QVector<QPointF> points;
    points.reserve(count + 1);
    // Turned from point to point: a sine for each would be most of the time.
    const double turn = (stretch.last - stretch.first) / count;
    const double turnCos = std::cos(turn);
    const double turnSin = std::sin(turn);
    double c = std::cos(stretch.first);
    double s = std::sin(stretch.first);
    for (int i = 0; i < count; ++i) {
        points.append(at(c, s));
        const double previous = c;
        c = previous * turnCos - s * turnSin;
        s = s * turnCos + previous * turnSin;
    }
    points.append(at(stretch.last));
    return points;
}

} // namespace SmithChart
