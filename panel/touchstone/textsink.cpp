// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "textsink.h"

#include <QIODevice>

#include <algorithm>
#include <charconv>

namespace Panel
{

namespace
{

/// More than the longest number has.
constexpr std::size_t s_longestNumber = 64;

} // namespace

TextSink &TextSink::operator<<(std::string_view text)
{
    while (!text.empty()) {
        if (m_used == m_block.size())
            flush();
        const std::size_t count = std::min(text.size(), m_block.size() - m_used);
        std::copy_n(text.begin(), count, m_block.begin() + std::ptrdiff_t(m_used));
        m_used += count;
        text.remove_prefix(count);
    }
    return *this;
}

void TextSink::flush()
{
    m_device.write(m_block.data(), qint64(m_used));
    m_used = 0;
}

template<typename Number>
TextSink &TextSink::putNumber(Number value)
{
    if (m_block.size() - m_used < s_longestNumber)
        flush();
    char *const at = m_block.data() + m_used;
    m_used += std::size_t(std::to_chars(at, at + s_longestNumber, value).ptr - at);
    return *this;
}

template TextSink &TextSink::putNumber(double);
template TextSink &TextSink::putNumber(long double);
template TextSink &TextSink::putNumber(int);

} // namespace Panel
