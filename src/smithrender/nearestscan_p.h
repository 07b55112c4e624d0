// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "projection_p.h"
#include "segment_p.h"

#include <cmath>
#include <limits>

namespace SmithRender
{

/*! Looks for the trace point nearest to a pointer among the ranges it is shown, in any order: what
    it finds depends only on which points it has seen. Distances are squared, in device pixels. */
class NearestScan
{
public:
    /// For the pointer at (\a x, \a y) in device pixels.
    NearestScan(const double *real, const double *imag, const Projection &projection, double x,
                double y)
        : m_real(real)
        , m_imag(imag)
        , m_projection(projection)
        , m_x(x)
        , m_y(y)
    {
    }

    const Projection &projection() const { return m_projection; }
    double x() const { return m_x; }
    double y() const { return m_y; }
    /// Nothing farther than this can change the result any more.
    double best() const { return std::min(m_point.distance, m_segment.distance); }

    /// Takes in the points \a first to \a end - 1, and the line that leads to each from the point
    /// before it.
    void visit(int first, int end)
    {
        Projected previous = first > 0 ? project(first - 1) : Projected();
        for (int i = first; i < end; ++i) {
            const Projected current = project(i);
            if (current.valid) {
                m_point.offer(current.distance, i, i);
                if (previous.valid) {
                    m_segment.offer(squaredDistanceToSegment(m_x, m_y, previous.x, previous.y,
                                                             current.x, current.y),
                                    i - 1, previous.distance <= current.distance ? i - 1 : i);
                }
            }
            previous = current;
        }
    }

    /// The nearest point, or -1 with an infinite distance.
    int index() const
    {
        return m_segment.distance < m_point.distance ? m_segment.index : m_point.index;
    }

private:
    struct Projected {
        double x = 0.0;
        double y = 0.0;
        double distance = 0.0; ///< to the pointer
        bool valid = false;
    };

    struct Candidate {
        double distance = std::numeric_limits<double>::infinity();
        int order = std::numeric_limits<int>::max(); ///< the lower one wins a tie
        int index = -1;

        void offer(double newDistance, int newOrder, int newIndex)
        {
            if (newDistance < distance
                || (newDistance == distance && newOrder < order && index >= 0))
                *this = {newDistance, newOrder, newIndex};
        }
    };

    Projected project(int i) const
    {
        Projected p;
        p.x = m_projection.x(m_real[i]);
        p.y = m_projection.y(m_imag[i]);
        p.distance = SmithRender::squaredDistance(p.x, p.y, m_x, m_y);
        // A part that is not finite does not become so by projection.
        p.valid = std::isfinite(p.x) && std::isfinite(p.y);
        return p;
    }

    const double *m_real;
    const double *m_imag;
    Projection m_projection;
    double m_x;
    double m_y;
    Candidate m_point;
    Candidate m_segment;
};

} // namespace SmithRender
