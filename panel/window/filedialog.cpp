// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "filedialog.h"

#include "folderbrowser.h"

#include <panel/ground/dialogstage.h>

#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace Panel
{

FileDialog::FileDialog(QWidget *parent)
    : DraggableFramelessDialog(parent)
    , m_browser(new FolderBrowser(
          {QStringLiteral("*.s?p"), QStringLiteral("*.s??p"), QStringLiteral("*.ts")}, true))
    , m_hint(new QLabel)
{
    setAccessibleName(tr("Open Touchstone files"));
    setWindowTitle(tr("Open Touchstone files"));
    setHeaderButton(Controls::DraggableDialogTitleBar::CloseButton);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(dialogMargins(12));
    QListWidget *list = m_browser->list();
    list->setSelectionMode(QAbstractItemView::MultiSelection);
    list->setAccessibleName(tr("Folders and Touchstone files"));
    connect(list, &QListWidget::itemSelectionChanged, this, &FileDialog::updateButtons);
    connect(m_browser, &FolderBrowser::folderChanged, this, &FileDialog::updateButtons);
    connect(m_browser, &FolderBrowser::fileActivated, this, [this](QListWidgetItem *item) {
        item->setSelected(true);
        accept();
    });
    column->addWidget(m_browser, 1);

    auto *answers = new QHBoxLayout;
    m_hint->setObjectName(QStringLiteral("dim"));
    answers->addWidget(m_hint, 1);
    connect(addDialogKey(answers, tr("Cancel"), "cancel"), &QPushButton::clicked, this,
            &QDialog::reject);
    m_add = addDialogKey(answers, tr("Add"), "add");
    m_add->setToolTip(tr("Show them beside the files on show"));
    m_add->hide();
    connect(m_add, &QPushButton::clicked, this, [this] {
        m_wasAdded = true;
        accept();
    });
    m_open = addDialogKey(answers, tr("Open"), "open");
    connect(m_open, &QPushButton::clicked, this, &QDialog::accept);
    column->addLayout(answers);

    setFolder(QDir::currentPath());
    list->setFocus();
}

QString FileDialog::folder() const
{
    return m_browser->folder();
}

void FileDialog::setFolder(const QString &folder)
{
    m_browser->setFolder(folder);
}

QStringList FileDialog::pickedFiles() const
{
    QStringList files;
    const QListWidget *list = m_browser->list();
    for (int row = 0; row < list->count(); ++row) {
        if (list->item(row)->isSelected())
            files << FolderBrowser::filePath(list->item(row));
    }
    return files;
}

void FileDialog::offerToAdd()
{
    m_add->show();
}

void FileDialog::updateButtons()
{
    const int picked = int(pickedFiles().size());
    m_open->setEnabled(picked > 0);
    m_add->setEnabled(picked > 0);
    if (picked > 0)
        m_hint->setText(tr("Picked: %n", nullptr, picked));
    else if (m_browser->list()->count() == 0)
        m_hint->setText(QFileInfo(folder()).isReadable() ? tr("No Touchstone files here")
                                                         : tr("This folder cannot be read"));
    else
        m_hint->setText(tr("Tap files to pick them"));
}

} // namespace Panel
