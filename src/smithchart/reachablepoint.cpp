// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "reachablepoint_p.h"

#include <algorithm>
#include <cmath>

namespace SmithRender
{

int reachableIndex(const QVector<double> &real, const QVector<double> &imag,
                   const Viewport &viewport, const QPointF &pointer, int start,
                   double &squaredDistance)
{
    const int count = static_cast<int>(std::min(real.size(), imag.size()));
    if (!viewport.isUsable() || start >= count)
        return -1;
    const double xScale = viewport.width / viewport.xSpan();
    const double yScale = viewport.height / viewport.ySpan();
    const auto distanceAt = [&](int i) {
        const double dx = (real.at(i) - viewport.xMin) * xScale - pointer.x();
        const double dy = (viewport.yMax - imag.at(i)) * yScale - pointer.y();
        return dx * dx + dy * dy;
    };
    int best = start;
    double smallest = distanceAt(start);
    if (!std::isfinite(smallest))
        return -1;
    constexpr double slackPx = 4.0; // over the noise of a measurement
    const double reach = std::sqrt(smallest) + slackPx;
    for (const int step : {1, -1}) {
        for (int i = start + step; i >= 0 && i < count; i += step) {
            const double distance = distanceAt(i);
            if (!(distance <= reach * reach)) // a gap ends the way, too
                break;
            if (distance < smallest) {
                smallest = distance;
                best = i;
            }
        }
    }
    squaredDistance = smallest;
    return best;
}

} // namespace SmithRender
