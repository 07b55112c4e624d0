// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The values of a Cartesian diagram as text.
#include "cartesian.h"

#include <panel/ground/numbertext.h>

#include <cmath>

namespace Panel
{

namespace
{

/// The number and the unit of the format, which stands close to an angle.
QString withUnit(const QString &number, TraceFormat format)
{
    return number + unitSpace(format) + formatUnit(format);
}

} // namespace

QString cartesianText(double value, TraceFormat format)
{
    // From a cable's nanoseconds to the fractions of a picosecond of what is made for 100 GHz.
    if (format == TraceFormat::GroupDelay)
        return engineeringText(value * 1e-9, QStringLiteral("s"));
    return std::isfinite(value) ? withUnit(numberText(value, traits(format).decimals), format)
                                : nothingText();
}

QString cartesianReferenceText(double value, TraceFormat format)
{
    return withUnit(withMinusSigns(QString::number(value, 'g', 6)), format);
}

} // namespace Panel
