// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "boundingvolumehierarchy_p.h"

#include "nearestscan_p.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace SmithRender
{

namespace
{

constexpr double infinity = std::numeric_limits<double>::infinity();
/// k-DOPs are made larger by this share of the largest coordinate: far more than all rounding in
/// distances to them, far less than matters.
constexpr double margin = 1e-13;
/// Runs of up to this many chords are searched by chords alone.
constexpr int fewChords = 32;
/// Chords whose points deviate by less than this share of the leaf's extent say where its points
/// lie.
constexpr double smallDeviation = 0.015;
/// Squares of distances below this vanish, and a deviation may seem smaller than it is by as much.
constexpr double smallestBounded = 1e-150;
/// Squares of coordinates beyond this overflow, and bounds made of them would rule out anything.
constexpr double largestBounded = 1e150;

Kdop emptyKdop()
{
    Kdop kdop;
    kdop.support.fill(-infinity);
    return kdop;
}

void unite(Kdop &kdop, const Kdop &other)
{
    for (size_t j = 0; j < kdop.support.size(); ++j)
        kdop.support[j] = std::max(kdop.support[j], other.support[j]);
}

/// Stretches that repeat are found where they hold one of the points that are this far apart, and
/// have a period up to this length.
constexpr int sampleDistance = 2048;
constexpr int longestPeriod = 64;

double extentOf(const Kdop &kdop)
{
    return std::max(kdop.support[0] + kdop.support[8], kdop.support[4] + kdop.support[12]);
}

} // namespace

void BoundingVolumeHierarchy::build(const double *x, const double *y, int count)
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
    m_deviation.resize(static_cast<size_t>(chords));
    m_isAscending.resize(static_cast<size_t>(chords));

    const int leaves = partsOf(leafShift);
    m_finite.assign(static_cast<size_t>(leaves), true);
    m_levels.resize(1);
    m_levels[0].resize(static_cast<size_t>(leaves));
    for (int leaf = 0; leaf < leaves; ++leaf)
        buildLeaf(leaf);

    m_room = margin * m_largest;
    for (double &deviation : m_deviation)
        deviation += m_room;
    for (Kdop &kdop : m_levels[0]) {
        for (double &support : kdop.support)
            support += m_room;
    }
    buildLevels();
    findRepeats();
}

void BoundingVolumeHierarchy::findRepeats()
{
    m_repeats.clear();
    int begin = 0;
    for (int sample = 0; sample + sampleDistance < m_count; sample += sampleDistance) {
        if (sample < begin)
            continue;
        const Repeat repeat = repeatAt(sample, begin);
        if (repeat.end - repeat.begin < sampleDistance / 2)
            continue;
        m_repeats.push_back(repeat);
        begin = repeat.end;
    }
}

/// The stretch around a point that repeats, from \a begin at the earliest; an empty one if there is
/// none.
BoundingVolumeHierarchy::Repeat BoundingVolumeHierarchy::repeatAt(int sample, int begin) const
{
    for (int period = 1; period <= longestPeriod; ++period) {
        const auto comesAgain = [&](int i) {
            return m_x[i] == m_x[i + period] && m_y[i] == m_y[i + period];
        };
        int end = sample;
        while (end + period < m_count && comesAgain(end))
            ++end;
        if (end - sample < sampleDistance / 4)
            continue;
        int first = sample;
        while (first > begin && comesAgain(first - 1))
            --first;
        return {first, end + period, period};
    }
    return {sample, sample, 0};
}

