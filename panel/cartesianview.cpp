// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cartesianview.h"

#include "elidedlabel.h"
#include "look.h"
#include "markertable.h"
#include "panelmodel.h"

#include <controls/thememanager.h>
#include <plot/qcp.h>
#include <utils/qtcompat_p.h>

#include <QElapsedTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace Panel
{

namespace
{

constexpr int s_divisions = 10;
constexpr double s_decibelsPerDivision = 10.0;
constexpr double s_degreesPerDivision = 45.0;
/// How near a finger must be to a marker or a line, in pixels.
constexpr double s_reach = 24.0;

QString activeLayer()
{
    return QStringLiteral("activeTrace");
}

} // namespace

CartesianView::CartesianView(const PanelModel *model, QWidget *parent)
    : QWidget(parent)
    , m_model(model)
    , m_title(new ElidedLabel(Qt::ElideRight, this))
    , m_markerTable(new MarkerTable(model, Trace::Transmission, this))
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
    setUpPlot();
    connectPointer();
    loadTraces();
    recolor();

    connect(m_model, &PanelModel::networksChanged, this, &CartesianView::loadTraces);
    connect(m_model, &PanelModel::stimulusChanged, this, &CartesianView::loadTraces);
    connect(m_model, &PanelModel::networkUpdated, this, &CartesianView::updateTraces);
    connect(m_model, &PanelModel::activeTraceChanged, this, &CartesianView::showActiveTrace);
    connect(m_model, &PanelModel::traceVisibleChanged, this, &CartesianView::setTraceVisible);
    connect(m_model, &PanelModel::markerAdded, this, &CartesianView::addMarker);
    connect(m_model, &PanelModel::markerMoved, this, &CartesianView::placeMarker);
    connect(m_model, &PanelModel::markerRemoved, this, [this](int traceId, int number) {
        m_markers.erase({traceId, number});
        m_plot->replot(QCustomPlot::rpQueuedReplot);
    });
    connect(m_model, &PanelModel::selectedMarkerChanged, this, &CartesianView::drawMarkers);
    connect(Controls::ThemeManager::instance(), &Controls::ThemeManager::themeChanged, this,
            &CartesianView::recolor);
}

void CartesianView::setUpPlot()
{
    m_plot->setAccessibleName(tr("Transmission"));
    m_plot->addLayer(activeLayer(), m_plot->layer(QStringLiteral("main")));
    // Above is room for a marker on the topmost line and its number.
    m_plot->axisRect()->setMinimumMargins(QMargins(12, 34, 14, 14));
    m_plot->axisRect()->setupFullAxesBox();
    for (QCPAxis *axis : m_plot->axisRect()->axes()) {
        axis->setTicks(axis == m_plot->yAxis || axis == m_plot->xAxis);
        axis->setTickPen(Qt::NoPen);
        axis->setSubTicks(false);
        axis->setTickLabels(axis == m_plot->yAxis);
    }
    m_plot->yAxis->setTickLabelPadding(8);
    m_plot->xAxis->grid()->setZeroLinePen(Qt::NoPen);
    m_plot->yAxis->grid()->setZeroLinePen(Qt::NoPen);
    m_plot->yAxis->setNumberFormat(QStringLiteral("f"));
    m_plot->yAxis->setNumberPrecision(0);
    m_plot->xAxis->setTicker(QSharedPointer<QCPAxisTickerFixed>::create());
    m_plot->yAxis->setTicker(QSharedPointer<QCPAxisTickerFixed>::create());
}

void CartesianView::connectPointer()
{
    connect(m_plot, &QCustomPlot::mousePress, this, &CartesianView::onPress);
    connect(m_plot, &QCustomPlot::mouseMove, this, &CartesianView::onMove);
    connect(m_plot, &QCustomPlot::mouseRelease, this, [this] { m_dragged = {0, 0}; });
    connect(m_plot, &QCustomPlot::mouseDoubleClick, this, &CartesianView::onDoubleClick);
}

QVector<Trace> CartesianView::traces() const
{
    QVector<Trace> result;
    for (const Trace &trace : m_model->traces()) {
        if (trace.kind() == Trace::Transmission)
            result.append(trace);
    }
    return result;
}

const Plot::Marker *CartesianView::marker(int traceId, int number) const
{
    const auto found = m_markers.find({traceId, number});
    return found == m_markers.end() ? nullptr : &found->second;
}

void CartesianView::setFormat(CartesianFormat format)
{
    if (format == m_format)
        return;
    m_format = format;
    m_markerTable->setFormat(format);
    loadLines();
    fitValues();
    updateTitle();
}

