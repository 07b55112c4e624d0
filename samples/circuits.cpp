// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "circuits.h"

#include <array>
#include <cmath>

namespace Circuits
{

namespace
{

constexpr double s_pi = 3.14159265358979323846;
constexpr double s_lightSpeed = 299792458.0;
constexpr double s_reference = 50.0;
const Complex s_j(0.0, 1.0);

Matrix operator*(const Matrix &l, const Matrix &r)
{
    return {l.a * r.a + l.b * r.c, l.a * r.b + l.b * r.d, l.c * r.a + l.d * r.c,
            l.c * r.b + l.d * r.d};
}

Matrix operator+(const Matrix &l, const Matrix &r)
{
    return {l.a + r.a, l.b + r.b, l.c + r.c, l.d + r.d};
}

Matrix inverse(const Matrix &m)
{
    const Complex determinant = m.a * m.d - m.b * m.c;
    return {m.d / determinant, -m.b / determinant, -m.c / determinant, m.a / determinant};
}

Complex inductor(double omega, double henry)
{
    return s_j * omega * henry;
}

Complex capacitor(double omega, double farad)
{
    return 1.0 / (s_j * omega * farad);
}

// Chain matrices of the elements: D. M. Pozar, Microwave Engineering, table 4.1.
Matrix seriesElement(Complex impedance)
{
    return {1.0, impedance, 0.0, 1.0};
}

Matrix shuntElement(Complex admittance)
{
    return {1.0, 0.0, admittance, 1.0};
}

/*! A cable or strip: its loss grows with the root of the frequency (skin effect).
    lossAtGHz is in dB over the whole length at 1 GHz, velocity relative to that of light. */
Matrix line(double omega, double ohms, double metres, double velocity, double lossAtGHz)
{
    const double gigahertz = omega / (2.0 * s_pi * 1e9);
    const double nepers = lossAtGHz * std::sqrt(gigahertz) * std::log(10.0) / 20.0;
    const Complex gl(nepers, omega * metres / (velocity * s_lightSpeed));
    return {std::cosh(gl), ohms * std::sinh(gl), std::sinh(gl) / ohms, std::cosh(gl)};
}

Complex inputImpedance(const Matrix &chain, Complex load)
{
    return (chain.a * load + chain.b) / (chain.c * load + chain.d);
}

// Conversions to scattering parameters: D. M. Pozar, Microwave Engineering, table 4.2.
Complex reflection(Complex impedance)
{
    return (impedance - s_reference) / (impedance + s_reference);
}

/// Of a reciprocal chain, whose determinant is 1: computed far off resonance it would be lost in
/// the difference of large numbers.
Matrix scatteringOfChain(const Matrix &m)
{
    const Complex b = m.b / s_reference;
    const Complex c = m.c * s_reference;
    const Complex sum = m.a + b + c + m.d;
    return {(m.a + b - c - m.d) / sum, 2.0 / sum, 2.0 / sum, (-m.a + b - c + m.d) / sum};
}

Matrix scatteringOfAdmittance(const Matrix &y)
{
    const double g = 1.0 / s_reference;
    const Complex sum = (g + y.a) * (g + y.d) - y.b * y.c;
    return {((g - y.a) * (g + y.d) + y.b * y.c) / sum, -2.0 * g * y.b / sum, -2.0 * g * y.c / sum,
            ((g + y.a) * (g - y.d) + y.b * y.c) / sum};
}

/*! Element values g1 to g5 of a Chebyshev prototype with 0.3 dB ripple.
    G. L. Matthaei, L. Young, E. M. T. Jones, Microwave Filters, section 4.05. */
std::array<double, 5> chebyshevPrototype()
{
    constexpr int order = 5;
    constexpr double rippleDecibels = 0.3;
    const double beta = std::log(1.0 / std::tanh(rippleDecibels * std::log(10.0) / 40.0));
    const double gamma = std::sinh(beta / (2.0 * order));
    std::array<double, order> g = {};
    double before = 0.0;
    for (int k = 1; k <= order; ++k) {
        const double a = std::sin((2.0 * k - 1.0) * s_pi / (2.0 * order));
        const double b = gamma * gamma + std::pow(std::sin((k - 1) * s_pi / order), 2.0);
        g[std::size_t(k - 1)] =
            k == 1 ? 2.0 * a / gamma : 4.0 * before * a / (b * g[std::size_t(k - 2)]);
        before = a;
    }
    return g;
}

} // namespace

Complex matchedLoad(double omega)
{
    const Complex resistor = 50.6 + inductor(omega, 0.16e-9);
    const Complex load = 1.0 / (1.0 / resistor + 1.0 / capacitor(omega, 0.09e-12));
    return reflection(inputImpedance(line(omega, 51.5, 0.6, 0.69, 0.28), load));
}

Complex openCable(double omega)
{
    // The open end has a stray capacitance.
    return reflection(
        inputImpedance(line(omega, 50.5, 2.5, 0.69, 1.1), capacitor(omega, 0.06e-12)));
}

Complex antenna(double omega, double hertz)
{
    struct Mode {
        double ohms, hertz, quality;
    };
    const std::array<Mode, 2> modes = {{{56.0, hertz, 9.0}, {46.0, hertz * 5.5 / 2.45, 15.0}}};
    Complex impedance = inductor(omega, 0.35e-9);
    for (const Mode &mode : modes) {
        const double detuning = omega / (2.0 * s_pi * mode.hertz) - 2.0 * s_pi * mode.hertz / omega;
        impedance += mode.ohms / (1.0 + s_j * mode.quality * detuning);
    }
    return reflection(inputImpedance(line(omega, 50.0, 0.015, 0.66, 0.03), impedance));
}

Matrix bandPass(double omega)
{
    static const std::array<double, 5> prototype = chebyshevPrototype();
    constexpr double centre = 2.0 * s_pi * 2.45e9;
    constexpr double bandwidth = 0.13 / 2.45;
    constexpr double quality = 650.0;
    Matrix chain = line(omega, 50.0, 0.004, 0.62, 0.02);
    for (std::size_t k = 0; k < prototype.size(); ++k) {
        const Complex detuning = s_j * (omega / centre - centre / omega) + 1.0 / quality;
        const Complex value = prototype[k] / bandwidth * detuning;
        chain = chain
            * (k % 2 == 0 ? shuntElement(value / s_reference) : seriesElement(value * s_reference));
    }
    return scatteringOfChain(chain * line(omega, 50.0, 0.009, 0.62, 0.04));
}

Matrix amplifier(double omega)
{
    // Intrinsic transistor.
    constexpr double gm = 0.095, delay = 4e-12, ri = 2.5, gds = 1.0 / 190.0;
    constexpr double cgs = 0.62e-12, cgd = 0.055e-12, cds = 0.16e-12;
    const Complex gate = 1.0 + s_j * omega * ri * cgs;
    const Complex feedthrough = s_j * omega * cgd;
    const Matrix intrinsic = {s_j * omega * cgs / gate + feedthrough, -feedthrough,
                              gm * std::exp(-s_j * omega * delay) / gate - feedthrough,
                              gds + s_j * omega * cds + feedthrough};
    // Its leads are in series with it.
    const Complex source = 1.1 + inductor(omega, 0.12e-9);
    const Matrix leads = {1.6 + inductor(omega, 0.75e-9) + source, source, source,
                          1.4 + inductor(omega, 0.6e-9) + source};
    const Matrix transistor = inverse(inverse(intrinsic) + leads);
    // The feedback lies across it.
    const Complex feedback = 1.0 / (430.0 + inductor(omega, 1.4e-9) + capacitor(omega, 22e-12));
    const Complex drain = 1.0 / inductor(omega, 18e-9);
    return scatteringOfAdmittance(transistor
                                  + Matrix{feedback, -feedback, -feedback, feedback + drain});
}

} // namespace Circuits
