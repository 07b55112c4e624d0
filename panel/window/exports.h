// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
/*! \file
    What the panel writes for somebody else: pictures for a report, and data. Each file gets a name
    of its own, with the time; nothing is ever replaced. */
#pragma once

#include <panel/model/network.h>

class QCustomPlot;
class QPrinter;
class QWidget;

namespace Panel
{

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
/// A diagram as lines that can be enlarged, without its title and its read-outs.
Exported exportDiagram(QCustomPlot *plot, const QString &folder, DrawingFormat format);

/// Draws a diagram in the middle of a page, as large as the page allows, dark on white; false when the
/// printer takes nothing.
bool printDiagram(QCustomPlot *plot, QPrinter *printer);

enum class DataFormat {
    Touchstone,
    Csv,
};
/// All points of a network, whatever part of it is on show.
Exported exportData(const Network &network, const QString &folder, DataFormat format);

} // namespace Panel
