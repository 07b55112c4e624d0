// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "smithchartplot_p.h"

#include "tracepoint.h"

#include <plot/markerselection.h>

#include <QMouseEvent>

#include <algorithm>
#include <limits>

namespace
{

/// A marker id is the trace id times this plus the marker's number.
constexpr int markersPerTrace = 100;

} // namespace

int SmithChartPlot::makeMarkerId(int traceId, int localId)
{
    // Unsigned, because any trace id is allowed: one beyond the ids' range wraps around.
    return static_cast<int>(static_cast<unsigned>(traceId) * markersPerTrace
                            + static_cast<unsigned>(localId));
}

void SmithChartPlot::parseMarkerId(int id, int &traceId, int &localId)
{
    traceId = id / markersPerTrace;
    localId = id - traceId * markersPerTrace;
}

bool SmithChartPlot::addMarkerVisual(int traceId, int localId, double sourceIndex,
                                     Plot::MarkerType type)
{
    auto *const trace = d->findTrace(traceId);
    // A number beyond the ids' range would read back as another trace's; 0 is none, but has a place.
    const bool isNumber = localId >= 0 && localId < markersPerTrace;
    return isNumber && trace && trace->curve && !d->findMarker(traceId, localId)
        && d->createMarkerVisualAt(*trace, localId, sourceIndex, type);
}

/// Adds a marker to a trace whose curve is there, and the plot with it.
bool SmithChartPlotPrivate::createMarkerVisualAt(OwnedCurve &trace, int localId, double sourceIndex,
                                                 Plot::MarkerType type)
{
    const auto count = trace.real.size();
    const bool valid = sourceIndex >= 0.0 && sourceIndex < static_cast<double>(count);

    OwnedMarker record;
    record.marker = std::make_unique<Plot::Marker>(
        plot(), SmithChartPlot::makeMarkerId(trace.traceId, localId), type);
    record.curve = trace.curve;
    record.traceId = trace.traceId;
    record.localId = localId;
    record.sourceIndex = valid ? sourceIndex : -1.0;
    if (!valid) {
        record.marker->setVisible(false);
        record.marker->getTracer()->setSelectable(false);
        record.marker->getLabel()->setSelectable(false);
    } else if (!positionMarker(trace, record, sourceIndex)) {
        return false;
    }
    drawMarkerSelection(record, false);
    record.marker->getLabel()->setText(QString::number(localId));
    m_ownedMarkers.push_back(std::move(record));
    bumpMarkerRevision(trace);
    requestQueuedReplot();
    return true;
}

bool SmithChartPlot::removeMarkerVisual(int traceId, int localId)
{
    const int index = d->findMarkerIndexByID(traceId, localId);
    if (index < 0)
        return false;
    const QPointer<QCPCurve> curve = d->m_ownedMarkers[static_cast<std::size_t>(index)].curve;
    d->m_ownedMarkers.erase(d->m_ownedMarkers.begin() + index);
    if (auto *const trace = d->findOwnedCurve(curve))
        d->bumpMarkerRevision(*trace);
    const int id = makeMarkerId(traceId, localId);
    if (d->m_draggingMarkerId == id)
        d->forgetDrag();
    if (d->m_selectedMarkerId == id) {
        d->m_selectedMarkerId = -1;
        const QPointer<SmithChartPlot> self(this);
        Q_EMIT markerSelectionCleared();
        if (!self)
            return true;
    }
    d->requestQueuedReplot();
    return true;
}

/// Removes all markers of a trace; the chart may be gone afterwards, deleted by a slot.
void SmithChartPlotPrivate::removeMarkersOfTrace(int traceId)
{
    const QPointer<SmithChartPlot> self(q);
    while (self) {
        const auto found = std::find_if(
            m_ownedMarkers.cbegin(), m_ownedMarkers.cend(),
            [traceId](const OwnedMarker &record) { return record.traceId == traceId; });
        if (found == m_ownedMarkers.cend())
            return;
        q->removeMarkerVisual(traceId, found->localId);
    }
}

void SmithChartPlot::clearAllMarkers()
{
    if (!d->plot())
        return;
    d->forgetDrag();
    d->m_selectedMarkerId = -1; // no signal: whoever clears everything knows
    d->m_ownedMarkers.clear();
    for (auto &trace : d->m_curves)
        d->bumpMarkerRevision(trace);
    d->requestQueuedReplot();
}

