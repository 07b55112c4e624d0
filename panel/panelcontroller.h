// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QStringList>

namespace Panel
{

class PanelModel;
class PanelWindow;
class SweepController;

/*! What the panel's keys do: the one place between window and model.

    The window's parts report and the model tells; in between, this class decides. A pointer on the
   chart has its answers in ChartGestures and a key that is a number in NumericKeys; the controller
   makes both. */
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
    /// Lets the user pick files, and opens them.
    void showFileDialog();

private:
    void connectKeys();
    void addShortcuts();
    void onMarkerPicked(int index);
    void showMarker();

    PanelModel *m_model;
    PanelWindow *m_window;
    SweepController *m_sweeps;
    /// Where the file dialog was left, or what was opened last.
    QString m_folder;
};

} // namespace Panel
