// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "markerreading.h"

#include <panel/ground/numbertext.h>
#include <panel/model/cartesian.h>

#include <cmath>
#include <complex>

namespace Panel
{

namespace
{

using Complex = std::complex<double>;

double frequency(const MarkedPoint &point)
{
    return valueAt(point.data.frequencies, point.index);
}

Complex reflection(const MarkedPoint &point)
{
    return point.data.at(point.index);
}

Complex impedance(const MarkedPoint &point)
{
    return impedanceOf(reflection(point), point.data.reference);
}

Complex admittance(const MarkedPoint &point)
{
    return admittanceOf(reflection(point), point.data.reference);
}

/// "∞ Ω" rather than a dash: it is a value.
QString partText(double value, const QString &unit)
{
    return std::isinf(value) ? QStringLiteral("\u221e ") + unit : engineeringText(value, unit);
}

QString imaginaryText(double value, const QString &unit)
{
    if (!std::isfinite(value))
        return nothingText();
    return (value < 0.0 ? QStringLiteral("\u2212j") : QStringLiteral("+j"))
        + engineeringText(std::abs(value), unit);
}

/// What has this reactance (Ω, in series) or susceptance (S, in parallel) at a frequency in Hz.
QString elementText(double imaginary, double hertz, bool isReactance)
{
    const double omega = 2.0 * std::acos(-1.0) * hertz;
    if (!(omega > 0.0) || !std::isfinite(imaginary) || imaginary == 0.0)
        return {};
    // jX = jωL or 1/jωC; jB = jωC or 1/jωL.
    const bool grows = imaginary > 0.0;
    const QString unit = grows == isReactance ? QStringLiteral("H") : QStringLiteral("F");
    return engineeringText(grows ? imaginary / omega : -1.0 / (omega * imaginary), unit);
}

double degrees(double angle)
{
    return angle * 180.0 / std::acos(-1.0);
}

QString angleText(double angle)
{
    return cartesianText(angle, TraceFormat::Phase);
}

/// An angle of any size, as from -180 to 180 degrees.
double wrapped(double angle)
{
    return std::remainder(angle, 360.0);
}

double decibels(const Complex &gamma)
{
    return formatValue(gamma, {}, TraceFormat::LogMagnitude);
}

double vswr(const Complex &gamma)
{
    return formatValue(gamma, {}, TraceFormat::Vswr);
}

QStringList readings(const Complex &gamma, ReadoutFormat format)
{
    const QString angle = angleText(degrees(std::arg(gamma)));
    if (format == ReadoutFormat::MagnitudePhase)
        return {numberText(std::abs(gamma), 4), angle};
    if (format == ReadoutFormat::Decibels)
        return {cartesianText(decibels(gamma), TraceFormat::LogMagnitude), angle};
    return {cartesianText(vswr(gamma), TraceFormat::Vswr)};
}

} // namespace

MarkerReading readOnSmithChart(const MarkedPoint &point, ReadoutFormat format)
{
    const double hertz = frequency(point);
    MarkerReading reading{frequencyText(hertz), {}};
    if (format == ReadoutFormat::Admittance) {
        const Complex y = admittance(point);
        const QString unit = QStringLiteral("S");
        reading.values = QStringList{partText(y.real(), unit), imaginaryText(y.imag(), unit),
                                     elementText(y.imag(), hertz, false)};
    } else if (format == ReadoutFormat::Impedance || format == ReadoutFormat::Automatic) {
        const Complex z = impedance(point);
        const QString unit = QStringLiteral("\u03a9");
        reading.values = QStringList{partText(z.real(), unit), imaginaryText(z.imag(), unit),
                                     elementText(z.imag(), hertz, true)};
    } else {
        reading.values = readings(reflection(point), format);
    }
    return reading;
}

MarkerReading readOnSmithChart(const MarkedPoint &point, ReadoutFormat format,
                               const MarkedPoint &reference)
{
    MarkerReading reading{frequencyText(frequency(point) - frequency(reference)), {}};
    const Complex here = reflection(point), there = reflection(reference);
    switch (format) {
    case ReadoutFormat::Automatic:
    case ReadoutFormat::Impedance:
    case ReadoutFormat::Admittance: {
        const bool y = format == ReadoutFormat::Admittance;
        const Complex difference =
            y ? admittance(point) - admittance(reference) : impedance(point) - impedance(reference);
        const QString unit = y ? QStringLiteral("S") : QStringLiteral("\u03a9");
        reading.values = QStringList{engineeringText(difference.real(), unit),
                                     imaginaryText(difference.imag(), unit)};
        break;
    }
    case ReadoutFormat::MagnitudePhase:
        reading.values = QStringList{numberText(std::abs(here) - std::abs(there), 4),
                                     angleText(wrapped(degrees(std::arg(here) - std::arg(there))))};
        break;
    case ReadoutFormat::Decibels:
        reading.values =
            QStringList{cartesianText(decibels(here) - decibels(there), TraceFormat::LogMagnitude),
                        angleText(wrapped(degrees(std::arg(here) - std::arg(there))))};
        break;
    case ReadoutFormat::Vswr:
        reading.values = QStringList{cartesianText(vswr(here) - vswr(there), TraceFormat::Vswr)};
        break;
    }
    return reading;
}

MarkerReading readOnCartesian(const MarkedPoint &point, TraceFormat format)
{
    return {frequencyText(frequency(point)),
            {cartesianText(formatValueAt(point.data, point.index, format), format)}};
}

MarkerReading readOnCartesian(const MarkedPoint &point, TraceFormat format,
                              const MarkedPoint &reference)
{
    double difference = formatValueAt(point.data, point.index, format)
        - formatValueAt(reference.data, reference.index, format);
    if (format == TraceFormat::Phase)
        difference = wrapped(difference);
    return {frequencyText(frequency(point) - frequency(reference)),
            {cartesianText(difference, format)}};
}

MarkerReading readMarker(const PanelModel &model, const Marker &marker, const Marker *reference)
{
    const Trace &trace = *model.trace(marker.trace);
    const auto point = [&](const Marker &marked) {
        return MarkedPoint{model.traceData(trace), model.indexOf(marked)};
    };
    const ReadoutFormat format = model.viewSettings()->effectiveReadoutFormat();
    if (point(marker).index < 0.0 || (reference && point(*reference).index < 0.0)) {
        const double from = reference ? model.hertzOf(*reference) : 0.0;
        return {frequencyText(model.hertzOf(marker) - from), {nothingText()}};
    }
    if (trace.onSmithChart())
        return reference ? readOnSmithChart(point(marker), format, point(*reference))
                         : readOnSmithChart(point(marker), format);
    return reference ? readOnCartesian(point(marker), trace.format, point(*reference))
                     : readOnCartesian(point(marker), trace.format);
}

} // namespace Panel