bool SmithChartPlot::selectMarker(int traceId, int localId)
{
    const auto *const record = d->findMarker(traceId, localId);
    if (!record || !record->curve || !record->curve->visible())
        return false;
    const int id = makeMarkerId(traceId, localId);
    if (id != d->m_selectedMarkerId) {
        int oldTraceId = 0;
        int oldLocalId = 0;
        const bool hadSelection = getSelectedMarker(oldTraceId, oldLocalId);
        d->m_selectedMarkerId = id;
        const QPointer<SmithChartPlot> self(this);
        // The replot's handler or a slot may choose otherwise.
        const auto overruled = [&self, id] { return !self || self->d->m_selectedMarkerId != id; };
        if (hadSelection)
            d->updateMarkerVisualSelection(oldTraceId, oldLocalId, false);
        if (overruled())
            return true;
        Q_EMIT markerSelected(traceId, localId);
        if (overruled())
            return true;
    }
    d->updateMarkerVisualSelection(traceId, localId, true);
    return true;
}

void SmithChartPlot::clearMarkerSelection()
{
    int traceId = 0;
    int localId = 0;
    if (!getSelectedMarker(traceId, localId))
        return;
    d->m_selectedMarkerId = -1;
    const QPointer<SmithChartPlot> self(this);
    d->updateMarkerVisualSelection(traceId, localId, false);
    if (!self || d->m_selectedMarkerId >= 1) // the replot's handler may have selected another
        return;
    Q_EMIT markerSelectionCleared();
    if (self)
        d->requestQueuedReplot();
}

bool SmithChartPlot::getSelectedMarker(int &traceId, int &localId) const
{
    if (d->m_selectedMarkerId < 1)
        return false;
    parseMarkerId(d->m_selectedMarkerId, traceId, localId);
    return true;
}

Plot::Marker *SmithChartPlot::getMarker(int traceId, int localId)
{
    const auto *const record = d->findMarker(traceId, localId);
    return record ? record->marker.get() : nullptr;
}

const Plot::Marker *SmithChartPlot::getMarker(int traceId, int localId) const
{
    return const_cast<SmithChartPlot *>(this)->getMarker(traceId, localId);
}

QVector<const Plot::Marker *> SmithChartPlot::markers(int traceId) const
{
    QVector<const Plot::Marker *> found;
    for (const auto &record : d->m_ownedMarkers) {
        if (record.traceId == traceId)
            found.append(record.marker.get());
    }
    return found;
}

bool SmithChartPlot::hasVisibleMarkers() const
{
    return std::any_of(d->m_ownedMarkers.cbegin(), d->m_ownedMarkers.cend(),
                       [](const auto &record) { return record.marker->isVisible(); });
}

bool SmithChartPlot::setMarkerIndex(int traceId, int localId, double sourceIndex)
{
    auto *const record = d->findMarker(traceId, localId);
    if (!record)
        return false;
    auto *const trace = d->findOwnedCurve(record->curve);
    const auto count = trace ? trace->real.size() : 0;
    if (sourceIndex < 0.0 || sourceIndex >= static_cast<double>(count)
        || !d->positionMarker(*trace, *record, sourceIndex))
        return false;
    if (record->sourceIndex != sourceIndex) {
        record->sourceIndex = sourceIndex;
        ++trace->markerRevision;
    }
    d->refreshDisplayCurve(*trace, false);
    d->requestQueuedReplot();
    return true;
}

double SmithChartPlot::markerIndex(int traceId, int localId) const
{
    const SmithChartPlotPrivate::OwnedMarker *const record = d->findMarker(traceId, localId);
    return record ? record->sourceIndex : -1.0;
}

bool SmithChartPlot::setMarkerLabelText(int traceId, int localId, const QString &text)
{
    Plot::Marker *const marker = getMarker(traceId, localId);
    if (!marker || !marker->getLabel())
        return false;
    marker->getLabel()->setText(text);
    d->requestQueuedReplot();
    return true;
}

