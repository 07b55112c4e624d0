// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "linegeneralisationtree_p.h"

#include "boundingvolumehierarchy_p.h"
#include "segment_p.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace SmithRender
{

namespace
{

/// Runs up to this length have no nodes, which would be most of the memory.
constexpr int shortRun = VectorKernels::longestShort;

/// The plain routine rounds pixel coordinates: up to this many times the tolerance, that moves no
/// distance near the tolerance by more than a small share of rounding.
constexpr double largestExtent = 1e10;
constexpr double rounding = 1e-4;
/// How far the scales of both axes may differ and still count as equal, relatively.
constexpr double squareness = 1e-11;

/// Limits are rounded to floating point of single precision, far less than that.
constexpr double limitRounding = 1e-6;
/// Limits are shares of the square of the trace's extent: far above and below all of them.
constexpr double largestLimit = 1e30;

float limitOf(double squaredDeviation)
{
    return static_cast<float>(std::min(squaredDeviation, largestLimit));
}

void append(const int *indices, int count, int last, QVector<int> &kept)
{
    const auto before = kept.size();
    kept.resize(before + count + 1);
    std::copy_n(indices, count, kept.data() + before);
    kept.last() = last;
}

} // namespace

LineGeneralisationTree::View::View(const Projection &shownAs, double tolerance, double limitScale)
    : projection(shownAs)
    , squaredTolerance(tolerance * tolerance)
{
    const double pixel = projection.pixel();
    surely = squaredTolerance * pixel * pixel * (1.0 + rounding);
    surelyNot = squaredTolerance * pixel * pixel * (1.0 - rounding);
    surelyLimit = limitOf(surely * limitScale * (1.0 + limitRounding));
    surelyNotLimit = limitOf(surelyNot * limitScale * (1.0 - limitRounding));
}

void LineGeneralisationTree::build(const double *x, const double *y, int count,
                                   BoundingVolumeHierarchy &volumes)
{
    m_x = x;
    m_y = y;
    m_count = count;
    m_volumes = &volumes;
    const double extent = volumes.largestCoordinate();
    m_limitScale = extent > 1e-150 && extent < 1e150 ? 1.0 / (extent * extent) : 1.0;
    findRuns();
}

/// Makes room for what will be known of a run.
int LineGeneralisationTree::entryFor(int first, int last)
{
    if (last - first > shortRun) {
        m_nodes.emplace_back();
        return static_cast<int>(m_nodes.size()) - 1;
    }
    if (last - first < 2)
        return -1;
    m_shortRuns.push_back(NotSeen);
    return static_cast<int>(m_shortRuns.size()) - 1;
}

void LineGeneralisationTree::findRuns()
{
    m_runs.clear();
    m_nodes.clear();
    m_shortRuns.clear();
    m_limits.clear();
    m_isDense = false;
    int first = -1;
    const auto endRun = [&](int end) {
        if (first < 0)
            return;
        m_runs.push_back({first, end - 1, entryFor(first, end - 1)});
        first = -1;
    };
    for (int leaf = 0; leaf < m_volumes->leafCount(); ++leaf) {
        const int leafFirst = leaf << BoundingVolumeHierarchy::leafShift;
        const int leafEnd = leaf + 1 < m_volumes->leafCount()
            ? leafFirst + (1 << BoundingVolumeHierarchy::leafShift)
            : m_count; // the last leaf has its last point for itself
        if (m_volumes->isFinite(leaf)) {
            if (first < 0)
                first = leafFirst;
            continue;
        }
        for (int i = leafFirst; i < leafEnd; ++i) {
            if (!isFinite(i))
                endRun(i);
            else if (first < 0)
                first = i;
        }
    }
    endRun(m_count);
}

bool LineGeneralisationTree::fits(const Projection &projection, double tolerance) const
{
    const double scale = projection.xScale();
    const double extent =
        m_volumes->largestCoordinate() + std::max(projection.largestX(), projection.largestY());
    return std::fabs(scale - projection.yScale()) <= squareness * scale
        && extent * scale <= largestExtent * tolerance
        // Squares of these neither overflow nor vanish.
        && scale > 1e-100 && scale < 1e100 && extent < 1e140 && tolerance < 1e100;
}

/// The farthest point of a part; if that surely does not split it, the index may be -1.
Farthest LineGeneralisationTree::splitOf(const Part &part, const View &view)
{
    const auto search = [&] {
        const Segment segment(m_x[part.first], m_y[part.first], m_x[part.last], m_y[part.last]);
        return m_volumes->farthest(part.first + 1, part.last, segment, view.surelyNot);
    };
    if (part.last - part.first <= shortRun)
        return search();
    Node &node = m_nodes[static_cast<size_t>(part.entry)];
    if (node.split < 0 && !(node.squaredDeviation < view.surelyNot)) {
        const Farthest farthest = search();
        node.squaredDeviation = farthest.squaredDistance;
        node.split = farthest.index;
    }
    return {node.squaredDeviation, node.split};
}

bool LineGeneralisationTree::isSplit(const Part &part, const Farthest &farthest,
                                     const View &view) const
{
    if (farthest.index < 0 || farthest.squaredDistance < view.surelyNot)
        return false;
    if (farthest.squaredDistance > view.surely)
        return true;
    // So near the tolerance, decide as the plain routine does.
    const auto x = [&](int i) { return view.projection.x(m_x[i]); };
    const auto y = [&](int i) { return view.projection.y(m_y[i]); };
    const int a = part.first;
    const int b = part.last;
    const int i = farthest.index;
    return squaredDistanceToSegment(x(i), y(i), x(a), y(a), x(b), y(b)) > view.squaredTolerance;
}

/// Keeps the points of a short run, its first one left out; false if that has to be decided point
/// by point.
bool LineGeneralisationTree::simplifyShort(const Part &part, const View &view, QVector<int> &kept)
{
    const auto entry = static_cast<size_t>(part.entry);
    if (part.entry >= 0) {
        int &where = m_shortRuns[entry];
        if (where == SeenOnce || (where == NotSeen && m_isDense))
            where = appendLimits(part);
        else if (where == NotSeen)
            where = SeenOnce;
        if (where >= 0 && keepByLimits(part, view, kept))
            return true;
    }
    const std::uint64_t points = vectorKernels().simplifyShort(
        m_x, m_y, part.first, part.last, m_count, view.surely, view.surelyNot);
    if (points == VectorKernels::undecided)
        return false;
    // Without jumps, which noise would have guessed wrong.
    int indices[VectorKernels::longestShort];
    int count = 0;
    for (int i = 1; i < part.last - part.first; ++i) {
        indices[count] = part.first + i;
        count += static_cast<int>(points >> i & 1);
    }
    append(indices, count, part.last, kept);
    m_isDense = 4 * count > 3 * (part.last - part.first);
    return true;
}

/// Finds the limits of a short run; returns where they begin.
int LineGeneralisationTree::appendLimits(const Part &part)
{
    double limits[VectorKernels::longestShort];
    vectorKernels().limitsOfShort(m_x, m_y, part.first, part.last, m_count, limits);
    const auto begin = static_cast<int>(m_limits.size());
    std::transform(limits, limits + (part.last - part.first - 1), std::back_inserter(m_limits),
                   [this](double limit) { return limitOf(limit * m_limitScale); });
    return begin;
}

bool LineGeneralisationTree::keepByLimits(const Part &part, const View &view, QVector<int> &kept)
{
    const float *const limits = m_limits.data() + m_shortRuns[static_cast<size_t>(part.entry)];
    int indices[VectorKernels::longestShort];
    int count = 0;
    bool isUndecided = false;
    for (int i = 0; i < part.last - part.first - 1; ++i) {
        const bool isKept = limits[i] > view.surelyLimit;
        isUndecided |= isKept != (limits[i] >= view.surelyNotLimit);
        indices[count] = part.first + 1 + i;
        count += static_cast<int>(isKept);
    }
    if (isUndecided)
        return false;
    append(indices, count, part.last, kept);
    m_isDense = 4 * count > 3 * (part.last - part.first);
    return true;
}

/// What is known of the two parts of a long run.
std::pair<int, int> LineGeneralisationTree::entriesOf(const Part &part, int split)
{
    const auto at = static_cast<size_t>(part.entry);
    if (m_nodes[at].left < 0 && m_nodes[at].right < 0) {
        const int left = entryFor(part.first, split);
        const int right = entryFor(split, part.last);
        m_nodes[at].left = left;
        m_nodes[at].right = right;
    }
    return {m_nodes[at].left, m_nodes[at].right};
}

void LineGeneralisationTree::simplify(const Run &run, const View &view, QVector<int> &kept)
{
    kept.append(run.first);
    if (run.first == run.last)
        return;
    m_parts.assign(1, {run.first, run.last, run.entry});
    while (!m_parts.empty()) {
        const Part part = m_parts.back();
        m_parts.pop_back();
        if (part.last - part.first < 2) {
            kept.append(part.last);
            continue;
        }
        const bool isShort = part.last - part.first <= shortRun;
        if (isShort && simplifyShort(part, view, kept))
            continue;
        const Farthest farthest = splitOf(part, view);
        if (!isSplit(part, farthest, view)) {
            kept.append(part.last);
            continue;
        }
        const int split = farthest.index;
        const auto [left, right] = isShort ? std::pair(-1, -1) : entriesOf(part, split);
        // The left part is next, so that points are kept in ascending order.
        m_parts.push_back({split, part.last, right});
        m_parts.push_back({part.first, split, left});
    }
}

void LineGeneralisationTree::simplify(const Projection &projection, double tolerance,
                                      QVector<int> &kept)
{
    const View view(projection, tolerance, m_limitScale);
    int next = 0;
    const auto keepGap = [&](int end) {
        for (; next < end; ++next)
            kept.append(next);
    };
    for (const Run &run : m_runs) {
        keepGap(run.first);
        simplify(run, view, kept);
        next = run.last + 1;
    }
    keepGap(m_count);
}

size_t LineGeneralisationTree::memoryUsed() const
{
    return m_runs.capacity() * sizeof(Run) + m_nodes.capacity() * sizeof(Node)
        + m_shortRuns.capacity() * sizeof(int) + m_limits.capacity() * sizeof(float)
        + m_parts.capacity() * sizeof(Part);
}

} // namespace SmithRender
