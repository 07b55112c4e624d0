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

/*! What the panel's keys do: the one place between window and model.

    The window's parts report and the model tells; in between, this class decides. A pointer on the
   chart has its answers in ChartGestures, a key that is a number in NumericKeys, and all about
   files in FileController; the controller makes them. */
class PanelController : public QObject
{
    Q_OBJECT

public:
    PanelController(PanelModel *model, PanelWindow *window, QObject *parent = nullptr);

    /// Opens Touchstone files at once: FileController::openFiles().
    bool openFiles(const QStringList &paths);
    FileController *fileController() const { return m_files; }
    /// What runs the simulated devices.
    SweepController *sweepController() const { return m_sweeps; }
    void showFileDialog();

private:
    void connectKeys();
    void addShortcuts();
    void onMarkerPicked(int index);
    void showMarker();

    PanelModel *m_model;
    PanelWindow *m_window;
    SweepController *m_sweeps;
    FileController *m_files;
};

} // namespace Panel
