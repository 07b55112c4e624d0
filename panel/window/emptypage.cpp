// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "emptypage.h"

#include <panel/ground/icons.h>
#include <panel/ground/look.h>

#include <controls/thememanager.h>

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace Panel
{

EmptyPage::EmptyPage(QWidget *parent)
    : QWidget(parent)
    , m_mark(new QLabel(this))
    , m_openButton(new QPushButton(tr("Open file\u2026"), this))
{
    setObjectName(QStringLiteral("emptyPage"));
    setAttribute(Qt::WA_StyledBackground);
    // While it is not on show, the diagrams may be lower than it is.
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Ignored);
    auto *column = new QVBoxLayout(this);
    column->setSpacing(12);
    column->addStretch();
    column->addWidget(m_mark, 0, Qt::AlignHCenter);
    auto *title = new QLabel(tr("No data"));
    QFont large = title->font();
    large.setPixelSize(QFontInfo(large).pixelSize() * 3 / 2);
    title->setFont(large);
    column->addWidget(title, 0, Qt::AlignHCenter);
    auto *hint = new QLabel(tr("Open a Touchstone file (.s1p, .s2p, .ts) to see it."));
    hint->setObjectName(QStringLiteral("dim"));
    hint->setWordWrap(true);
    hint->setAlignment(Qt::AlignHCenter);
    column->addWidget(hint);
    m_openButton->setMinimumSize(160, 44);
    column->addWidget(m_openButton, 0, Qt::AlignHCenter);
    column->addStretch();
    connect(Controls::ThemeManager::instance(), &Controls::ThemeManager::themeChanged, this,
            &EmptyPage::recolor);
    recolor();
}

void EmptyPage::recolor()
{
    m_mark->setPixmap(mark(120, currentLook().border, devicePixelRatioF()));
}

} // namespace Panel
