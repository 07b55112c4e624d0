// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "panelmodel.h"

#include "cartesian.h"

#include <cmath>

namespace Panel
{

PanelModel::PanelModel(QObject *parent)
    : QObject(parent)
{
}

// Networks and the part of them on show

void PanelModel::replaceNetworks(const QVector<Network> &networks)
{
    m_networks.replace(networks);
    m_traces.rebuild(m_networks);
    QVector<int> ids;
    for (const Trace &trace : traces())
        ids.append(trace.id);
    m_markers.reset(ids);
    m_zooms.clear();
    Q_EMIT networksChanged();
    Q_EMIT tracesChanged();
    Q_EMIT activeTraceChanged();
    Q_EMIT selectedMarkerChanged();
}

void PanelModel::openNetworks(const QVector<Network> &networks)
{
    const bool simulated = isSimulated(m_source);
    m_source = Source::Files;
    m_files = networks;
    replaceNetworks(networks);
    if (simulated)
        Q_EMIT sourceChanged();
}

void PanelModel::beginMeasurement(const Network &network)
{
    if (isSimulated(m_source))
        replaceNetworks({network});
}

bool PanelModel::updateNetwork(int index, const Network &network)
{
    if (!m_networks.update(index, network))
        return false;
    Q_EMIT networkUpdated(index);
    return true;
}

void PanelModel::updateFile(int index, const Network &network)
{
    if (index < 0 || index >= m_files.size())
        return;
    m_files[index] = network;
    if (!isSimulated(m_source) && !updateNetwork(index, network))
        openNetworks(QVector<Network>(m_files));
}

Stimulus PanelModel::stimulus(const Trace &trace) const
{
    return isSimulated(m_source) ? m_sweep.stimulus() : m_networks.stimulus(trace.network);
}

Stimulus PanelModel::limits(const Trace &trace) const
{
    return isSimulated(m_source) ? Sweep::limits : m_networks.limits(trace.network);
}

double PanelModel::smallestSpan() const
{
    return isSimulated(m_source) ? Sweep::smallestSpan : 0.0;
}

void PanelModel::setStimulus(const Trace &trace, const Stimulus &stimulus)
{
    const int network = trace.network;
    if (!isSimulated(m_source)) {
        if (m_networks.setStimulus(network, stimulus))
            Q_EMIT stimulusChanged(network);
        return;
    }
    setSweep({stimulus.start, stimulus.stop, m_sweep.points});
}

namespace
{

/// The points that are averaged of a trace: an odd number, so that the middle one stays.
int averagedPoints(const Trace &trace, int points)
{
    return trace.smoothing > 0.0 ? 2 * int(std::lround(trace.smoothing / 200.0 * points)) + 1 : 0;
}

/// Smoothed as it is drawn: a line over the frequency has its values averaged, a Smith chart both
/// parts of the reflection.
TraceData smoothedAs(const Trace &trace, TraceData data)
{
    const int points = averagedPoints(trace, data.points());
    if (!trace.onSmithChart())
        data.averagedPoints = points;
    else if (points > 1)
        data.parameter = {smoothed(data.parameter.real, points),
                          smoothed(data.parameter.imag, points)};
    return data;
}

} // namespace

TraceData PanelModel::traceData(const Trace &trace) const
{
    const TraceData measured = Panel::traceData(network(trace), trace.to, trace.from);
    if (trace.math == TraceMath::DataAndMemory && trace.smoothing == 0.0)
        return measured;
    const std::pair<quint64, quint64> revisions{m_networks.revision(), m_traces.revision()};
    if (m_processedOf != revisions)
        m_processed.clear();
    m_processedOf = revisions;
    const auto found = m_processed.constFind(trace.id);
    if (found != m_processed.constEnd())
        return *found;
    const TraceData *stored = memory(trace.id);
    const TraceData result =
        smoothedAs(trace, stored ? combined(measured, *stored, trace.math) : measured);
    m_processed.insert(trace.id, result);
    return result;
}

std::optional<TraceData> PanelModel::drawnMemory(const Trace &trace) const
{
    const TraceData *stored = memory(trace.id);
    if (!stored || trace.math != TraceMath::DataAndMemory)
        return {};
    return smoothedAs(trace, *stored);
}

void PanelModel::setCorrection(const Trace &trace, const Correction &correction)
{
    const int network = trace.network;
    if (!m_networks.setCorrection(network, correction))
        return;
    Q_EMIT correctionChanged(network);
    Q_EMIT tracesChanged();
}

// Source

void PanelModel::setSource(Source source)
{
    if (source == Source::Files) {
        if (isSimulated(m_source))
            openNetworks(QVector<Network>(m_files));
        return;
    }
    m_source = source;
    const Sweep sweep = defaultSweep(source, m_sweep.points);
    const bool another = sweep != m_sweep;
    m_sweep = sweep;
    Q_EMIT sourceChanged();
    if (another)
        Q_EMIT sweepChanged();
}

void PanelModel::setSweep(const Sweep &sweep)
{
    if (sweep == m_sweep || !sweep.isValid())
        return;
    m_sweep = sweep;
    Q_EMIT sweepChanged();
}

void PanelModel::setSweeping(bool sweeping)
{
    if (sweeping == m_sweeping)
        return;
    m_sweeping = sweeping;
    Q_EMIT sweepingChanged();
}

void PanelModel::setTuning(double hertz)
{
    const double bounded = qBound(tuningLimits.start, hertz, tuningLimits.stop);
    if (bounded == m_tuning || !std::isfinite(hertz))
        return;
    m_tuning = bounded;
    Q_EMIT tuningChanged();
}

// Traces

const Trace *PanelModel::activeTrace(bool onSmithChart) const
{
    QVector<int> among;
    for (const Trace &trace : traces()) {
        if (trace.onSmithChart() == onSmithChart)
            among.append(trace.id);
    }
    return activeTrace(among);
}

QString PanelModel::parameterName(const Trace &trace)
{
    return Panel::parameterName(trace.to, trace.from);
}

void PanelModel::setActiveTrace(int id)
{
    if (!m_traces.setActive(id))
        return;
    const Marker *selected = selectedMarker();
    const bool reselected = selected && selected->trace != id
        && m_markers.select(id, markersCoupled() ? selected->number : 0);
    Q_EMIT activeTraceChanged();
    if (reselected)
        Q_EMIT selectedMarkerChanged();
}

void PanelModel::setTraceVisible(int id, bool visible)
{
    if (m_traces.setVisible(id, visible))
        Q_EMIT traceVisibleChanged(id, visible);
}

void PanelModel::setTraceFormat(int id, TraceFormat format)
{
    if (m_traces.setFormat(id, format, m_networks))
        Q_EMIT tracesChanged();
}

void PanelModel::setTraceParameter(int id, int to, int from)
{
    const bool stored = memory(id);
    if (!m_traces.setParameter(id, to, from, m_networks))
        return;
    if (stored)
        Q_EMIT memoryChanged(id);
    Q_EMIT tracesChanged();
}

void PanelModel::setTraceScale(int id, const Scale &scale)
{
    if (m_traces.setScale(id, scale))
        Q_EMIT traceScaleChanged(id);
}

void PanelModel::fitTrace(int id)
{
    const Trace *trace = this->trace(id);
    if (!trace || trace->onSmithChart())
        return;
    const ValueRange range = valueRange(traceData(*trace), trace->format);
    setTraceScale(id, fittingScale(trace->format, range.lowest, range.highest));
}

void PanelModel::storeMemory(int id)
{
    const Trace *trace = this->trace(id);
    if (trace
        && m_traces.storeMemory(id, Panel::traceData(network(*trace), trace->to, trace->from)))
        Q_EMIT memoryChanged(id);
}

void PanelModel::clearMemory(int id)
{
    const bool calculated = trace(id) && trace(id)->math != TraceMath::DataAndMemory;
    if (!m_traces.clearMemory(id))
        return;
    Q_EMIT memoryChanged(id);
    if (calculated)
        Q_EMIT tracesChanged();
}

void PanelModel::setTraceMath(int id, TraceMath math)
{
    if (!m_traces.setMath(id, math))
        return;
    if (math == TraceMath::Divided || math == TraceMath::Subtracted)
        fitTrace(id); // the result is nowhere near the data
    Q_EMIT tracesChanged();
}

void PanelModel::setSmoothing(int id, double percent)
{
    if (m_traces.setSmoothing(id, percent))
        Q_EMIT tracesChanged();
}

// Diagrams

QVector<PlannedDiagram> PanelModel::diagrams() const
{
    const Trace *active = activeTrace();
    return planDiagrams(m_viewSettings.diagramLayout(), traces(), active ? active->id : 0);
}

DiagramId PanelModel::diagramOf(int traceId) const
{
    for (const PlannedDiagram &diagram : diagrams()) {
        if (diagram.traces.contains(traceId))
            return diagram.id;
    }
    const Trace *trace = this->trace(traceId);
    return {!trace || trace->onSmithChart(), 0};
}

Zoom PanelModel::zoom(const DiagramId &diagram) const
{
    const auto found = m_zooms.find(diagram);
    return found == m_zooms.end() ? Zoom() : found->second;
}

void PanelModel::setZoom(const DiagramId &diagram, const Zoom &zoom)
{
    const Zoom wanted = bounded(zoom, diagram.smith);
    if (wanted == this->zoom(diagram))
        return;
    if (wanted.isWhole())
        m_zooms.erase(diagram);
    else
        m_zooms[diagram] = wanted;
    Q_EMIT zoomChanged(diagram);
}

// Markers

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
    return index < 0.0 || !markersDiscrete()
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
    if (holdsIndex(traceId, index) && marker(traceId, number))
        placeMarker(traceId, number, index);
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
