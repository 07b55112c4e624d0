// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "coverageboostcurve_p.h"

#include <controls/thememanager.h>

#include <algorithm>
#include <limits>

namespace
{

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

} // namespace

CoverageBoostCurve::CoverageBoostCurve(QCPAxis *keyAxis, QCPAxis *valueAxis)
    : QCPCurve(keyAxis, valueAxis)
{
}

void CoverageBoostCurve::drawCurveLine(QCPPainter *painter, const QVector<QPointF> &lines) const
{
    double offset = 0.0;
    if (Controls::ThemeManager::instance()->currentTheme() == Controls::ThemeManager::Light
        && painter->device())
        offset = 0.25 / std::max(painter->device()->devicePixelRatioF(), 1.0);

    const QCPAxisRect *const rect = keyAxis() ? keyAxis()->axisRect() : nullptr;
    const QVector<QPointF> visible = rect ? withoutDetours(lines, QRectF(rect->rect())) : lines;
    QCPCurve::drawCurveLine(painter, visible);
    if (offset > 0.0) {
        painter->save();
        painter->translate(offset, offset);
        QCPCurve::drawCurveLine(painter, visible);
        painter->restore();
    } else {
        QCPCurve::drawCurveLine(painter, visible);
    }
}
