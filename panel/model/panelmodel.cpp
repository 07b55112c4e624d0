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

namespace
{

QVector<int> portsOf(const QVector<Network> &networks)
{
    QVector<int> ports;
    for (const Network &network : networks)
        ports << network.ports;
    return ports;
}

} // namespace

/// Shows networks, if asked for in the arrangement in which their source was left.
void PanelModel::replaceNetworks(const QVector<Network> &networks, bool arranged)
{
    m_arrangements[m_shown] = shownArrangement();
    m_shown = m_showsMeasurement ? m_source : Source::Files;
    m_networks.replace(networks);
    m_traces.rebuild(m_networks);
    m_markers.reset(m_traces.ids());
    m_zooms.clear();
    const auto found = m_arrangements.find(m_shown);
    if (arranged && found != m_arrangements.end() && found->second.ports == portsOf(networks))
        arrangeAs(found->second);
    Q_EMIT networksChanged();
    tellTraces();
    Q_EMIT activeTraceChanged();
    Q_EMIT selectedMarkerChanged();
}

PanelModel::Arrangement PanelModel::shownArrangement() const
{
    Arrangement shown{portsOf(networks()), {}, {}, m_traces, m_markers, m_zooms};
    for (int i = 0; i < m_networks.count(); ++i) {
        const Stimulus &stimulus = m_networks.stimulus(i);
        const Stimulus all{0.0, qInf()}; // also of a file that has grown
        shown.stimuli << (stimulus == m_networks.limits(i) ? all : stimulus);
        shown.corrections << m_networks.correction(i);
    }
    return shown;
}

void PanelModel::arrangeAs(const Arrangement &arrangement)
{
    for (int i = 0; i < m_networks.count(); ++i) {
        m_networks.setCorrection(i, arrangement.corrections.at(i));
        if (m_shown == Source::Files) // devices measure what is to be shown
            m_networks.setStimulus(i, arrangement.stimuli.at(i));
    }
    // How markers behave is a matter of all sources.
    const bool discrete = markersDiscrete(), coupled = markersCoupled();
    m_traces = arrangement.traces;
    m_markers = arrangement.markers;
    m_markers.setDiscrete(discrete);
    m_markers.setCoupled(coupled, m_traces.active() ? m_traces.active()->id : 0);
    m_zooms = arrangement.zooms;
}

void PanelModel::openNetworks(const QVector<Network> &networks)
{
    openFiles(networks, false);
}

void PanelModel::openFiles(const QVector<Network> &networks, bool arranged)
{
    const bool measured = m_source != Source::Files;
    m_source = Source::Files;
    m_sourceLimits = {};
    m_sourceState = {};
    m_showsMeasurement = false;
    m_files = networks;
    replaceNetworks(networks, arranged);
    if (measured)
        Q_EMIT sourceChanged();
}

void PanelModel::beginMeasurement(const Network &network)
{
    if (m_source == Source::Files)
        return;
    m_showsMeasurement = true;
    replaceNetworks({network}, true);
}

bool PanelModel::updateNetwork(int index, const Network &network)
{
    if (!m_networks.update(index, network))
        return false;
    Q_EMIT networkUpdated(index);
    trackMarkers();
    return true;
}

void PanelModel::updateFile(int index, const Network &network)
{
    if (index < 0 || index >= m_files.size())
        return;
    m_files[index] = network;
    if (!m_showsMeasurement && m_source == Source::Files && !updateNetwork(index, network))
        openNetworks(QVector<Network>(m_files));
}

/// Whether the stimulus is that of a sweep, and not the part of a file on show. Until the first data
/// of an instrument come, files are.
bool PanelModel::sweeps() const
{
    return isSimulated(m_source) || (m_source == Source::Instrument && m_showsMeasurement);
}

Stimulus PanelModel::stimulus(int network) const
{
    return sweeps() ? m_sweep.stimulus() : m_networks.stimulus(network);
}

Stimulus PanelModel::limits(const Trace &trace) const
{
    return sweeps() ? Stimulus{m_sourceLimits.frequency.lowest, m_sourceLimits.frequency.highest}
                    : m_networks.limits(trace.network);
}