void CartesianView::loadTraces()
{
    m_markers.clear();
    m_graphs.clear();
    m_plot->clearGraphs();
    const Look look = currentLook();
    for (const Trace &trace : traces()) {
        QCPGraph *graph = m_plot->addGraph();
        graph->setPen(QPen(look.trace(trace.id)));
        graph->setVisible(trace.visible);
        graph->setSelectable(QCP::stNone);
        m_graphs.insert(trace.id, graph);
    }
    loadLines();
    fitValues();
    for (const Marker &marker : m_model->markers())
        addMarker(marker.trace, marker.number);
    showActiveTrace();
}

void CartesianView::updateTraces(int network)
{
    // A hidden diagram catches up when it is shown.
    if (!isVisible())
        return;
    QElapsedTimer timer;
    timer.start();
    for (const Trace &trace : traces()) {
        if (trace.network == network)
            loadLine(trace);
    }
    fitFrequencies();
    m_dataMilliseconds = double(timer.nsecsElapsed()) / 1e6;
}

void CartesianView::loadLines()
{
    for (const Trace &trace : traces())
        loadLine(trace);
    fitFrequencies();
}

void CartesianView::loadLine(const Trace &trace)
{
    QCPGraph *graph = m_graphs.value(trace.id);
    if (!graph)
        return;
    const CartesianLine line = cartesianLine(m_model->network(trace).frequencies,
                                             m_model->data(trace), m_format, m_plot->width());
    graph->setData(line.frequencies, line.values, true);
    for (const auto &[key, marker] : m_markers) {
        if (key.first == trace.id)
            placeMarker(key.first, key.second);
    }
    m_plot->replot(QCustomPlot::rpQueuedReplot);
}

void CartesianView::fitFrequencies()
{
    QCPRange range(0.0, 0.0);
    for (const Trace &trace : traces()) {
        const QVector<double> &frequencies = m_model->network(trace).frequencies;
        if (frequencies.isEmpty())
            continue;
        const QCPRange own(frequencies.first(), frequencies.last());
        range = range.upper > 0.0 ? range.expanded(own) : own;
    }
    // A single frequency stands in the middle.
    if (range.size() <= 0.0)
        range = QCPRange(range.lower - 1.0, range.upper + 1.0);
    if (range == m_plot->xAxis->range())
        return;
    auto ticker = qSharedPointerCast<QCPAxisTickerFixed>(m_plot->xAxis->ticker());
    ticker->setTickOrigin(range.lower);
    ticker->setTickStep(range.size() / s_divisions);
    m_plot->xAxis->setRange(range);
}

void CartesianView::fitValues()
{
    const bool phase = m_format == CartesianFormat::Phase;
    double highest = 0.0;
    for (const QCPGraph *graph : qAsConst(m_graphs)) {
        bool found = false;
        const QCPRange range = graph->getValueRange(found);
        if (found && !phase)
            highest = qMax(highest, range.upper);
    }
    const double step = phase ? s_degreesPerDivision : s_decibelsPerDivision;
    m_top = phase ? 180.0 : std::ceil(highest / step) * step;
    auto ticker = qSharedPointerCast<QCPAxisTickerFixed>(m_plot->yAxis->ticker());
    ticker->setTickStep(step);
    m_plot->yAxis->setRange(phase ? -180.0 : m_top - s_divisions * step, m_top);
    m_plot->replot(QCustomPlot::rpQueuedReplot);
}

void CartesianView::setTraceVisible(int id, bool visible)
{
    if (QCPGraph *graph = m_graphs.value(id))
        graph->setVisible(visible);
    for (auto &[key, marker] : m_markers) {
        if (key.first == id)
            marker.setVisible(visible);
    }
    updateTitle();
    m_plot->replot(QCustomPlot::rpQueuedReplot);
}

void CartesianView::showActiveTrace()
{
    const Trace *active = m_model->activeTrace(Trace::Transmission);
    for (auto graph = m_graphs.cbegin(); graph != m_graphs.cend(); ++graph) {
        const bool above = active && active->id == graph.key();
        (*graph)->setLayer(above ? activeLayer() : QStringLiteral("main"));
    }
    updateTitle();
    m_plot->replot(QCustomPlot::rpQueuedReplot);
}

void CartesianView::addMarker(int traceId, int number)
{
    if (!m_graphs.contains(traceId))
        return;
    const auto added = m_markers.emplace(MarkerKey(traceId, number),
                                         Plot::Marker(m_plot, number, Plot::PointingDown));
    Plot::Marker &marker = added.first->second;
    marker.getLabel()->setText(QString::number(number));
    marker.setVisible(m_model->trace(traceId)->visible);
    placeMarker(traceId, number);
    drawMarkers();
}

void CartesianView::placeMarker(int traceId, int number)
{
    const auto found = m_markers.find({traceId, number});
    const Marker *marker = m_model->marker(traceId, number);
    if (found == m_markers.end() || !marker)
        return;
    const Trace &trace = *m_model->trace(traceId);
    const double value = cartesianValueAt(m_model->data(trace), marker->index, m_format);
    found->second.setPositionCoordinates(
        m_graphs.value(traceId), valueAt(m_model->network(trace).frequencies, marker->index),
        value);
    m_plot->replot(QCustomPlot::rpQueuedReplot);
}

