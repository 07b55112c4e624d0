// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "circle_p.h"

#include "arcstretch_p.h"

#include <cmath>

namespace SmithChart
{

namespace
{

std::optional<Circle> usable(const Circle &circle)
{
    return circle.isUsable() ? std::optional<Circle>(circle) : std::nullopt;
}

Circle turned(const Circle &circle)
{
    return {-circle.centre, circle.radius};
}

QPointF pointAt(const Circle &circle, double angle)
{
    return circle.centre + circle.radius * QPointF(std::cos(angle), std::sin(angle));
}

/// Adds an angle of -pi to pi where it is met, whatever turn the arc is counted in.
void addAngle(ArcCrossings &crossings, double angle)
{
    crossings.add(angle);
    crossings.add(angle + 2.0 * pi);
}

} // namespace

bool Circle::isUsable() const
{
    return std::isfinite(centre.x()) && std::isfinite(centre.y()) && std::isfinite(radius)
        && radius > 0.0;
}

std::optional<Circle> vswrCircle(double vswr)
{
    if (!(vswr > 1.0) || !std::isfinite(vswr))
        return std::nullopt;
    return usable({{0.0, 0.0}, (vswr - 1.0) / (vswr + 1.0)});
}

std::optional<Circle> reflectionCircle(double magnitude)
{
    return usable({{0.0, 0.0}, magnitude});
}

std::optional<Circle> resistanceCircle(double resistance)
{
    if (!(resistance >= 0.0))
        return std::nullopt;
    return usable({{resistance / (resistance + 1.0), 0.0}, 1.0 / (resistance + 1.0)});
}

std::optional<Circle> reactanceCircle(double reactance)
{
    return usable({{1.0, 1.0 / reactance}, 1.0 / std::abs(reactance)});
}

std::optional<Circle> conductanceCircle(double conductance)
{
    const std::optional<Circle> circle = resistanceCircle(conductance);
    return circle ? std::optional<Circle>(turned(*circle)) : std::nullopt;
}

std::optional<Circle> susceptanceCircle(double susceptance)
{
    const std::optional<Circle> circle = reactanceCircle(susceptance);
    return circle ? std::optional<Circle>(turned(*circle)) : std::nullopt;
}

QVector<Circle> qualityCircles(double q)
{
    const Circle capacitive{{0.0, 1.0 / q}, std::hypot(1.0, 1.0 / q)};
    if (!(q > 0.0) || !std::isfinite(q) || !capacitive.isUsable())
        return {};
    return {turned(capacitive), capacitive};
}

QVector<QPolygonF> circleLines(const Circle &circle, const QRectF &rect, bool insideChart,
                               double tolerance)
{
    if (!circle.isUsable() || !(tolerance > 0.0))
        return {};
    ArcCrossings crossings(0.0, 2.0 * pi);
    for (const double x : {rect.left(), rect.right()}) {
        const double angle = std::acos((x - circle.centre.x()) / circle.radius);
        addAngle(crossings, angle);
        addAngle(crossings, -angle);
    }
    for (const double y : {rect.top(), rect.bottom()}) {
        const double angle = std::asin((y - circle.centre.y()) / circle.radius);
        addAngle(crossings, angle);
        addAngle(crossings, pi - angle);
    }
    if (insideChart) {
        // Where the unit circle meets it: at equal angles from the line through both centres.
        const double distance = std::hypot(circle.centre.x(), circle.centre.y());
        const double inwards = std::atan2(-circle.centre.y(), -circle.centre.x());
        const double half = std::acos((distance * distance + circle.radius * circle.radius - 1.0)
                                      / (2.0 * distance * circle.radius));
        for (const double angle : {inwards - half, inwards + half})
            addAngle(crossings, std::remainder(angle, 2.0 * pi));
    }
    const QVector<ArcStretch> stretches = crossings.stretches([&](double angle) {
        const QPointF point = pointAt(circle, angle);
        constexpr double rim = 1.0 + 1e-9;
        return point.x() >= rect.left() && point.x() <= rect.right() && point.y() >= rect.top()
            && point.y() <= rect.bottom()
            && (!insideChart || QPointF::dotProduct(point, point) <= rim);
    });

    QVector<QPolygonF> lines;
    // A chord over the angle 2a strays by r (1 - cos a), about r a^2 / 2.
    const double step = 2.0 * std::sqrt(2.0 * tolerance / circle.radius);
    for (const ArcStretch &stretch : stretches) {
        constexpr double maximum = 10000.0;
        const double steps = std::ceil((stretch.last - stretch.first) / step);
        const int count = static_cast<int>(std::clamp(steps, 2.0, maximum));
        QPolygonF line;
        line.reserve(count + 1);
        for (int i = 0; i <= count; ++i) {
            line.append(
                pointAt(circle, stretch.first + (stretch.last - stretch.first) * i / count));
        }
        lines.append(line);
    }
    return lines;
}

} // namespace SmithChart
