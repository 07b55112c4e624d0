// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diagramview.h"
#include "verdict.h"

#include <smithchart/smithchartplot.h>
#include <smithchart/smithcircle.h>
#include <smithchart/smithlimit.h>

#include <QPointer>

#include <map>

namespace Panel
{

/*! Traces on a Smith chart, with a circle of constant standing wave ratio to read against, and one
    that traces must stay in.

    The chart is a new object after every change of density, which is fixed when a chart is made. */
class SmithView : public DiagramView
{
    Q_OBJECT

public:
    SmithView(const PanelModel *model, const DiagramId &id, QWidget *parent = nullptr);

    SmithChartPlot *chart() const { return m_chart; }
    /// What the limit says of the traces on show; hidden without a limit.
    Verdict *verdict() const { return m_verdict; }
    /// The id that the chart knows the stored data of a trace by.
    static constexpr int memoryId(int traceId) { return traceId + s_firstMemoryId; }

    /// The chart itself follows the pointer from here on.
    void beginDrag(int traceId, int number) override;
    const Plot::Marker *drawnMarker(int traceId, int number) const override;
    int pointsPerStep(int traceId) const override;
    Zoom zoomedAt(const QPointF &position, double factor) const override;
    Zoom movedTo(const QPointF &coordinates, const QPointF &position) const override;
    int drawnPoints() const override;

protected:
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
    QStringList titleParts() const override;
    void onLayout() override;
    Hit hitLine(const QPointF &position) const override;

private:
    static constexpr int s_firstMemoryId = 1000;

    void makeChart();
    void followSettings();
    bool hasOneReference() const;
    void showGrid();
    void showLimit();
    void showData(int curve, const TraceData &shown);
    void testTraces();
    SmithChart::HalfRanges halfRanges() const;
    SmithChart::ViewState wantedView() const;

    SmithChartPlot *m_chart = nullptr;
    GridDensity m_density;
    QPointer<SmithCircle> m_circle;
    std::map<int, QPointer<SmithLimit>> m_limits; ///< by trace
    Verdict *m_verdict;
    bool m_laidOut = false;
};

} // namespace Panel
