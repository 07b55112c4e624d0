// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
/*! \file
    What SCPI instruments answer, read from bytes. */
#pragma once

#include <QByteArray>
#include <QList>
#include <QVector>

#include <cmath>

namespace Panel
{

/// The fields of an answer to *IDN?, without the spaces around them.
QList<QByteArray> identityFields(const QByteArray &identity);

/// Whether a line is an entry of the error queue, as `-113,"Undefined header"`, and which one.
bool readErrorEntry(const QByteArray &line, int &number, QByteArray &text);

/// The number of bytes that the digits of a block's head announce; -1 for digits that are none.
qint64 blockSize(const QByteArray &digits);

/// The doubles of a block, in one byte order or the other.
QVector<double> parseDoubles(const QByteArray &block, bool bigEndian);
/// The numbers of a comma-separated text; a text that is none of them gives what came before it.
QVector<double> parseNumberList(const QByteArray &text);

/// "name,S11,name2,S21" in quotes of either kind: the names of traces by what they show.
struct NamedTrace {
    QByteArray name;
    QByteArray parameter;
};
QVector<NamedTrace> parseCatalogue(const QByteArray &text);

/// Whether a value is one: 9.91E37 stands for none.
inline bool isNumber(double value)
{
    return std::abs(value) < 9.9e37; // nor is NaN
}

} // namespace Panel
