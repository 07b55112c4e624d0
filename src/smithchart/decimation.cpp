// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <smithchart/decimation.h>

#include "nearestscan_p.h"
#include "segment_p.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <utility>
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

/// Marks the points of one run without gaps. A helper with memory, so that many short runs share
/// it.
class RunSimplifier
{
public:
    RunSimplifier(const std::vector<double> &x, const std::vector<double> &y,
                  double squaredTolerance, std::vector<bool> &kept)
        : m_x(x)
        , m_y(y)
        , m_squaredTolerance(squaredTolerance)
        , m_kept(kept)
    {
        m_stack.reserve(64);
    }

    void simplify(int first, int last)
    {
        mark(first);
        mark(last);
        m_stack.emplace_back(first, last);
        while (!m_stack.empty()) {
            const auto [a, b] = m_stack.back();
            m_stack.pop_back();
            double farthest = -1.0;
            int split = a;
            for (int i = a + 1; i < b; ++i) {
                const double distance = squaredDistanceToSegment(
                    at(m_x, i), at(m_y, i), at(m_x, a), at(m_y, a), at(m_x, b), at(m_y, b));
                if (distance > farthest) {
                    farthest = distance;
                    split = i;
                }
            }
            if (farthest > m_squaredTolerance) {
                mark(split);
                m_stack.emplace_back(a, split);
                m_stack.emplace_back(split, b);
            }
        }
    }

private:
    static double at(const std::vector<double> &values, int i)
    {
        return values[static_cast<size_t>(i)];
    }
    void mark(int i) { m_kept[static_cast<size_t>(i)] = true; }

    const std::vector<double> &m_x;
    const std::vector<double> &m_y;
    const double m_squaredTolerance;
    std::vector<bool> &m_kept;
    std::vector<std::pair<int, int>> m_stack;
};

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

    const Projection projection(viewport);
    const auto size = static_cast<size_t>(count);
    std::vector<double> x(size);
    std::vector<double> y(size);
    std::vector<bool> kept(size);
    RunSimplifier run(x, y, viewport.tolerancePx * viewport.tolerancePx, kept);
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
    NearestScan scan(real.constData(), imag.constData(), viewport, pointer);
    if (viewport.isUsable())
        scan.visit(0, count);
    return scan.result(squaredDistance);
}

} // namespace SmithRender
