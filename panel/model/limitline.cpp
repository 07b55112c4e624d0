// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "limitline.h"

#include "cartesian.h"

#include <algorithm>
#include <cmath>

namespace Panel
{

double LimitLine::valueAt(double hertz) const
{
    const double share = stop > start ? (hertz - start) / (stop - start) : 0.0;
    return startValue + share * (stopValue - startValue);
}

bool LimitLine::isValid() const
{
    return diagramKind(format) == DiagramKind::Cartesian && std::isfinite(start)
        && std::isfinite(stop) && start >= 0.0 && start <= stop && std::isfinite(startValue)
        && std::isfinite(stopValue);
}

LimitVerdict testLimits(const TraceData &data, TraceFormat format, const QVector<LimitLine> &limits)
{
    const auto begin = data.frequencies.begin(), end = data.frequencies.end();
    const bool amongOthers = data.averagedPoints > 1 || format == TraceFormat::UnwrappedPhase
        || format == TraceFormat::GroupDelay;
    QVector<double> values;
    LimitVerdict verdict;
    QVector<bool> tested(limits.isEmpty() ? 0 : data.points(), false);
    for (const LimitLine &limit : limits) {
        if (limit.format != format)
            continue;
        if (amongOthers && values.isEmpty())
            values = formatValues(data, format);
        const int first = int(std::lower_bound(begin, end, limit.start) - begin);
        const int last = int(std::upper_bound(begin, end, limit.stop) - begin);
        for (int i = first; i < last; ++i) {
            const double value =
                amongOthers ? values.at(i) : formatValue(data.at(i), data.reference, format);
            if (std::isnan(value))
                continue;
            verdict.tested += !tested.at(i);
            tested[i] = true;
            const double bound = limit.valueAt(data.frequencies.at(i));
            if (limit.upper ? value > bound : value < bound)
                verdict.failing.append(i);
        }
    }
    std::sort(verdict.failing.begin(), verdict.failing.end());
    verdict.failing.erase(std::unique(verdict.failing.begin(), verdict.failing.end()),
                          verdict.failing.end());
    return verdict;
}

} // namespace Panel
