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

/// The supports along \a Axes axes from the one numbered \a from, both ways.
template<int Width, int From, int Axes>
VNA_INLINE void encloseAlong(const double *x, const double *y, int first, int end, Kdop &kdop)
{
    using Doubles = typename Vector<Width>::Doubles;
    constexpr double infinity = std::numeric_limits<double>::infinity();
    Doubles low[Axes];
    Doubles high[Axes];
    for (int k = 0; k < Axes; ++k) {
        low[k] = Doubles() + infinity;
        high[k] = Doubles() - infinity;
    }
    Doubles px;
    Doubles py;
    int i = first;
    const auto takeIn = [&]() __attribute__((always_inline))
    {
        for (int k = 0; k < Axes; ++k) {
            const auto axis = static_cast<size_t>(From + k);
            const Doubles p = px * cosines[axis] + py * sines[axis];
            low[k] = p < low[k] ? p : low[k];
            high[k] = p > high[k] ? p : high[k];
        }
    };
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
    for (int k = 0; k < Axes; ++k) {
        double lowest = lane(low[k], 0);
        double highest = lane(high[k], 0);
        for (int l = 1; l < Width; ++l) {
            lowest = std::min(lowest, lane(low[k], l));
            highest = std::max(highest, lane(high[k], l));
        }
        kdop.support[static_cast<size_t>(From + k)] = highest;
        kdop.support[static_cast<size_t>(From + k + Kdop::directions / 2)] = -lowest;
    }
}

template<int Width>
VNA_INLINE void encloseBody(const double *x, const double *y, int first, int end, Kdop &kdop)
{
    // Two halves, so that the running extremes stay in registers.
    constexpr int axes = Kdop::directions / 4;
    encloseAlong<Width, 0, axes>(x, y, first, end, kdop);
    encloseAlong<Width, axes, axes>(x, y, first, end, kdop);
    kdop.support[Kdop::directions] = kdop.support[0];
}

} // namespace SmithRender
