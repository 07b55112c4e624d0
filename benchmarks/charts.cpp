// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "charts.h"

#include <smithchart/limitarea.h>
#include <smithchart/smithchartplot.h>

#include <cmath>
#include <numeric>

namespace Bench
{

namespace
{

constexpr int sizePx = 800;

} // namespace

void layOut(QCustomPlot &plot)
{
    plot.axisRect()->setAutoMargins(QCP::msNone);
    plot.axisRect()->setMargins(QMargins());
    plot.setGeometry(0, 0, sizePx, sizePx);
    plot.replot();
}

QVector<double> indices(int count)
{
    QVector<double> values(count);
    std::iota(values.begin(), values.end(), 0.0);
    return values;
}

Trace turned(const Trace &trace, int quarters)
{
    Trace result = trace;
    for (; quarters > 0; --quarters) {
        for (int i = 0; i < result.real.size(); ++i) {
            const double x = result.real.at(i);
            result.real[i] = -result.imag.at(i);
            result.imag[i] = x;
        }
    }
    return result;
}

void zoomAndReplot(benchmark::State &state, const Trace &trace, GridKind grid)
{
    const QVector<double> frequencies = indices(static_cast<int>(trace.real.size()));
    QCustomPlot plot;
    SmithChartPlot chart(&plot, SmithChart::Standard);
    chart.setGridFollowsView(grid == GridKind::FollowsView);
    layOut(plot);
    for (int id = 1; id <= 4; ++id) {
        // Four traces, not one shared: each turned by a quarter.
        const Trace own = turned(trace, id - 1);
        chart.addCurve(id, QPen(Qt::GlobalColor(Qt::red + id)));
        chart.setCurveData(id, frequencies, own.real, own.imag);
    }
    plot.replot();

    bool in = true;
    for (auto _ : state) {
        chart.zoomAt(QPointF(0.3, 0.2), in ? 1.25 : 0.8);
        plot.replot(QCustomPlot::rpImmediateRefresh);
        in = !in;
    }
    state.counters["displayed"] = chart.getCurve(1)->dataCount();
}

void testLimit(benchmark::State &state, const Trace &trace)
{
    constexpr int corners = 60;
    QPolygonF star;
    for (int i = 0; i < corners; ++i) {
        const double angle = 2.0 * 3.141592653589793 * i / corners;
        star << QPointF(std::cos(angle), std::sin(angle)) * (i % 2 == 0 ? 0.9 : 0.5);
    }
    SmithChart::LimitArea area;
    area.setPolygon(star, SmithChart::LimitArea::StayInside);
    int failing = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(
            failing = static_cast<int>(area.test(trace.real, trace.imag).failing.size()));
    state.counters["failing"] = failing;
}

void onePass(benchmark::State &state, const Trace &trace)
{
    for (auto _ : state) {
        double sum = 0.0;
        for (int i = 0; i < trace.real.size(); ++i)
            sum += trace.real.at(i) * trace.imag.at(i);
        benchmark::DoNotOptimize(sum);
    }
}

void setDataAndReplot(benchmark::State &state, const Trace &trace)
{
    const QVector<double> frequencies = indices(static_cast<int>(trace.real.size()));
    QCustomPlot plot;
    SmithChartPlot chart(&plot, SmithChart::Standard);
    layOut(plot);
    chart.addCurve(1, QPen(Qt::red));
    for (auto _ : state) {
        chart.setCurveData(1, frequencies, trace.real, trace.imag);
        plot.replot(QCustomPlot::rpImmediateRefresh);
    }
    state.counters["displayed"] = chart.getCurve(1)->dataCount();
}

void setDataAndReplotPlainCurve(benchmark::State &state, const Trace &trace)
{
    const QVector<double> frequencies = indices(static_cast<int>(trace.real.size()));
    const SmithRender::Viewport view = fullView();
    QCustomPlot plot;
    layOut(plot);
    plot.xAxis->setRange(view.xMin, view.xMax);
    plot.yAxis->setRange(view.yMin, view.yMax);
    auto *curve = new QCPCurve(plot.xAxis, plot.yAxis);
    curve->setPen(QPen(QBrush(Qt::red), 1.0));
    for (auto _ : state) {
        curve->setData(frequencies, trace.real, trace.imag, true);
        plot.replot(QCustomPlot::rpImmediateRefresh);
    }
}

} // namespace Bench
