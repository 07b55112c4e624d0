// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "strokemask_p.h"

#include "vectorkernels_p.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace SmithRender
{

namespace
{

/// Cut ends may miss the edge by so much.
constexpr double rounding = 1e-6;

/// A cell is full where no more shows through than this.
constexpr std::uint8_t fullEnough = 7;

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

/// Whether nothing changes within these pixels, which may be some hundreds across.
inline bool StrokeMask::isFull(int left, int top, int right, int bottom) const
{
    if (!m_hasFullCells)
        return false;
    const int first = left >> cellShift;
    const int count = (right >> cellShift) - first + 1;
    if (count > 56)
        return false;
    const std::uint64_t wanted = ((std::uint64_t(1) << count) - 1) << (first & 7);
    const std::uint8_t *bits =
        m_fullCells.data() + std::ptrdiff_t(top >> cellShift) * m_cellStride + (first >> 3);
    // Four rows at once, some of them twice, as most segments are short.
    const int more = (bottom >> cellShift) - (top >> cellShift);
    const auto rowAt = [bits, this](int row) {
        std::uint64_t full;
        std::memcpy(&full, bits + std::ptrdiff_t(row) * m_cellStride, sizeof full);
        return full;
    };
    std::uint64_t found = wanted & rowAt(0) & rowAt(more) & rowAt(more / 2) & rowAt((more + 1) / 2);
    for (int row = 1; row < more && more > 3 && found == wanted; ++row)
        found &= rowAt(row);
    return found == wanted;
}

/// Notes that a stroke comes to these pixels, which lie in two tiles each way at most.
inline void StrokeMask::touch(int left, int top, int right, int bottom)
{
    Tile *const upper = m_tiles.data() + std::ptrdiff_t(top >> tileShift) * m_tilesAcross;
    Tile *const lower = m_tiles.data() + std::ptrdiff_t(bottom >> tileShift) * m_tilesAcross;
    Tile &corner = upper[left >> tileShift];
    for (Tile *const t : {&corner, upper + (right >> tileShift), lower + (left >> tileShift),
                          lower + (right >> tileShift)})
        t->isTouched = 1;
    if (--corner.strokesToCheck == 0)
        findFullCells(static_cast<int>(&corner - m_tiles.data()));
}

/// Goes along a segment of a batch, column by column.
class StrokeMask::Walk
{
public:
    // Copies of what the mask has, because a byte that is written might be any member.
    Walk(const StrokeMask &mask, const StrokeBatch &batch, std::size_t i, std::uint8_t *clear)
        : m_passing(mask.m_passing.data())
        , m_passingBoth(mask.m_passingBoth.data())
        , m_along(batch.isSteep[i] ? mask.m_stride : 1)
        , m_across(batch.isSteep[i] ? 1 : mask.m_stride)
        , m_perColumn(batch.perColumn[i])
        , m_column(batch.first[i])
        , m_at(batch.across[i])
        , m_pixel(clear + m_column * m_along)
    {
    }

    int column() const { return m_column; }

    /// The first of the two pixels that share the line in another column.
    int pixelIn(int column) const
    {
        return (m_at + m_perColumn * (column - m_column)) >> StrokeBatch::fractionBits;
    }

    void skipTo(int column)
    {
        m_pixel += m_along * (column - m_column);
        m_at += m_perColumn * (column - m_column);
        m_column = column;
    }

    /// Draws so many steps of a column.
    void drawPart(int steps) const
    {
        const unsigned share = shareOfSecond();
        const auto length = static_cast<unsigned>(steps);
        std::uint8_t *const near = pixelOfLine();
        multiply(near[0], m_passing[(255 - share) * length / stepsPerPixel]);
        multiply(near[m_across], m_passing[share * length / stepsPerPixel]);
    }

    void drawTo(int end)
    {
        for (; m_column < end; ++m_column, m_pixel += m_along, m_at += m_perColumn) {
            std::uint8_t *const near = pixelOfLine();
            const std::uint32_t both = m_passingBoth[shareOfSecond()];
            multiply(near[0], both & 0xffff);
            multiply(near[m_across], both >> 16);
        }
    }

private:
    unsigned shareOfSecond() const
    {
        return (static_cast<unsigned>(m_at) >> (StrokeBatch::fractionBits - 8)) & 255;
    }
    std::uint8_t *pixelOfLine() const
    {
        return m_pixel + (m_at >> StrokeBatch::fractionBits) * m_across;
    }

    const std::uint16_t *m_passing;
    const std::uint32_t *m_passingBoth;
    std::ptrdiff_t m_along;
    std::ptrdiff_t m_across;
    int m_perColumn;
    int m_column;
    int m_at;
    std::uint8_t *m_pixel;
};

void StrokeMask::drawBatch()
{
    vectorKernels().prepareStrokes(m_batch);
    const StrokeBatch &b = m_batch;
    std::uint8_t *const clear = m_clear.data();
    for (int k = 0; k < b.count; ++k) {
        const auto i = static_cast<std::size_t>(k);
        if (b.last[i] < b.first[i] || isFull(b.left[i], b.top[i], b.right[i], b.bottom[i]))
            continue;
        Walk walk(*this, b, i, clear);
        if (b.last[i] - b.first[i] >= pieceLength) {
            drawInPieces(i, walk);
            continue;
        }
        touch(b.left[i], b.top[i], b.right[i], b.bottom[i]);
        walk.drawPart(b.inFirst[i]);
        walk.skipTo(b.first[i] + 1);
        walk.drawTo(b.last[i]);
        if (b.last[i] > b.first[i])
            walk.drawPart(b.inLast[i]);
    }
    m_batch.count = 0;
}

/// Draws a segment that may come to many tiles.
void StrokeMask::drawInPieces(std::size_t segment, Walk walk)
{
    const bool isSteep = m_batch.isSteep[segment];
    const int first = m_batch.first[segment];
    const int last = m_batch.last[segment];
    // Whether anything changes up to that column.
    const auto comesTo = [&](int to) {
        const int from = walk.column();
        const int low = std::min(walk.pixelIn(from), walk.pixelIn(to));
        const int high = std::max(walk.pixelIn(from), walk.pixelIn(to)) + 1;
        const int left = isSteep ? low : from;
        const int top = isSteep ? from : low;
        const int right = isSteep ? high : to;
        const int bottom = isSteep ? to : high;
        if (isFull(left, top, right, bottom))
            return false;
        touch(left, top, right, bottom);
        return true;
    };
    if (comesTo(first))
        walk.drawPart(m_batch.inFirst[segment]);
    walk.skipTo(first + 1);
    while (walk.column() < last) {
        const int end = std::min(last, walk.column() + pieceLength);
        if (comesTo(end - 1))
            walk.drawTo(end);
        else
            walk.skipTo(end);
    }
    if (comesTo(last))
        walk.drawPart(m_batch.inLast[segment]);
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
    constexpr std::uint32_t notFullBits = 0x01010101u * (0xffu - fullEnough);
    const int top = tileIndex / m_tilesAcross * cells;
    const int left = tileIndex % m_tilesAcross * cells;
    for (int row = top; row < top + cells; ++row) {
        const std::uint8_t *line =
            m_clear.data() + std::ptrdiff_t(row) * cell * m_stride + std::ptrdiff_t(left) * cell;
        std::uint32_t notFull[cells] = {};
        for (int y = 0; y < cell; ++y, line += m_stride) {
            for (int column = 0; column < cells; ++column) {
                std::uint32_t pixels;
                std::memcpy(&pixels, line + std::ptrdiff_t(column) * cell, sizeof pixels);
                notFull[column] |= pixels & notFullBits;
            }
        }
        unsigned full = 0;
        for (int column = 0; column < cells; ++column)
            full |= unsigned(notFull[column] == 0) << column;
        m_fullCells[static_cast<size_t>(row * m_cellStride + left / 8)] |=
            static_cast<std::uint8_t>(full << left % 8);
        m_hasFullCells |= full != 0;
    }
}

} // namespace SmithRender
