// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The markers of the model.
#include "panelmodel.h"

#include "markersearch.h"

#include <QScopedValueRollback>

#include <cmath>

namespace Panel
{

QVector<Marker> PanelModel::activeMarkers() const
{
    const Trace *active = activeTrace();
    return active ? markersOf(active->id) : QVector<Marker>();
}

bool PanelModel::isSelected(const Marker &marker) const
{
    const Marker *selected = selectedMarker();
    return selected && selected->trace == marker.trace && selected->number == marker.number;
}

double PanelModel::indexOf(const Marker &marker) const
{
    const double index = indexOfPlace(network(*trace(marker.trace)).frequencies, marker.place);
    return markersDiscrete() ? std::round(index) : index;
}

double PanelModel::hertzOf(const Marker &marker) const
{
    const double index = indexOf(marker);
    return index < 0.0 || !markersDiscrete() || marker.isFixed()
        ? marker.place.hertz
        : valueAt(network(*trace(marker.trace)).frequencies, index);
}

bool PanelModel::holdsIndex(int traceId, double index) const
{
    const Trace *owner = trace(traceId);
    return owner && index >= 0.0 && index <= network(*owner).points() - 1;
}

int PanelModel::addMarker(int traceId, double index)
{
    if (!holdsIndex(traceId, index))
        return 0;
    const int number = m_markers.freeNumber(traceId);
    if (number == 0) {
        Q_EMIT markersExhausted(traceId);
        return 0;
    }
    placeMarker(traceId, number, index);
    selectMarker(traceId, number);
    return number;
}

void PanelModel::restoreMarker(int traceId, int number, const StimulusPlace &place)
{
    if (trace(traceId) && number >= 1 && number <= Markers::perTrace && std::isfinite(place.hertz))
        tell(m_markers.place(traceId, number, place));
}

void PanelModel::moveMarker(int traceId, int number, double index)
{
    const Marker *moved = marker(traceId, number);
    if (!holdsIndex(traceId, index) || !moved || moved->isFixed())
        return;
    if (m_markers.setTracking(traceId, number, Tracking::Off))
        Q_EMIT markerTrackingChanged(traceId);
    placeMarker(traceId, number, index);
}

void PanelModel::setMarkerTracking(int traceId, int number, Tracking tracking)
{
    const Marker *set = marker(traceId, number);
    if (!set || set->tracking == tracking)
        return;
    const bool wasFixed = set->isFixed();
    if (tracking == Tracking::Fixed) {
        const MarkedPoint point = markedPoint(*set);
        const TraceFormat format = trace(traceId)->format;
        if (point.index >= 0.0)
            restoreFixedMarker(
                traceId, number,
                {point.data.at(point.index), point.data.reference, format, point.value(format)});
        return;
    }
    m_markers.setTracking(traceId, number, tracking);
    Q_EMIT markerTrackingChanged(traceId);
    if (wasFixed && marker(traceId, number))
        Q_EMIT markerMoved(traceId, number);
    trackMarkers();
}

void PanelModel::restoreFixedMarker(int traceId, int number, const FixedPoint &point)
{
    if (!m_markers.fix(traceId, number, point))
        return;
    Q_EMIT markerTrackingChanged(traceId);
    if (marker(traceId, number))
        Q_EMIT markerMoved(traceId, number);
}

MarkedPoint PanelModel::markedPoint(const Marker &marker) const
{
    if (!marker.isFixed())
        return {traceData(*trace(marker.trace)), indexOf(marker)};
    MarkedPoint point;
    point.data.frequencies = {marker.place.hertz};
    point.data.parameter = {{marker.fixed.s.real()}, {marker.fixed.s.imag()}};
    point.data.reference = marker.fixed.reference;
    point.kept = std::pair(marker.fixed.format, marker.fixed.value);
    return point;
}

/// Moves the markers that follow a value to where it is now.
void PanelModel::trackMarkers()
{
    const QScopedValueRollback<bool> tracking(m_tracking, true);
    for (const Marker &marker : QVector<Marker>(m_markers.all())) {
        const Trace *owner = trace(marker.trace);
        if (marker.tracking == Tracking::Off || marker.isFixed() || !owner)
            continue;
        const Search search =
            marker.tracking == Tracking::Maximum ? Search::Maximum : Search::Minimum;
        const int found = searchMarker(traceData(*owner), owner->format, search, 0.0);
        if (found >= 0)
            placeMarker(marker.trace, marker.number, found);
    }
}

void PanelModel::placeMarker(int traceId, int number, double index)
{
    if (markersDiscrete())
        index = std::round(index);
    const QVector<double> &frequencies = network(*trace(traceId)).frequencies;
    tell(m_markers.place(traceId, number, placeAt(frequencies, index)));
}

/// Emits what became of markers, but for those that a slot has removed meanwhile.
void PanelModel::tell(const Markers::Changes &changes)
{
    for (const MarkerChange &change : changes) {
        const bool exists = marker(change.trace, change.number);
        if (change.kind == MarkerChange::Removed)
            Q_EMIT markerRemoved(change.trace, change.number);
        else if (exists && change.kind == MarkerChange::Added)
            Q_EMIT markerAdded(change.trace, change.number);
        else if (exists)
            Q_EMIT markerMoved(change.trace, change.number);
    }
}

void PanelModel::removeMarker(int traceId, int number)
{
    const bool selected = selectedMarker();
    QVector<int> unreferenced;
    const Markers::Changes changes = m_markers.remove(traceId, number);
    for (const MarkerChange &change : changes) {
        // Asked after the removal, a reference that is gone counts as none.
        if (!m_markers.reference(change.trace))
            unreferenced += m_markers.setReference(change.trace, 0);
    }
    if (selected && !selectedMarker())
        m_markers.select(0, 0);
    tell(changes);
    for (const int trace : qAsConst(unreferenced))
        Q_EMIT referenceMarkerChanged(trace);
    if (selected && !selectedMarker())
        Q_EMIT selectedMarkerChanged();
}

void PanelModel::selectMarker(int traceId, int number)
{
    if (!m_markers.select(traceId, number))
        return;
    const Marker *selected = selectedMarker();
    if (selected && m_traces.setActive(selected->trace))
        Q_EMIT activeTraceChanged();
    Q_EMIT selectedMarkerChanged();
}

void PanelModel::setReferenceMarker(int traceId, int number)
{
    const QVector<int> changed = m_markers.setReference(traceId, number);
    for (const int trace : changed)
        Q_EMIT referenceMarkerChanged(trace);
}

void PanelModel::setMarkersDiscrete(bool discrete)
{
    if (m_markers.setDiscrete(discrete))
        Q_EMIT markerModeChanged();
}

void PanelModel::setMarkersCoupled(bool coupled)
{
    const Trace *active = activeTrace();
    if (coupled == markersCoupled())
        return;
    const Markers::Changes changes = m_markers.setCoupled(coupled, active ? active->id : 0);
    const QVector<int> referenced =
        coupled ? m_markers.shareReference(active ? active->id : 0) : QVector<int>();
    Q_EMIT markerModeChanged();
    tell(changes);
    for (const int trace : referenced)
        Q_EMIT referenceMarkerChanged(trace);
}

} // namespace Panel
