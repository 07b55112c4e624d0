// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "marker.h"

#include "markerslayer_p.h"
#include "qcpitemmarkertext_p.h"

#include <QSharedPointer>

#include <algorithm>
#include <cmath>
#include <utility>

namespace Plot
{

namespace
{

constexpr int labelDistance = 20; ///< pixels between the point and the near edge of the label
constexpr double snapFraction = 1e-6; ///< a fraction up to this counts as the point itself

} // namespace

Marker::Marker() = default;

Marker::Marker(QCustomPlot *plot, int id, MarkerType type)
    : m_plot(plot)
    , m_id(id)
    , m_type(type)
{
    if (plot)
        createItems(plot);
}

Marker::~Marker()
{
    removeItems();
}

Marker::Marker(Marker &&other) noexcept
{
    *this = std::move(other);
}

Marker &Marker::operator=(Marker &&other) noexcept
{
    if (this == &other)
        return *this;
    removeItems();
    m_plot = std::exchange(other.m_plot, nullptr);
    m_label = std::exchange(other.m_label, nullptr);
    m_tracer = std::exchange(other.m_tracer, nullptr);
    m_id = std::exchange(other.m_id, -1);
    m_type = std::exchange(other.m_type, PointingDown);
    return *this;
}

bool Marker::isVisible() const
{
    return m_tracer && m_label && m_tracer->visible() && m_label->visible();
}

void Marker::setVisible(bool visible)
{
    if (m_tracer)
        m_tracer->setVisible(visible);
    if (m_label)
        m_label->setVisible(visible);
    queueReplot();
}

void Marker::setType(MarkerType type)
{
    m_type = type;
    if (m_tracer)
        m_tracer->setPointingDown(type != PointingUp);
    updateLabelPlacement();
    queueReplot();
}

void Marker::setShape(TracerShape shape)
{
    if (m_tracer)
        m_tracer->setShape(shape);
    queueReplot();
}

void Marker::setColors(const QPen &pen, const QBrush &brush)
{
    if (m_tracer) {
        m_tracer->setPen(pen);
        m_tracer->setBrush(brush);
    }
    if (m_label)
        m_label->setColor(pen.color());
}

bool Marker::setPosition(QCPCurve *curve, double index)
{
    return placeAtIndex(curve, index);
}

bool Marker::setPosition(QCPGraph *graph, double index)
{
    return qobject_cast<QCustomPlot *>(m_plot) && placeAtIndex(graph, index);
}

bool Marker::setPositionCoordinates(QCPCurve *curve, double x, double y)
{
    return placeAtCoordinates(curve, x, y);
}

bool Marker::setPositionCoordinates(QCPGraph *graph, double x, double y)
{
    return placeAtCoordinates(graph, x, y);
}

template<typename Plottable>
bool Marker::placeAtIndex(Plottable *plottable, double index)
{
    if (!plottable || !plottable->data())
        return false;
    if (m_tracer)
        m_tracer->position->setAxes(plottable->keyAxis(), plottable->valueAxis());
    const auto data = plottable->data();
    const int n = data->size();
    if (n <= 0)
        return false;
    if (!(index > 0.0)) // also catches NaN, which must not reach the conversion to int
        index = 0.0;
    index = std::min(index, n - 1.0);
    const int i = static_cast<int>(std::floor(index));
    const double f = index - i;
    const auto point = data->at(i);
    double x = point->key;
    double y = point->value;
    if (f > snapFraction && i < n - 1) {
        const auto next = data->at(i + 1);
        x = x * (1.0 - f) + f * next->key;
        y = y * (1.0 - f) + f * next->value;
    }
    if (m_tracer)
        m_tracer->position->setCoords(x, y);
    return true;
}

bool Marker::placeAtCoordinates(QCPAbstractPlottable *plottable, double x, double y)
{
    if (!qobject_cast<QCustomPlot *>(m_plot) || !plottable || !m_tracer || !std::isfinite(x)
        || !std::isfinite(y))
        return false;
    m_tracer->position->setAxes(plottable->keyAxis(), plottable->valueAxis());
    m_tracer->position->setCoords(x, y);
    return true;
}

void Marker::createItems(QCustomPlot *plot)
{
    raiseMarkersLayer(plot);

    m_tracer = new QCPItemTracerMarker(plot);
    m_tracer->setPen(QPen(QBrush(Qt::darkGreen, Qt::SolidPattern), 1.5));
    m_tracer->setBrush(QBrush(Qt::NoBrush));
    m_tracer->setSize(15);
    m_tracer->position->setType(QCPItemPosition::ptPlotCoords);
    m_tracer->setClipToAxisRect(false);
    m_tracer->setLayer(markersLayerName());
    m_tracer->setSelectable(true);
    m_tracer->setPointingDown(m_type != PointingUp);
    queueReplot();

    m_label = new QCPItemMarkerText(plot, m_tracer);
    m_label->setText(QString()); // the owner's to choose; QCustomPlot starts with a placeholder
    m_label->position->setType(QCPItemPosition::ptAbsolute);
    m_label->position->setParentAnchor(m_tracer->position, false);
    m_label->setClipToAxisRect(false);
    m_label->setBrush(Qt::NoBrush);
    m_label->setPen(Qt::NoPen);
    m_label->setPadding(QMargins(1, 1, 1, 1));
    m_label->setColor(Qt::darkGreen);
    QFont font(QStringLiteral("HarmonyOS Sans SC"), 11, QFont::Normal, false);
    font.setStyleStrategy(QFont::PreferAntialias);
    m_label->setFont(font);
    m_label->setSelectable(true);
    m_label->setLayer(markersLayerName());
    updateLabelPlacement();
}

void Marker::removeItems()
{
    const auto remove = [this](QCPAbstractItem *item) {
        if (item && qobject_cast<QCustomPlot *>(m_plot))
            item->parentPlot()->removeItem(item);
    };
    remove(m_label);
    remove(m_tracer);
    m_label = nullptr;
    m_tracer = nullptr;
}

void Marker::updateLabelPlacement()
{
    if (!m_label || !m_tracer)
        return;
    if (m_tracer->isPointingDown()) {
        m_label->position->setCoords(0, -labelDistance);
        m_label->setPositionAlignment(Qt::AlignHCenter | Qt::AlignBottom);
    } else {
        m_label->position->setCoords(0, labelDistance);
        m_label->setPositionAlignment(Qt::AlignHCenter | Qt::AlignTop);
    }
}

void Marker::queueReplot()
{
    if (auto *const plot = qobject_cast<QCustomPlot *>(m_plot))
        plot->replot(QCustomPlot::rpQueuedReplot);
}

} // namespace Plot
