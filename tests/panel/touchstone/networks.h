// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
/*! \file
    Networks to try readers and writers on, and how two of them differ. */
#pragma once

#include <panel/model/network.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <random>

namespace Networks
{

/// Doubles of every size and sign, and the edges of what a double can be; all finite.
class Doubles
{
public:
    explicit Doubles(unsigned seed)
        : m_random(seed)
    {
    }

    double operator()()
    {
        constexpr double edges[] = {0.0,  -0.0,   5e-324, -2.2250738585072014e-308,
                                    1e23, 0x1p53, 0.1,    1.7976931348623157e308};
        const unsigned kind = m_random() % 16;
        if (kind < std::size(edges))
            return edges[kind];
        const std::uint64_t bits = std::uint64_t(m_random()) << 32 | m_random();
        double value = 0.0;
        std::memcpy(&value, &bits, sizeof value);
        return kind < 12 || !std::isfinite(value) ? plain() : value;
    }
    /// Between -1 and 1.
    double plain() { return std::uniform_real_distribution<double>(-1.0, 1.0)(m_random); }
    double positive() { return std::abs(plain()) * 100.0 + 1e-3; }
    int integer(int below) { return int(m_random() % unsigned(below)); }

private:
    std::mt19937 m_random;
};

inline QVector<double> sweep(Doubles &random, int points)
{
    QVector<double> frequencies;
    for (int i = 0; i < points; ++i)
        frequencies << std::abs(random());
    std::sort(frequencies.begin(), frequencies.end());
    return frequencies;
}

inline QVector<double> values(Doubles &random, int count)
{
    QVector<double> result;
    for (int i = 0; i < count; ++i)
        result << random();
    return result;
}

/// A network that Touchstone of both versions can hold.
inline Panel::Network random(Doubles &random, int ports, bool sameReferences)
{
    Panel::Network network;
    const int points = 1 + random.integer(6);
    network.ports = ports;
    network.frequencies = sweep(random, points);
    for (int i = 0; i < ports * ports; ++i)
        network.parameters.append({values(random, points), values(random, points)});
    QVector<std::complex<double>> references(ports, random.positive());
    for (int i = 1; i < ports && !sameReferences; ++i)
        references[i] = random.positive();
    network.setReferences(references);
    network.noise.referenceOhms = network.reference(1).real();
    if (ports == 2 && random.integer(2)) {
        const int count = 1 + random.integer(4);
        Panel::NoiseData &noise = network.noise;
        noise.frequencies = sweep(random, count);
        noise.frequencies.first() = network.frequencies.last() * 0.5;
        std::sort(noise.frequencies.begin(), noise.frequencies.end());
        noise.minimumFigure = values(random, count);
        noise.optimumMagnitude = values(random, count);
        noise.optimumDegrees = values(random, count);
        for (int i = 0; i < count; ++i)
            noise.resistance << random.positive() * random.plain();
    }
    const QString texts[] = {QString(), QStringLiteral(" Port[1] = in"),
                             QString(QChar(0xe9)) + QLatin1Char('!'), QStringLiteral("[End]")};
    for (int i = random.integer(4); i > 0; --i)
        network.comments.append({random.integer(points + 1), texts[random.integer(4)]});
    std::sort(network.comments.begin(), network.comments.end(),
              [](const auto &a, const auto &b) { return a.points < b.points; });
    return network;
}

inline bool sameBits(const QVector<double> &a, const QVector<double> &b)
{
    const auto same = [](double x, double y) { return std::memcmp(&x, &y, sizeof x) == 0; };
    return std::equal(a.cbegin(), a.cend(), b.cbegin(), b.cend(), same);
}

/// What two networks differ in, to the last bit; empty where in nothing that a file holds.
inline QString difference(const Panel::Network &a, const Panel::Network &b)
{
    if (a.ports != b.ports || a.referenceOhms != b.referenceOhms || a.references != b.references)
        return QStringLiteral("ports or references");
    if (!sameBits(a.frequencies, b.frequencies) || a.parameters.size() != b.parameters.size())
        return QStringLiteral("frequencies");
    for (int i = 0; i < a.parameters.size(); ++i) {
        if (!sameBits(a.parameters.at(i).real, b.parameters.at(i).real)
            || !sameBits(a.parameters.at(i).imag, b.parameters.at(i).imag))
            return QStringLiteral("parameter %1").arg(i);
    }
    if (!sameBits(a.noise.frequencies, b.noise.frequencies)
        || !sameBits(a.noise.minimumFigure, b.noise.minimumFigure)
        || !sameBits(a.noise.optimumMagnitude, b.noise.optimumMagnitude)
        || !sameBits(a.noise.optimumDegrees, b.noise.optimumDegrees)
        || !sameBits(a.noise.resistance, b.noise.resistance)
        || (!a.noise.frequencies.isEmpty() && a.noise.referenceOhms != b.noise.referenceOhms))
        return QStringLiteral("noise");
    const bool sameComments = std::equal(
        a.comments.begin(), a.comments.end(), b.comments.begin(), b.comments.end(),
        [](const auto &x, const auto &y) { return x.points == y.points && x.text == y.text; });
    return sameComments ? QString() : QStringLiteral("comments");
}

} // namespace Networks
