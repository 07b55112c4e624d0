// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
// The keypad follows a finger that drags it by its title.
#include <controls/touchnumkeyboard.h>

#include "touchnumkeyboard_p.h"

#include <base/qtcompat_p.h>
#include <platform/placement.h>

#include <QMouseEvent>
#include <QScreen>

namespace Controls
{

void TouchNumKeyboard::mousePressEvent(QMouseEvent *event)
{
    Q_D(TouchNumKeyboard);
    const int titleBottom = d->ui.titleGridLayout->geometry().bottom();
    if (event->button() != Qt::LeftButton || QtCompat::position(event).y() > titleBottom) {
        QDialog::mousePressEvent(event);
        return;
    }
    d->dragging = true;
    d->dragOffset = pos() - QtCompat::globalPosition(event).toPoint();
    event->accept();
}

void TouchNumKeyboard::mouseMoveEvent(QMouseEvent *event)
{
    Q_D(TouchNumKeyboard);
    if (!d->dragging) {
        QDialog::mouseMoveEvent(event);
        return;
    }
    move(QtCompat::globalPosition(event).toPoint() + d->dragOffset);
    if (isWindow())
        move(Utils::boundedTopLeft(pos(), size(), screen()->availableGeometry(), 0));
    else
        Utils::clampWidgetToHost(this, parentWidget());
    event->accept();
}

void TouchNumKeyboard::mouseReleaseEvent(QMouseEvent *event)
{
    d_ptr->dragging = false;
    QDialog::mouseReleaseEvent(event);
}

} // namespace Controls
