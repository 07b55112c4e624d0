// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "messagebar.h"

#include <panel/look/icons.h>

#include <controls/thememanager.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QToolButton>

namespace Panel
{

MessageBar::MessageBar(QWidget *parent)
    : QFrame(parent)
    , m_label(new QLabel(this))
    , m_progress(new QProgressBar(this))
    , m_action(new QPushButton(this))
    , m_close(new QToolButton(this))
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(12, 4, 4, 4);
    row->setSpacing(8);
    m_label->setWordWrap(true);
    // What a file is called must not become markup.
    m_label->setTextFormat(Qt::PlainText);
    m_label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    row->addWidget(m_label, 1);

    m_progress->setTextVisible(false);
    m_progress->setFixedSize(120, 12);
    row->addWidget(m_progress);

    m_action->setObjectName(QStringLiteral("messageAction"));
    m_action->setMinimumSize(88, 40);
    row->addWidget(m_action, 0, Qt::AlignTop);

    m_close->setObjectName(QStringLiteral("closeMessage"));
    m_close->setAccessibleName(tr("Close message"));
    m_close->setMinimumSize(44, 40);
    connect(m_close, &QToolButton::clicked, this, [this] { setMessage(QString()); });
    row->addWidget(m_close, 0, Qt::AlignTop);
    const auto recolor = [close = m_close] { close->setIcon(icon("close")); };
    connect(Controls::ThemeManager::instance(), &Controls::ThemeManager::themeChanged, m_close,
            recolor);
    recolor();
    setMessage(QString());
}

QString MessageBar::message() const
{
    return m_label->text();
}

bool MessageBar::showsProgress() const
{
    return !m_progress->isHidden();
}

void MessageBar::setMessage(const QString &message)
{
    disconnect(m_answer);
    m_action->hide();
    m_progress->hide();
    m_close->show();
    m_label->setText(message);
    setAccessibleName(message);
    setVisible(!message.isEmpty());
}

void MessageBar::offer(const QString &message, const QString &action, const QObject *context,
                       const std::function<void()> &answer)
{
    setMessage(message);
    m_action->setText(action);
    m_action->show();
    // The call may replace this answer by another.
    m_answer = connect(m_action, &QPushButton::clicked, context, [this, answer] {
        const auto call = answer;
        setMessage(QString());
        call();
    });
}

void MessageBar::showProgress(const QString &message, int percent, const QString &action,
                              const QObject *context, const std::function<void()> &answer)
{
    m_progress->setValue(percent);
    // A button that went away for a moment would forget the finger on it.
    if (showsProgress() && message == m_label->text())
        return;
    offer(message, action, context, answer);
    m_progress->setAccessibleName(message);
    m_progress->show();
    m_close->hide();
}

} // namespace Panel
