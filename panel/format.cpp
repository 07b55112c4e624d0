// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "format.h"

#include <cmath>

namespace Panel
{

QString frequencyText(double hertz)
{
    struct Unit {
        double size;
        const char *name;
    };
    static constexpr Unit units[] = {{1e9, "GHz"}, {1e6, "MHz"}, {1e3, "kHz"}, {1.0, "Hz"}};
    const Unit *unit = units;
    while (unit->size > 1.0 && std::abs(hertz) < unit->size)
        ++unit;
    QString digits = QString::number(hertz / unit->size, 'f', 9);
    const int shortest = digits.indexOf(QLatin1Char('.')) + 4;
    while (digits.size() > shortest && digits.endsWith(QLatin1Char('0')))
        digits.chop(1);
    return digits + QLatin1Char(' ') + QLatin1String(unit->name);
}

QString ohmsText(double ohms)
{
    return QString::number(ohms, 'g', 5) + QStringLiteral(" \u03a9");
}

} // namespace Panel
