// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>

namespace Fuzz
{

/// Ends the process with a finding where a condition does not hold, in every kind of build.
#define FUZZ_CHECK(condition)                                                                      \
    do {                                                                                           \
        if (!(condition))                                                                          \
            Fuzz::fail(#condition, __FILE__, __LINE__);                                            \
    } while (false)

[[noreturn]] void fail(const char *condition, const char *file, int line);

/*! The bytes of one run, taken from the front. Past the end everything is zero, so a run's length
    is in the caller's hands: while (!input.atEnd()). */
class Input
{
public:
    Input(const std::uint8_t *data, std::size_t size)
        : m_at(data)
        , m_left(size)
    {
    }

    bool atEnd() const { return m_left == 0; }

    int byte()
    {
        if (m_left == 0)
            return 0;
        --m_left;
        return *m_at++;
    }
    bool flag() { return byte() & 1; }

    /// A number between both ends, which are at most 65535 apart.
    int integer(int low, int high)
    {
        const int span = high - low + 1;
        return low + (span > 256 ? (byte() << 8 | byte()) : byte()) % span;
    }

    /// The double that the next eight bytes are.
    double raw()
    {
        std::uint8_t bytes[sizeof(double)];
        for (std::uint8_t &b : bytes)
            b = static_cast<std::uint8_t>(byte());
        double value = 0.0;
        std::memcpy(&value, bytes, sizeof value);
        return value;
    }

    /// A double as callers have them: mostly small, now and then the edge of something.
    double real()
    {
        constexpr double edges[] = {0.0,
                                    -0.0,
                                    1.0,
                                    -1.0,
                                    1e-300,
                                    1e300,
                                    5e-324,
                                    std::numeric_limits<double>::max(),
                                    std::numeric_limits<double>::infinity(),
                                    -std::numeric_limits<double>::infinity(),
                                    std::numeric_limits<double>::quiet_NaN()};
        const int kind = byte();
        if (kind < int(std::size(edges)))
            return edges[kind];
        return kind == 255 ? raw() : integer(-32768, 32767) / 10000.0;
    }

    QByteArray bytes(int longest)
    {
        QByteArray taken;
        for (int length = integer(0, longest); length > 0 && m_left > 0; --length)
            taken.append(static_cast<char>(byte()));
        return taken;
    }
    QString text(int longest) { return QString::fromUtf8(bytes(longest)); }

    QByteArray rest()
    {
        const QByteArray taken(reinterpret_cast<const char *>(m_at), static_cast<int>(m_left));
        m_left = 0;
        return taken;
    }

private:
    const std::uint8_t *m_at;
    std::size_t m_left;
};

/// One run of the target that this program is made for.
void run(Input &input);

/// Takes the application down, after the last run: Qt 6 does not let it go with the statics.
void finish();

} // namespace Fuzz
