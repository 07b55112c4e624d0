// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
/*! \file
    Distances of many points to a segment, in vectors of any width. */
#pragma once

#include "vectorkernels_p.h"
#include "vectors_p.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>

namespace SmithRender
{

/// Where points lie beyond a chord's ends by no more than this share of its length, how far they are
/// from its axis, and how far beyond, bound their distances well enough.
constexpr double sidewaysEnough = 0.1;

/// To one segment, or lane by lane to the Segments.
template<typename V, typename S>
VNA_INLINE void squaredDistances(const V &x, const V &y, const S &s, V &result)
{
    const V zero = V() + 0.0;
    const V one = V() + 1.0;
    const V px = x - s.ax;
    const V py = y - s.ay;
    V u = (px * s.dx + py * s.dy) * s.inverse;
    u = u < zero ? zero : u;
    u = u > one ? one : u;
    const V qx = px - u * s.dx;
    const V qy = py - u * s.dy;
    result = qx * qx + qy * qy;
}

/// The farthest from a segment of the points that each lane has seen; the earlier one of equals.
template<int Width>
struct FarthestLanes {
    using Doubles = typename Vector<Width>::Doubles;
    using Integers = typename Vector<Width>::Integers;

    /// For points from \a first on, in ascending order.
    VNA_INLINE explicit FarthestLanes(int first)
        : where(Integers() + first)
    {
        std::int64_t counted[Width];
        for (int i = 0; i < Width; ++i)
            counted[i] = first + i;
        std::memcpy(&indices, counted, sizeof indices);
    }

    VNA_INLINE void offer(const Doubles &squaredDistances)
    {
        where = squaredDistances > farthest ? indices : where;
        farthest = squaredDistances > farthest ? squaredDistances : farthest;
        indices += Width;
    }

    VNA_INLINE void takeIn(const double *x, const double *y, int i, const Segment &segment)
    {
        Doubles px, py, distances;
        load<Width>(x + i, px);
        load<Width>(y + i, py);
        squaredDistances(px, py, segment, distances);
        offer(distances);
    }

    /// The same for those of them that lie before \a end, where not all may be readable.
    VNA_INLINE void takeInRest(const double *x, const double *y, int i, int end, int readable,
                               const Segment &segment)
    {
        Doubles px, py, distances;
        if (i + Width <= readable) {
            load<Width>(x + i, px);
            load<Width>(y + i, py);
        } else {
            px = Doubles() + segment.ax;
            py = Doubles() + segment.ay;
            std::memcpy(&px, x + i, static_cast<size_t>(end - i) * sizeof(double));
            std::memcpy(&py, y + i, static_cast<size_t>(end - i) * sizeof(double));
        }
        squaredDistances(px, py, segment, distances);
        distances = indices < (Integers() + end) ? distances : (Doubles() - 1.0);
        offer(distances);
    }

    Doubles farthest = Doubles() - 1.0;
    Integers indices; ///< of the next points
    Integers where;
};

/// So few points are looked at sooner one by one.
constexpr int fewPoints = 4;

template<int Width>
VNA_INLINE void farthestBody(const double *x, const double *y, int first, int end, int readable,
                             const Segment &segment, Farthest &best)
{
    if (end - first <= fewPoints) {
        for (int i = first; i < end; ++i) {
            double distance;
            squaredDistances(x[i], y[i], segment, distance);
            best.offer(distance, i);
        }
        return;
    }
    FarthestLanes<Width> lanes(first);
    int i = first;
    for (; i + Width <= end; i += Width)
        lanes.takeIn(x, y, i, segment);
    if (i < end)
        lanes.takeInRest(x, y, i, end, readable, segment);
    for (int k = 0; k < Width; ++k)
        best.offer(lane(lanes.farthest, k), static_cast<int>(integerLane(lanes.where, k)));
}

template<int Width>
VNA_INLINE void squaredDistancesBody(const double *x, const double *y, int count,
                                     const Segment &segment, double *result)
{
    typename Vector<Width>::Doubles px, py, distance;
    for (int i = 0; i < count; i += Width) {
        load<Width>(x + i, px);
        load<Width>(y + i, py);
        squaredDistances(px, py, segment, distance);
        std::memcpy(result + i, &distance, sizeof distance);
    }
}

/// The least and the largest of some values of points, each in lanes.
template<int Width, int Values>
struct Ranges {
    using Doubles = typename Vector<Width>::Doubles;

