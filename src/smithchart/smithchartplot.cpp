// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "smithchartplot.h"

#include "smithchartlayers_p.h"

#include <plot/markerslayer_p.h>

#include <QTimer>

SmithChartPlot::SmithChartPlot(QCustomPlot *plot, QCPAxis *xAxis, QCPAxis *yAxis,
                               SmithChart::Preset preset, QObject *parent)
    : QObject(parent)
    , m_plot(plot)
    , m_preset(preset)
{
    // For hosts that queue or spy on the double click signals.
    qRegisterMetaType<Qt::KeyboardModifiers>("Qt::KeyboardModifiers");
    if (!plot)
        return;
    m_xAxis = xAxis ? xAxis : plot->xAxis;
    m_yAxis = yAxis ? yAxis : plot->yAxis;
    syncGridFlags();
    initializePlot();
    applyFixedView();
    plot->installEventFilter(this);
}

SmithChartPlot::SmithChartPlot(QCustomPlot *plot, SmithChart::Preset preset, QObject *parent)
    : SmithChartPlot(plot, nullptr, nullptr, preset, parent)
{
}

SmithChartPlot::~SmithChartPlot()
{
    clearAllCurves();
}

void SmithChartPlot::setAxes(QCPAxis *xAxis, QCPAxis *yAxis)
{
    QCustomPlot *const plot = this->plot();
    if (!plot)
        return;
    if (!xAxis)
        xAxis = plot->xAxis;
    if (!yAxis)
        yAxis = plot->yAxis;
    if (xAxis == m_xAxis && yAxis == m_yAxis)
        return;

    for (QCPAxis *axis : {m_xAxis.data(), m_yAxis.data()}) {
        if (axis)
            axis->disconnect(this);
    }
    m_xAxis = xAxis;
    m_yAxis = yAxis;
    for (const OwnedCurve &record : qAsConst(m_curves)) {
        if (record.curve) {
            record.curve->setKeyAxis(m_xAxis);
            record.curve->setValueAxis(m_yAxis);
        }
    }
    clearSmithChartGrid();
    connectAxes();
    for (const OwnedCurve &record : qAsConst(m_curves))
        replaceMarkers(record);
    const QPointer<SmithChartPlot> self(this);
    addSmithChartGrid();
    if (!self)
        return;
    setGridVisible(anyCurveVisible());
    applyViewState();
    requestQueuedReplot();
}

void SmithChartPlot::setQueuedReplotHandler(const std::function<void()> &handler)
{
    m_queuedReplotHandler = handler;
}

QCustomPlot *SmithChartPlot::plot() const
{
    return qobject_cast<QCustomPlot *>(m_plot.data());
}

/// The axis rectangle the chart is drawn in; null unless plot, both axes and the rectangle exist.
QCPAxisRect *SmithChartPlot::axisRect() const
{
    return plot() && m_xAxis && m_yAxis ? m_xAxis->axisRect() : nullptr;
}

/// Sets up layers, connections and grid. The order of the layers is part of the look: the boundary
/// lies over the traces, and the plot's own content over the whole chart.
void SmithChartPlot::initializePlot()
{
    QCustomPlot *const plot = this->plot();
    const QString base =
        plot->layer(SmithLayers::base()) ? SmithLayers::base() : QStringLiteral("main");
    const auto ensureLayer = [plot](const QString &name, const QString &neighbour,
                                    QCustomPlot::LayerInsertMode mode) {
        if (!plot->layer(name))
            plot->addLayer(name, plot->layer(neighbour), mode);
    };
    ensureLayer(SmithLayers::grid(), base, QCustomPlot::limBelow);
    ensureLayer(SmithLayers::tracers(), SmithLayers::grid(), QCustomPlot::limAbove);
    ensureLayer(SmithLayers::activeTracers(), SmithLayers::tracers(), QCustomPlot::limAbove);
    ensureLayer(SmithLayers::boundary(), SmithLayers::activeTracers(), QCustomPlot::limAbove);
    Plot::raiseMarkersLayer(plot);

    applyViewState();
    connectAxes();
    connect(plot, &QCustomPlot::afterLayout, this, &SmithChartPlot::ensureAspectRatio);
    connect(plot, &QCustomPlot::mousePress, this, &SmithChartPlot::onPlotMousePress);
    connect(plot, &QCustomPlot::mouseMove, this, &SmithChartPlot::onPlotMouseMove);
    connect(plot, &QCustomPlot::mouseRelease, this, &SmithChartPlot::onPlotMouseRelease);
    plot->setSelectionTolerance(qRound(m_markerHitTolerancePx));
    addSmithChartGrid();
    setGridVisible(false);
}

/// A range set from outside is answered by putting the stored view back.
void SmithChartPlot::connectAxes()
{
    for (QCPAxis *axis : {m_xAxis.data(), m_yAxis.data()}) {
        if (axis) {
            connect(axis, QOverload<const QCPRange &>::of(&QCPAxis::rangeChanged), this,
                    &SmithChartPlot::applyViewState);
        }
    }
}

/// Calls the host's handler, which may change or delete the chart like any slot.
void SmithChartPlot::requestQueuedReplot()
{
    // A copy, because the handler may replace itself or delete the chart.
    const std::function<void()> handler = m_queuedReplotHandler;
    if (handler)
        handler();
    else if (QCustomPlot *const plot = this->plot(); plot && !plot->size().isEmpty())
        plot->replot(QCustomPlot::rpQueuedReplot); // without a size it would only complain
}
