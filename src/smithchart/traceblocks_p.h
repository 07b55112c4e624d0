// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "vectorkernels_p.h"

#include <cstddef>
#include <vector>

namespace SmithRender
{

class NearestScan;
struct Viewport;

/*! Bounds of where a trace's points lie, so that searches pass over those that cannot win. Their
   outcome is that of looking at every point.

    Two kinds, for what each does well. A chord joins two points a few dozen apart; its sag is how
   far those between stray from it. On smooth traces that is next to nothing. A block has a polygon
   around it, which serves for points in any order; eight blocks make one of the next level.
   Distance to a segment is convex, so the ends of a chord, or the corners of a polygon, bound it
   for all between them.

    Chord or block k of n points reaches from point k x n to point (k + 1) x n, both included. */
class TraceBlocks
{
public:
    /// Builds the bounds of \a count points, at least 1, which must stay where they are.
    void build(const double *x, const double *y, int count);

    /// The farthest from \a segment of the points \a first to \a end - 1, all finite.
    Farthest farthest(int first, int end, const Segment &segment);
    /// Shows \a scan every point and line that can matter to it.
    void nearest(const Viewport &viewport, NearestScan &scan);

    /// No coordinate of a finite point is larger in magnitude.
    double largestCoordinate() const { return m_largest; }
    /// Whether all points of the block are finite.
    bool isFinite(int block) const { return m_finite[static_cast<size_t>(block)]; }
    int blockCount() const { return static_cast<int>(m_finite.size()); }
    size_t memoryUsed() const;

    static constexpr int blockShift = 9;

private:
    static constexpr int chordShift = 6;
    static constexpr int fanOutShift = 3;

    /// A block, of one level or another, that may hold what is looked for.
    struct Candidate {
        double promise; ///< the higher, the sooner it is looked at
        double bound; ///< of the squared distances of its points
        int level;
        int block;
    };

    static int shiftOf(int level) { return blockShift + fanOutShift * level; }
    int blocksAt(int level) const
    {
        return static_cast<int>(m_levels[static_cast<size_t>(level)].size());
    }
    void buildBlock(int block);
    void buildLevels();
    void farthestByChords(int first, int end, const Segment &segment, Farthest &best) const;
    void nearestByChords(int block, double x, double y, double scale, double slack,
                         NearestScan &scan) const;
    template<typename Promise>
    void push(int level, int firstBlock, int lastBlock, const Promise &promise);

    const double *m_x = nullptr;
    const double *m_y = nullptr;
    int m_count = 0;
    double m_largest = 0.0;
    double m_room = 0.0; ///< by which sags and polygons are larger than they need be
    std::vector<double>
        m_chordX; ///< the ends of chords; padded, so that vectors can be read at any
    std::vector<double> m_chordY;
    std::vector<double> m_sag;
    std::vector<bool> m_finite; ///< by block
    std::vector<std::vector<Polygon>> m_levels;
    std::vector<Candidate> m_stack;
};

} // namespace SmithRender
