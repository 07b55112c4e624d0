// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <panel/model/network.h>

class QIODevice;

namespace Panel
{

/*! Writes a network as comma-separated values: a line that says what it is and begins with #, the
    names of the columns, and a line of each point with its frequency in Hz and the real and
   imaginary part of each parameter. A gap has no value. Every double comes back bit for bit. Noise
   data and comments have no place. What goes wrong is the device's to tell. */
void writeCsv(QIODevice &device, const Network &network);

} // namespace Panel
