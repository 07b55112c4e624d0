// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Panel
{

struct CommandLine;

/*! Measures with the instrument that the command line names, and saves the last sweep as it says,
    without a display; an application object has to exist. Empty for success; otherwise one sentence,
    and no file. A signal that ends the program leaves the instrument in order. */
QString measureAndSave(const CommandLine &commandLine);

} // namespace Panel
