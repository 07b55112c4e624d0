// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayList>

namespace Panel
{

/*! How one family of bench analysers says what they all can: a row of a table.

    %c stands for the number of the channel where the family writes one, %n for a trace's name or
    number, %p for a parameter, %w for a free place in the window, %a for a number of averages.
    Commands that follow each other are separated by a line end; empty is what needs no command. */
struct ScpiDialect {
    const char *channel; ///< "1", or nothing
    bool named; ///< traces have names, and not numbers
    const char *prepare; ///< before anything else
    const char *list; ///< the names with their parameters, or how many traces there are
    const char *parameter; ///< of a numbered trace
    const char *define;
    const char *remove; ///< of a named trace
    const char *select;
    const char *places; ///< the places of the window that are taken
    const char *single; ///< begins one sweep
    const char *averaged; ///< begins as many sweeps as are averaged
    bool eachSweep; ///< each of the averaged sweeps is begun by itself
    const char *runOn; ///< sweeps by itself again
    const char *real64;
    const char *format; ///< asks what real64 changes
    bool byteOrder; ///< can be set; otherwise it is little-endian
    const char *data; ///< asks for complex values
    const char *otherData; ///< where that is not known
    const char *frequencies;
};

/// The dialect of the instrument that answered *IDN? with these fields; null for none known.
const ScpiDialect *dialectOf(const QByteArrayList &identity);

/// A command of a dialect with what stands for its letters.
QByteArray spelled(const ScpiDialect &dialect, const char *command, const QByteArray &name = {},
                   const QByteArray &parameter = {});

} // namespace Panel
