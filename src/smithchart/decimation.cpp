// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <smithchart/decimation.h>

#include "viewportprojection_p.h"

#include <smithrender/douglaspeucker_p.h>
#include <smithrender/nearestscan_p.h>

#include <algorithm>
#include <iterator>
#include <numeric>
#include <vector>

namespace SmithRender
{

namespace
{

DecimationResult passThrough(int count)
{
    DecimationResult result;
    result.keptIndices.resize(count);
    std::iota(result.keptIndices.begin(), result.keptIndices.end(), 0);
    result.passedThrough = true;
    return result;
}

} // namespace

bool showsAllPoints(int count, const Viewport &viewport)
{
    return !viewport.isUsable() || std::max(2.0 * viewport.deviceWidth(), 256.0) >= count;
}

DecimationResult decimate(const QVector<double> &real, const QVector<double> &imag,
                          const Viewport &viewport)
{
    const int count = static_cast<int>(std::min(real.size(), imag.size()));
    if (count < 1)
        return {};
    if (showsAllPoints(count, viewport))
        return passThrough(count);

    const Projection projection = projectionOf(viewport);
    const auto size = static_cast<size_t>(count);
    std::vector<double> x(size);
    std::vector<double> y(size);
    std::vector<bool> kept(size);
    DouglasPeucker run(x, y, viewport.tolerancePx * viewport.tolerancePx, kept);
    const auto isValid = [&](int i) { return std::isfinite(real[i]) && std::isfinite(imag[i]); };

    for (int i = 0; i < count; ++i) {
        if (!isValid(i))
            continue;
        const auto at = static_cast<size_t>(i);
        x[at] = projection.x(real[i]);
        y[at] = projection.y(imag[i]);
        if (!std::isfinite(x[at]) || !std::isfinite(y[at]))
            return passThrough(count);
    }

    int first = -1;
    for (int i = 0; i < count; ++i) {
        if (isValid(i)) {
            if (first < 0)
                first = i;
            continue;
        }
        if (first >= 0)
            run.simplify(first, i - 1);
        first = -1;
        kept[static_cast<size_t>(i)] = true;
    }
    if (first >= 0)
        run.simplify(first, count - 1);

    DecimationResult result;
    result.keptIndices.reserve(static_cast<int>(std::count(kept.begin(), kept.end(), true)));
    for (int i = 0; i < count; ++i) {
        if (kept[static_cast<size_t>(i)])
            result.keptIndices.append(i);
    }
    result.decimated = result.keptIndices.size() < count;
    return result;
}

QVector<int> mergeIndices(const QVector<int> &kept, const QVector<int> &mandatory, int count)
{
    QVector<int> wanted;
    std::copy_if(mandatory.begin(), mandatory.end(), std::back_inserter(wanted),
                 [count](int i) { return i >= 0 && i < count; });
    if (wanted.isEmpty())
        return kept;
    std::sort(wanted.begin(), wanted.end());
    wanted.erase(std::unique(wanted.begin(), wanted.end()), wanted.end());

    QVector<int> merged;
    merged.reserve(kept.size() + wanted.size());
    std::set_union(kept.begin(), kept.end(), wanted.begin(), wanted.end(),
                   std::back_inserter(merged));
    return merged;
}

int nearestIndex(const QVector<double> &real, const QVector<double> &imag, const Viewport &viewport,
                 const QPointF &pointer, double *squaredDistance)
{
    const int count = static_cast<int>(std::min(real.size(), imag.size()));
    NearestScan scan = scanFor(viewport, pointer, real.constData(), imag.constData());
    if (viewport.isUsable())
        scan.visit(0, count);
    return nearestOf(scan, viewport, squaredDistance);
}

} // namespace SmithRender
