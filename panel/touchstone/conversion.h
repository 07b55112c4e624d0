// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
/*! \file
    Other network parameters turned into scattering parameters, with power waves
    a = (V + RI) / (2 sqrt R), b = (V - RI) / (2 sqrt R): K. Kurokawa, "Power Waves and the
    Scattering Matrix", IEEE Trans. MTT 13 (1965), doi 10.1109/TMTT.1965.1125964. */
#pragma once

#include <panel/model/complexmatrix.h>

namespace Panel
{

/// What a matrix of network parameters relates.
enum class ParameterKind {
    Scattering, ///< S
    Impedance, ///< Z
    Admittance, ///< Y
    HybridG, ///< G of a two-port: (I1, V2) from (V1, I2)
    HybridH ///< H of a two-port: (V1, I2) from (I1, V2)
};

/*! Turns parameters into scattering parameters at these references in ohms, one a port, each above
    zero. Impedances are in ohms, admittances in siemens. False where there are none: the matrix to
    be divided by is singular, or a value goes beyond all bounds. G and H have two ports. */
bool toScattering(ParameterKind kind, ComplexMatrix &parameters,
                  const std::vector<double> &references);

/// One of the waves that a mixed-mode matrix speaks of; ports count from 1.
struct Mode {
    enum Type { SingleEnded, Differential, Common };

    Type type = SingleEnded;
    int port = 0;
    int otherPort = 0; ///< of a pair
};

/*! Turns the parameters of modes, S, Z or Y, into those of the ports. Each port is there once as
    single-ended, or its pair is there once as differential and once as common. */
ComplexMatrix toPorts(ParameterKind kind, const ComplexMatrix &parameters,
                      const std::vector<Mode> &modes);

} // namespace Panel
