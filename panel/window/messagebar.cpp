// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "messagebar.h"

#include <panel/ground/icons.h>
#include <panel/ground/look.h>

#include <controls/announcer.h>
#include <controls/thememanager.h>

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QToolButton>
#include <QVariant>

namespace Panel
{

namespace
{

constexpr int s_maximumWidth = 720;
constexpr int s_margin = 12;

} // namespace

MessageBar::MessageBar(QWidget *parent)
    : QFrame(parent)
    , m_label(new QLabel(this))
    , m_progress(new QProgressBar(this))
    , m_action(new QPushButton(this))
    , m_close(new QToolButton(this))
    , m_announcer(new Controls::Announcer(this))
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(12, 4, 4, 4);
    row->setSpacing(8);
    m_label->setWordWrap(true);
    // What a file is called must not become markup.
    m_label->setTextFormat(Qt::PlainText);
    row->addWidget(m_label, 1);

    m_progress->setTextVisible(false);
    m_progress->setFixedSize(120, 12);
    row->addWidget(m_progress);

    m_action->setObjectName(QStringLiteral("messageAction"));
    m_action->setMinimumSize(88, 44);
    row->addWidget(m_action, 0, Qt::AlignTop);

    m_close->setObjectName(QStringLiteral("closeMessage"));
    m_close->setAccessibleName(tr("Close message"));
    m_close->setMinimumSize(44, 44);
    connect(m_close, &QToolButton::clicked, this, [this] { setMessage(QString()); });
    row->addWidget(m_close, 0, Qt::AlignTop);
    const auto recolor = [close = m_close] { close->setIcon(icon("close")); };
    connect(Controls::ThemeManager::instance(), &Controls::ThemeManager::themeChanged, m_close,
            recolor);
    recolor();
    m_leave.setSingleShot(true);
    connect(&m_leave, &QTimer::timeout, this, [this] { setMessage(QString()); });
    parent->installEventFilter(this);
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
    showText(message, false);
    m_announcer->announce(message);
}

void MessageBar::notify(const QString &notice)
{
    showCaption(notice);
    if (message() == notice)
        m_announcer->announce(notice);
}

void MessageBar::showCaption(const QString &text)
{
    const bool asks = isVisible() && !m_action->isHidden();
    if (!asks && (isNotice() || isHidden() || !text.isEmpty()))
        showText(text, !text.isEmpty());
}

void MessageBar::speak(const QString &text)
{
    m_announcer->announce(text);
}

void MessageBar::showText(const QString &message, bool notice)
{
    disconnect(m_answer);
    m_action->hide();
    m_progress->hide();
    m_close->show();
    m_label->setText(message);
    setAccessibleName(message);
    if (notice)
        m_leave.start(qMax(noticeTime, readingTime * int(message.size())));
    else
        m_leave.stop();
    setProperty("notice", notice);
    repolish(this);
    setVisible(!message.isEmpty());
    place();
}

/// Lies in the middle above the lower edge of the parent, as wide as its text asks for.
void MessageBar::place()
{
    if (isHidden())
        return;
    const int room = qMin(s_maximumWidth, parentWidget()->width() - 2 * s_margin);
    // The text alone decides, and breaks where there is no room for a line.
    const QFontMetrics metrics = m_label->fontMetrics();
    int text = 0;
    for (const QString &line : m_label->text().split(QLatin1Char('\n')))
        text = qMax(text, metrics.horizontalAdvance(line) + 8);
    m_label->setMinimumWidth(0);
    const int others = sizeHint().width() - m_label->sizeHint().width();
    const int width = qBound(240, text + others, qMax(240, room));
    const int height = qMax(heightForWidth(width), minimumSizeHint().height());
    setGeometry((parentWidget()->width() - width) / 2, parentWidget()->height() - height - s_margin,
                width, height);
    raise();
}

bool MessageBar::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parent() && event->type() == QEvent::Resize)
        place();
    return QFrame::eventFilter(watched, event);
}

void MessageBar::offer(const QString &message, const QString &action, const QObject *context,
                       const std::function<void()> &answer)
{
    showText(message, false);
    m_announcer->announce(message + QLatin1Char(' ') + action);
    m_action->setText(action);
    m_action->show();
    place();
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
    place();
}

} // namespace Panel
