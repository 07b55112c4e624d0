// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QStringList>

namespace Panel
{

class FileController;
class PanelModel;

/*! Set-ups: states of the panel that are kept under a name, each a file of a folder. What is read
    is checked whole before anything changes; what cannot be used is told in a sentence. */
class Setups : public QObject
{
    Q_OBJECT

public:
    /// How many characters a name has at most.
    static constexpr int longestName = 40;

    /// Beside the state of the last time.
    static QString defaultFolder();
    /// That of panels which keep their state in this file.
    static QString folderBeside(const QString &stateFile);
    /// Keeps them in another folder from now on.
    void setFolder(const QString &folder) { m_folder = folder; }

    Setups(PanelModel *model, FileController *files, const QString &folder,
           QObject *parent = nullptr);

    /// In the order of the alphabet; numbers count as such.
    QStringList names() const;
    /// "Set-up 3": a name that none has yet.
    QString freeName() const;
    bool exists(const QString &name) const;
    /// Keeps the panel's state, in place of a set-up of this name; what a file cannot be called is
    /// left out of the name. Returns a sentence where it fails, else nothing.
    QString save(const QString &name);
    /// False, and it is told, where it could not be removed.
    bool remove(const QString &name);

public Q_SLOTS:
    /// Opens the files of a set-up, unless they are on show, and then shows all as it was. While
    /// one of them cannot be read, nothing changes.
    void recall(const QString &name);
    /// Shows the networks as if they had just been opened.
    void preset();

Q_SIGNALS:
    /// One was saved or removed.
    void namesChanged();
    /// A sentence for the user.
    void told(const QString &sentence);
    /// What went wrong.
    void failed(const QString &sentence);

private:
    QString path(const QString &name) const;

    PanelModel *m_model;
    FileController *m_files;
    QString m_folder;
};

} // namespace Panel
