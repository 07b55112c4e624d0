// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
/*! \file
    Scattering parameters over the frequency: what a Cartesian diagram draws, and what its markers
    read. */
#pragma once

#include "network.h"
#include "traceformat.h"

#include <QtNumeric>

namespace Panel
{

/// A line over the frequency in Hz.
struct CartesianLine {
    QVector<double> frequencies;
    QVector<double> values;
};

/// The lowest and highest of some values; NaN where there is none.
struct ValueRange {
    double lowest = qQNaN();
    double highest = qQNaN();
};

ValueRange valueRange(const QVector<double> &values);
/// The same of all points of a parameter in a format of a Cartesian diagram.
ValueRange valueRange(const Parameter &parameter, TraceFormat format);

/*! The value of a parameter in a format of a Cartesian diagram; a magnitude of zero counts as -300
    dB. NaN where there is none: of a NaN, and of the VSWR of a full reflection or more. */
double cartesianValue(double real, double imag, TraceFormat format);
/// The value at a fractional index into the data, which must not be empty.
double cartesianValueAt(const Parameter &parameter, double index, TraceFormat format);

/*! The line of a parameter for a diagram of so many pixel columns that shows a range of frequencies
    in Hz: the points within, and the one before and after.
    Where there are many more points than columns, each column keeps its first, lowest, highest and
    last point: the picture is the same, and the logarithm is taken of those alone. */
CartesianLine cartesianLine(const QVector<double> &frequencies, const Parameter &parameter,
                            TraceFormat format, int columns, double from = -qInf(),
                            double to = qInf());
/// The highest value of a parameter in a format, or NaN when it has none.
double highestValue(const Parameter &parameter, TraceFormat format);

/// "−1.32 dB", "−123.4°" or "1.25"; a dash for what is no number.
QString cartesianText(double value, TraceFormat format);

/// "0 dB": the same without decimals that are not needed.
QString cartesianReferenceText(double value, TraceFormat format);

} // namespace Panel
