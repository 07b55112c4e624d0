// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "strokemask_p.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace SmithRender
{

namespace
{

/// Cut ends may miss the edge by so much.
constexpr double rounding = 1e-6;

/// Positions across a line are kept in 65536ths of a pixel.
constexpr int fractionBits = 16;
constexpr double one = 1 << fractionBits;

/// A cell is full where no more shows through than this.
constexpr std::uint8_t fullEnough = 4;

/// The first value where the mask's bits are set, the second where they are not.
inline int chosen(int mask, int first, int second)
{
    return second ^ ((first ^ second) & mask);
}

inline void multiply(std::uint8_t &clear, unsigned passing)
{
    clear = static_cast<std::uint8_t>((clear * passing + 128) >> 8);
}

} // namespace

StrokeMask &StrokeMask::ofThisThread()
{
    static thread_local StrokeMask mask;
    return mask;
}

void StrokeMask::reset(int width, int height, const Bounds &bounds, const Bounds &seen)
{
    m_bounds = bounds;
    m_seen = seen;
    if (width == m_width && height == m_height)
        return; // take() has left it empty
    m_width = width;
    m_height = height;
    m_tilesAcross = (width + 2 * border + tile - 1) >> tileShift;
    m_tilesDown = (height + 2 * border + tile - 1) >> tileShift;
    m_stride = m_tilesAcross * tile;
    m_clear.assign(static_cast<size_t>(m_stride) * static_cast<size_t>(m_tilesDown * tile), 255);
    m_cellStride = ((m_stride >> cellShift) >> 3) + 8;
    m_fullCells.assign(
        static_cast<size_t>(m_cellStride) * static_cast<size_t>(m_tilesDown * tile / cell), 0);
    m_tiles.assign(static_cast<size_t>(m_tilesAcross) * static_cast<size_t>(m_tilesDown), Tile());
}

void StrokeMask::setPen(double opacity, int strokes)
{
    for (size_t i = 0; i < m_passing.size(); ++i) {
        const double passes = 1.0 - opacity * static_cast<double>(i) / 255.0;
        m_passing[i] = static_cast<std::uint16_t>(std::lround(256.0 * std::pow(passes, strokes)));
    }
    for (size_t i = 0; i < m_passing.size(); ++i)
        m_passingBoth[i] = m_passing[255 - i] | std::uint32_t(m_passing[i]) << 16;
}

/// Notes that a stroke comes to a tile and its neighbours, which may be itself again.
inline void StrokeMask::touch(Tile *corner, std::ptrdiff_t along, std::ptrdiff_t across)
{
    for (Tile *const t : {corner, corner + along, corner + across, corner + along + across})
        t->isTouched = 1;
    if (--corner->strokesToCheck == 0)
        findFullCells(static_cast<int>(corner - m_tiles.data()));
}

/// Strokes a segment between steps of the mask, border included.
void StrokeMask::stroke(int fromX, int fromY, int toX, int toY, int capAtFrom, int capAtTo)
{
    // u is the axis on which the segment is longer; from u1 to u2, which is larger. All of this is
    // chosen without jumps, as noise goes all ways and would have most of them guessed wrong.
    const int steep = -int(std::abs(toX - fromX) < std::abs(toY - fromY)); // a mask
    const int fromU = chosen(steep, fromY, fromX);
    const int fromV = chosen(steep, fromX, fromY);
    const int toU = chosen(steep, toY, toX);
    const int toV = chosen(steep, toX, toY);
    const int backward = -int(toU < fromU);
    int u1 = chosen(backward, toU, fromU);
    int u2 = chosen(backward, fromU, toU);
    const int v1 = chosen(backward, toV, fromV);
    const int v2 = chosen(backward, fromV, toV);
    const int startCap = chosen(backward, capAtTo, capAtFrom);
    const int endCap = chosen(backward, capAtFrom, capAtTo);
    if (u1 == u2)
        return;

    const double slope = static_cast<double>(v2 - v1) / (u2 - u1);
    const int vStep = static_cast<int>(slope * one);
    // The pixels that share the line at the middle of a column: v's whole part and the next one. A
    // cap moves the line along itself, as painters do, rather than making it longer at this end.
    const int toMiddle = half - (u1 & (stepsPerPixel - 1)) - startCap;
    int v = (v1 - half) * (static_cast<int>(one) / stepsPerPixel)
        + static_cast<int>(slope * toMiddle * (one / stepsPerPixel));
    u1 -= startCap;
    u2 += endCap;
    const int first = u1 / stepsPerPixel;
    const int last = u2 / stepsPerPixel;
    const std::ptrdiff_t along = chosen(steep, m_stride, 1);
    const std::ptrdiff_t across = chosen(steep, 1, m_stride);
    const std::ptrdiff_t tileAlong = chosen(steep, m_tilesAcross, 1);
    const std::ptrdiff_t tileAcross = chosen(steep, 1, m_tilesAcross);

    // Copies, because a byte that is written might be any member.
    std::uint8_t *const clear = m_clear.data();
    Tile *const tiles = m_tiles.data();
    const std::uint16_t *const passing = m_passing.data();
    const std::uint32_t *const passingBoth = m_passingBoth.data();

    const auto vAt = [&](int column) { return v + vStep * (column - first); };
    // For two columns so near to each other that the line comes to two tiles each way at most.
    const auto touchBetween = [&](int from, int to) {
        const int vFrom = vAt(from);
        const int vTo = vAt(to);
        const int falls = -int(vTo < vFrom);
        const int low = chosen(falls, vTo, vFrom) >> (fractionBits + tileShift);
        const int high = ((chosen(falls, vFrom, vTo) >> fractionBits) + 1) >> tileShift;
        touch(tiles + (from >> tileShift) * tileAlong + low * tileAcross,
              ((to >> tileShift) - (from >> tileShift)) * tileAlong, (high - low) * tileAcross);
    };
    const auto drawPart = [&](int column, unsigned length) {
        const int at = vAt(column);
        const unsigned share = (static_cast<unsigned>(at) >> (fractionBits - 8)) & 255;
        std::uint8_t *const near = clear + column * along + (at >> fractionBits) * across;
        multiply(near[0], passing[(255 - share) * length / stepsPerPixel]);
        multiply(near[across], passing[share * length / stepsPerPixel]);
    };
    const auto drawWhole = [&](int from, int end) {
        int at = vAt(from);
        std::uint8_t *pixel = clear + from * along;
        for (; from < end; ++from, pixel += along, at += vStep) {
            const unsigned share = (static_cast<unsigned>(at) >> (fractionBits - 8)) & 255;
            std::uint8_t *const near = pixel + (at >> fractionBits) * across;
            const std::uint32_t both = passingBoth[share];
            multiply(near[0], both & 0xffff);
            multiply(near[across], both >> 16);
        }
    };
    // How much of the line lies in the first column and in the last one, if that is another.
    const int isOne = -int(last - first < 1);
    const auto inFirst = static_cast<unsigned>(chosen(isOne, u2, (first + 1) * stepsPerPixel) - u1);
    const auto inLast = static_cast<unsigned>(u2 & (stepsPerPixel - 1) & ~isOne);
    if (last - first < pieceLength) {
        touchBetween(first, last);
        drawPart(first, inFirst);
        drawWhole(first + 1, last);
        drawPart(last, inLast);
        return;
    }
    touchBetween(first, first);
    drawPart(first, inFirst);
    for (int from = first + 1; from < last; from += pieceLength) {
        const int end = std::min(last, from + pieceLength);
        if (m_hasFullCells) {
            const int low = std::min(vAt(from), vAt(end - 1)) >> fractionBits;
            const int high = (std::max(vAt(from), vAt(end - 1)) >> fractionBits) + 1;
            if (steep ? isFull(low, from, high, end - 1) : isFull(from, low, end - 1, high))
                continue;
        }
        touchBetween(from, end - 1);
        drawWhole(from, end);
    }
    touchBetween(last, last);
    drawPart(last, inLast);
}

/// Cuts a segment at the bounds, and caps it there; false if nothing is seen of the rest.
bool StrokeMask::cut(Segment &s) const
{
    const auto isBeyondOneSide = [&] {
        return (s.from.x < m_seen.left && s.to.x < m_seen.left)
            || (s.from.x > m_seen.right && s.to.x > m_seen.right)
            || (s.from.y < m_seen.top && s.to.y < m_seen.top)
            || (s.from.y > m_seen.bottom && s.to.y > m_seen.bottom);
    };
    if (isBeyondOneSide())
        return false;
    double first = 0.0;
    double last = 1.0;
    const auto limit = [&](double from, double to, double low, double high) {
        if (from == to)
            return;
        const double atLow = (low - from) / (to - from);
        const double atHigh = (high - from) / (to - from);
        first = std::max(first, std::min(atLow, atHigh));
        last = std::min(last, std::max(atLow, atHigh));
    };
    limit(s.from.x, s.to.x, m_bounds.left, m_bounds.right);
    limit(s.from.y, s.to.y, m_bounds.top, m_bounds.bottom);
    if (!(first < last))
        return false;
    const Segment whole = s;
    const auto onto = [](double at, double low, double high) {
        return at - low < rounding ? low : high - at < rounding ? high : at;
    };
    const auto place = [&](double share, Point &p, int &cap) {
        p.x =
            onto(whole.from.x + (whole.to.x - whole.from.x) * share, m_bounds.left, m_bounds.right);
        p.y =
            onto(whole.from.y + (whole.to.y - whole.from.y) * share, m_bounds.top, m_bounds.bottom);
        cap = isWithin(m_seen, p) ? cap : half;
    };
    if (first > 0.0)
        place(first, s.from, s.startCap);
    if (last < 1.0)
        place(last, s.to, s.endCap);
    return !isBeyondOneSide();
}

void StrokeMask::findFullCells(int tileIndex)
{
    m_tiles[static_cast<size_t>(tileIndex)].strokesToCheck = checkInterval;
    constexpr int cells = tile / cell;
    const int top = tileIndex / m_tilesAcross * cells;
    const int left = tileIndex % m_tilesAcross * cells;
    for (int row = top; row < top + cells; ++row) {
        for (int column = left; column < left + cells; ++column) {
            const std::uint8_t *line = m_clear.data() + std::ptrdiff_t(row) * cell * m_stride
                + std::ptrdiff_t(column) * cell;
            std::uint8_t clearest = 0;
            for (int y = 0; y < cell; ++y, line += m_stride)
                clearest = std::max(clearest, *std::max_element(line, line + cell));
            if (clearest <= fullEnough) {
                m_fullCells[static_cast<size_t>(row * m_cellStride + column / 8)] |=
                    static_cast<std::uint8_t>(1 << column % 8);
                m_hasFullCells = true;
            }
        }
    }
}

} // namespace SmithRender
