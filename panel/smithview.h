// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <smithchart/smithchartplot.h>

#include <QWidget>

class QCustomPlot;
class QLabel;

namespace Panel
{

class MarkerTable;
class PanelModel;

/*! A diagram with the reflection traces of the model on a Smith chart, below a line that names them
    and the read-outs of the active trace's markers.

    It follows the model and the theme by itself. Pointer and keys are not its business:
    ChartGestures answers them. The chart is a new object after every change of density, which is
    fixed when a chart is made. */
class SmithView : public QWidget
{
    Q_OBJECT

public:
    explicit SmithView(const PanelModel *model, QWidget *parent = nullptr);

    QCustomPlot *plot() const { return m_plot; }
    SmithChartPlot *chart() const { return m_chart; }
    MarkerTable *markerTable() const { return m_markerTable; }

    SmithChartPlot::GridMode gridMode() const { return m_chart->gridMode(); }
    void setGridMode(SmithChartPlot::GridMode mode);
    SmithChart::Preset density() const { return m_density; }
    /// Makes a new chart with the same traces, grid mode and view.
    void setDensity(SmithChart::Preset density);

    /// Magnifies the part of the chart around a point (plot widget pixels), which stays where it
    /// is.
    void zoomAt(const QPointF &position, double factor);
    /// Magnifies about the centre of the view to a factor between 1 and 20.
    void setZoom(double zoom);
    double zoom() const { return m_chart->viewState().zoom; }
    /// The chart coordinates at a point of the plot widget, in pixels.
    QPointF chartPoint(const QPointF &position) const;
    /// Shifts a magnified view so that these chart coordinates lie at a point of the plot widget,
    /// or as near to it as the edge of the chart allows.
    void moveTo(const QPointF &chartPoint, const QPointF &position);
    void resetView();

    /// How many points of the traces on show are drawn.
    int drawnPoints() const;
    /// What the last new measurement cost the chart, in milliseconds.
    double dataMilliseconds() const { return m_dataMilliseconds; }

Q_SIGNALS:
    void chartReplaced();
    /// Zoom or centre of the view changed.
    void viewChanged();

private:
    void makeChart();
    void loadTraces();
    void updateTraces(int network);
    void moveMarker(int traceId, int number);
    void showActiveTrace();
    void setTraceVisible(int id, bool visible);
    void addMarker(int traceId, int number);
    void showSelectedMarker();
    void recolor();
    void updateTitle();
    void showView();

    const PanelModel *m_model;
    QLabel *m_title;
    MarkerTable *m_markerTable;
    QCustomPlot *m_plot;
    SmithChartPlot *m_chart = nullptr;
    SmithChart::Preset m_density = SmithChart::Standard;
    double m_dataMilliseconds = 0.0;
};

} // namespace Panel
