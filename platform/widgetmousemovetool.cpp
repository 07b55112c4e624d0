// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <platform/widgetmousemovetool.h>

#include <base/qtcompat_p.h>
#include <base/secondfinger_p.h>
#include <platform/placement.h>

#include <QApplication>
#include <QScreen>
#include <QWidget>

namespace Utils
{

namespace
{

enum State {
    Idle,
    Pressed,
    Dragging,
};

} // namespace

struct WidgetMouseMoveTool::Private {
    QWidget *widget = nullptr;
    bool movable = true;
    State state = Idle;
    QPoint pressPosition;
    QPoint startPosition;
};

WidgetMouseMoveTool::WidgetMouseMoveTool(QWidget *widget)
    : QObject(widget)
    , d(std::make_unique<Private>())
{
    d->widget = widget;
    // Touches are taken as such: Qt turns a cancelled touch into a mouse release, which would be a
    // tap.
    widget->setAttribute(Qt::WA_AcceptTouchEvents);
    widget->installEventFilter(this);
}

WidgetMouseMoveTool::~WidgetMouseMoveTool() = default;

bool WidgetMouseMoveTool::isMovable() const
{
    return d->movable;
}

void WidgetMouseMoveTool::setMovable(bool movable)
{
    d->movable = movable;
}

bool WidgetMouseMoveTool::eventFilter(QObject *, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease: {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        const QPoint global = QtCompat::globalPosition(mouse).toPoint();
        if (event->type() == QEvent::MouseMove) {
            if (d->state == Idle)
                return false;
            moveTo(global);
        } else if (mouse->button() != Qt::LeftButton) {
            return false;
        } else if (event->type() == QEvent::MouseButtonRelease) {
            if (d->state == Idle)
                return false;
            event->accept();
            release(global);
            return true; // a slot of clicked() may have deleted us
        } else {
            press(global);
        }
        event->accept();
        return true;
    }
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
        return filterTouch(event);
    case QEvent::Hide:
    case QEvent::EnabledChange:
    case QEvent::WindowBlocked:
    case QEvent::WindowDeactivate:
        // The release will go elsewhere.
        d->state = Idle;
        return false;
    default:
        return false;
    }
}

bool WidgetMouseMoveTool::filterTouch(QEvent *event)
{
    if (isSecondFinger(event)) {
        event->ignore();
        return true;
    }
    event->accept();
    const auto *touch = static_cast<QTouchEvent *>(event);
    if (event->type() == QEvent::TouchCancel || QtCompat::touchPointCount(touch) != 1) {
        d->state = Idle;
        return true;
    }
    const QPoint global = QtCompat::firstTouchGlobalPosition(touch).toPoint();
    if (event->type() == QEvent::TouchBegin)
        press(global);
    else if (d->state != Idle && event->type() == QEvent::TouchUpdate)
        moveTo(global);
    else if (d->state != Idle)
        release(global);
    return true;
}

void WidgetMouseMoveTool::press(const QPoint &global)
{
    d->state = Pressed;
    d->pressPosition = global;
    d->startPosition = d->widget->pos();
}

void WidgetMouseMoveTool::moveTo(const QPoint &global)
{
    const QPoint way = global - d->pressPosition;
    if (d->state == Pressed && way.manhattanLength() < QApplication::startDragDistance())
        return;
    d->state = Dragging;
    if (!d->movable)
        return;
    const QRect bounds = d->widget->isWindow() ? d->widget->screen()->availableGeometry()
                                               : d->widget->parentWidget()->rect();
    d->widget->move(
        boundedTopLeft(d->startPosition + way, d->widget->frameGeometry().size(), bounds, 0));
}

void WidgetMouseMoveTool::release(const QPoint &global)
{
    moveTo(global);
    const bool tapped = d->state == Pressed;
    d->state = Idle;
    if (tapped)
        Q_EMIT clicked();
}

} // namespace Utils
