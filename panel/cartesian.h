// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
/*! \file
    Scattering parameters over the frequency: what a Cartesian diagram draws, and what its markers
    read. */
#pragma once

#include "network.h"

namespace Panel
{

/// What a Cartesian diagram shows of a parameter.
enum class CartesianFormat {
    LogMagnitude, ///< in dB
    Phase, ///< in degrees, from -180 to 180
};

/// A line over the frequency in Hz.
struct CartesianLine {
    QVector<double> frequencies;
    QVector<double> values;
};

/// The value of a parameter; a magnitude of zero counts as -300 dB.
double cartesianValue(double real, double imag, CartesianFormat format);
/// The value at a fractional index into the data, which must not be empty.
double cartesianValueAt(const Parameter &parameter, double index, CartesianFormat format);

/*! The line of a parameter for a diagram of so many pixel columns.
    Where there are many more points than columns, each column keeps its first, lowest, highest and
   last point: the picture is the same, and the logarithm is taken of those alone. */
CartesianLine cartesianLine(const QVector<double> &frequencies, const Parameter &parameter,
                            CartesianFormat format, int columns);

/// "−1.32 dB" or "−123.4°".
QString cartesianText(double value, CartesianFormat format);

} // namespace Panel
