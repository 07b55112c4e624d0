// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "strokebatch_p.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

namespace SmithRender
{

/*! How much of the background still shows through lines of one colour, pixel by pixel: the stroke
    of every segment multiplies it by what that stroke lets through. The outcome is that of blending
    all of them onto a picture one after the other, which then has to be done only once.

    Lines are antialiased by what they cover of each column (of flat lines; row, of steep ones).
    Of those wider than a pixel, strokes do not add up where a line crosses itself. Coordinates are pixels from the top-left corner. */
class StrokeMask
{
public:
    /// The largest width and height.
    static constexpr int largest = 4096;

    struct Bounds {
        double left = 0.0;
        double top = 0.0;
        double right = 0.0;
        double bottom = 0.0;
    };

    /// One that is kept from picture to picture. (Elsewhere, loops would look for it at every turn.)
    static StrokeMask &ofThisThread();

    /// Makes the mask as large as that; it must be empty. Lines are cut at \a bounds, up to a few
    /// pixels outside, and capped there. Segments beyond one side of \a seen are left out.
    void reset(int width, int height, const Bounds &bounds, const Bounds &seen);
    /// The largest width of a line.
    static constexpr double widest = 8.0;

    /// How opaque lines are, 0 to 1, with how many strokes each is drawn, and how wide it is: 1 to
    /// widest.
    void setPen(double opacity, int strokes, double width = 1.0);

    struct Point {
        double x;
        double y;
    };

    /// Strokes a line through finite points, \a pointAt(0) to \a pointAt(count - 1), with a cap of
    /// half a pixel at both ends unless it is closed; all of it moved by \a shift both ways. What
    /// lies outside costs little.
    template<typename PointAt>
    void addLine(const PointAt &pointAt, int count, double shift = 0.0);

    /// Side of the squares that are known to be touched or not.
    static constexpr int tileShift = 5;
    static constexpr int tile = 1 << tileShift;

    /*! Calls \a visit(x, y, width, height, first, stride) for rectangles of whole tiles that cover
        all that has been drawn: \c first points to the top-left byte of one, and rows are \c stride
        bytes apart. Empties the mask. */
    template<typename Visit>
    void take(const Visit &visit);

private:
    /// Side of the squares that are known to be full or not: no stroke changes full ones any more.
    static constexpr int cellShift = 2;
    static constexpr int cell = 1 << cellShift;
    /// Lines may end so far outside, so that their inner loop need not look at the edges.
    static constexpr int border = 1 << tileShift;

    static constexpr int stepsPerPixel = StrokeBatch::stepsPerPixel;
    static constexpr int stepShift = StrokeBatch::stepShift;
    static constexpr int half = stepsPerPixel / 2;

    class Walk;
    class WideWalk;

    struct Segment {
        Point from;
        Point to;
        int startCap;
        int endCap;
    };

    static constexpr std::uint8_t checkInterval = 32;
    struct Tile {
        std::uint8_t isTouched = 0;
        std::uint8_t strokesToCheck = checkInterval; ///< until its cells may have become full
    };

    static bool isWithin(const Bounds &bounds, const Point &p)
    {
        return p.x >= bounds.left && p.x <= bounds.right && p.y >= bounds.top
            && p.y <= bounds.bottom;
    }
    static int toSteps(double at)
    {
        return static_cast<int>(at * stepsPerPixel) + border * stepsPerPixel;
    }
    /// A bit for each side of what is seen that a point is beyond; 0: it is seen. NaN is beyond both
    /// sides of an axis.
    unsigned sidesOf(const Point &p) const
    {
        return unsigned(!(p.x >= m_seen.left)) | unsigned(!(p.x <= m_seen.right)) << 1
            | unsigned(!(p.y >= m_seen.top)) << 2 | unsigned(!(p.y <= m_seen.bottom)) << 3;
    }
    static bool isNowhere(unsigned sides) { return (sides & (sides >> 1) & 5U) != 0; }
    bool cut(Segment &segment) const;
    void add(int fromX, int fromY, int toX, int toY, int startCap, int endCap)
    {
        m_batch.add(fromX, fromY, toX, toY, startCap, endCap);
        if (m_batch.count == StrokeBatch::capacity)
            drawBatch();
    }
    void drawBatch();
    void joinSegments();
    void prepareWideStrokes();
    template<typename W>
    void drawBatchBy();
    template<typename W>
    void drawInPieces(std::size_t segment, W walk);
    void touch(int left, int top, int right, int bottom);
    void findFullCells(int tileIndex);
    bool isFull(int left, int top, int right, int bottom) const;

