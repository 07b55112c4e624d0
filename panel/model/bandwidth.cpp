// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "bandwidth.h"

#include "cartesian.h"

#include <cmath>

namespace Panel
{

namespace
{

/// Where the magnitude first differs by a step from that at the start.
struct Edge {
    double hertz = 0.0;
    bool rises = false;
};

/// Searches from an index in steps of 1 or -1.
std::optional<Edge> findEdge(const TraceData &data, double index, double start, double step,
                             int direction)
{
    double lastHertz = valueAt(data.frequencies, index);
    double lastLevel = start;
    const double from = direction > 0 ? std::floor(index) + 1.0 : std::ceil(index) - 1.0;
    for (int i = int(from); i >= 0 && i < data.points(); i += direction) {
        const double level = formatValueAt(data, double(i), TraceFormat::LogMagnitude);
        const double hertz = data.frequencies.at(i);
        const double change = level - start;
        if (std::isnan(level))
            return {};
        if (std::abs(change) >= step) {
            const double wanted = start + std::copysign(step, change);
            const double share = (wanted - lastLevel) / (level - lastLevel);
            return Edge{lastHertz + share * (hertz - lastHertz), change > 0.0};
        }
        lastHertz = hertz;
        lastLevel = level;
    }
    return {};
}

} // namespace

std::optional<Bandwidth> bandwidthAt(const TraceData &data, double index, double decibels)
{
    if (data.points() == 0 || index < 0.0 || !(decibels > 0.0))
        return {};
    const double level = formatValueAt(data, index, TraceFormat::LogMagnitude);
    if (std::isnan(level))
        return {};
    const std::optional<Edge> low = findEdge(data, index, level, decibels, -1);
    const std::optional<Edge> high = findEdge(data, index, level, decibels, 1);
    if (!low || !high || low->rises != high->rises || !(high->hertz > low->hertz))
        return {};
    return Bandwidth{low->hertz, high->hertz, level, low->rises};
}

} // namespace Panel
