// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "setupdialog.h"

#include <panel/entry/letterkeys.h>
#include <panel/files/setups.h>
#include <panel/ground/dialogstage.h>
#include <panel/ground/quietview.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScroller>
#include <QVBoxLayout>

namespace Panel
{

namespace
{

constexpr int s_keyHeight = 48;

} // namespace

SetupDialog::SetupDialog(Setups *setups, QWidget *parent)
    : DraggableFramelessDialog(parent)
    , m_setups(setups)
    , m_list(new QuietView<QListWidget>)
    , m_hint(new QLabel(tr("A set-up keeps files, traces, scales, limits and markers.")))
    , m_name(new QLineEdit)
    , m_save(makeKey(tr("Save"), "save"))
    , m_recall(makeKey(tr("Recall"), "recall"))
    , m_remove(makeKey(tr("Remove"), "remove"))
{
    setAccessibleName(tr("Set-ups"));
    setWindowTitle(tr("Set-ups"));
    setHeaderButton(Controls::DraggableDialogTitleBar::CloseButton);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(dialogMargins(12));
    m_list->setAccessibleName(tr("Set-ups"));
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    QScroller::grabGesture(m_list->viewport(), QScroller::TouchGesture);
    column->addWidget(m_list, 1);
    m_hint->setObjectName(QStringLiteral("dim"));
    m_hint->setWordWrap(true);
    column->addWidget(m_hint);
    auto *naming = new QHBoxLayout;
    m_name->setAccessibleName(tr("Name"));
    m_name->setMinimumHeight(s_keyHeight);
    m_name->setMaxLength(Setups::longestName);
    naming->addWidget(m_name, 1);
    naming->addWidget(m_save);
    column->addLayout(naming);
    auto *letters = new LetterKeys(m_name, this);
    column->addWidget(letters);
    // On a small screen there is room for one of the two.
    connect(letters, &LetterKeys::shownChanged, this,
            [this](bool shown) { m_list->setVisible(!shown && m_list->count() > 0); });
    auto *answers = new QHBoxLayout;
    QPushButton *preset = makeKey(tr("Preset"), "preset");
    for (QPushButton *key : {preset, m_remove, m_recall})
        answers->addWidget(key, 1);
    column->addLayout(answers);

    QWidget *const order[] = {m_list, m_name, m_save, preset, m_remove, m_recall};
    for (size_t i = 1; i < std::size(order); ++i)
        setTabOrder(order[i - 1], order[i]);

    connect(m_list, &QListWidget::currentTextChanged, this, [this](const QString &name) {
        if (!name.isEmpty())
            m_name->setText(name);
        showState();
    });
    connect(m_list, &QListWidget::itemActivated, this, &SetupDialog::recall);
    connect(m_name, &QLineEdit::textChanged, this, &SetupDialog::showState);
    connect(m_name, &QLineEdit::returnPressed, this, &SetupDialog::save);
    connect(m_save, &QPushButton::clicked, this, &SetupDialog::save);
    connect(m_recall, &QPushButton::clicked, this, &SetupDialog::recall);
    connect(m_remove, &QPushButton::clicked, this, &SetupDialog::removeCurrent);
    connect(preset, &QPushButton::clicked, this, [this] {
        m_setups->preset();
        close();
    });
    list(QString());
    // Return saves a new one. A list that has the focus would offer to replace its first.
    m_name->setFocus();
    setMinimumSize(
        QSize(500, 420).boundedTo(parent ? parent->size() - QSize(40, 40) : QSize(500, 420)));
}

QPushButton *SetupDialog::makeKey(const QString &name, const char *objectName)
{
    auto *key = new QPushButton(name, this);
    key->setObjectName(QLatin1String(objectName));
    key->setAutoDefault(false);
    key->setMinimumHeight(s_keyHeight);
    return key;
}

/// Shows what there is; the name is that of the current one, or a new one.
void SetupDialog::list(const QString &current)
{
    m_list->clear();
    m_list->addItems(m_setups->names());
    for (int row = 0; row < m_list->count(); ++row)
        m_list->item(row)->setSizeHint({0, s_keyHeight});
    const QList<QListWidgetItem *> found = m_list->findItems(current, Qt::MatchExactly);
    m_list->setCurrentItem(found.value(0));
    m_name->setText(found.isEmpty() ? m_setups->freeName() : current);
    m_name->selectAll();
    m_list->setVisible(m_list->count() > 0);
    m_hint->setVisible(m_list->count() == 0);
    showState();
}

QString SetupDialog::current() const
{
    return m_list->currentItem() ? m_list->currentItem()->text() : QString();
}

void SetupDialog::save()
{
    const QString sentence = m_setups->save(m_name->text());
    if (sentence.isEmpty()) {
        close();
        return;
    }
    m_hint->setText(sentence);
    m_hint->show();
}

void SetupDialog::recall()
{
    if (current().isEmpty())
        return;
    m_setups->recall(current());
    close();
}

void SetupDialog::removeCurrent()
{
    m_setups->remove(current());
    list(QString());
}

void SetupDialog::showState()
{
    m_recall->setEnabled(m_list->currentItem());
    m_remove->setEnabled(m_list->currentItem());
    m_save->setEnabled(!m_name->text().trimmed().isEmpty());
    m_save->setText(m_setups->exists(m_name->text()) ? tr("Replace") : tr("Save"));
}

} // namespace Panel
