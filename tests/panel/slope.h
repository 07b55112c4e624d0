// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <panel/model/network.h>

#include <cmath>

/// A two-port of so many points between two frequencies whose parameters fall from 0 dB to -40 dB
/// and turn as they go; one point is a spike of 20 dB.
inline Panel::Network slope(int points, double start = 1e9, double stop = 2e9)
{
    Panel::Network network;
    network.ports = 2;
    network.parameters.resize(4);
    const int spike = points * 3 / 10;
    for (int i = 0; i < points; ++i) {
        const double share = double(i) / (points - 1);
        network.frequencies.append(start + (stop - start) * share);
        const double magnitude = i == spike ? 10.0 : std::pow(10.0, -2.0 * share);
        for (Panel::Parameter &parameter : network.parameters) {
            parameter.real.append(magnitude * std::cos(20.0 * share));
            parameter.imag.append(magnitude * std::sin(20.0 * share));
        }
    }
    return network;
}
