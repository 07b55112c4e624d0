// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <algorithm>
#include <limits>

namespace SmithRender
{

/// The lowest and the highest of some points; both the first one where all are NaN.
struct Extremes {
    int lowest;
    int highest;
};

/// Finds the extremes of the points \a begin to \a end - 1, the earlier one of equals; \a order
/// gives the value of a point.
template<typename Order>
Extremes extremes(const double *real, const double *imag, int begin, int end, Order order)
{
    // Of each tile only the values, in lanes of their own that the processor takes side by side;
    // which points they belong to is looked up in two tiles at the end.
    constexpr int lanes = 4;
    constexpr int tile = 64;
    double low = std::numeric_limits<double>::infinity();
    double high = -low;
    Extremes tiles{begin, begin};
    for (int from = begin; from < end; from += tile) {
        const int to = std::min(from + tile, end);
        double lows[lanes];
        double highs[lanes];
        std::fill_n(lows, lanes, low);
        std::fill_n(highs, lanes, high);
        const auto takeIn = [&](int i, int lane) {
            const double value = order(real[i], imag[i]);
            lows[lane] = value < lows[lane] ? value : lows[lane];
            highs[lane] = value > highs[lane] ? value : highs[lane];
        };
        int i = from;
        for (; i + lanes <= to; i += lanes) {
            for (int lane = 0; lane < lanes; ++lane)
                takeIn(i + lane, lane);
        }
        for (; i < to; ++i)
            takeIn(i, 0);
        const double lowest = *std::min_element(lows, lows + lanes);
        const double highest = *std::max_element(highs, highs + lanes);
        if (lowest < low)
            tiles.lowest = from;
        if (highest > high)
            tiles.highest = from;
        low = lowest;
        high = highest;
    }
    const auto find = [&](int from, double wanted) {
        for (int i = from; i < end; ++i) {
            if (order(real[i], imag[i]) == wanted)
                return i;
        }
        return begin;
    };
    return {find(tiles.lowest, low), find(tiles.highest, high)};
}

} // namespace SmithRender
