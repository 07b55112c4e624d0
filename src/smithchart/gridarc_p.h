// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <base/testexport_p.h>

#include <QPointF>
#include <QRectF>
#include <QVector>

#include <smithchart/arcstretch_p.h>

namespace SmithChart
{

/// Which part of the impedance (or admittance) a grid line holds constant.
enum class GridPart {
    Real, ///< resistance, conductance
    Imaginary, ///< reactance, susceptance
};

/*! A piece of a line of constant resistance or reactance in the plane of the reflection coefficient
    G = (z - 1) / (z + 1), for normalised values.

    It is measured by the angle of z + 1, which is half the angle at the line's centre: equal steps
    of it are equal steps on the circle, and it stays exact for lines so flat that centre and radius
    are of no use. Along a line of constant resistance it runs from -pi/2 to pi/2, along one of
    constant reactance from that at the rim (r = 0) to 0 at the open circuit. */
class VNAWIDGETS_TEST_EXPORT GridArc
{
public:
    /// The line of \a value, between \a from and \a to of the other part; either may be infinite.
    /// A reactance of 0 is the real axis, a straight line, and no arc.
    GridArc(GridPart part, double value, double from, double to);

    GridPart part() const { return m_part; }
    double value() const { return m_value; }
    double firstAngle() const { return m_first; }
    double lastAngle() const { return m_last; } ///< not below firstAngle()
    double radius() const; ///< of the line's circle

    /// The reflection coefficient at an angle of z + 1.
    [[nodiscard]] QPointF at(double angle) const;

    /// The stretches that lie within \a rect of the plane, in order; at most five.
    [[nodiscard]] QVector<ArcStretch> within(const QRectF &rect) const;
    /// Points of a stretch, so many that their polygon strays from the arc by \a tolerance at most.
    [[nodiscard]] QVector<QPointF> points(const ArcStretch &stretch, double tolerance) const;

private:
    QPointF at(double cosine, double sine) const;

    GridPart m_part;
    double m_value;
    double m_first;
    double m_last;
};

} // namespace SmithChart
