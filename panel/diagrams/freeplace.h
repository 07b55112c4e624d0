// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <plot/qcp.h>

namespace Panel
{

/// Where a box lies in a room: 0, 1 and 2 are the left, the middle and the right, the top, the middle
/// and the bottom.
struct BoxPlace {
    int column = 2;
    int row = 0;
};

/// A box of this size at a place of a room, in pixels.
QRect boxIn(const QRect &room, const QSize &size, const BoxPlace &place);

/// Whether a box keeps to the corners of a room, or takes any place.
enum class BoxPlaces {
    Corners,
    All,
};

/*! The place of a room in which a box of this size hides the least of the visible lines, all in
    pixels of the plot; of equal ones a corner. The present place stays while no other one is much
    freer, so that a box does not hop about. */
BoxPlace freestPlace(const QRect &room, const QSize &size, const QVector<QCPGraph *> &lines,
                     const BoxPlace &present, BoxPlaces among);

} // namespace Panel
