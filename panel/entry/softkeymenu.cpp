// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "softkeymenu.h"

#include "softkey.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QCoreApplication>
#include <QGridLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace Panel
{

SoftKeyMenu::SoftKeyMenu(QWidget *parent)
    : QWidget(parent)
    , m_tabs(new QButtonGroup(this))
    , m_tabGrid(new QGridLayout)
    , m_pages(new QStackedWidget)
{
    setObjectName(QStringLiteral("softKeys"));
    setAttribute(Qt::WA_StyledBackground);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(6, 2, 6, 6);
    column->setSpacing(6);
    m_tabGrid->setSpacing(0);
    column->addLayout(m_tabGrid);
    column->addWidget(m_pages, 1);
    connect(m_tabs, &QButtonGroup::idToggled, this, [this](int page, bool checked) {
        if (checked)
            m_pages->setCurrentIndex(page);
    });
}

void SoftKeyMenu::addPage(const QString &name)
{
    auto *page = new QWidget;
    m_column = new QVBoxLayout(page);
    m_column->setContentsMargins(0, 0, 0, 0);
    m_column->setSpacing(6);
    m_column->addStretch(1);
    const int index = m_pages->addWidget(page);
    auto *tab = new QPushButton(name);
    tab->setObjectName(QStringLiteral("pageTab"));
    tab->setCheckable(true);
    tab->setMinimumHeight(fontMetrics().height() + 14);
    // Two in a row leave room for a finger and for longer names.
    m_tabGrid->addWidget(tab, index / 2, index % 2);
    m_tabs->addButton(tab, index);
    tab->setChecked(index == 0);
}

SoftKey *SoftKeyMenu::addKey(const QString &name)
{
    auto *key = new SoftKey(name);
    // All are alike, and measuring one is not cheap.
    if (m_keyHeights.isEmpty())
        m_keyHeights = {key->minimumSizeHint().height(), key->sizeHint().height()};
    appendKey(key, m_keyHeights.first());
    return key;
}

void SoftKeyMenu::addKey(QWidget *key)
{
    appendKey(key, qMax(m_keyHeights.value(0), key->minimumSizeHint().height()));
}

void SoftKeyMenu::appendKey(QWidget *key, int smallestHeight)
{
    // All keys are equally high, whatever they hold: as a soft key likes it, or as there is room.
    key->setMinimumHeight(smallestHeight);
    key->setMaximumHeight(m_keyHeights.value(1, QWIDGETSIZE_MAX));
    key->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    m_column->insertWidget(m_column->count() - 1, key, 1);
    key->installEventFilter(this);
    const auto parts = key->findChildren<QWidget *>();
    for (QWidget *part : parts)
        part->installEventFilter(this);
}

bool SoftKeyMenu::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Delete
            || key == Qt::Key_Backspace)
            return QCoreApplication::sendEvent(window(), event);
    }
    return QWidget::eventFilter(watched, event);
}

void SoftKeyMenu::addWidget(QWidget *widget)
{
    m_column->insertWidget(m_column->count() - 1, widget);
}

int SoftKeyMenu::page() const
{
    return m_pages->currentIndex();
}

int SoftKeyMenu::pageCount() const
{
    return m_pages->count();
}

void SoftKeyMenu::setPage(int page)
{
    if (QAbstractButton *tab = m_tabs->button(page))
        tab->setChecked(true);
}

void SoftKeyMenu::turnPage(int step)
{
    setPage((page() + step + pageCount()) % pageCount());
}

void SoftKeyMenu::showKey(const QWidget *key)
{
    for (int page = 0; page < pageCount(); ++page) {
        if (m_pages->widget(page)->isAncestorOf(key))
            setPage(page);
    }
}

} // namespace Panel
