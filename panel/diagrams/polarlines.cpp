// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "polarlines.h"

#include <QtMath>

#include <algorithm>
#include <cmath>
#include <optional>

namespace Panel
{

namespace
{

/// Finer lines are drawn where they are so far apart, in pixels.
constexpr double s_room = 50.0;
/// Fine rays end towards the centre where they are so near to each other.
constexpr double s_nearest = 24.0;
/// Between a label and its line.
constexpr double s_labelGap = 4.0;

/// A division in equal parts at round values.
double circleStep(int divisions, double radius)
{
    double step = 1.0 / divisions;
    for (const int parts : {2, 5, 10, 20, 50, 100}) {
        if (radius / (divisions * parts) >= s_room)
            step = 1.0 / (divisions * parts);
    }
    return step;
}

/// In degrees: the finest that leaves room at a distance from the centre, in pixels.
double rayStep(double distance)
{
    double step = 30.0;
    for (const double finer : {10.0, 5.0, 2.0, 1.0, 0.5, 0.2, 0.1}) {
        if (qDegreesToRadians(finer) * distance >= s_room)
            step = finer;
    }
    return step;
}

/// The part of a line within a rectangle (Liang and Barsky).
std::optional<QLineF> clipped(const QLineF &line, const QRectF &rectangle)
{
    double first = 0.0, last = 1.0;
    const auto cut = [&](double across, double room) {
        if (across == 0.0)
            return room >= 0.0;
        const double at = room / across;
        if (across < 0.0)
            first = std::max(first, at);
        else
            last = std::min(last, at);
        return true;
    };
    const bool inside = cut(-line.dx(), line.x1() - rectangle.left())
        && cut(line.dx(), rectangle.right() - line.x1())
        && cut(-line.dy(), line.y1() - rectangle.top())
        && cut(line.dy(), rectangle.bottom() - line.y1());
    if (!inside || first >= last)
        return {};
    return QLineF(line.pointAt(first), line.pointAt(last));
}

/// From the edge of a label to its middle in a direction, and the gap.
double reachOf(const QSizeF &label, double degrees)
{
    const double angle = qDegreesToRadians(degrees);
    return std::abs(std::cos(angle)) * label.width() / 2.0
        + std::abs(std::sin(angle)) * label.height() / 2.0 + s_labelGap;
}

double degreesOf(const QPointF &point, const QPointF &from)
{
    return qRadiansToDegrees(std::atan2(from.y() - point.y(), point.x() - from.x()));
}

double distance(const QPointF &a, const QPointF &b)
{
    return QLineF(a, b).length();
}

/// How near and how far the points of a rectangle are.
std::pair<double, double> distances(const QRectF &rectangle, const QPointF &from)
{
    const QPointF nearest(std::clamp(from.x(), rectangle.left(), rectangle.right()),
                          std::clamp(from.y(), rectangle.top(), rectangle.bottom()));
    double farthest = 0.0;
    for (const QPointF &corner : {rectangle.topLeft(), rectangle.topRight(), rectangle.bottomLeft(),
                                  rectangle.bottomRight()})
        farthest = std::max(farthest, distance(corner, from));
    return {distance(nearest, from), farthest};
}

} // namespace

QPointF PolarPlace::at(double share, double degrees) const
{
    const double angle = qDegreesToRadians(degrees);
    return centre + share * radius * QPointF(std::cos(angle), -std::sin(angle));
}

AngleRange anglesOf(const QRectF &rectangle, const QPointF &from)
{
    if (rectangle.contains(from))
        return {};
    // From outside, a rectangle takes less than half a turn to either side of its middle.
    const double middle = degreesOf(rectangle.center(), from);
    AngleRange range{middle, middle};
    for (const QPointF &corner : {rectangle.topLeft(), rectangle.topRight(), rectangle.bottomLeft(),
                                  rectangle.bottomRight()}) {
        const double aside = std::remainder(degreesOf(corner, from) - middle, 360.0);
        range.from = std::min(range.from, middle + aside);
        range.to = std::max(range.to, middle + aside);
    }
    return range;
}

PolarLines polarLines(const PolarPlace &place, int divisions, const QSizeF &label)
{
    PolarLines lines;
    const auto [near, far] = distances(place.seen, place.centre);
    const AngleRange seen = anglesOf(place.seen, place.centre);

    const double step = circleStep(divisions, place.radius);
    const int labelEvery =
        std::max(1, int(std::ceil(1.6 * label.height() / (step * place.radius))));
    const QRectF inner = place.seen.adjusted(label.width() / 2.0, label.height() / 2.0,
                                             -label.width() / 2.0, -label.height() / 2.0);
    const QPointF right(qMin(place.centre.x() + place.radius, place.seen.right()) - 1.0,
                        place.centre.y());
    const bool besideCentre = inner.contains(place.centre)
        || (inner.top() <= right.y() && right.y() <= inner.bottom() && place.seen.contains(right)
            && right.x() > place.centre.x());
    const double direction = besideCentre ? 0.0 : degreesOf(place.seen.center(), place.centre);
    const int last = int(std::lround(1.0 / step));
    for (int i = std::max(1, int(std::ceil(near / (step * place.radius)))); i <= last; ++i) {
        const double share = i * step;
        if (share * place.radius > far)
            break;
        QPointF middle = place.at(share, direction);
        if (besideCentre)
            middle +=
                QPointF(-label.width() / 2.0 - s_labelGap, label.height() / 2.0 + s_labelGap / 2.0);
        lines.circles.append({share, seen, middle, i % labelEvery == 0 && inner.contains(middle)});
    }

    const double rays =
        rayStep(std::min(place.radius, distance(place.seen.center(), place.centre)));
    const double fineFrom = s_nearest / (qDegreesToRadians(rays) * place.radius);
    for (int i = int(std::ceil(seen.from / rays)); i * rays < seen.to + 1e-9; ++i) {
        if (seen.to - seen.from >= 360.0 && i * rays >= seen.to - 1e-9)
            break;
        const double degrees = i * rays;
        const bool isFine = std::abs(std::remainder(degrees, 30.0)) > 1e-9;
        const QLineF whole(place.at(isFine ? std::min(1.0, fineFrom) : 0.0, degrees),
                           place.at(1.0, degrees));
        const auto line = clipped(whole, place.seen);
        if (!line)
            continue;
        const double reach = reachOf(label, degrees);
        const QPointF outside = place.at(1.0 + reach / place.radius, degrees);
        QRectF box(QPointF(), label);
        box.moveCenter(outside);
        const bool reachesRim =
            distance(line->p2(), whole.p2()) < 0.5 && place.labels.contains(box);
        const QPointF middle = reachesRim
            ? outside
            : place.at(distance(line->p2(), place.centre) / place.radius - reach / place.radius,
                       degrees);
        const double turned = std::remainder(degrees, 360.0);
        lines.rays.append({turned <= -180.0 ? turned + 360.0 : turned, *line, middle,
                           reachesRim || line->length() > 2.0 * reach});
    }
    return lines;
}

} // namespace Panel
