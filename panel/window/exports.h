// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
/*! \file
    What the panel writes for somebody else: pictures, and drawings for a report. */
#pragma once

#include <QStringList>

class QPrinter;
class QWidget;

namespace Panel
{

class DiagramView;
class Preferences;

struct Exported {
    QString path; ///< of the written file; empty when there is none
    QString error; ///< a sentence; empty for success
};

/// The folder that was set, or the user's pictures, or home.
QString folderForExports(const Preferences &preferences);

/// The window as a PNG picture, under a name of its own, with the time; nothing is ever replaced.
Exported exportScreenshot(QWidget *window, const QString &folder);

/// A DiagramPage as lines that can be enlarged, as PDF or SVG by the suffix. What is there is replaced
/// once all is written. Returns a sentence where it fails.
QString saveDiagram(DiagramView *view, const QString &path);

/// Whether files can be written to a folder; it is tried.
bool takesFiles(const QString &folder);
/// What is saved of something, with the time behind it: "filter-S21-20260131-093000".
QString datedName(const QStringList &parts);

/// Draws a DiagramPage in the middle of a sheet, as large as that allows; false when the printer takes
/// nothing.
bool printDiagram(DiagramView *view, QPrinter *printer);

} // namespace Panel
