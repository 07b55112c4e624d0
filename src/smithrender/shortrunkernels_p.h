// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
/*! \file
    How a short run is simplified, in vectors of any width. */
#pragma once

#include "segmentkernels_p.h"

#include <algorithm>
#include <limits>

namespace SmithRender
{

/// The lane of the largest distance; of several, the one with the lowest index.
template<int Width>
VNA_INLINE Farthest farthestLane(const typename Vector<Width>::Doubles &distances,
                                 const typename Vector<Width>::Integers &indices)
{
    if constexpr (Width == 1) {
        return {distances, static_cast<int>(indices)};
    } else {
        constexpr int half = Width / 2;
        using Doubles = typename Vector<half>::Doubles;
        using Integers = typename Vector<half>::Integers;
        Doubles low, high;
        Integers lowIndex, highIndex;
        const auto halve = [](const auto &whole, auto &first, auto &second) {
            std::memcpy(&first, &whole, sizeof first);
            std::memcpy(&second, reinterpret_cast<const char *>(&whole) + sizeof first,
                        sizeof second);
        };
        halve(distances, low, high);
        halve(indices, lowIndex, highIndex);
        const auto wins = (high > low) | ((high == low) & (highIndex < lowIndex));
        low = wins ? high : low;
        lowIndex = wins ? highIndex : lowIndex;
        return farthestLane<half>(low, lowIndex);
    }
}

/// As farthestBody() of at least one point, for few of them: of noise no guess is right, so that
/// jumps cost more than a vector that is only half used.
template<int Width>
VNA_INLINE Farthest farthestOfFewBody(const double *x, const double *y, int first, int end,
                                      int readable, const Segment &segment)
{
    FarthestLanes<Width> lanes(first);
    for (int i = first; i < end; i += Width)
        lanes.takeInRest(x, y, i, end, readable, segment);
    return farthestLane<Width>(lanes.farthest, lanes.where);
}

/// As Segment, another one in each lane.
template<int Width>
struct Segments {
    using Doubles = typename Vector<Width>::Doubles;

    VNA_INLINE Segments(const Doubles &fromX, const Doubles &fromY, const Doubles &toX,
                        const Doubles &toY)
        : ax(fromX)
        , ay(fromY)
        , dx(toX - fromX)
        , dy(toY - fromY)
    {
        const Doubles zero = Doubles() + 0.0;
        const Doubles one = Doubles() + 1.0;
        const Doubles squaredLength = dx * dx + dy * dy;
        inverse = squaredLength >= zero + Segment::shortest ? one / squaredLength : zero;
    }

