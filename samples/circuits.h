// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
/*! \file
    Circuit models of devices under test, for a reference of 50 Ohm: the samples are written from
   them, and the panel's simulation sweeps them. Frequencies are angular, in radians per second. */
#pragma once

#include <complex>

namespace Circuits
{

using Complex = std::complex<double>;

/// The four elements of a two-port matrix, row by row: a chain (ABCD), Y, Z or S matrix.
struct Matrix {
    Complex a, b, c, d;
};

/// Reflection of a 50 Ohm load with its lead inductance and stray capacitance, at the end of 0.6 m
/// of cable of 51.5 Ohm.
Complex matchedLoad(double omega);

/// Reflection of 2.5 m of cable, open at the far end: a spiral.
Complex openCable(double omega);

/*! Reflection of an antenna with two bands, the lower of which is at this frequency in Hz: after
   Foster, one parallel resonance for each radiating mode, in series with each other and with the
   inductance of the feed; then 15 mm of line to the connector. */
Complex antenna(double omega, double hertz = 2.45e9);

/*! S parameters of a band-pass of five resonators for 2.4 to 2.5 GHz, with resonators of finite
   quality and strips of unequal length at its ports. Prototype to band-pass: Matthaei, Young,
   Jones, section 8.02. */
Matrix bandPass(double omega);

/*! S parameters of an amplifier stage: the small-signal equivalent circuit of a field-effect
   transistor, with shunt feedback from drain to gate and an inductor at the drain. G. Gonzalez,
   Microwave Transistor Amplifiers, section 1.11. */
Matrix amplifier(double omega);

} // namespace Circuits
