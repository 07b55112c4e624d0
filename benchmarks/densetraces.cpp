// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "densetraces.h"

#include "charts.h"

#include <smithchart/smithchartplot.h>

namespace Bench
{

namespace
{

/// A chart with a number of traces on it, drawn one way or the other.
struct Drawing {
    QCustomPlot plot;
    SmithChartPlot chart{&plot, SmithChart::Standard};
    QVector<double> frequencies;
    QVector<QCPCurve *> plain;

    /// Lines of a width in pixels; 0: as thin as they can be.
    Drawing(const Trace &trace, int count, Drawn drawn, double width = 0.0)
        : frequencies(indices(static_cast<int>(trace.real.size())))
    {
        layOut(plot);
        chart.setTraceWidths(width, width);
        for (int id = 1; id <= count; ++id) {
            // The grid is shown where there is a trace, with data or without.
            chart.addCurve(id, QPen(Qt::GlobalColor(Qt::red + id - 1)));
            if (drawn == Drawn::AsPlainCurve) {
                plain.append(new QCPCurve(plot.xAxis, plot.yAxis));
                plain.last()->setPen(chart.getCurve(id)->pen());
                plain.last()->setAntialiased(true);
                plain.last()->setLayer(chart.getCurve(id)->layer());
            }
        }
    }

    void setData(int id, const Trace &trace)
    {
        if (plain.isEmpty())
            chart.setCurveData(id, frequencies, trace.real, trace.imag);
        else
            plain.at(id - 1)->setData(frequencies, trace.real, trace.imag, true);
    }

    /// Moves the view by a share of it.
    void pan(double share)
    {
        const QCPRange x = plot.xAxis->range();
        const QCPRange y = plot.yAxis->range();
        chart.setViewFromRequestedRanges(x + share * x.size(), y + share * y.size());
    }
};

} // namespace

void newDataToPicture(benchmark::State &state, const Trace &trace, Drawn drawn)
{
    Drawing drawing(trace, 1, drawn);
    for (auto _ : state) {
        drawing.setData(1, trace);
        drawing.plot.replot(QCustomPlot::rpImmediateRefresh);
    }
    state.counters["displayed"] = drawing.chart.getCurve(1)->dataCount();
}

void stepToPicture(benchmark::State &state, const Trace &trace, double magnification)
{
    Drawing drawing(trace, 1, Drawn::ByChart);
    drawing.setData(1, trace);
    drawing.plot.replot(QCustomPlot::rpImmediateRefresh);
    drawing.chart.zoomAt(QPointF(0.3, 0.2), magnification);
    int step = 0;
    for (auto _ : state) {
        const bool forth = step % 4 < 2;
        if (step % 4 == 0 || step % 4 == 3)
            drawing.chart.zoomAt(QPointF(0.3, 0.2), forth ? 1.25 : 0.8);
        else
            drawing.pan(forth ? 0.1 : -0.1);
        drawing.plot.replot(QCustomPlot::rpImmediateRefresh);
        ++step;
    }
}

void replotFour(benchmark::State &state, const Trace &trace, Drawn drawn, double width)
{
    Drawing drawing(trace, 4, drawn, width);
    for (int quarter = 0; quarter < 4; ++quarter)
        drawing.setData(quarter + 1, turned(trace, quarter));
    for (auto _ : state)
        drawing.plot.replot(QCustomPlot::rpImmediateRefresh);
}

} // namespace Bench
