// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "bandwidth.h"

#include "cartesian.h"

#include <algorithm>
#include <cmath>
#include <functional>

namespace Panel
{

namespace
{

using Levels = std::function<double(int)>; ///< in dB at an index; NaN without a value

/// Where a level first differs by a step from that at the start.
struct Edge {
    double hertz = qQNaN(); ///< NaN where it does not before the data end
    bool rises = false;

    bool isFound() const { return !std::isnan(hertz); }
};

/// Searches from an index upwards (1) or downwards (-1).
Edge findEdge(const TraceData &data, const Levels &levels, double index, double start, double step,
              int direction)
{
    double lastHertz = valueAt(data.frequencies, index);
    double lastLevel = start;
    const double from = direction > 0 ? std::floor(index) + 1.0 : std::ceil(index) - 1.0;
    for (int i = int(from); i >= 0 && i < data.points(); i += direction) {
        const double level = levels(i);
        const double hertz = data.frequencies.at(i);
        const double change = level - start;
        if (std::isnan(level))
            return {};
        if (std::abs(change) >= step) {
            const double wanted = start + std::copysign(step, change);
            const double share = (wanted - lastLevel) / (level - lastLevel);
            return {lastHertz + share * (hertz - lastHertz), change > 0.0};
        }
        lastHertz = hertz;
        lastLevel = level;
    }
    return {};
}

/// The power that is not reflected, in dB. Where all of it is, far below what can be measured, so
/// that an edge before it can be interpolated.
double absorbedDecibels(const std::complex<double> &reflection)
{
    constexpr double lowest = -200.0;
    const double absorbed = 1.0 - std::norm(reflection);
    return std::isnan(absorbed) ? absorbed
        : absorbed > 0.0        ? std::max(lowest, 10.0 * std::log10(absorbed))
                                : lowest;
}

/// The band whose edges these are; nothing where they do not belong together.
std::optional<Bandwidth> bandBetween(const Edge &low, const Edge &high, double decibels)
{
    const bool both = low.isFound() && high.isFound();
    if ((!low.isFound() && !high.isFound()) || (both && low.rises != high.rises)
        || (both && !(high.hertz > low.hertz)))
        return {};
    const bool rises = low.isFound() ? low.rises : high.rises;
    return Bandwidth{rises ? BandKind::Notch : BandKind::Peak, low.hertz, high.hertz, decibels};
}

} // namespace

std::optional<Bandwidth> bandwidthAt(const TraceData &data, double index, double decibels,
                                     bool reflection)
{
    if (data.points() == 0 || index < 0.0 || !(decibels > 0.0))
        return {};
    const double level = formatValueAt(data, index, TraceFormat::LogMagnitude);
    if (std::isnan(level))
        return {};
    const auto bandOf = [&](const Levels &levels, double start) {
        return bandBetween(findEdge(data, levels, index, start, decibels, -1),
                           findEdge(data, levels, index, start, decibels, 1), level);
    };
    if (reflection) {
        std::optional<Bandwidth> band =
            bandOf([&data](int i) { return absorbedDecibels(data.at(i)); },
                   absorbedDecibels(data.at(index)));
        if (band && band->kind == BandKind::Peak) {
            band->kind = BandKind::Absorption;
            return band;
        }
    }
    return bandOf(
        [&data](int i) { return formatValueAt(data, double(i), TraceFormat::LogMagnitude); },
        level);
}

} // namespace Panel
