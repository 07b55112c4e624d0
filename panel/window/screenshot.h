// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
/*! \file
    Pictures of the panel for a report. */
#pragma once

#include <QString>

class QWidget;

namespace Panel
{

class Preferences;

/// A picture on disk, or the sentence that says why there is none.
struct Screenshot {
    QString path; ///< of the written file; empty when there is none
    QString error; ///< empty for success
};

/// Where screenshots go: where the user wants them, else the user's pictures, or the home folder
/// where there is no place for those.
QString folderForScreenshots(const Preferences &preferences);

/// Writes what the window shows as a PNG named after the time, such as
/// "vnapanel-20261121-101500.png". No file is overwritten; a missing folder is made.
Screenshot saveScreenshot(QWidget *window, const QString &folder);

} // namespace Panel
