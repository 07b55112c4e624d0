// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "wire.h"

#include "linklog.h"
#include "linktrouble.h"

#include <algorithm>

namespace Panel
{

namespace
{

/// How often a wait looks whether it was cancelled, in milliseconds.
constexpr int s_slice = 20;
constexpr qint64 s_chunk = 64 << 10;
/// A long answer comes on while each such time brings so many bytes.
constexpr int s_paceTime = 4000;
constexpr qint64 s_paceBytes = 4096;

} // namespace

/// How long an answer is waited for.
class Wire::Patience
{
public:
    /// A short answer is there as a whole after its time; a long one has begun by then, and comes
    /// on.
    Patience(int milliseconds, bool isLong)
        : m_time(milliseconds)
        , m_long(isLong)
    {
        m_clock.start();
    }

    qint64 left() const { return m_time - m_clock.elapsed(); }
    bool hasBegun() const { return m_begun; }
    void received(qint64 count)
    {
        m_count += count;
        if (m_long && (!m_begun || m_count >= s_paceBytes)) {
            m_count = 0;
            m_time = s_paceTime;
            m_clock.start();
        }
        m_begun = true;
    }

private:
    QElapsedTimer m_clock;
    qint64 m_time;
    bool m_long;
    bool m_begun = false;
    qint64 m_count = 0; ///< bytes since the clock started
};

void Wire::fail(const QString &sentence)
{
    if (m_failed)
        return;
    m_failed = true;
    m_trouble = sentence;
    if (m_log && !sentence.isEmpty())
        m_log->trouble(sentence);
}

void Wire::beginFarewell(int milliseconds)
{
    if (m_trouble.isEmpty())
        m_failed = false;
    m_cancel = nullptr;
    m_farewellTime = milliseconds;
    m_farewell.start();
}

void Wire::send(const QByteArray &bytes)
{
    if (m_failed)
        return;
    if (m_log)
        m_log->sent(bytes);
    if (!write(bytes))
        fail(Trouble::closed(m_peer));
}

/// Waits for more and keeps it; false once there is trouble or no time left, which is told apart by
/// ok().
bool Wire::fill(Patience &patience)
{
    if (m_failed)
        return false;
    qint64 left = patience.left();
    if (m_farewell.isValid())
        left = qMin(left, m_farewellTime - m_farewell.elapsed());
    if (isCancelled()) {
        fail(QString());
        return false;
    }
    const auto size = m_buffer.size();
    m_buffer.resize(size + int(s_chunk));
    const qint64 count =
        receive(m_buffer.data() + size, s_chunk, int(std::clamp<qint64>(left, 0, s_slice)));
    m_buffer.resize(size + int(qMax<qint64>(0, count)));
    if (count < 0)
        fail(Trouble::closed(m_peer));
    else if (count > 0)
        patience.received(count);
    return count > 0 || (count == 0 && left > 0);
}

QByteArray Wire::take(qint64 count)
{
    QByteArray result;
    if (count == m_buffer.size()) {
        result.swap(m_buffer);
    } else {
        result = m_buffer.left(int(count));
        m_buffer.remove(0, int(count));
    }
    if (m_log)
        m_log->received(result);
    return result;
}

QByteArray Wire::lineWithin(Patience patience, qint64 longest)
{
    int searched = 0;
    for (;;) {
        const auto end = m_buffer.indexOf('\n', searched);
        if (end >= 0 && end <= longest)
            return take(end + 1).trimmed();
        if (m_buffer.size() > longest) {
            fail(Trouble::tooMuch(m_peer, m_buffer.size(), longest));
            return {};
        }
        searched = int(m_buffer.size());
        if (!fill(patience)) {
            fail(patience.hasBegun() || searched > 0 ? Trouble::slow(m_peer)
                                                     : Trouble::silent(m_peer));
            return {};
        }
    }
}

QByteArray Wire::line(int milliseconds, qint64 longest)
{
    return lineWithin(Patience(milliseconds, false), longest);
}

QByteArray Wire::longLine(qint64 longest, int milliseconds)
{
    return lineWithin(Patience(milliseconds, true), longest);
}

bool Wire::tryLine(QByteArray &line, int milliseconds)
{
    if (!peek(milliseconds, false))
        return false;
    line = this->line();
    return ok();
}

char Wire::peek(int milliseconds, bool required)
{
    Patience patience(milliseconds, false);
    while (m_buffer.isEmpty()) {
        if (fill(patience))
            continue;
        if (required)
            fail(Trouble::silent(m_peer));
        return 0;
    }
    return m_buffer.at(0);
}

QByteArray Wire::bytes(qint64 count, int milliseconds)
{
    Patience patience(milliseconds, true);
    QByteArray result(int(count), Qt::Uninitialized);
    qint64 have = qMin<qint64>(m_buffer.size(), count);
    std::copy_n(m_buffer.constData(), have, result.data());
    m_buffer.remove(0, int(have));
    while (have < count) {
        if (m_failed || isCancelled() || patience.left() <= 0) {
            fail(isCancelled()                         ? QString()
                     : have > 0 || patience.hasBegun() ? Trouble::slow(m_peer)
                                                       : Trouble::silent(m_peer));
            return {};
        }
        const qint64 more = receive(result.data() + have, count - have,
                                    int(std::clamp<qint64>(patience.left(), 0, s_slice)));
        if (more < 0)
            fail(Trouble::closed(m_peer));
        else if (more > 0)
            patience.received(more);
        have += qMax<qint64>(0, more);
    }
    if (m_log)
        m_log->received(result);
    return result;
}

QByteArray Wire::until(const QByteArray &mark, qint64 longest, int milliseconds)
{
    Patience patience(milliseconds, true);
    int searched = 0;
    for (;;) {
        const auto found = m_buffer.indexOf(mark, searched);
        if (found >= 0)
            return take(found + mark.size());
        if (m_buffer.size() > longest) {
            fail(Trouble::tooMuch(m_peer, m_buffer.size(), longest));
            return {};
        }
        searched = int(qMax<qint64>(0, m_buffer.size() - mark.size()));
        if (!fill(patience)) {
            fail(patience.hasBegun() ? Trouble::slow(m_peer) : Trouble::silent(m_peer));
            return {};
        }
    }
}

QByteArray Wire::drain(int silence, int milliseconds)
{
    const Patience whole(milliseconds, false);
    for (;;) {
        Patience quiet(silence, false);
        const auto before = m_buffer.size();
        while (fill(quiet) && m_buffer.size() == before) { }
        if (m_buffer.size() == before || !ok() || whole.left() <= 0 || m_buffer.size() > shortLine)
            return take(m_buffer.size());
    }
}

void Wire::discard()
{
    Patience none(0, false);
    while (fill(none) && m_buffer.size() <= shortLine) { }
    if (!m_buffer.isEmpty())
        take(m_buffer.size());
}

bool Wire::isAlive(int milliseconds)
{
    Patience patience(milliseconds, false);
    while (m_buffer.size() <= shortLine && fill(patience)) { }
    return ok();
}

} // namespace Panel
