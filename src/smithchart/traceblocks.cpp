// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "traceblocks_p.h"

#include "nearestscan_p.h"

#include <smithchart/viewport.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace SmithRender
{

namespace
{

constexpr double infinity = std::numeric_limits<double>::infinity();
/// Polygons are made larger by this share of the largest coordinate: far more than all rounding in
/// distances to them, far less than matters.
constexpr double margin = 1e-13;
/// Runs of up to this many chords are searched by chords alone.
constexpr int fewChords = 16;
/// Chords whose points stray less than this share of the block's extent say where the block lies.
constexpr double smallSag = 0.125;
/// Squares of distances below this vanish, and a sag may seem smaller than it is by as much.
constexpr double smallestBounded = 1e-150;
/// Squares of coordinates beyond this overflow, and bounds made of them would rule out anything.
constexpr double largestBounded = 1e150;

Polygon emptyPolygon()
{
    Polygon polygon;
    polygon.reach.fill(-infinity);
    return polygon;
}

void unite(Polygon &polygon, const Polygon &other)
{
    for (size_t j = 0; j < polygon.reach.size(); ++j)
        polygon.reach[j] = std::max(polygon.reach[j], other.reach[j]);
}

double extentOf(const Polygon &polygon)
{
    return std::max(polygon.reach[0] + polygon.reach[8], polygon.reach[4] + polygon.reach[12]);
}

} // namespace

void TraceBlocks::build(const double *x, const double *y, int count)
{
    m_x = x;
    m_y = y;
    m_count = count;
    m_largest = 0.0;

    const auto partsOf = [count](int shift) { return std::max((count - 2) >> shift, 0) + 1; };
    const int chords = partsOf(chordShift);
    const auto padded = static_cast<size_t>(chords + 1 + VectorKernels::widest);
    m_chordX.resize(padded);
    m_chordY.resize(padded);
    std::fill_n(m_chordX.begin() + chords + 1, VectorKernels::widest, 0.0);
    std::fill_n(m_chordY.begin() + chords + 1, VectorKernels::widest, 0.0);
    m_sag.resize(static_cast<size_t>(chords));

    const int blocks = partsOf(blockShift);
    m_finite.assign(static_cast<size_t>(blocks), true);
    m_levels.resize(1);
    m_levels[0].resize(static_cast<size_t>(blocks));
    for (int block = 0; block < blocks; ++block)
        buildBlock(block);

    m_room = margin * m_largest;
    for (double &sag : m_sag)
        sag += m_room;
    for (Polygon &polygon : m_levels[0]) {
        for (double &reach : polygon.reach)
            reach += m_room;
    }
    buildLevels();
}

void TraceBlocks::buildBlock(int block)
{
    const VectorKernels &kernels = vectorKernels();
    const int first = block << blockShift;
    const int last = std::min(first + (1 << blockShift), m_count - 1);
    const int firstChord = first >> chordShift;
    const int chords = std::max((last - first + (1 << chordShift) - 1) >> chordShift, 1);
    double largestSag = 0.0;
    for (int chord = firstChord; chord < firstChord + chords; ++chord) {
        const auto at = static_cast<size_t>(chord);
        const int i = chord << chordShift;
        const int end = std::min(i + (1 << chordShift), last);
        const Segment segment(m_x[i], m_y[i], m_x[end], m_y[end]);
        const double sag =
            std::sqrt(kernels.strayFrom(m_x, m_y, i, end + 1, segment)) + smallestBounded;
        m_chordX[at] = m_x[i];
        m_chordY[at] = m_y[i];
        m_chordX[at + 1] = m_x[end];
        m_chordY[at + 1] = m_y[end];
        m_sag[at] = sag;
        largestSag = std::max(largestSag, sag);
    }

    Polygon &polygon = m_levels[0][static_cast<size_t>(block)];
    const bool finite = largestSag < infinity;
    m_finite[static_cast<size_t>(block)] = finite;
    if (finite) {
        // Around the chords, and wider by the sag: soon done, and good enough where the chords say
        // most about the trace.
        kernels.enclose(m_chordX.data(), m_chordY.data(), firstChord, firstChord + chords + 1,
                        polygon);
        if (largestSag > smallSag * extentOf(polygon)) {
            kernels.enclose(m_x, m_y, first, last + 1, polygon);
        } else {
            for (double &reach : polygon.reach)
                reach += largestSag;
        }
    } else {
        polygon = emptyPolygon();
        for (int i = first; i <= last; ++i) {
            Polygon point;
            if (!std::isfinite(m_x[i]) || !std::isfinite(m_y[i]))
                continue;
            kernels.enclose(m_x, m_y, i, i + 1, point);
            unite(polygon, point);
        }
    }
    for (const size_t axis : {0u, 4u, 8u, 12u})
        m_largest = std::max(m_largest, polygon.reach[axis]);
}

void TraceBlocks::buildLevels()
{
    constexpr size_t fanOut = 1u << fanOutShift;
    while (m_levels.back().size() > fanOut) {
        const std::vector<Polygon> &lower = m_levels.back();
        std::vector<Polygon> level((lower.size() + fanOut - 1) / fanOut, emptyPolygon());
        for (size_t block = 0; block < lower.size(); ++block)
            unite(level[block / fanOut], lower[block]);
        m_levels.push_back(std::move(level));
    }
}

size_t TraceBlocks::memoryUsed() const
{
    size_t bytes = (m_chordX.capacity() + m_chordY.capacity() + m_sag.capacity()) * sizeof(double)
        + m_finite.capacity() / 8 + m_stack.capacity() * sizeof(Candidate);
    for (const std::vector<Polygon> &level : m_levels)
        bytes += sizeof(std::vector<Polygon>) + level.capacity() * sizeof(Polygon);
    return bytes;
}

/// Puts the blocks \a firstBlock to \a lastBlock that \a promise does not rule out on the stack,
/// the most promising on top.
template<typename Promise>
void TraceBlocks::push(int level, int firstBlock, int lastBlock, const Promise &promise)
{
    const size_t base = m_stack.size();
    for (int block = firstBlock; block <= lastBlock; ++block) {
        Candidate candidate{0.0, 0.0, level, block};
        if (!promise(m_levels[static_cast<size_t>(level)][static_cast<size_t>(block)], candidate))
            continue;
        size_t at = m_stack.size();
        m_stack.push_back(candidate);
        for (; at > base && m_stack[at - 1].promise >= candidate.promise; --at)
            m_stack[at] = m_stack[at - 1];
        m_stack[at] = candidate;
    }
}

Farthest TraceBlocks::farthest(int first, int end, const Segment &segment)
{
    const VectorKernels &kernels = vectorKernels();
    Farthest best;
    if (end - first <= 2 << chordShift) {
        kernels.farthest(m_x, m_y, first, end, m_count, segment, best);
        return best;
    }
    if (end - first <= fewChords << chordShift) {
        farthestByChords(first, end, segment, best);
        return best;
    }

    // Behind the best so far, a block must promise more than the polygons' room: where values
    // repeat, most blocks hold a point as far as the best, and the first of them is the one to
    // find.
    double tie = -1.0;
    const auto canWin = [&](const Candidate &candidate) {
        const bool isBehind = (candidate.block << shiftOf(candidate.level)) > best.index;
        return candidate.bound > (isBehind ? tie : best.squaredDistance);
    };
    const auto pushOverlapping = [&](int level, int from, int to) {
        const int shift = shiftOf(level);
        push(level, std::max(from, first >> shift), std::min(to, (end - 1) >> shift),
             [&](const Polygon &polygon, Candidate &candidate) {
                 candidate.bound = kernels.farthestOf(polygon, segment);
                 candidate.promise = candidate.bound;
                 return canWin(candidate);
             });
    };
    int level = 0;
    while (level + 1 < static_cast<int>(m_levels.size())
           && (end - first) >> shiftOf(level + 1) >= 2)
        ++level;
    m_stack.clear();
    pushOverlapping(level, 0, blocksAt(level) - 1);
    while (!m_stack.empty()) {
        const Candidate top = m_stack.back();
        m_stack.pop_back();
        if (!canWin(top))
            continue;
        if (top.level == 0) {
            const int from = top.block << blockShift;
            farthestByChords(std::max(first, from), std::min(end, from + (1 << blockShift)),
                             segment, best);
            const double distance = std::sqrt(best.squaredDistance) + 2.0 * m_room;
            tie = distance * distance;
        } else {
            const int child = top.block << fanOutShift;
            pushOverlapping(top.level - 1, child, child + (1 << fanOutShift) - 1);
        }
    }
    return best;
}

void TraceBlocks::farthestByChords(int first, int end, const Segment &segment, Farthest &best) const
{
    const VectorKernels &kernels = vectorKernels();
    const int firstChord = first >> chordShift;
    const int chords = ((end - 1) >> chordShift) - firstChord + 1;
    std::array<double, fewChords + 2 + VectorKernels::widest> distances;
    const auto at = static_cast<size_t>(firstChord);
    kernels.squaredDistances(&m_chordX[at], &m_chordY[at], chords + 1, segment, distances.data());
    for (int k = 1; k < chords; ++k)
        best.offer(distances[static_cast<size_t>(k)], (firstChord + k) << chordShift);

    double farthest = std::sqrt(std::max(best.squaredDistance, 0.0));
    for (int k = 0; k < chords; ++k) {
        const auto ends = distances.begin() + k;
        const double needed = farthest - m_sag[at + static_cast<size_t>(k)];
        if (needed > 0.0 && std::max(ends[0], ends[1]) <= needed * needed)
            continue;
        const int from = (firstChord + k) << chordShift;
        kernels.farthest(m_x, m_y, std::max(first, from), std::min(end, from + (1 << chordShift)),
                         m_count, segment, best);
        farthest = std::sqrt(std::max(best.squaredDistance, 0.0));
    }
}

void TraceBlocks::nearest(const Viewport &viewport, NearestScan &scan)
{
    // Distances in pixels are at least those in the plane times the coarser scale.
    const double xScale = viewport.deviceWidth() / viewport.xSpan();
    const double yScale = viewport.deviceHeight() / viewport.ySpan();
    const double scale = std::min(xScale, yScale);
    const double x = viewport.xMin + scan.x() / xScale;
    const double y = viewport.yMax - scan.y() / yScale;
    const double reach =
        std::max({std::fabs(viewport.xMin), std::fabs(viewport.xMax), std::fabs(viewport.yMin),
                  std::fabs(viewport.yMax), std::fabs(x), std::fabs(y), m_largest});
    if (!(reach < largestBounded)) {
        scan.visit(0, m_count);
        return;
    }
    const double slack = margin
        * (std::max(std::fabs(viewport.xMin), std::fabs(viewport.xMax))
           + std::max(std::fabs(viewport.yMin), std::fabs(viewport.yMax)) + std::fabs(x)
           + std::fabs(y));

    const auto promise = [&](const Polygon &polygon, Candidate &candidate) {
        const double toPolygon = distanceAtLeast(polygon, x, y) - slack;
        const double distance = std::max(toPolygon, 0.0) * scale;
        candidate.bound = distance * distance;
        // Points of a winding trace lie along the polygon rather than in its middle.
        candidate.promise = -std::fabs(toPolygon);
        return !(candidate.bound > scan.best());
    };
    m_stack.clear();
    const int top = static_cast<int>(m_levels.size()) - 1;
    push(top, 0, blocksAt(top) - 1, promise);
    while (!m_stack.empty()) {
        const Candidate candidate = m_stack.back();
        m_stack.pop_back();
        if (candidate.bound > scan.best())
            continue;
        if (candidate.level == 0) {
            nearestByChords(candidate.block, x, y, scale, slack, scan);
        } else {
            const int lower = candidate.level - 1;
            const int first = candidate.block << fanOutShift;
            push(lower, first, std::min(first + (1 << fanOutShift), blocksAt(lower)) - 1, promise);
        }
    }
}

void TraceBlocks::nearestByChords(int block, double x, double y, double scale, double slack,
                                  NearestScan &scan) const
{
    constexpr int step = 1 << chordShift;
    if (block == 0)
        scan.visit(0, 1);
    const int first = block << blockShift;
    const int last = std::min(first + (1 << blockShift), m_count - 1);
    for (int i = first; i < last; i += step) {
        const auto chord = static_cast<size_t>(i >> chordShift);
        const double toChord = std::sqrt(squaredDistanceToSegment(
            x, y, m_chordX[chord], m_chordY[chord], m_chordX[chord + 1], m_chordY[chord + 1]));
        const double distance = std::max(toChord - m_sag[chord] - slack, 0.0) * scale;
        if (distance * distance > scan.best())
            continue;
        scan.visit(i + 1, std::min(i + step, last) + 1);
    }
}

} // namespace SmithRender
