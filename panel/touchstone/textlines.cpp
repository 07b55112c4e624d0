// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "textlines.h"

#include <QIODevice>

#include <algorithm>
#include <cstring>

namespace Panel
{

namespace
{

constexpr qint64 s_block = 1 << 18;

/// The first such character, or the end.
const char *find(const char *begin, const char *end, char c)
{
    const void *const found = std::memchr(begin, c, std::size_t(end - begin));
    return found ? static_cast<const char *>(found) : end;
}

} // namespace

TextLines::TextLines(QIODevice &device)
    : m_device(device)
{
    // Room for a byte more than there is, so that the end is seen at the first reading.
    m_block.resize(int(std::clamp<qint64>(device.size() - device.pos() + 1, 4096, s_block)));
    m_at = m_end = m_block.constData();
    start();
}

void TextLines::start()
{
    constexpr std::string_view mark = "\xef\xbb\xbf";
    while (m_end - m_at < int(mark.size()) && readMore()) { }
    if (std::string_view(m_at, std::size_t(m_end - m_at)).substr(0, mark.size()) == mark)
        m_at += mark.size();
    findEnds(m_at);
}

bool TextLines::readMore()
{
    if (m_atEnd)
        return false;
    // What is left of the block goes to its front; a line that fills it needs a larger one.
    const qint64 left = m_end - m_at;
    if (left == m_block.size()) {
        if (left >= longestLine) {
            m_failure = Failure::LongLine;
            m_atEnd = true;
            m_at = m_end;
            return false;
        }
        m_block.resize(m_block.size() * 2);
        m_at = m_block.constData();
    }
    char *const front = m_block.data();
    if (left > 0)
        std::memmove(front, m_block.constData() + (m_at - front), std::size_t(left));
    const qint64 count = m_device.read(front + left, m_block.size() - left);
    if (count < 0)
        m_failure = Failure::Device;
    m_atEnd = count <= 0;
    m_read += std::max<qint64>(count, 0);
    m_at = front;
    m_end = front + left + std::max<qint64>(count, 0);
    findEnds(front);
    return !m_atEnd;
}

void TextLines::findEnds(const char *from)
{
    m_lineFeed = find(from, m_end, '\n');
    m_return = find(from, m_end, '\r');
}

bool TextLines::next(std::string_view &line)
{
    // Looked for only where the last ones are behind: most files have no CR at all.
    if (m_lineFeed < m_at)
        m_lineFeed = find(m_at, m_end, '\n');
    if (m_return < m_at)
        m_return = find(m_at, m_end, '\r');
    // Whether a line goes on, or CR has its LF, may be in the next block.
    while (m_lineFeed == m_end && (m_return == m_end || m_return + 1 == m_end)) {
        if (!readMore())
            break;
    }
    if (m_failure != Failure::None || m_at == m_end)
        return false;
    const char *stop = std::min(m_lineFeed, m_return);
    line = std::string_view(m_at, std::size_t(stop - m_at));
    if (stop != m_end && stop == m_return && stop + 1 == m_lineFeed && m_lineFeed != m_end)
        ++stop;
    m_at = stop == m_end ? stop : stop + 1;
    ++m_number;
    return true;
}

} // namespace Panel
