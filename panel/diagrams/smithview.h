// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diagramview.h"

#include <smithchart/smithchartplot.h>

namespace Panel
{

/*! Traces on a Smith chart.

    The chart is a new object after every change of density, which is fixed when a chart is made. */
class SmithView : public DiagramView
{
    Q_OBJECT

public:
    explicit SmithView(const PanelModel *model, QWidget *parent = nullptr);

    SmithChartPlot *chart() const { return m_chart; }
    /// The id that the chart knows the stored data of a trace by.
    static constexpr int memoryId(int traceId) { return traceId + s_firstMemoryId; }

    double zoom() const override { return m_chart->viewState().zoom; }
    void setZoom(double zoom) override;
    void zoomAt(const QPointF &position, double factor) override;
    void moveTo(const QPointF &coordinates, const QPointF &position) override;
    void resetView() override;
    bool isMarkerPressed() const override { return m_chart->isDraggingMarker(); }
    bool pick(const QPoint &position, Qt::KeyboardModifiers modifiers) override;
    int drawnPoints() const override;

protected:
    void loadTraces() override;
    void updateTraces(int network) override;
    void recolor() override;
    void setTraceVisible(const Trace &trace) override;
    void showActiveTrace() override;
    void addMarker(const Trace &trace, const Marker &marker) override;
    void moveMarker(const Trace &trace, const Marker &marker) override;
    void removeMarker(int traceId, int number) override;
    void showSelectedMarker() override;
    void showMemory(const Trace &trace) override;
    QStringList titleParts() const override;

private:
    static constexpr int s_firstMemoryId = 1000;

    void makeChart();
    void followSettings();
    void showView();

    SmithChartPlot *m_chart = nullptr;
    SmithChart::Preset m_density;
};

} // namespace Panel
