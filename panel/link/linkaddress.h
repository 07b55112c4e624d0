// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Panel
{

/*! Where an instrument is and what it speaks: "nanovna:/dev/ttyACM0", "librevna:host:19542",
    "scpi:host:5025", "scpi:[2001:db8::1]:5025". A port may be left out where there is a customary
    one. */
struct LinkAddress {
    enum Kind {
        Shell, ///< the text shell of small analysers on a serial line
        Program, ///< the SCPI server of an open analyser program
        Scpi, ///< a bench analyser on a socket
    };

    Kind kind = Shell;
    QString place; ///< path of the serial port, or host
    int port = 0; ///< of the host

    /// The text it was read from, with its port.
    QString text() const;
};

/// Reads an address. False, with a sentence, for what is none.
bool parseLinkAddress(const QString &text, LinkAddress &address, QString &error);

} // namespace Panel
