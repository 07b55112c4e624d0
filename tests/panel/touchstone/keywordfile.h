// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

/// A whole file of version 2 with one point of these ports.
inline QByteArray file(int ports, const QByteArray &keywords, const QByteArray &data)
{
    return "[Version] 2.0\n# Hz S RI R 50\n[Number of Ports] " + QByteArray::number(ports)
        + "\n[Number of Frequencies] 1\n" + keywords + "[Network Data]\n" + data + "[End]\n";
}

/// S11 = 11 and so on, of a three-port.
inline const QByteArray s_three = "2 11 0 12 0 13 0\n 21 0 22 0 23 0\n 31 0 32 0 33 0\n";
