// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
/*! \file
    Where to put a floating widget: the rules that pop-ups, dialogs and the keypad share.

    \code
    const QPoint wanted = button->mapToGlobal(QPoint(0, button->height()));
    const QRect bounds = button->screen()->availableGeometry();
    popup->move(Utils::boundedTopLeft(wanted, popup->size(), bounds, 5));
    \endcode

    The functions that take widgets move \a widget in whatever coordinates it lives in: global
    ones for a window, its parent's otherwise. \a host may be any widget of any window. Null
    arguments are ignored. */
#pragma once

#include <platform/vnaplatform_export.h>

#include <QPoint>
#include <QRect>
#include <QSize>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace Utils
{

/// The top-left nearest to \a wanted that keeps a rectangle of \a size inside \a bounds shrunk by
/// \a margin on every side. What does not fit starts at the left or top edge, so that its beginning
/// shows.
VNAPLATFORM_EXPORT QPoint boundedTopLeft(QPoint wanted, QSize size, QRect bounds, int margin);

/// Centres \a widget over \a host; one that is larger starts at the host's left or top edge.
VNAPLATFORM_EXPORT void centerWidgetInHost(QWidget *widget, QWidget *host);

/// Moves \a widget only as far as brings it inside the host's rect(); frames of windows count.
VNAPLATFORM_EXPORT void clampWidgetToHost(QWidget *widget, QWidget *host);

} // namespace Utils
