// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
/*! \file
    Numbers as instruments write them: with a decimal point whatever the locale, and a sign or none. */
#pragma once

#include <QByteArray>

#include <charconv>
#include <string_view>

namespace Panel
{

/// The number at the beginning of a text, "nan" and "inf" included; how many characters it has, or
/// 0 for none.
inline int readNumberAt(const char *begin, const char *end, double &value)
{
    const char *at = begin != end && *begin == '+' ? begin + 1 : begin;
    const auto [stop, error] = std::from_chars(at, end, value);
    return error == std::errc() ? int(stop - begin) : 0;
}

/// The number that is the whole text but for spaces.
inline bool readNumber(const QByteArray &text, double &value)
{
    const QByteArray trimmed = text.trimmed();
    return !trimmed.isEmpty()
        && readNumberAt(trimmed.cbegin(), trimmed.cend(), value) == trimmed.size();
}

/// The number, or another where there is none.
inline double numberOr(const QByteArray &text, double other)
{
    double value = 0.0;
    return readNumber(text, value) ? value : other;
}

} // namespace Panel
