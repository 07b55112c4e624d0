// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "markerreading.h"

#include "format.h"

#include <cmath>
#include <complex>

namespace Panel
{

MarkerReading readMarker(const Network &network, const Parameter &parameter, double index)
{
    const double hertz = valueAt(network.frequencies, index);
    const std::complex<double> gamma(valueAt(parameter.real, index),
                                     valueAt(parameter.imag, index));
    MarkerReading reading;
    reading.frequency = frequencyText(hertz);
    const QString ohm = QStringLiteral("\u03a9");
    if (std::abs(1.0 - gamma) < 1e-9) {
        reading.resistance = QStringLiteral("\u221e ") + ohm;
        return reading;
    }
    const std::complex<double> impedance = network.referenceOhms * (1.0 + gamma) / (1.0 - gamma);
    const double x = impedance.imag();
    reading.resistance = engineeringText(impedance.real(), ohm);
    reading.reactance = (x < 0.0 ? QStringLiteral("\u2212j") : QStringLiteral("+j"))
        + engineeringText(std::abs(x), ohm);
    const double omega = 2.0 * std::acos(-1.0) * hertz;
    if (omega > 0.0 && x != 0.0)
        reading.element = x > 0.0 ? engineeringText(x / omega, QStringLiteral("H"))
                                  : engineeringText(-1.0 / (omega * x), QStringLiteral("F"));
    return reading;
}

} // namespace Panel
