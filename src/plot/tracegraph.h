// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <vnawidgets_export.h>

#include <plot/qcp.h>

namespace Plot
{

/*! A QCPGraph whose line may be wide without costing time.

    Painters take some 20 times as long for an antialiased line of 2 pixels as for one of 1. This graph
    draws solid lines of up to 8 device pixels on raster images itself, in the time of thin ones; all
    else is QCPGraph's. A cosmetic pen counts device pixels, any other one those of the widget.

    \code
    auto *graph = new Plot::TraceGraph(plot->xAxis, plot->yAxis); // the plot owns it
    QPen pen(Qt::yellow, 2.0);
    graph->setPen(pen);
    \endcode */
class VNAWIDGETS_EXPORT TraceGraph : public QCPGraph
{
    Q_OBJECT

public:
    /// Adds itself to the plot of the axes, which must not be null, as a QCPGraph does.
    TraceGraph(QCPAxis *keyAxis, QCPAxis *valueAxis);
    ~TraceGraph() override;

protected:
    /// Draws the line through \a lines, points in pixels of the plot that NaN parts.
    void drawLinePlot(QCPPainter *painter, const QVector<QPointF> &lines) const override;
};

} // namespace Plot
