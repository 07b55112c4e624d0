// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cartesianview.h"

#include <panel/look/look.h>
#include <panel/model/format.h>

#include <plot/qcp.h>
#include <base/qtcompat_p.h>

#include <algorithm>
#include <cmath>

namespace Panel
{

namespace
{

constexpr int s_frequencyDivisions = 10;
/// How near a finger must be to a marker or a line, in pixels.
constexpr double s_reach = 24.0;

QString activeLayer()
{
    return QStringLiteral("activeTrace");
}

} // namespace

CartesianView::CartesianView(const PanelModel *model, QWidget *parent)
    : DiagramView(model, parent)
{
    setUpPlot();
    connect(plot(), &QCustomPlot::mousePress, this, &CartesianView::onPress);
    connect(plot(), &QCustomPlot::mouseMove, this, &CartesianView::onMove);
    connect(plot(), &QCustomPlot::mouseRelease, this, [this] { m_dragged = {0, 0}; });
    connect(m_model, &PanelModel::traceScaleChanged, this, [this](int id) {
        showScale(id);
        updateTitle();
    });
    recolor();
}

void CartesianView::setUpPlot()
{
    plot()->setAccessibleName(tr("Cartesian diagram"));
    plot()->addLayer(activeLayer(), plot()->layer(QStringLiteral("main")));
    // Above is room for a marker on the topmost line and its number.
    plot()->axisRect()->setMinimumMargins(QMargins(12, 18 + fontMetrics().height() + 6, 14, 14));
    plot()->axisRect()->setupFullAxesBox();
    for (QCPAxis *axis : plot()->axisRect()->axes()) {
        axis->setTicks(axis == plot()->yAxis || axis == plot()->xAxis);
        axis->setTickPen(Qt::NoPen);
        axis->setSubTicks(false);
        axis->setTickLabels(axis == plot()->yAxis);
    }
    plot()->yAxis->setTickLabelPadding(8);
    plot()->xAxis->grid()->setZeroLinePen(Qt::NoPen);
    plot()->yAxis->grid()->setZeroLinePen(Qt::NoPen);
    plot()->yAxis->setNumberFormat(QStringLiteral("gb"));
    plot()->yAxis->setNumberPrecision(4);
    plot()->xAxis->setTicker(QSharedPointer<QCPAxisTickerFixed>::create());
    plot()->yAxis->setTicker(QSharedPointer<QCPAxisTickerFixed>::create());
    setFrequencies(m_lowest, m_highest);
}

QCPGraph *CartesianView::graph(int traceId) const
{
    const auto found = m_lines.find(traceId);
    return found == m_lines.end() ? nullptr : found->second.graph;
}

QCPGraph *CartesianView::memoryGraph(int traceId) const
{
    const auto found = m_lines.find(traceId);
    return found == m_lines.end() ? nullptr : found->second.memory;
}

const Plot::Marker *CartesianView::marker(int traceId, int number) const
{
    const auto found = m_markers.find({traceId, number});
    return found == m_markers.end() ? nullptr : &found->second;
}

void CartesianView::clearLines()
{
    m_markers.clear();
    m_dragged = {0, 0};
    plot()->clearGraphs();
    for (const auto &[id, line] : m_lines)
        plot()->axisRect()->removeAxis(line.values);
    m_lines.clear();
}

void CartesianView::loadTraces()
{
    clearLines();
    for (const Trace &trace : traces()) {
        Line &line = m_lines[trace.id];
        line.values = plot()->axisRect()->addAxis(QCPAxis::atLeft);
        line.values->setVisible(false);
        line.values->grid()->setVisible(false);
        line.graph = plot()->addGraph(plot()->xAxis, line.values);
        line.graph->setSelectable(QCP::stNone);
        line.graph->setVisible(trace.visible);
    }
    if (m_lines.empty())
        return;
    const bool magnified = zoom() > 1.0 && m_lowest < m_highest;
    fitFrequencies();
    if (magnified)
        setFrequencies(plot()->xAxis->range().lower, plot()->xAxis->range().upper);
    else
        setFrequencies(m_lowest, m_highest);
    for (const Trace &trace : traces()) {
        showScale(trace.id);
        showMemory(trace);
        for (const Marker &marker : m_model->markersOf(trace.id))
            addMarker(trace, marker);
    }
    loadLines();
    showActiveTrace();
    recolor();
}

void CartesianView::updateTraces(int network)
{
    const double lowest = m_lowest, highest = m_highest;
    fitFrequencies();
    if (lowest != m_lowest || highest != m_highest)
        setFrequencies(m_lowest, m_highest);
    for (const Trace &trace : traces()) {
        if (trace.network == network)
            loadLine(trace);
    }
}

void CartesianView::loadLines()
{
    for (const Trace &trace : traces())
        loadLine(trace);
}

void CartesianView::loadLine(const Trace &trace)
{
    const auto found = m_lines.find(trace.id);
    if (found == m_lines.end())
        return;
    const QCPRange range = plot()->xAxis->range();
    const auto load = [&](QCPGraph *graph, const QVector<double> &frequencies,
                          const Parameter &parameter) {
        const CartesianLine line = cartesianLine(frequencies, parameter, trace.format,
                                                 plot()->width(), range.lower, range.upper);
        graph->setData(line.frequencies, line.values, true);
    };
    load(found->second.graph, m_model->network(trace).frequencies, m_model->data(trace));
    const Memory *memory = m_model->memory(trace.id);
    if (found->second.memory && memory)
        load(found->second.memory, memory->frequencies, memory->parameter);
    for (const Marker &marker : m_model->markersOf(trace.id))
        moveMarker(trace, marker);
    replotLater();
}

void CartesianView::showMemory(const Trace &trace)
{
    Line &line = m_lines.at(trace.id);
    const bool stored = m_model->memory(trace.id);
    if (!stored && line.memory) {
        plot()->removeGraph(line.memory);
        line.memory = nullptr;
    } else if (stored && !line.memory) {
        line.memory = plot()->addGraph(plot()->xAxis, line.values);
        line.memory->setSelectable(QCP::stNone);
        line.memory->setPen(QPen(currentLook().memory(trace.id)));
        line.memory->setVisible(trace.visible);
    }
    loadLine(trace);
}

void CartesianView::fitFrequencies()
{
    m_lowest = qInf();
    m_highest = -qInf();
    for (const Trace &trace : traces()) {
        const QVector<double> &frequencies = m_model->network(trace).frequencies;
        if (frequencies.isEmpty())
            continue;
        m_lowest = qMin(m_lowest, frequencies.first());
        m_highest = qMax(m_highest, frequencies.last());
    }
    if (m_lowest > m_highest)
        m_lowest = m_highest = 0.0;
    // A single frequency stands in the middle.
    if (m_lowest == m_highest) {
        m_lowest -= 1.0;
        m_highest += 1.0;
    }
}

void CartesianView::setFrequencies(double from, double to)
{
    // Also a range that was chosen for other frequencies keeps the limits of the zoom.
    const double whole = m_highest - m_lowest;
    const double span = qBound(whole / mostZoom, to - from, whole);
    from = qBound(m_lowest, from, m_highest - span);
    const QCPRange range(from, from + span);
    if (range == plot()->xAxis->range())
        return;
    auto ticker = qSharedPointerCast<QCPAxisTickerFixed>(plot()->xAxis->ticker());
    ticker->setTickOrigin(range.lower);
    ticker->setTickStep(range.size() / s_frequencyDivisions);
    plot()->xAxis->setRange(range);
    replotLater();
}

void CartesianView::showScale(int traceId)
{
    const auto found = m_lines.find(traceId);
    if (found == m_lines.end())
        return;
    const Trace &trace = *m_model->trace(traceId);
    const QCPRange range(trace.scale.top - divisions(trace.format) * trace.scale.perDivision,
                         trace.scale.top);
    found->second.values->setRange(range);
    for (const Marker &marker : m_model->markersOf(traceId))
        moveMarker(trace, marker);
    const Trace *active = activeTrace();
    if (active && active->id == traceId) {
        auto ticker = qSharedPointerCast<QCPAxisTickerFixed>(plot()->yAxis->ticker());
        ticker->setTickOrigin(trace.scale.top);
        // Where divisions are too low for their numbers, each line stands for several.
        const double height = plot()->axisRect()->height() / double(divisions(trace.format));
        const double needed = QFontMetricsF(plot()->yAxis->tickLabelFont()).height() / height;
        const int step = needed <= 1.0 ? 1 : needed <= 2.0 ? 2 : 5;
        ticker->setTickStep(step * trace.scale.perDivision);
        plot()->yAxis->setRange(range);
    }
    replotLater();
}

void CartesianView::setTraceVisible(const Trace &trace)
{
    const Line &line = m_lines.at(trace.id);
    line.graph->setVisible(trace.visible);
    if (line.memory)
        line.memory->setVisible(trace.visible);
    for (auto &[key, marker] : m_markers) {
        if (key.first == trace.id)
            marker.setVisible(trace.visible);
    }
    replotLater();
}

void CartesianView::showActiveTrace()
{
    const Trace *active = activeTrace();
    for (const auto &[id, line] : m_lines)
        line.graph->setLayer(active && active->id == id ? activeLayer() : QStringLiteral("main"));
    if (active)
        showScale(active->id);
    replotLater();
}

void CartesianView::addMarker(const Trace &trace, const Marker &added)
{
    Plot::Marker &marker = m_markers
                               .emplace(MarkerKey(trace.id, added.number),
                                        Plot::Marker(plot(), added.number, Plot::PointingDown))
                               .first->second;
    marker.getLabel()->setText(QString::number(added.number));
    marker.setVisible(trace.visible);
    moveMarker(trace, added);
    showSelectedMarker();
}

void CartesianView::moveMarker(const Trace &trace, const Marker &moved)
{
    const auto found = m_markers.find({trace.id, moved.number});
    if (found == m_markers.end())
        return;
    const double hertz = valueAt(m_model->network(trace).frequencies, moved.index);
    const double value = cartesianValueAt(m_model->data(trace), moved.index, trace.format);
    const bool shown =
        trace.visible && std::isfinite(value) && plot()->xAxis->range().contains(hertz);
    Plot::Marker &marker = found->second;
    // Beyond the scale it stands at the diagram's edge, of which the upper one lies a pixel outside
    // for the plot.
    const QCPRange scale = m_lines.at(trace.id).values->range();
    const double pixel = scale.size() / qMax(2, plot()->axisRect()->height());
    marker.setPositionCoordinates(graph(trace.id), hertz,
                                  qBound(scale.lower, value, scale.upper - pixel));
    if (marker.isVisible() != shown)
        marker.setVisible(shown);
    replotLater();
}

void CartesianView::removeMarker(int traceId, int number)
{
    m_markers.erase({traceId, number});
    replotLater();
}

void CartesianView::showSelectedMarker()
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
    replotLater();
}

