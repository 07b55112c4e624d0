// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

#include <string_view>

class QIODevice;

namespace Panel
{

/*! The lines of a text of any size, of which no more than a part is in memory. Lines end with LF,
    CR LF or CR; a UTF-8 mark at the start is left out. */
class TextLines
{
public:
    /// Reads from where the device is, which has to live as long.
    explicit TextLines(QIODevice &device);

    /// Takes the next line, without its end; it stays until the next call. False at the end of the
    /// text, or after a failure.
    bool next(std::string_view &line);
    /// Of the line that was taken last, from 1.
    int number() const { return m_number; }
    /// Bytes that the device has given.
    qint64 bytesRead() const { return m_read; }
    /// Bytes of the lines that were taken.
    qint64 bytesTaken() const { return m_read - (m_end - m_at); }

    enum class Failure { None, Device, LongLine };
    Failure failure() const { return m_failure; }
    /// A line with so many bytes is a failure.
    static constexpr int longestLine = 64 << 20;

private:
    bool readMore();
    void findEnds(const char *from);
    void start();

    QIODevice &m_device;
    QByteArray m_block;
    const char *m_at = nullptr; ///< next to be taken
    const char *m_end = nullptr; ///< of what was read
    const char *m_lineFeed = nullptr; ///< the next one, or m_end
    const char *m_return = nullptr; ///< the next CR, or m_end
    qint64 m_read = 0;
    int m_number = 0;
    bool m_atEnd = false; ///< the device has no more
    Failure m_failure = Failure::None;
};

} // namespace Panel
