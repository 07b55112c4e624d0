// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulateddevice.h"

#include <samples/circuits.h>

#include <cmath>

namespace Panel
{

namespace
{

constexpr double s_pi = 3.14159265358979323846;
/// The circuit drifts to and fro once in so many frames.
constexpr int s_driftFrames = 360;
/// By a hundredth of the sweep each way.
constexpr int s_driftShare = 100;
/// The models hold above this frequency; a margin below the sweep may reach under it.
constexpr double s_lowestHertz = 1e3;

/// Writes the parameters of a network at one point.
void setPoint(QVector<Parameter> &parameters, int index, const Circuits::Complex *values)
{
    for (Parameter &parameter : parameters) {
        parameter.real[index] = values->real();
        parameter.imag[index] = values->imag();
        ++values;
    }
}

/// Triangular noise between -1 and 1 in both directions, from 64 random bits (xorshift).
struct Noise {
    quint64 state;

    void next(double &x, double &y)
    {
        state ^= state << 13;
        state ^= state >> 7;
        state ^= state << 17;
        const auto part = [this](int shift) { return int(qint16(state >> shift)); };
        x = (part(0) + part(16)) / 65536.0;
        y = (part(32) + part(48)) / 65536.0;
    }
};

} // namespace

SimulatedDevice::SimulatedDevice(Kind kind, const Sweep &sweep)
    : m_kind(kind)
    , m_margin(qMax(1, sweep.points / s_driftShare))
    , m_total(sweep.points + 2 * m_margin + 1)
    , m_step((sweep.stop - sweep.start) / (sweep.points - 1))
{
    m_start = sweep.start - m_margin * m_step;
    m_frequencies.resize(sweep.points);
    for (int i = 0; i < sweep.points; ++i)
        m_frequencies[i] = sweep.start + i * m_step;
    m_frequencies.last() = sweep.stop;
    m_circuit.resize(kind == Filter ? 4 : 1);
    for (Parameter &parameter : m_circuit) {
        parameter.real.resize(m_total);
        parameter.imag.resize(m_total);
    }
}

QString SimulatedDevice::name(Kind kind)
{
    switch (kind) {
    case Antenna:
        return QStringLiteral("Antenna");
    case Filter:
        return QStringLiteral("Filter");
    case Cable:
        break;
    }
    return QStringLiteral("Long cable");
}

Sweep SimulatedDevice::usualSweep(Kind kind, int points)
{
    switch (kind) {
    case Antenna:
        return {1.8e9, 6.6e9, points};
    case Filter:
        return {2.3e9, 2.6e9, points};
    case Cable:
        break;
    }
    return {10e6, 1.5e9, points};
}

double SimulatedDevice::noise(Kind kind)
{
    return kind == Cable ? 0.012 : 1e-4;
}

void SimulatedDevice::prepare(int points)
{
    const int end = m_prepared + qBound(0, points, m_total - m_prepared);
    for (; m_prepared < end; ++m_prepared) {
        const double omega = 2.0 * s_pi * qMax(s_lowestHertz, m_start + m_prepared * m_step);
        if (m_kind == Filter) {
            const Circuits::Matrix s = Circuits::bandPass(omega);
            const Circuits::Complex byColumns[] = {s.a, s.c, s.b, s.d};
            setPoint(m_circuit, m_prepared, byColumns);
        } else {
            const Circuits::Complex gamma =
                m_kind == Cable ? Circuits::openCable(omega) : Circuits::antenna(omega);
            setPoint(m_circuit, m_prepared, &gamma);
        }
    }
}

Network SimulatedDevice::frame(quint64 number) const
{
    Network network;
    network.name = name(m_kind);
    network.ports = m_kind == Filter ? 2 : 1;
    network.frequencies = m_frequencies;

    // Between two passive points, and with its gain reduced by the noise, a passive circuit stays
    // passive.
    const double phase = double(number % s_driftFrames) / s_driftFrames;
    const double shift = m_margin * (1.0 + std::sin(2.0 * s_pi * phase));
    const int first = int(shift);
    const double t = shift - first;
    const double gain = 1.0 - noise(m_kind);
    const double amplitude = noise(m_kind) / std::sqrt(2.0);
    const int count = int(m_frequencies.size());
    Noise random{0x9e3779b97f4a7c15ULL * (2 * number + 1)};
    double x = 0.0, y = 0.0;
    for (const Parameter &circuit : m_circuit) {
        Parameter parameter{QVector<double>(count), QVector<double>(count)};
        const double *re = circuit.real.constData() + first;
        const double *im = circuit.imag.constData() + first;
        double *outRe = parameter.real.data();
        double *outIm = parameter.imag.data();
        for (int i = 0; i < count; ++i) {
            random.next(x, y);
            outRe[i] = gain * (re[i] + (re[i + 1] - re[i]) * t) + amplitude * x;
            outIm[i] = gain * (im[i] + (im[i + 1] - im[i]) * t) + amplitude * y;
        }
        network.parameters.append(parameter);
    }
    return network;
}

} // namespace Panel