void CartesianView::recolor()
{
    const Look look = currentLook();
    plot()->setBackground(look.background);
    // Fainter than a border: the lines carry the meaning.
    QColor faint = look.border;
    faint.setAlphaF(0.5);
    QFont labels = font();
    labels.setPixelSize(qMax(9, QFontInfo(labels).pixelSize() - 2));
    for (QCPAxis *axis : plot()->axisRect()->axes()) {
        axis->setBasePen(QPen(look.border));
        axis->setTickLabelColor(look.dimText);
        axis->setTickLabelFont(labels);
        axis->grid()->setPen(QPen(faint));
    }
    for (const auto &[id, line] : m_lines) {
        line.graph->setPen(QPen(look.trace(id)));
        if (line.memory)
            line.memory->setPen(QPen(look.memory(id)));
    }
    showSelectedMarker();
}

QStringList CartesianView::titleParts() const
{
    const Trace *active = activeTrace();
    if (!active)
        return {};
    return {formatName(active->format), scaleText(active->format, active->scale),
            tr("ref %1").arg(cartesianReferenceText(active->scale.top, active->format))};
}

int CartesianView::drawnPoints() const
{
    int count = 0;
    for (const auto &[id, line] : m_lines)
        count += line.graph->visible() ? line.graph->dataCount() : 0;
    return count;
}