    Doubles ax, ay, dx, dy, inverse;
};

/// The squared distances of the points \a first to \a end - 1 to the segments between their
/// neighbours.
template<int Width>
VNA_INLINE void toNeighboursBody(const double *x, const double *y, int first, int end,
                                 double *result)
{
    typename Vector<Width>::Doubles ax, ay, px, py, bx, by, distance;
    for (int i = first; i < end; i += Width, result += Width) {
        load<Width>(x + i - 1, ax);
        load<Width>(y + i - 1, ay);
        load<Width>(x + i, px);
        load<Width>(y + i, py);
        load<Width>(x + i + 1, bx);
        load<Width>(y + i + 1, by);
        squaredDistances(px, py, Segments<Width>(ax, ay, bx, by), distance);
        std::memcpy(result, &distance, sizeof distance);
    }
}

/// The same of all points between \a first and \a last, of memory that is readable to \a readable.
template<int Width>
VNA_INLINE void toNeighbours(const double *x, const double *y, int first, int last, int readable,
                             double *result)
{
    const int whole = std::min(last, readable - Width);
    toNeighboursBody<Width>(x, y, first + 1, whole, result);
    const int done = whole > first ? (whole - first - 1 + Width - 1) / Width * Width : 0;
    toNeighboursBody<1>(x, y, first + 1 + done, last, result + done);
}

/// A part of a short run.
struct ShortPart {
    int first;
    int last;
    double limit; ///< of all its points: the smallest deviation of what it is a part of
};

/// Parts up to this length, of which noise has most, are looked at side by side.
constexpr int smallPart = 12;

/// The farthest point of each of some small parts. Reads memory up to smallPart behind them.
template<int Width>
VNA_INLINE void farthestOfEach(const double *x, const double *y, const ShortPart *parts, int count,
                               Farthest *results)
{
    using Doubles = typename Vector<Width>::Doubles;
    const auto gather = [](const auto &valueOf, Doubles &values) __attribute__((always_inline))
    {
        if constexpr (Width == 1) {
            values = valueOf(0);
        } else {
            for (int k = 0; k < Width; ++k)
                values[k] = valueOf(k);
        }
    };
    ShortPart lanes[Width] = {};
    int longest = 0;
    for (int k = 0; k < Width; ++k) {
        lanes[k] = parts[k < count ? k : 0];
        longest = std::max(longest, lanes[k].last - lanes[k].first);
    }
    Doubles ax, ay, bx, by, length;
    gather([&](int k) { return x[lanes[k].first]; }, ax);
    gather([&](int k) { return y[lanes[k].first]; }, ay);
    gather([&](int k) { return x[lanes[k].last]; }, bx);
    gather([&](int k) { return y[lanes[k].last]; }, by);
    gather([&](int k) { return static_cast<double>(lanes[k].last - lanes[k].first); }, length);
    const Segments<Width> segments(ax, ay, bx, by);
    Doubles farthest = Doubles() - 1.0;
    Doubles where = Doubles() + 0.0;
    Doubles step = Doubles() + 1.0;
    for (int i = 1; i < longest; ++i) {
        Doubles px, py, distance;
        gather([&](int k) { return x[lanes[k].first + i]; }, px);
        gather([&](int k) { return y[lanes[k].first + i]; }, py);
        squaredDistances(px, py, segments, distance);
        distance = step < length ? distance : Doubles() - 1.0;
        where = distance > farthest ? step : where;
        farthest = distance > farthest ? distance : farthest;
        step = step + 1.0;
    }
    for (int k = 0; k < count; ++k)
        results[k] = {lane(farthest, k), lanes[k].first + static_cast<int>(lane(where, k))};
}

/*! Splits a short run into parts, down to those that \a isSplit(part, farthest) does not let go on.
    Those with a single point between their ends come last: a third of all parts of noise, so that
    all distances at once are sooner found. */
template<int Width, typename IsSplit>
VNA_INLINE void splitShort(const double *x, const double *y, int first, int last, int readable,
                           const IsSplit &isSplit)
{
    // First in, first out: the processor works on several parts at once, where the last one in
    // would have to wait for itself. Written without jumps, and overwritten if it is another kind.
    ShortPart large[VectorKernels::longestShort];
    ShortPart small[VectorKernels::longestShort];
    ShortPart single[VectorKernels::longestShort];
    int largeEnd = 0;
    int smallEnd = 0;
    int singleEnd = 0;
    const int longestSmall = last + smallPart < readable ? smallPart : 2;
    const auto add = [&](const ShortPart &part) __attribute__((always_inline))
    {
        const int length = part.last - part.first;
        large[largeEnd] = part;
        largeEnd += length > longestSmall;
        small[smallEnd] = part;
        smallEnd += int(length > 2) & int(length <= longestSmall);
        single[singleEnd] = part;
        singleEnd += length == 2;
    };
    const auto decide = [&](const ShortPart &part, const Farthest &farthest)
        __attribute__((always_inline))
    {
        const double limit = std::min(part.limit, farthest.squaredDistance);
        if (isSplit(farthest, limit)) {
            add({part.first, farthest.index, limit});
            add({farthest.index, part.last, limit});
        }
    };
    add({first, last, std::numeric_limits<double>::infinity()});
    for (int next = 0; next < largeEnd; ++next) {
        const ShortPart part = large[next];
        const Segment segment(x[part.first], y[part.first], x[part.last], y[part.last]);
        decide(part, farthestOfFewBody<Width>(x, y, part.first + 1, part.last, readable, segment));
    }
    for (int next = 0; next < smallEnd;) {
        const int count = std::min(Width, smallEnd - next);
        Farthest farthest[Width];
        farthestOfEach<Width>(x, y, small + next, count, farthest);
        for (int k = 0; k < count; ++k) {
            const ShortPart part = small[next++];
            decide(part, farthest[k]);
        }
    }
    double distances[VectorKernels::longestShort + VectorKernels::widest];
    if (singleEnd > 0)
        toNeighbours<Width>(x, y, first, last, readable, distances);
    for (int i = 0; i < singleEnd; ++i) {
        const ShortPart part = single[i];
        const double distance = distances[part.first - first];
        isSplit({distance, part.first + 1}, std::min(part.limit, distance));
    }
}

template<int Width>
VNA_INLINE std::uint64_t simplifyShortBody(const double *x, const double *y, int first, int last,
                                           int readable, double surely, double surelyNot)
{
    std::uint64_t kept = 0;
    bool isUndecided = false;
    splitShort<Width>(
        x, y, first, last,
        readable, [&](const Farthest &farthest, double) __attribute__((always_inline)) {
            const bool isSplit = farthest.squaredDistance > surely;
            kept |= std::uint64_t(isSplit) << (farthest.index - first);
            isUndecided |= !isSplit & !(farthest.squaredDistance < surelyNot);
            return isSplit;
        });
    return isUndecided ? VectorKernels::undecided : kept;
}

template<int Width>
VNA_INLINE void limitsOfShortBody(const double *x, const double *y, int first, int last,
                                  int readable, double *limits)
{
    splitShort<Width>(
        x, y, first, last,
        readable, [&](const Farthest &farthest, double limit) __attribute__((always_inline)) {
            limits[farthest.index - first - 1] = limit;
            return true;
        });
}

} // namespace SmithRender
