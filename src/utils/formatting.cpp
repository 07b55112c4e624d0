// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <utils/formatting.h>

#include <cmath>

namespace Utils
{

QString toString(double value, int precision)
{
    QString text = QString::number(value, 'f', precision);
    if (precision < 1 || !text.contains(QLatin1Char('.')))
        return text; // the second case is "inf" and "nan"

    auto length = text.length();
    while (text.at(length - 1) == QLatin1Char('0'))
        --length;
    if (text.at(length - 1) == QLatin1Char('.'))
        --length;
    text.truncate(length);
    return text;
}

std::pair<double, int> getScientificNotation(double value)
{
    return getScientificNotation(value, zeroThreshold);
}

std::pair<double, int> getScientificNotation(double value, double threshold)
{
    if (!std::isfinite(value))
        return {value, 0};
    if (value == 0.0 || std::abs(value) < threshold)
        return {0.0, 0};

    // One step a decade and no logarithm: the step controllers compare the mantissa exactly, and
    // this is the rounding that they expect.
    double mantissa = value;
    int exponent = 0;
    while (std::abs(mantissa) >= 10.0) {
        mantissa /= 10.0;
        ++exponent;
    }
    while (std::abs(mantissa) < 1.0) {
        mantissa *= 10.0;
        --exponent;
    }
    return {mantissa, exponent};
}

bool isStep125Value(double value)
{
    if (std::abs(value) < zeroThreshold)
        return true;
    const double mantissa = std::abs(getScientificNotation(value).first);
    for (const double step : {1.0, 2.0, 5.0}) {
        if (std::abs(mantissa - step) < step125Tolerance)
            return true;
    }
    return false;
}

} // namespace Utils
