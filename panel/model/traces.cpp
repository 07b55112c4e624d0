// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "traces.h"

#include "cartesian.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Panel
{

namespace
{

/// More would be a tangle; further parameters are a tap away.
constexpr int s_portsAtFirst = 4;

} // namespace

QVector<int> Traces::ids() const
{
    QVector<int> result;
    for (const Trace &trace : m_all)
        result.append(trace.id);
    return result;
}

const Trace *Traces::find(int id) const
{
    const auto found = std::find_if(m_all.begin(), m_all.end(),
                                    [id](const Trace &trace) { return trace.id == id; });
    return found == m_all.end() ? nullptr : &*found;
}

/// The same to be changed: copies of the list that somebody holds stay as they are.
Trace *Traces::edit(int id)
{
    const Trace *found = find(id);
    return found ? &m_all[int(found - m_all.constData())] : nullptr;
}

const Trace *Traces::active(const QVector<int> &among) const
{
    for (const int id : m_recent) {
        if (among.contains(id))
            return find(id);
    }
    return among.isEmpty() ? nullptr : find(among.first());
}

const TraceData *Traces::memory(int id) const
{
    const auto found = m_memories.constFind(id);
    return found == m_memories.constEnd() ? nullptr : &*found;
}

void Traces::rebuild(const Networks &networks)
{
    m_all.clear();
    m_memories.clear();
    const auto add = [this](int network, int to, int from, TraceFormat format) {
        Trace trace;
        trace.id = int(m_all.size()) + 1;
        trace.network = network;
        trace.to = to;
        trace.from = from;
        trace.format = format;
        renew(&trace);
        m_all.append(trace);
    };
    for (int i = 0; i < networks.count(); ++i) {
        const int ports = networks.all().at(i).ports;
        const int shown = std::min(ports, s_portsAtFirst);
        for (int port = 1; port <= shown; ++port)
            add(i, port, port, TraceFormat::Smith);
        if (ports == 1)
            add(i, 1, 1, TraceFormat::LogMagnitude);
        for (int port = 2; port <= shown; ++port)
            add(i, port, 1, TraceFormat::LogMagnitude);
        if (ports == 2)
            add(i, 1, 2, TraceFormat::LogMagnitude);
    }
    const Scale decibels = startScale(TraceFormat::LogMagnitude, networks);
    for (Trace &trace : m_all)
        trace.scale = trace.overFrequency() ? decibels : defaultScale(trace.format, 0.0);
    m_recent.clear();
    if (!m_all.isEmpty())
        m_recent.append(m_all.first().id);
}

/// The scale that all traces of a format share until the user sets one, so that they can be
/// compared.
Scale Traces::startScale(TraceFormat format, const Networks &networks) const
{
    ValueRange range;
    for (const Trace &trace : m_all) {
        if (trace.format != format)
            continue;
        const ValueRange own =
            valueRange(traceData(networks.shown(trace.network), trace.to, trace.from), format);
        range = {std::fmin(range.lowest, own.lowest), std::fmax(range.highest, own.highest)};
    }
    return traits(format).beginsFitted ? fittingScale(format, range.lowest, range.highest)
                                       : defaultScale(format, range.highest);
}

int Traces::addLike(int id, int wanted)
{
    const Trace *like = find(id);
    if (!like || m_all.size() >= Trace::maximumCount)
        return 0;
    Trace added = *like;
    added.id = wanted > 0 && wanted <= Trace::maximumCount && !find(wanted) ? wanted : 1;
    while (find(added.id))
        ++added.id;
    added.math = TraceMath::DataAndMemory;
    added.name.clear();
    const auto after = std::find_if(m_all.begin(), m_all.end(),
                                    [&](const Trace &trace) { return trace.id > added.id; });
    renew(&added);
    m_all.insert(after, added);
    return added.id;
}

bool Traces::remove(int id)
{
    if (!find(id) || m_all.size() <= 1)
        return false;
    clearMemory(id);
    m_all.remove(int(find(id) - m_all.constData())); // clearMemory() may have moved them

    m_recent.removeOne(id);
    if (m_recent.isEmpty())
        m_recent.append(m_all.first().id);
    return true;
}

bool Traces::setLimits(int id, const QVector<LimitLine> &limits)
{
    Trace *trace = edit(id);
    const bool valid = std::all_of(limits.begin(), limits.end(),
                                   [](const LimitLine &limit) { return limit.isValid(); });
    if (!trace || trace->limits == limits || !valid || limits.size() > LimitLine::perTrace)
        return false;
    trace->limits = limits;
    return true;
}

bool Traces::setActive(int id)
{
    if (id == m_recent.value(0) || !find(id))
        return false;
    m_recent.removeOne(id);
    m_recent.prepend(id);
    return true;
}

bool Traces::setVisible(int id, bool visible)
{
    Trace *trace = edit(id);
    if (!trace || trace->visible == visible)
        return false;
    trace->visible = visible;
    return true;
}

bool Traces::setName(int id, const QString &name)
{
    Trace *trace = edit(id);
    const QString wanted = name.simplified().left(Trace::longestName).trimmed();
    if (!trace || trace->name == wanted)
        return false;
    trace->name = wanted;
    renew(trace);
    return true;
}

bool Traces::setDiagram(int id, int number)
{
    Trace *trace = edit(id);
    return trace && number >= 0 && std::exchange(trace->diagram, number) != number;
}

bool Traces::setNetwork(int id, int network, const Networks &networks)
{
    Trace *trace = edit(id);
    if (!trace || network < 0 || network >= networks.count() || trace->network == network)
        return false;
    trace->network = network;
    const int ports = networks.all().at(network).ports;
    trace->to = std::min(trace->to, ports);
    trace->from = std::min(trace->from, ports);
    renew(trace);
    return true;
}

bool Traces::setFormat(int id, TraceFormat format, const Networks &networks)
{
    Trace *trace = edit(id);
    if (!trace || trace->format == format)
        return false;
    trace->format = format;
    trace->scale = startScale(format, networks);
    renew(trace);
    return true;
}

bool Traces::setParameter(int id, int to, int from, const Networks &networks)
{
    Trace *trace = edit(id);
    if (!trace || (trace->to == to && trace->from == from))
        return false;
    if (qMin(to, from) < 1 || qMax(to, from) > networks.all().at(trace->network).ports)
        return false;
    trace->to = to;
    trace->from = from;
    clearMemory(id);
    renew(trace);
    return true;
}

bool Traces::setScale(int id, const Scale &scale)
{
    Trace *trace = edit(id);
    if (!trace || !std::isfinite(scale.top) || !std::isfinite(scale.perDivision)
        || !(scale.perDivision > 0.0) || scale.position < 0
        || scale.position > traits(trace->format).divisions)
        return false;
    const Scale wanted = trace->kind() == DiagramKind::Polar
        ? traits(trace->format).defaultScale.withDivision(scale.perDivision)
        : scale;
    return std::exchange(trace->scale, wanted) != wanted;
}

bool Traces::storeMemory(int id, const TraceData &memory)
{
    if (!find(id))
        return false;
    m_memories.insert(id, memory);
    renew(edit(id));
    return true;
}

bool Traces::clearMemory(int id)
{
    if (m_memories.remove(id) == 0)
        return false;
    Trace *trace = edit(id);
    trace->math = TraceMath::DataAndMemory;
    renew(trace);
    return true;
}

bool Traces::setMath(int id, TraceMath math)
{
    Trace *trace = edit(id);
    if (!trace || trace->math == math || !memory(id))
        return false;
    trace->math = math;
    renew(trace);
    return true;
}

bool Traces::setSmoothing(int id, double percent)
{
    Trace *trace = edit(id);
    const double bounded = std::clamp(percent, 0.0, Trace::maximumSmoothing);
    if (!trace || !std::isfinite(percent) || trace->smoothing == bounded)
        return false;
    trace->smoothing = bounded;
    renew(trace);
    return true;
}

} // namespace Panel
