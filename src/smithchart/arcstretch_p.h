// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QVector>

#include <algorithm>
#include <array>

namespace SmithChart
{

inline constexpr double pi = 3.141592653589793;

/// A stretch of an arc, by the angles that the arc is measured by.
struct ArcStretch {
    double first;
    double last;
};

/// Collects the few angles at which an arc can enter or leave an area.
class ArcCrossings
{
public:
    ArcCrossings(double first, double last)
        : m_first(first)
        , m_last(last)
    {
        m_angles[m_count++] = first;
    }

    void add(double angle)
    {
        if (angle > m_first && angle < m_last) // never for NaN: an edge that is not met
            m_angles[m_count++] = angle;
    }

    /// The stretches whose middle is inside: between two crossings an arc is so or not.
    template<typename IsInside>
    QVector<ArcStretch> stretches(const IsInside &isInside)
    {
        m_angles[m_count++] = m_last;
        std::sort(m_angles.begin(), m_angles.begin() + m_count);
        QVector<ArcStretch> inside;
        for (std::size_t i = 1; i < m_count; ++i) {
            const double first = m_angles[i - 1];
            const double last = m_angles[i];
            if (!(first < last) || !isInside((first + last) / 2.0))
                continue;
            if (!inside.isEmpty() && inside.last().last == first)
                inside.last().last = last;
            else
                inside.append({first, last});
        }
        return inside;
    }

private:
    double m_first;
    double m_last;
    std::array<double, 32> m_angles = {}; // two ends, and at most six crossings an edge
    std::size_t m_count = 0;
};

} // namespace SmithChart
