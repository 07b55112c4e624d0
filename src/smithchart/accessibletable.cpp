// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "accessibletable_p.h"

#include <limits>

namespace
{

/// Cells that are kept of a table: more than a tool has on a screen or in a line of braille.
constexpr int keptCells = 4096;

class CellAccessible : public PlotPartAccessible, public QAccessibleTableCellInterface
{
public:
    CellAccessible(PlotParts *parts, const TraceTableAccessible *table, int row, int column)
        : PlotPartAccessible(parts)
        , m_table(table)
        , m_row(row)
        , m_column(column)
    {
    }

    bool isValid() const override { return m_table->holds(m_row, m_column); }
    QAccessibleInterface *parent() const override { return table(); }
    QAccessible::Role role() const override { return QAccessible::Cell; }
    QString text(QAccessible::Text kind) const override
    {
        if (!isValid())
            return {};
        if (kind == QAccessible::Name)
            return m_table->cellText(m_row, m_column);
        return kind == QAccessible::Description ? m_table->columnDescription(m_column) : QString();
    }
    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::TableCellInterface
            ? static_cast<QAccessibleTableCellInterface *>(this)
            : nullptr;
    }

    bool isSelected() const override { return false; }
    QList<QAccessibleInterface *> columnHeaderCells() const override { return {}; }
    QList<QAccessibleInterface *> rowHeaderCells() const override { return {}; }
    int columnIndex() const override { return m_column; }
    int rowIndex() const override { return m_row; }
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface *table() const override
    {
        return const_cast<TraceTableAccessible *>(m_table);
    }

private:
    const TraceTableAccessible *const m_table; ///< lives longer
    const int m_row;
    const int m_column;
};

} // namespace

TraceTableAccessible::TraceTableAccessible(PlotParts *parts, const PlotParts::Part &part)
    : PlotPartAccessible(parts)
    , m_part(part)
{
}

TraceTableAccessible::~TraceTableAccessible()
{
    forgetCells();
}

void TraceTableAccessible::forgetCells() const
{
    for (const QAccessible::Id id : std::as_const(m_cells))
        QAccessible::deleteAccessibleInterface(id);
    m_cells.clear();
    m_order.clear();
}

bool TraceTableAccessible::holds(int row, int column) const
{
    return row >= 0 && row < rowCount() && column >= 0 && column < columnCount();
}

int TraceTableAccessible::rowCount() const
{
    return isValid() ? m_part.description->rows(m_part.trace) : 0;
}

int TraceTableAccessible::columnCount() const
{
    return isValid() ? static_cast<int>(m_part.description->columns(m_part.trace).size()) : 0;
}

int TraceTableAccessible::childCount() const
{
    return static_cast<int>(
        qMin(qint64(rowCount()) * columnCount(), qint64(std::numeric_limits<int>::max())));
}

QAccessibleInterface *TraceTableAccessible::child(int index) const
{
    const int columns = columnCount();
    return index < 0 || columns == 0 ? nullptr : cellAt(index / columns, index % columns);
}

int TraceTableAccessible::indexOfChild(const QAccessibleInterface *child) const
{
    if (!child)
        return -1;
    auto *const cell = const_cast<QAccessibleInterface *>(child)->tableCellInterface();
    return cell ? cell->rowIndex() * columnCount() + cell->columnIndex() : -1;
}

QString TraceTableAccessible::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Name && isValid() ? m_part.description->traceName(m_part.trace)
                                                  : QString();
}

void *TraceTableAccessible::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::TableInterface ? static_cast<QAccessibleTableInterface *>(this)
                                               : nullptr;
}

QAccessibleInterface *TraceTableAccessible::cellAt(int row, int column) const
{
    if (!holds(row, column))
        return nullptr;
    const qint64 place = qint64(row) * columnCount() + column;
    const auto known = m_cells.constFind(place);
    if (known != m_cells.constEnd())
        return QAccessible::accessibleInterface(*known);
    if (m_order.size() == keptCells) {
        QAccessible::deleteAccessibleInterface(m_cells.take(m_order.front()));
        m_order.pop_front();
    }
    auto *const cell = new CellAccessible(m_parts, this, row, column);
    m_cells.insert(place, QAccessible::registerAccessibleInterface(cell));
    m_order.push_back(place);
    return cell;
}

QString TraceTableAccessible::cellText(int row, int column) const
{
    return holds(row, column) ? m_part.description->cell(m_part.trace, row, column) : QString();
}

QString TraceTableAccessible::columnDescription(int column) const
{
    return isValid() ? m_part.description->columns(m_part.trace).value(column) : QString();
}

/// A row goes by its stimulus.
QString TraceTableAccessible::rowDescription(int row) const
{
    return cellText(row, 0);
}

void TraceTableAccessible::modelChange(QAccessibleTableModelChangeEvent *)
{
    forgetCells(); // another number of columns would give them other places
}
