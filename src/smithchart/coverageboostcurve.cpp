// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "coverageboostcurve_p.h"

#include <controls/thememanager.h>
#include <plot/linemask_p.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace
{

/// QCPCurve cuts lines a pixel outside at two sides of the view, and at the others on its edge: by so
/// much inside, they are beyond it whatever the last bits of a cut end are.
constexpr double insideEdge = 1e-6;

/// A line without the segments that lie beyond one side of \a area: QCPCurve leads a line that
/// leaves the view around it, a pixel from its edges, where antialiasing and the shifted stroke
/// would bring it into view.
QVector<QPointF> withoutDetours(const QVector<QPointF> &line, const QRectF &area)
{
    const auto isBeyond = [&area](const QPointF &a, const QPointF &b) {
        return (a.x() < area.left() && b.x() < area.left())
            || (a.x() > area.right() && b.x() > area.right())
            || (a.y() < area.top() && b.y() < area.top())
            || (a.y() > area.bottom() && b.y() > area.bottom());
    };
    constexpr double gap = std::numeric_limits<double>::quiet_NaN();
    QVector<QPointF> result;
    result.reserve(line.size());
    for (int i = 0; i < line.size(); ++i) {
        if (i > 0 && isBeyond(line.at(i - 1), line.at(i)))
            result.append({gap, gap});
        result.append(line.at(i));
    }
    return result;
}

/// Where coordinates of an axis lie in a mask.
struct MaskScale {
    double origin;
    double perUnit;

    double at(double coordinate) const { return origin + perUnit * coordinate; }
};

} // namespace

CoverageBoostCurve::CoverageBoostCurve(QCPAxis *keyAxis, QCPAxis *valueAxis)
    : QCPCurve(keyAxis, valueAxis)
{
}

void CoverageBoostCurve::draw(QCPPainter *painter)
{
    if (!isPlainLine(painter) || !drawByMask(painter))
        QCPCurve::draw(painter);
}

/// Wider ones need no second stroke to be seen.
bool CoverageBoostCurve::isThin(const QCPPainter *painter) const
{
    return LineMask::deviceWidth(painter, mPen) <= 1.0;
}

/// In logical pixels; 0: both strokes at the same place.
double CoverageBoostCurve::secondStrokeOffset(const QCPPainter *painter) const
{
    if (Controls::ThemeManager::instance()->currentTheme() != Controls::ThemeManager::Light)
        return 0.0;
    return 0.25 / std::max(painter->device()->devicePixelRatioF(), 1.0);
}

bool CoverageBoostCurve::isPlainLine(const QCPPainter *painter) const
{
    return LineMask::suits(painter, mPen) && selection().isEmpty() && mLineStyle == lsLine
        && mScatterStyle.isNone() && mBrush.style() == Qt::NoBrush;
}

bool CoverageBoostCurve::drawByMask(QCPPainter *painter) const
{
    const QCPAxis *const keys = keyAxis();
    const QCPAxis *const values = valueAxis();
    if (!keys || !values || keys->orientation() != Qt::Horizontal
        || values->orientation() != Qt::Vertical || keys->scaleType() != QCPAxis::stLinear
        || values->scaleType() != QCPAxis::stLinear)
        return false;
    // QCPCurve cuts lines a pixel outside: here to the last bit, as the cut ends are capped.
    const auto outside = [](const QCPAxis *axis, double end, double outwards) {
        return axis->coordToPixel(axis->pixelToCoord(axis->coordToPixel(end) + outwards));
    };
    const QRectF bounds(QPointF(outside(keys, keys->range().lower, -1.0),
                                outside(values, values->range().upper, -1.0)),
                        QPointF(outside(keys, keys->range().upper, 1.0),
                                outside(values, values->range().lower, 1.0)));
    const bool thin = isThin(painter);
    const double offset = thin ? secondStrokeOffset(painter) : 0.0;
    LineMask line(painter, mPen);
    // In device pixels, as the edge is.
    const double inside = insideEdge / line.scaleX();
    if (!line.begin(bounds, QRectF(clipRect()).adjusted(0.0, 0.0, -inside, -inside),
                    thin && offset == 0.0 ? 2 : 1))
        return false;

    const auto scaleOf = [](const QCPAxis *axis) {
        const QCPRange range = axis->range();
        const double lower = axis->coordToPixel(range.lower);
        const double perUnit = (axis->coordToPixel(range.upper) - lower) / range.size();
        return MaskScale{lower - perUnit * range.lower, perUnit};
    };
    MaskScale x = scaleOf(keys);
    MaskScale y = scaleOf(values);
    x = {line.toMaskX(x.origin), x.perUnit * line.scaleX()};
    y = {line.toMaskY(y.origin), y.perUnit * line.scaleY()};
    const auto end = mDataContainer->constEnd();
    for (auto first = mDataContainer->constBegin(); first != end;) {
        const auto isGap = [](const QCPCurveData &point) {
            return !std::isfinite(point.key) || !std::isfinite(point.value);
        };
        const auto gap = std::find_if(first, end, isGap);
        const auto pointAt = [&](int i) {
            return SmithRender::StrokeMask::Point{x.at(first[i].key), y.at(first[i].value)};
        };
        const int count = static_cast<int>(gap - first);
        line.mask().addLine(pointAt, count);
        if (offset > 0.0)
            line.mask().addLine(pointAt, count, offset * line.scaleX());
        first = gap == end ? gap : gap + 1;
    }
    line.paint();
    return true;
}

void CoverageBoostCurve::drawCurveLine(QCPPainter *painter, const QVector<QPointF> &lines) const
{
    const QCPAxisRect *const rect = keyAxis() ? keyAxis()->axisRect() : nullptr;
    const QVector<QPointF> visible = rect
        ? withoutDetours(lines, QRectF(rect->rect()).adjusted(0.0, 0.0, -insideEdge, -insideEdge))
        : lines;
    QCPCurve::drawCurveLine(painter, visible);
    if (!isThin(painter))
        return;
    const double offset = secondStrokeOffset(painter);
    if (offset > 0.0) {
        painter->save();
        painter->translate(offset, offset);
        QCPCurve::drawCurveLine(painter, visible);
        painter->restore();
    } else {
        QCPCurve::drawCurveLine(painter, visible);
    }
}
