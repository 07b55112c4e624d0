// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "smithview.h"

#include "elidedlabel.h"
#include "format.h"
#include "look.h"
#include "markertable.h"
#include "panelmodel.h"

#include <controls/thememanager.h>
#include <plot/qcp.h>

#include <QElapsedTimer>
#include <QVBoxLayout>

namespace Panel
{

SmithView::SmithView(const PanelModel *model, QWidget *parent)
    : QWidget(parent)
    , m_model(model)
    , m_title(new ElidedLabel(Qt::ElideRight, this))
    , m_markerTable(new MarkerTable(model, Trace::Reflection, this))
    , m_plot(new QCustomPlot(this))
{
    m_title->setObjectName(QStringLiteral("dim"));
    m_title->setContentsMargins(10, 6, 10, 2);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_title);
    column->addWidget(m_markerTable);
    column->addWidget(m_plot, 1);

    // The chart needs the axes as scales only.
    m_plot->xAxis->setVisible(false);
    m_plot->yAxis->setVisible(false);
    m_plot->axisRect()->setAutoMargins(QCP::msNone);
    m_plot->axisRect()->setMargins(QMargins(8, 4, 8, 8));
    m_plot->setFocusPolicy(Qt::StrongFocus);
    m_plot->setAccessibleName(tr("Smith chart"));
    makeChart();
    recolor();

    connect(m_model, &PanelModel::networksChanged, this, &SmithView::loadTraces);
    connect(m_model, &PanelModel::stimulusChanged, this, &SmithView::loadTraces);
    connect(m_model, &PanelModel::activeTraceChanged, this, &SmithView::showActiveTrace);
    connect(m_model, &PanelModel::traceVisibleChanged, this, &SmithView::setTraceVisible);
    connect(m_model, &PanelModel::markerAdded, this, &SmithView::addMarker);
    connect(m_model, &PanelModel::networkUpdated, this, &SmithView::updateTraces);
    connect(m_model, &PanelModel::markerMoved, this, &SmithView::moveMarker);
    connect(m_model, &PanelModel::markerRemoved, this,
            [this](int traceId, int number) { m_chart->removeMarkerVisual(traceId, number); });
    connect(m_model, &PanelModel::selectedMarkerChanged, this, &SmithView::showSelectedMarker);
    connect(Controls::ThemeManager::instance(), &Controls::ThemeManager::themeChanged, this,
            &SmithView::recolor);
}

void SmithView::setGridMode(SmithChartPlot::GridMode mode)
{
    m_chart->setGridMode(mode);
}

void SmithView::setDensity(SmithChart::Preset density)
{
    if (density == m_density)
        return;
    m_density = density;
    makeChart();
}

void SmithView::makeChart()
{
    const QCPRange x = m_plot->xAxis->range();
    const QCPRange y = m_plot->yAxis->range();
    const SmithChartPlot::GridMode mode = m_chart ? m_chart->gridMode() : SmithChartPlot::Impedance;
    const bool replaced = m_chart;
    delete m_chart;
    // A chart leaves its grid on the plot.
    m_plot->clearItems();
    m_plot->clearPlottables();
    m_chart = new SmithChartPlot(m_plot, m_density, this);
    m_chart->setGridMode(mode);
    loadTraces();
    if (!replaced)
        return;
    m_chart->setViewFromRequestedRanges(x, y);
    Q_EMIT chartReplaced();
}

void SmithView::loadTraces()
{
    m_chart->clearAllCurves();
    const Look look = currentLook();
    for (const Trace &trace : m_model->traces()) {
        if (trace.kind() != Trace::Reflection)
            continue;
        const Parameter &values = m_model->data(trace);
        m_chart->addCurve(trace.id, QPen(look.trace(trace.id)));
        m_chart->setCurveData(trace.id, m_model->network(trace).frequencies, values.real,
                              values.imag);
        m_chart->setCurveVisible(trace.id, trace.visible);
    }
    for (const Marker &marker : m_model->markers())
        addMarker(marker.trace, marker.number);
    showActiveTrace();
    showSelectedMarker();
}

