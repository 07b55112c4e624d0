// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
/*! \file
    The words of a Touchstone line: what separates them, and what they mean as numbers. The case of
    letters never matters, and neither does the locale. */
#pragma once

#include <QString>

#include <complex>
#include <string_view>

namespace Panel
{

/// What separates words within a line. Ctrl-Z ends files that were written under DOS.
inline bool isBlank(char c)
{
    return c == ' ' || (c < ' ' && (c == '\t' || c == '\v' || c == '\f' || c == '\x1a'));
}

/// Equal but for the case of ASCII letters; `lower` is in lower case.
bool sameWord(std::string_view word, std::string_view lower);

/// Begins with `lower`, but for the case of ASCII letters.
bool startsWithWord(std::string_view text, std::string_view lower);

/// Takes blanks off the front.
std::string_view withoutBlanks(std::string_view line);

/// Takes the next word off the line; false at its end or where a comment begins.
bool nextWord(std::string_view &line, std::string_view &word);

/// How many words the line has before its end or a comment.
int countWords(std::string_view line);

/// Reads a whole word as a number or NaN; false for anything else and for what is infinite.
bool toNumber(std::string_view word, double &value);

/// The same with whatever the machine has beyond a double; NaN is refused.
bool toLongNumber(std::string_view word, long double &value);

/// Reads a whole word as a number of things, at least one.
bool toCount(std::string_view word, int &count);

/// Reads a whole word as an impedance with a real part above zero: "50", "(50+5j)", "50-5j".
bool toImpedance(std::string_view word, std::complex<double> &ohms);

/// A word of the file as it can be shown: short, in quotation marks, and without what is not
/// printable.
QString quoted(std::string_view word);

/// The clause that refuses a word that is no number.
QString notANumber(std::string_view word);

} // namespace Panel
