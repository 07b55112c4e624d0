// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSize>
#include <QStringList>
#include <QtNumeric>

namespace Panel
{

/// What the user asked for on the command line.
struct CommandLine {
    QStringList files;
    QString grabFolder; ///< empty: show the window
    QSize size = QSize(1280, 800);
    double scale = 1.0; ///< device pixels for each pixel of the size
    QString language; ///< code, or empty: as it was left
    QString stateFile; ///< empty: the default place
    QString saveFile; ///< convert the file to this one; empty: show the window
    int touchstoneVersion = 0; ///< 1 or 2; 0: as the file needs
    bool overwrite = false; ///< save over a newer file, too
    QString instrument; ///< address to connect to; empty for none
    double start = qQNaN(), stop = qQNaN(); ///< in Hz; NaN: the instrument's own
    int points = 0; ///< 0: the instrument's own
    int sweeps = 1;
    QString serve; ///< "[ADDRESS:]PORT" to answer scripts at; empty for none
    QString linkLog; ///< file for what goes over the cable; empty for none
    bool simulate = false;
    bool exitWhenShown = false; ///< for timing the start
    bool help = false;
    bool version = false;
    QString error; ///< one sentence; empty if all is well
};

/// Reads the arguments that follow the program's name.
CommandLine parseCommandLine(const QStringList &arguments);

/// The text of --help; an application object has to exist.
QString helpText();

} // namespace Panel
