// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <vnawidgets_export.h>

#include <QPainterPath>
#include <QPointF>
#include <QPolygonF>
#include <QVector>

#include <memory>
#include <optional>

namespace SmithChart
{

/// What a trace did in a limit test.
struct LimitResult {
    /// Points that fail one after the other, both ends included.
    struct Stretch {
        int first; ///<index of its first point
        int last; ///<index of its last point
    };

    int firstFailing = -1; ///< index, or -1
    QVector<Stretch> failing; ///< ascending; no two touch
    int tested = 0; ///< points that were judged: finite, and in the range

    /// Whether no point failed.
    bool passed() const { return firstFailing < 0; }
};

/// A range of stimulus values, both ends included.
struct StimulusRange {
    double low; ///<the lowest stimulus that counts
    double high; ///<the greatest one
};

/*! An area of a Smith chart that a trace must stay in, or keep out of. Coordinates are real and
    imaginary part of the reflection coefficient; the border belongs to the area.

    Setters refuse what has no area and then change nothing. An area that was never set permits
    everything.

    \code
    SmithChart::LimitArea matched;
    matched.setCircle({0.0, 0.0}, 0.1, SmithChart::LimitArea::StayInside);
    const SmithChart::LimitResult result = matched.test({0.0, 0.5}, {0.0, 0.0});
    if (!result.passed())
        qInfo("It fails from point %d on.", result.firstFailing);
    \endcode */
class VNAWIDGETS_EXPORT LimitArea
{
public:
    /// Which points pass.
    enum Rule {
        StayInside,
        KeepOut,
    };

    LimitArea();

    /// False unless everything is finite and the radius above 0.
    bool setCircle(const QPointF &centre, double radius, Rule rule);
    /// Between two magnitudes of reflection, and from one phase counterclockwise to another, in
    /// degrees; 360 apart or more is all around. False unless 0 <= \a low < \a high, and \a from is
    /// below \a to.
    bool setSector(double low, double high, double from, double to, Rule rule);
    /// False for fewer than 3 points, points that are not finite, and a bounding box without an area.
    /// Where it crosses itself, points with an odd winding are inside.
    bool setPolygon(const QPolygonF &polygon, Rule rule);

    /// Whether it has no area yet, and so fails nothing.
    bool isEmpty() const { return !m_shape; }
    /// Which points pass; StayInside at first.
    Rule rule() const { return m_rule; }
    /// Its outline; empty if nothing was set.
    QPainterPath outline() const;
    /// Whether a point of the plane lies in the area or on its border.
    bool contains(const QPointF &point) const;
    /// Whether a point obeys the rule.
    bool permits(const QPointF &point) const;

    /// Judges every finite point of a trace, cut to the shorter of both.
    [[nodiscard]] LimitResult test(const QVector<double> &real, const QVector<double> &imag) const;
    /// Judges the points whose stimulus lies in a range.
    [[nodiscard]] LimitResult test(const QVector<double> &real, const QVector<double> &imag,
                                   const QVector<double> &stimulus,
                                   const StimulusRange &range) const;

    class Shape;

private:
    void set(std::shared_ptr<const Shape> shape, Rule rule);

    std::shared_ptr<const Shape> m_shape; ///< shared between copies
    Rule m_rule = StayInside;
};

} // namespace SmithChart
