// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <panel/model/panelmodel.h>

#include <QWidget>

class MarkerStatusItem;

namespace Panel
{

/*! The read-outs of the markers of one trace: the selected one first and with a dot, the others as
    their difference from the trace's reference marker where it has one; of no height without
    markers.

    Items stand side by side where there is room, and as many are shown as the height allows. A tap
    on one asks for its marker to be selected. */
class ReadOuts : public QWidget
{
    Q_OBJECT

public:
    explicit ReadOuts(const PanelModel *model, QWidget *parent = nullptr);

    /// The trace whose markers are read; 0 for none.
    void setTrace(int traceId);
    /// The height that the items can have at most, in pixels; one is shown in any case.
    void setRoom(int height);
    /// The markers on show, from the first item on.
    QVector<int> numbers() const { return m_numbers; }
    MarkerStatusItem *item(int row) const { return m_items.value(row); }

Q_SIGNALS:
    void selectionRequested(int traceId, int number);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void refresh();
    void arrange();
    void showReading(MarkerStatusItem *item, const Marker &marker) const;
    MarkerStatusItem *makeItem();

    const PanelModel *m_model;
    int m_trace = 0;
    int m_room = 0;
    QVector<int> m_numbers;
    QVector<MarkerStatusItem *> m_items; ///< made when first needed, hidden when not
};

} // namespace Panel
