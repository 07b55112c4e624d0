// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <panel/model/panelmodel.h>

#include <QScrollArea>

class MarkerStatusItem;
class QLabel;

namespace Panel
{

/*! The read-outs of the markers of a diagram: trace by trace in their colours, the selected one with
    a dot, the others as their difference from their trace's reference marker where it has one.

    Rows keep their order. The height follows from the room alone, never from how many markers there
    are, so that the diagram below does not move; what does not fit scrolls under a finger. A tap on
    a row asks for its marker to be selected. */
class ReadOuts : public QScrollArea
{
    Q_OBJECT

public:
    explicit ReadOuts(const PanelModel *model, QWidget *parent = nullptr);

    /// The traces whose markers are read.
    void setTraces(const QVector<int> &ids);
    /// Takes a share of this height, in pixels: one to four rows.
    void setRoom(int height);
    /// The markers on show, from the first row on.
    const QVector<Marker> &markers() const { return m_markers; }
    MarkerStatusItem *item(int row) const { return m_items.value(row); }

Q_SIGNALS:
    void selectionRequested(int traceId, int number);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void refresh();
    void refreshTrace(int traceId);
    void showReading(MarkerStatusItem *item, const Marker &marker);
    void widenColumns(const QStringList &texts);
    void forgetWidths();
    void arrange();
    MarkerStatusItem *makeItem();
    int rowHeight() const;

    const PanelModel *m_model;
    QLabel *m_hint; ///< in place of the rows while there are none
    QVector<int> m_traces;
    QVector<Marker> m_markers;
    QVector<MarkerStatusItem *> m_items; ///< made when first needed, hidden when not
    QVector<int> m_widths; ///< of the columns, in pixels: frequency and three values
    int m_rows = 1;
};

} // namespace Panel
