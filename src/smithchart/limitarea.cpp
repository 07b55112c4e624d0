// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "limitarea.h"

#include "polygongrid_p.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <variant>

namespace SmithChart
{

namespace
{

constexpr double degree = 3.141592653589793 / 180.0;

struct Disk {
    QPointF centre;
    double radius;

    bool contains(double x, double y) const
    {
        const double dx = x - centre.x();
        const double dy = y - centre.y();
        return dx * dx + dy * dy <= radius * radius;
    }
    QPainterPath outline() const
    {
        QPainterPath path;
        path.addEllipse(centre, radius, radius);
        return path;
    }
};

struct Sector {
    double low;
    double high;
    double from;
    double sweep; ///< degrees, at most 360
    double fromX = std::cos(from * degree);
    double fromY = std::sin(from * degree);
    double toX = std::cos((from + sweep) * degree);
    double toY = std::sin((from + sweep) * degree);

    bool contains(double x, double y) const
    {
        const double square = x * x + y * y;
        if (square < low * low || square > high * high)
            return false;
        if (sweep >= 360.0)
            return true;
        // On which side of both edges, which needs no angle.
        const bool afterFrom = fromX * y - fromY * x >= 0.0;
        const bool beforeTo = x * toY - y * toX >= 0.0;
        return sweep <= 180.0 ? afterFrom && beforeTo : afterFrom || beforeTo;
    }
    QPainterPath outline() const
    {
        const auto box = [](double radius) {
            return QRectF(-radius, -radius, 2.0 * radius, 2.0 * radius);
        };
        QPainterPath path;
        if (sweep >= 360.0) {
            path.addEllipse(box(high));
            path.addEllipse(box(low));
            return path;
        }
        // Painter paths count angles against a y axis that points down.
        path.moveTo(fromX * low, fromY * low);
        path.arcTo(box(high), -from, -sweep);
        path.arcTo(box(low), -from - sweep, sweep);
        path.closeSubpath();
        return path;
    }
};

bool isFinite(double x, double y)
{
    return std::isfinite(x) && std::isfinite(y);
}

/// Walks a trace once; \a isJudged and \a isPermitted are asked for each index.
template<typename IsJudged, typename IsPermitted>
LimitResult walk(int count, const IsJudged &isJudged, const IsPermitted &isPermitted)
{
    LimitResult result;
    int runStart = -1;
    const auto finishRun = [&](int end) {
        if (runStart >= 0)
            result.failing.append({runStart, end - 1});
        runStart = -1;
    };
    for (int i = 0; i < count; ++i) {
        const bool judged = isJudged(i);
        result.tested += judged ? 1 : 0;
        if (!judged || isPermitted(i))
            finishRun(i);
        else if (runStart < 0)
            runStart = i;
    }
    finishRun(count);
    if (!result.failing.isEmpty())
        result.firstFailing = result.failing.first().first;
    return result;
}

} // namespace

class LimitArea::Shape
{
public:
    using Any = std::variant<Disk, Sector, PolygonGrid>;

    explicit Shape(Any any)
        : m_any(std::move(any))
    {
    }

    /// Calls a function with the shape itself, so that a loop need not ask which it is.
    template<typename Function>
    auto visit(const Function &function) const
    {
        return std::visit(function, m_any);
    }

private:
    Any m_any;
};

LimitArea::LimitArea() = default;

void LimitArea::set(std::shared_ptr<const Shape> shape, Rule rule)
{
    m_shape = std::move(shape);
    m_rule = rule;
}

bool LimitArea::setCircle(const QPointF &centre, double radius, Rule rule)
{
    if (!isFinite(centre.x(), centre.y()) || !std::isfinite(radius) || radius <= 0.0)
        return false;
    set(std::make_shared<Shape>(Disk{centre, radius}), rule);
    return true;
}

bool LimitArea::setSector(double low, double high, double from, double to, Rule rule)
{
    if (!isFinite(low, high) || !isFinite(from, to) || low < 0.0 || low >= high || from >= to)
        return false;
    set(std::make_shared<Shape>(Sector{low, high, from, std::min(to - from, 360.0)}), rule);
    return true;
}

bool LimitArea::setPolygon(const QPolygonF &polygon, Rule rule)
{
    const bool finite = std::all_of(polygon.cbegin(), polygon.cend(), [](const QPointF &point) {
        return isFinite(point.x(), point.y());
    });
    const QRectF box = polygon.boundingRect();
    if (!finite || polygon.size() < 3 || !(box.width() > 0.0 && box.height() > 0.0)
        || !isFinite(box.width(), box.height()))
        return false;
    set(std::make_shared<Shape>(PolygonGrid(polygon)), rule);
    return true;
}

QPainterPath LimitArea::outline() const
{
    return m_shape ? m_shape->visit([](const auto &shape) { return shape.outline(); })
                   : QPainterPath();
}

bool LimitArea::contains(const QPointF &point) const
{
    return m_shape
        && m_shape->visit([&](const auto &shape) { return shape.contains(point.x(), point.y()); });
}

bool LimitArea::permits(const QPointF &point) const
{
    return !m_shape || contains(point) == (m_rule == StayInside);
}

LimitResult LimitArea::test(const QVector<double> &real, const QVector<double> &imag) const
{
    const int count = static_cast<int>(std::min(real.size(), imag.size()));
    const double *const x = real.constData();
    const double *const y = imag.constData();
    const auto isJudged = [x, y](int i) { return isFinite(x[i], y[i]); };
    if (!m_shape)
        return walk(count, isJudged, [](int) { return true; });
    return m_shape->visit([&](const auto &shape) {
        return walk(count, isJudged, [&, inside = m_rule == StayInside](int i) {
            return shape.contains(x[i], y[i]) == inside;
        });
    });
}

LimitResult LimitArea::test(const QVector<double> &real, const QVector<double> &imag,
                            const QVector<double> &stimulus, const StimulusRange &range) const
{
    const int count = static_cast<int>(std::min({real.size(), imag.size(), stimulus.size()}));
    const double *const x = real.constData();
    const double *const y = imag.constData();
    const double *const f = stimulus.constData();
    const auto isJudged = [&](int i) {
        return f[i] >= range.low && f[i] <= range.high && isFinite(x[i], y[i]);
    };
    if (!m_shape)
        return walk(count, isJudged, [](int) { return true; });
    return m_shape->visit([&](const auto &shape) {
        return walk(count, isJudged, [&, inside = m_rule == StayInside](int i) {
            return shape.contains(x[i], y[i]) == inside;
        });
    });
}

} // namespace SmithChart
