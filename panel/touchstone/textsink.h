// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string_view>

class QIODevice;

namespace Panel
{

/*! Writes text with numbers to a device, some ten kilobytes at a time. A number is the shortest
   text that reads back as the same double, whatever the locale. What goes wrong is the device's to
    tell. */
class TextSink
{
public:
    explicit TextSink(QIODevice &device)
        : m_device(device)
    {
    }

    TextSink &operator<<(std::string_view text);
    TextSink &operator<<(double value) { return putNumber(value); }
    TextSink &operator<<(long double value) { return putNumber(value); }
    TextSink &operator<<(int value) { return putNumber(value); }
    /// To be called at the end, too.
    void flush();

private:
    template<typename Number>
    TextSink &putNumber(Number value);

    QIODevice &m_device;
    std::array<char, 1 << 14> m_block;
    std::size_t m_used = 0;
};

} // namespace Panel
