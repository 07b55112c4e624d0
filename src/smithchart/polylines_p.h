// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QPolygonF>
#include <QRectF>
#include <QVector>

#include <algorithm>
#include <cmath>
#include <utility>

namespace SmithChart
{

/// The share of the segment from \a a to \a b that lies within \a rect: from first to second, or
/// nothing where first is not below second (J. J. Barsky and Y. Liang, "A new concept and method
/// for line clipping", ACM Transactions on Graphics, January 1984).
inline std::pair<double, double> shareWithin(const QPointF &a, const QPointF &b, const QRectF &rect)
{
    double first = 0.0;
    double last = 1.0;
    const auto clip = [&](double from, double change, double low, double high) {
        if (change == 0.0) {
            if (from < low || from > high)
                last = -1.0;
            return;
        }
        const double atLow = (low - from) / change;
        const double atHigh = (high - from) / change;
        first = std::max(first, std::min(atLow, atHigh));
        last = std::min(last, std::max(atLow, atHigh));
    };
    clip(a.x(), b.x() - a.x(), rect.left(), rect.right());
    clip(a.y(), b.y() - a.y(), rect.top(), rect.bottom());
    return {first, last};
}

/// Appends what of a line lies outside a rectangle.
inline void appendOutside(const QPolygonF &line, const QRectF &hole, QVector<QPolygonF> &result)
{
    QPolygonF run;
    const auto finishRun = [&] {
        if (run.size() > 1)
            result.append(run);
        run.clear();
    };
    for (int i = 0; i < line.size(); ++i) {
        if (i > 0) {
            const QPointF &a = line.at(i - 1);
            const QPointF &b = line.at(i);
            const auto [first, last] = shareWithin(a, b, hole);
            if (first < last) {
                if (first > 0.0)
                    run.append(a + (b - a) * first);
                finishRun();
                if (last >= 1.0)
                    continue; // ends in the hole
                run.append(a + (b - a) * last);
            }
        }
        run.append(line.at(i));
    }
    finishRun();
}

/// What of some lines lies outside all of the rectangles.
inline QVector<QPolygonF> linesOutside(const QVector<QPolygonF> &lines,
                                       const QVector<QRectF> &holes)
{
    QVector<QPolygonF> result;
    result.reserve(lines.size());
    for (const QPolygonF &line : lines) {
        // Enlarged, because a flat rectangle meets nothing.
        const QRectF box = line.boundingRect().adjusted(-1.0, -1.0, 1.0, 1.0);
        QVector<QPolygonF> remaining{line};
        for (const QRectF &hole : holes) {
            if (!box.intersects(hole))
                continue;
            QVector<QPolygonF> cut;
            for (const QPolygonF &piece : qAsConst(remaining))
                appendOutside(piece, hole, cut);
            remaining = cut;
        }
        result += remaining;
    }
    return result;
}

} // namespace SmithChart
