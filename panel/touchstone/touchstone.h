// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
/*! \file
    Reads Touchstone files of the versions 1.0, 1.1, 2.0 and 2.1: networks of up to 256 ports, any
    frequency unit, number format and reference. Z, Y, G and H become S parameters. A value written
    as NaN leaves a gap in its trace. docs/touchstone.md has the details. */
#pragma once

#include <panel/model/network.h>

#include <functional>

class QIODevice;

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

/// Whether a file name ends as those of Touchstone files do: .s2p and so on, or .ts.
bool isTouchstoneName(const QString &fileName);

/// Is told now and then which percentage is done, in the thread that reads; answers whether to go
/// on.
using ReadProgress = std::function<bool(int percent)>;

/// Reads a file. The network has its name and path even when the file is refused.
TouchstoneResult readTouchstone(const QString &path, const ReadProgress &progress = {});

/// Reads a text of so many ports; 0: as many as the text is of.
TouchstoneResult parseTouchstone(const QByteArray &text, int ports,
                                 const ReadProgress &progress = {});

/// The same from where a device is that is open.
TouchstoneResult parseTouchstone(QIODevice &device, int ports, const ReadProgress &progress = {});

} // namespace Panel
