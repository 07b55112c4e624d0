// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "planeview.h"

#include "cartesianmarkers.h"

#include <panel/ground/look.h>

#include <plot/markerselection.h>
#include <plot/qcp.h>

#include <algorithm>

namespace Panel
{

namespace
{

/// An arrow key takes a marker around the whole trace in so many steps, or point by point.
constexpr int s_stepsAround = 1000;
/// A dragged marker leaves its branch of the trace for one so many pixels nearer to the finger.
constexpr double s_jump = 30.0;

Zoom zoomOf(const SmithChart::ViewState &state)
{
    return bounded({state.zoom, state.centerX, state.centerY}, DiagramKind::Smith);
}

bool isSame(const SmithChart::ViewState &a, const SmithChart::ViewState &b)
{
    constexpr double rounding = 1e-9;
    return qAbs(a.zoom - b.zoom) <= rounding * b.zoom && qAbs(a.centerX - b.centerX) <= rounding
        && qAbs(a.centerY - b.centerY) <= rounding;
}

QVector<double> divided(const QVector<double> &values, double divisor)
{
    QVector<double> result(values.size());
    std::transform(values.begin(), values.end(), result.begin(),
                   [factor = 1.0 / divisor](double value) { return value * factor; });
    return result;
}

} // namespace

PlaneView::PlaneView(const PanelModel *model, const DiagramId &id, const QMargins &margins,
                     QWidget *parent)
    : DiagramView(model, id, parent)
{
    // The chart needs the axes as scales only.
    plot()->xAxis->setVisible(false);
    plot()->yAxis->setVisible(false);
    plot()->axisRect()->setAutoMargins(QCP::msNone);
    plot()->axisRect()->setMargins(margins);
    connect(m_model->viewSettings(), &ViewSettings::changed, this, [this] {
        m_chart->setOnlyHandleActiveTrace(m_model->viewSettings()->onlyActiveTrace());
    });
}

void PlaneView::makeChart(SmithChart::Preset preset)
{
    delete m_chart;
    m_fixed.clear();
    // A chart leaves its grid on the plot.
    plot()->clearItems();
    plot()->clearPlottables();
    m_chart = new SmithChartPlot(plot(), preset, this);
    followLayout(); // the chart makes the view round first
    m_chart->setMaximumZoom(Zoom::maximum);
    m_chart->setTraceWidths(Look::traceWidth, Look::activeTraceWidth);
    m_chart->setMarkerDragJumpPx(s_jump);
    // What a finger means is decided by whoever asks hit().
    m_chart->setPressDragsMarkers(false);
    m_chart->setOnlyHandleActiveTrace(m_model->viewSettings()->onlyActiveTrace());
    connect(m_chart, &SmithChartPlot::markerPositionChanged, this, &PlaneView::markerMoveRequested);
    connect(m_chart, &SmithChartPlot::markerDeleteRequested, this,
            &PlaneView::markerDeleteRequested);
}

void PlaneView::loadTraces()
{
    m_chart->clearAllCurves();
    m_fixed.clear();
    const Look look = currentLook();
    for (const Trace &trace : traces()) {
        m_chart->addCurve(trace.id, look.pen(trace.id, trace.network));
        showData(trace, trace.id, m_model->traceData(trace));
        m_chart->setCurveVisible(trace.id, trace.visible);
        showMemory(trace);
        placeMarkers(trace);
    }
    showActiveTrace();
    showSelectedMarker();
}

void PlaneView::showData(const Trace &trace, int curve, const TraceData &shown)
{
    // Whole vectors are shared with the chart: those of a scale that changes nothing stay whole.
    const double full = fullScale(trace);
    if (full == 1.0)
        m_chart->setCurveData(curve, shown.frequencies, shown.parameter.real, shown.parameter.imag);
    else
        m_chart->setCurveData(curve, shown.frequencies, divided(shown.parameter.real, full),
                              divided(shown.parameter.imag, full));
}

void PlaneView::showMemory(const Trace &trace)
{
    const int id = memoryId(trace.id);
    m_chart->removeCurve(id);
    if (const auto memory = m_model->drawnMemory(trace)) {
        m_chart->addCurve(id, currentLook().memoryPen(trace.id, trace.network));
        showData(trace, id, *memory);
        m_chart->setCurveVisible(id, trace.visible);
    }
    replotLater();
}

void PlaneView::updateTraces(int network)
{
    for (const Trace &trace : traces()) {
        if (trace.network != network)
            continue;
        showData(trace, trace.id, m_model->traceData(trace));
        placeMarkers(trace);
    }
}

void PlaneView::beginDrag(int traceId, int number)
{
    m_chart->beginMarkerDrag(traceId, number);
}

const Plot::Marker *PlaneView::drawnMarker(int traceId, int number) const
{
    const auto fixed = m_fixed.find({traceId, number});
    return fixed == m_fixed.end() ? m_chart->getMarker(traceId, number) : &fixed->second;
}

/// The chart keeps its markers on their traces: one that is fixed is drawn beside it.
void PlaneView::placeFixed(const Trace &trace, const Marker &placed)
{
    m_chart->removeMarkerVisual(trace.id, placed.number);
    const auto found =
        m_fixed.try_emplace({trace.id, placed.number}, plot(), placed.number, Plot::PointingDown);
    Plot::Marker &marker = found.first->second;
    showSign(marker, placed);
    const std::complex<double> place = placed.fixed.s / fullScale(trace);
    QCPCurve *curve = m_chart->getCurve(trace.id);
    const bool shown =
        curve && trace.visible && marker.setPositionCoordinates(curve, place.real(), place.imag());
    marker.setVisible(shown);
    if (found.second)
        showSelectedMarker();
    replotLater();
}

void PlaneView::placeMarker(const Trace &trace, const Marker &placed)
{
    if (placed.isFixed()) {
        placeFixed(trace, placed);
        return;
    }
    m_fixed.erase({trace.id, placed.number});
    const double index = m_model->indexOf(placed);
    const bool shown = trace.visible && index >= 0.0;
    if (!m_chart->getMarker(trace.id, placed.number)) {
        if (index < 0.0)
            return;
        m_chart->addMarkerVisual(trace.id, placed.number, index, Plot::PointingDown);
        showSelectedMarker();
    } else if (index >= 0.0) {
        m_chart->setMarkerIndex(trace.id, placed.number, index);
    }
    const Plot::Marker *marker = m_chart->getMarker(trace.id, placed.number);
    if (marker && marker->isVisible() != shown) {
        m_chart->setMarkerVisible(trace.id, placed.number, shown);
        if (shown)
            showSelectedMarker();
    }
}

int PlaneView::pointsPerStep(int traceId) const
{
    return qMax(1, m_model->network(*m_model->trace(traceId)).points() / s_stepsAround);
}

int PlaneView::drawnPoints() const
{
    int count = 0;
    for (const int id : m_chart->traceIds()) {
        const QCPCurve *curve = m_chart->getCurve(id);
        if (curve && curve->visible())
            count += curve->dataCount();
    }
    return count;
}

void PlaneView::setTraceVisible(const Trace &trace)
{
    m_chart->setCurveVisible(trace.id, trace.visible);
    m_chart->setCurveVisible(memoryId(trace.id), trace.visible);
    placeMarkers(trace);
}

void PlaneView::removeMarker(int traceId, int number)
{
    m_fixed.erase({traceId, number});
    m_chart->removeMarkerVisual(traceId, number);
    replotLater();
}

void PlaneView::showSelectedMarker()
{
    const Marker *selected = m_model->selectedMarker();
    if (!selected || !m_chart->selectMarker(selected->trace, selected->number))
        m_chart->clearMarkerSelection();
    for (auto &[key, marker] : m_fixed) {
        const bool isSelected =
            selected && selected->trace == key.first && selected->number == key.second;
        Plot::drawMarker(marker, QPen(currentLook().trace(key.first)), isSelected);
    }
    replotLater();
}

void PlaneView::showActiveTrace()
{
    if (const Trace *trace = activeTrace())
        m_chart->setActiveTrace(trace->id);
    else
        m_chart->clearActiveTrace();
}

void PlaneView::recolor()
{
    const Look look = currentLook();
    plot()->setBackground(look.background);
    for (const Trace &trace : traces()) {
        m_chart->setCurvePen(trace.id, look.pen(trace.id, trace.network));
        m_chart->setCurvePen(memoryId(trace.id), look.memoryPen(trace.id, trace.network));
    }
    showSelectedMarker();
}

SmithChart::HalfRanges PlaneView::halfRanges() const
{
    const QCPAxisRect *rect = plot()->axisRect();
    return SmithChart::baseHalfRanges(rect->width(), rect->height());
}

/// The model's zoom in the present shape of the plot.
SmithChart::ViewState PlaneView::wantedView() const
{
    const Zoom zoom = m_model->zoom(id());
    return SmithChart::clampViewState({zoom.x, zoom.y, zoom.factor}, halfRanges(), Zoom::maximum);
}

void PlaneView::showZoom()
{
    const SmithChart::ViewState wanted = wantedView();
    if (!m_laidOut || isSame(m_chart->viewState(), wanted))
        return;
    if (m_model->zoom(id()).isWhole()) {
        m_chart->resetView();
    } else {
        const SmithChart::ViewRanges ranges = SmithChart::viewRanges(wanted, halfRanges());
        m_chart->setViewFromRequestedRanges({ranges.xLower, ranges.xUpper},
                                            {ranges.yLower, ranges.yUpper});
    }
    replotLater();
}

void PlaneView::onLayout()
{
    m_laidOut = true;
    showZoom();
}

Zoom PlaneView::zoomedAt(const QPointF &position, double factor) const
{
    const QPointF anchor = coordinates(position);
    return zoomOf(SmithChart::zoomedViewState(wantedView(), anchor.x(), anchor.y(), factor,
                                              halfRanges(), Zoom::maximum));
}

Zoom PlaneView::movedTo(const QPointF &coordinates, const QPointF &position) const
{
    const QPointF shift = coordinates - this->coordinates(position);
    SmithChart::ViewState view = wantedView();
    view.centerX += shift.x();
    view.centerY += shift.y();
    return zoomOf(SmithChart::clampViewState(view, halfRanges(), Zoom::maximum));
}

Hit PlaneView::hitLine(const QPointF &position) const
{
    Hit nearest;
    double nearestDistance = reach;
    for (const Trace &trace : traces()) {
        int index = -1;
        double distance = 0.0;
        if (!reaches(trace) || !m_chart->nearestPoint(trace.id, position.toPoint(), index, distance)
            || distance >= nearestDistance)
            continue;
        nearestDistance = distance;
        nearest = {Hit::Line, trace.id, 0, double(index)};
    }
    return nearest;
}

} // namespace Panel
