// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "strokemask_p.h"

#include "strokewalk_p.h"
#include "vectorkernels_p.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

namespace SmithRender
{

namespace
{

/// Cut ends may miss the edge by so much.
constexpr double rounding = 1e-6;

/// A cell is full where no more shows through than this.
constexpr std::uint8_t fullEnough = 7;

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

void StrokeMask::setPen(double opacity, int strokes, double width)
{
    m_batch.width = static_cast<float>(width);
    // Along a diagonal a line is higher than it is wide.
    m_pieceLength = tile - (width > 1.0 ? static_cast<int>(std::ceil(width * 1.5)) : 1);
    for (size_t i = 0; i < m_passing.size(); ++i) {
        const double passes = 1.0 - opacity * static_cast<double>(i) / 255.0;
        m_passing[i] = static_cast<std::uint16_t>(std::lround(256.0 * std::pow(passes, strokes)));
        m_clearAt[i] = static_cast<std::uint8_t>(std::lround(255.0 * std::pow(passes, strokes)));
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

/// Makes wide segments longer where their blunt ends would leave a notch: at the ends of a line, where
/// it turns back and where it goes on along the other axis.
void StrokeMask::joinSegments()
{
    StrokeBatch &b = m_batch;
    const auto halfWidth = static_cast<int>(b.width * half);
    const auto isSteep = [&b](std::size_t i) {
        return std::abs(b.toX[i] - b.fromX[i]) < std::abs(b.toY[i] - b.fromY[i]);
    };
    for (int k = 0; k < b.count; ++k) {
        const auto i = static_cast<std::size_t>(k);
        b.startCap[i] = b.startCap[i] != 0 ? halfWidth : 0;
        b.endCap[i] = b.endCap[i] != 0 ? halfWidth : 0;
        if (i == 0 || b.fromX[i] != b.toX[i - 1] || b.fromY[i] != b.toY[i - 1])
            continue;
        const auto along = [](int from1, int to1, int from2, int to2) {
            return double(to1 - from1) * double(to2 - from2);
        };
        const bool turnsBack = along(b.fromX[i - 1], b.toX[i - 1], b.fromX[i], b.toX[i])
                + along(b.fromY[i - 1], b.toY[i - 1], b.fromY[i], b.toY[i])
            < 0.0;
        if (turnsBack || isSteep(i - 1) != isSteep(i))
            b.endCap[i - 1] = b.startCap[i] = halfWidth;
    }
}

/// As VectorKernels::prepareStrokes for lines wider than a pixel.
void StrokeMask::prepareWideStrokes()
{
    joinSegments();
    StrokeBatch &b = m_batch;
    constexpr float one = 1 << StrokeBatch::fractionBits;
    for (int k = 0; k < b.count; ++k) {
        const auto i = static_cast<std::size_t>(k);
        int u1 = b.fromX[i], v1 = b.fromY[i], u2 = b.toX[i], v2 = b.toY[i];
        int startCap = b.startCap[i], endCap = b.endCap[i];
        const bool isSteep = std::abs(u2 - u1) < std::abs(v2 - v1);
        if (isSteep) {
            std::swap(u1, v1);
            std::swap(u2, v2);
        }
        if (u2 < u1) {
            std::swap(u1, u2);
            std::swap(v1, v2);
            std::swap(startCap, endCap);
        }
        const float slope =
            u1 == u2 ? 0.0F : static_cast<float>(v2 - v1) / static_cast<float>(u2 - u1);
        // The columns whose middles the segment comes to.
        const auto firstFrom = [](int u) { return (u + half - 1) >> stepShift; };
        const int first = firstFrom(u1 - startCap);
        const int last = firstFrom(u2 + endCap) - 1;
        const int covered = static_cast<int>(one * b.width * std::sqrt(1.0F + slope * slope));
        const int toMiddle = first * stepsPerPixel + half - u1;
        const int v = v1 * (1 << StrokeBatch::fractionBits >> stepShift)
            + static_cast<int>(slope * static_cast<float>(toMiddle) * (one / stepsPerPixel))
            - covered / 2;
        const int step = static_cast<int>(slope * one);
        const int vAtLast = v + step * (last - first);
        const int low = std::min(v, vAtLast) >> StrokeBatch::fractionBits;
        const int high = (std::max(v, vAtLast) + covered) >> StrokeBatch::fractionBits;
        b.isSteep[i] = isSteep ? -1 : 0;
        b.first[i] = first;
        b.last[i] = last;
        b.inFirst[i] = b.inLast[i] = stepsPerPixel;
        b.across[i] = v;
        b.perColumn[i] = step;
        b.covered[i] = covered;
        b.left[i] = isSteep ? low : first;
        b.right[i] = isSteep ? high : last;
        b.top[i] = isSteep ? first : low;
        b.bottom[i] = isSteep ? last : high;
    }
}

void StrokeMask::drawBatch()
{
    if (m_batch.width > 1.0F) {
        prepareWideStrokes();
        drawBatchBy<WideWalk>();
    } else {
        vectorKernels().prepareStrokes(m_batch);
        drawBatchBy<Walk>();
    }
    m_batch.count = 0;
}

template<typename W>
void StrokeMask::drawBatchBy()
{
    const StrokeBatch &b = m_batch;
    std::uint8_t *const clear = m_clear.data();
    for (int k = 0; k < b.count; ++k) {
        const auto i = static_cast<std::size_t>(k);
        if (b.last[i] < b.first[i] || isFull(b.left[i], b.top[i], b.right[i], b.bottom[i]))
            continue;
        W walk(*this, b, i, clear);
        if (b.last[i] - b.first[i] >= m_pieceLength) {
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
}

/// Draws a segment that may come to many tiles.
template<typename W>
void StrokeMask::drawInPieces(std::size_t segment, W walk)
{
    const bool isSteep = m_batch.isSteep[segment];
    const int first = m_batch.first[segment];
    const int last = m_batch.last[segment];
    // Whether anything changes up to that column.
    const auto comesTo = [&](int to) {
        const int from = walk.column();
        const int low = std::min(walk.pixelIn(from), walk.pixelIn(to));
        const int high = std::max(walk.lastPixelIn(from), walk.lastPixelIn(to));
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
        const int end = std::min(last, walk.column() + m_pieceLength);
        if (comesTo(end - 1))
            walk.drawFarTo(end);
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
    // Where a stroke from or to infinity crosses an edge is unknown.
    if (!std::isfinite(s.to.x - s.from.x) || !std::isfinite(s.to.y - s.from.y))
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
    // Also where the other end is so far away that the sum has no digits left, or is none.
    const auto onto = [](double at, double low, double high) {
        return !(at - low >= rounding) ? low : !(high - at >= rounding) ? high : at;
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
