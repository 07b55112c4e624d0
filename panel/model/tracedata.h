// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "network.h"

namespace Panel
{

/// What a trace is drawn from: a scattering parameter over the frequency, and the impedance that it
/// refers to. Copies share the data.
struct TraceData {
    QVector<double> frequencies; ///< in Hz
    Parameter parameter; ///< as long as the frequencies
    /// Of the port that the wave leaves, in ohms; real part above 0.
    std::complex<double> reference = 50.0;
    /// Over how many points the values of a format are averaged; 0 or 1: not at all.
    int averagedPoints = 0;

    int points() const { return int(frequencies.size()); }
    std::complex<double> at(int index) const
    {
        return {parameter.real.at(index), parameter.imag.at(index)};
    }
    /// At a fractional index, interpolated in both parts. There must be points.
    std::complex<double> at(double index) const
    {
        return {valueAt(parameter.real, index), valueAt(parameter.imag, index)};
    }
};

/// Whether both are copies of the same data.
bool sharesData(const TraceData &a, const TraceData &b);

/// The data of the wave leaving port `to` over the wave entering port `from`.
TraceData traceData(const Network &network, int to, int from);

/*! The impedance in ohms that reflects a power wave so: Z = (R* + Γ R) / (1 - Γ) with the reference
    R and its conjugate R* (Kurokawa, "Power waves and the scattering matrix", 1965). Infinite where
    Γ is 1. */
std::complex<double> impedanceOf(const std::complex<double> &reflection,
                                 const std::complex<double> &reference);
/// Its inverse, in siemens; infinite where there is no impedance.
std::complex<double> admittanceOf(const std::complex<double> &reflection,
                                  const std::complex<double> &reference);

} // namespace Panel
