// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "segment_p.h"

#include <cstddef>
#include <utility>
#include <vector>

namespace SmithRender
{

/*! The Ramer-Douglas-Peucker method, taken literally (Ramer 1972; Douglas and Peucker 1973), with
    distances to the segment: marks the points of a line that stand for all of it. What the faster
    routines have to agree with. An object with memory, so that many short lines share it; never
    recursive. */
class DouglasPeucker
{
public:
    /// For points at (\a x, \a y); those to keep are marked in \a kept. All must outlive this.
    DouglasPeucker(const std::vector<double> &x, const std::vector<double> &y,
                   double squaredTolerance, std::vector<bool> &kept)
        : m_x(x)
        , m_y(y)
        , m_squaredTolerance(squaredTolerance)
        , m_kept(kept)
    {
        m_stack.reserve(64);
    }

    /// Simplifies the line from point \a first to point \a last, all finite.
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
        return values[static_cast<std::size_t>(i)];
    }
    void mark(int i) { m_kept[static_cast<std::size_t>(i)] = true; }

    const std::vector<double> &m_x;
    const std::vector<double> &m_y;
    const double m_squaredTolerance;
    std::vector<bool> &m_kept;
    std::vector<std::pair<int, int>> m_stack;
};

} // namespace SmithRender
