// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "words.h"

#include "text.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace Panel
{

namespace
{

char lowered(char c)
{
    return c >= 'A' && c <= 'Z' ? char(c - 'A' + 'a') : c;
}

bool sameLetter(char a, char lower)
{
    return lowered(a) == lower;
}

/// What std::from_chars() leaves out: a plus sign.
std::string_view withoutPlus(std::string_view word)
{
    if (word.size() > 1 && word[0] == '+' && word[1] != '-')
        word.remove_prefix(1);
    return word;
}

/// Reads a number off the front of a word; infinite where it is too large, 0 where too small.
template<typename Real>
bool takeNumber(std::string_view &word, Real &value)
{
    const std::string_view plain = withoutPlus(word);
    const char *const end = plain.data() + plain.size();
    const auto [rest, error] = std::from_chars(plain.data(), end, value);
    if (error == std::errc::invalid_argument)
        return false;
    if (error == std::errc::result_out_of_range) {
        const std::string_view text(plain.data(), std::size_t(rest - plain.data()));
        const std::size_t exponent = text.find_first_of("eE");
        const bool small = exponent + 1 < text.size() && text[exponent + 1] == '-';
        value = small ? Real(0) : std::numeric_limits<Real>::infinity();
    }
    word = std::string_view(rest, std::size_t(end - rest));
    return true;
}

template<typename Real>
bool toReal(std::string_view word, Real &value)
{
    return takeNumber(word, value) && word.empty() && !std::isinf(value);
}

} // namespace

bool sameWord(std::string_view word, std::string_view lower)
{
    return std::equal(word.begin(), word.end(), lower.begin(), lower.end(), sameLetter);
}

bool startsWithWord(std::string_view text, std::string_view lower)
{
    return sameWord(text.substr(0, lower.size()), lower);
}

std::string_view withoutBlanks(std::string_view line)
{
    while (!line.empty() && isBlank(line.front()))
        line.remove_prefix(1);
    return line;
}

bool nextWord(std::string_view &line, std::string_view &word)
{
    line = withoutBlanks(line);
    std::size_t stop = 0;
    while (stop < line.size() && !isBlank(line[stop]) && line[stop] != '!')
        ++stop;
    word = line.substr(0, stop);
    line.remove_prefix(stop);
    return !word.empty();
}

int countWords(std::string_view line)
{
    std::string_view word;
    int count = 0;
    while (nextWord(line, word))
        ++count;
    return count;
}

bool toNumber(std::string_view word, double &value)
{
    return toReal(word, value);
}

bool toLongNumber(std::string_view word, long double &value)
{
    return toReal(word, value) && !std::isnan(value);
}

bool toCount(std::string_view word, int &count)
{
    const char *const end = word.data() + word.size();
    const auto [rest, error] = std::from_chars(word.data(), end, count);
    return error == std::errc() && rest == end && count > 0;
}

bool toImpedance(std::string_view word, std::complex<double> &ohms)
{
    if (word.size() > 1 && word.front() == '(' && word.back() == ')')
        word = word.substr(1, word.size() - 2);
    double real = 0.0;
    double imag = 0.0;
    if (!takeNumber(word, real))
        return false;
    if (!word.empty()) {
        const char unit = lowered(word.back());
        if ((unit != 'j' && unit != 'i') || (word.front() != '+' && word.front() != '-'))
            return false;
        word.remove_suffix(1);
        if (!toNumber(word, imag))
            return false;
    }
    ohms = {real, imag};
    return real > 0.0 && std::isfinite(real) && std::isfinite(imag);
}

QString quoted(std::string_view word)
{
    constexpr std::size_t longest = 24;
    QString text = QString::fromUtf8(word.data(), int(std::min(word.size(), longest)));
    for (QChar &c : text) {
        if (!c.isPrint())
            c = QLatin1Char('?');
    }
    if (word.size() > longest)
        text += QChar(0x2026);
    return QLatin1Char('"') + text + QLatin1Char('"');
}

QString notANumber(std::string_view word)
{
    return Text::tr("%1 stands where a finite number belongs").arg(quoted(word));
}

} // namespace Panel
