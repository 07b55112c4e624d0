// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPointer>

class LockWidget;
class QWidget;

namespace Panel
{

/*! Keeps the panel as it is while its padlock is locked: LockWidget swallows presses, this the
    keyboard, the wheel and what is dropped. What unlocks passes: Ctrl+L, and the keys that reach and
    press the padlock. */
class PanelLock : public QObject
{
    Q_OBJECT

public:
    PanelLock(LockWidget *padlock, QWidget *window);

    bool isLocked() const;
    void setLocked(bool locked);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void lockedChanged(bool locked);
    /// Something was tried that the lock does not let through.
    void blocked();

private:
    void releaseKeys();
    bool isBlocked(QEvent *event) const;

    QPointer<LockWidget> m_padlock;
    QWidget *m_window;
};

} // namespace Panel
