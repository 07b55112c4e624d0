// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <vnawidgets_export.h>

#include <QIcon>

#include <functional>

class QPainter;

namespace Controls
{

/// Draws an icon into the square from (0, 0) to (side, side); antialiasing is on.
using IconDrawing = std::function<void(QPainter *painter, QIcon::Mode mode, QIcon::State state)>;

/*! An icon that is drawn whenever it is asked for: sharp at each size and pixel ratio, without a file,
    and of no cost before it is seen.

    \code
    button->setIcon(Controls::drawnIcon(24.0, [](QPainter *painter, QIcon::Mode, QIcon::State) {
        painter->setPen(QPen(Qt::white, 2.0));
        painter->drawEllipse(QPointF(12.0, 12.0), 9.0, 9.0);
    }));
    \endcode

    \a side is above 0, in units of the drawing. The square stands in the middle of the icon. */
VNAWIDGETS_EXPORT QIcon drawnIcon(double side, const IconDrawing &draw);

} // namespace Controls
