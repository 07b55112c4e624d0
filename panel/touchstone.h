// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
/*! \file
    Reads Touchstone files of version 1: S parameters of one- and two-ports, any frequency unit and
   number format. The noise data that may follow the S parameters of a two-port is checked and left
   out. */
#pragma once

#include "network.h"

namespace Panel
{

/// A network, or the reason why there is none.
struct TouchstoneResult {
    Network network;
    /// Empty for success; otherwise a clause such as "the last point has 5 of 9 numbers".
    QString reason;
    /// Line of the file that the reason speaks of, from 1; 0 when it speaks of the whole file.
    int line = 0;

    bool ok() const { return reason.isEmpty(); }
    /// The reason as one sentence that names the file, and the line where there is one.
    QString sentence(const QString &file) const;
};

/// Number of ports in the extension of a file name (".s2p" or ".S2P": 2), or 0 if it has no such
/// extension.
int touchstonePorts(const QString &fileName);

/// Reads a file; its extension says how many ports it has.
TouchstoneResult readTouchstone(const QString &path);

/// Reads the text of a file with 1 or 2 ports.
TouchstoneResult parseTouchstone(const QByteArray &text, int ports);

} // namespace Panel
