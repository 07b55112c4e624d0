// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "markerreading.h"

#include "format.h"

#include <algorithm>
#include <cmath>
#include <complex>

namespace Panel
{

namespace
{

double interpolated(const QVector<double> &values, double index)
{
    const int i = qBound(0, int(index), values.size() - 1);
    const double fraction = index - i;
    return fraction > 0.0 && i + 1 < values.size()
        ? values.at(i) + (values.at(i + 1) - values.at(i)) * fraction
        : values.at(i);
}

} // namespace

double frequencyAt(const Network &network, double index)
{
    return interpolated(network.frequencies, index);
}

double indexAt(const Network &network, double hertz)
{
    const QVector<double> &frequencies = network.frequencies;
    const auto begin = frequencies.begin();
    const int above = int(std::lower_bound(begin, frequencies.end(), hertz) - begin);
    if (above == 0 || above == frequencies.size())
        return qMax(0, qMin(above, frequencies.size() - 1));
    const double lower = frequencies.at(above - 1);
    return above - 1 + (hertz - lower) / (frequencies.at(above) - lower);
}

MarkerReading readMarker(const Network &network, const Parameter &parameter, double index)
{
    const double hertz = frequencyAt(network, index);
    const std::complex<double> gamma(interpolated(parameter.real, index),
                                     interpolated(parameter.imag, index));
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
