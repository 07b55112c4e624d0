// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <smithchart/tracetree.h>

#include "nearestscan_p.h"
#include "segment_p.h"
#include "traceblocks_p.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace SmithRender
{

namespace
{

/// Runs up to this length are split anew at every view: that is as fast as looking a split up, and
/// a tree of short runs would be most of the memory.
constexpr int shortRun = 32;

/// The plain routine rounds pixel coordinates: up to this many times the tolerance, that moves no
/// distance near the tolerance by more than a small share of rounding.
constexpr double largestExtent = 1e10;
constexpr double rounding = 1e-4;
/// How far the scales of both axes may differ and still count as equal, relatively.
constexpr double squareness = 1e-11;
} // namespace

class TraceTree::Private
{
public:
    void setSource(const QVector<double> &real, const QVector<double> &imag);
    DecimationResult decimate(const Viewport &viewport);
    int nearestIndex(const Viewport &viewport, const QPointF &pointer, double *squaredDistance);
    size_t memoryUsed() const;

private:
    /// Where a run splits, and the nodes of its two parts.
    struct Node {
        double squaredDistance = -1.0; ///< of the split from the line between the ends
        int split = -1; ///< -1: not searched yet
        int children = -1; ///< the first of one for each part that is long; -1: none yet
    };

    /// Finite points between gaps or ends.
    struct Run {
        int first;
        int last;
        int node;
    };

    /// A part of a run, still to be looked at.
    struct Part {
        int first;
        int last;
        int node; ///< -1: too short to have one
    };

    /// What a viewport asks of the tree.
    struct View {
        explicit View(const Viewport &viewport)
            : projection(viewport)
            , squaredTolerancePx(viewport.tolerancePx * viewport.tolerancePx)
        {
            const double pixel = viewport.xSpan() / viewport.deviceWidth();
            surely = squaredTolerancePx * pixel * pixel * (1.0 + rounding);
            surelyNot = squaredTolerancePx * pixel * pixel * (1.0 - rounding);
        }

        Projection projection;
        double squaredTolerancePx;
        double surely; ///< squared distances above it, in the plane, are above the tolerance
        double surelyNot;
    };

    bool isFinite(int i) const { return std::isfinite(m_x[i]) && std::isfinite(m_y[i]); }
    void build();
    void findRuns();
    bool fits(const Viewport &viewport) const;
    Farthest search(int first, int last);
    Farthest splitOf(const Part &part);
    bool isSplit(const Part &part, const Farthest &farthest, const View &view) const;
    void simplify(const Run &run, const View &view, QVector<int> &kept);

    // Shared with the caller; read only through the pointers, as QVector's own access would detach.
    QVector<double> m_real;
    QVector<double> m_imag;
    const double *m_x = nullptr;
    const double *m_y = nullptr;
    int m_count = 0;
    bool m_isBuilt = false;
    TraceBlocks m_blocks;
    std::vector<Run> m_runs;
    std::vector<Node> m_nodes;
    std::vector<Part> m_parts;
};

void TraceTree::Private::setSource(const QVector<double> &real, const QVector<double> &imag)
{
    if (real.isEmpty() || imag.isEmpty()) {
        *this = Private();
        return;
    }
    m_real = real;
    m_imag = imag;
    m_x = m_real.constData();
    m_y = m_imag.constData();
    m_count = static_cast<int>(std::min(real.size(), imag.size()));
    m_isBuilt = false; // what is built next reuses the memory
}

void TraceTree::Private::build()
{
    if (m_isBuilt)
        return;
    m_blocks.build(m_x, m_y, m_count);
    findRuns();
    m_isBuilt = true;
}

void TraceTree::Private::findRuns()
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
    for (int block = 0; block < m_blocks.blockCount(); ++block) {
        const int blockFirst = block << TraceBlocks::blockShift;
        const int blockEnd = block + 1 < m_blocks.blockCount()
            ? blockFirst + (1 << TraceBlocks::blockShift)
            : m_count; // the last block has its last point for itself
        if (m_blocks.isFinite(block)) {
            if (first < 0)
                first = blockFirst;
            continue;
        }
        for (int i = blockFirst; i < blockEnd; ++i) {
            if (!isFinite(i))
                endRun(i);
            else if (first < 0)
                first = i;
        }
    }
    endRun(m_count);
}

