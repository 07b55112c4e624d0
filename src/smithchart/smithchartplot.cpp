// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "smithchartplot_p.h"

#include "smithchartlayers_p.h"

#include <plot/markerslayer_p.h>

#include <QTimer>

SmithChartPlot::SmithChartPlot(QCustomPlot *plot, QCPAxis *xAxis, QCPAxis *yAxis,
                               SmithChart::Preset preset, QObject *parent)
    : QObject(parent)
    , d(std::make_unique<SmithChartPlotPrivate>(this, plot, preset))
{
    // For hosts that queue or spy on signals.
    qRegisterMetaType<Qt::KeyboardModifiers>("Qt::KeyboardModifiers");
    qRegisterMetaType<GridMode>("SmithChartPlot::GridMode");
    if (!plot)
        return;
    d->m_xAxis = xAxis ? xAxis : plot->xAxis;
    d->m_yAxis = yAxis ? yAxis : plot->yAxis;
    d->syncGridFlags();
    d->initializePlot();
    d->applyFixedView();
    plot->installEventFilter(this);
}

SmithChartPlot::SmithChartPlot(QCustomPlot *plot, SmithChart::Preset preset, QObject *parent)
    : SmithChartPlot(plot, nullptr, nullptr, preset, parent)
{
}

SmithChartPlot::~SmithChartPlot()
{
    if (d->m_dragLine)
        d->m_dragLine->parentPlot()->removeItem(d->m_dragLine);
    clearAllCurves();
}

void SmithChartPlot::setAxes(QCPAxis *xAxis, QCPAxis *yAxis)
{
    QCustomPlot *const plot = d->plot();
    if (!plot)
        return;
    if (!xAxis)
        xAxis = plot->xAxis;
    if (!yAxis)
        yAxis = plot->yAxis;
    if (xAxis == d->m_xAxis && yAxis == d->m_yAxis)
        return;

    for (QCPAxis *axis : {d->m_xAxis.data(), d->m_yAxis.data()}) {
        if (axis)
            axis->disconnect(this);
    }
    d->m_xAxis = xAxis;
    d->m_yAxis = yAxis;
    for (const auto &record : qAsConst(d->m_curves)) {
        if (record.curve) {
            record.curve->setKeyAxis(d->m_xAxis);
            record.curve->setValueAxis(d->m_yAxis);
        }
    }
    d->clearSmithChartGrid();
    d->connectAxes();
    for (const auto &record : qAsConst(d->m_curves))
        d->replaceMarkers(record);
    const QPointer<SmithChartPlot> self(this);
    d->addSmithChartGrid();
    if (!self)
        return;
    d->setGridVisible(d->anyCurveVisible());
    d->applyViewState();
    d->requestQueuedReplot();
}

void SmithChartPlot::setQueuedReplotHandler(const std::function<void()> &handler)
{
    d->m_queuedReplotHandler = handler;
}

QCPAxis *SmithChartPlot::xAxis() const
{
    return d->m_xAxis;
}

QCPAxis *SmithChartPlot::yAxis() const
{
    return d->m_yAxis;
}

QCustomPlot *SmithChartPlot::getPlot() const
{
    return d->plot();
}

SmithChartPlotPrivate::SmithChartPlotPrivate(SmithChartPlot *chart, QCustomPlot *plot,
                                             SmithChart::Preset preset)
    : q(chart)
    , m_plot(plot)
    , m_preset(preset)
{
}

QCustomPlot *SmithChartPlotPrivate::plot() const
{
    return qobject_cast<QCustomPlot *>(m_plot.data());
}

/// The axis rectangle the chart is drawn in; null unless plot, both axes and the rectangle exist.
QCPAxisRect *SmithChartPlotPrivate::axisRect() const
{
    return plot() && m_xAxis && m_yAxis ? m_xAxis->axisRect() : nullptr;
}

/// Sets up layers, connections and grid. The order of the layers is part of the look: the boundary
/// lies over the traces, and the plot's own content over the whole chart.
void SmithChartPlotPrivate::initializePlot()
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
    QObject::connect(plot, &QCustomPlot::afterLayout, q, [this] { ensureAspectRatio(); });
    QObject::connect(plot, &QCustomPlot::mousePress, q,
                     [this](QMouseEvent *event) { onPlotMousePress(event); });
    QObject::connect(plot, &QCustomPlot::mouseMove, q,
                     [this](QMouseEvent *event) { onPlotMouseMove(event); });
    QObject::connect(plot, &QCustomPlot::mouseRelease, q, [this] { finishDrag(); });
    plot->setSelectionTolerance(qRound(m_markerHitTolerancePx));
    addSmithChartGrid();
    setGridVisible(false);
}

/// A range set from outside is answered by putting the stored view back.
void SmithChartPlotPrivate::connectAxes()
{
    for (QCPAxis *axis : {m_xAxis.data(), m_yAxis.data()}) {
        if (axis) {
            QObject::connect(axis, QOverload<const QCPRange &>::of(&QCPAxis::rangeChanged), q,
                             [this] { applyViewState(); });
        }
    }
}

/// Calls the host's handler, which may change or delete the chart like any slot.
void SmithChartPlotPrivate::requestQueuedReplot()
{
    // A copy, because the handler may replace itself or delete the chart.
    const std::function<void()> handler = m_queuedReplotHandler;
    if (handler)
        handler();
    else if (QCustomPlot *const plot = this->plot(); plot && !plot->size().isEmpty())
        plot->replot(QCustomPlot::rpQueuedReplot); // without a size it would only complain
}
