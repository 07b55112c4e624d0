// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
/*! \file
    Messages of SCPI: lines taken apart into commands, headers against patterns, and numbers of answers. */
#pragma once

#include <QByteArrayList>

namespace Panel
{

/// A number as an answer has it; 9.91E37 stands for one that is none.
QByteArray scpiNumber(double value);

/// One command of a line.
struct ScpiCommand {
    QByteArray header; ///< whole, with the branch that it stands on, without the question mark
    bool query = false;
    QByteArrayList words; ///< what follows, by commas, without spaces and quotes
};

/// The commands of a line. After a semicolon the last branch holds unless a colon or an asterisk
/// begins the next one; a semicolon in quotes is a letter.
QList<ScpiCommand> parseCommands(const QByteArray &line);

/*! Whether a header is spelled by a pattern as "[SENSe:]FREQuency:STARt": each node in any case, long
    or as its capitals, with a 1 behind it or nothing; what stands in brackets may be left out. A "#"
    stands for a number, 1 where there is none, which is handed out. */
bool matches(const QByteArray &header, const char *pattern, int &number);

} // namespace Panel
