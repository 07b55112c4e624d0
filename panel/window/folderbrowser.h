// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QBoxLayout;
class QLabel;
class QListWidget;
class QListWidgetItem;
class QPushButton;

namespace Panel
{

class ElidedLabel;

/// A key in a row of a dialog, high enough for a finger.
QPushButton *addDialogKey(QBoxLayout *row, const QString &text, const char *name);

/*! The folders and some of the files of a folder, with tall rows for a finger: one tap enters a
    folder, and keys go to the places one goes to most. */
class FolderBrowser : public QWidget
{
    Q_OBJECT

public:
    /// Lists the files of these names, as "*.s2p"; the shipped samples are a place if asked for.
    FolderBrowser(const QStringList &filters, bool withSamples, QWidget *parent = nullptr);

    QString folder() const { return m_folder; }
    void setFolder(const QString &folder);
    QListWidget *list() const { return m_list; }
    /// Of a file in the list; nothing of a folder.
    static QString filePath(const QListWidgetItem *item);

Q_SIGNALS:
    void folderChanged();
    /// A tap on a file.
    void fileClicked(QListWidgetItem *item);
    /// A double tap on it, or Return.
    void fileActivated(QListWidgetItem *item);

private:
    QStringList m_filters;
    QString m_folder;
    ElidedLabel *m_path;
    QListWidget *m_list;
    QPushButton *m_up;
};

} // namespace Panel
