// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QElapsedTimer>
#include <QString>

#include <atomic>

namespace Panel
{

class LinkLog;

/*! Bytes to and from an instrument, for the thread that waits for them.

    Every answer has a time to be there and a size it cannot exceed. The first thing that goes wrong
    is kept as one sentence; after it everything else fails at once, so that a protocol can ask
    several questions and look for trouble at the end.

    \code
    wire.send("*IDN?\n");
    const QByteArray identity = wire.line();
    if (!wire.ok())
        return wire.trouble();
    \endcode */
class Wire
{
public:
    /// What a short answer may take, in milliseconds.
    static constexpr int shortTime = 3000;
    /// What a long answer may take to begin, in milliseconds.
    static constexpr int longTime = 4000;
    static constexpr qint64 shortLine = 64 << 10;

    /// The peer is what sentences call the other end.
    explicit Wire(const QString &peer)
        : m_peer(peer)
    {
    }
    virtual ~Wire() = default;

    QString peer() const { return m_peer; }
    void setLog(LinkLog *log) { m_log = log; }
    /// Once this is true, all that waits stops waiting.
    void setCancel(const std::atomic_bool *cancel) { m_cancel = cancel; }

    /// Connects; false with a trouble if that cannot be done.
    virtual bool open() = 0;

    bool ok() const { return !m_failed; }
    /// What went wrong first; empty while all is well, or when it was cancelled.
    QString trouble() const { return m_trouble; }
    void fail(const QString &sentence);
    bool isCancelled() const { return m_cancel && *m_cancel; }
    /// Forgets a cancel, to leave the instrument in order; nothing is waited for longer than this.
    void beginFarewell(int milliseconds);

    void send(const QByteArray &bytes);
    /// The next line, without its end.
    QByteArray line(int milliseconds = shortTime, qint64 longest = shortLine);
    /// A line that may take its time once it has begun, as long as it comes on.
    QByteArray longLine(qint64 longest, int milliseconds = longTime);
    /// The same as line(); nothing coming is no trouble, and gives false.
    bool tryLine(QByteArray &line, int milliseconds);
    /// So many bytes; they may take their time once they have begun.
    QByteArray bytes(qint64 count, int milliseconds = longTime);
    /// Everything up to a mark and with it.
    QByteArray until(const QByteArray &mark, qint64 longest, int milliseconds = longTime);
    /// The next byte, which stays; 0 if none comes. That is a trouble only if it is said so.
    char peek(int milliseconds, bool required = true);
    /// What comes until there is silence for so long.
    QByteArray drain(int silence, int milliseconds);
    /// Forgets what has come and was not asked for.
    void discard();
    /// Whether the connection stands, as far as is known; waits so long at most.
    bool isAlive(int milliseconds);

protected:
    virtual bool write(const QByteArray &bytes) = 0;
    /// What has come, at most so many bytes; waits so long at most. 0 if nothing came, -1 if the
    /// other end is gone.
    virtual qint64 receive(char *into, qint64 maximum, int milliseconds) = 0;

private:
    class Patience;

    bool fill(Patience &patience);
    QByteArray take(qint64 count);
    QByteArray lineWithin(Patience patience, qint64 longest);

    QString m_peer;
    LinkLog *m_log = nullptr;
    const std::atomic_bool *m_cancel = nullptr;
    QByteArray m_buffer; ///< has come and was not read
    bool m_failed = false;
    QString m_trouble;
    QElapsedTimer m_farewell; ///< runs once it has begun
    int m_farewellTime = 0;
};

} // namespace Panel