void BoundingVolumeHierarchy::buildLeaf(int leaf)
{
    const VectorKernels &kernels = vectorKernels();
    const int first = leaf << leafShift;
    const int last = std::min(first + (1 << leafShift), m_count - 1);
    const int firstChord = first >> chordShift;
    const int chords = std::max((last - first + (1 << chordShift) - 1) >> chordShift, 1);
    double largestDeviation = 0.0;
    for (int chord = firstChord; chord < firstChord + chords; ++chord) {
        const auto at = static_cast<size_t>(chord);
        const int i = chord << chordShift;
        const int end = std::min(i + (1 << chordShift), last);
        const ChordBounds bounds = kernels.boundsOfChord(m_x, m_y, i, end);
        const double deviation = std::sqrt(bounds.squaredDeviation) + smallestBounded;
        m_chordX[at] = m_x[i];
        m_chordY[at] = m_y[i];
        m_chordX[at + 1] = m_x[end];
        m_chordY[at + 1] = m_y[end];
        m_deviation[at] = deviation;
        m_isAscending[at] = bounds.isAscending;
        largestDeviation = std::max(largestDeviation, deviation);
    }

    Kdop &kdop = m_levels[0][static_cast<size_t>(leaf)];
    const bool finite = largestDeviation < infinity;
    m_finite[static_cast<size_t>(leaf)] = finite;
    if (finite) {
        // Around the chords, and wider by the deviation: soon done, and good enough where the
        // chords say most about the trace.
        kernels.enclose(m_chordX.data(), m_chordY.data(), firstChord, firstChord + chords + 1,
                        kdop);
        if (largestDeviation > smallDeviation * extentOf(kdop)) {
            kernels.enclose(m_x, m_y, first, last + 1, kdop);
        } else {
            for (double &support : kdop.support)
                support += largestDeviation;
        }
    } else {
        kdop = emptyKdop();
        for (int i = first; i <= last; ++i) {
            Kdop point;
            if (!std::isfinite(m_x[i]) || !std::isfinite(m_y[i]))
                continue;
            kernels.enclose(m_x, m_y, i, i + 1, point);
            unite(kdop, point);
        }
    }
    for (const size_t axis : {0u, 4u, 8u, 12u})
        m_largest = std::max(m_largest, kdop.support[axis]);
}

void BoundingVolumeHierarchy::buildLevels()
{
    constexpr size_t fanOut = 1u << fanOutShift;
    while (m_levels.back().size() > fanOut) {
        const std::vector<Kdop> &lower = m_levels.back();
        std::vector<Kdop> level((lower.size() + fanOut - 1) / fanOut, emptyKdop());
        for (size_t node = 0; node < lower.size(); ++node)
            unite(level[node / fanOut], lower[node]);
        m_levels.push_back(std::move(level));
    }
}

size_t BoundingVolumeHierarchy::memoryUsed() const
{
    size_t bytes =
        (m_chordX.capacity() + m_chordY.capacity() + m_deviation.capacity()) * sizeof(double)
        + (m_isAscending.capacity() + m_finite.capacity()) / 8
        + m_repeats.capacity() * sizeof(Repeat) + m_stack.capacity() * sizeof(Candidate);
    for (const std::vector<Kdop> &level : m_levels)
        bytes += sizeof(std::vector<Kdop>) + level.capacity() * sizeof(Kdop);
    return bytes;
}

/// Puts the nodes \a firstNode to \a lastNode that \a promise does not rule out on the stack,
/// the most promising on top.
template<typename Promise>
void BoundingVolumeHierarchy::push(int level, int firstNode, int lastNode, const Promise &promise)
{
    const size_t base = m_stack.size();
    for (int node = firstNode; node <= lastNode; ++node) {
        Candidate candidate{0.0, 0.0, level, node};
        if (!promise(m_levels[static_cast<size_t>(level)][static_cast<size_t>(node)], candidate))
            continue;
        size_t at = m_stack.size();
        m_stack.push_back(candidate);
        for (; at > base && m_stack[at - 1].promise >= candidate.promise; --at)
            m_stack[at] = m_stack[at - 1];
        m_stack[at] = candidate;
    }
}

Farthest BoundingVolumeHierarchy::farthest(int first, int end, const Segment &segment,
                                           double enough)
{
    Search found{{enough, -1}, -1.0};
    for (const Repeat &repeat : m_repeats) {
        if (repeat.end <= first)
            continue;
        if (repeat.begin >= end)
            break;
        // Of points that are equal the first is the one to find: those of the first period.
        const int from = std::max(first, repeat.begin);
        search(first, from, segment, found);
        found.scan(*this, from, std::min({from + repeat.period, repeat.end, end}), segment);
        first = std::min(repeat.end, end);
    }
    search(first, end, segment, found);
    return found.best.index >= 0 ? found.best : Farthest{found.squaredBound, -1};
}

