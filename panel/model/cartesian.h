// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
/*! \file
    Scattering parameters over the frequency: what a Cartesian diagram draws, and what its markers
    read. */
#pragma once

#include "tracedata.h"
#include "traceformat.h"

#include <QtNumeric>

#include <optional>
#include <utility>

namespace Panel
{

/// A line over the frequency in Hz. A point without a value ends the line before it.
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
/// The same of all points of a trace in a format of a Cartesian diagram.
ValueRange valueRange(const TraceData &data, TraceFormat format);

/// The value of a point with no regard to its neighbours, such as the phase within one turn; NaN
/// where the format needs them.
double formatValue(const std::complex<double> &s, const std::complex<double> &reference,
                   TraceFormat format);
/*! The values of all points of a trace in a format; of the Smith chart and of a polar diagram,
    the magnitude. NaN where
    there is none: of a NaN, of the VSWR of a full reflection or more, and of the resistance of an
    open circuit. A magnitude of zero counts as -300 dB. */
QVector<double> formatValues(const TraceData &data, TraceFormat format);
/// The value at a fractional index into the data, which must not be empty.
double formatValueAt(const TraceData &data, double index, TraceFormat format);

/// A point of a trace at a fractional index, which must lie within the data.
struct MarkedPoint {
    TraceData data;
    double index = 0.0;
    /// A value that was read before among the neighbours, which are not in the data.
    std::optional<std::pair<TraceFormat, double>> kept = {};

    double value(TraceFormat format) const
    {
        return kept && kept->first == format ? kept->second : formatValueAt(data, index, format);
    }
};

/// How a diagram spreads frequencies over its columns; a logarithm wants them above zero.
enum class FrequencyScale {
    Linear,
    Logarithmic,
};

/*! The line of a trace for a diagram of so many pixel columns that shows a range of frequencies in
    Hz: the points within, and the one before and after.
    Where there are many more points than columns, each column keeps its first, lowest, highest and
    last point: the picture is the same, and the logarithm is taken of those alone. A phase that
    jumps by more than half a turn from one point to the next is not joined. */
CartesianLine cartesianLine(const TraceData &data, TraceFormat format, int columns,
                            double from = -qInf(), double to = qInf(),
                            FrequencyScale scale = FrequencyScale::Linear);

/// "−1.32 dB", "−123.4°" or "1.25"; a dash for what is no number.
QString cartesianText(double value, TraceFormat format);

/// "0 dB": the same without decimals that are not needed.
QString cartesianReferenceText(double value, TraceFormat format);

} // namespace Panel
