// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "network.h"

namespace Panel
{

/// What is done to a whole network before any trace is made of it: lines are taken off its ports,
/// then its waves are referred to another impedance.
struct Correction {
    /// Longest line that can be taken off or added, in s: 200 m of cable.
    static constexpr double longestDelay = 1e-6;
    static constexpr double smallestReference = 0.1; ///< in ohms
    static constexpr double largestReference = 1e5;

    /// How long a wave takes along the line on each port, one way, in s; ports beyond have none.
    /// Below 0 a line is added.
    QVector<double> delays;
    /// The impedance that all ports refer to, in ohms; 0 leaves the network's own.
    double referenceOhms = 0.0;

    double delay(int port) const { return delays.value(port - 1); }
    void setDelay(int port, double seconds);
    bool isNone() const;
    friend bool operator==(const Correction &a, const Correction &b)
    {
        return a.delays == b.delays && a.referenceOhms == b.referenceOhms;
    }
    friend bool operator!=(const Correction &a, const Correction &b) { return !(a == b); }
};

/*! The network as it would be measured so. Each port's plane moves along a line of the port's own
    reference without loss: S(to, from) turns by 2π f (delay of to + delay of from) (Pozar, "Microwave
    Engineering", "A shift in reference planes"). Another reference Z' takes
    S' = A⁻¹ (S - Γ*) (1 - Γ S)⁻¹ A*, with Γ = (Z' - Z) / (Z' + Z*) and
    A = (1 - Γ*) √(1 - |Γ|²) / |1 - Γ| of each port (Kurokawa, "Power waves and the scattering
    matrix", 1965). A point for which there is none becomes NaN. */
Network corrected(const Network &network, const Correction &correction);

} // namespace Panel