/// Offers the farthest of the points \a first to \a end - 1, of which there may be none.
void BoundingVolumeHierarchy::search(int first, int end, const Segment &segment, Search &search)
{
    if (first >= end)
        return;
    const VectorKernels &kernels = vectorKernels();
    if (end - first <= 2 << chordShift) {
        search.scan(*this, first, end, segment);
        return;
    }
    if (end - first <= fewChords << chordShift) {
        farthestByChords(first, end, segment, search);
        return;
    }

    // Behind the best so far, a node must promise more than the k-DOPs' room: where values repeat,
    // most nodes hold a point as far as the best, and the first of them is the one to find.
    double tie = -1.0;
    const Farthest &best = search.best;
    const auto canWin = [&](const Candidate &candidate) {
        const bool isBehind =
            best.index >= 0 && (candidate.node << shiftOf(candidate.level)) > best.index;
        if (candidate.bound > (isBehind ? tie : best.squaredDistance))
            return true;
        search.squaredBound = std::max(search.squaredBound, candidate.bound);
        return false;
    };
    const auto pushOverlapping = [&](int level, int from, int to) {
        const int shift = shiftOf(level);
        push(level, std::max(from, first >> shift), std::min(to, (end - 1) >> shift),
             [&](const Kdop &kdop, Candidate &candidate) {
                 candidate.bound = kernels.farthestOf(kdop, segment);
                 candidate.promise = candidate.bound;
                 return canWin(candidate);
             });
    };
    int level = 0;
    while (level + 1 < static_cast<int>(m_levels.size())
           && (end - first) >> shiftOf(level + 1) >= 2)
        ++level;
    m_stack.clear();
    pushOverlapping(level, 0, nodesAt(level) - 1);
    while (!m_stack.empty()) {
        const Candidate top = m_stack.back();
        m_stack.pop_back();
        if (!canWin(top))
            continue;
        if (top.level == 0) {
            const int from = top.node << leafShift;
            farthestByChords(std::max(first, from), std::min(end, from + (1 << leafShift)), segment,
                             search);
            const double distance = std::sqrt(best.squaredDistance) + 2.0 * m_room;
            tie = distance * distance;
        } else {
            const int child = top.node << fanOutShift;
            pushOverlapping(top.level - 1, child, child + (1 << fanOutShift) - 1);
        }
    }
}

void BoundingVolumeHierarchy::farthestByChords(int first, int end, const Segment &segment,
                                               Search &search) const
{
    const int firstChord = first >> chordShift;
    const int chords = ((end - 1) >> chordShift) - firstChord + 1;
    std::array<double, fewChords + 2 + VectorKernels::widest> distances;
    const auto at = static_cast<size_t>(firstChord);
    vectorKernels().squaredDistances(&m_chordX[at], &m_chordY[at], chords + 1, segment,
                                     distances.data());
    for (int k = 1; k < chords; ++k)
        search.best.offer(distances[static_cast<size_t>(k)], (firstChord + k) << chordShift);
    // Of the outer chords only a part may be asked for.
    shorten(firstChord, first, 1, segment, distances[0]);
    shorten(firstChord + chords - 1, end - 1, -1, segment, distances[static_cast<size_t>(chords)]);

    double farthest = std::sqrt(std::max(search.best.squaredDistance, 0.0));
    double farthestEnd = 0.0; // of those left out
    double largestDeviation = 0.0;
    for (int k = 0; k < chords; ++k) {
        const double deviation = m_deviation[at + static_cast<size_t>(k)];
        const double toEnds =
            std::max(distances[static_cast<size_t>(k)], distances[static_cast<size_t>(k) + 1]);
        const double needed = farthest - deviation;
        if (needed > 0.0 && toEnds <= needed * needed) {
            farthestEnd = std::max(farthestEnd, toEnds);
            largestDeviation = std::max(largestDeviation, deviation);
            continue;
        }
        const int from = (firstChord + k) << chordShift;
        search.scan(*this, std::max(first, from), std::min(end, from + (1 << chordShift)), segment);
        farthest = std::sqrt(std::max(search.best.squaredDistance, 0.0));
    }
    search.raiseBound(std::min(std::sqrt(farthestEnd) + largestDeviation, farthest));
}

