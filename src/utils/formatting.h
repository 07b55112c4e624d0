// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
/*! \file
    Numbers as text, and the 1-2-5 sequence. Pure functions, without a unit, a prefix or a
    locale.

    \code
    Utils::toString(2.450, 3);           // "2.45"
    Utils::getScientificNotation(-2500); // {-2.5, 3}
    Utils::isStep125Value(0.02);         // true
    \endcode */
#pragma once

#include <vnawidgets_export.h>

#include <QString>

#include <utility>

namespace Utils
{

/// A magnitude below this counts as zero.
inline constexpr double zeroThreshold = 1e-15;
/// A mantissa this close to 1, 2 or 5 counts as that number.
inline constexpr double step125Tolerance = 1e-9;

/// The value in fixed-point notation with at most \a precision digits after the point: trailing
/// zeros and a dangling point are removed. Below a precision of 1 nothing is trimmed.
VNAWIDGETS_EXPORT QString toString(double value, int precision);

/// Splits a value into a mantissa, whose magnitude lies in [1, 10), and a power of ten. Zero and
/// what counts as zero give (0, 0); a value that is not finite is returned as it is, with exponent
/// 0.
VNAWIDGETS_EXPORT std::pair<double, int> getScientificNotation(double value);
/// The same where only a magnitude below \a threshold counts as zero; at 0 nothing but zero does.
VNAWIDGETS_EXPORT std::pair<double, int> getScientificNotation(double value, double threshold);

/// True for 1, 2 or 5 times a power of ten of either sign, and for what counts as zero.
VNAWIDGETS_EXPORT bool isStep125Value(double value);

} // namespace Utils
