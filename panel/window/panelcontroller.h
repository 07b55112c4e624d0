// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "savedialog.h"

#include <panel/ground/soundoutput.h>

#include <QObject>
#include <QString>

namespace Panel
{

class DiagramView;
struct Exported;
class FileController;
class History;
class LinkSource;
class PanelModel;
class PanelWindow;
class Setups;
class TraceSound;

/*! Brings the parts of the panel together: it makes the controllers of all rooms, tells in the window
    what they say, and answers for the window itself: theme, lock, screenshot, dialogs, shortcuts. */
class PanelController : public QObject
{
    Q_OBJECT

public:
    PanelController(PanelModel *model, PanelWindow *window, QObject *parent = nullptr);

    FileController *fileController() const { return m_files; }
    /// Keeps set-ups beside the file in which the panel keeps its state.
    void keepSetupsBeside(const QString &stateFile);
    /// Where traces are heard; without, nothing offers to.
    void setSoundOutput(const SoundOutputMaker &makeOutput);
    /// Writes what goes over the cable to a file, before anything does; false if it cannot.
    bool setLinkLog(const QString &path);
    /// Answers scripts at "[ADDRESS:]PORT". Where it does, or nothing and why not.
    QString serve(const QString &place, QString &error);

public Q_SLOTS:
    /// Lets the user pick files, and opens them.
    void showFileDialog();
    void showSettings();
    void showSetups();
    /// Lists what the keyboard does.
    void showHelp();
    /// Lets the user choose an instrument, and shows how it stands with it.
    void showInstruments();
    void takeScreenshot();
    void listSetups();
    void onSavePicked(int command);
    void addSaving();
    void print(DiagramView *view);
    void tell(const Exported &exported);
    void setTimingShown(bool shown);

Q_SIGNALS:
    /// A sweep has been measured whole.
    void sweepCompleted();

private:
    void makeEntry();
    void connectKeys();
    void connectFiles();
    void connectSweep();
    void connectHistory();
    void tellState();
    void addShortcuts();
    void saveAs(const QString &title, const QStringList &name, const QString &suffix,
                const SaveDialog::Writer &write);

    PanelModel *m_model;
    PanelWindow *m_window;
    FileController *m_files;
    History *m_history;
    Setups *m_setups;
    LinkSource *m_link;
    TraceSound *m_sound;
    QStringList m_listedSetups; ///< below the key
    QString m_trouble; ///< that was told last
    QString m_dialogFolder; ///< where the file dialog was left
};

} // namespace Panel
