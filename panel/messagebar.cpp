// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "messagebar.h"

#include "icons.h"

#include <controls/thememanager.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

namespace Panel
{

MessageBar::MessageBar(QWidget *parent)
    : QFrame(parent)
    , m_label(new QLabel(this))
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(12, 4, 4, 4);
    m_label->setWordWrap(true);
    // What a file is called must not become markup.
    m_label->setTextFormat(Qt::PlainText);
    m_label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    row->addWidget(m_label, 1);

    auto *close = new QToolButton(this);
    close->setObjectName(QStringLiteral("closeMessage"));
    close->setAccessibleName(tr("Close message"));
    close->setMinimumSize(44, 40);
    connect(close, &QToolButton::clicked, this, [this] { setMessage(QString()); });
    row->addWidget(close, 0, Qt::AlignTop);
    const auto recolor = [close] { close->setIcon(icon("close")); };
    connect(Controls::ThemeManager::instance(), &Controls::ThemeManager::themeChanged, close,
            recolor);
    recolor();
    hide();
}

QString MessageBar::message() const
{
    return m_label->text();
}

void MessageBar::setMessage(const QString &message)
{
    m_label->setText(message);
    setAccessibleName(message);
    setVisible(!message.isEmpty());
}

} // namespace Panel