void CartesianView::resizeEvent(QResizeEvent *event)
{
    DiagramView::resizeEvent(event);
    // Other columns want other points, and another height other numbers.
    loadLines();
    if (const Trace *active = activeTrace())
        showScale(active->id);
}

double CartesianView::zoom() const
{
    return (m_highest - m_lowest) / plot()->xAxis->range().size();
}

void CartesianView::setZoom(double zoom)
{
    zoomAt(plot()->axisRect()->center(), zoom / this->zoom());
}

void CartesianView::zoomAt(const QPointF &position, double factor)
{
    const double wanted = qBound(1.0, zoom() * factor, mostZoom);
    if (!std::isfinite(wanted))
        return;
    const QCPRange range = plot()->xAxis->range();
    const double anchor = plot()->xAxis->pixelToCoord(position.x());
    const double span = (m_highest - m_lowest) / wanted;
    const double from = anchor - (anchor - range.lower) * span / range.size();
    setFrequencies(from, from + span);
    loadLines();
    Q_EMIT viewChanged();
}

void CartesianView::moveTo(const QPointF &coordinates, const QPointF &position)
{
    if (zoom() <= 1.0)
        return;
    const QCPRange range =
        plot()->xAxis->range() + (coordinates.x() - this->coordinates(position).x());
    setFrequencies(range.lower, range.upper);
    loadLines();
    Q_EMIT viewChanged();
}

