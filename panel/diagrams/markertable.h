// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <panel/model/panelmodel.h>

#include <QTimer>
#include <QWidget>

class QLabel;
class QSortFilterProxyModel;
class QTableView;

namespace Panel
{

class MarkerRows;

/*! The markers of all traces in one table, each in its trace's colour, sorted by the column whose head
    was tapped; those of reflections tell the standing wave ratio, too. Below it stands the bandwidth
    around the selected one. A tap on a row asks for its marker to
    be selected.

    It takes a share of its host's height, so that no marker that comes or goes moves a diagram. */
class MarkerTable : public QWidget
{
    Q_OBJECT

public:
    explicit MarkerTable(const PanelModel *model, QWidget *parent = nullptr);

    /// Takes its share of this height, in pixels.
    void setRoom(int height);
    /// The texts of a row as it is on show, from left to right.
    QStringList rowTexts(int row) const;
    /// Null until the table is on show for the first time.
    QTableView *table() const { return m_table; }

Q_SIGNALS:
    void selectionRequested(int traceId, int number);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void makeTable();
    void refresh();
    void fitColumns();
    void onRowPicked(const QModelIndex &index);

    const PanelModel *m_model;
    MarkerRows *m_rows;
    QSortFilterProxyModel *m_sorted;
    QTableView *m_table = nullptr;
    QLabel *m_hint = nullptr; ///< in place of the rows while there are none
    QLabel *m_bandwidth = nullptr;
    QVector<int> m_widths; ///< that the columns have needed, in pixels
    QTimer m_refresh; ///< runs while changes are gathered
};

} // namespace Panel
