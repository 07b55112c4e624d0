// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "freecorner.h"

namespace Panel
{

namespace
{

/// How many pixel columns of a box are looked at.
constexpr int s_triedColumns = 32;
/// Another corner must be freer by so many of them.
constexpr int s_much = 4;

/// The height of a line at a column of the plot, in pixels; NaN where it does not go.
double heightAt(const QCPGraph *line, double column)
{
    const double key = line->keyAxis()->pixelToCoord(column);
    const QCPGraphDataContainer &points = *line->data();
    const auto after = points.findBegin(key, false);
    if (after == points.constEnd() || after == points.constBegin())
        return qQNaN();
    const auto before = std::prev(after);
    const double width = after->key - before->key;
    const double share = width > 0.0 ? (key - before->key) / width : 0.0;
    return line->valueAxis()->coordToPixel(before->value + share * (after->value - before->value));
}

int hiddenColumns(const QRect &box, const QVector<QCPGraph *> &lines)
{
    int hidden = 0;
    for (const QCPGraph *line : lines) {
        if (!line->visible())
            continue;
        for (int i = 0; i < s_triedColumns; ++i) {
            const double column = box.left() + (i + 0.5) * box.width() / s_triedColumns;
            const double height = heightAt(line, column);
            hidden += height >= box.top() && height <= box.bottom() ? 1 : 0;
        }
    }
    return hidden;
}

} // namespace

QRect boxIn(const QRect &room, const QSize &size, Qt::Corner corner)
{
    QRect box(room.topLeft(), size);
    if (corner == Qt::TopRightCorner || corner == Qt::BottomRightCorner)
        box.moveRight(room.right());
    if (corner == Qt::BottomLeftCorner || corner == Qt::BottomRightCorner)
        box.moveBottom(room.bottom());
    return box;
}

Qt::Corner freestCorner(const QRect &room, const QSize &size, const QVector<QCPGraph *> &lines,
                        Qt::Corner present)
{
    Qt::Corner best = present;
    int fewest = hiddenColumns(boxIn(room, size, present), lines) - s_much;
    for (const Qt::Corner corner :
         {Qt::TopRightCorner, Qt::BottomRightCorner, Qt::TopLeftCorner, Qt::BottomLeftCorner}) {
        const int hidden = hiddenColumns(boxIn(room, size, corner), lines);
        if (hidden < fewest) {
            fewest = hidden;
            best = corner;
        }
    }
    return best;
}

} // namespace Panel