double PanelModel::smallestSpan() const
{
    return sweeps() ? m_sourceLimits.smallestSpan : 0.0;
}

void PanelModel::setStimulus(int network, const Stimulus &stimulus)
{
    if (!sweeps()) {
        if (m_networks.setStimulus(network, stimulus)) {
            Q_EMIT stimulusChanged(network);
            trackMarkers();
        }
        return;
    }
    setSweep({stimulus.start, stimulus.stop, m_sweep.points});
}

void PanelModel::setCorrection(int network, const Correction &correction)
{
    if (!m_networks.setCorrection(network, correction))
        return;
    Q_EMIT correctionChanged(network);
    tellTraces();
}

// Source

void PanelModel::setSource(Source source)
{
    if (source == Source::Files) {
        if (m_source != Source::Files)
            openFiles(QVector<Network>(m_files), true);
        return;
    }
    const bool wasSimulated = isSimulated(m_source);
    m_source = source;
    m_sourceLimits = Panel::sourceLimits(source);
    m_sourceState = {};
    // The first data of an instrument may take long, and nobody shall take a simulation for them.
    if (source == Source::Instrument && wasSimulated) {
        m_showsMeasurement = false;
        replaceNetworks(QVector<Network>(m_files), true);
    }
    const Sweep sweep = isSimulated(source)
        ? defaultSweep(source, qMin(m_sweep.points, Sweep::maximumPoints))
        : m_sweep;
    const bool another = sweep != m_sweep;
    m_sweep = sweep;
    Q_EMIT sourceChanged();
    if (another)
        Q_EMIT sweepChanged();
}

void PanelModel::setInstrument(const QString &address)
{
    m_instrument = address;
    setSource(Source::Instrument);
}

void PanelModel::setSourceState(const SourceState &state, const SourceLimits &limits)
{
    if (m_source == Source::Files)
        return;
    m_sourceState = state;
    m_sourceLimits = limits;
    Q_EMIT sourceStateChanged();
}

void PanelModel::takeSettings(const MeasurementSettings &settings)
{
    if (settings.acquisition != m_acquisition) {
        m_acquisition = settings.acquisition;
        Q_EMIT acquisitionChanged();
    }
    if (settings.sweep != m_sweep) {
        m_sweep = settings.sweep;
        Q_EMIT sweepChanged();
    }
}

bool PanelModel::isStale() const
{
    return m_source == Source::Instrument && m_showsMeasurement
        && m_sourceState.phase != SourceState::Ready;
}

void PanelModel::setSweep(const Sweep &sweep)
{
    const bool valid =
        m_source == Source::Instrument ? m_sourceLimits.allow(sweep) : sweep.isValid();
    if (sweep == m_sweep || !valid)
        return;
    m_sweep = sweep;
    Q_EMIT sweepChanged();
}

void PanelModel::setAcquisition(const Acquisition &acquisition)
{
    const Acquisition bounded = m_sourceLimits.bounded(acquisition);
    if (bounded == m_acquisition)
        return;
    m_acquisition = bounded;
    Q_EMIT acquisitionChanged();
}

void PanelModel::sweepOnce()
{
    setSweeping(false);
    if (m_source != Source::Files)
        Q_EMIT singleRequested();
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

// Diagrams

QVector<PlannedDiagram> PanelModel::allDiagrams() const
{
    return Panel::allDiagrams(m_viewSettings.diagramLayout(), traces());
}

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
    return {trace ? trace->kind() : DiagramKind::Smith, 0};
}

Zoom PanelModel::zoom(const DiagramId &diagram) const
{
    const auto found = m_zooms.find(diagram);
    return found == m_zooms.end() ? Zoom() : found->second;
}

void PanelModel::setZoom(const DiagramId &diagram, const Zoom &zoom)
{
    const Zoom wanted = bounded(zoom, diagram.kind);
    if (wanted == this->zoom(diagram))
        return;
    if (wanted.isWhole())
        m_zooms.erase(diagram);
    else
        m_zooms[diagram] = wanted;
    Q_EMIT zoomChanged(diagram);
}

} // namespace Panel
