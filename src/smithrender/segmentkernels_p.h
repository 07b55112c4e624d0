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

template<int Width>
VNA_INLINE double squaredDeviationBody(const double *x, const double *y, int first, int end,
                                       const Segment &s)
{
    using Doubles = typename Vector<Width>::Doubles;
    const double scaledX = s.dx * s.inverse;
    const double scaledY = s.dy * s.inverse;
    const Doubles zero = Doubles() + 0.0;
    const Doubles one = Doubles() + 1.0;
    Doubles farthest = Doubles();
    Doubles sum = Doubles(); // not finite if any distance is not
    Doubles px;
    Doubles py;
    const auto takeIn = [&]() __attribute__((always_inline))
    {
        px -= s.ax;
        py -= s.ay;
        Doubles u = px * scaledX + py * scaledY;
        u = u > zero ? u : zero;
        u = u < one ? u : one;
        px -= u * s.dx;
        py -= u * s.dy;
        const Doubles distance = px * px + py * py;
        farthest = distance > farthest ? distance : farthest;
        sum += distance;
    };
    int i = first;
    for (; i + Width <= end; i += Width) {
        load<Width>(x + i, px);
        load<Width>(y + i, py);
        takeIn();
    }
    for (; i < end; ++i) {
        px = Doubles() + x[i];
        py = Doubles() + y[i];
        takeIn();
    }
    double result = 0.0;
    double total = 0.0;
    for (int k = 0; k < Width; ++k) {
        result = std::max(result, lane(farthest, k));
        total += lane(sum, k);
    }
    return total - total == 0.0 ? result : std::numeric_limits<double>::infinity();
}

} // namespace SmithRender