/// Whether the tree's splits are those of \a viewport, to within rounding.
bool TraceTree::Private::fits(const Viewport &viewport) const
{
    const double scale = viewport.deviceWidth() / viewport.xSpan();
    const double yScale = viewport.deviceHeight() / viewport.ySpan();
    const double extent = m_blocks.largestCoordinate()
        + std::max({std::fabs(viewport.xMin), std::fabs(viewport.xMax), std::fabs(viewport.yMin),
                    std::fabs(viewport.yMax)});
    return std::fabs(scale - yScale) <= squareness * scale
        && extent * scale <= largestExtent * viewport.tolerancePx
        // Squares of these neither overflow nor vanish.
        && scale > 1e-100 && scale < 1e100 && extent < 1e140 && viewport.tolerancePx < 1e100;
}

Farthest TraceTree::Private::search(int first, int last)
{
    return m_blocks.farthest(first + 1, last,
                             Segment(m_x[first], m_y[first], m_x[last], m_y[last]));
}

Farthest TraceTree::Private::splitOf(const Part &part)
{
    if (part.node < 0)
        return search(part.first, part.last);
    Node &node = m_nodes[static_cast<size_t>(part.node)];
    if (node.split < 0) {
        const Farthest farthest = search(part.first, part.last);
        node.squaredDistance = farthest.squaredDistance;
        node.split = farthest.index;
    }
    return {node.squaredDistance, node.split};
}

bool TraceTree::Private::isSplit(const Part &part, const Farthest &farthest, const View &view) const
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
    return squaredDistanceToSegment(x(i), y(i), x(a), y(a), x(b), y(b)) > view.squaredTolerancePx;
}

void TraceTree::Private::simplify(const Run &run, const View &view, QVector<int> &kept)
{
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

DecimationResult TraceTree::Private::decimate(const Viewport &viewport)
{
    if (showsAllPoints(m_count, viewport))
        return SmithRender::decimate(m_real, m_imag, viewport);
    build();
    if (!fits(viewport))
        return SmithRender::decimate(m_real, m_imag, viewport);

    const View view(viewport);
    DecimationResult result;
    QVector<int> &kept = result.keptIndices;
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
    result.decimated = kept.size() < m_count;
    return result;
}

int TraceTree::Private::nearestIndex(const Viewport &viewport, const QPointF &pointer,
                                     double *squaredDistance)
{
    NearestScan scan(m_x, m_y, viewport, pointer);
    if (m_count > 0 && viewport.isUsable()) {
        build();
        m_blocks.nearest(viewport, scan);
    }
    return scan.result(squaredDistance);
}

size_t TraceTree::Private::memoryUsed() const
{
    return sizeof *this + m_blocks.memoryUsed() + m_runs.capacity() * sizeof(Run)
        + m_nodes.capacity() * sizeof(Node) + m_parts.capacity() * sizeof(Part);
}

TraceTree::TraceTree()
    : d(std::make_shared<Private>())
{
}

void TraceTree::setSource(const QVector<double> &real, const QVector<double> &imag)
{
    if (d.use_count() > 1)
        d = std::make_shared<Private>();
    d->setSource(real, imag);
}

DecimationResult TraceTree::decimate(const Viewport &viewport) const
{
    return d->decimate(viewport);
}

int TraceTree::nearestIndex(const Viewport &viewport, const QPointF &pointer,
                            double *squaredDistance) const
{
    return d->nearestIndex(viewport, pointer, squaredDistance);
}

size_t TraceTree::memoryUsed() const
{
    return d->memoryUsed();
}

} // namespace SmithRender
