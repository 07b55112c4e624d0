// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "units.h"

#include <QDoubleValidator>

#include <cmath>

namespace Panel
{

void UnitAdapter::setRange(double minimum, double maximum)
{
    m_minimum = minimum;
    m_maximum = maximum;
    delete validator();
    setValidator(new QDoubleValidator(minimum, maximum, 0, this));
    setRealValue(getRealValue());
}

QString UnitAdapter::valueText(double value)
{
    QString text = convertFromBaseValue(value, {});
    int unit = 0;
    for (const QString &name : availableUnits()) {
        if (text.endsWith(name))
            unit = qMax(unit, int(name.size()));
    }
    if (unit > 0)
        text.insert(text.size() - unit, QLatin1Char(' '));
    return text.replace(QLatin1Char('-'), QChar(0x2212));
}

QString UnitAdapter::rangeText()
{
    if (std::isinf(m_minimum) || std::isinf(m_maximum))
        return {};
    return valueText(m_minimum) + QStringLiteral(" \u2026 ") + valueText(m_maximum);
}

FrequencyAdapter::FrequencyAdapter(QObject *parent)
    : UnitAdapter({{QStringLiteral("GHz"), 1e9},
                   {QStringLiteral("MHz"), 1e6},
                   {QStringLiteral("kHz"), 1e3},
                   {QStringLiteral("Hz"), 1.0}},
                  parent)
{
    setUnitDecimals(QStringLiteral("GHz"), 9);
    setUnitDecimals(QStringLiteral("MHz"), 6);
    setUnitDecimals(QStringLiteral("kHz"), 3);
    setUnitDecimals(QStringLiteral("Hz"), 0);
}

DecibelAdapter::DecibelAdapter(QObject *parent)
    : UnitAdapter({{QStringLiteral("dB"), 1.0}}, parent)
{
    setDecimals(2);
}

NumberAdapter::NumberAdapter(int decimals, QObject *parent)
    : UnitAdapter({}, parent)
{
    setDecimals(decimals);
}

double NumberAdapter::convertToBase(const QString &text)
{
    const double scale = std::pow(10.0, m_decimals);
    const double value = UnitAdapter::convertToBase(text);
    return std::isfinite(value * scale) ? std::round(value * scale) / scale : value;
}

} // namespace Panel
