// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <panel/model/source.h>

#include <QByteArray>
#include <QVector>

namespace Panel
{

class Wire;

/*! Questions and answers in SCPI over a wire. What an instrument refuses, its error queue tells; what
    goes wrong is the wire's trouble. */
class ScpiPort
{
public:
    explicit ScpiPort(Wire &wire)
        : m_wire(wire)
    {
    }

    void send(const QByteArray &text);
    /// An answer that has to come. Where it does not, the error queue may know why.
    QByteArray ask(const QByteArray &query);
    /// The same for a finite number.
    double askNumber(const QByteArray &query);
    /// An answer that need not come: nothing for a query that the instrument does not know.
    QByteArray askOptional(const QByteArray &query);
    double askOptionalNumber(const QByteArray &query, double otherwise);
    /// What a setting can be, by its MIN and MAX; the other range where that is not told.
    NumberRange askRange(const QByteArray &setting, const NumberRange &otherwise);
    /// Empties the error queue, and returns what it held first.
    QByteArray takeErrors();
    /// So many numbers as the instrument likes to send them: a block, in one byte order or the
    /// other, or text. The count is checked before memory is taken for it.
    QVector<double> readNumbers(qint64 count, bool bigEndian);
    /// Whether MIN and MAX have been answered so far.
    bool knowsRanges() const { return m_knowsRanges; }

private:
    QVector<double> readText(qint64 count);
    QVector<double> readBlock(qint64 count, bool bigEndian);

    Wire &m_wire;
    bool m_knowsRanges = true;
};

} // namespace Panel
