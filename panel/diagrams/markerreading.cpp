// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "markerreading.h"

#include <panel/ground/numbertext.h>
#include <panel/model/bandwidth.h>
#include <panel/model/cartesian.h>

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <complex>

namespace Panel
{

namespace
{

using Complex = std::complex<double>;

struct Text {
    Q_DECLARE_TR_FUNCTIONS(Panel::MarkerReading)
};

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

/// Adds what has this reactance (Ω, in series) or susceptance (S, in parallel) at a frequency in Hz.
void addElement(MarkerReading &reading, double imaginary, double hertz, bool isReactance)
{
    const double omega = 2.0 * std::acos(-1.0) * hertz;
    if (!(omega > 0.0) || !std::isfinite(imaginary) || imaginary == 0.0) {
        reading.add(qQNaN(), {});
        return;
    }
    // jX = jωL or 1/jωC; jB = jωC or 1/jωL.
    const bool grows = imaginary > 0.0;
    const QString unit = grows == isReactance ? QStringLiteral("H") : QStringLiteral("F");
    const double element = grows ? imaginary / omega : -1.0 / (omega * imaginary);
    reading.add(element, engineeringText(element, unit));
}

double degrees(double angle)
{
    return angle * 180.0 / std::acos(-1.0);
}

/// With the name of what has no unit.
void addAs(MarkerReading &reading, double value, TraceFormat format)
{
    const QString text = cartesianText(value, format);
    const bool isNamed = format == TraceFormat::Vswr && std::isfinite(value);
    reading.add(value, isNamed ? formatName(format) + QLatin1Char(' ') + text : text);
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

void addReflection(MarkerReading &reading, const Complex &gamma, ReadoutFormat format)
{
    if (format == ReadoutFormat::MagnitudePhase)
        reading.add(std::abs(gamma), numberText(std::abs(gamma), 4));
    else if (format == ReadoutFormat::Decibels)
        addAs(reading, decibels(gamma), TraceFormat::LogMagnitude);
    else
        addAs(reading, vswr(gamma), TraceFormat::Vswr);
    if (format != ReadoutFormat::Vswr)
        addAs(reading, degrees(std::arg(gamma)), TraceFormat::Phase);
}

} // namespace

void MarkerReading::add(double number, const QString &text)
{
    numbers.append(number);
    values.append(text);
}

QString markerName(const PanelModel &model, const Marker &marker)
{
    QString name =
        QStringLiteral("M%1").arg(marker.number) + QLatin1String(marker.isFixed() ? "F" : "");
    const Marker *reference = model.referenceMarker(marker.trace);
    if (!reference)
        return name;
    return reference->number == marker.number ? name + QLatin1Char('R') : QChar(0x0394) + name;
}

MarkerReading readOnSmithChart(const MarkedPoint &point, ReadoutFormat format)
{
    const double hertz = frequency(point);
    MarkerReading reading{hertz, frequencyText(hertz), {}, {}};
    const bool y = format == ReadoutFormat::Admittance;
    if (y || format == ReadoutFormat::Impedance || format == ReadoutFormat::Automatic) {
        const Complex value = y ? admittance(point) : impedance(point);
        const QString unit = y ? QStringLiteral("S") : QStringLiteral("\u03a9");
        reading.add(value.real(), partText(value.real(), unit));
        reading.add(value.imag(), imaginaryText(value.imag(), unit));
        addElement(reading, value.imag(), hertz, !y);
    } else {
        addReflection(reading, reflection(point), format);
    }
    return reading;
}

MarkerReading readOnSmithChart(const MarkedPoint &point, ReadoutFormat format,
                               const MarkedPoint &reference)
{
    const double hertz = frequency(point) - frequency(reference);
    MarkerReading reading{hertz, frequencyText(hertz), {}, {}};
    const Complex here = reflection(point), there = reflection(reference);
    const double turned = wrapped(degrees(std::arg(here) - std::arg(there)));
    switch (format) {
    case ReadoutFormat::Automatic:
    case ReadoutFormat::Impedance:
    case ReadoutFormat::Admittance: {
        const bool y = format == ReadoutFormat::Admittance;
        const Complex difference =
            y ? admittance(point) - admittance(reference) : impedance(point) - impedance(reference);
        const QString unit = y ? QStringLiteral("S") : QStringLiteral("\u03a9");
        reading.add(difference.real(), engineeringText(difference.real(), unit));
        reading.add(difference.imag(), imaginaryText(difference.imag(), unit));
        break;
    }
    case ReadoutFormat::MagnitudePhase:
        reading.add(std::abs(here) - std::abs(there),
                    numberText(std::abs(here) - std::abs(there), 4));
        addAs(reading, turned, TraceFormat::Phase);
        break;
    case ReadoutFormat::Decibels:
        addAs(reading, decibels(here) - decibels(there), TraceFormat::LogMagnitude);
        addAs(reading, turned, TraceFormat::Phase);
        break;
    case ReadoutFormat::Vswr:
        addAs(reading, vswr(here) - vswr(there), TraceFormat::Vswr);
        break;
    }
    return reading;
}

MarkerReading readOnCartesian(const MarkedPoint &point, TraceFormat format)
{
    const double hertz = frequency(point);
    MarkerReading reading{hertz, frequencyText(hertz), {}, {}};
    addAs(reading, point.value(format), format);
    return reading;
}

MarkerReading readOnCartesian(const MarkedPoint &point, TraceFormat format,
                              const MarkedPoint &reference)
{
    double difference = point.value(format) - reference.value(format);
    if (format == TraceFormat::Phase)
        difference = wrapped(difference);
    const double hertz = frequency(point) - frequency(reference);
    MarkerReading reading{hertz, frequencyText(hertz), {}, {}};
    addAs(reading, difference, format);
    return reading;
}

namespace
{

/// A frequency with as many digits as a span can be read to, and those of its unit that are always
/// written: a marker between two points would have ten of them.
QString textWithin(double hertz, double span)
{
    constexpr int digitsOfASpan = 6;
    if (!(span > 0.0) || !std::isfinite(hertz))
        return frequencyText(hertz);
    constexpr double decimalsOfAUnit = 3.0;
    const double unit = 3.0 * std::floor(std::log10(std::max(std::abs(hertz), 1.0)) / 3.0);
    const double digit = std::pow(
        10.0, std::min(std::floor(std::log10(span)) - digitsOfASpan + 1, unit - decimalsOfAUnit));
    return frequencyText(std::round(hertz / digit) * digit);
}

MarkerReading readPoint(const PanelModel &model, const Marker &marker)
{
    const Marker *reference = model.referenceMarker(marker.trace);
    if (reference && reference->number == marker.number)
        reference = nullptr;
    const Trace &trace = *model.trace(marker.trace);
    const auto point = [&](const Marker &marked) { return model.markedPoint(marked); };
    const ReadoutFormat format = model.viewSettings()->effectiveReadoutFormat(trace.kind());
    if (point(marker).index < 0.0 || (reference && point(*reference).index < 0.0)) {
        const double hertz = model.hertzOf(marker) - (reference ? model.hertzOf(*reference) : 0.0);
        return {hertz, frequencyText(hertz), {nothingText()}, {qQNaN()}};
    }
    if (!trace.overFrequency())
        return reference ? readOnSmithChart(point(marker), format, point(*reference))
                         : readOnSmithChart(point(marker), format);
    return reference ? readOnCartesian(point(marker), trace.format, point(*reference))
                     : readOnCartesian(point(marker), trace.format);
}

} // namespace

MarkerReading readMarker(const PanelModel &model, const Marker &marker)
{
    MarkerReading reading = readPoint(model, marker);
    const Stimulus shown = model.shownRange(*model.trace(marker.trace));
    reading.frequency = textWithin(reading.hertz, shown.span());
    return reading;
}

QStringList valueNames(const PanelModel &model, const Trace &trace)
{
    if (trace.overFrequency())
        return {formatName(trace.format)};
    const QString element = QStringLiteral("L / C"), phase = formatName(TraceFormat::Phase);
    switch (model.viewSettings()->effectiveReadoutFormat(trace.kind())) {
    case ReadoutFormat::Automatic:
    case ReadoutFormat::Impedance:
        return {QStringLiteral("R"), QStringLiteral("X"), element};
    case ReadoutFormat::Admittance:
        return {QStringLiteral("G"), QStringLiteral("B"), element};
    case ReadoutFormat::MagnitudePhase:
        return {formatName(TraceFormat::LinearMagnitude), phase};
    case ReadoutFormat::Decibels:
        return {formatName(TraceFormat::LogMagnitude), phase};
    case ReadoutFormat::Vswr:
        return {formatName(TraceFormat::Vswr)};
    }
    return {};
}

double vswrAt(const PanelModel &model, const Marker &marker)
{
    const Trace &trace = *model.trace(marker.trace);
    const Marker *reference = model.referenceMarker(marker.trace);
    const bool difference = reference && reference->number != marker.number;
    const bool read = trace.overFrequency()
        ? trace.format == TraceFormat::Vswr
        : model.viewSettings()->effectiveReadoutFormat(trace.kind()) == ReadoutFormat::Vswr;
    if (!reflects(trace) || trace.math > TraceMath::Memory || difference || read)
        return qQNaN();
    const MarkedPoint point = model.markedPoint(marker);
    return point.index < 0.0 ? qQNaN() : vswr(point.data.at(point.index));
}

QString bandwidthText(const PanelModel &model)
{
    const double step = model.viewSettings()->bandwidthDecibels();
    const Marker *selected = model.selectedMarker();
    if (step == 0.0 || !selected)
        return {};
    const Trace &trace = *model.trace(selected->trace);
    const std::optional<Bandwidth> band =
        bandwidthAt(model.traceData(trace), model.indexOf(*selected), step, reflects(trace));
    const QString name = band && band->kind == BandKind::Absorption
        ? Text::tr("Bandwidth %1 dB (absorbed power)").arg(step)
        : Text::tr("Bandwidth %1 dB").arg(step);
    if (!band)
        return Text::tr("%1: its edges are not in the data").arg(name);
    const double span = model.shownRange(trace).span();
    if (!band->hasBothEdges())
        return std::isnan(band->low) ? Text::tr("%1: only its upper edge is in the data, %2")
                                           .arg(name, textWithin(band->high, span))
                                     : Text::tr("%1: only its lower edge is in the data, %2")
                                           .arg(name, textWithin(band->low, span));
    return QStringList{
        name + QLatin1Char(' ') + textWithin(band->width(), span),
        Text::tr("centre %1").arg(textWithin(band->centre(), span)),
        QStringLiteral("Q %1").arg(band->quality(), 0, 'g', 4),
        band->kind != BandKind::Peak || band->decibels > 0.0
            ? Text::tr("marker %1").arg(cartesianText(band->decibels, TraceFormat::LogMagnitude))
            : Text::tr("loss %1").arg(cartesianText(-band->decibels, TraceFormat::LogMagnitude))}
        .join(QStringLiteral(" \u00b7 "));
}

} // namespace Panel
