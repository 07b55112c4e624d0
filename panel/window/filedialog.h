// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <controls/draggableframelessdialog.h>

class QLabel;
class QPushButton;

namespace Panel
{

class FolderBrowser;

/*! Picks Touchstone files with a finger: tall rows, one tap for a folder or to pick and unpick a
   file, and the places one goes to most. It only picks; reading the files is for whoever asked. */
class FileDialog : public Controls::DraggableFramelessDialog
{
    Q_OBJECT

public:
    explicit FileDialog(QWidget *parent = nullptr);

    QString folder() const;
    void setFolder(const QString &folder);
    /// Full paths of the picked files, in the order of the list.
    QStringList pickedFiles() const;
    /// Offers to show them beside those that are on show.
    void offerToAdd();
    /// Whether that was wanted.
    bool wasAdded() const { return m_wasAdded; }

private:
    void updateButtons();

    FolderBrowser *m_browser;
    QLabel *m_hint;
    QPushButton *m_add;
    QPushButton *m_open;
    bool m_wasAdded = false;
};

} // namespace Panel
