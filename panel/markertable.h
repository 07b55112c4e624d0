// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace Panel
{

class PanelModel;

/*! The read-outs of the active trace's markers, a row each, the selected one with a dot; of no
   height while the trace has none. A tap on a row asks for its marker to be selected. */
class MarkerTable : public QWidget
{
    Q_OBJECT

public:
    explicit MarkerTable(const PanelModel *model, QWidget *parent = nullptr);

Q_SIGNALS:
    void selectionRequested(int traceId, int number);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    void refresh();
    int rowHeight() const;
    int rowWidth() const;
    /// Rows stand side by side where there is room.
    int columns() const;
    QRect rowRect(int row) const;

    const PanelModel *m_model;
};

} // namespace Panel
