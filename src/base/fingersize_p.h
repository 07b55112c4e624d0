// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QFontMetrics>
#include <QWidget>

namespace Utils
{

/// Minimum side of something a finger is to hit, in pixels: 9 mm, and two lines of the widget's font.
inline int fingerSize(const QWidget *widget)
{
    return qMax(2 * widget->fontMetrics().height(), qRound(widget->logicalDpiY() * 9 / 25.4));
}

} // namespace Utils
