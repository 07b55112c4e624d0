// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "popupwidget_p.h"

#include <base/qtcompat_p.h>

#include <QApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QScreen>
#include <QTimer>

/// Picks an enabled item: reports it and closes. A disabled one loses the highlight again.
void PopupWidgetPrivate::pick(QListWidgetItem *item)
{
    if (!(item->flags() & Qt::ItemIsEnabled)) {
        QTimer::singleShot(0, q, [this] { selectChosenItem(); });
        return;
    }
    const QPointer<PopupWidget> alive(q);
    const QString text = item->text();
    picking = true;
    if (chosen != text) {
        chosen = text;
        Q_EMIT q->currentItemChanged(text);
    }
    if (alive)
        q->close();
    if (alive)
        picking = false;
}

void PopupWidgetPrivate::selectChosenItem() const
{
    if (QListWidgetItem *const item = list->find(chosen))
        list->setCurrentItem(item);
}

/// Closes a pop-up whose button is gone from the screen or no longer answers.
void PopupWidgetPrivate::closeWithoutParent() const
{
    if (q->isVisible() && !(q->parentWidget()->isVisible() && q->parentWidget()->isEnabled()))
        q->close();
}

/// Drags the pop-up by its title.
bool PopupWidgetPrivate::filterTitle(QEvent *event)
{
    const auto globalPosition = [event] {
        return QtCompat::globalPosition(static_cast<QMouseEvent *>(event)).toPoint();
    };
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: // the press of a quick second tap
        dragOffset = globalPosition() - q->pos();
        dragging = true;
        return true;
    case QEvent::MouseMove:
        if (dragging)
            q->move(globalPosition() - dragOffset);
        return true;
    case QEvent::MouseButtonRelease:
        dragging = false;
        return true;
    default:
        return false;
    }
}

/// Keeps the wheel from scrolling, picks by key, and slides a list taller than its screen.
bool PopupWidgetPrivate::filterList(QEvent *event)
{
    switch (event->type()) {
    case QEvent::Wheel:
        if (scrollsInside)
            return false;
        slideTo(q->pos().y() + static_cast<QWheelEvent *>(event)->angleDelta().y());
        return true;
    case QEvent::KeyPress:
        switch (static_cast<QKeyEvent *>(event)->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
        case Qt::Key_Select:
            if (QListWidgetItem *const item = list->currentItem())
                pick(item);
            return true;
        default:
            return false;
        }
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        pressPosition = QtCompat::globalPosition(static_cast<QMouseEvent *>(event)).toPoint();
        pressTop = q->pos().y();
        sliding = false;
        return false;
    case QEvent::MouseMove: {
        const auto *const mouse = static_cast<QMouseEvent *>(event);
        const int distance = QtCompat::globalPosition(mouse).toPoint().y() - pressPosition.y();
        if (mouse->buttons() & Qt::LeftButton
            && (sliding || qAbs(distance) >= QApplication::startDragDistance()))
            sliding = slideTo(pressTop + distance);
        return sliding;
    }
    case QEvent::MouseButtonRelease:
        if (!sliding)
            return false;
        sliding = false;
        selectChosenItem(); // the finger highlighted the item it came down on
        return true;
    default:
        return false;
    }
}

/// Moves a pop-up taller than its screen up or down, without baring the screen's edges.
bool PopupWidgetPrivate::slideTo(int top) const
{
    const QRect available =
        q->screen()->availableGeometry().adjusted(0, screenMargin, 0, -screenMargin);
    if (q->height() <= available.height())
        return false;
    q->move(q->pos().x(), qBound(available.bottom() + 1 - q->height(), top, available.top()));
    return true;
}

/// Brings the item reached by the arrow keys onto the screen.
void PopupWidgetPrivate::slideToCurrentItem() const
{
    const QListWidgetItem *const item = list->currentItem();
    if (!item || !q->isVisible() || QApplication::mouseButtons() != Qt::NoButton)
        return;
    const QRect row = list->visualItemRect(item);
    const int top = list->viewport()->mapToGlobal(row.topLeft()).y();
    const QRect available = q->screen()->availableGeometry();
    const int below = top + row.height() - (available.bottom() + 1 - screenMargin);
    const int above = available.top() + screenMargin - top;
    if (below > 0)
        slideTo(q->pos().y() - below);
    else if (above > 0)
        slideTo(q->pos().y() + above);
}
