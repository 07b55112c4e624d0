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

/// The squared distances of the points \a first to \a end - 1 to the segments between their
/// neighbours.
template<int Width>
VNA_INLINE void toNeighboursBody(const double *x, const double *y, int first, int end,
                                 double *result)
{
    using Doubles = typename Vector<Width>::Doubles;
    const Doubles zero = Doubles() + 0.0;
    const Doubles one = Doubles() + 1.0;
    for (int i = first; i < end; i += Width, result += Width) {
        Doubles ax, ay, px, py, dx, dy;
        load<Width>(x + i - 1, ax);
        load<Width>(y + i - 1, ay);
        load<Width>(x + i, px);
        load<Width>(y + i, py);
        load<Width>(x + i + 1, dx);
        load<Width>(y + i + 1, dy);
        // As Segment and squaredDistances() do it.
        dx -= ax;
        dy -= ay;
        px -= ax;
        py -= ay;
        const Doubles squaredLength = dx * dx + dy * dy;
        const Doubles inverse =
            squaredLength >= zero + Segment::shortest ? one / squaredLength : zero;
        Doubles u = (px * dx + py * dy) * inverse;
        u = u < zero ? zero : u;
        u = u > one ? one : u;
        const Doubles qx = px - u * dx;
        const Doubles qy = py - u * dy;
        const Doubles distance = qx * qx + qy * qy;
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

template<int Width>
VNA_INLINE std::uint64_t simplifyShortBody(const double *x, const double *y, int first, int last,
                                           int readable, double surely, double surelyNot)
{
    struct Part {
        int first;
        int last;
    };
    const auto bit = [first](int i) { return std::uint64_t(1) << (i - first); };
    // First in, first out: the processor works on several parts at once, where the last one in
    // would have to wait for itself.
    Part parts[2 * VectorKernels::longestShort];
    parts[0] = {first, last};
    int end = last - first > 2;
    std::uint64_t kept = 0;
    std::uint64_t single = last - first == 2 ? bit(first + 1) : 0; // between the ends of a part
    for (int next = 0; next < end; ++next) {
        const Part part = parts[next];
        const Segment segment(x[part.first], y[part.first], x[part.last], y[part.last]);
        const Farthest farthest =
            farthestOfFewBody<Width>(x, y, part.first + 1, part.last, readable, segment);
        if (farthest.squaredDistance > surely) {
            const int split = farthest.index;
            kept |= bit(split);
            // Written without jumps, and overwritten if there is little between the ends.
            parts[end] = {part.first, split};
            end += split - part.first > 2;
            parts[end] = {split, part.last};
            end += part.last - split > 2;
            single |= std::uint64_t(split - part.first == 2) << (split - 1 - first);
            // For the last point the shift would be a whole word: of a part of two there is none.
            single |= std::uint64_t(part.last - split == 2) << ((split + 1 - first) & 63);
        } else if (!(farthest.squaredDistance < surelyNot)) {
            return VectorKernels::undecided;
        }
    }
    if (single == 0)
        return kept;

    // A third of all parts of noise have a single point: all distances at once are sooner found.
    double distances[VectorKernels::longestShort + VectorKernels::widest];
    toNeighbours<Width>(x, y, first, last, readable, distances);
    bool isUndecided = false;
    for (int i = 0; i < last - first - 1; ++i) {
        const bool isSingle = single >> (i + 1) & 1;
        const bool isSplit = distances[i] > surely;
        kept |= std::uint64_t(isSingle & isSplit) << (i + 1);
        isUndecided |= isSingle & !isSplit & !(distances[i] < surelyNot);
    }
    return isUndecided ? VectorKernels::undecided : kept;
}

template<int Width>
VNA_INLINE void limitsOfShortBody(const double *x, const double *y, int first, int last,
                                  int readable, double *limits)
{
    struct Part {
        int first;
        int last;
        double limit; ///< of all its points: the smallest deviation of what it is a part of
    };
    // As in simplifyShortBody(), but down to single points, which come last.
    Part parts[2 * VectorKernels::longestShort];
    parts[0] = {first, last, std::numeric_limits<double>::infinity()};
    int end = last - first > 2;
    Part singles[VectorKernels::longestShort];
    singles[0] = parts[0];
    int singleCount = last - first == 2;
    for (int next = 0; next < end; ++next) {
        const Part part = parts[next];
        const Segment segment(x[part.first], y[part.first], x[part.last], y[part.last]);
        const Farthest farthest =
            farthestOfFewBody<Width>(x, y, part.first + 1, part.last, readable, segment);
        const int split = farthest.index;
        const double limit = std::min(part.limit, farthest.squaredDistance);
        limits[split - first - 1] = limit;
        for (const Part &half : {Part{part.first, split, limit}, Part{split, part.last, limit}}) {
            parts[end] = half;
            end += half.last - half.first > 2;
            singles[singleCount] = half;
            singleCount += half.last - half.first == 2;
        }
    }
    double distances[VectorKernels::longestShort + VectorKernels::widest];
    toNeighbours<Width>(x, y, first, last, readable, distances);
    for (int i = 0; i < singleCount; ++i) {
        const int at = singles[i].first - first;
        limits[at] = std::min(singles[i].limit, distances[at]);
    }
}

} // namespace SmithRender
