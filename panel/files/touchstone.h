// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
/*! \file
    Reads Touchstone files of version 1: S parameters of one- and two-ports, any frequency unit and
   number format. A value written as NaN leaves a gap in its trace. The noise data that may follow
   the S parameters of a two-port is checked and left out. */
#pragma once

#include <panel/model/network.h>

#include <functional>

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

/// Is told now and then which percentage is done, in the thread that reads; answers whether to go
/// on.
using ReadProgress = std::function<bool(int percent)>;

/// Reads a file; its extension says how many ports it has. The network has its name and path even
/// when the file is refused.
TouchstoneResult readTouchstone(const QString &path, const ReadProgress &progress = {});

/// Reads the text of a file with 1 or 2 ports.
TouchstoneResult parseTouchstone(const QByteArray &text, int ports,
                                 const ReadProgress &progress = {});

} // namespace Panel
