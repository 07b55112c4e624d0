// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
/*! \file
    What the panel writes for somebody else: pictures for a report, and data. Each file gets a name
    of its own, with the time; nothing is ever replaced. */
#pragma once

#include <panel/model/network.h>

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

/// The window as a PNG picture.
Exported exportScreenshot(QWidget *window, const QString &folder);

enum class DrawingFormat {
    Pdf,
    Svg,
};
/// A DiagramPage as lines that can be enlarged.
Exported exportDiagram(DiagramView *view, const QString &folder, DrawingFormat format);

/// Draws a DiagramPage in the middle of a sheet, as large as that allows; false when the printer takes
/// nothing.
bool printDiagram(DiagramView *view, QPrinter *printer);

enum class DataFormat {
    Touchstone,
    Csv,
};
/// All points of a network, whatever part of it is on show.
Exported exportData(const Network &network, const QString &folder, DataFormat format);

} // namespace Panel