/// Puts the end of a part of a chord in place of the chord's own: of the part that begins
/// (\a direction 1) or ends (-1) at a point. \a squaredDistance is that of the end to \a segment.
void BoundingVolumeHierarchy::shorten(int chord, int point, int direction, const Segment &segment,
                                      double &squaredDistance) const
{
    const auto at = static_cast<size_t>(chord);
    const int first = chord << chordShift;
    const int last = std::min(first + (1 << chordShift), m_count - 1);
    if (!m_isAscending[at] || point <= first || point + 1 >= last)
        return;
    const double fromX = m_chordX[at];
    const double fromY = m_chordY[at];
    const ChordAxis axis(Segment(fromX, fromY, m_chordX[at + 1], m_chordY[at + 1]));
    double outermost = axis.along(m_x[point] - fromX, m_y[point] - fromY) * direction;
    for (int i = 1; i < VectorKernels::widest; ++i) {
        const int next = std::clamp(point + i * direction, first, last);
        outermost =
            std::min(outermost, axis.along(m_x[next] - fromX, m_y[next] - fromY) * direction);
    }
    outermost *= direction;
    squaredDistance =
        squaredDistanceToSegment(fromX + axis.x * outermost, fromY + axis.y * outermost, segment.ax,
                                 segment.ay, segment.ax + segment.dx, segment.ay + segment.dy);
}

void BoundingVolumeHierarchy::nearest(NearestScan &scan)
{
    // Distances in pixels are at least those in the plane times the coarser scale.
    const Projection &projection = scan.projection();
    const double scale = std::min(projection.xScale(), projection.yScale());
    const double x = projection.xMin() + scan.x() / projection.xScale();
    const double y = projection.yMax() - scan.y() / projection.yScale();
    const double largestX = projection.largestX();
    const double largestY = projection.largestY();
    if (!(std::max({largestX, largestY, std::fabs(x), std::fabs(y), m_largest}) < largestBounded)) {
        scan.visit(0, m_count);
        return;
    }
    const double slack = margin * (largestX + largestY + std::fabs(x) + std::fabs(y));

    const auto promise = [&](const Kdop &kdop, Candidate &candidate) {
        const double toKdop = distanceAtLeast(kdop, x, y) - slack;
        const double distance = std::max(toKdop, 0.0) * scale;
        candidate.bound = distance * distance;
        // Points of a winding trace lie along the edges rather than in its middle.
        candidate.promise = -std::fabs(toKdop);
        return !(candidate.bound > scan.best());
    };
    m_stack.clear();
    const int top = static_cast<int>(m_levels.size()) - 1;
    push(top, 0, nodesAt(top) - 1, promise);
    while (!m_stack.empty()) {
        const Candidate candidate = m_stack.back();
        m_stack.pop_back();
        if (candidate.bound > scan.best())
            continue;
        if (candidate.level == 0) {
            nearestByChords(candidate.node, x, y, scale, slack, scan);
        } else {
            const int lower = candidate.level - 1;
            const int first = candidate.node << fanOutShift;
            push(lower, first, std::min(first + (1 << fanOutShift), nodesAt(lower)) - 1, promise);
        }
    }
}

void BoundingVolumeHierarchy::nearestByChords(int leaf, double x, double y, double scale,
                                              double slack, NearestScan &scan) const
{
    constexpr int step = 1 << chordShift;
    if (leaf == 0)
        scan.visit(0, 1);
    const int first = leaf << leafShift;
    const int last = std::min(first + (1 << leafShift), m_count - 1);
    for (int i = first; i < last; i += step) {
        const auto chord = static_cast<size_t>(i >> chordShift);
        const double toChord = std::sqrt(squaredDistanceToSegment(
            x, y, m_chordX[chord], m_chordY[chord], m_chordX[chord + 1], m_chordY[chord + 1]));
        const double distance = std::max(toChord - m_deviation[chord] - slack, 0.0) * scale;
        if (distance * distance > scan.best())
            continue;
        scan.visit(i + 1, std::min(i + step, last) + 1);
    }
}

} // namespace SmithRender
