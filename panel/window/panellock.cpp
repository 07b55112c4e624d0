// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "panellock.h"

#include <widgets/lockwidget.h>

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QShortcutEvent>

namespace Panel
{

namespace
{

const QKeySequence s_unlock(int(Qt::CTRL) | int(Qt::Key_L));

} // namespace

PanelLock::PanelLock(LockWidget *padlock, QWidget *window)
    : QObject(window)
    , m_padlock(padlock)
    , m_window(window)
{
    connect(padlock, &LockWidget::pressBlocked, this, &PanelLock::blocked);
    connect(padlock, &LockWidget::lockedChanged, this, [this](bool locked) {
        if (locked) {
            qApp->installEventFilter(this);
            releaseKeys();
        } else {
            qApp->removeEventFilter(this);
            m_padlock->setScreenLockEnable(false);
        }
        Q_EMIT lockedChanged(locked);
    });
}

/// Lets go of the keys that are held: the release that would press them may come while the panel is
/// locked.
void PanelLock::releaseKeys()
{
    const auto keys = m_window->findChildren<QAbstractButton *>();
    for (QAbstractButton *key : keys)
        key->setDown(false);
}

bool PanelLock::isLocked() const
{
    return m_padlock && m_padlock->isLocked();
}

void PanelLock::setLocked(bool locked)
{
    if (!m_padlock || locked == isLocked())
        return;
    if (locked)
        m_padlock->setScreenLockEnable(true);
    m_padlock->setLocked(locked);
}

bool PanelLock::eventFilter(QObject *watched, QEvent *event)
{
    // A shortcut is an object; of all others, windows come before their widgets.
    const bool counts = watched->isWidgetType() || event->type() == QEvent::Shortcut;
    if (!counts || !isBlocked(event))
        return QObject::eventFilter(watched, event);
    if (event->type() == QEvent::KeyPress || event->type() == QEvent::Shortcut
        || event->type() == QEvent::Wheel || event->type() == QEvent::Drop)
        Q_EMIT blocked();
    return true;
}

bool PanelLock::isBlocked(QEvent *event) const
{
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride: {
        const auto *key = static_cast<QKeyEvent *>(event);
        const bool unlocks = QKeySequence(int(key->modifiers()) | key->key()) == s_unlock;
        const bool travels = key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab;
        // A modifier by itself does nothing.
        const bool modifier = key->key() >= Qt::Key_Shift && key->key() <= Qt::Key_ScrollLock;
        // Those that press a key alone: what a padlock does not want goes on to its window.
        const bool presses = key->key() == Qt::Key_Space || key->key() == Qt::Key_Select
            || key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
        const bool onKey = presses && m_padlock
            && (m_padlock->hasFocus() || (m_padlock->key() && m_padlock->key()->hasFocus()));
        return !unlocks && !travels && !modifier && !onKey;
    }
    case QEvent::Shortcut:
        return static_cast<QShortcutEvent *>(event)->key() != s_unlock;
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::NativeGesture:
    case QEvent::Gesture:
    case QEvent::TabletPress:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
    case QEvent::InputMethod:
        return true;
    default:
        return false;
    }
}

} // namespace Panel
