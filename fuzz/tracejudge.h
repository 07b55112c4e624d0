// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <smithchart/indexedtrace_p.h>
#include <smithchart/viewportprojection_p.h>

#include <QPointF>
#include <QVector>

#include <algorithm>
#include <cmath>
#include <map>

namespace TraceJudge
{

struct Trace {
    QVector<double> real;
    QVector<double> imag;
};

/*! Tells a tie from a fault: whether kept indices are a right answer, where points and distances
    that differ by no more than the rounding of pixel coordinates count as equal. */
class Judge
{
public:
    Judge(const Trace &trace, const SmithRender::Viewport &viewport, const QVector<int> &kept)
        : m_kept(kept)
        , m_tolerance(viewport.tolerancePx)
    {
        const SmithRender::Projection projection = SmithRender::projectionOf(viewport);
        for (int i = 0; i < trace.real.size(); ++i) {
            m_points.append(QPointF(projection.x(trace.real[i]), projection.y(trace.imag[i])));
            if (isValid(i)) {
                m_slack = std::max({m_slack, 1e-12 * std::fabs(m_points[i].x()),
                                    1e-12 * std::fabs(m_points[i].y())});
            }
        }
    }

    bool accepts()
    {
        const int count = static_cast<int>(m_points.size());
        for (int first = 0; first < count; ++first) {
            if (!isValid(first)) {
                if (!isKept(first))
                    return false;
                continue;
            }
            int last = first;
            while (last + 1 < count && isValid(last + 1))
                ++last;
            if (!isKept(first) || !isKept(last) || !explains(first, last))
                return false;
            first = last;
        }
        return true;
    }

private:
    bool isValid(int i) const
    {
        return std::isfinite(m_points[i].x()) && std::isfinite(m_points[i].y());
    }
    bool isKept(int i) const { return std::binary_search(m_kept.begin(), m_kept.end(), i); }

    double distance(int i, int a, int b) const
    {
        const QPointF d = m_points[b] - m_points[a];
        const QPointF p = m_points[i] - m_points[a];
        const double length = QPointF::dotProduct(d, d);
        const double u =
            length > 0.0 ? std::clamp(QPointF::dotProduct(p, d) / length, 0.0, 1.0) : 0.0;
        const QPointF e = p - u * d;
        return std::hypot(e.x(), e.y());
    }

    /// Whether the kept points between a and b are those of some order of right splits.
    bool explains(int a, int b)
    {
        const auto known = m_explained.find({a, b});
        if (known != m_explained.end())
            return known->second;
        const auto anyKept = std::upper_bound(m_kept.begin(), m_kept.end(), a) != m_kept.end()
            && *std::upper_bound(m_kept.begin(), m_kept.end(), a) < b;
        double farthest = -1.0;
        for (int i = a + 1; i < b; ++i)
            farthest = std::max(farthest, distance(i, a, b));
        bool right = !anyKept && farthest <= m_tolerance + m_slack;
        if (!right && anyKept && farthest > m_tolerance - m_slack) {
            for (int i = a + 1; i < b && !right; ++i) {
                right = isKept(i) && distance(i, a, b) >= farthest - m_slack && explains(a, i)
                    && explains(i, b);
            }
        }
        m_explained[{a, b}] = right;
        return right;
    }

    const QVector<int> m_kept;
    const double m_tolerance;
    double m_slack = 1e-12;
    QVector<QPointF> m_points;
    std::map<std::pair<int, int>, bool> m_explained;
};

} // namespace TraceJudge
