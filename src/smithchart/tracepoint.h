// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QPointF>
#include <QVector>

#include <algorithm>
#include <cmath>
#include <optional>

namespace SmithChart
{

/*! The point of a trace at a fractional index, interpolated linearly between two points.
    Nothing for an index outside 0 to n - 1 or beside a point that is not finite; n is the shorter
    length.
 */
[[nodiscard]] inline std::optional<QPointF> tracePoint(const QVector<double> &real,
                                                       const QVector<double> &imag, double index)
{
    const int n = static_cast<int>(std::min(real.size(), imag.size()));
    if (n < 1 || !std::isfinite(index) || index < 0.0 || index > n - 1.0)
        return std::nullopt;
    const int i = static_cast<int>(std::floor(index));
    const double fraction = index - i;
    const auto finite = [](double x, double y) { return std::isfinite(x) && std::isfinite(y); };
    if (!finite(real.at(i), imag.at(i)))
        return std::nullopt;
    if (fraction == 0.0)
        return QPointF(real.at(i), imag.at(i));
    if (!finite(real.at(i + 1), imag.at(i + 1)))
        return std::nullopt;
    const auto between = [fraction](double p, double q) {
        const double difference = q - p;
        // The weighted sum where the difference is beyond all numbers.
        return std::isfinite(difference) ? p + difference * fraction
                                         : p * (1.0 - fraction) + q * fraction;
    };
    return QPointF(between(real.at(i), real.at(i + 1)), between(imag.at(i), imag.at(i + 1)));
}

} // namespace SmithChart
