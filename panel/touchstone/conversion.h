// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
/*! \file
    Other network parameters turned into scattering parameters, with power waves
    a = (V + RI) / (2 sqrt R), b = (V - RI) / (2 sqrt R): K. Kurokawa, "Power Waves and the
   Scattering Matrix", IEEE Trans. MTT 13 (1965), doi 10.1109/TMTT.1965.1125964. */
#pragma once

#include <complex>
#include <vector>

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

/// A square matrix of complex numbers.
class ComplexMatrix
{
public:
    explicit ComplexMatrix(int size)
        : m_size(size)
        , m_values(std::size_t(size) * std::size_t(size))
    {
    }

    int size() const { return m_size; }
    std::complex<double> &operator()(int row, int column) { return m_values[index(row, column)]; }
    const std::complex<double> &operator()(int row, int column) const
    {
        return m_values[index(row, column)];
    }

private:
    std::size_t index(int row, int column) const
    {
        return std::size_t(row) * std::size_t(m_size) + std::size_t(column);
    }

    int m_size;
    std::vector<std::complex<double>> m_values;
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
