// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "progressivesweep.h"

#include <algorithm>

namespace Panel
{

namespace
{

void copyPoints(const Network &source, Network &target, int from, int to)
{
    const auto copy = [from, to](const QVector<double> &values, QVector<double> &into) {
        std::copy(values.begin() + from, values.begin() + to, into.begin() + from);
    };
    for (int p = 0; p < source.parameters.size(); ++p) {
        copy(source.parameters.at(p).real, target.parameters[p].real);
        copy(source.parameters.at(p).imag, target.parameters[p].imag);
    }
}

} // namespace

ProgressiveSweep::ProgressiveSweep(Source source, const Sweep &sweep, double tuning)
    : m_source(source)
    , m_sweep(sweep)
    , m_device(source, sweep, tuning)
    , m_frames{m_device.preview(), m_frames[0]}
{
}

void ProgressiveSweep::advance(int points)
{
    const Network &shown = m_frames[m_current];
    Network &next = m_frames[1 - m_current];
    copyPoints(shown, next, m_from, m_to);
    m_from = m_position < m_device.points() ? m_position : 0;
    m_to = std::min(m_from + points, m_device.points());
    if (m_from == 0)
        m_sweeps = std::min(m_sweeps + 1, m_averages);
    m_device.measure(next, m_from, m_to, m_moment++);
    average(next, shown);
    m_position = m_to;
    m_current = 1 - m_current;
}

/// Moves the mean towards the points that were measured last.
void ProgressiveSweep::average(Network &frame, const Network &mean) const
{
    if (m_sweeps <= 1)
        return;
    const double share = 1.0 / m_sweeps;
    for (int p = 0; p < frame.parameters.size(); ++p) {
        const auto move = [&](QVector<double> &values, const QVector<double> &before) {
            double *value = values.data();
            for (int i = m_from; i < m_to; ++i)
                value[i] = before.at(i) + (value[i] - before.at(i)) * share;
        };
        move(frame.parameters[p].real, mean.parameters.at(p).real);
        move(frame.parameters[p].imag, mean.parameters.at(p).imag);
    }
}

void ProgressiveSweep::setTuning(double tuning)
{
    m_device = SimulatedDevice(m_source, m_sweep, tuning);
    m_position = 0;
    m_sweeps = 0;
}

void ProgressiveSweep::setAverages(int averages)
{
    m_averages = std::max(averages, 1);
    m_position = 0;
    m_sweeps = 0;
}

} // namespace Panel