    VNA_INLINE Ranges()
    {
        constexpr double infinity = std::numeric_limits<double>::infinity();
        for (int k = 0; k < Values; ++k) {
            low[k] = Doubles() + infinity;
            high[k] = Doubles() - infinity;
        }
    }

    template<int Value>
    VNA_INLINE void takeIn(const Doubles &value)
    {
        low[Value] = value < low[Value] ? value : low[Value];
        high[Value] = value > high[Value] ? value : high[Value];
    }

    VNA_INLINE double least(int value) const
    {
        double least = lane(low[value], 0);
        for (int l = 1; l < Width; ++l)
            least = std::min(least, lane(low[value], l));
        return least;
    }
    VNA_INLINE double largest(int value) const
    {
        double largest = lane(high[value], 0);
        for (int l = 1; l < Width; ++l)
            largest = std::max(largest, lane(high[value], l));
        return largest;
    }

    Doubles low[Values];
    Doubles high[Values];
};

/// Calls \a takeIn with the coordinates of all points, in vectors; those that do not fill one come
/// one by one, in all lanes.
template<int Width, typename TakeIn>
VNA_INLINE void forEachVector(const double *x, const double *y, int first, int end,
                              const TakeIn &takeIn)
{
    typename Vector<Width>::Doubles px, py;
    int i = first;
    for (; i + Width <= end; i += Width) {
        load<Width>(x + i, px);
        load<Width>(y + i, py);
        takeIn(px, py);
    }
    for (; i < end; ++i) {
        px = typename Vector<Width>::Doubles() + x[i];
        py = typename Vector<Width>::Doubles() + y[i];
        takeIn(px, py);
    }
}

template<int Width>
VNA_INLINE double squaredDeviationBody(const double *x, const double *y, int first, int end,
                                       const Segment &s)
{
    using Doubles = typename Vector<Width>::Doubles;
    Doubles farthest = Doubles();
    forEachVector<Width>(
        x, y, first, end, [&](const Doubles &px, const Doubles &py) __attribute__((always_inline)) {
            Doubles distance;
            squaredDistances(px, py, s, distance);
            farthest = distance > farthest ? distance : farthest;
        });
    double result = lane(farthest, 0);
    for (int k = 1; k < Width; ++k)
        result = std::max(result, lane(farthest, k));
    return result;
}

template<int Width>
VNA_INLINE ChordBounds boundsOfChordBody(const double *x, const double *y, int first, int last)
{
    using Doubles = typename Vector<Width>::Doubles;
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const Segment chord(x[first], y[first], x[last], y[last]);
    const ChordAxis axis(chord);
    Ranges<Width, 2> ranges; // along the axis, and across it
    Doubles sum = Doubles(); // not finite if any coordinate is not
    Doubles before = Doubles() - infinity;
    Doubles shortestStep = Doubles() + infinity;
    forEachVector<Width>(
        x, y, first,
        last + 1, [&](const Doubles &px, const Doubles &py) __attribute__((always_inline)) {
            const Doubles along = px * axis.x + py * axis.y;
            ranges.template takeIn<0>(along);
            ranges.template takeIn<1>(py * axis.x - px * axis.y);
            sum += along;
            const Doubles step = along - before;
            shortestStep = step < shortestStep ? step : shortestStep;
            before = along;
        });
    double total = 0.0;
    bool isAscending = true;
    for (int k = 0; k < Width; ++k) {
        total += lane(sum, k);
        isAscending = isAscending && lane(shortestStep, k) >= 0.0;
    }
    if (total - total != 0.0)
        return {infinity, false};
    const double start = axis.along(chord.ax, chord.ay);
    const double length = chord.dx * axis.x + chord.dy * axis.y;
    const double across = chord.ay * axis.x - chord.ax * axis.y;
    const double beside = std::max(across - ranges.least(1), ranges.largest(1) - across);
    const double beyond = std::max(start - ranges.least(0), ranges.largest(0) - (start + length));
    if (beyond > sidewaysEnough * length)
        return {squaredDeviationBody<Width>(x, y, first, last + 1, chord), isAscending};
    return {beside * beside + std::max(beyond, 0.0) * std::max(beyond, 0.0), isAscending};
}

} // namespace SmithRender
