// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <smithchart/smithchartplot.h>

#include <vnatest.h>

#include <memory>

namespace VnaTest
{

/// A chart on a plot that is all axis rectangle, without being shown.
struct ChartScene {
    explicit ChartScene(const QSize &size = QSize(400, 200))
    {
        plot->plotLayout()->setMargins({});
        plot->axisRect()->setAutoMargins(QCP::msNone);
        plot->axisRect()->setMargins({});
        layOut(size);
        chart = new SmithChartPlot(plot.get(), SmithChart::Basic);
    }
    ~ChartScene() { delete chart; }

    /// Lays the plot out at a size, as a resize of a shown plot does.
    void layOut(const QSize &size) const
    {
        plot->setViewport(QRect({}, size));
        plot->replot();
    }
    /// Trace 1 from the middle outwards, with marker 1 half way.
    void addTraceAndMarker() const
    {
        chart->addCurve(1, QPen());
        chart->setCurveData(1, {}, {0.1, 0.2}, {0.1, 0.2});
        chart->addMarkerVisual(1, 1, 0.5, Plot::PointingDown);
    }
    QImage picture(int width, int height) const { return plot->toPixmap(width, height).toImage(); }
    int visibleItems() const
    {
        int visible = 0;
        for (int i = 0; i < plot->itemCount(); ++i)
            visible += plot->item(i)->visible() ? 1 : 0;
        return visible;
    }
    /// Nothing but what a test shows itself.
    void hideAll() const
    {
        for (int i = 0; i < plot->itemCount(); ++i)
            plot->item(i)->setVisible(false);
        for (int i = 0; i < plot->plottableCount(); ++i)
            plot->plottable(i)->setVisible(false);
        for (QCPAxis *axis : plot->axisRect()->axes())
            axis->setVisible(false);
    }

    std::unique_ptr<QCustomPlot> plot = std::make_unique<QCustomPlot>();
    QPointer<SmithChartPlot> chart;
};

/// How much darker than white an image is, over all pixels.
inline int inkOf(const QImage &image)
{
    int ink = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            ink += 255 - qGray(image.pixel(x, y));
    }
    return ink;
}

} // namespace VnaTest
