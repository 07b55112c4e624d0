// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "thinnedline.h"

#include <QLineF>

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace Panel
{

namespace
{

constexpr double s_farthest = 0.5;
/// Of a square in which all points are near a drawn line, or none counts as that.
constexpr double s_cell = 0.1;
/// Half its diagonal, and what rounding to tenths moves a line by.
constexpr double s_slack = 0.07 + 0.07;
/// Of a square that is filled where it has so many points.
constexpr double s_tile = 4.0;
constexpr int s_manyPoints = 6;
/// A fill is of rows of such boxes: no point of one is farther than 0.35 from the line through the
/// middle of its row, which is hardly farther than half a pixel from what is in a box.
constexpr double s_rowHeight = 0.7;
constexpr double s_boxWidth = 0.25;
/// So many boxes are bridged, within a row and to the next one.
constexpr int s_nearSteps = 3;

/// A view divided into boxes of equal size, with a value in each.
template<typename Value>
class Boxes
{
public:
    Boxes(const QRectF &view, double width, double height)
        : m_view(view)
        , m_width(width)
        , m_height(height)
        , m_columns(1 + int(view.width() / width))
        , m_rows(1 + int(view.height() / height))
        , m_values(std::size_t(m_columns) * std::size_t(m_rows))
    {
    }

    int columns() const { return m_columns; }
    int rows() const { return m_rows; }
    int column(double x) const { return int((x - m_view.left()) / m_width); }
    int row(double y) const { return int((y - m_view.top()) / m_height); }
    QPointF middle(int column, int row) const
    {
        return m_view.topLeft() + QPointF((column + 0.5) * m_width, (row + 0.5) * m_height);
    }
    /// False for what is no number, too.
    bool contains(const QPointF &point) const
    {
        return point.x() >= m_view.left() && point.x() <= m_view.right()
            && point.y() >= m_view.top() && point.y() <= m_view.bottom();
    }
    typename std::vector<Value>::reference at(int column, int row)
    {
        return m_values[std::size_t(row) * std::size_t(m_columns) + std::size_t(column)];
    }
    typename std::vector<Value>::reference at(const QPointF &point)
    {
        return at(column(point.x()), row(point.y()));
    }

private:
    QRectF m_view;
    double m_width;
    double m_height;
    int m_columns;
    int m_rows;
    std::vector<Value> m_values;
};

/// Calls for points of a line that are so far apart, ends included, until one call returns false.
template<typename Visit>
bool alongLine(const QLineF &line, double step, Visit visit)
{
    const int steps = 1 + int(std::min(line.length(), 1e4) / step);
    for (int i = 0; i <= steps; ++i) {
        if (!visit(line.pointAt(double(i) / steps)))
            return false;
    }
    return true;
}

/// Which places are within reach of what is drawn.
class Reach
{
public:
    explicit Reach(const QRectF &view)
        : m_reached(view, s_cell, s_cell)
    {
    }

    /// Whether all of a line, as far as it is in view, is within reach.
    bool holds(const QLineF &line)
    {
        return alongLine(line, s_cell, [this](const QPointF &point) {
            return !m_reached.contains(point) || m_reached.at(point);
        });
    }

    void add(const QLineF &line)
    {
        alongLine(line, s_cell, [this](const QPointF &point) {
            if (m_reached.contains(point))
                addAround(point);
            return true;
        });
    }

private:
    void addAround(const QPointF &point)
    {
        constexpr double radius = s_farthest - s_slack;
        constexpr int reach = int(radius / s_cell + 1.0);
        const int column = m_reached.column(point.x()), row = m_reached.row(point.y());
        for (int y = std::max(0, row - reach); y <= std::min(m_reached.rows() - 1, row + reach);
             ++y) {
            for (int x = std::max(0, column - reach);
                 x <= std::min(m_reached.columns() - 1, column + reach); ++x) {
                if (QLineF(m_reached.middle(x, y), point).length() <= radius)
                    m_reached.at(x, y) = true;
            }
        }
    }

    Boxes<bool> m_reached;
};

QPointF rounded(const QPointF &point)
{
    return {std::round(point.x() * 10.0) / 10.0, std::round(point.y() * 10.0) / 10.0};
}

/// Rows of lines to and fro through all boxes that are set.
QVector<QPolygonF> filled(Boxes<bool> &boxes)
{
    struct Run {
        int first;
        int last;
        int stretch; ///< that it is the end of
        int end; ///< where that stretch ends: first or last
    };
    QVector<QPolygonF> stretches;
    std::vector<Run> above;
    for (int row = 0; row < boxes.rows(); ++row) {
        std::vector<Run> runs;
        for (int first = 0; first < boxes.columns(); ++first) {
            if (!boxes.at(first, row))
                continue;
            int last = first; // over gaps in which a place is near to either side
            for (int next = first + 1; next < boxes.columns() && next <= last + s_nearSteps;
                 ++next) {
                if (boxes.at(next, row))
                    last = next;
            }
            // From the end of a run above to the nearer one of this, if that is not beside the fill.
            const auto steps = [&](const Run &run) {
                return std::min(std::abs(run.end - first), std::abs(run.end - last));
            };
            const auto joined = std::find_if(above.begin(), above.end(), [&](const Run &run) {
                return run.stretch >= 0 && run.first <= last + 1 && run.last >= first - 1
                    && steps(run) <= s_nearSteps;
            });
            Run run{first, last, int(stretches.size()), last};
            if (joined == above.end()) {
                stretches.append(QPolygonF());
            } else {
                run.stretch = std::exchange(joined->stretch, -1);
                if (std::abs(joined->end - last) < std::abs(joined->end - first))
                    run.end = first;
            }
            const int begin = run.end == last ? first : last;
            stretches[run.stretch] << rounded(boxes.middle(begin, row));
            if (begin != run.end)
                stretches[run.stretch] << rounded(boxes.middle(run.end, row));
            runs.push_back(run);
            first = last;
        }
        above = std::move(runs);
    }
    for (QPolygonF &stretch : stretches) {
        if (stretch.size() == 1) // a point alone is no line
            stretch << stretch.constFirst() + QPointF(0.1, 0.0);
    }
    return stretches;
}

} // namespace

QVector<QPolygonF> thinnedLine(const QPolygonF &line, const QRectF &view)
{
    QVector<QPolygonF> stretches;
    if (view.isEmpty())
        return stretches;
    Boxes<int> points(view, s_tile, s_tile);
    for (const QPointF &point : line) {
        if (points.contains(point))
            ++points.at(point);
    }
    const auto isDense = [&points](const QPointF &point) {
        return points.contains(point) && points.at(point) >= s_manyPoints;
    };
    Boxes<bool> fill(view, s_boxWidth, s_rowHeight);
    Reach reach(view);
    QPointF last; // that was drawn
    for (int i = 1; i < line.size(); ++i) {
        const QLineF part(line.at(i - 1), line.at(i));
        if (!std::isfinite(part.length()))
            continue;
        if (alongLine(part, s_tile / 4.0, isDense)) {
            alongLine(part, s_boxWidth / 2.0,
                      [&fill](const QPointF &point) { return fill.at(point) = true; });
            continue;
        }
        if (reach.holds(part))
            continue;
        const QLineF there(last, part.p1());
        // Rather over what is drawn than with the pen lifted, which takes more room.
        if (stretches.isEmpty() || (there.length() > 0.0 && !reach.holds(there)))
            stretches.append(QPolygonF(QVector<QPointF>{rounded(part.p1())}));
        else if (there.length() > 0.0)
            stretches.last().append(rounded(part.p1()));
        stretches.last().append(rounded(part.p2()));
        reach.add(part);
        last = part.p2();
    }
    return stretches + filled(fill);
}

} // namespace Panel
