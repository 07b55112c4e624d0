// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QStringList>

namespace Panel
{

class FileController;
class PanelModel;
class PanelWindow;
class SweepController;

/*! What the panel does when it is touched: the one place between window and model.

    The window's parts report and the model tells; in between, the controllers decide. This class
    makes them and answers for the window itself: theme, lock, screenshot, dialogs, shortcuts. A
    pointer on a diagram has its answers in ChartGestures, a key that is a number in NumericKeys,
    the traces in TraceController, their markers in MarkerController, the look of the diagrams in
    DiagramController, files in FileController, simulated devices in SweepController. */
class PanelController : public QObject
{
    Q_OBJECT

public:
    PanelController(PanelModel *model, PanelWindow *window, QObject *parent = nullptr);

    /// Opens Touchstone files in place of those shown; true if all of them could be read. Refused
    /// ones are told in the window and on the terminal; when none can be read, the panel keeps what
    /// it shows.
    bool openFiles(const QStringList &paths);
    /// What runs the simulated devices.
    SweepController *sweepController() const { return m_sweeps; }
    FileController *fileController() const { return m_files; }
    /// Where screenshots go.
    QString screenshotFolder() const { return m_screenshotFolder; }
    void setScreenshotFolder(const QString &folder) { m_screenshotFolder = folder; }

    /// The code of the language that the user wants from the next start on.
    QString language() const { return m_language; }

public Q_SLOTS:
    /// Lets the user pick files, and opens them.
    void showFileDialog();
    void showSettings();
    /// Lists what the keyboard does.
    void showHelp();
    void takeScreenshot();
    /// Shows the padlock, which a tap closes, or takes it away.
    void setLockShown(bool shown);
    void setTimingShown(bool shown);

private:
    void connectKeys();
    void connectSweep();
    void addShortcuts();

    PanelModel *m_model;
    PanelWindow *m_window;
    SweepController *m_sweeps;
    FileController *m_files;
    QString m_screenshotFolder;
    QString m_language;
};

} // namespace Panel
