// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "traceformat.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <cmath>

namespace Panel
{

namespace
{

struct Text {
    Q_DECLARE_TR_FUNCTIONS(Panel::TraceFormat)
};

/// In the order of TraceFormat. The magnitude stands for the Smith chart where it has no value of
/// its own.
constexpr std::array<FormatTraits, traceFormatCount> s_formats{{
    {"", 4, 10, {1.0, 1.0}, 0.005, 1.0, false, 0.02},
    {"dB", 2, 10, {10.0, 0.0}, 0.01, 100.0, false, 3.0},
    {"\u00b0", 1, 8, {45.0, 180.0}, 0.01, 90.0, false, 10.0},
    {"", 2, 10, {1.0, 11.0}, 0.01, 100.0, false, 0.1},
    {"", 4, 10, {0.1, 1.0}, 1e-6, 100.0, true, 0.02},
    {"", 4, 10, {0.2, 1.0}, 1e-6, 100.0, true, 0.02},
    {"", 4, 10, {0.2, 1.0}, 1e-6, 100.0, true, 0.02},
    {"\u00b0", 1, 8, {90.0, 0.0}, 0.01, 1e6, true, 10.0},
    {"ns", 4, 10, {1.0, 10.0}, 1e-5, 1e6, true, 0.1},
    {"\u03a9", 2, 10, {10.0, 100.0}, 1e-4, 200.0, true, 1.0},
    {"\u03a9", 2, 10, {20.0, 100.0}, 1e-4, 200.0, true, 1.0},
    {"", 2, 10, {1.0, 10.0}, 1e-4, 100.0, true, 0.1},
    {"", 4, 5, {0.2, 1.0, 5}, 1e-6, 100.0, true, 0.02},
}};

/// The next division of 1, 2 or 5 times a power of ten that is not below a value above 0.
double roundedUp(double value)
{
    const double decade = std::pow(10.0, std::floor(std::log10(value)));
    for (const double step : {1.0, 2.0, 5.0}) {
        if (value <= step * decade * (1.0 + 1e-9))
            return step * decade;
    }
    return 10.0 * decade;
}

} // namespace

DiagramKind diagramKind(TraceFormat format)
{
    return format == TraceFormat::Smith ? DiagramKind::Smith
        : format == TraceFormat::Polar  ? DiagramKind::Polar
                                        : DiagramKind::Cartesian;
}

const FormatTraits &traits(TraceFormat format)
{
    return s_formats.at(std::size_t(format));
}

Scale defaultScale(TraceFormat format, double highest)
{
    Scale scale = traits(format).defaultScale;
    if (format == TraceFormat::LogMagnitude && highest > scale.top && std::isfinite(highest))
        scale.top = std::ceil(highest / scale.perDivision) * scale.perDivision;
    return scale;
}

Scale fittingScale(TraceFormat format, double lowest, double highest)
{
    const FormatTraits &row = traits(format);
    if (!std::isfinite(lowest) || !std::isfinite(highest))
        return row.defaultScale;
    if (format == TraceFormat::Polar) {
        const double needed = highest / row.divisions;
        return row.defaultScale.withDivision(
            roundedUp(std::clamp(needed, row.smallestDivision, row.largestDivision)));
    }
    // What is beyond the largest scale, such as the resistance of an open end, has no say.
    const double limit = row.divisions / 2.0 * row.largestDivision;
    lowest = std::clamp(lowest, -limit, limit);
    highest = std::clamp(highest, -limit, limit);
    // Up to a division of room, and never the edges; the standing wave ratio stands on its 1.
    const bool standing = format == TraceFormat::Vswr;
    if (standing)
        lowest = 1.0;
    const double needed = (highest - lowest) / (row.divisions - 1);
    double division = roundedUp(std::clamp(needed, row.smallestDivision, row.largestDivision));
    if (format == TraceFormat::Phase && division > 20.0)
        division = 45.0; // from -180 to 180, where all phases are
    division = std::min(division, row.largestDivision);
    if (standing)
        return {division, 1.0 + row.divisions * division};
    if (format == TraceFormat::Phase && division >= 45.0)
        return {division, row.divisions / 2.0 * division};
    // In the middle, with the divisions at multiples of themselves.
    const double top = std::ceil(highest / division - 1e-9);
    const double used = top - std::floor(lowest / division + 1e-9);
    return {division, (top + std::floor((row.divisions - used) / 2.0)) * division};
}

double bottom(TraceFormat format, const Scale &scale)
{
    return scale.top - traits(format).divisions * scale.perDivision;
}

QString formatName(TraceFormat format)
{
    switch (format) {
    case TraceFormat::Smith:
        return Text::tr("Smith");
    case TraceFormat::LogMagnitude:
        return Text::tr("LogM");
    case TraceFormat::Phase:
        return Text::tr("Phase");
    case TraceFormat::Vswr:
        return Text::tr("VSWR");
    case TraceFormat::LinearMagnitude:
        return Text::tr("LinM");
    case TraceFormat::RealPart:
        return Text::tr("Real");
    case TraceFormat::ImaginaryPart:
        return Text::tr("Imag");
    case TraceFormat::UnwrappedPhase:
        return Text::tr("Unwrapped");
    case TraceFormat::GroupDelay:
        return Text::tr("Delay");
    case TraceFormat::Resistance:
        return QStringLiteral("R");
    case TraceFormat::Reactance:
        return QStringLiteral("X");
    case TraceFormat::Quality:
        return QStringLiteral("Q");
    case TraceFormat::Polar:
        return Text::tr("Polar");
    }
    return {};
}

QString formatName(ReadoutFormat format)
{
    switch (format) {
    case ReadoutFormat::Automatic:
        return Text::tr("As the grid");
    case ReadoutFormat::Impedance:
        return QStringLiteral("R + jX");
    case ReadoutFormat::Admittance:
        return QStringLiteral("G + jB");
    case ReadoutFormat::MagnitudePhase:
        return Text::tr("Mag / phase");
    case ReadoutFormat::Decibels:
        return Text::tr("dB / phase");
    case ReadoutFormat::Vswr:
        return Text::tr("VSWR");
    }
    return {};
}

QString formatUnit(TraceFormat format)
{
    return QString::fromUtf8(traits(format).unit);
}

QString unitSpace(TraceFormat format)
{
    const QString unit = formatUnit(format);
    return unit.isEmpty() || unit == QChar(0x00b0) ? QString() : QStringLiteral(" ");
}

QString divisionText(TraceFormat format, double perDivision)
{
    return QString::number(perDivision, 'g', 4) + unitSpace(format) + formatUnit(format)
        + QLatin1Char('/');
}

QString zoomText(double zoom)
{
    const int decimals = zoom < 10.0 ? 2 : zoom < 100.0 ? 3 : 4;
    return QStringLiteral("%1 U/").arg(1.0 / zoom, 0, 'f', decimals);
}

} // namespace Panel
