// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "savedialog.h"

#include "folderbrowser.h"

#include <panel/entry/letterkeys.h>
#include <panel/files/filename.h>
#include <panel/ground/dialogstage.h>

#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace Panel
{

namespace
{

constexpr int s_longestName = 100;

} // namespace

SaveDialog::SaveDialog(const QString &title, const QString &suffix, const Writer &write,
                       QWidget *parent)
    : DraggableFramelessDialog(parent)
    , m_suffix(suffix)
    , m_write(write)
    , m_browser(new FolderBrowser(
          suffix.isEmpty() ? QStringList() : QStringList(QLatin1Char('*') + suffix), false))
    , m_name(new QLineEdit)
    , m_hint(new QLabel)
{
    setAccessibleName(title);
    setWindowTitle(title);
    setHeaderButton(Controls::DraggableDialogTitleBar::CloseButton);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(dialogMargins(12));
    m_browser->list()->setAccessibleName(tr("Folders and files"));
    column->addWidget(m_browser, 1);
    column->addStretch(); // in its place while it is hidden

    auto *naming = new QHBoxLayout;
    m_name->setAccessibleName(tr("Name"));
    m_name->setMinimumHeight(44);
    m_name->setMaxLength(s_longestName);
    naming->addWidget(m_name, 1);
    naming->addWidget(new QLabel(suffix));
    column->addLayout(naming);
    auto *letters = new LetterKeys(m_name, this);
    column->addWidget(letters);
    // On a small screen there is room for one of the two.
    connect(letters, &LetterKeys::shownChanged, m_browser,
            [this](bool shown) { m_browser->setVisible(!shown); });

    auto *answers = new QHBoxLayout;
    m_hint->setObjectName(QStringLiteral("dim"));
    m_hint->setWordWrap(true);
    m_hint->setTextFormat(Qt::PlainText);
    answers->addWidget(m_hint, 1);
    connect(addDialogKey(answers, tr("Cancel"), "cancel"), &QPushButton::clicked, this,
            &QDialog::reject);
    m_save = addDialogKey(answers, tr("Save"), "save");
    connect(m_save, &QPushButton::clicked, this, &SaveDialog::save);
    column->addLayout(answers);

    m_name->setHidden(suffix.isEmpty());
    connect(m_name, &QLineEdit::textChanged, this, &SaveDialog::showState);
    connect(m_name, &QLineEdit::returnPressed, this, &SaveDialog::save);
    connect(m_browser, &FolderBrowser::folderChanged, this, &SaveDialog::showState);
    const auto take = [this](const QListWidgetItem *item) {
        m_name->setText(
            QFileInfo(FolderBrowser::filePath(item)).fileName().chopped(int(m_suffix.size())));
    };
    connect(m_browser, &FolderBrowser::fileClicked, this, take);
    connect(m_browser, &FolderBrowser::fileActivated, this, take);
    setFolder(QDir::homePath());
    // Return saves, or enters a folder.
    if (suffix.isEmpty())
        m_browser->list()->setFocus();
    else
        m_name->setFocus();
}

SaveDialog::SaveDialog(const QString &title, const Writer &write, QWidget *parent)
    : SaveDialog(title, QString(), write, parent)
{
}

QString SaveDialog::folder() const
{
    return m_browser->folder();
}

void SaveDialog::setFolder(const QString &folder)
{
    // One that is made with the first file may not be there yet.
    QString there = folder;
    while (!QFileInfo(there).isDir() && !QDir(there).isRoot())
        there = QFileInfo(there).absolutePath();
    m_browser->setFolder(there);
}

void SaveDialog::setName(const QString &name)
{
    m_name->setText(toFileName(name, s_longestName));
}

QString SaveDialog::path() const
{
    return m_suffix.isEmpty()
        ? folder()
        : QDir(folder()).filePath(toFileName(m_name->text(), s_longestName) + m_suffix);
}

void SaveDialog::showState()
{
    const bool named = m_suffix.isEmpty() || !toFileName(m_name->text(), s_longestName).isEmpty();
    const bool replaces = named && !m_suffix.isEmpty() && QFileInfo::exists(path());
    m_save->setEnabled(named);
    m_save->setText(m_suffix.isEmpty() ? tr("Use this folder")
                        : replaces     ? tr("Replace")
                                       : tr("Save"));
    m_hint->setText(replaces ? tr("%1 is there already.").arg(QFileInfo(path()).fileName())
                             : QString());
}

void SaveDialog::save()
{
    if (!m_save->isEnabled())
        return;
    const QString sentence = m_write(path());
    if (sentence.isEmpty())
        accept();
    else
        m_hint->setText(sentence);
}

} // namespace Panel
