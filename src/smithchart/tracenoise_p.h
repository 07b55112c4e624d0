// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QVector>

#include <algorithm>
#include <cmath>
#include <vector>

namespace SmithChart
{

/// The standard deviation of noise on a long trace, from the median of second differences: they know
/// nothing of the trace itself, which hardly bends between neighbours. 0 for a short one.
inline double noiseOf(const QVector<double> &real, const QVector<double> &imag, int count)
{
    constexpr int longTrace = 10000;
    constexpr int samples = 500;
    if (count < longTrace)
        return 0.0;
    std::vector<double> differences;
    for (int sample = 1; sample <= samples; ++sample) {
        const int i = static_cast<int>(qint64(sample) * (count - 2) / samples);
        for (const QVector<double> *part : {&real, &imag}) {
            const double difference = part->at(i - 1) - 2.0 * part->at(i) + part->at(i + 1);
            if (std::isfinite(difference))
                differences.push_back(std::fabs(difference));
        }
    }
    if (differences.empty())
        return 0.0;
    const auto middle = differences.begin() + std::ptrdiff_t(differences.size() / 2);
    std::nth_element(differences.begin(), middle, differences.end());
    // The variance of a second difference is six times that of a point; half of all normally
    // distributed values are below 0.6745 standard deviations.
    return *middle / (0.6745 * std::sqrt(6.0));
}

} // namespace SmithChart
