// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "correction.h"

#include "complexmatrix.h"

#include <QtNumeric>

#include <algorithm>
#include <cmath>

namespace Panel
{

namespace
{

using Complex = std::complex<double>;

constexpr double s_turn = 6.28318530717958647693; // radians

void moveReferencePlanes(Network &network, const Correction &correction)
{
    for (int from = 1; from <= network.ports; ++from) {
        for (int to = 1; to <= network.ports; ++to) {
            const double delay = correction.delay(to) + correction.delay(from);
            if (delay == 0.0)
                continue;
            Parameter &s = network.parameters[(from - 1) * network.ports + to - 1];
            for (int i = 0; i < network.points(); ++i) {
                const Complex turned = Complex(s.real.at(i), s.imag.at(i))
                    * std::polar(1.0, s_turn * network.frequencies.at(i) * delay);
                s.real[i] = turned.real();
                s.imag[i] = turned.imag();
            }
        }
    }
}

void referTo(Network &network, double ohms)
{
    const int ports = network.ports;
    QVector<Complex> gamma(ports), scale(ports);
    for (int port = 0; port < ports; ++port) {
        const Complex own = network.reference(port + 1);
        gamma[port] = (ohms - own) / (ohms + std::conj(own));
        scale[port] = (1.0 - std::conj(gamma.at(port))) * std::sqrt(1.0 - std::norm(gamma.at(port)))
            / std::abs(1.0 - gamma.at(port));
    }
    ComplexMatrix dividend(ports), divisor(ports);
    for (int i = 0; i < network.points(); ++i) {
        for (int row = 0; row < ports; ++row) {
            for (int column = 0; column < ports; ++column) {
                const Parameter &s = network.s(row + 1, column + 1);
                const Complex value(s.real.at(i), s.imag.at(i));
                const double unit = row == column ? 1.0 : 0.0;
                dividend(row, column) = value - unit * std::conj(gamma.at(row));
                divisor(row, column) = unit - gamma.at(row) * value;
            }
        }
        const bool exists = dividend.divideBy(divisor) && dividend.isFinite();
        for (int row = 0; row < ports; ++row) {
            for (int column = 0; column < ports; ++column) {
                const Complex value = exists
                    ? dividend(row, column) * std::conj(scale.at(column)) / scale.at(row)
                    : Complex(qQNaN(), qQNaN());
                Parameter &s = network.parameters[column * ports + row];
                s.real[i] = value.real();
                s.imag[i] = value.imag();
            }
        }
    }
    network.setReferences(QVector<Complex>(ports, Complex(ohms)));
}

} // namespace

void Correction::setDelay(int port, double seconds)
{
    while (delays.size() < port)
        delays.append(0.0);
    delays[port - 1] = std::clamp(seconds, -longestDelay, longestDelay);
    while (!delays.isEmpty() && delays.constLast() == 0.0)
        delays.removeLast();
}

bool Correction::isNone() const
{
    return referenceOhms == 0.0 && delays.isEmpty();
}

Network corrected(const Network &network, const Correction &correction)
{
    if (correction.isNone())
        return network;
    Network result = network;
    moveReferencePlanes(result, correction);
    if (correction.referenceOhms > 0.0)
        referTo(result, correction.referenceOhms);
    return result;
}

} // namespace Panel
