// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "tracesummary.h"

#include "tracenoise_p.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace SmithChart
{

namespace
{

/// Counts how often a line turns, over steps that are long beside noise.
class TurnCount
{
public:
    explicit TurnCount(double noise)
        : m_step(std::max(0.02, 10.0 * noise))
    {
    }

    void addPoint(double real, double imag)
    {
        if (!m_begun) {
            m_begun = true;
            m_real = real;
            m_imag = imag;
            return;
        }
        const double dx = real - m_real, dy = imag - m_imag;
        if (dx * dx + dy * dy < m_step * m_step)
            return;
        if (m_dx != 0.0 || m_dy != 0.0)
            m_angle += std::atan2(m_dx * dy - m_dy * dx, m_dx * dx + m_dy * dy);
        m_dx = dx;
        m_dy = dy;
        m_real = real;
        m_imag = imag;
    }
    int wholeTurns() const
    {
        // The first and the last step turn nothing, and a loop need not quite close to be one.
        constexpr double missing = 0.1;
        const double turns = std::fabs(m_angle) / (2.0 * std::acos(-1.0));
        return static_cast<int>(turns + missing);
    }

private:
    const double m_step;
    bool m_begun = false;
    double m_real = 0.0, m_imag = 0.0, m_dx = 0.0, m_dy = 0.0;
    double m_angle = 0.0;
};

} // namespace

double TraceSummary::vswr() const
{
    return magnitude < 1.0 ? (1.0 + magnitude) / (1.0 - magnitude)
                           : std::numeric_limits<double>::infinity();
}

TraceSummary summarise(const QVector<double> &real, const QVector<double> &imag, double vswr)
{
    TraceSummary summary;
    const int count = static_cast<int>(std::min(real.size(), imag.size()));
    double smallest = std::numeric_limits<double>::infinity();
    TurnCount turns(noiseOf(real, imag, count));
    const auto power = [&](int i) { return real.at(i) * real.at(i) + imag.at(i) * imag.at(i); };
    for (int i = 0; i < count; ++i) {
        const double here = power(i);
        if (!std::isfinite(here))
            continue;
        if (summary.first < 0)
            summary.first = i;
        summary.last = i;
        if (here < smallest) {
            smallest = here;
            summary.best = i;
        }
        turns.addPoint(real.at(i), imag.at(i));
    }
    if (summary.best < 0)
        return summary;
    summary.magnitude = std::sqrt(smallest);
    summary.loops = turns.wholeTurns();
    const double radius = (vswr - 1.0) / (vswr + 1.0);
    if (!(summary.magnitude < radius))
        return summary;
    const auto edge = [&](int direction) {
        int i = summary.best;
        double inside = summary.magnitude - radius;
        for (int next = i + direction; next >= 0 && next < count; i = next, next += direction) {
            const double outside = std::sqrt(power(next)) - radius;
            if (!std::isfinite(outside))
                break;
            if (outside >= 0.0)
                return i + direction * inside / (inside - outside);
            inside = outside;
        }
        return double(i);
    };
    summary.bandLow = edge(-1);
    summary.bandHigh = edge(1);
    return summary;
}

} // namespace SmithChart
