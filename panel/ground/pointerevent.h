// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMouseEvent>

namespace Panel
{

namespace Detail
{

/// Qt 6 has position(), Qt 5 has localPos(); the first that compiles is taken.
template<typename Event>
auto pointerPosition(const Event *event, int) -> decltype(event->position())
{
    return event->position();
}

template<typename Event>
QPointF pointerPosition(const Event *event, long)
{
    return event->localPos();
}

} // namespace Detail

/// Where a pointer is, in the coordinates of the widget that gets the event.
inline QPointF pointerPosition(const QMouseEvent *event)
{
    return Detail::pointerPosition(event, 0);
}

} // namespace Panel
