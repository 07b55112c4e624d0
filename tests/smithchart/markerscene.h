// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <smithchart/smithchartplot.h>

#include <pointer.h>
#include <vnatest.h>

#include <cmath>
#include <memory>

namespace VnaTest
{

/// A line with its stimulus.
struct Line {
    QVector<double> stimulus, real, imag;
};

/// A shown chart with two traces, and what it told in order.
struct MarkerScene {
    MarkerScene()
    {
        plot->axisRect()->setAutoMargins(QCP::msNone);
        plot->axisRect()->setMargins(QMargins(20, 20, 20, 20));
        plot->resize(640, 640);
        showExposed(plot.get());
        chart = std::make_unique<SmithChartPlot>(plot.get(), SmithChart::Basic);
        for (int i = 0; i <= 10; ++i) {
            const double angle = M_PI / 20.0 * i;
            first.stimulus << 1e9 + i * 1e6;
            first.real << 0.6 * std::cos(angle);
            first.imag << 0.6 * std::sin(angle);
            second.real << -first.real.last();
            second.imag << -first.imag.last();
        }
        second.stimulus = first.stimulus;
        chart->addCurve(1, QPen(Qt::red));
        chart->addCurve(2, QPen(Qt::blue));
        set(1, first);
        set(2, second);
        chart->setActiveTrace(1);
        QCoreApplication::processEvents();

        using Chart = SmithChartPlot;
        note(log, "request", chart.get(), &Chart::markerSelectionRequested);
        note(log, "start", chart.get(), &Chart::markerDragStarted);
        note(log, "move", chart.get(), &Chart::markerPositionChanged);
        note(log, "finish", chart.get(), &Chart::markerDragFinished);
        note(log, "selected", chart.get(), &Chart::markerSelected);
        note(log, "cleared", chart.get(), &Chart::markerSelectionCleared);
        note(log, "delete", chart.get(), &Chart::markerDeleteRequested);
    }

    void set(int trace, const Line &line) const
    {
        chart->setCurveData(trace, line.stimulus, line.real, line.imag);
    }
    bool add(int trace, int number, double index) const
    {
        return chart->addMarkerVisual(trace, number, index, Plot::PointingDown);
    }
    /// What was told since the last time, in one line.
    QString told()
    {
        const QString text = log.join(QLatin1Char('|'));
        log.clear();
        return text;
    }

    QPoint dataPixel(double x, double y) const
    {
        return QPointF(plot->xAxis->coordToPixel(x), plot->yAxis->coordToPixel(y)).toPoint();
    }
    static QPointF point(const Line &line, int i) { return {line.real[i], line.imag[i]}; }
    /// Where a point of a line lies.
    QPoint pixel(const Line &line, int i) const { return dataPixel(line.real[i], line.imag[i]); }
    QCPItemTracer *tracer(int trace, int number) const
    {
        return chart->getMarker(trace, number)->getTracer();
    }
    QPointF positionOf(int trace, int number) const
    {
        return tracer(trace, number)->position->coords();
    }
    QPoint pixelOf(int trace, int number) const
    {
        return tracer(trace, number)->position->pixelPosition().toPoint();
    }
    void press(const QPoint &pos) const { mousePress(plot.get(), pos); }
    void move(const QPoint &pos) const { mouseMove(plot.get(), pos); }
    void release(const QPoint &pos) const { mouseRelease(plot.get(), pos); }

    std::unique_ptr<QCustomPlot> plot = std::make_unique<QCustomPlot>();
    std::unique_ptr<SmithChartPlot> chart;
    Line first; ///< a quarter circle of 11 points
    Line second; ///< the same turned by half a turn
    QStringList log;
};

} // namespace VnaTest
