// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
/*! \file
    How segments are drawn, found out for many side by side. */
#pragma once

#include "strokebatch_p.h"
#include "vectors_p.h"

#include <algorithm>
#include <cstdlib>

namespace SmithRender
{

/// The first value where the mask's bits are set, the second where they are not.
VNA_INLINE int chosen(int mask, int first, int second)
{
    return second ^ ((first ^ second) & mask);
}

VNA_INLINE void prepareStrokesBody(StrokeBatch &batch)
{
    constexpr int stepsPerPixel = StrokeBatch::stepsPerPixel;
    constexpr int fractionBits = StrokeBatch::fractionBits;
    constexpr int half = stepsPerPixel / 2;
    constexpr int inStep = stepsPerPixel - 1;
    constexpr int stepShift = StrokeBatch::stepShift;
    constexpr float one = 1 << fractionBits;
    // No jumps: noise goes all ways.
    for (int k = 0; k < batch.count; ++k) {
        const auto i = static_cast<std::size_t>(k);
        const int width = std::abs(batch.toX[i] - batch.fromX[i]);
        const int height = std::abs(batch.toY[i] - batch.fromY[i]);
        // u is the axis on which the segment is longer; from u1 to u2, which is larger.
        const int steep = -int(width < height);
        const int fromU = chosen(steep, batch.fromY[i], batch.fromX[i]);
        const int fromV = chosen(steep, batch.fromX[i], batch.fromY[i]);
        const int toU = chosen(steep, batch.toY[i], batch.toX[i]);
        const int toV = chosen(steep, batch.toX[i], batch.toY[i]);
        const int backward = -int(toU < fromU);
        int u1 = chosen(backward, toU, fromU);
        int u2 = chosen(backward, fromU, toU);
        const int v1 = chosen(backward, toV, fromV);
        const int v2 = chosen(backward, fromV, toV);
        const int capAtStart = chosen(backward, batch.endCap[i], batch.startCap[i]);
        const int capAtEnd = chosen(backward, batch.startCap[i], batch.endCap[i]);
        const int isEmpty = -int(u1 == u2);

        const float slope = static_cast<float>(v2 - v1) / static_cast<float>(u2 - u1 - isEmpty);
        const int step = static_cast<int>(slope * one);
        // The pixels that share the line at the middle of a column: v's whole part and the next
        // one. A cap moves the line along itself, as painters do, rather than making it longer at
        // this end.
        const int toMiddle = half - (u1 & inStep) - capAtStart;
        const int v = (v1 - half) * (1 << fractionBits >> stepShift)
            + static_cast<int>(slope * static_cast<float>(toMiddle) * (one / stepsPerPixel));
        u1 -= capAtStart;
        u2 += capAtEnd;
        const int from = u1 >> stepShift;
        const int to = u2 >> stepShift;
        const int isOne = -int(to == from);
        const int vAtLast = v + step * (to - from);
        const int low = std::min(v, vAtLast) >> fractionBits;
        const int high = (std::max(v, vAtLast) >> fractionBits) + 1;
        batch.isSteep[i] = steep;
        batch.first[i] = from;
        batch.last[i] = chosen(isEmpty, -1, to);
        batch.inFirst[i] = chosen(isOne, u2, (from + 1) << stepShift) - u1;
        batch.inLast[i] = u2 & inStep & ~isOne;
        batch.across[i] = v;
        batch.perColumn[i] = step;
        batch.left[i] = chosen(steep, low, from);
        batch.right[i] = chosen(steep, high, to);
        batch.top[i] = chosen(steep, from, low);
        batch.bottom[i] = chosen(steep, to, high);
    }
}

} // namespace SmithRender
