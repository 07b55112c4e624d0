// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "folderbrowser.h"

#include <panel/files/samples.h>
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

QString fileSize(qint64 bytes)
{
    return bytes < 1024 ? QStringLiteral("%1 B").arg(bytes)
                        : QStringLiteral("%1 kB").arg((bytes + 512) / 1024);
}

} // namespace

QPushButton *addDialogKey(QBoxLayout *row, const QString &text, const char *name)
{
    auto *key = new QPushButton(text);
    key->setObjectName(QLatin1String(name));
    key->setAutoDefault(false);
    key->setMinimumHeight(44);
    row->addWidget(key);
    return key;
}

FolderBrowser::FolderBrowser(const QStringList &filters, bool withSamples, QWidget *parent)
    : QWidget(parent)
    , m_filters(filters)
    , m_path(new ElidedLabel(Qt::ElideLeft))
    , m_list(new QuietView<QListWidget>)
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    auto *places = new QHBoxLayout;
    m_up = addDialogKey(places, tr("\u2191 Up"), "up");
    connect(m_up, &QPushButton::clicked, this,
            [this] { setFolder(QDir(m_folder).absoluteFilePath(QStringLiteral(".."))); });
    connect(addDialogKey(places, tr("Home"), "home"), &QPushButton::clicked, this,
            [this] { setFolder(QDir::homePath()); });
    if (withSamples)
        connect(addDialogKey(places, tr("Samples"), "samples"), &QPushButton::clicked, this,
                [this] { setFolder(sampleFolder()); });
    m_path->setObjectName(QStringLiteral("dim"));
    places->addStretch();
    column->addLayout(places);
    column->addWidget(m_path);

    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setTextElideMode(Qt::ElideMiddle);
    m_list->setUniformItemSizes(true);
    QScroller::grabGesture(m_list->viewport(), QScroller::TouchGesture);
    connect(m_list, &QListWidget::itemClicked, this, [this](QListWidgetItem *item) {
        if (item->data(s_folderRole).toBool())
            setFolder(item->data(s_pathRole).toString());
        else
            Q_EMIT fileClicked(item);
    });
    connect(m_list, &QListWidget::itemActivated, this, [this](QListWidgetItem *item) {
        // Return on the keyboard, or a double click; the first click of one has already entered a
        // folder.
        if (item->data(s_folderRole).toBool())
            setFolder(item->data(s_pathRole).toString());
        else
            Q_EMIT fileActivated(item);
    });
    column->addWidget(m_list, 1);
    setFocusProxy(m_list);
}

QString FolderBrowser::filePath(const QListWidgetItem *item)
{
    return item->data(s_folderRole).toBool() ? QString() : item->data(s_pathRole).toString();
}

void FolderBrowser::setFolder(const QString &folder)
{
    m_folder = QDir::cleanPath(folder);
    const QDir dir(m_folder);
    m_list->clear();
    const QFileInfoList folders =
        dir.entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase);
    const QFileInfoList files = m_filters.isEmpty()
        ? QFileInfoList()
        : dir.entryInfoList(m_filters, QDir::Files, QDir::Name | QDir::IgnoreCase);
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
    Q_EMIT folderChanged();
}

} // namespace Panel
