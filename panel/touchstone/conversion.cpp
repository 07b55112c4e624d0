// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "conversion.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Panel
{

namespace
{

using Complex = std::complex<double>;

/// What the voltages (A) or currents (B) of the ports are, from what the parameters are given of:
/// V = A x and I = B x.
struct PortMatrices {
    ComplexMatrix voltages;
    ComplexMatrix currents;
};

PortMatrices portMatrices(ParameterKind kind, const ComplexMatrix &p)
{
    PortMatrices m{ComplexMatrix(p.size()), ComplexMatrix(p.size())};
    for (int i = 0; i < p.size(); ++i)
        m.voltages(i, i) = m.currents(i, i) = 1.0;
    if (kind == ParameterKind::Impedance) {
        m.voltages = p;
    } else if (kind == ParameterKind::Admittance) {
        m.currents = p;
    } else {
        // x is (I1, V2) for H and (V1, I2) for G: one port's voltage and the other's current.
        ComplexMatrix &first = kind == ParameterKind::HybridH ? m.voltages : m.currents;
        ComplexMatrix &second = kind == ParameterKind::HybridH ? m.currents : m.voltages;
        for (int column = 0; column < 2; ++column) {
            first(0, column) = p(0, column);
            second(1, column) = p(1, column);
        }
    }
    return m;
}

} // namespace

bool toScattering(ParameterKind kind, ComplexMatrix &parameters,
                  const std::vector<double> &references)
{
    if (kind == ParameterKind::Scattering)
        return parameters.isFinite();
    // b = S a, with 2 sqrt(R) a = (A + RB) x and 2 sqrt(R) b = (A - RB) x.
    auto [outgoing, incoming] = portMatrices(kind, parameters);
    for (int row = 0; row < parameters.size(); ++row) {
        const double root = std::sqrt(references[std::size_t(row)]);
        for (int column = 0; column < parameters.size(); ++column) {
            const Complex voltage = outgoing(row, column) / root;
            const Complex current = incoming(row, column) * root;
            outgoing(row, column) = voltage - current;
            incoming(row, column) = voltage + current;
        }
    }
    parameters = outgoing;
    return parameters.divideBy(incoming) && parameters.isFinite();
}

ComplexMatrix toPorts(ParameterKind kind, const ComplexMatrix &parameters,
                      const std::vector<Mode> &modes)
{
    // With T as below, the ports have T^t P T. Waves share their power between two ports;
    // a differential voltage is the difference and a common one the mean, and currents the reverse.
    const double half = std::sqrt(0.5);
    const double differential = kind == ParameterKind::Scattering ? half
        : kind == ParameterKind::Impedance                        ? 0.5
                                                                  : 1.0;
    const double common = kind == ParameterKind::Scattering ? half : 0.5 / differential;
    const int size = parameters.size();
    std::vector<std::vector<std::pair<int, double>>> partsOfPort(static_cast<std::size_t>(size));
    for (int i = 0; i < size; ++i) {
        const Mode &mode = modes[std::size_t(i)];
        const double weight = mode.type == Mode::SingleEnded ? 1.0
            : mode.type == Mode::Differential                ? differential
                                                             : common;
        partsOfPort[std::size_t(mode.port - 1)].emplace_back(i, weight);
        if (mode.type != Mode::SingleEnded)
            partsOfPort[std::size_t(mode.otherPort - 1)].emplace_back(
                i, mode.type == Mode::Differential ? -weight : weight);
    }
    ComplexMatrix ports(size);
    for (int row = 0; row < size; ++row) {
        for (int column = 0; column < size; ++column) {
            for (const auto &[i, weightOfRow] : partsOfPort[std::size_t(row)]) {
                for (const auto &[j, weightOfColumn] : partsOfPort[std::size_t(column)])
                    ports(row, column) += weightOfRow * weightOfColumn * parameters(i, j);
            }
        }
    }
    return ports;
}

} // namespace Panel
