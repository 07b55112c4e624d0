// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
/*! \file
    The inner loops over a trace's points, in the widest vectors the processor has. Every width does
    the same operations on each point and never fuses multiply and add, so results are identical,
    bit for bit. */
#pragma once

#include <base/testexport_p.h>

#include <array>
#include <cmath>
#include <cstdint>
#include <limits>

namespace SmithRender
{

struct StrokeBatch;

/// A segment from a to b, prepared for many distances to it.
struct Segment {
    Segment(double fromX, double fromY, double toX, double toY)
        : ax(fromX)
        , ay(fromY)
        , dx(toX - fromX)
        , dy(toY - fromY)
    {
        // One too short for a reciprocal counts as the point a.
        const double squaredLength = dx * dx + dy * dy;
        if (squaredLength >= shortest)
            inverse = 1.0 / squaredLength;
    }

    static constexpr double shortest = 4.0 * std::numeric_limits<double>::min(); ///< squared

    double ax;
    double ay;
    double dx;
    double dy;
    double inverse = 0.0; ///< of the squared length
};

/// The point farthest from a segment so far; of several equally far, the one of lowest index.
/// The direction of a chord, of length 1; along x if the chord is too short to have one.
struct ChordAxis {
    explicit ChordAxis(const Segment &chord)
    {
        const double inverseLength = std::sqrt(chord.inverse);
        if (chord.inverse > 0.0) {
            x = chord.dx * inverseLength;
            y = chord.dy * inverseLength;
        }
    }

    /// Where a point's foot lies along the axis, from that of the origin.
    double along(double px, double py) const { return px * x + py * y; }

    double x = 1.0;
    double y = 0.0;
};

struct ChordBounds {
    /// No point lies farther from the chord, to within rounding, nor from its axis. Infinite if a
    /// point is not finite, or so far away that squares overflow.
    double squaredDeviation;
    /// Each point's foot on the axis lies no less far along it than that of the point
    /// VectorKernels::widest before it. Narrower vectors find that of fewer chords.
    bool isAscending;
};

struct Farthest {
    double squaredDistance = -1.0;
    int index = -1;

    void offer(double newSquaredDistance, int newIndex)
    {
        if (newSquaredDistance > squaredDistance
            || (newSquaredDistance == squaredDistance && newIndex < index)) {
            squaredDistance = newSquaredDistance;
            index = newIndex;
        }
    }
};

/*! A k-DOP around a set of points: a discrete oriented polytope, which is the convex polygon whose
    k edge directions are fixed (Klosowski et al. 1998). Kept as the set's support in each
    direction, the first along x, then anticlockwise: the largest scalar product of a point with the
    direction. The last value repeats the first. An empty set has supports of minus infinity. */
struct Kdop {
    static constexpr int directions = 16;
    std::array<double, directions + 1> support;
};

/// No point of the set is nearer to (\a x, \a y) than this; below 0 inside.
[[nodiscard]] double distanceAtLeast(const Kdop &kdop, double x, double y);

/// One set of inner loops. All pointers are to the first point of a trace.
struct VectorKernels {
    /// Puts the farthest from \a segment of the points \a first to \a end - 1, which must be
    /// finite, into \a best if it beats that. Memory may be read up to the point \a readable - 1.
    void (*farthest)(const double *x, const double *y, int first, int end, int readable,
                     const Segment &segment, Farthest &best);
    /// The squared distances to \a segment of \a count points. Reads and writes up to the next
    /// multiple of the widest vector.
    void (*squaredDistances)(const double *x, const double *y, int count, const Segment &segment,
                             double *result);
    /// The largest squared distance to \a segment of any point in \a kdop.
    double (*farthestOf)(const Kdop &kdop, const Segment &segment);
    /// What bounds the points \a first to \a last with the chord that joins these two.
    ChordBounds (*boundsOfChord)(const double *x, const double *y, int first, int last);
    /// The k-DOP around the points \a first to \a end - 1, which must be finite.
    void (*enclose)(const double *x, const double *y, int first, int end, Kdop &kdop);

    /*! The points of a short run, from \a first to \a last, that stand for all of it in the sense of
        DouglasPeucker: bit i of the result for the point first + i, its ends left out. A squared
        deviation above \a surely splits a part, one below \a surelyNot does not; \c undecided if
        any lies between. Memory may be read up to the point \a readable - 1. */
    std::uint64_t (*simplifyShort)(const double *x, const double *y, int first, int last,
                                   int readable, double surely, double surelyNot);

    /*! Up to which squared tolerance each point between \a first and \a last, the ends of a short
        run, is kept: below \a limits[i], the point first + 1 + i is. There must be one. */
    void (*limitsOfShort)(const double *x, const double *y, int first, int last, int readable,
                          double *limits);

    /// Finds out how to draw each segment of \a batch.
    void (*prepareStrokes)(StrokeBatch &batch);

    static constexpr int longestShort = 64; ///< last - first of a short run
    static constexpr std::uint64_t undecided = 1; ///< which is no result of simplifyShort()
    static constexpr int widest = 4; ///< points in the widest vector of any set
};

/// The sets this processor can run, narrowest first; null for those it cannot.
[[nodiscard]] VNAWIDGETS_TEST_EXPORT std::array<const VectorKernels *, 3> allVectorKernels();

/// The widest of them, chosen once.
[[nodiscard]] const VectorKernels &vectorKernels();

} // namespace SmithRender
