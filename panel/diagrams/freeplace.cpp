// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "freeplace.h"

#include <iterator>

namespace Panel
{

namespace
{

/// How many pixel columns of a box are looked at.
constexpr int s_triedColumns = 32;
/// Another place must be freer by so many of them.
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

QRect boxIn(const QRect &room, const QSize &size, const BoxPlace &place)
{
    const QSize left = room.size() - size;
    return {room.topLeft() + QPoint(left.width() * place.column / 2, left.height() * place.row / 2),
            size};
}

BoxPlace freestPlace(const QRect &room, const QSize &size, const QVector<QCPGraph *> &lines,
                     const BoxPlace &present, BoxPlaces among)
{
    constexpr BoxPlace places[] = {{2, 0}, {2, 2}, {0, 0}, {0, 2}, {1, 0},
                                   {1, 2}, {2, 1}, {0, 1}, {1, 1}};
    constexpr int corners = 4;
    const int count = among == BoxPlaces::Corners ? corners : int(std::size(places));
    BoxPlace best = present;
    int fewest = hiddenColumns(boxIn(room, size, present), lines) - s_much;
    for (int i = 0; i < count; ++i) {
        const int hidden = hiddenColumns(boxIn(room, size, places[i]), lines);
        if (hidden < fewest) {
            fewest = hidden;
            best = places[i];
        }
    }
    return best;
}

} // namespace Panel
