// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The traces of the model, and what they make of their data.
#include "panelmodel.h"

#include "cartesian.h"

#include <cmath>

namespace Panel
{

namespace
{

/// The points that are averaged of a trace: an odd number, so that the middle one stays.
int averagedPoints(const Trace &trace, int points)
{
    return trace.smoothing > 0.0 ? 2 * int(std::lround(trace.smoothing / 200.0 * points)) + 1 : 0;
}

/// Smoothed as it is drawn: a line over the frequency has its values averaged, one in the plane both
/// parts of the parameter.
TraceData smoothedAs(const Trace &trace, TraceData data)
{
    const int points = averagedPoints(trace, data.points());
    if (trace.overFrequency())
        data.averagedPoints = points;
    else if (points > 1)
        data.parameter = {smoothed(data.parameter.real, points),
                          smoothed(data.parameter.imag, points)};
    return data;
}

} // namespace

TraceData PanelModel::traceData(const Trace &trace) const
{
    TraceData measured = Panel::traceData(network(trace), trace.to, trace.from);
    if (trace.math == TraceMath::DataAndMemory && trace.smoothing == 0.0) {
        m_processed.remove(trace.id);
        return measured;
    }
    const TraceRevision current = revision(trace);
    const auto found = m_processed.constFind(trace.id);
    if (found != m_processed.constEnd() && found->first == current)
        return found->second;
    const TraceData *stored = memory(trace.id);
    TraceData result =
        smoothedAs(trace, stored ? combined(measured, *stored, trace.math) : measured);
    if (m_processed.size() > traces().size())
        m_processed.clear(); // of traces that are gone
    m_processed.insert(trace.id, {current, result});
    return result;
}

std::optional<TraceData> PanelModel::drawnMemory(const Trace &trace) const
{
    const TraceData *stored = memory(trace.id);
    if (!stored || trace.math != TraceMath::DataAndMemory)
        return {};
    return smoothedAs(trace, *stored);
}

const Trace *PanelModel::activeTrace(DiagramKind kind) const
{
    QVector<int> among;
    for (const Trace &trace : traces()) {
        if (trace.kind() == kind)
            among.append(trace.id);
    }
    return activeTrace(among);
}

QString PanelModel::parameterName(const Trace &trace)
{
    return Panel::parameterName(trace.to, trace.from);
}

/// Traces show something else, and what follows their values goes along.
void PanelModel::tellTraces()
{
    if (isChanging())
        return;
    Q_EMIT tracesChanged();
    trackMarkers();
}

int PanelModel::addTrace(int like, int wanted)
{
    const int id = m_traces.addLike(like, wanted);
    if (id == 0)
        return 0;
    const Markers::Changes changes = m_markers.setTraces(m_traces.ids());
    Q_EMIT tracesChanged();
    tell(changes);
    setActiveTrace(id);
    return id;
}

void PanelModel::removeTrace(int id)
{
    const Trace *active = activeTrace();
    const bool wasActive = active && active->id == id;
    const bool selected = selectedMarker();
    if (!m_traces.remove(id))
        return;
    const Markers::Changes changes = m_markers.setTraces(m_traces.ids());
    Q_EMIT tracesChanged();
    tell(changes);
    if (wasActive)
        Q_EMIT activeTraceChanged();
    if (selected && !selectedMarker()) {
        m_markers.select(0, 0);
        Q_EMIT selectedMarkerChanged();
    }
}

void PanelModel::setLimits(int id, const QVector<LimitLine> &limits)
{
    if (m_traces.setLimits(id, limits))
        Q_EMIT limitsChanged(id);
}

void PanelModel::setActiveTrace(int id)
{
    if (!m_traces.setActive(id))
        return;
    // The marker of the same number, or else a first one: keys that are about a marker have one then.
    const Marker *selected = selectedMarker();
    const QVector<Marker> own = markersOf(id);
    const int number = selected && markersCoupled() ? selected->number
        : own.isEmpty()                             ? 0
                                                    : own.first().number;
    const bool reselected = selected && selected->trace != id && m_markers.select(id, number);
    Q_EMIT activeTraceChanged();
    if (reselected)
        Q_EMIT selectedMarkerChanged();
}

void PanelModel::setTraceVisible(int id, bool visible)
{
    if (m_traces.setVisible(id, visible))
        Q_EMIT traceVisibleChanged(id, visible);
}

void PanelModel::setTraceName(int id, const QString &name)
{
    if (m_traces.setName(id, name))
        tellTraces();
}

void PanelModel::setTraceNetwork(int id, int network)
{
    if (m_traces.setNetwork(id, network, m_networks))
        tellTraces();
}

void PanelModel::setTraceDiagram(int id, int number)
{
    if (!trace(id))
        return;
    const TraceChanges changes(this);
    const QVector<PlannedDiagram> diagrams = allDiagrams();
    for (int i = 0; i < diagrams.size(); ++i) {
        for (const int member : diagrams.at(i).traces)
            m_traces.setDiagram(member, i + 1);
    }
    m_traces.setDiagram(id, qBound(1, number, int(diagrams.size()) + 1));
}

void PanelModel::setDiagramsAutomatic()
{
    const TraceChanges changes(this);
    for (const int id : m_traces.ids())
        m_traces.setDiagram(id, 0);
}

void PanelModel::restoreTraceDiagram(int id, int number)
{
    if (m_traces.setDiagram(id, number))
        tellTraces();
}

void PanelModel::setTraceFormat(int id, TraceFormat format)
{
    if (m_traces.setFormat(id, format, m_networks))
        tellTraces();
}

void PanelModel::setTraceParameter(int id, int to, int from)
{
    const bool stored = memory(id);
    if (!m_traces.setParameter(id, to, from, m_networks))
        return;
    if (stored)
        Q_EMIT memoryChanged(id);
    tellTraces();
}

void PanelModel::setTraceScale(int id, const Scale &scale)
{
    if (m_traces.setScale(id, scale))
        Q_EMIT traceScaleChanged(id);
}

void PanelModel::fitTrace(int id)
{
    fitTraceBy(id, 0.0);
}

/// The same with divisions of at least this size.
void PanelModel::fitTraceBy(int id, double smallestDivision)
{
    const Trace *trace = this->trace(id);
    if (!trace || trace->onSmithChart())
        return;
    ValueRange range = valueRange(traceData(*trace), trace->format);
    const double missing =
        smallestDivision * (traits(trace->format).divisions - 1) - (range.highest - range.lowest);
    if (missing > 0.0) {
        range.lowest -= missing / 2.0;
        range.highest += missing / 2.0;
    }
    Scale scale = fittingScale(trace->format, range.lowest, range.highest);
    if (trace->overFrequency())
        scale.position = trace->scale.position;
    setTraceScale(id, scale);
}

void PanelModel::storeMemory(int id)
{
    if (const Trace *trace = this->trace(id))
        restoreMemory(id, Panel::traceData(network(*trace), trace->to, trace->from));
}

void PanelModel::restoreMemory(int id, const TraceData &memory)
{
    if (!m_traces.storeMemory(id, memory))
        return;
    Q_EMIT memoryChanged(id);
    trackMarkers();
}

void PanelModel::clearMemory(int id)
{
    const bool calculated = trace(id) && trace(id)->math != TraceMath::DataAndMemory;
    if (!m_traces.clearMemory(id))
        return;
    Q_EMIT memoryChanged(id);
    if (calculated)
        tellTraces();
}

void PanelModel::setTraceMath(int id, TraceMath math)
{
    if (!m_traces.setMath(id, math))
        return;
    // The result is nowhere near the data, and right after these were stored there is nothing of it
    // but noise.
    constexpr double smallest = 0.1;
    if (math == TraceMath::Divided || math == TraceMath::Subtracted)
        fitTraceBy(id, smallest * traits(trace(id)->format).defaultScale.perDivision);
    tellTraces();
}

void PanelModel::setSmoothing(int id, double percent)
{
    if (m_traces.setSmoothing(id, percent))
        tellTraces();
}

} // namespace Panel
