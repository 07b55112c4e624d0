// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "filedialog.h"

#include <panel/files/samples.h>
#include <panel/ground/dialogstage.h>
#include <panel/ground/elidedlabel.h>
#include <panel/ground/icons.h>
#include <panel/ground/quietview.h>

#include <QDir>
#include <QListWidget>
#include <QPushButton>
#include <QScroller>
#include <QVBoxLayout>

namespace Panel
{

namespace
{

constexpr int s_pathRole = Qt::UserRole;
constexpr int s_folderRole = Qt::UserRole + 1;

QPushButton *addButton(QBoxLayout *row, const QString &text, const char *name)
{
    auto *button = new QPushButton(text);
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(false);
    button->setMinimumHeight(44);
    row->addWidget(button);
    return button;
}

QString fileSize(qint64 bytes)
{
    return bytes < 1024 ? QStringLiteral("%1 B").arg(bytes)
                        : QStringLiteral("%1 kB").arg((bytes + 512) / 1024);
}

} // namespace

FileDialog::FileDialog(QWidget *parent)
    : DraggableFramelessDialog(parent)
    , m_path(new ElidedLabel(Qt::ElideLeft))
    , m_hint(new QLabel)
    , m_list(new QuietView<QListWidget>)
{
    setAccessibleName(tr("Open Touchstone files"));
    setWindowTitle(tr("Open Touchstone files"));
    setHeaderButton(Controls::DraggableDialogTitleBar::CloseButton);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(dialogMargins(12));

    auto *places = new QHBoxLayout;
    m_up = addButton(places, tr("\u2191 Up"), "up");
    connect(m_up, &QPushButton::clicked, this,
            [this] { setFolder(QDir(m_folder).absoluteFilePath(QStringLiteral(".."))); });
    connect(addButton(places, tr("Home"), "home"), &QPushButton::clicked, this,
            [this] { setFolder(QDir::homePath()); });
    connect(addButton(places, tr("Samples"), "samples"), &QPushButton::clicked, this,
            [this] { setFolder(sampleFolder()); });
    m_path->setObjectName(QStringLiteral("dim"));
    places->addStretch();
    column->addLayout(places);
    column->addWidget(m_path);

    m_list->setSelectionMode(QAbstractItemView::MultiSelection);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setTextElideMode(Qt::ElideMiddle);
    m_list->setUniformItemSizes(true);
    m_list->setAccessibleName(tr("Folders and Touchstone files"));
    QScroller::grabGesture(m_list->viewport(), QScroller::TouchGesture);
    connect(m_list, &QListWidget::itemClicked, this, &FileDialog::onItemClicked);
    connect(m_list, &QListWidget::itemActivated, this, &FileDialog::onItemActivated);
    connect(m_list, &QListWidget::itemSelectionChanged, this, &FileDialog::updateButtons);
    column->addWidget(m_list, 1);

    auto *answers = new QHBoxLayout;
    m_hint->setObjectName(QStringLiteral("dim"));
    answers->addWidget(m_hint, 1);
    connect(addButton(answers, tr("Cancel"), "cancel"), &QPushButton::clicked, this,
            &QDialog::reject);
    m_add = addButton(answers, tr("Add"), "add");
    m_add->setToolTip(tr("Show them beside the files on show"));
    m_add->hide();
    connect(m_add, &QPushButton::clicked, this, [this] {
        m_wasAdded = true;
        accept();
    });
    m_open = addButton(answers, tr("Open"), "open");
    connect(m_open, &QPushButton::clicked, this, &QDialog::accept);
    column->addLayout(answers);

    setFolder(QDir::currentPath());
    m_list->setFocus();
}

void FileDialog::setFolder(const QString &folder)
{
    m_folder = QDir::cleanPath(folder);
    const QDir dir(m_folder);
    m_list->clear();
    const QFileInfoList folders =
        dir.entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase);
    const QFileInfoList files = dir.entryInfoList(
        {QStringLiteral("*.s?p"), QStringLiteral("*.s??p"), QStringLiteral("*.ts")}, QDir::Files,
        QDir::Name | QDir::IgnoreCase);
    for (const QFileInfo &info : folders + files) {
        const QString text = info.isDir()
            ? info.fileName()
            : info.fileName() + QStringLiteral("   \u00b7   ") + fileSize(info.size());
        auto *item = new QListWidgetItem(info.isDir() ? icon("open") : QIcon(), text, m_list);
        item->setData(s_pathRole, info.filePath());
        item->setData(s_folderRole, info.isDir());
        if (info.isDir())
            item->setFlags(Qt::ItemIsEnabled);
    }
    m_list->setCurrentRow(0, QItemSelectionModel::NoUpdate);
    m_list->scrollToTop();
    const bool shipped = m_folder == sampleFolder();
    m_up->setEnabled(!shipped && !dir.isRoot());
    m_path->setText(shipped ? tr("Shipped samples") : QDir::toNativeSeparators(m_folder));
    m_path->setToolTip(m_path->text());
    updateButtons();
}

QStringList FileDialog::pickedFiles() const
{
    QStringList files;
    for (int row = 0; row < m_list->count(); ++row) {
        if (m_list->item(row)->isSelected())
            files << m_list->item(row)->data(s_pathRole).toString();
    }
    return files;
}

void FileDialog::offerToAdd()
{
    m_add->show();
}

void FileDialog::onItemClicked(QListWidgetItem *item)
{
    if (item->data(s_folderRole).toBool())
        setFolder(item->data(s_pathRole).toString());
}

void FileDialog::onItemActivated(QListWidgetItem *item)
{
    // Return on the keyboard, or a double click; the first click of one has already entered a
    // folder.
    if (item->data(s_folderRole).toBool()) {
        setFolder(item->data(s_pathRole).toString());
        return;
    }
    item->setSelected(true);
    accept();
}

void FileDialog::updateButtons()
{
    const int picked = int(pickedFiles().size());
    m_open->setEnabled(picked > 0);
    m_add->setEnabled(picked > 0);
    if (picked > 0)
        m_hint->setText(tr("Picked: %n", nullptr, picked));
    else if (m_list->count() == 0)
        m_hint->setText(QFileInfo(m_folder).isReadable() ? tr("No Touchstone files here")
                                                         : tr("This folder cannot be read"));
    else
        m_hint->setText(tr("Tap files to pick them"));
}

} // namespace Panel
