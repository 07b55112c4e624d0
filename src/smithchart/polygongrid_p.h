// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QPainterPath>
#include <QPolygonF>
#include <QRectF>

#include <vector>

namespace SmithChart
{

/*! Tells for very many points whether they lie in a polygon: cells of a grid over it are inside,
    outside, or crossed by edges, and only in the last case edges are looked at, of one row. */
class PolygonGrid
{
public:
    /// \a polygon has finite points and a bounding box with an area.
    explicit PolygonGrid(const QPolygonF &polygon);

    bool contains(double x, double y) const
    {
        const double column = (x - m_box.left()) * m_columnsPerUnit;
        const double line = (y - m_box.top()) * m_rowsPerUnit;
        if (!(column >= 0.0 && column <= cells && line >= 0.0 && line <= cells)) // NaN, too
            return false;
        const int row = cellOf(line);
        const Cell cell = m_cells[static_cast<std::size_t>(row * cells + cellOf(column))];
        if (cell != Crossed)
            return cell == Inside;
        return isInside(x, y, m_rows[static_cast<std::size_t>(row)]);
    }
    QPainterPath outline() const;

private:
    enum Cell : unsigned char {
        Outside,
        Inside,
        Crossed,
    };
    struct Edge {
        QPointF low; ///< the end of the smaller y
        QPointF high;
    };

    static constexpr int cells = 256; ///< in a row, and in a column

    static int cellOf(double position)
    {
        const int cell = static_cast<int>(position);
        return cell < cells ? cell : cells - 1; // the far border
    }
    static bool isInside(double x, double y, const std::vector<Edge> &edges);
    void crossCells(const Edge &edge);

    QPolygonF m_polygon;
    QRectF m_box;
    double m_columnsPerUnit;
    double m_rowsPerUnit;
    std::vector<std::vector<Edge>> m_rows; ///< the edges that each row meets
    std::vector<Cell> m_cells;
};

} // namespace SmithChart
