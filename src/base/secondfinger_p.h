// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QEvent>
#include <QGuiApplication>

namespace Utils
{

/*! Whether a touch begins beside a finger that Qt has made a mouse press of. Such a touch must not
    be accepted: Qt makes mouse events only of reports that nobody accepts, so where both fingers
    leave in one report the widget below the first would never get its release. */
inline bool isSecondFinger(const QEvent *event)
{
    return event->type() == QEvent::TouchBegin && QGuiApplication::mouseButtons() != Qt::NoButton;
}

} // namespace Utils
