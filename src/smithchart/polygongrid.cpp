// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "polygongrid_p.h"

#include <algorithm>

namespace SmithChart
{

PolygonGrid::PolygonGrid(const QPolygonF &polygon)
    : m_polygon(polygon)
    , m_box(polygon.boundingRect())
    , m_columnsPerUnit(cells / m_box.width())
    , m_rowsPerUnit(cells / m_box.height())
    , m_rows(cells)
    , m_cells(cells * cells, Outside)
{
    for (int i = 0; i < polygon.size(); ++i)
        crossCells({polygon.at(i), polygon.at((i + 1) % polygon.size())});
    for (int row = 0; row < cells; ++row) {
        const double y = m_box.top() + (row + 0.5) / m_rowsPerUnit;
        for (int column = 0; column < cells; ++column) {
            Cell &cell = m_cells[static_cast<std::size_t>(row * cells + column)];
            const double x = m_box.left() + (column + 0.5) / m_columnsPerUnit;
            if (cell != Crossed && isInside(x, y, m_rows[static_cast<std::size_t>(row)]))
                cell = Inside;
        }
    }
}

/// Marks the cells that an edge may meet: row by row, from where it enters to where it leaves, and
/// one more on each side for rounding.
void PolygonGrid::crossCells(const Edge &edge)
{
    const QPointF &low = edge.a.y() <= edge.b.y() ? edge.a : edge.b;
    const QPointF &high = edge.a.y() <= edge.b.y() ? edge.b : edge.a;
    const int firstRow = std::max(cellOf((low.y() - m_box.top()) * m_rowsPerUnit) - 1, 0);
    const int lastRow = std::min(cellOf((high.y() - m_box.top()) * m_rowsPerUnit) + 1, cells - 1);
    const double height = high.y() - low.y();
    const auto columnAt = [&](double y) {
        const double share = height > 0.0 ? std::clamp((y - low.y()) / height, 0.0, 1.0) : 0.0;
        return cellOf((low.x() + share * (high.x() - low.x()) - m_box.left()) * m_columnsPerUnit);
    };
    for (int row = firstRow; row <= lastRow; ++row) {
        m_rows[static_cast<std::size_t>(row)].push_back(edge);
        int first = columnAt(m_box.top() + row / m_rowsPerUnit);
        int last = columnAt(m_box.top() + (row + 1) / m_rowsPerUnit);
        if (height <= 0.0)
            last = cellOf((high.x() - m_box.left()) * m_columnsPerUnit);
        if (first > last)
            std::swap(first, last);
        for (int column = std::max(first - 1, 0); column <= std::min(last + 1, cells - 1); ++column)
            m_cells[static_cast<std::size_t>(row * cells + column)] = Crossed;
    }
}

/// Whether a ray to the right crosses an odd number of edges, or the point lies on one.
bool PolygonGrid::isInside(double x, double y, const std::vector<Edge> &edges)
{
    bool inside = false;
    for (const Edge &edge : edges) {
        const QPointF &a = edge.a;
        const QPointF &b = edge.b;
        const double side = (b.x() - a.x()) * (y - a.y()) - (b.y() - a.y()) * (x - a.x());
        if (side == 0.0 && x >= std::min(a.x(), b.x()) && x <= std::max(a.x(), b.x())
            && y >= std::min(a.y(), b.y()) && y <= std::max(a.y(), b.y()))
            return true;
        if ((a.y() > y) != (b.y() > y) && (side > 0.0) == (b.y() > a.y()))
            inside = !inside;
    }
    return inside;
}

QPainterPath PolygonGrid::outline() const
{
    QPainterPath path;
    path.addPolygon(m_polygon);
    path.closeSubpath();
    return path;
}

} // namespace SmithChart
