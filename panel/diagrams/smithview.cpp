// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "smithview.h"

#include <panel/ground/look.h>
#include <panel/ground/numbertext.h>

#include <plot/qcp.h>

#include <algorithm>
#include <functional>

namespace Panel
{

namespace
{

/// An arrow key takes a marker around the whole trace in so many steps, or point by point.
constexpr int s_stepsAround = 1000;
/// A dragged marker leaves its branch of the trace for one so many pixels nearer to the finger.
constexpr double s_jump = 30.0;

/// The magnitude of reflection of a standing wave ratio S: (S - 1) / (S + 1).
double reflectionOf(double ratio)
{
    return (ratio - 1.0) / (ratio + 1.0);
}

SmithChart::Preset presetOf(GridDensity density)
{
    return density == GridDensity::Basic   ? SmithChart::Basic
        : density == GridDensity::Detailed ? SmithChart::Detailed
                                           : SmithChart::Standard;
}

Zoom zoomOf(const SmithChart::ViewState &state)
{
    return bounded({state.zoom, state.centerX, state.centerY}, true);
}

bool isSame(const SmithChart::ViewState &a, const SmithChart::ViewState &b)
{
    constexpr double rounding = 1e-9;
    return qAbs(a.zoom - b.zoom) <= rounding * b.zoom && qAbs(a.centerX - b.centerX) <= rounding
        && qAbs(a.centerY - b.centerY) <= rounding;
}

} // namespace

SmithView::SmithView(const PanelModel *model, const DiagramId &id, QWidget *parent)
    : DiagramView(model, id, parent)
    , m_density(model->viewSettings()->density())
    , m_verdict(new Verdict(plot()))
{
    // The chart needs the axes as scales only.
    plot()->xAxis->setVisible(false);
    plot()->yAxis->setVisible(false);
    plot()->axisRect()->setAutoMargins(QCP::msNone);
    plot()->axisRect()->setMargins(QMargins(8, 4, 8, 8));
    plot()->setAccessibleName(tr("Smith chart"));
    makeChart();
    recolor();
    connect(m_model->viewSettings(), &ViewSettings::changed, this, &SmithView::followSettings);
}

void SmithView::followSettings()
{
    const ViewSettings *settings = m_model->viewSettings();
    if (settings->density() != m_density) {
        m_density = settings->density();
        makeChart();
    }
    m_chart->setGridMode(settings->gridMode());
    m_chart->setOnlyHandleActiveTrace(settings->onlyActiveTrace());
    showGrid();
    showLimit();
}

/// Whether all traces on show refer to the same impedance.
bool SmithView::hasOneReference() const
{
    QVector<std::complex<double>> references;
    for (const Trace &trace : traces()) {
        if (trace.visible)
            references << m_model->traceData(trace).reference;
    }
    return std::adjacent_find(references.begin(), references.end(), std::not_equal_to<>())
        == references.end();
}

/// Labels of the grid and the circle to read against.
void SmithView::showGrid()
{
    const ViewSettings *settings = m_model->viewSettings();
    const Trace *active = activeTrace();
    // Lines of a complex reference are not where those of its real part are, and those of several
    // references are nowhere.
    const std::complex<double> reference = active && hasOneReference()
        ? m_model->traceData(*active).reference
        : std::complex<double>();
    if (settings->gridLabels() == GridLabels::Ohms && reference.real() > 0.0
        && reference.imag() == 0.0)
        m_chart->setGridReference(reference.real());
    else
        m_chart->setGridReference(std::nullopt);
    const double ratio = settings->vswrCircle();
    if (ratio == 0.0) {
        if (m_circle)
            plot()->removeItem(m_circle);
    } else {
        if (!m_circle)
            m_circle = new SmithCircle(plot()->xAxis, plot()->yAxis);
        m_circle->setVswr(ratio);
        m_circle->setLabel(tr("VSWR %1").arg(ratio));
        m_circle->setPen(QPen(currentLook().warning, 1.0, Qt::DashLine));
    }
    replotLater();
}

/// Gives each trace the area that it must stay in; one of them draws it.
void SmithView::showLimit()
{
    const double ratio = m_model->viewSettings()->vswrLimit();
    for (const auto &[id, limit] : m_limits)
        delete limit;
    m_limits.clear();
    const Look look = currentLook();
    if (ratio > 1.0) {
        SmithChart::LimitArea area;
        area.setCircle({0.0, 0.0}, reflectionOf(ratio), SmithChart::LimitArea::StayInside);
        for (const Trace &trace : traces()) {
            auto *limit = new SmithLimit(m_chart);
            limit->setArea(area);
            limit->setColors(m_limits.empty() ? look.pass : QColor(Qt::transparent), look.fail);
            m_limits[trace.id] = limit;
        }
    }
    testTraces();
}

void SmithView::testTraces()
{
    QVector<Verdict::Failure> failures;
    bool tested = false;
    for (const auto &[id, limit] : m_limits) {
        const Trace *trace = m_model->trace(id);
        if (!trace || !limit)
            continue;
        // The first one shows the area for all.
        limit->setVisible(trace->visible || m_limits.begin()->first == id);
        const SmithChart::LimitResult result = limit->test(trace->visible ? id : 0);
        tested = tested || result.tested > 0;
        // A hidden chart may still have the points of before.
        if (!result.passed() && result.firstFailing < m_model->network(*trace).points())
            failures.append({id, m_model->network(*trace).frequencies.at(result.firstFailing)});
    }
    m_verdict->show(tested, failures);
    replotLater();
}

void SmithView::makeChart()
{
    delete m_chart;
    // A chart leaves its grid on the plot.
    plot()->clearItems();
    plot()->clearPlottables();
    m_chart = new SmithChartPlot(plot(), presetOf(m_density), this);
    m_chart->setGridFollowsView(m_density == GridDensity::Automatic);
    m_chart->setMaximumZoom(Zoom::maximum);
    m_chart->setTraceWidths(Look::traceWidth, Look::activeTraceWidth);
    m_chart->setMarkerDragJumpPx(s_jump);
    // What a finger means is decided by whoever asks hit().
    m_chart->setPressDragsMarkers(false);
    m_chart->setGridMode(m_model->viewSettings()->gridMode());
    m_chart->setOnlyHandleActiveTrace(m_model->viewSettings()->onlyActiveTrace());
    connect(m_chart, &SmithChartPlot::markerPositionChanged, this, &SmithView::markerMoveRequested);
    connect(m_chart, &SmithChartPlot::markerDeleteRequested, this,
            &SmithView::markerDeleteRequested);
    loadTraces();
    showZoom();
}

void SmithView::loadTraces()
{
    m_chart->clearAllCurves();
    const Look look = currentLook();
    for (const Trace &trace : traces()) {
        m_chart->addCurve(trace.id, look.pen(trace.id, trace.network));
        showData(trace.id, m_model->traceData(trace));
        m_chart->setCurveVisible(trace.id, trace.visible);
        showMemory(trace);
        placeMarkers(trace);
    }
    showActiveTrace();
    showSelectedMarker();
    showLimit();
}

void SmithView::showData(int curve, const TraceData &shown)
{
    m_chart->setCurveData(curve, shown.frequencies, shown.parameter.real, shown.parameter.imag);
}

void SmithView::showMemory(const Trace &trace)
{
    const int id = memoryId(trace.id);
    m_chart->removeCurve(id);
    if (const auto memory = m_model->drawnMemory(trace)) {
        m_chart->addCurve(id, currentLook().memoryPen(trace.id, trace.network));
        showData(id, *memory);
        m_chart->setCurveVisible(id, trace.visible);
    }
    replotLater();
}

void SmithView::updateTraces(int network)
{
    for (const Trace &trace : traces()) {
        if (trace.network != network)
            continue;
        showData(trace.id, m_model->traceData(trace));
        placeMarkers(trace);
    }
    testTraces();
}

void SmithView::beginDrag(int traceId, int number)
{
    m_chart->beginMarkerDrag(traceId, number);
}

const Plot::Marker *SmithView::drawnMarker(int traceId, int number) const
{
    return m_chart->getMarker(traceId, number);
}

void SmithView::placeMarker(const Trace &trace, const Marker &placed)
{
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

int SmithView::pointsPerStep(int traceId) const
{
    return qMax(1, m_model->network(*m_model->trace(traceId)).points() / s_stepsAround);
}

int SmithView::drawnPoints() const
{
    int count = 0;
    for (const int id : m_chart->traceIds()) {
        const QCPCurve *curve = m_chart->getCurve(id);
        if (curve && curve->visible())
            count += curve->dataCount();
    }
    return count;
}

void SmithView::setTraceVisible(const Trace &trace)
{
    m_chart->setCurveVisible(trace.id, trace.visible);
    m_chart->setCurveVisible(memoryId(trace.id), trace.visible);
    placeMarkers(trace);
    showGrid();
    testTraces();
}

void SmithView::removeMarker(int traceId, int number)
{
    m_chart->removeMarkerVisual(traceId, number);
}

void SmithView::showSelectedMarker()
{
    const Marker *selected = m_model->selectedMarker();
    if (!selected || !m_chart->selectMarker(selected->trace, selected->number))
        m_chart->clearMarkerSelection();
}

void SmithView::showActiveTrace()
{
    if (const Trace *trace = activeTrace())
        m_chart->setActiveTrace(trace->id);
    else
        m_chart->clearActiveTrace();
    showGrid();
}

void SmithView::recolor()
{
    const Look look = currentLook();
    plot()->setBackground(look.background);
    for (const Trace &trace : traces()) {
        m_chart->setCurvePen(trace.id, look.pen(trace.id, trace.network));
        m_chart->setCurvePen(memoryId(trace.id), look.memoryPen(trace.id, trace.network));
    }
    showGrid();
    showLimit();
}

QStringList SmithView::titleParts() const
{
    const Trace *active = activeTrace();
    if (!active)
        return {};
    const QString reference = ohmsText(m_model->traceData(*active).reference);
    return {hasOneReference()
                ? tr("Z %1").arg(reference)
                : tr("normalised, Tr%1 to %2").arg(QString::number(active->id), reference)};
}

SmithChart::HalfRanges SmithView::halfRanges() const
{
    const QCPAxisRect *rect = plot()->axisRect();
    return SmithChart::baseHalfRanges(rect->width(), rect->height());
}

/// The model's zoom in the present shape of the plot.
SmithChart::ViewState SmithView::wantedView() const
{
    const Zoom zoom = m_model->zoom(id());
    return SmithChart::clampViewState({zoom.x, zoom.y, zoom.factor}, halfRanges(), Zoom::maximum);
}

void SmithView::showZoom()
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

void SmithView::onLayout()
{
    m_laidOut = true;
    showZoom();
    m_verdict->setCorner({plot()->width() - 8, 8});
}

Zoom SmithView::zoomedAt(const QPointF &position, double factor) const
{
    const QPointF anchor = coordinates(position);
    return zoomOf(SmithChart::zoomedViewState(wantedView(), anchor.x(), anchor.y(), factor,
                                              halfRanges(), Zoom::maximum));
}

Zoom SmithView::movedTo(const QPointF &coordinates, const QPointF &position) const
{
    const QPointF shift = coordinates - this->coordinates(position);
    SmithChart::ViewState view = wantedView();
    view.centerX += shift.x();
    view.centerY += shift.y();
    return zoomOf(SmithChart::clampViewState(view, halfRanges(), Zoom::maximum));
}

Hit SmithView::hitLine(const QPointF &position) const
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
