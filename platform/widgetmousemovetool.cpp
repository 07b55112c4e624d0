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

WidgetMouseMoveTool::WidgetMouseMoveTool(QWidget *widget)
    : QObject(widget)
    , m_widget(widget)
{
    // Touches are taken as such: Qt turns a cancelled touch into a mouse release, which would be a
    // tap.
    widget->setAttribute(Qt::WA_AcceptTouchEvents);
    widget->installEventFilter(this);
}

void WidgetMouseMoveTool::setMovable(bool movable)
{
    m_movable = movable;
}

bool WidgetMouseMoveTool::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_widget)
        return QObject::eventFilter(watched, event);

    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease: {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        const QPoint global = QtCompat::globalPosition(mouse).toPoint();
        if (event->type() == QEvent::MouseMove) {
            if (m_state == Idle)
                return false;
            moveTo(global);
        } else if (mouse->button() != Qt::LeftButton) {
            return false;
        } else if (event->type() == QEvent::MouseButtonRelease) {
            if (m_state == Idle)
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
        m_state = Idle;
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
        m_state = Idle;
        return true;
    }
    const QPoint global = QtCompat::firstTouchGlobalPosition(touch).toPoint();
    if (event->type() == QEvent::TouchBegin)
        press(global);
    else if (m_state != Idle && event->type() == QEvent::TouchUpdate)
        moveTo(global);
    else if (m_state != Idle)
        release(global);
    return true;
}

void WidgetMouseMoveTool::press(const QPoint &global)
{
    m_state = Pressed;
    m_pressPosition = global;
    m_startPosition = m_widget->pos();
}

void WidgetMouseMoveTool::moveTo(const QPoint &global)
{
    const QPoint way = global - m_pressPosition;
    if (m_state == Pressed && way.manhattanLength() < QApplication::startDragDistance())
        return;
    m_state = Dragging;
    if (!m_movable)
        return;
    const QRect bounds = m_widget->isWindow() ? m_widget->screen()->availableGeometry()
                                              : m_widget->parentWidget()->rect();
    m_widget->move(
        boundedTopLeft(m_startPosition + way, m_widget->frameGeometry().size(), bounds, 0));
}

void WidgetMouseMoveTool::release(const QPoint &global)
{
    moveTo(global);
    const bool tapped = m_state == Pressed;
    m_state = Idle;
    if (tapped)
        Q_EMIT clicked();
}

} // namespace Utils
