// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
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
    , m_cells(std::size_t(cells) * std::size_t(cells), Outside)
{
    for (int i = 0; i < polygon.size(); ++i) {
        const QPointF &a = polygon.at(i);
        const QPointF &b = polygon.at((i + 1) % polygon.size());
        crossCells(a.y() <= b.y() ? Edge{a, b} : Edge{b, a});
    }
    for (int row = 0; row < cells; ++row) {
        const double y = m_box.top() + (row + 0.5) / m_rowsPerUnit;
        Cell previous = Crossed;
        for (int column = 0; column < cells; ++column) {
            Cell &cell = m_cells[static_cast<std::size_t>(row * cells + column)];
            if (cell != Crossed && previous != Crossed) {
                cell = previous; // no edge between them
            } else if (cell != Crossed) {
                const double x = m_box.left() + (column + 0.5) / m_columnsPerUnit;
                cell = isInside(x, y, m_rows[static_cast<std::size_t>(row)]) ? Inside : Outside;
            }
            previous = cell;
        }
    }
}

/// Marks the cells that an edge may meet: row by row, from where it enters to where it leaves.
void PolygonGrid::crossCells(const Edge &edge)
{
    constexpr double rounding = 1e-6; // of a cell
    const QPointF &low = edge.low;
    const QPointF &high = edge.high;
    const double lowRow = (low.y() - m_box.top()) * m_rowsPerUnit;
    const double highRow = (high.y() - m_box.top()) * m_rowsPerUnit;
    const double lowColumn = (low.x() - m_box.left()) * m_columnsPerUnit;
    const double highColumn = (high.x() - m_box.left()) * m_columnsPerUnit;
    const double height = highRow - lowRow;
    const auto columnAt = [&](double row) {
        return lowColumn + std::clamp((row - lowRow) / height, 0.0, 1.0) * (highColumn - lowColumn);
    };
    for (int row = cellOf(lowRow - rounding); row <= cellOf(highRow + rounding); ++row) {
        m_rows[static_cast<std::size_t>(row)].push_back(edge);
        // An edge as flat as rounding crosses all of its columns at once.
        const bool flat = height < rounding;
        const double enters = flat ? lowColumn : columnAt(row - rounding);
        const double leaves = flat ? highColumn : columnAt(row + 1 + rounding);
        const int last = cellOf(std::max(enters, leaves) + rounding);
        for (int column = cellOf(std::min(enters, leaves) - rounding); column <= last; ++column)
            m_cells[static_cast<std::size_t>(row * cells + column)] = Crossed;
    }
}

/// Whether a ray to the right crosses an odd number of edges, or the point lies on one.
bool PolygonGrid::isInside(double x, double y, const std::vector<Edge> &edges)
{
    bool inside = false;
    for (const Edge &edge : edges) {
        const QPointF &a = edge.low;
        const QPointF &b = edge.high;
        if (y < a.y() || y > b.y())
            continue;
        const double side = (b.x() - a.x()) * (y - a.y()) - (b.y() - a.y()) * (x - a.x());
        if (side == 0.0 && x >= std::min(a.x(), b.x()) && x <= std::max(a.x(), b.x()))
            return true;
        if (y < b.y() && side > 0.0) // an end counts for one of the two edges that share it
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
