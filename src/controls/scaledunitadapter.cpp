// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <controls/scaledunitadapter.h>

#include <utils/formatting.h>

#include <cmath>

namespace Controls
{

namespace
{

/// value * factor. A power of ten below 1 has no exact double, but its inverse has: dividing by
/// that makes "470ns" the double nearest to 470e-9.
double scaled(double value, double factor)
{
    const double inverse = std::round(1.0 / factor);
    return std::abs(inverse * factor - 1.0) < 1e-12 ? value / inverse : value * factor;
}

/// Where the number at the start of a text ends: digits with at most one point, in front of them a
/// sign, behind them an exponent. 0 when there is no number.
int numberEnd(const QString &text)
{
    const auto isOneOf = [&text](int at, const char *characters) {
        return at < text.size() && QLatin1String(characters).contains(text.at(at));
    };
    const auto skipDigits = [&](int at) {
        while (isOneOf(at, "0123456789"))
            ++at;
        return at;
    };
    const int first = isOneOf(0, "+-") ? 1 : 0;
    int end = skipDigits(first);
    int digits = end - first;
    if (isOneOf(end, ".")) {
        const int behind = skipDigits(end + 1);
        digits += behind - end - 1;
        end = behind;
    }
    if (digits == 0)
        return 0;
    if (isOneOf(end, "eE")) {
        const int exponent = isOneOf(end + 1, "+-") ? end + 2 : end + 1;
        const int behind = skipDigits(exponent);
        if (behind > exponent)
            end = behind;
    }
    return end;
}

} // namespace

struct ScaledUnitAdapter::Private {
    QStringList units;
    bool unitSpacing = false;
};

ScaledUnitAdapter::ScaledUnitAdapter(const QVector<Unit> &units, QObject *parent)
    : BaseUnitAdapter(parent)
    , d(std::make_unique<Private>())
{
    for (const Unit &unit : units) {
        if (unit.name.isEmpty() || !(unit.factor > 0.0) || !std::isfinite(unit.factor))
            continue;
        d->units << unit.name;
        m_unitFactors.insert(unit.name, unit.factor);
    }
    setRealValue(0.0);
}

ScaledUnitAdapter::~ScaledUnitAdapter() = default;

bool ScaledUnitAdapter::hasUnitSpacing() const
{
    return d->unitSpacing;
}

void ScaledUnitAdapter::setUnitSpacing(bool spacing)
{
    d->unitSpacing = spacing;
}

QStringList ScaledUnitAdapter::availableUnits()
{
    return d->units;
}

QString ScaledUnitAdapter::adapterType()
{
    return QStringLiteral("Scaled");
}

void ScaledUnitAdapter::setUnitDecimals(const QString &unit, int decimals)
{
    m_unitDecimals.insert(unit, decimals);
}

QString ScaledUnitAdapter::convertFromBaseValue(double value, QString unit)
{
    unit = findUnit(unit);
    if (unit.isEmpty())
        unit = bestUnit(value);
    const double number = scaled(value, 1.0 / m_unitFactors.value(unit, 1.0));
    const int decimals = m_unitDecimals.value(unit, m_decimals);
    QString text = m_preserveTrailingZeros ? QString::number(number, 'f', decimals)
                                           : Utils::toString(number, decimals);
    if (text.startsWith(QLatin1Char('-')) && text.toDouble() == 0.0)
        text.remove(0, 1); // what rounds to zero has no sign
    if (d->unitSpacing && !unit.isEmpty())
        text += QLatin1Char(' ');
    return text + unit;
}

double ScaledUnitAdapter::convertToBase(const QString &text)
{
    const QString typed = text.trimmed();
    const int end = numberEnd(typed);
    const QString typedUnit = typed.mid(end).trimmed();
    const QString unit = typedUnit.isEmpty() ? getCurrentUnit() : typedUnit;
    bool ok = false;
    const double number = typed.left(end).toDouble(&ok);
    if (!ok || !(typedUnit.isEmpty() || m_unitFactors.contains(findUnit(unit))))
        return qQNaN();
    const double value = scaled(number, m_unitFactors.value(findUnit(unit), 1.0));
    return std::isfinite(value) ? value : qQNaN();
}

/// The unit as it was registered: of the same spelling, or else of the same letters in another
/// case.
QString ScaledUnitAdapter::findUnit(const QString &name) const
{
    if (d->units.contains(name))
        return name;
    for (const QString &unit : d->units) {
        if (unit.compare(name, Qt::CaseInsensitive) == 0)
            return unit;
    }
    return {};
}

/// The largest unit that the value holds at least once; the smallest for what is smaller than all.
QString ScaledUnitAdapter::bestUnit(double value) const
{
    QString best;
    for (const QString &unit : d->units) {
        const double factor = m_unitFactors.value(unit);
        const double bestFactor = m_unitFactors.value(best, factor);
        const bool fits = std::abs(value) >= factor;
        const bool bestFits = !best.isEmpty() && std::abs(value) >= bestFactor;
        if (best.isEmpty()
            || (fits ? !bestFits || factor > bestFactor : !bestFits && factor < bestFactor))
            best = unit;
    }
    return best;
}

} // namespace Controls
