// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <controls/step125controller.h>

#include <utils/formatting.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace Controls
{

namespace
{

constexpr std::array<double, 5> s_mantissas{1.0, 2.0, 5.0, 10.0, 20.0};

/// The first entry above a mantissa of at most 10. Compared exactly, so that a mantissa a rounding
/// error below an entry gives that entry.
double nextAbove(double mantissa)
{
    return *std::upper_bound(s_mantissas.begin(), s_mantissas.end() - 1, mantissa);
}

/// The last entry below a mantissa of at least 1; below 1 itself it is the 5 of the lower decade.
double nextBelow(double mantissa)
{
    const auto *notBelow = std::lower_bound(s_mantissas.begin(), s_mantissas.end(), mantissa);
    return notBelow == s_mantissas.begin() ? 0.5 : *(notBelow - 1);
}

} // namespace

struct Step125Controller::Private {
    double zeroThreshold = 1e-15;
};

Step125Controller::Step125Controller(QObject *parent)
    : StepController(parent)
    , d(std::make_unique<Private>())
{
}

Step125Controller::~Step125Controller() = default;

double Step125Controller::zeroThreshold() const
{
    return d->zeroThreshold;
}

bool Step125Controller::setZeroThreshold(double threshold)
{
    if (!std::isfinite(threshold) || threshold < 0.0)
        return false;
    d->zeroThreshold = threshold;
    return true;
}

void Step125Controller::stepBy(double value, int step)
{
    const auto [mantissa, exponent] = Utils::getScientificNotation(value, d->zeroThreshold);
    if (step == 0 || mantissa == 0.0 || !std::isfinite(value)) {
        Q_EMIT stepped(value);
        return;
    }

    const bool negative = value < 0.0;
    const bool grows = negative == (step < 0);
    // Powers of ten are exact up to 1e22, those below 1 are not: 2 / 1e10 is 2e-10, 2 * 1e-10 a bit
    // less.
    const bool divides = exponent < 0 && exponent >= -22;
    const double power = std::pow(10.0, divides ? -exponent : exponent);
    const auto scaled = [&, sign = negative ? -1.0 : 1.0](double entry) {
        return sign * (divides ? entry / power : entry * power);
    };
    double result = 0.0;
    if (negative && grows) {
        result = scaled(1.0);
    } else {
        const auto next = grows ? nextAbove : nextBelow;
        const double entry = next(std::abs(mantissa));
        result = scaled(entry);
        // The rounding of a mantissa (2e-12 has 1.9999999999999998) must not hold the user up.
        if (result == value)
            result = scaled(next(entry));
    }
    Q_EMIT stepped(std::abs(result) < d->zeroThreshold ? 0.0 : result);
}

} // namespace Controls
