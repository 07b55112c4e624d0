// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diagramview.h"

#include <plot/marker.h>
#include <smithchart/smithchartplot.h>

#include <map>
#include <utility>

namespace Panel
{

/*! Traces in the plane of their parameter: what a Smith chart and a polar diagram have in common.

    The library's chart draws them, whose unit circle is the diagram's outermost one. */
class PlaneView : public DiagramView
{
    Q_OBJECT

public:
    SmithChartPlot *chart() const { return m_chart; }
    /// The id that the chart knows the stored data of a trace by.
    static constexpr int memoryId(int traceId) { return traceId + s_firstMemoryId; }
    /// The magnitude that the outermost circle is for a trace.
    virtual double fullScale(const Trace & /*trace*/) const { return 1.0; }

    /// The chart itself follows the pointer from here on.
    void beginDrag(int traceId, int number) override;
    const Plot::Marker *drawnMarker(int traceId, int number) const override;
    int pointsPerStep(int traceId) const override;
    Zoom zoomedAt(const QPointF &position, double factor) const override;
    Zoom movedTo(const QPointF &coordinates, const QPointF &position) const override;
    int drawnPoints() const override;

protected:
    /// The margins are those of the plane within the plot, in pixels. The chart is still to be made.
    PlaneView(const PanelModel *model, const DiagramId &id, const QMargins &margins,
              QWidget *parent);

    /// Makes a new chart, without traces.
    void makeChart(SmithChart::Preset preset);

    void loadTraces() override;
    void updateTraces(int network) override;
    void recolor() override;
    void showZoom() override;
    void setTraceVisible(const Trace &trace) override;
    void showActiveTrace() override;
    void placeMarker(const Trace &trace, const Marker &marker) override;
    void removeMarker(int traceId, int number) override;
    void showSelectedMarker() override;
    void showMemory(const Trace &trace) override;
    void onLayout() override;
    Hit hitLine(const QPointF &position) const override;

private:
    static constexpr int s_firstMemoryId = 1000;

    void showData(const Trace &trace, int curve, const TraceData &shown);
    void placeFixed(const Trace &trace, const Marker &marker);
    SmithChart::HalfRanges halfRanges() const;
    SmithChart::ViewState wantedView() const;

    SmithChartPlot *m_chart = nullptr;
    std::map<std::pair<int, int>, Plot::Marker> m_fixed; ///< by trace and number
    bool m_laidOut = false;
};

} // namespace Panel