    StrokeBatch m_batch;
    int m_pieceLength = tile - 1; ///< so that a piece comes to two tiles each way at most
    Bounds m_bounds;
    Bounds m_seen;
    int m_width = 0;
    int m_height = 0;
    int m_stride = 0; ///< bytes of a row, and a whole number of tiles
    int m_tilesAcross = 0;
    int m_tilesDown = 0;
    std::vector<std::uint8_t> m_clear; ///< 255: all of the background shows
    std::vector<Tile> m_tiles;
    std::vector<std::uint8_t> m_fullCells; ///< a bit each
    int m_cellStride = 0; ///< bytes of a row of them; it ends in padding
    bool m_hasFullCells = false;
    std::array<std::uint16_t, 256> m_passing{}; ///< of 256, by coverage
    std::array<std::uint8_t, 256> m_clearAt{}; ///< what a wide line leaves clear, by coverage
    /// For both pixels of a column, by the coverage of the second one.
    std::array<std::uint32_t, 256> m_passingBoth{};
};

template<typename PointAt>
void StrokeMask::addLine(const PointAt &pointAt, int count, double shift)
{
    if (count < 2)
        return;
    const int last = count - 1;
    Point from = pointAt(0);
    const Point finish = pointAt(last);
    bool isClosed = from.x == finish.x && from.y == finish.y;
    for (int i = 0; i < count && isClosed; ++i)
        isClosed = isWithin(m_seen, pointAt(i));
    const int cap = isClosed ? 0 : half;

    int startCap = cap;
    unsigned fromSides = sidesOf(from);
    int fromX = fromSides == 0 ? toSteps(from.x + shift) : 0;
    int fromY = fromSides == 0 ? toSteps(from.y + shift) : 0;
    for (int i = 1; i <= last; ++i) {
        const Point to = pointAt(i);
        const unsigned toSides = sidesOf(to);
        const bool isToSeen = toSides == 0;
        const int toX = isToSeen ? toSteps(to.x + shift) : 0;
        const int toY = isToSeen ? toSteps(to.y + shift) : 0;
        const int endCap = i == last ? cap : 0;
        if ((fromSides | toSides) == 0) {
            add(fromX, fromY, toX, toY, startCap, endCap);
            startCap = 0;
        } else if ((fromSides & toSides) != 0 || isNowhere(fromSides) || isNowhere(toSides)) {
            // Where a part is left out, those next to it end as lines do.
            startCap = isWithin(m_bounds, to) ? half : 0;
        } else {
            Segment segment{from, to, startCap, endCap};
            const bool isSomethingSeen = cut(segment);
            const bool mayCap = !isToSeen && isWithin(m_bounds, to);
            startCap = mayCap && !isSomethingSeen ? half : 0;
            if (mayCap && i < last) {
                Segment next{to, pointAt(i + 1), 0, 0};
                if (!cut(next))
                    segment.endCap = half;
            }
            if (isSomethingSeen) {
                add(toSteps(segment.from.x + shift), toSteps(segment.from.y + shift),
                    toSteps(segment.to.x + shift), toSteps(segment.to.y + shift), segment.startCap,
                    segment.endCap);
            }
        }
        from = to;
        fromX = toX;
        fromY = toY;
        fromSides = toSides;
    }
    drawBatch();
}

template<typename Visit>
void StrokeMask::take(const Visit &visit)
{
    if (m_hasFullCells)
        std::fill(m_fullCells.begin(), m_fullCells.end(), std::uint8_t(0));
    m_hasFullCells = false;
    for (int row = 0; row < m_tilesDown; ++row) {
        Tile *const tiles = m_tiles.data() + std::ptrdiff_t(row) * m_tilesAcross;
        for (int column = 0; column < m_tilesAcross; ++column) {
            if (!tiles[column].isTouched)
                continue;
            const int first = column;
            for (; column < m_tilesAcross && tiles[column].isTouched; ++column)
                tiles[column] = Tile();
            const int width = (column - first) * tile;
            std::uint8_t *const corner = m_clear.data() + std::ptrdiff_t(row) * tile * m_stride
                + std::ptrdiff_t(first) * tile;
            visit(first * tile - border, row * tile - border, width, tile, corner, m_stride);
            for (int y = 0; y < tile; ++y)
                std::fill_n(corner + std::ptrdiff_t(y) * m_stride, width, std::uint8_t(255));
        }
    }
}

} // namespace SmithRender
