// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "format.h"

#include <cmath>

namespace Panel
{

QString frequencyText(double hertz)
{
    if (!std::isfinite(hertz))
        return nothingText();
    struct Unit {
        double size;
        const char *name;
    };
    static constexpr Unit units[] = {{1e9, "GHz"}, {1e6, "MHz"}, {1e3, "kHz"}, {1.0, "Hz"}};
    const Unit *unit = units;
    while (unit->size > 1.0 && std::abs(hertz) < unit->size)
        ++unit;
    QString digits = QString::number(hertz / unit->size, 'f', 9);
    const int shortest = int(digits.indexOf(QLatin1Char('.'))) + 4;
    while (digits.size() > shortest && digits.endsWith(QLatin1Char('0')))
        digits.chop(1);
    digits.replace(QLatin1Char('-'), QChar(0x2212));
    return digits + QLatin1Char(' ') + QLatin1String(unit->name);
}

QString engineeringText(double value, const QString &unit)
{
    if (!std::isfinite(value))
        return nothingText();
    static const QString prefixes = QStringLiteral("fpn\u00b5m kMGT");
    // Rounded first: 999.96 has to become 1.000 k.
    const QString rounded = QString::number(value, 'e', 3);
    const int exponent = rounded.mid(rounded.indexOf(QLatin1Char('e')) + 1).toInt();
    const int group = qBound(-5, exponent >= 0 ? exponent / 3 : (exponent - 2) / 3, 4);
    const int decimals = qBound(0, 3 - (exponent - 3 * group), 3);
    QString text = QString::number(rounded.toDouble() / std::pow(10.0, 3 * group), 'f', decimals);
    text.replace(QLatin1Char('-'), QChar(0x2212));
    text += QLatin1Char(' ');
    if (group != 0)
        text += prefixes.at(group + 5);
    return text + unit;
}

QString numberText(double value, int decimals)
{
    if (!std::isfinite(value))
        return nothingText();
    QString text = QString::number(value, 'f', decimals);
    text.replace(QLatin1Char('-'), QChar(0x2212));
    return text;
}

QString nothingText()
{
    return QStringLiteral("\u2013");
}

QString ohmsText(double ohms)
{
    return QString::number(ohms, 'g', 5) + QStringLiteral(" \u03a9");
}

} // namespace Panel
