// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "viewstate.h"

#include <algorithm>
#include <cmath>

namespace SmithChart
{

HalfRanges baseHalfRanges(int width, int height)
{
    const double w = std::max(width, 1);
    const double h = std::max(height, 1);
    if (w >= h)
        return {viewMargin * w / h, viewMargin};
    return {viewMargin, viewMargin * h / w};
}

ViewState clampViewState(ViewState state, HalfRanges base, double maximum)
{
    if (!std::isfinite(state.zoom))
        state.zoom = 1.0;
    state.zoom = std::clamp(state.zoom, 1.0, maximum);
    if (state.zoom <= magnifiedThreshold)
        return {};

    const auto clampCenter = [&state](double center, double half) {
        const double maxOffset = std::max(half - half / state.zoom, 0.0);
        return std::isfinite(center) ? std::clamp(center, -maxOffset, maxOffset) : 0.0;
    };
    state.centerX = clampCenter(state.centerX, base.x);
    state.centerY = clampCenter(state.centerY, base.y);
    return state;
}

ViewRanges viewRanges(const ViewState &state, HalfRanges base)
{
    const double halfX = base.x / state.zoom;
    const double halfY = base.y / state.zoom;
    return {state.centerX - halfX, state.centerX + halfX, state.centerY - halfY,
            state.centerY + halfY};
}

ViewState viewStateFromRanges(const ViewRanges &ranges, HalfRanges base, double maximum)
{
    const double xSpan = ranges.xUpper - ranges.xLower;
    const double ySpan = ranges.yUpper - ranges.yLower;
    if (!std::isfinite(xSpan) || !std::isfinite(ySpan) || xSpan == 0.0 || ySpan == 0.0)
        return {};
    // The smaller magnification wins, so that both requested ranges stay visible.
    const double zoom = std::min(2.0 * base.x / std::abs(xSpan), 2.0 * base.y / std::abs(ySpan));
    return clampViewState({ranges.xLower + xSpan / 2.0, ranges.yLower + ySpan / 2.0, zoom}, base,
                          maximum);
}

ViewState zoomedViewState(const ViewState &state, double anchorX, double anchorY, double factor,
                          HalfRanges base, double maximum)
{
    const ViewState start = clampViewState(state, base, maximum);
    if (!std::isfinite(anchorX) || !std::isfinite(anchorY) || !std::isfinite(factor)
        || factor <= 0.0)
        return start;
    const double zoom = std::clamp(start.zoom * factor, 1.0, maximum);
    const double ratio = zoom / start.zoom;
    return clampViewState({anchorX - (anchorX - start.centerX) / ratio,
                           anchorY - (anchorY - start.centerY) / ratio, zoom},
                          base, maximum);
}

} // namespace SmithChart
