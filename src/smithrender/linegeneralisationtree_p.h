// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "projection_p.h"
#include "vectorkernels_p.h"

#include <QVector>

#include <cmath>
#include <cstddef>
#include <limits>
#include <utility>
#include <vector>

namespace SmithRender
{

class BoundingVolumeHierarchy;

/*! The binary line generalisation tree (BLG-tree: van Oosterom and van den Bos 1989) of each part
    of a line between gaps. Ramer-Douglas-Peucker always splits a line at the point of the largest
    deviation; the tolerance only says when to stop. Where pixels are square, a change of view
    scales all distances alike, so the splits are the same at every view: a node holds a split and
    its deviation. Nodes are made when a view first asks for them. Of a short run, each point's limit
    is held instead: the tolerance up to which it is kept. As many traces are seen only once, that is
    done when a second view asks, or where most points are kept anyway, as of noise.

    What is kept is what DouglasPeucker keeps. Only where two points deviate equally to within the
    rounding of pixel coordinates may the other one be kept. */
class LineGeneralisationTree
{
public:
    /// Takes up a line of \a count points, whose \a volumes have been built; all must outlive
    /// their use here. Memory of the line before is reused.
    void build(const double *x, const double *y, int count, BoundingVolumeHierarchy &volumes);

    /// Whether the tree's splits are those of a view, to within rounding.
    [[nodiscard]] bool fits(const Projection &projection, double tolerance) const;
    /// Appends the points that stand for the line in a view that the tree fits: no other is farther
    /// than \a tolerance, in device pixels, from the line drawn. Points that are not finite are
    /// kept and make gaps.
    void simplify(const Projection &projection, double tolerance, QVector<int> &kept);

    size_t memoryUsed() const;

private:
    /// Where a run splits, and what is known of its two parts: the index of a node if a part is
    /// long, of the limits if it is short; -1: nothing yet, or too short for either.
    struct Node {
        double squaredDeviation =
            std::numeric_limits<double>::infinity(); ///< at the most, as long as no split is known
        int split = -1; ///< -1: no view has asked for it yet
        int left = -1;
        int right = -1;
    };

    /// Where the limits of a short run begin.
    enum : int {
        NotSeen = -2,
        SeenOnce = -1,
    };

    /// Finite points between gaps or ends.
    struct Run {
        int first;
        int last;
        int entry;
    };

    /// A part of a run, still to be looked at.
    struct Part {
        int first;
        int last;
        int entry; ///< of what is known of it; -1: nothing
    };

    /// What a view asks of the tree.
    struct View {
        View(const Projection &shownAs, double tolerance, double limitScale);

        Projection projection;
        double squaredTolerance; ///< in device pixels
        double surely; ///< squared deviations above it, in the plane, are above the tolerance
        double surelyNot;
        float surelyLimit; ///< the same for limits
        float surelyNotLimit;
    };

    bool isFinite(int i) const { return std::isfinite(m_x[i]) && std::isfinite(m_y[i]); }
    void findRuns();
    int entryFor(int first, int last);
    std::pair<int, int> entriesOf(const Part &part, int split);
    Farthest splitOf(const Part &part, const View &view);
    bool isSplit(const Part &part, const Farthest &farthest, const View &view) const;
    bool simplifyShort(const Part &part, const View &view, QVector<int> &kept);
    int appendLimits(const Part &part);
    bool keepByLimits(const Part &part, const View &view, QVector<int> &kept);
    void simplify(const Run &run, const View &view, QVector<int> &kept);

    const double *m_x = nullptr;
    const double *m_y = nullptr;
    int m_count = 0;
    BoundingVolumeHierarchy *m_volumes = nullptr;
    std::vector<Run> m_runs;
    std::vector<Node> m_nodes;
    std::vector<int> m_shortRuns; ///< where the limits of each begin
    std::vector<float> m_limits; ///< squared, and times m_limitScale
    double m_limitScale = 1.0;
    bool m_isDense = false; ///< of the short run looked at last, most points were kept
    std::vector<Part> m_parts;
};

} // namespace SmithRender
