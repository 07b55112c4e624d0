// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cartesian.h"
#include "panelmodel.h"

#include <QWidget>

namespace Panel
{

/*! The read-outs of the markers of a diagram's active trace, a row each, the selected one with a
   dot; of no height while the trace has none. A tap on a row asks for its marker to be selected. */
class MarkerTable : public QWidget
{
    Q_OBJECT

public:
    MarkerTable(const PanelModel *model, Trace::Kind kind, QWidget *parent = nullptr);

    /// What is read of a transmission trace.
    void setFormat(CartesianFormat format);

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

    /// The texts of a marker's cells.
    QStringList reading(const Trace &trace, const Marker &marker) const;
    QVector<Marker> markers() const;

    const PanelModel *m_model;
    Trace::Kind m_kind;
    CartesianFormat m_format = CartesianFormat::LogMagnitude;
};

} // namespace Panel
