// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "smithreader_p.h"

#include <controls/thememanager.h>
#include <plot/markerslayer_p.h>

#include <QKeyEvent>

#include <cmath>

using namespace SmithChart;

namespace
{

/// In pixels.
constexpr double ringSize = 18.0;

} // namespace

/// The active trace, or the first that is shown, or -1.
int SmithReader::Private::traceToWalk() const
{
    const QVector<int> shown = traces();
    if (shown.isEmpty())
        return -1;
    return shown.contains(chart->activeTrace()) ? chart->activeTrace() : shown.first();
}

bool SmithReader::Private::step(const WalkStep &step)
{
    const int trace = traceToWalk();
    if (trace != walked)
        index = -1.0;
    walked = trace;
    const ReadTrace of = data(trace);
    walk.setData(of.real, of.imag);
    QVector<double> places;
    for (const MarkerId &id : markers()) {
        if (id.trace == trace)
            places << chart->markerIndex(id.trace, id.number);
    }
    walk.setMarkers(places);
    walk.setLimitEdges(limitEdges(trace));
    const std::optional<double> reached =
        walk.walked(of.holds(index) ? index : -1.0, step, 0.2 / chart->viewState().zoom);
    if (!reached)
        return false;
    const bool moved = *reached != index;
    const auto before = of.holds(index) ? std::optional(point(of, index).reflection) : std::nullopt;
    index = *reached;
    const PointValues here = point(of, index);
    text = placeText(walk.featuresAt(index), walk.vswr(), here, stimulusText, before);
    showRing({here.reflection.real(), here.reflection.imag()});
    return moved;
}

void SmithReader::Private::showRing(const QPointF &place)
{
    if (!chart->xAxis() || !chart->yAxis())
        return;
    QCustomPlot *const plot = chart->getPlot(); // there, since a trace is
    if (!ring) {
        Plot::raiseMarkersLayer(plot);
        ring = new QCPItemTracer(plot);
        ring->setLayer(Plot::markersLayerName());
        ring->setSelectable(false);
        ring->setStyle(QCPItemTracer::tsCircle);
        ring->setSize(ringSize);
        ring->setBrush(Qt::NoBrush);
    }
    ring->position->setAxes(chart->xAxis(), chart->yAxis());
    ring->position->setCoords(place);
    ring->setPen(QPen(Controls::ThemeManager::instance()->textColor(), 2.0));
    ring->setVisible(true);
    plot->replot(QCustomPlot::rpQueuedReplot);
}

SmithReader::SmithReader(SmithChartPlot *chart)
    : QObject(chart)
    , d(std::make_unique<Private>())
{
    d->chart = chart;
    QCustomPlot *const plot = chart ? chart->getPlot() : nullptr;
    if (!plot)
        return;
    d->accessible = AccessiblePlot::on(plot);
    d->accessible->add(d.get());
    if ((plot->focusPolicy() & Qt::TabFocus) == 0)
        plot->setFocusPolicy(Qt::StrongFocus);
    plot->installEventFilter(this);
}

SmithReader::~SmithReader()
{
    if (d->accessible)
        d->accessible->remove(d.get());
    if (d->ring)
        d->ring->parentPlot()->removeItem(d->ring);
}

void SmithReader::setName(const QString &name)
{
    d->ownName = name;
}

void SmithReader::setTraceName(int trace, const QString &name)
{
    d->names.insert(trace, name);
}

void SmithReader::setStimulusText(const StimulusText &text)
{
    if (text)
        d->stimulusText = text;
    else
        d->stimulusText = [](double hertz) { return hertzText(hertz); };
}

bool SmithReader::setVswr(double ratio)
{
    return d->walk.setVswr(ratio);
}

void SmithReader::addLimit(SmithLimit *limit, int trace)
{
    d->limits.append({limit, trace});
}

void SmithReader::setTakesKeys(bool takes)
{
    d->takesKeys = takes;
}

QString SmithReader::summary() const
{
    return d->summary();
}

bool SmithReader::walk(const WalkStep &step)
{
    if (!d->chart || !d->step(step))
        return false;
    const QString text = d->text;
    const QPointer<SmithReader> self(this);
    if (d->accessible)
        d->accessible->announce(text);
    if (self)
        Q_EMIT said(text);
    return true;
}

void SmithReader::endWalk()
{
    d->index = -1.0;
    if (d->ring) {
        d->ring->setVisible(false);
        d->ring->parentPlot()->replot(QCustomPlot::rpQueuedReplot);
    }
    if (d->accessible)
        d->accessible->announce({});
}

int SmithReader::walkedTrace() const
{
    return d->index < 0.0 ? -1 : d->walked;
}

double SmithReader::walkedIndex() const
{
    return d->index;
}

bool SmithReader::eventFilter(QObject *, QEvent *event)
{
    if (event->type() != QEvent::KeyPress || !d->takesKeys)
        return false;
    const auto *const key = static_cast<QKeyEvent *>(event);
    if (const auto step = walkStepOf(key->key(), key->modifiers())) {
        walk(*step);
        return true;
    }
    if (walkedTrace() < 0)
        return false;
    if (key->key() == Qt::Key_Escape) {
        endWalk();
        return true;
    }
    const ReadTrace of = d->data(d->walked);
    if ((key->key() != Qt::Key_Return && key->key() != Qt::Key_Enter) || !of.holds(d->index))
        return false;
    if (d->chart->onlyHandleActiveTrace())
        Q_EMIT d->chart->activeTraceDoubleClicked(d->walked, of.stimulusAt(d->index),
                                                  key->modifiers());
    else
        Q_EMIT d->chart->pointDoubleClicked(d->walked, static_cast<int>(std::round(d->index)),
                                            key->modifiers());
    return true;
}
