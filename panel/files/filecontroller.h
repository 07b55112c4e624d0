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

/*! Brings Touchstone files onto the panel, and keeps an eye on those that it shows.

    Nothing is lost by a file that cannot be read, that changes or that vanishes: the panel keeps
    what it has read, says so, and offers to read a changed file again. */
class FileController : public QObject
{
    Q_OBJECT

public:
    explicit FileController(PanelModel *model, QObject *parent = nullptr);

    /// Opens files in place of those shown and in their arrangement, and returns when that is done;
    /// true if all of them could be read. When none can be read, the panel keeps what it shows.
    /// Refused ones are told on the terminal too.
    bool openFiles(const QStringList &paths);
    bool isLoading() const { return m_loader.isLoading(); }
    /// The folder of what was opened last.
    QString folder() const { return m_folder; }

public Q_SLOTS:
    /// The same while the panel goes on.
    void loadFiles(const QStringList &paths);
    /// The same beside the files on show.
    void addFiles(const QStringList &paths);
    /// The same without any arrangement of before.
    void loadFilesAfresh(const QStringList &paths);
    /// Reads files of the panel once more.
    void reloadFiles(const QStringList &paths);
    /// Ends what loadFiles() or reloadFiles() began.
    void cancel();

Q_SIGNALS:
    /// Sentences for the user; none when all went well.
    void reported(const QString &sentences);
    /// A sentence that needs no answer; an empty one takes the last one back.
    void noted(const QString &sentence);
    /// Files have changed on disk: the user may want reloadFiles().
    void changesFound(const QString &sentences, const QStringList &paths);
    /// Reading takes a while and has got so far.
    void progressed(const QString &sentence, int percent);

private:
    /// What becomes of files once they are read.
    enum Purpose {
        Open, ///< they take the places of those on show
        OpenAfresh,
        Reload, ///< they are on show already
    };
    void load(const QStringList &paths, Purpose purpose);
    void startReading(const QStringList &paths);
    void onFinished(const ReadFiles &files);
    void open(const ReadFiles &files, Purpose purpose);
    void update(const ReadFiles &files);
    void report(const ReadFiles &files, const QString &note);
    void followNetworks();
    void onChanged(const QString &path);
    void onVanished(const QString &path);
    void showDiskState();
    QStringList shownPaths() const;

    PanelModel *m_model;
    FileLoader m_loader;
    FileWatch m_watch;
    QTimer m_patience; ///< runs while a progress bar would only flicker
    QString m_reading; ///< what is being read, in words
    int m_percent = 0;
    Purpose m_purpose = Open; ///< of what is being read
    QSet<QString> m_changed; ///< those of the files that differ from what was read
    QSet<QString> m_gone; ///< those of them that are no longer there
    QString m_folder;
};

} // namespace Panel
