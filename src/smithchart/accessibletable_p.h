// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "accessibleplot_p.h"

#include <deque>

/// A trace as a table: a row for each point. A cell is made when it is asked for; of those, only the
/// last ones are kept.
class TraceTableAccessible : public PlotPartAccessible, public QAccessibleTableInterface
{
public:
    TraceTableAccessible(PlotParts *parts, const PlotParts::Part &part);
    ~TraceTableAccessible() override;

    bool isValid() const override { return m_parts->holds(m_part); }
    QAccessibleInterface *child(int index) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QAccessible::Role role() const override { return QAccessible::Table; }
    QString text(QAccessible::Text kind) const override;
    void *interface_cast(QAccessible::InterfaceType type) override;

    QAccessibleInterface *caption() const override { return nullptr; }
    QAccessibleInterface *summary() const override { return nullptr; }
    QAccessibleInterface *cellAt(int row, int column) const override;
    int selectedCellCount() const override { return 0; }
    QList<QAccessibleInterface *> selectedCells() const override { return {}; }
    QString columnDescription(int column) const override;
    QString rowDescription(int row) const override;
    int selectedColumnCount() const override { return 0; }
    int selectedRowCount() const override { return 0; }
    int columnCount() const override;
    int rowCount() const override;
    QList<int> selectedColumns() const override { return {}; }
    QList<int> selectedRows() const override { return {}; }
    bool isColumnSelected(int) const override { return false; }
    bool isRowSelected(int) const override { return false; }
    bool selectRow(int) override { return false; }
    bool selectColumn(int) override { return false; }
    bool unselectRow(int) override { return false; }
    bool unselectColumn(int) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent *event) override;

    /// The text of a cell; empty for one that is not there.
    QString cellText(int row, int column) const;
    bool holds(int row, int column) const;

private:
    void forgetCells() const;

    const PlotParts::Part m_part;
    mutable QHash<qint64, QAccessible::Id> m_cells; ///< by their place
    mutable std::deque<qint64> m_order; ///< in which they were made
};
