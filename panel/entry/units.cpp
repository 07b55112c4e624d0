// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "units.h"

#include <panel/ground/numbertext.h>

#include <QDoubleValidator>
#include <QRegularExpression>

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
    return withMinusSigns(text);
}

QString UnitAdapter::rangeText()
{
    if (std::isinf(m_minimum) || std::isinf(m_maximum))
        return {};
    return valueText(m_minimum) + QStringLiteral(" \u2026 ") + valueText(m_maximum);
}

QString UnitAdapter::unitOfLetter(QChar letter)
{
    for (const QString &unit : availableUnits()) {
        if (unit.startsWith(letter, Qt::CaseInsensitive))
            return unit;
    }
    return {};
}

QString UnitAdapter::normalized(const QString &text)
{
    static const QRegularExpression form(
        QStringLiteral("^([-+]?(?:[0-9]+[.,]?[0-9]*|[.,][0-9]+)(?:[eE][-+]?[0-9]+)?)([^0-9]*)$"));
    QString typed = text;
    typed.remove(QLatin1Char(' '));
    typed.replace(QChar(0x2212), QLatin1Char('-'));
    const QRegularExpressionMatch match = form.match(typed);
    if (!match.hasMatch())
        return {};
    QString number = match.captured(1);
    number.replace(QLatin1Char(','), QLatin1Char('.'));
    // What was typed stands in front of the unit that was there.
    QString unit = match.captured(2);
    for (const QString &shown : availableUnits()) {
        if (unit.size() > shown.size() && unit.endsWith(shown)
            && !availableUnits().contains(unit)) {
            unit.chop(shown.size());
            break;
        }
    }
    if (unit.size() == 1 && !availableUnits().contains(unit))
        unit = unitOfLetter(unit.front());
    return match.captured(2).isEmpty() == unit.isEmpty() ? number + unit : QString();
}

double UnitAdapter::typedValue(const QString &text)
{
    const QString typed = normalized(text);
    QString unit;
    return typed.isEmpty() ? qQNaN() : convertInputTextToValue(typed, unit);
}

namespace
{

QVector<Controls::ScaledUnitAdapter::Unit> frequencyUnitList()
{
    QVector<Controls::ScaledUnitAdapter::Unit> list;
    for (const UnitSize &unit : frequencyUnits)
        list.append({QLatin1String(unit.name), unit.size});
    return list;
}

} // namespace

FrequencyAdapter::FrequencyAdapter(QObject *parent)
    : UnitAdapter(frequencyUnitList(), parent)
{
    for (const UnitSize &unit : frequencyUnits)
        setUnitDecimals(QLatin1String(unit.name), unit.decimals);
}

TimeAdapter::TimeAdapter(QObject *parent)
    : UnitAdapter({{QStringLiteral("ns"), 1e-9}, {QStringLiteral("ps"), 1e-12}}, parent)
{
    setUnitDecimals(QStringLiteral("ns"), 5);
    setUnitDecimals(QStringLiteral("ps"), 2);
}

ResistanceAdapter::ResistanceAdapter(QObject *parent)
    : UnitAdapter({{QStringLiteral("Ohm"), 1.0}}, parent)
{
    setDecimals(2);
}

DecibelAdapter::DecibelAdapter(QObject *parent)
    : UnitAdapter({{QStringLiteral("dB"), 1.0}}, parent)
{
    setDecimals(2);
}

PowerAdapter::PowerAdapter(QObject *parent)
    : UnitAdapter({{QStringLiteral("dBm"), 1.0}}, parent)
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
