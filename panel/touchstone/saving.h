// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <panel/model/network.h>

namespace Panel
{

struct SaveOptions {
    /// 1 or 2; 0: 2 for .ts, and for the others 1 unless the network needs 2.
    int touchstoneVersion = 0;
    /// Also over a file that is newer than what is saved.
    bool overwrite = false;
};

/*! Saves a network in the form that the file's extension says: Touchstone (.s2p and so on, which
   has to fit the ports, or .ts) or CSV. A file that is there stays as it is unless all of the new
   one could be written; one that was changed after the network was read stays unless `overwrite` is
    set. Empty for success; otherwise one sentence that names the file. */
QString saveNetwork(const QString &path, const Network &network, const SaveOptions &options = {});

/// What came of converting a file: sentences that name it.
struct Conversion {
    /// Empty for success.
    QString error;
    /// What had to be assumed of the file.
    QStringList remarks;
};

/// Reads a file, and saves what it holds under another name.
Conversion convertFile(const QString &from, const QString &to, const SaveOptions &options = {});

} // namespace Panel
