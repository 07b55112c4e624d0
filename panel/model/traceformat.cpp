// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "traceformat.h"

#include <QCoreApplication>

#include <cmath>

namespace Panel
{

namespace
{

struct Text {
    Q_DECLARE_TR_FUNCTIONS(Panel::TraceFormat)
};

} // namespace

int divisions(TraceFormat format)
{
    return format == TraceFormat::Phase ? 8 : 10;
}

Scale usualScale(TraceFormat format, double highest)
{
    switch (format) {
    case TraceFormat::Smith:
        return {1.0, 1.0};
    case TraceFormat::LogMagnitude:
        return {10.0,
                std::isfinite(highest) ? std::ceil(std::fmax(highest, 0.0) / 10.0) * 10.0 : 0.0};
    case TraceFormat::Phase:
        return {45.0, 180.0};
    case TraceFormat::Vswr:
        return {1.0, 11.0};
    }
    return {};
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
    switch (format) {
    case TraceFormat::Smith:
        return QStringLiteral("U");
    case TraceFormat::LogMagnitude:
        return QStringLiteral("dB");
    case TraceFormat::Phase:
        return QStringLiteral("\u00b0");
    case TraceFormat::Vswr:
        break;
    }
    return {};
}

QString scaleText(TraceFormat format, const Scale &scale)
{
    const QString number = format == TraceFormat::Smith
        ? QString::number(scale.perDivision, 'f', 2)
        : QString::number(scale.perDivision, 'g', 4);
    const QString unit = formatUnit(format);
    const bool close = unit.isEmpty() || format == TraceFormat::Phase;
    return number + (close ? QString() : QStringLiteral(" ")) + unit + QLatin1Char('/');
}

} // namespace Panel
