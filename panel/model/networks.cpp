// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "networks.h"

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

Stimulus Networks::limits(int index) const
{
    const QVector<double> &frequencies = m_all.at(index).frequencies;
    return frequencies.isEmpty() ? Stimulus()
                                 : Stimulus{frequencies.constFirst(), frequencies.constLast()};
}

Stimulus Networks::shownRange(int index) const
{
    const QVector<double> &frequencies = shown(index).frequencies;
    const Stimulus &asked = stimulus(index);
    return frequencies.isEmpty() ? asked
                                 : Stimulus{std::min(asked.start, frequencies.constFirst()),
                                            std::max(asked.stop, frequencies.constLast())};
}

void Networks::replace(const QVector<Network> &networks)
{
    m_all = networks;
    m_revisions.fill(++m_revision, count());
    m_shown = networks;
    m_corrections.fill(Correction(), count());
    m_stimuli.clear();
    for (int i = 0; i < count(); ++i)
        m_stimuli.append(limits(i));
}

bool Networks::setStimulus(int index, const Stimulus &stimulus)
{
    const Stimulus bounds = limits(index);
    const Stimulus wanted{std::clamp(stimulus.start, bounds.start, bounds.stop),
                          std::clamp(stimulus.stop, bounds.start, bounds.stop)};
    if (wanted == m_stimuli.at(index) || !(wanted.span() >= 0.0)
        || m_all.at(index).frequencies.isEmpty())
        return false;
    m_stimuli[index] = wanted;
    cutOut(index);
    return true;
}

bool Networks::update(int index, const Network &network)
{
    if (index < 0 || index >= count() || network.ports != m_all.at(index).ports
        || network.frequencies.isEmpty())
        return false;
    const Stimulus before = m_stimuli.at(index);
    const bool wasPart = before != limits(index);
    m_all[index] = network;
    const Stimulus now = limits(index);
    m_stimuli[index] = now;
    if (wasPart && before.start < now.stop && before.stop > now.start)
        m_stimuli[index] = {std::max(before.start, now.start), std::min(before.stop, now.stop)};
    cutOut(index);
    return true;
}

bool Networks::setCorrection(int index, const Correction &correction)
{
    if (correction == m_corrections.at(index))
        return false;
    m_corrections[index] = correction;
    cutOut(index);
    return true;
}

/// Cuts out of a network what its stimulus leaves, and corrects it.
void Networks::cutOut(int index)
{
    m_revisions[index] = ++m_revision;
    const auto [from, to] = shownPoints(m_all.at(index).frequencies, m_stimuli.at(index));
    m_shown[index] = corrected(part(m_all.at(index), from, to), m_corrections.at(index));
}

} // namespace Panel
