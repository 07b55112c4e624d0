// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
/*! \file
    Numbers as the panel shows them: engineering units, a decimal point and a true minus sign
    everywhere. */
#pragma once

#include <QString>

#include <array>
#include <complex>

namespace Panel
{

/// A unit and how many base units it holds.
struct UnitSize {
    const char *name;
    double size;
    int decimals; ///< that reach down to 1 Hz
};

/// GHz, MHz, kHz and Hz.
constexpr std::array<UnitSize, 4> frequencyUnits{
    {{"GHz", 1e9, 9}, {"MHz", 1e6, 6}, {"kHz", 1e3, 3}, {"Hz", 1.0, 0}}};

/// "2.450 GHz": a frequency in Hz with at least three decimals, and as many more as it needs, up to
/// nine.
QString frequencyText(double hertz);
/// "2.45 GHz": the same without decimals that are not needed, for the labels of an axis.
QString shortFrequencyText(double hertz);
/// "204.5 pH": four significant digits and an SI prefix; a dash for what is no number.
QString engineeringText(double value, const QString &unit);
/// "48.21": a number as in an engineering text, without unit and prefix.
QString numberText(double value, int decimals);
/// Stands for a value that does not exist or cannot be computed.
QString nothingText();
/// "376.73 Ω": a resistance in Ohm with up to five significant digits.
QString ohmsText(const std::complex<double> &ohms);
/// The text with its hyphens as minus signs.
QString withMinusSigns(QString text);

} // namespace Panel
