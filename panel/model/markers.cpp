// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "markers.h"

#include <algorithm>

namespace Panel
{

const Marker *Markers::find(int trace, int number) const
{
    const auto found = std::find_if(m_all.begin(), m_all.end(), [=](const Marker &marker) {
        return marker.trace == trace && marker.number == number;
    });
    return found == m_all.end() ? nullptr : &*found;
}

QVector<Marker> Markers::of(int trace) const
{
    QVector<Marker> result;
    for (int number = 1; number <= perTrace; ++number) {
        if (const Marker *found = find(trace, number))
            result.append(*found);
    }
    return result;
}

int Markers::freeNumber(int trace) const
{
    for (int number = 1; number <= perTrace; ++number) {
        if (!find(trace, number))
            return number;
    }
    return 0;
}

void Markers::reset(const QVector<int> &traces)
{
    m_traces = traces;
    m_all.clear();
    m_references.clear();
    m_selectedTrace = m_selectedNumber = 0;
}

Markers::Changes Markers::setTraces(const QVector<int> &traces)
{
    Changes changes;
    for (const Marker &marker : QVector<Marker>(m_all)) {
        if (!traces.contains(marker.trace))
            changes.append({MarkerChange::Removed, marker.trace, marker.number});
    }
    m_all.erase(
        std::remove_if(m_all.begin(), m_all.end(),
                       [&traces](const Marker &marker) { return !traces.contains(marker.trace); }),
        m_all.end());
    for (const int trace : qAsConst(m_traces)) {
        if (!traces.contains(trace))
            m_references.remove(trace);
    }
    m_traces = traces;
    return m_coupled ? changes + setCoupled(true, traces.value(0)) : changes;
}

Markers::Changes Markers::place(int trace, int number, const StimulusPlace &place)
{
    Changes changes;
    for (const int each : reach(trace)) {
        const Marker *marker = find(each, number);
        if (!marker) {
            m_all.append({each, number, place, Tracking::Off, {}});
            changes.append({MarkerChange::Added, each, number});
        } else if (marker->place != place && !marker->isFixed()) {
            m_all[int(marker - m_all.constData())].place = place;
            changes.append({MarkerChange::Moved, each, number});
        }
    }
    return changes;
}

Markers::Changes Markers::remove(int trace, int number)
{
    Changes changes;
    for (const int each : reach(trace)) {
        const Marker *marker = find(each, number);
        if (!marker)
            continue;
        m_all.remove(int(marker - m_all.constData()));
        changes.append({MarkerChange::Removed, each, number});
    }
    return changes;
}

bool Markers::setTracking(int trace, int number, Tracking tracking)
{
    const Marker *marker = find(trace, number);
    if (!marker || marker->tracking == tracking || tracking == Tracking::Fixed)
        return false;
    m_all[int(marker - m_all.constData())].tracking = tracking;
    return true;
}

bool Markers::fix(int trace, int number, const FixedPoint &point)
{
    const Marker *marker = find(trace, number);
    if (!marker)
        return false;
    Marker &fixed = m_all[int(marker - m_all.constData())];
    fixed.tracking = Tracking::Fixed;
    fixed.fixed = point;
    return true;
}

bool Markers::select(int trace, int number)
{
    if (!find(trace, number))
        trace = number = 0;
    if (trace == m_selectedTrace && number == m_selectedNumber)
        return false;
    m_selectedTrace = trace;
    m_selectedNumber = number;
    return true;
}

QVector<int> Markers::setReference(int trace, int number)
{
    QVector<int> changed;
    for (const int each : reach(trace)) {
        const int existing = find(each, number) ? number : 0;
        if (m_references.value(each) == existing)
            continue;
        m_references.insert(each, existing);
        changed.append(each);
    }
    return changed;
}

bool Markers::setDiscrete(bool discrete)
{
    return std::exchange(m_discrete, discrete) != discrete;
}

Markers::Changes Markers::setCoupled(bool coupled, int activeTrace)
{
    m_coupled = coupled;
    if (!coupled)
        return {};
    Changes changes;
    const QVector<int> order = ordered(activeTrace);
    for (int number = 1; number <= perTrace; ++number) {
        const auto owner = std::find_if(order.begin(), order.end(),
                                        [=](int trace) { return find(trace, number); });
        if (owner == order.end())
            continue;
        const StimulusPlace shared = find(*owner, number)->place; // the list moves as it grows
        changes += place(*owner, number, shared);
    }
    return changes;
}

QVector<int> Markers::shareReference(int activeTrace)
{
    for (const int trace : ordered(activeTrace)) {
        if (const Marker *shared = reference(trace))
            return setReference(trace, shared->number);
    }
    return {};
}

QVector<int> Markers::ordered(int first) const
{
    QVector<int> order = m_traces;
    if (order.removeOne(first))
        order.prepend(first);
    return order;
}

} // namespace Panel