bool SmithChartPlot::setMarkerVisible(int traceId, int localId, bool visible)
{
    Plot::Marker *const marker = getMarker(traceId, localId);
    if (!marker)
        return false;
    marker->setVisible(visible);
    if (marker->getTracer())
        marker->getTracer()->setSelectable(visible);
    if (marker->getLabel())
        marker->getLabel()->setSelectable(visible);
    d->requestQueuedReplot();
    return true;
}

bool SmithChartPlot::beginMarkerDragAt(const QPoint &pos)
{
    if (!d->plot())
        return false;
    const QPointer<SmithChartPlot> self(this);
    d->catchMarkerAt(pos);
    return self && isDraggingMarker();
}

void SmithChartPlot::updateMarkerDragAt(const QPoint &pos)
{
    if (!d->plot() || !isDraggingMarker())
        return;
    QMouseEvent move(QEvent::MouseMove, QPointF(pos), d->plot()->mapToGlobal(pos), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    d->onPlotMouseMove(&move);
}

void SmithChartPlot::endMarkerDragAt(const QPoint &pos)
{
    Q_UNUSED(pos) // the marker stays where the host last put it
    if (d->plot())
        d->finishDrag();
}

bool SmithChartPlot::isDraggingMarker() const
{
    return d->m_draggingMarkerId >= 1;
}

double SmithChartPlot::markerHitTolerancePx() const
{
    return d->m_markerHitTolerancePx;
}

void SmithChartPlot::setMarkerHitTolerancePx(double px)
{
    d->m_markerHitTolerancePx = px > 0.0 ? px : 0.0; // NaN gives 0
    constexpr double highest = std::numeric_limits<int>::max();
    if (QCustomPlot *const plot = d->plot())
        plot->setSelectionTolerance(qRound(std::min(d->m_markerHitTolerancePx, highest)));
}

SmithChartPlotPrivate::OwnedMarker *SmithChartPlotPrivate::findMarker(int traceId, int localId)
{
    const int index = findMarkerIndexByID(traceId, localId);
    return index < 0 ? nullptr : &m_ownedMarkers[static_cast<std::size_t>(index)];
}

int SmithChartPlotPrivate::findMarkerIndexByID(int traceId, int localId) const
{
    const auto found =
        std::find_if(m_ownedMarkers.cbegin(), m_ownedMarkers.cend(),
                     [traceId, localId](const OwnedMarker &record) {
                         return record.traceId == traceId && record.localId == localId;
                     });
    return found == m_ownedMarkers.cend() ? -1 : static_cast<int>(found - m_ownedMarkers.cbegin());
}

/// Lets the display pick up that a trace's markers changed.
void SmithChartPlotPrivate::bumpMarkerRevision(OwnedCurve &record)
{
    ++record.markerRevision;
    refreshDisplayCurve(record, false);
}

bool SmithChartPlotPrivate::positionMarker(const OwnedCurve &trace, const OwnedMarker &record,
                                           double sourceIndex)
{
    const auto point = SmithChart::tracePoint(trace.real, trace.imag, sourceIndex);
    return point && record.marker->setPositionCoordinates(record.curve, point->x(), point->y());
}

void SmithChartPlotPrivate::drawMarkerSelection(const OwnedMarker &record, bool selected)
{
    if (record.curve)
        Plot::drawMarker(*record.marker, record.curve->pen(), selected);
}

void SmithChartPlotPrivate::updateMarkerVisualSelection(int traceId, int localId, bool selected)
{
    if (const OwnedMarker *const record = findMarker(traceId, localId)) {
        drawMarkerSelection(*record, selected);
        requestQueuedReplot();
    }
}

/// Gives a trace's markers the colour that its pen has now.
void SmithChartPlotPrivate::recolorMarkers(QCPCurve *curve)
{
    for (const OwnedMarker &record : m_ownedMarkers) {
        if (record.curve == curve)
            drawMarkerSelection(record,
                                SmithChartPlot::makeMarkerId(record.traceId, record.localId)
                                    == m_selectedMarkerId);
    }
}

/// Puts the markers of a trace back on their indices; one beyond the end of new data stays where it
/// was.
void SmithChartPlotPrivate::replaceMarkers(const OwnedCurve &trace)
{
    for (const OwnedMarker &record : m_ownedMarkers) {
        if (record.curve == trace.curve)
            positionMarker(trace, record, record.sourceIndex);
    }
}
