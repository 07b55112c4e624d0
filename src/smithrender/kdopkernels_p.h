// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
/*! \file
    k-DOPs around points, and distances to them, in vectors of any width. */
#pragma once

#include "segmentkernels_p.h"

#include <array>

namespace SmithRender
{

// The cosines and sines of a k-DOP's directions, and what makes a corner of two neighbouring
// supports: corner = support[j] * near[j] + support[j + 1] * far[j].
constexpr double cos1 = 0.92387953251128675613; // cos(pi/8)
constexpr double cos2 = 0.70710678118654752440;
constexpr double cos3 = 0.38268343236508977173;

constexpr std::array<double, 17> cosines{1.0,   cos1,  cos2,  cos3, 0.0,  -cos3, -cos2, -cos1, -1.0,
                                         -cos1, -cos2, -cos3, 0.0,  cos3, cos2,  cos1,  1.0};
constexpr std::array<double, 17> sines{0.0,   cos3,  cos2,  cos1, 1.0,   cos1,  cos2,  cos3, 0.0,
                                       -cos3, -cos2, -cos1, -1.0, -cos1, -cos2, -cos3, 0.0};

struct CornerWeights {
    double nearX[Kdop::directions];
    double nearY[Kdop::directions];
    double farX[Kdop::directions];
    double farY[Kdop::directions];
};

constexpr CornerWeights makeCornerWeights()
{
    CornerWeights w{};
    for (size_t j = 0; j < Kdop::directions; ++j) {
        w.nearX[j] = sines[j + 1] / cos3;
        w.nearY[j] = -cosines[j + 1] / cos3;
        w.farX[j] = -sines[j] / cos3;
        w.farY[j] = cosines[j] / cos3;
    }
    return w;
}

constexpr CornerWeights weights = makeCornerWeights();

template<int Width>
VNA_INLINE double farthestOfBody(const Kdop &kdop, const Segment &segment)
{
    using Doubles = typename Vector<Width>::Doubles;
    Doubles farthest = Doubles();
    for (int j = 0; j < Kdop::directions; j += Width) {
        Doubles support, next, nearX, nearY, farX, farY, distance;
        load<Width>(kdop.support.data() + j, support);
        load<Width>(kdop.support.data() + j + 1, next);
        load<Width>(weights.nearX + j, nearX);
        load<Width>(weights.nearY + j, nearY);
        load<Width>(weights.farX + j, farX);
        load<Width>(weights.farY + j, farY);
        const Doubles x = support * nearX + next * farX;
        const Doubles y = support * nearY + next * farY;
        squaredDistances(x, y, segment, distance);
        farthest = distance > farthest ? distance : farthest;
    }
    double result = lane(farthest, 0);
    for (int k = 1; k < Width; ++k)
        result = std::max(result, lane(farthest, k));
    return result;
}

/// Puts the range of a sum into \a kdop, as the supports along an axis, both ways; \a scale makes it
/// a scalar product.
template<typename R>
VNA_INLINE void put(const R &ranges, int sum, size_t axis, double scale, Kdop &kdop)
{
    kdop.support[axis] = ranges.largest(sum) * scale;
    kdop.support[axis + Kdop::directions / 2] = -ranges.least(sum) * scale;
}

template<int Width>
VNA_INLINE void encloseBody(const double *x, const double *y, int first, int end, Kdop &kdop)
{
    using Doubles = typename Vector<Width>::Doubles;
    // Sums stand in for scalar products, which are multiples of them; in two goes, so that the
    // running extremes stay in registers.
    Ranges<Width, 4> even;
    forEachVector<Width>(
        x, y, first, end, [&](const Doubles &px, const Doubles &py) __attribute__((always_inline)) {
            even.template takeIn<0>(px);
            even.template takeIn<1>(px + py);
            even.template takeIn<2>(py);
            even.template takeIn<3>(py - px);
        });
    put(even, 0, 0, 1.0, kdop);
    put(even, 1, 2, cos2, kdop);
    put(even, 2, 4, 1.0, kdop);
    put(even, 3, 6, cos2, kdop);
    constexpr double tan1 = cos3 / cos1;
    Ranges<Width, 4> odd;
    forEachVector<Width>(
        x, y, first, end, [&](const Doubles &px, const Doubles &py) __attribute__((always_inline)) {
            odd.template takeIn<0>(px + tan1 * py);
            odd.template takeIn<1>(tan1 * px + py);
            odd.template takeIn<2>(py - tan1 * px);
            odd.template takeIn<3>(tan1 * py - px);
        });
    for (int k = 0; k < 4; ++k)
        put(odd, k, static_cast<size_t>(2 * k + 1), cos1, kdop);
    kdop.support[Kdop::directions] = kdop.support[0];
}

} // namespace SmithRender
