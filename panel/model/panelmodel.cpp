// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "panelmodel.h"

#include "cartesian.h"

#include <algorithm>
#include <cmath>

namespace Panel
{

namespace
{

/// First and last index of the points on show.
std::pair<int, int> shownPoints(const QVector<double> &frequencies, const Stimulus &stimulus)
{
    const auto begin = frequencies.begin();
    const int last = int(frequencies.size()) - 1;
    int from = int(std::lower_bound(begin, frequencies.end(), stimulus.start) - begin);
    int to = int(std::upper_bound(begin, frequencies.end(), stimulus.stop) - begin) - 1;
    if (from >= to) {
        // Less than a line: show the one that it lies on.
        to = std::clamp(to + 1, 0, last);
        from = std::max(0, to - 1);
        to = std::min(from + 1, last);
    }
    return {from, to};
}

Network part(const Network &network, int from, int to)
{
    Network result = network;
    if (from == 0 && to == network.frequencies.size() - 1)
        return result; // shares all its data
    const int count = to - from + 1;
    result.frequencies = network.frequencies.mid(from, count);
    for (Parameter &parameter : result.parameters)
        parameter = {parameter.real.mid(from, count), parameter.imag.mid(from, count)};
    return result;
}

} // namespace

const Trace *PanelModel::trace(int id) const
{
    const auto found = std::find_if(m_traces.begin(), m_traces.end(),
                                    [id](const Trace &trace) { return trace.id == id; });
    return found == m_traces.end() ? nullptr : &*found;
}

Trace *PanelModel::findTrace(int id)
{
    return const_cast<Trace *>(trace(id));
}

const Trace *PanelModel::activeTrace(const QVector<int> &among) const
{
    for (const int id : m_recentTraces) {
        if (among.contains(id))
            return trace(id);
    }
    return among.isEmpty() ? nullptr : trace(among.first());
}

const Trace *PanelModel::activeTrace(bool onSmithChart) const
{
    QVector<int> among;
    for (const Trace &trace : m_traces) {
        if (trace.onSmithChart() == onSmithChart)
            among.append(trace.id);
    }
    return activeTrace(among);
}

QString PanelModel::parameterName(const Trace &trace)
{
    return QStringLiteral("S%1%2").arg(trace.to).arg(trace.from);
}

void PanelModel::setNetworks(const QVector<Network> &networks)
{
    m_networks = networks;
    m_shown = networks;
    m_firstShown.fill(0, m_networks.size());
    m_stimuli.clear();
    for (int i = 0; i < m_networks.size(); ++i)
        m_stimuli.append(limits(i));
    m_traces.clear();
    const auto add = [this](int network, int to, int from, TraceFormat format) {
        m_traces.append({int(m_traces.size()) + 1, network, to, from, format, {}, true});
    };
    for (int i = 0; i < m_networks.size(); ++i) {
        for (int port = 1; port <= m_networks.at(i).ports; ++port)
            add(i, port, port, TraceFormat::Smith);
        if (m_networks.at(i).ports == 1) {
            add(i, 1, 1, TraceFormat::LogMagnitude);
        } else if (m_networks.at(i).ports == 2) {
            add(i, 2, 1, TraceFormat::LogMagnitude);
            add(i, 1, 2, TraceFormat::LogMagnitude);
        }
    }
    for (const TraceFormat format : {TraceFormat::Smith, TraceFormat::LogMagnitude}) {
        const Scale scale = usualScale(format);
        for (Trace &trace : m_traces) {
            if (trace.format == format)
                trace.scale = scale;
        }
    }
    m_memories.clear();
    m_markers.clear();
    m_references.clear();
    m_selectedTrace = 0;
    m_selectedNumber = 0;
    m_activeTrace = m_traces.isEmpty() ? 0 : m_traces.first().id;
    m_recentTraces = {m_activeTrace};
    Q_EMIT networksChanged();
    Q_EMIT tracesChanged();
    Q_EMIT activeTraceChanged();
    Q_EMIT selectedMarkerChanged();
}

Scale PanelModel::usualScale(TraceFormat format) const
{
    double highest = qQNaN();
    for (const Trace &trace : m_traces) {
        if (format == TraceFormat::LogMagnitude && trace.format == format)
            highest = std::fmax(highest, highestValue(data(trace), format));
    }
    return Panel::usualScale(format, highest);
}

void PanelModel::setTraceFormat(int id, TraceFormat format)
{
    Trace *trace = findTrace(id);
    if (!trace || trace->format == format)
        return;
    trace->format = format;
    trace->scale = usualScale(format);
    Q_EMIT tracesChanged();
}

void PanelModel::setTraceParameter(int id, int to, int from)
{
    Trace *trace = findTrace(id);
    if (!trace || (trace->to == to && trace->from == from))
        return;
    const int ports = m_networks.at(trace->network).ports;
    if (qMin(to, from) < 1 || qMax(to, from) > ports)
        return;
    trace->to = to;
    trace->from = from;
    // Another parameter's data are nothing to compare with.
    if (m_memories.remove(id) > 0)
        Q_EMIT memoryChanged(id);
    Q_EMIT tracesChanged();
}

void PanelModel::setTraceScale(int id, const Scale &scale)
{
    Trace *trace = findTrace(id);
    if (!trace || trace->scale == scale || !std::isfinite(scale.top)
        || !std::isfinite(scale.perDivision) || !(scale.perDivision > 0.0))
        return;
    trace->scale = scale;
    Q_EMIT traceScaleChanged(id);
}

const Memory *PanelModel::memory(int traceId) const
{
    const auto found = m_memories.constFind(traceId);
    return found == m_memories.constEnd() ? nullptr : &*found;
}

void PanelModel::storeMemory(int id)
{
    const Trace *trace = this->trace(id);
    if (!trace)
        return;
    m_memories.insert(id, {network(*trace).frequencies, data(*trace)});
    Q_EMIT memoryChanged(id);
}

void PanelModel::clearMemory(int id)
{
    if (m_memories.remove(id) > 0)
        Q_EMIT memoryChanged(id);
}

Stimulus PanelModel::limits(int network) const
{
    const QVector<double> &frequencies = m_networks.at(network).frequencies;
    return frequencies.isEmpty() ? Stimulus()
                                 : Stimulus{frequencies.constFirst(), frequencies.constLast()};
}

void PanelModel::setStimulus(const Trace &trace, const Stimulus &stimulus)
{
    const int index = trace.network;
    const Network &whole = m_networks.at(index);
    const Stimulus bounds = limits(index);
    const Stimulus wanted{std::clamp(stimulus.start, bounds.start, bounds.stop),
                          std::clamp(stimulus.stop, bounds.start, bounds.stop)};
    if (wanted == m_stimuli.at(index) || wanted.span() < 0.0 || whole.frequencies.isEmpty())
        return;
    m_stimuli[index] = wanted;
    const int before = m_firstShown.at(index);
    showPart(index);
    const int shift = before - m_firstShown.at(index);
    const int last = m_shown.at(index).points() - 1;
    for (Marker &marker : m_markers) {
        if (this->trace(marker.trace)->network == index)
            marker.index = std::clamp(marker.index + shift, 0.0, double(last));
    }
    Q_EMIT stimulusChanged(index);
}

/// Cuts out of a network what its stimulus leaves.
void PanelModel::showPart(int index)
{
    const Network &whole = m_networks.at(index);
    const auto [from, to] = shownPoints(whole.frequencies, m_stimuli.at(index));
    m_firstShown[index] = from;
    m_shown[index] = part(whole, from, to);
}

bool PanelModel::updateNetwork(int index, const Network &network)
{
    if (index < 0 || index >= m_networks.size() || network.ports != m_networks.at(index).ports
        || network.frequencies.isEmpty())
        return false;
    const QVector<double> before = m_shown.at(index).frequencies;
    const Stimulus stimulus = m_stimuli.at(index);
    const bool magnified = stimulus != limits(index);
    m_networks[index] = network;
    m_stimuli[index] = limits(index);
    if (magnified && stimulus.start < m_stimuli.at(index).stop
        && stimulus.stop > m_stimuli.at(index).start)
        m_stimuli[index] = {qMax(stimulus.start, m_stimuli.at(index).start),
                            qMin(stimulus.stop, m_stimuli.at(index).stop)};
    showPart(index);
    const QVector<double> &now = m_shown.at(index).frequencies;
    QVector<Marker> moved;
    for (Marker &marker : m_markers) {
        if (trace(marker.trace)->network != index)
            continue;
        const double hertz = valueAt(before, marker.index);
        if (marker.index <= int(now.size()) - 1 && valueAt(now, marker.index) == hertz)
            continue; // as in most sweeps
        marker.index = indexOfFrequency(now, hertz);
        if (m_markersDiscrete)
            marker.index = std::round(marker.index);
        moved.append(marker);
    }
    Q_EMIT networkUpdated(index);
    for (const Marker &changed : moved) {
        // A slot may have removed it.
        if (marker(changed.trace, changed.number))
            Q_EMIT markerMoved(changed.trace, changed.number);
    }
    return true;
}

void PanelModel::setActiveTrace(int id)
{
    if (id == m_activeTrace || !trace(id))
        return;
    m_activeTrace = id;
    m_recentTraces.removeOne(id);
    m_recentTraces.prepend(id);
    Q_EMIT activeTraceChanged();
    if (m_selectedTrace != id)
        selectMarker(0, 0);
}

void PanelModel::setTraceVisible(int id, bool visible)
{
    for (Trace &trace : m_traces) {
        if (trace.id == id && trace.visible != visible) {
            trace.visible = visible;
            Q_EMIT traceVisibleChanged(id, visible);
            return;
        }
    }
}

QVector<Marker> PanelModel::activeMarkers() const
{
    return markersOf(m_activeTrace);
}

QVector<Marker> PanelModel::markersOf(int traceId) const
{
    QVector<Marker> result;
    for (int number = 1; number <= markersPerTrace; ++number) {
        if (const Marker *found = marker(traceId, number))
            result.append(*found);
    }
    return result;
}

const Marker *PanelModel::marker(int traceId, int number) const
{
    const auto found = std::find_if(m_markers.begin(), m_markers.end(), [=](const Marker &marker) {
        return marker.trace == traceId && marker.number == number;
    });
    return found == m_markers.end() ? nullptr : &*found;
}

bool PanelModel::holdsIndex(int traceId, double index) const
{
    const Trace *owner = trace(traceId);
    return owner && index >= 0.0 && index <= network(*owner).points() - 1;
}

double PanelModel::indexAt(int traceId, double hertz) const
{
    const QVector<double> &frequencies = network(*trace(traceId)).frequencies;
    if (frequencies.isEmpty() || !(hertz >= frequencies.first() && hertz <= frequencies.last()))
        return -1.0;
    return indexOfFrequency(frequencies, hertz);
}

int PanelModel::addMarker(int traceId, double index)
{
    int number = 1;
    while (marker(traceId, number))
        ++number;
    if (!holdsIndex(traceId, index))
        return 0;
    if (number > markersPerTrace) {
        Q_EMIT markersExhausted(traceId);
        return 0;
    }
    placeMarker(traceId, number, index);
    couple(traceId, number);
    selectMarker(traceId, number);
    return number;
}

void PanelModel::restoreMarker(int traceId, int number, double hertz)
{
    const double index = trace(traceId) ? indexAt(traceId, hertz) : -1.0;
    if (index >= 0.0 && number >= 1 && number <= markersPerTrace)
        placeMarker(traceId, number, index);
}

void PanelModel::moveMarker(int traceId, int number, double index)
{
    if (!holdsIndex(traceId, index) || !marker(traceId, number))
        return;
    placeMarker(traceId, number, index);
    couple(traceId, number);
}

void PanelModel::placeMarker(int traceId, int number, double index)
{
    if (m_markersDiscrete)
        index = std::round(index);
    for (Marker &marker : m_markers) {
        if (marker.trace != traceId || marker.number != number)
            continue;
        if (marker.index != index) {
            marker.index = index;
            Q_EMIT markerMoved(traceId, number);
        }
        return;
    }
    m_markers.append({traceId, number, index});
    Q_EMIT markerAdded(traceId, number);
}

void PanelModel::couple(int traceId, int number)
{
    const Marker *source = marker(traceId, number);
    if (!m_markersCoupled || !source)
        return;
    const double hertz = valueAt(network(*trace(traceId)).frequencies, source->index);
    const QVector<Trace> traces = m_traces; // a slot may change them
    for (const Trace &other : traces) {
        const double index =
            other.id != traceId && trace(other.id) ? indexAt(other.id, hertz) : -1.0;
        if (index >= 0.0)
            placeMarker(other.id, number, index);
    }
}

void PanelModel::removeMarker(int traceId, int number)
{
    if (!marker(traceId, number))
        return;
    dropMarker(traceId, number);
    if (!m_markersCoupled)
        return;
    const QVector<Trace> traces = m_traces;
    for (const Trace &other : traces)
        dropMarker(other.id, number);
}

void PanelModel::dropMarker(int traceId, int number)
{
    const Marker *found = marker(traceId, number);
    if (!found)
        return;
    const bool selected = found == selectedMarker();
    m_markers.remove(int(found - m_markers.constData()));
    Q_EMIT markerRemoved(traceId, number);
    if (m_references.value(traceId) == number)
        setReferenceMarker(traceId, 0);
    if (selected)
        selectMarker(0, 0);
}

void PanelModel::setReferenceMarker(int traceId, int number)
{
    if (number != 0 && !marker(traceId, number))
        number = 0;
    if (m_references.value(traceId) == number)
        return;
    m_references.insert(traceId, number);
    Q_EMIT referenceMarkerChanged(traceId);
}

void PanelModel::setMarkersDiscrete(bool discrete)
{
    if (discrete == m_markersDiscrete)
        return;
    m_markersDiscrete = discrete;
    Q_EMIT markerModeChanged();
    const QVector<Marker> markers = m_markers;
    for (const Marker &each : markers) {
        if (discrete && marker(each.trace, each.number))
            placeMarker(each.trace, each.number, each.index);
    }
}

void PanelModel::setMarkersCoupled(bool coupled)
{
    if (coupled == m_markersCoupled)
        return;
    m_markersCoupled = coupled;
    Q_EMIT markerModeChanged();
    for (const Marker &each : activeMarkers())
        couple(each.trace, each.number);
}

void PanelModel::selectMarker(int traceId, int number)
{
    if (!marker(traceId, number))
        traceId = number = 0;
    if (traceId == m_selectedTrace && number == m_selectedNumber)
        return;
    m_selectedTrace = traceId;
    m_selectedNumber = number;
    setActiveTrace(traceId);
    Q_EMIT selectedMarkerChanged();
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

} // namespace Panel
