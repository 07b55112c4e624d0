// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "linegeneralisationtree_p.h"

#include "boundingvolumehierarchy_p.h"
#include "segment_p.h"

#include <algorithm>
#include <cmath>

namespace SmithRender
{

namespace
{

/// Runs up to this length are split anew at every view: that is as fast as looking a split up, and
/// a tree of short runs would be most of the memory.
constexpr int shortRun = VectorKernels::longestShort;

/// The plain routine rounds pixel coordinates: up to this many times the tolerance, that moves no
/// distance near the tolerance by more than a small share of rounding.
constexpr double largestExtent = 1e10;
constexpr double rounding = 1e-4;
/// How far the scales of both axes may differ and still count as equal, relatively.
constexpr double squareness = 1e-11;

} // namespace

LineGeneralisationTree::View::View(const Projection &shownAs, double tolerance)
    : projection(shownAs)
    , squaredTolerance(tolerance * tolerance)
{
    const double pixel = projection.pixel();
    surely = squaredTolerance * pixel * pixel * (1.0 + rounding);
    surelyNot = squaredTolerance * pixel * pixel * (1.0 - rounding);
}

void LineGeneralisationTree::build(const double *x, const double *y, int count,
                                   BoundingVolumeHierarchy &volumes)
{
    m_x = x;
    m_y = y;
    m_count = count;
    m_volumes = &volumes;
    findRuns();
}

void LineGeneralisationTree::findRuns()
{
    m_runs.clear();
    m_nodes.clear();
    int first = -1;
    const auto endRun = [&](int end) {
        if (first < 0)
            return;
        Run run{first, end - 1, -1};
        if (run.last - run.first > shortRun) {
            run.node = static_cast<int>(m_nodes.size());
            m_nodes.emplace_back();
        }
        m_runs.push_back(run);
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

Farthest LineGeneralisationTree::search(int first, int last)
{
    return m_volumes->farthest(first + 1, last,
                               Segment(m_x[first], m_y[first], m_x[last], m_y[last]));
}

Farthest LineGeneralisationTree::splitOf(const Part &part)
{
    if (part.node < 0)
        return search(part.first, part.last);
    Node &node = m_nodes[static_cast<size_t>(part.node)];
    if (node.split < 0) {
        const Farthest farthest = search(part.first, part.last);
        node.squaredDeviation = farthest.squaredDistance;
        node.split = farthest.index;
    }
    return {node.squaredDeviation, node.split};
}

bool LineGeneralisationTree::isSplit(const Part &part, const Farthest &farthest,
                                     const View &view) const
{
    if (farthest.squaredDistance > view.surely)
        return true;
    if (farthest.squaredDistance < view.surelyNot)
        return false;
    // So near the tolerance, decide as the plain routine does.
    const auto x = [&](int i) { return view.projection.x(m_x[i]); };
    const auto y = [&](int i) { return view.projection.y(m_y[i]); };
    const int a = part.first;
    const int b = part.last;
    const int i = farthest.index;
    return squaredDistanceToSegment(x(i), y(i), x(a), y(a), x(b), y(b)) > view.squaredTolerance;
}

void LineGeneralisationTree::simplify(const Run &run, const View &view, QVector<int> &kept)
{
    const VectorKernels &kernels = vectorKernels();
    kept.append(run.first);
    if (run.first == run.last)
        return;
    m_parts.assign(1, {run.first, run.last, run.node});
    while (!m_parts.empty()) {
        const Part part = m_parts.back();
        m_parts.pop_back();
        if (part.last - part.first < 2) {
            kept.append(part.last);
            continue;
        }
        if (part.last - part.first <= shortRun) {
            const std::uint64_t points = kernels.simplifyShort(
                m_x, m_y, part.first, part.last, m_count, view.surely, view.surelyNot);
            if (points != VectorKernels::undecided) {
                // No jumps here either.
                int indices[VectorKernels::longestShort];
                int count = 0;
                for (int i = 1; i < part.last - part.first; ++i) {
                    indices[count] = part.first + i;
                    count += static_cast<int>(points >> i & 1);
                }
                const auto before = kept.size();
                kept.resize(before + count);
                std::copy_n(indices, count, kept.data() + before);
                kept.append(part.last);
                continue;
            }
        }
        const Farthest farthest = splitOf(part);
        if (!isSplit(part, farthest, view)) {
            kept.append(part.last);
            continue;
        }
        const int split = farthest.index;
        const bool isLeftLong = split - part.first > shortRun;
        const bool isRightLong = part.last - split > shortRun;
        int child = -1;
        if (isLeftLong || isRightLong) {
            child = m_nodes[static_cast<size_t>(part.node)].children;
            if (child < 0) {
                child = static_cast<int>(m_nodes.size());
                m_nodes.resize(m_nodes.size() + (isLeftLong && isRightLong ? 2 : 1));
                m_nodes[static_cast<size_t>(part.node)].children = child;
            }
        }
        const int left = isLeftLong ? child++ : -1;
        const int right = isRightLong ? child : -1;
        // The left part is next, so that points are kept in ascending order.
        m_parts.push_back({split, part.last, right});
        m_parts.push_back({part.first, split, left});
    }
}

void LineGeneralisationTree::simplify(const Projection &projection, double tolerance,
                                      QVector<int> &kept)
{
    const View view(projection, tolerance);
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
        + m_parts.capacity() * sizeof(Part);
}

} // namespace SmithRender
