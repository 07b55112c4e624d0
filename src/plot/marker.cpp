// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "marker.h"

#include "markerslayer_p.h"
#include "qcpitemmarkertext_p.h"

#include <QPointer>
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

struct Marker::Private {
    QPointer<QObject> plot; ///< a QObject, because a plot half destroyed must not pass for a plot
    QPointer<QCPItemText> label;
    QPointer<QCPItemTracerMarker> tracer;
    int id = -1;
    MarkerType type = PointingDown;
};

Marker::Marker()
    : d(std::make_unique<Private>())
{
}

Marker::Marker(QCustomPlot *plot, int id, MarkerType type)
    : Marker()
{
    d->plot = plot;
    d->id = id;
    d->type = type;
    if (plot)
        createItems(plot);
}

Marker::~Marker()
{
    removeItems();
}

Marker::Marker(Marker &&other) noexcept
    : Marker()
{
    *this = std::move(other);
}

Marker &Marker::operator=(Marker &&other) noexcept
{
    if (this == &other)
        return *this;
    removeItems();
    *d = std::exchange(*other.d, Private());
    return *this;
}

int Marker::getId() const
{
    return d->id;
}

MarkerType Marker::getType() const
{
    return d->type;
}

QCPItemText *Marker::getLabel() const
{
    return d->label;
}

QCPItemTracer *Marker::getTracer() const
{
    return d->tracer;
}

bool Marker::isVisible() const
{
    return d->tracer && d->label && d->tracer->visible() && d->label->visible();
}

void Marker::setVisible(bool visible)
{
    if (d->tracer)
        d->tracer->setVisible(visible);
    if (d->label)
        d->label->setVisible(visible);
    queueReplot();
}

void Marker::setType(MarkerType type)
{
    d->type = type;
    if (d->tracer)
        d->tracer->setPointingDown(type != PointingUp);
    updateLabelPlacement();
    queueReplot();
}

void Marker::setShape(TracerShape shape)
{
    if (d->tracer)
        d->tracer->setShape(shape);
    queueReplot();
}

void Marker::setColors(const QPen &pen, const QBrush &brush)
{
    if (d->tracer) {
        d->tracer->setPen(pen);
        d->tracer->setBrush(brush);
    }
    if (d->label)
        d->label->setColor(pen.color());
}

bool Marker::setPosition(QCPCurve *curve, double index)
{
    return placeAtIndex(curve, index);
}

bool Marker::setPosition(QCPGraph *graph, double index)
{
    return qobject_cast<QCustomPlot *>(d->plot) && placeAtIndex(graph, index);
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
    if (d->tracer)
        d->tracer->position->setAxes(plottable->keyAxis(), plottable->valueAxis());
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
    if (f > snapFraction) {
        const auto next = data->at(i + 1);
        x = x * (1.0 - f) + f * next->key;
        y = y * (1.0 - f) + f * next->value;
    }
    if (d->tracer)
        d->tracer->position->setCoords(x, y);
    return true;
}

bool Marker::placeAtCoordinates(QCPAbstractPlottable *plottable, double x, double y)
{
    if (!qobject_cast<QCustomPlot *>(d->plot) || !plottable || !d->tracer || !std::isfinite(x)
        || !std::isfinite(y))
        return false;
    d->tracer->position->setAxes(plottable->keyAxis(), plottable->valueAxis());
    d->tracer->position->setCoords(x, y);
    return true;
}

void Marker::createItems(QCustomPlot *plot)
{
    raiseMarkersLayer(plot);

    d->tracer = new QCPItemTracerMarker(plot);
    d->tracer->setPen(QPen(QBrush(Qt::darkGreen, Qt::SolidPattern), 1.5));
    d->tracer->setBrush(QBrush(Qt::NoBrush));
    d->tracer->setSize(15);
    d->tracer->position->setType(QCPItemPosition::ptPlotCoords);
    d->tracer->setClipToAxisRect(false);
    d->tracer->setLayer(markersLayerName());
    d->tracer->setSelectable(true);
    d->tracer->setPointingDown(d->type != PointingUp);
    queueReplot();

    d->label = new QCPItemMarkerText(plot, d->tracer);
    d->label->setText(QString()); // the owner's to choose; QCustomPlot starts with a placeholder
    d->label->position->setType(QCPItemPosition::ptAbsolute);
    d->label->position->setParentAnchor(d->tracer->position, false);
    d->label->setClipToAxisRect(false);
    d->label->setBrush(Qt::NoBrush);
    d->label->setPen(Qt::NoPen);
    d->label->setPadding(QMargins(1, 1, 1, 1));
    d->label->setColor(Qt::darkGreen);
    QFont font(QStringLiteral("HarmonyOS Sans SC"), 11, QFont::Normal, false);
    font.setStyleStrategy(QFont::PreferAntialias);
    d->label->setFont(font);
    d->label->setSelectable(true);
    d->label->setLayer(markersLayerName());
    updateLabelPlacement();
}

void Marker::removeItems()
{
    const auto remove = [](QCPAbstractItem *item) {
        if (item)
            item->parentPlot()->removeItem(item);
    };
    remove(d->label);
    remove(d->tracer);
    d->label = nullptr;
    d->tracer = nullptr;
}

void Marker::updateLabelPlacement()
{
    if (!d->label || !d->tracer)
        return;
    if (d->tracer->isPointingDown()) {
        d->label->position->setCoords(0, -labelDistance);
        d->label->setPositionAlignment(Qt::AlignHCenter | Qt::AlignBottom);
    } else {
        d->label->position->setCoords(0, labelDistance);
        d->label->setPositionAlignment(Qt::AlignHCenter | Qt::AlignTop);
    }
}

void Marker::queueReplot()
{
    if (auto *const plot = qobject_cast<QCustomPlot *>(d->plot))
        plot->replot(QCustomPlot::rpQueuedReplot);
}

} // namespace Plot
