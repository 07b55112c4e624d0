// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPolygonF>
#include <QRectF>

namespace Panel
{

/*! The parts of a line through many points that a picture of lines needs: no point of the line within
    \a view is farther than half a pixel from what is drawn, and nothing is drawn farther than that
    from the line. Noise crosses itself all over, and the most of it is drawn already.

    Points in pixels; those returned are round to a tenth, in stretches to be drawn one by one. */
QVector<QPolygonF> thinnedLine(const QPolygonF &line, const QRectF &view);

} // namespace Panel
