// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <plot/qcp.h>

namespace Panel
{

/// A box of this size in a corner of a room, in pixels.
QRect boxIn(const QRect &room, const QSize &size, Qt::Corner corner);

/*! The corner of a room in which a box of this size hides the least of the visible lines, all in
    pixels of the plot. The present corner stays while no other one is much freer, so that a box does
    not hop about. */
Qt::Corner freestCorner(const QRect &room, const QSize &size, const QVector<QCPGraph *> &lines,
                        Qt::Corner present);

} // namespace Panel
