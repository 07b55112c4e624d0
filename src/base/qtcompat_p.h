// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
/*! \file
    What differs between Qt 5.15 and Qt 6: every test of QT_VERSION stands here, and nowhere else. */
#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QMouseEvent>
#include <QTouchEvent>
#include <QWheelEvent>

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
#include <QInputDevice>

#include <algorithm>
#else
#include <QTouchDevice>
#endif

namespace QtCompat
{

/// Whether the system has a device that fingers touch.
inline bool hasTouchDevice()
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    const QList<const QInputDevice *> devices = QInputDevice::devices();
    return std::any_of(devices.begin(), devices.end(), [](const QInputDevice *device) {
        return device->type() == QInputDevice::DeviceType::TouchScreen
            || device->type() == QInputDevice::DeviceType::TouchPad;
    });
#else
    return !QTouchDevice::devices().isEmpty();
#endif
}

/// Has icons drawn at the screen's scale rather than enlarged; before there is an application.
inline void useHighDpiIcons()
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
}

/// Position of a mouse event in the receiving widget, in logical pixels.
inline QPointF position(const QMouseEvent *event)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return event->position();
#else
    return event->localPos();
#endif
}

/// Position of a mouse event on the screen, in logical pixels.
inline QPointF globalPosition(const QMouseEvent *event)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return event->globalPosition();
#else
    return event->screenPos();
#endif
}

/// Number of fingers in a touch event; the two functions below ask for the first one.
inline int touchPointCount(const QTouchEvent *event)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return int(event->points().size());
#else
    return event->touchPoints().size();
#endif
}

/// Position of the first finger in the receiving widget, in logical pixels.
inline QPointF firstTouchPosition(const QTouchEvent *event)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return event->points().first().position();
#else
    return event->touchPoints().first().pos();
#endif
}

/// Position of the first finger on the screen, in logical pixels.
inline QPointF firstTouchGlobalPosition(const QTouchEvent *event)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return event->points().first().globalPosition();
#else
    return event->touchPoints().first().screenPos();
#endif
}

} // namespace QtCompat
