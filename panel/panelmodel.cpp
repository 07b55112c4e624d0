// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "panelmodel.h"

#include <algorithm>

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
    for (int i = 0; i < m_networks.size(); ++i) {
        for (int port = 1; port <= m_networks.at(i).ports; ++port)
            m_traces.append({int(m_traces.size()) + 1, i, port, port, true});
        if (m_networks.at(i).ports == 2) {
            m_traces.append({int(m_traces.size()) + 1, i, 2, 1, true});
            m_traces.append({int(m_traces.size()) + 1, i, 1, 2, true});
        }
    }
    m_markers.clear();
    m_selectedTrace = 0;
    m_selectedNumber = 0;
    m_activeTrace = m_traces.isEmpty() ? 0 : m_traces.first().id;
    for (const Trace::Kind kind : {Trace::Reflection, Trace::Transmission}) {
        const auto first =
            std::find_if(m_traces.begin(), m_traces.end(),
                         [kind](const Trace &trace) { return trace.kind() == kind; });
        m_lastActive[kind] = first == m_traces.end() ? 0 : first->id;
    }
    Q_EMIT networksChanged();
    Q_EMIT activeTraceChanged();
    Q_EMIT selectedMarkerChanged();
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
    const auto [from, to] = shownPoints(whole.frequencies, wanted);
    const int shift = m_firstShown.at(index) - from;
    m_firstShown[index] = from;
    m_shown[index] = part(whole, from, to);
    for (Marker &marker : m_markers) {
        if (this->trace(marker.trace)->network == index)
            marker.index = std::clamp(marker.index + shift, 0.0, double(to - from));
    }
    Q_EMIT stimulusChanged(index);
}

bool PanelModel::updateNetwork(int index, const Network &network)
{
    if (index < 0 || index >= m_networks.size() || network.ports != m_networks.at(index).ports
        || network.frequencies.isEmpty())
        return false;
    const QVector<double> before = m_shown.at(index).frequencies;
    m_networks[index] = network;
    m_shown[index] = network;
    m_firstShown[index] = 0;
    m_stimuli[index] = limits(index);
    QVector<Marker> moved;
    for (Marker &marker : m_markers) {
        if (trace(marker.trace)->network != index || sameSweep(before, network.frequencies))
            continue;
        marker.index = indexOfFrequency(network.frequencies, valueAt(before, marker.index));
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
    m_lastActive[trace(id)->kind()] = id;
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
    m_markers.append({traceId, number, index});
    Q_EMIT markerAdded(traceId, number);
    selectMarker(traceId, number);
    return number;
}

void PanelModel::moveMarker(int traceId, int number, double index)
{
    if (!holdsIndex(traceId, index))
        return;
    for (Marker &marker : m_markers) {
        if (marker.trace == traceId && marker.number == number && marker.index != index) {
            marker.index = index;
            Q_EMIT markerMoved(traceId, number);
            return;
        }
    }
}

void PanelModel::removeMarker(int traceId, int number)
{
    const Marker *found = marker(traceId, number);
    if (!found)
        return;
    const bool selected = found == selectedMarker();
    m_markers.remove(int(found - m_markers.constData()));
    Q_EMIT markerRemoved(traceId, number);
    if (selected)
        selectMarker(0, 0);
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
