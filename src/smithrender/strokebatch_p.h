// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace SmithRender
{

/*! Segments of a line, and how each is to be drawn: the arithmetic is done for all of them side by
    side, which for the short ones of noise is most of the work.

    A segment is drawn along the axis on which it is longer, column by column (of steep ones: row by
    row). In each, the two pixels next to it share one that is a pixel wide; a wider one covers what
    it comes to along the middle. Its ends are given in steps of the mask. */
struct StrokeBatch {
    static constexpr int capacity = 256;

    /// Ends of segments lie on steps this fine, as painters place them: whether a segment is steep
    /// shows.
    static constexpr int stepShift = 6;
    static constexpr int stepsPerPixel = 1 << stepShift;
    /// Positions across a line are kept in 65536ths of a pixel.
    static constexpr int fractionBits = 16;

    using Ints = std::array<std::int32_t, capacity>;

    void add(int x1, int y1, int x2, int y2, int capAtStart, int capAtEnd)
    {
        const auto at = static_cast<std::size_t>(count++);
        fromX[at] = x1;
        fromY[at] = y1;
        toX[at] = x2;
        toY[at] = y2;
        startCap[at] = capAtStart;
        endCap[at] = capAtEnd;
    }

    float width = 1.0F; ///< of the line, in pixels, at least 1
    int count = 0;
    Ints fromX{}, fromY{}, toX{}, toY{};
    Ints startCap{}, endCap{}; ///< by how many steps a segment is made longer

    Ints isSteep;
    Ints first, last; ///< columns; of a segment without length, the last one is before the first
    Ints inFirst, inLast; ///< how many steps of it lie in each; if they are one, inLast is 0
    Ints across; ///< where it is in the middle of the first one
    Ints perColumn; ///< by how much that grows
    Ints covered; ///< how much it covers of each, from \c across on
    Ints left, top, right, bottom; ///< the pixels that it changes
};

} // namespace SmithRender
