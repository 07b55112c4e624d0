// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <vnawidgets_export.h>

#include <QWidget>

#include <memory>

struct LockWidgetPrivate;

/*! A floating padlock against accidental touches, docked at the right edge of a target widget.

    A tap (or Space) locks and unlocks. While locked, presses and touches anywhere else in the
    application are swallowed, and the padlock blinks to say why; keys, wheel and releases pass.
    While unlocked the padlock can be dragged out of the way. Not a protection: there is no code to
    enter.

    The padlock and the target share one coordinate system: give it the target's parent as parent,
    or none when the target is a window. The target may be null or die first; the padlock stays
    then.

    \code
    auto *lock = new LockWidget(centralWidget, diagramArea); // a child of centralWidget
    connect(lockAction, &QAction::toggled, lock,
            [lock](bool on) { lock->setScreenLockEnable(on); });
    \endcode */
class VNAWIDGETS_EXPORT LockWidget : public QWidget
{
    Q_OBJECT

    Q_PROPERTY(bool screenLockEnabled READ getScreenLockEnable WRITE setScreenLockEnable)
    Q_PROPERTY(bool locked READ isLocked WRITE setLocked NOTIFY lockedChanged)

public:
    /// A hidden, unlocked padlock at the right edge of \a target, which may be null. Not owned.
    LockWidget(QWidget *parent, QWidget *target);
    ~LockWidget() override;

    /// Shows the padlock docked, or hides it and unlocks; off at the start.
    void setScreenLockEnable(bool enable);
    /// Whether the padlock is visible.
    bool getScreenLockEnable() const;
    /// Whether presses are swallowed. False at the start.
    bool isLocked() const;

    /// A widget that presses reach even when it is locked, such as the button that locks and unlocks.
    /// Null, the default, for none; not owned, and it may die first.
    void setKey(QWidget *key);
    /// See setKey().
    QWidget *key() const;

public Q_SLOTS:
    /// Locks as a tap on the padlock does, or unlocks; presses are swallowed only while it is shown.
    void setLocked(bool lock);

Q_SIGNALS:
    /// Fires when it was locked or unlocked, by whomever.
    void lockedChanged(bool locked);
    /// A press or touch was swallowed.
    void pressBlocked();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private Q_SLOTS:
    void onClick();

private:
    class Accessible;

    void addAnimation();
    void scheduleDefaultPosition();
    void loadPixmaps();
    void showPixmap();
    void stopBlinking();
    bool mustPass(QObject *watched, QEvent *event) const;

    const std::unique_ptr<LockWidgetPrivate> d;
};
