// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "network.h"

#include <algorithm>

namespace Panel
{

void Network::setReferences(const QVector<std::complex<double>> &ohms)
{
    const std::complex<double> first = ohms.value(0, 50.0);
    const bool same = first.imag() == 0.0 && ohms.count(first) == ohms.size();
    references = same ? QVector<std::complex<double>>() : ohms;
    // There is nothing better to say in one number; who needs more asks reference().
    referenceOhms = first.real();
}

double valueAt(const QVector<double> &values, double index)
{
    const int last = int(values.size()) - 1;
    const int i = int(qBound(0.0, index, double(last)));
    const double fraction = index - i;
    return fraction > 0.0 && i < last ? values.at(i) + (values.at(i + 1) - values.at(i)) * fraction
                                      : values.at(i);
}

double indexOfFrequency(const QVector<double> &frequencies, double hertz)
{
    const auto above = std::upper_bound(frequencies.begin(), frequencies.end(), hertz);
    if (above == frequencies.begin())
        return 0.0;
    const auto below = double(above - frequencies.begin() - 1);
    // The frequency above is larger than the one below, which is at most hertz.
    return above == frequencies.end() ? below
                                      : below + (hertz - *(above - 1)) / (*above - *(above - 1));
}

StimulusPlace placeAt(const QVector<double> &frequencies, double index)
{
    const double hertz = valueAt(frequencies, index);
    const auto first = std::lower_bound(frequencies.begin(), frequencies.end(), hertz);
    const int repeat = int(index) - int(first - frequencies.begin());
    return {hertz, std::max(0, repeat)};
}

double indexOfPlace(const QVector<double> &frequencies, const StimulusPlace &place)
{
    if (frequencies.isEmpty()
        || !(place.hertz >= frequencies.first() && place.hertz <= frequencies.last()))
        return -1.0;
    const auto [first, last] =
        std::equal_range(frequencies.begin(), frequencies.end(), place.hertz);
    const int same = int(last - first);
    return same == 0 ? indexOfFrequency(frequencies, place.hertz)
                     : double(first - frequencies.begin() + std::min(place.repeat, same - 1));
}

QString parameterName(int to, int from)
{
    const QString between = std::max(to, from) > 9 ? QStringLiteral(",") : QString();
    return QLatin1Char('S') + QString::number(to) + between + QString::number(from);
}

} // namespace Panel