void CartesianView::drawMarkers()
{
    const Look look = currentLook();
    const Marker *selected = m_model->selectedMarker();
    for (auto &[key, marker] : m_markers) {
        // As on the Smith chart.
        const bool filled =
            selected && selected->trace == key.first && selected->number == key.second;
        const QColor color = filled ? look.trace(key.first).lighter(120) : look.trace(key.first);
        marker.setColors(QPen(color, filled ? 2.0 : 1.5), filled ? QBrush(color) : QBrush());
    }
    m_plot->replot(QCustomPlot::rpQueuedReplot);
}

void CartesianView::recolor()
{
    const Look look = currentLook();
    m_plot->setBackground(look.background);
    // Fainter than a border: the lines carry the meaning.
    QColor faint = look.border;
    faint.setAlphaF(0.5);
    for (QCPAxis *axis : m_plot->axisRect()->axes()) {
        axis->setBasePen(QPen(look.border));
        axis->setTickLabelColor(look.dimText);
        QFont labels = font();
        labels.setPixelSize(qMax(9, QFontInfo(labels).pixelSize() - 2));
        axis->setTickLabelFont(labels);
        axis->grid()->setPen(QPen(faint));
    }
    for (auto graph = m_graphs.cbegin(); graph != m_graphs.cend(); ++graph)
        (*graph)->setPen(QPen(look.trace(graph.key())));
    drawMarkers();
}

void CartesianView::updateTitle()
{
    QStringList names;
    for (const Trace &trace : traces()) {
        const QString name = PanelModel::parameterName(trace);
        if (trace.visible && !names.contains(name))
            names << name;
    }
    if (names.isEmpty())
        names << tr("All traces are hidden");
    const QString separator = QStringLiteral(" \u00b7 ");
    const QString scale = m_format == CartesianFormat::Phase
        ? tr("%1\u00b0/").arg(s_degreesPerDivision)
        : tr("%1 dB/").arg(s_decibelsPerDivision) + separator + tr("ref %1 dB").arg(m_top);
    m_title->setText(names.join(QStringLiteral(", ")) + separator + scale);
}

int CartesianView::drawnPoints() const
{
    int count = 0;
    for (const QCPGraph *graph : m_graphs)
        count += graph->visible() ? graph->dataCount() : 0;
    return count;
}

void CartesianView::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    // Other columns want other points.
    loadLines();
}

void CartesianView::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    loadLines();
}

double CartesianView::indexAt(int traceId, const QPointF &position) const
{
    const QVector<double> &frequencies = m_model->network(*m_model->trace(traceId)).frequencies;
    return std::round(indexOfFrequency(frequencies, m_plot->xAxis->pixelToCoord(position.x())));
}

void CartesianView::onPress(QMouseEvent *event)
{
    m_dragged = {0, 0};
    if (event->button() != Qt::LeftButton)
        return;
    double nearest = s_reach;
    for (const auto &[key, marker] : m_markers) {
        if (!marker.isVisible())
            continue;
        // The middle of the triangle, which stands on its point.
        const QPointF middle = marker.getTracer()->position->pixelPosition() - QPointF(0.0, 8.0);
        const double distance = QLineF(middle, QtCompat::position(event)).length();
        if (distance < nearest) {
            nearest = distance;
            m_dragged = key;
        }
    }
    if (m_dragged.first)
        Q_EMIT markerSelectionRequested(m_dragged.first, m_dragged.second);
    else
        Q_EMIT tapped();
}

void CartesianView::onMove(QMouseEvent *event)
{
    // A release that was lost ends the drag here.
    if (!event->buttons().testFlag(Qt::LeftButton)
        || !m_model->marker(m_dragged.first, m_dragged.second))
        m_dragged = {0, 0};
    else
        Q_EMIT markerMoveRequested(m_dragged.first, m_dragged.second,
                                   indexAt(m_dragged.first, QtCompat::position(event)));
}

void CartesianView::onDoubleClick(QMouseEvent *event)
{
    const QPointF position = QtCompat::position(event);
    if (event->button() != Qt::LeftButton || m_dragged.first)
        return;
    double nearest = s_reach;
    int picked = 0;
    for (const Trace &trace : traces()) {
        if (!trace.visible || m_model->network(trace).frequencies.isEmpty())
            continue;
        const double value =
            cartesianValueAt(m_model->data(trace), indexAt(trace.id, position), m_format);
        const double distance = std::abs(m_plot->yAxis->coordToPixel(value) - position.y());
        if (distance < nearest) {
            nearest = distance;
            picked = trace.id;
        }
    }
    if (picked)
        Q_EMIT pointPicked(picked, indexAt(picked, position));
}

} // namespace Panel
