// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "scpiport.h"

#include "linknumbers.h"
#include "linktrouble.h"
#include "scpi.h"
#include "wire.h"

namespace Panel
{

namespace
{

/// What an optional answer may take before the error queue is asked, in milliseconds.
constexpr int s_optionalTime = 250;
constexpr int s_queueTime = 1500;
constexpr int s_maximumErrors = 32;
/// A number as text, with its comma, is never longer.
constexpr qint64 s_longestNumber = 40;

} // namespace

void ScpiPort::send(const QByteArray &text)
{
    m_wire.send(text + '\n');
}

QByteArray ScpiPort::ask(const QByteArray &query)
{
    send(query);
    QByteArray reply, text;
    int code = 0;
    if (!m_wire.tryLine(reply, Wire::shortTime) && m_wire.ok()) {
        send("SYST:ERR?");
        reply = m_wire.line(s_queueTime);
    }
    if (m_wire.ok() && readErrorEntry(reply, code, text))
        m_wire.fail(Trouble::refused(m_wire.peer(), query, text));
    return reply;
}

double ScpiPort::askNumber(const QByteArray &query)
{
    const QByteArray reply = ask(query);
    double value = 0.0;
    if (m_wire.ok() && (!readNumber(reply, value) || !isNumber(value)))
        m_wire.fail(Trouble::unreadable(m_wire.peer(), reply));
    return value;
}

QByteArray ScpiPort::askOptional(const QByteArray &query)
{
    send(query);
    QByteArray reply, text;
    int code = 0;
    if (m_wire.tryLine(reply, s_optionalTime))
        return readErrorEntry(reply, code, text) ? QByteArray() : reply;
    // Late is not never: what comes before the error queue's answer is the query's.
    send("SYST:ERR?");
    for (int i = 0; i < 2 && m_wire.ok(); ++i) {
        const QByteArray line = m_wire.line();
        if (readErrorEntry(line, code, text))
            break;
        reply = line;
    }
    return reply;
}

double ScpiPort::askOptionalNumber(const QByteArray &query, double otherwise)
{
    const double value = numberOr(askOptional(query), otherwise);
    return isNumber(value) ? value : otherwise;
}

NumberRange ScpiPort::askRange(const QByteArray &setting, const NumberRange &otherwise)
{
    NumberRange range = otherwise;
    for (double *const end : {&range.lowest, &range.highest}) {
        if (!m_knowsRanges)
            break;
        const QByteArray query = setting + (end == &range.lowest ? "? MIN" : "? MAX");
        const double value = askOptionalNumber(query, qQNaN());
        m_knowsRanges = value == value;
        *end = m_knowsRanges ? value : *end;
    }
    // Some answer with the present value, whatever is asked for behind the question mark.
    m_knowsRanges = m_knowsRanges && range.lowest < range.highest;
    return m_knowsRanges ? range : otherwise;
}

QByteArray ScpiPort::takeErrors()
{
    QByteArray first;
    for (int i = 0; i < s_maximumErrors && m_wire.ok(); ++i) {
        send("SYST:ERR?");
        const QByteArray line = m_wire.line();
        int code = 0;
        QByteArray text;
        if (m_wire.ok() && !readErrorEntry(line, code, text))
            m_wire.fail(Trouble::unreadable(m_wire.peer(), line));
        if (code == 0)
            break;
        first = first.isEmpty() ? text : first;
    }
    return first;
}

QVector<double> ScpiPort::readText(qint64 count)
{
    if (!m_wire.ok())
        return {};
    const QByteArray text = m_wire.longLine(count * s_longestNumber + 256);
    if (!m_wire.ok())
        return {};
    int code = 0;
    QByteArray error;
    if (readErrorEntry(text, code, error))
        m_wire.fail(code ? Trouble::refused(m_wire.peer(), "DATA?", error)
                         : Trouble::silent(m_wire.peer()));
    QVector<double> values = parseNumberList(text);
    if (values.isEmpty())
        m_wire.fail(Trouble::unreadable(m_wire.peer(), text));
    else if (values.size() != count)
        m_wire.fail(Trouble::otherPoints(m_wire.peer(), values.size(), count));
    return values;
}

QVector<double> ScpiPort::readNumbers(qint64 count, bool bigEndian)
{
    char first = m_wire.peek(Wire::longTime - s_queueTime, false);
    const bool late = !first;
    if (late) {
        // Nothing may be an answer, too: the queue knows. What is late comes before its entry.
        send("SYST:ERR?");
        first = m_wire.peek(s_queueTime);
    }
    const QVector<double> values = first == '#' ? readBlock(count, bigEndian) : readText(count);
    if (late && m_wire.ok())
        m_wire.line();
    return values;
}

QVector<double> ScpiPort::readBlock(qint64 count, bool bigEndian)
{
    const QByteArray head = m_wire.bytes(2);
    const int digits = head.size() == 2 ? head.at(1) - '0' : 0;
    if (m_wire.ok() && (digits < 1 || digits > 9))
        m_wire.fail(Trouble::unreadable(m_wire.peer(), head));
    const QByteArray length = m_wire.ok() ? m_wire.bytes(digits) : QByteArray();
    const qint64 size = blockSize(length);
    const qint64 due = count * qint64(sizeof(double));
    if (size < 0)
        m_wire.fail(Trouble::unreadable(m_wire.peer(), head + length));
    else if (size != due)
        m_wire.fail(Trouble::tooMuch(m_wire.peer(), size, due));
    if (!m_wire.ok())
        return {};
    const QByteArray block = m_wire.bytes(size);
    m_wire.line(); // what ends the message
    return m_wire.ok() ? parseDoubles(block, bigEndian) : QVector<double>();
}

} // namespace Panel