void SmithView::updateTraces(int network)
{
    QElapsedTimer timer;
    timer.start();
    for (const Trace &trace : m_model->traces()) {
        if (trace.network != network || trace.kind() != Trace::Reflection)
            continue;
        const Parameter &values = m_model->data(trace);
        m_chart->setCurveData(trace.id, m_model->network(trace).frequencies, values.real,
                              values.imag);
    }
    m_dataMilliseconds = double(timer.nsecsElapsed()) / 1e6;
}

void SmithView::moveMarker(int traceId, int number)
{
    m_chart->setMarkerIndex(traceId, number, m_model->marker(traceId, number)->index);
    const Plot::Marker *marker = m_chart->getMarker(traceId, number);
    if (!marker || marker->isVisible())
        return;
    // Shorter data had no place for it.
    m_chart->setMarkerVisible(traceId, number, m_model->trace(traceId)->visible);
    showSelectedMarker();
}

int SmithView::drawnPoints() const
{
    int count = 0;
    for (const Trace &trace : m_model->traces()) {
        const QCPCurve *curve = m_chart->getCurve(trace.id);
        if (curve && curve->visible())
            count += curve->dataCount();
    }
    return count;
}

void SmithView::setTraceVisible(int id, bool visible)
{
    m_chart->setCurveVisible(id, visible);
    for (const Marker &marker : m_model->markers()) {
        if (marker.trace == id)
            m_chart->setMarkerVisible(id, marker.number, visible);
    }
    updateTitle();
}

void SmithView::addMarker(int traceId, int number)
{
    m_chart->addMarkerVisual(traceId, number, m_model->marker(traceId, number)->index,
                             Plot::PointingDown);
    m_chart->setMarkerVisible(traceId, number, m_model->trace(traceId)->visible);
}

void SmithView::showSelectedMarker()
{
    const Marker *selected = m_model->selectedMarker();
    if (!selected || !m_chart->selectMarker(selected->trace, selected->number))
        m_chart->clearMarkerSelection();
}

void SmithView::showActiveTrace()
{
    if (const Trace *trace = m_model->activeTrace(Trace::Reflection))
        m_chart->setActiveTrace(trace->id);
    else
        m_chart->clearActiveTrace();
    updateTitle();
}

void SmithView::recolor()
{
    const Look look = currentLook();
    m_plot->setBackground(look.background);
    for (const Trace &trace : m_model->traces())
        m_chart->setCurvePen(trace.id, QPen(look.trace(trace.id)));
    m_plot->replot(QCustomPlot::rpQueuedReplot);
}

void SmithView::updateTitle()
{
    QStringList names;
    for (const Trace &trace : m_model->traces()) {
        const QString name = PanelModel::parameterName(trace);
        if (trace.kind() == Trace::Reflection && trace.visible && !names.contains(name))
            names << name;
    }
    const Trace *active = m_model->activeTrace(Trace::Reflection);
    const QString separator = QStringLiteral(" \u00b7 ");
    QStringList parts;
    if (!names.isEmpty())
        parts << names.join(QStringLiteral(", "));
    else if (active)
        parts << tr("All traces are hidden");
    if (active)
        parts << tr("Z %1").arg(ohmsText(m_model->network(*active).referenceOhms))
              << m_model->network(*active).name;
    m_title->setText(parts.join(separator));
}

void SmithView::zoomAt(const QPointF &position, double factor)
{
    m_chart->zoomAt(chartPoint(position), factor);
    showView();
}

void SmithView::setZoom(double zoom)
{
    const SmithChart::ViewState state = m_chart->viewState();
    m_chart->zoomAt({state.centerX, state.centerY}, zoom / state.zoom);
    showView();
}

QPointF SmithView::chartPoint(const QPointF &position) const
{
    return {m_plot->xAxis->pixelToCoord(position.x()), m_plot->yAxis->pixelToCoord(position.y())};
}

void SmithView::moveTo(const QPointF &chartPoint, const QPointF &position)
{
    if (!m_chart->isMagnified())
        return;
    const QPointF shift = chartPoint - this->chartPoint(position);
    m_chart->setViewFromRequestedRanges(m_plot->xAxis->range() + shift.x(),
                                        m_plot->yAxis->range() + shift.y());
    showView();
}

void SmithView::resetView()
{
    m_chart->resetView();
    showView();
}

void SmithView::showView()
{
    m_plot->replot(QCustomPlot::rpQueuedReplot);
    Q_EMIT viewChanged();
}

} // namespace Panel