void CartesianView::resetView()
{
    setFrequencies(m_lowest, m_highest);
    loadLines();
    Q_EMIT viewChanged();
}

double CartesianView::indexAt(int traceId, const QPointF &position) const
{
    const QVector<double> &frequencies = m_model->network(*m_model->trace(traceId)).frequencies;
    return indexOfFrequency(frequencies, plot()->xAxis->pixelToCoord(position.x()));
}

bool CartesianView::reaches(int traceId) const
{
    const Trace *active = activeTrace();
    return !m_model->viewSettings()->onlyActiveTrace() || (active && active->id == traceId);
}

void CartesianView::onPress(QMouseEvent *event)
{
    m_dragged = {0, 0};
    if (event->button() != Qt::LeftButton)
        return;
    double nearest = s_reach;
    for (const auto &[key, marker] : m_markers) {
        if (!marker.isVisible() || !reaches(key.first))
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

bool CartesianView::pick(const QPoint &position, Qt::KeyboardModifiers)
{
    double nearest = s_reach;
    int picked = 0;
    for (const Trace &trace : traces()) {
        if (!trace.visible || !reaches(trace.id) || m_model->network(trace).frequencies.isEmpty())
            continue;
        const double value =
            cartesianValueAt(m_model->data(trace), indexAt(trace.id, position), trace.format);
        const double distance =
            std::abs(m_lines.at(trace.id).values->coordToPixel(value) - position.y());
        if (distance < nearest) {
            nearest = distance;
            picked = trace.id;
        }
    }
    if (picked)
        Q_EMIT pointPicked(picked, std::round(indexAt(picked, position)));
    return picked > 0;
}

void CartesianView::keyPressEvent(QKeyEvent *event)
{
    const Marker *selected = m_model->selectedMarker();
    if (event->key() == Qt::Key_Delete && selected && traceIds().contains(selected->trace))
        Q_EMIT markerDeleteRequested(selected->trace, selected->number);
    else
        DiagramView::keyPressEvent(event);
}

} // namespace Panel
