// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
/*! \file
    Where a list opens that belongs to a button or a box. */
#pragma once

#include <platform/placement.h>

#include <QGuiApplication>
#include <QScreen>

namespace Controls
{

/// Pixels that stay free between a pop-up and the edges of the screen.
constexpr int PopupMargin = 5;

/// Available geometry of the screen under a global point, of the primary screen when there is none.
inline QRect availableGeometryAt(const QPoint &global)
{
    const QScreen *const screen = QGuiApplication::screenAt(global);
    return (screen ? screen : QGuiApplication::primaryScreen())->availableGeometry();
}

/*! Top-left corner of a pop-up of \a size: \a gap pixels below the last row of \a owner (in global
    coordinates), above it where there is no room below, and in any case on the screen. */
inline QPoint popupTopLeft(const QRect &owner, const QSize &size, const QRect &available, int gap)
{
    QPoint wanted = owner.bottomLeft() + QPoint(0, gap);
    if (wanted.y() + size.height() > available.top() + available.height() - PopupMargin)
        wanted.setY(owner.top() - size.height() - gap);
    return Utils::boundedTopLeft(wanted, size, available, PopupMargin);
}

} // namespace Controls
