// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "vectorkernels_p.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace SmithRender
{

class NearestScan;

/*! A bounding volume hierarchy over a line's points: a search passes over those that cannot win,
    and its outcome is that of looking at every point. The volumes are k-DOPs, as in Klosowski,
    Held, Mitchell, Sowizral and Zikan, "Efficient collision detection using bounding volume
    hierarchies of k-DOPs", 1998; here the order of the points along the line gives the hierarchy.

    Two kinds of bounds, for what each does well. A chord joins two points a few dozen apart, and
    its deviation is how far those between lie from it: next to nothing on smooth lines. A leaf has
    a k-DOP around its points, which serves for points in any order; eight nodes of one level make
    one of the next. Distance to a segment is convex, so the ends of a chord, or the corners of a
    k-DOP, bound it for all between them.

    Where the same few points come again and again, exactly, no bound tells one period from the next:
    such stretches are known, and looked at for one period.

    Chord or leaf i of n points covers point i x n to point (i + 1) x n, both included. */
class BoundingVolumeHierarchy
{
public:
    /// Builds the bounds of \a count points, at least 1, which must stay where they are.
    void build(const double *x, const double *y, int count);

    /// The farthest from \a segment of the points \a first to \a end - 1, all finite. If none is
    /// farther than \a enough, squared, it may be left open which one it is: then the index is -1,
    /// and none is farther than the distance.
    Farthest farthest(int first, int end, const Segment &segment, double enough);
    /// Shows \a scan every point and line that can matter to it.
    void nearest(NearestScan &scan);

    /// No coordinate of a finite point is larger in magnitude.
    double largestCoordinate() const { return m_largest; }
    /// Whether all points of the leaf are finite.
    bool isFinite(int leaf) const { return m_finite[static_cast<size_t>(leaf)]; }
    int leafCount() const { return static_cast<int>(m_finite.size()); }
    size_t memoryUsed() const;

    static constexpr int leafShift = 9;

private:
    static constexpr int chordShift = 6;
    static constexpr int fanOutShift = 3;

    /// A node of some level that may hold what is looked for.
    struct Candidate {
        double promise; ///< the higher, the sooner it is looked at
        double bound; ///< of the squared distances of its points
        int level;
        int node;
    };

    /// A stretch of points that are all equal to those a period before them.
    struct Repeat {
        int begin;
        int end;
        int period;
    };

    static int shiftOf(int level) { return leafShift + fanOutShift * level; }
    int nodesAt(int level) const
    {
        return static_cast<int>(m_levels[static_cast<size_t>(level)].size());
    }
    void buildLeaf(int leaf);
    void buildLevels();
    void findRepeats();
    Repeat repeatAt(int sample, int begin) const;
    /// The farthest point so far, which begins as what is enough; and as long as there is none, how
    /// far others may be.
    struct Search {
        Farthest best;
        double squaredBound;

        void raiseBound(double distance)
        {
            squaredBound = std::max(squaredBound, distance * distance);
        }

        /// Looks at each of these points.
        void scan(const BoundingVolumeHierarchy &volumes, int first, int end,
                  const Segment &segment)
        {
            Farthest here;
            Farthest &farthest = best.index < 0 ? here : best;
            vectorKernels().farthest(volumes.m_x, volumes.m_y, first, end, volumes.m_count, segment,
                                     farthest);
            if (best.index < 0) {
                best.offer(here.squaredDistance, here.index);
                squaredBound = std::max(squaredBound, here.squaredDistance);
            }
        }
    };
    void search(int first, int end, const Segment &segment, Search &search);
    void farthestByChords(int first, int end, const Segment &segment, Search &search) const;
    void shorten(int chord, int point, int direction, const Segment &segment,
                 double &squaredDistance) const;
    void nearestByChords(int leaf, double x, double y, double scale, double slack,
                         NearestScan &scan) const;
    template<typename Promise>
    void push(int level, int firstNode, int lastNode, const Promise &promise);

    const double *m_x = nullptr;
    const double *m_y = nullptr;
    int m_count = 0;
    double m_largest = 0.0;
    double m_room = 0.0; ///< by which deviations and k-DOPs are larger than they need be
    /// The ends of chords; padded, so that vectors can be read at any.
    std::vector<double> m_chordX;
    std::vector<double> m_chordY;
    std::vector<double> m_deviation;
    std::vector<bool> m_isAscending;
    std::vector<bool> m_finite; ///< by leaf
    std::vector<std::vector<Kdop>> m_levels;
    std::vector<Repeat> m_repeats; ///< in ascending order, apart from each other
    std::vector<Candidate> m_stack;
};

} // namespace SmithRender
