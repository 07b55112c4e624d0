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
/// The circuit drifts to and fro once in so many moments.
constexpr int s_driftMoments = 360;
/// By a hundredth of the sweep each way.
constexpr int s_driftShare = 100;
/// The models hold above this frequency; a margin below the sweep may reach under it.
constexpr double s_lowestHertz = 1e3;

/// Points that a preview measures, at the most.
constexpr int s_previewPoints = 1001;

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

SimulatedDevice::SimulatedDevice(Source source, const Sweep &sweep, double tuning)
    : m_source(source)
    , m_tuning(tuning)
    , m_drift(double(sweep.points) / s_driftShare)
    , m_margin(int(std::ceil(m_drift)))
    , m_total(sweep.points + 2 * m_margin + 1)
    , m_step((sweep.stop - sweep.start) / (sweep.points - 1))
{
    m_start = sweep.start - m_margin * m_step;
    m_frequencies.resize(sweep.points);
    for (int i = 0; i < sweep.points; ++i)
        m_frequencies[i] = sweep.start + i * m_step;
    m_frequencies.last() = sweep.stop;
    m_circuit.resize(source == Source::Filter ? 4 : 1);
    for (Parameter &parameter : m_circuit) {
        parameter.real.resize(m_total);
        parameter.imag.resize(m_total);
    }
}

double SimulatedDevice::noise(Source source)
{
    return source == Source::Cable ? 0.012 : 1e-4;
}

SimulatedDevice::Values SimulatedDevice::circuitAt(double hertz) const
{
    const double omega = 2.0 * s_pi * qMax(s_lowestHertz, hertz);
    if (m_source == Source::Filter) {
        const Circuits::Matrix s = Circuits::bandPass(omega);
        return {s.a, s.c, s.b, s.d};
    }
    return {m_source == Source::Cable ? Circuits::openCable(omega)
                                      : Circuits::antenna(omega, m_tuning)};
}

Network SimulatedDevice::preview() const
{
    Network network;
    network.name = sourceName(m_source);
    network.ports = m_source == Source::Filter ? 2 : 1;
    network.frequencies = m_frequencies;
    const QVector<double> values(points());
    network.parameters.fill({values, values}, int(m_circuit.size()));

    const int spans = qMin(points(), s_previewPoints) - 1;
    Values before = circuitAt(m_frequencies.first());
    int from = 0;
    for (int span = 1; span <= spans; ++span) {
        const int to = int(qint64(points() - 1) * span / spans);
        const Values after = circuitAt(m_frequencies.at(to));
        for (int p = 0; p < network.parameters.size(); ++p) {
            const std::complex<double> start = before[std::size_t(p)];
            const std::complex<double> step = (after[std::size_t(p)] - start) / double(to - from);
            double *real = network.parameters[p].real.data();
            double *imag = network.parameters[p].imag.data();
            for (int i = from; i <= to; ++i) {
                const std::complex<double> value = start + step * double(i - from);
                real[i] = value.real();
                imag[i] = value.imag();
            }
        }
        before = after;
        from = to;
    }
    return network;
}

void SimulatedDevice::prepare(int points)
{
    for (; m_prepared < points; ++m_prepared) {
        const Values values = circuitAt(m_start + m_prepared * m_step);
        for (int p = 0; p < m_circuit.size(); ++p) {
            m_circuit[p].real[m_prepared] = values[std::size_t(p)].real();
            m_circuit[p].imag[m_prepared] = values[std::size_t(p)].imag();
        }
    }
}

void SimulatedDevice::measure(Network &network, int from, int to, quint64 moment)
{
    // Between two passive points, and with its gain reduced by the noise, a passive circuit stays
    // passive.
    const double phase = double(moment % s_driftMoments) / s_driftMoments;
    const double shift = m_margin + m_drift * std::sin(2.0 * s_pi * phase);
    const int first = int(shift);
    const double t = shift - first;
    const double gain = 1.0 - noise(m_source);
    const double amplitude = noise(m_source) / std::sqrt(2.0);
    prepare(to + first + 1);
    Noise random{0x9e3779b97f4a7c15ULL * (2 * moment + 1)};
    double x = 0.0, y = 0.0;
    for (int p = 0; p < m_circuit.size(); ++p) {
        const double *re = m_circuit.at(p).real.constData() + first;
        const double *im = m_circuit.at(p).imag.constData() + first;
        double *outRe = network.parameters[p].real.data();
        double *outIm = network.parameters[p].imag.data();
        for (int i = from; i < to; ++i) {
            random.next(x, y);
            outRe[i] = gain * (re[i] + (re[i + 1] - re[i]) * t) + amplitude * x;
            outIm[i] = gain * (im[i] + (im[i + 1] - im[i]) * t) + amplitude * y;
        }
    }
}

} // namespace Panel
