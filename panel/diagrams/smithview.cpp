// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "smithview.h"

#include <panel/look/look.h>
#include <panel/model/format.h>

#include <plot/qcp.h>

namespace Panel
{

SmithView::SmithView(const PanelModel *model, QWidget *parent)
    : DiagramView(model, parent)
    , m_density(model->viewSettings()->density())
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
}

void SmithView::makeChart()
{
    const QCPRange x = plot()->xAxis->range();
    const QCPRange y = plot()->yAxis->range();
    const bool replaced = m_chart;
    delete m_chart;
    // A chart leaves its grid on the plot.
    plot()->clearItems();
    plot()->clearPlottables();
    m_chart = new SmithChartPlot(plot(), m_density, this);
    followSettings();
    connect(m_chart, &SmithChartPlot::pointDoubleClicked, this, [this](int traceId, int index) {
        if (traceIds().contains(traceId)) // not stored data
            Q_EMIT pointPicked(traceId, index);
    });
    connect(m_chart, &SmithChartPlot::activeTraceDoubleClicked, this,
            [this](int traceId, double stimulus) {
                const Network &network = m_model->network(*m_model->trace(traceId));
                Q_EMIT pointPicked(traceId, indexOfFrequency(network.frequencies, stimulus));
            });
    connect(m_chart, &SmithChartPlot::markerSelectionRequested, this,
            [this](int traceId, int number) {
                if (!m_chart->onlyHandleActiveTrace() || traceId == m_chart->activeTrace())
                    Q_EMIT markerSelectionRequested(traceId, number);
            });
    connect(m_chart, &SmithChartPlot::markerPositionChanged, this, &SmithView::markerMoveRequested);
    connect(m_chart, &SmithChartPlot::markerDeleteRequested, this,
            &SmithView::markerDeleteRequested);
    loadTraces();
    if (replaced)
        m_chart->setViewFromRequestedRanges(x, y);
}

void SmithView::loadTraces()
{
    m_chart->clearAllCurves();
    const Look look = currentLook();
    for (const Trace &trace : traces()) {
        const Parameter &values = m_model->data(trace);
        m_chart->addCurve(trace.id, QPen(look.trace(trace.id)));
        m_chart->setCurveData(trace.id, m_model->network(trace).frequencies, values.real,
                              values.imag);
        m_chart->setCurveVisible(trace.id, trace.visible);
        showMemory(trace);
        for (const Marker &marker : m_model->markersOf(trace.id))
            addMarker(trace, marker);
    }
    showActiveTrace();
    showSelectedMarker();
}

void SmithView::showMemory(const Trace &trace)
{
    const int id = memoryId(trace.id);
    m_chart->removeCurve(id);
    if (const Memory *memory = m_model->memory(trace.id)) {
        m_chart->addCurve(id, QPen(currentLook().memory(trace.id)));
        m_chart->setCurveData(id, memory->frequencies, memory->parameter.real,
                              memory->parameter.imag);
        m_chart->setCurveVisible(id, trace.visible);
    }
    replotLater();
}

void SmithView::updateTraces(int network)
{
    for (const Trace &trace : traces()) {
        if (trace.network != network)
            continue;
        const Parameter &values = m_model->data(trace);
        m_chart->setCurveData(trace.id, m_model->network(trace).frequencies, values.real,
                              values.imag);
    }
}

void SmithView::moveMarker(const Trace &trace, const Marker &moved)
{
    m_chart->setMarkerIndex(trace.id, moved.number, moved.index);
    const Plot::Marker *marker = m_chart->getMarker(trace.id, moved.number);
    if (!marker || marker->isVisible())
        return;
    // Shorter data had no place for it.
    m_chart->setMarkerVisible(trace.id, moved.number, trace.visible);
    showSelectedMarker();
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
    for (const Marker &marker : m_model->markersOf(trace.id))
        m_chart->setMarkerVisible(trace.id, marker.number, trace.visible);
}

void SmithView::addMarker(const Trace &trace, const Marker &marker)
{
    m_chart->addMarkerVisual(trace.id, marker.number, marker.index, Plot::PointingDown);
    m_chart->setMarkerVisible(trace.id, marker.number, trace.visible);
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
}

void SmithView::recolor()
{
    const Look look = currentLook();
    plot()->setBackground(look.background);
    for (const Trace &trace : traces()) {
        m_chart->setCurvePen(trace.id, QPen(look.trace(trace.id)));
        m_chart->setCurvePen(memoryId(trace.id), QPen(look.memory(trace.id)));
    }
    replotLater();
}

QStringList SmithView::titleParts() const
{
    const Trace *active = activeTrace();
    if (!active)
        return {};
    return {tr("Z %1").arg(ohmsText(m_model->network(*active).referenceOhms)),
            m_model->network(*active).name};
}

void SmithView::zoomAt(const QPointF &position, double factor)
{
    m_chart->zoomAt(coordinates(position), factor);
    showView();
}

void SmithView::setZoom(double zoom)
{
    const SmithChart::ViewState state = m_chart->viewState();
    m_chart->zoomAt({state.centerX, state.centerY}, zoom / state.zoom);
    showView();
}

void SmithView::moveTo(const QPointF &coordinates, const QPointF &position)
{
    if (!m_chart->isMagnified())
        return;
    const QPointF shift = coordinates - this->coordinates(position);
    m_chart->setViewFromRequestedRanges(plot()->xAxis->range() + shift.x(),
                                        plot()->yAxis->range() + shift.y());
    showView();
}

void SmithView::resetView()
{
    m_chart->resetView();
    showView();
}

bool SmithView::pick(const QPoint &position, Qt::KeyboardModifiers modifiers)
{
    return m_chart->handleDoubleClick(position, modifiers);
}

void SmithView::showView()
{
    replotLater();
    Q_EMIT viewChanged();
}

} // namespace Panel
