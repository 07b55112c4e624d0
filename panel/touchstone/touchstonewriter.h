// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
/*! \file
    Writes networks in the forms that every program reads: Hz, real and imaginary parts, one layout.
    Every double comes back bit for bit. */
#pragma once

#include <panel/model/network.h>

class QIODevice;

namespace Panel
{

/// Why a network cannot be written as Touchstone of this version, 1 or 2: a clause such as
/// "S21 has no finite value at 1000000 Hz"; empty if it can be.
QString touchstoneObstacle(const Network &network, int version);

/// Writes a network without an obstacle. What goes wrong is the device's to tell.
void writeTouchstone(QIODevice &device, const Network &network, int version);

/// "S21"; with an underscore where a port has two digits: "S2_10".
QString parameterName(int to, int from, int ports);

} // namespace Panel
