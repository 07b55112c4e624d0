// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "numbertext.h"

#include <cmath>

namespace Panel
{

namespace
{

QString frequencyWithDecimals(double hertz, int minimumDecimals)
{
    if (!std::isfinite(hertz))
        return nothingText();
    const UnitSize *unit = frequencyUnits.data();
    while (unit->size > 1.0 && std::abs(hertz) < unit->size)
        ++unit;
    QString digits = QString::number(hertz / unit->size, 'f', 9);
    const int point = int(digits.indexOf(QLatin1Char('.')));
    while (digits.size() > point + 1 + minimumDecimals && digits.endsWith(QLatin1Char('0')))
        digits.chop(1);
    if (digits.endsWith(QLatin1Char('.')))
        digits.chop(1);
    return withMinusSigns(digits) + QLatin1Char(' ') + QLatin1String(unit->name);
}

} // namespace

QString withMinusSigns(QString text)
{
    return text.replace(QLatin1Char('-'), QChar(0x2212));
}

QString frequencyText(double hertz)
{
    return frequencyWithDecimals(hertz, 3);
}

QString shortFrequencyText(double hertz)
{
    return frequencyWithDecimals(hertz, 0);
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
    QString text = numberText(rounded.toDouble() / std::pow(10.0, 3 * group), decimals);
    text += QLatin1Char(' ');
    if (group != 0)
        text += prefixes.at(group + 5);
    return text + unit;
}

QString numberText(double value, int decimals)
{
    return std::isfinite(value) ? withMinusSigns(QString::number(value, 'f', decimals))
                                : nothingText();
}

QString nothingText()
{
    return QStringLiteral("\u2013");
}

QString ohmsText(const std::complex<double> &ohms)
{
    QString text = QString::number(ohms.real(), 'g', 5);
    if (ohms.imag() != 0.0)
        text += (ohms.imag() < 0.0 ? QStringLiteral(" \u2212 j") : QStringLiteral(" + j"))
            + QString::number(std::abs(ohms.imag()), 'g', 5);
    return text + QStringLiteral(" \u03a9");
}

} // namespace Panel
