// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fileloader.h"
#include "filewatch.h"

#include <QSet>
#include <QTimer>

namespace Panel
{

class PanelModel;
class PanelWindow;

/*! Brings Touchstone files onto the panel: from the dialog, dropped onto the window, or named at
    the start; and keeps an eye on the files on show.

    Nothing is lost by a file that cannot be read, that changes or that vanishes: the panel keeps
   what it has read, says so, and offers to read a changed file again. */
class FileController : public QObject
{
    Q_OBJECT

public:
    FileController(PanelModel *model, PanelWindow *window, QObject *parent = nullptr);

    /// Opens files in place of those shown, and returns when that is done; true if all of them
    /// could be read. When none can be read, the panel keeps what it shows.
    bool openFiles(const QStringList &paths);
    /// The same while the panel goes on.
    void loadFiles(const QStringList &paths);
    bool isLoading() const { return m_loader.isLoading(); }
    /// Lets the user pick files, and loads them.
    void showFileDialog();

    /// Takes files that are dropped onto the window.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void startReading(const QStringList &paths);
    void load(const QStringList &paths, bool again);
    void showProgress();
    void cancel();
    void onFinished(const ReadFiles &files);
    void open(const ReadFiles &files);
    void update(const ReadFiles &files);
    void report(const ReadFiles &files);
    void onChanged(const QString &path);
    void onVanished(const QString &path);
    void showDiskState();
    bool isShown(const QString &path) const;

    PanelModel *m_model;
    PanelWindow *m_window;
    FileLoader m_loader;
    FileWatch m_watch;
    QTimer m_patience; ///< runs while a progress bar would only flicker
    QString m_reading; ///< what is being read, in words
    int m_percent = 0;
    bool m_again = false; ///< what is being read is on show already
    QStringList m_files; ///< paths of what was opened last
    QSet<QString> m_changed; ///< those of them that differ from what was read
    QSet<QString> m_gone; ///< those of them that are no longer there
    /// Where the file dialog was left, or what was opened last.
    QString m_folder;
};

} // namespace Panel
