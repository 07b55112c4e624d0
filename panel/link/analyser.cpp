// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "analyser.h"

namespace Panel
{

QVector<double> evenFrequencies(const Sweep &sweep)
{
    QVector<double> frequencies(sweep.points, sweep.start);
    const double step = sweep.points > 1 ? (sweep.stop - sweep.start) / (sweep.points - 1) : 0.0;
    for (int i = 1; i < sweep.points; ++i)
        frequencies[i] = i + 1 == sweep.points ? sweep.stop : sweep.start + i * step;
    return frequencies;
}

void Analyser::prepare(Network &network, int ports) const
{
    const int points = m_settings.sweep.points;
    if (network.ports != ports || network.points() != points) {
        network = Network();
        const QVector<double> nothing(points, qQNaN());
        network.parameters.fill({nothing, nothing}, ports * ports);
        network.frequencies = evenFrequencies(m_settings.sweep);
        network.ports = ports;
    }
    network.name = m_identity;
}

} // namespace Panel
