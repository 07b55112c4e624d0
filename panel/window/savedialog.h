// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <controls/draggableframelessdialog.h>

#include <functional>

class QLabel;
class QLineEdit;
class QPushButton;

namespace Panel
{

class FolderBrowser;

/*! Asks where to save, and under what name. It stays until all is written: a folder that takes
    nothing, or a full disk, is told in a sentence, and another one can be chosen. Over a file that is
    there the key says "Replace". */
class SaveDialog : public Controls::DraggableFramelessDialog
{
    Q_OBJECT

public:
    /// Writes the file of this path; returns a sentence where it fails.
    using Writer = std::function<QString(const QString &path)>;

    /// For a file whose name ends so, as ".s2p".
    SaveDialog(const QString &title, const QString &suffix, const Writer &write,
               QWidget *parent = nullptr);
    /// For a folder alone.
    SaveDialog(const QString &title, const Writer &write, QWidget *parent = nullptr);

    QString folder() const;
    void setFolder(const QString &folder);
    /// Without the suffix.
    void setName(const QString &name);
    /// Of the file, or of the folder.
    QString path() const;

private:
    void showState();
    void save();

    QString m_suffix;
    Writer m_write;
    FolderBrowser *m_browser;
    QLineEdit *m_name;
    QLabel *m_hint;
    QPushButton *m_save;
};

} // namespace Panel
