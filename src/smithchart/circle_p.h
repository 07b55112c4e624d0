// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
/*! \file
    Circles that engineers draw into a Smith chart, in the plane of the reflection coefficient
    G = (z - 1) / (z + 1), with z = r + jx = 1 / (g + jb) normalised. */
#pragma once

#include <base/testexport_p.h>

#include <QPointF>
#include <QPolygonF>
#include <QRectF>
#include <QVector>

#include <optional>

namespace SmithChart
{

struct Circle {
    QPointF centre;
    double radius = 0.0;

    /// Finite, and with a radius above 0.
    bool isUsable() const;
};

/// \name Circles of one quantity
/// Nothing for a value that has no circle; a straight line is none.
///@{
/// About the centre, for a voltage standing wave ratio above 1.
[[nodiscard]] VNAWIDGETS_TEST_EXPORT std::optional<Circle> vswrCircle(double vswr);
/// About the centre, for a magnitude of reflection above 0.
[[nodiscard]] VNAWIDGETS_TEST_EXPORT std::optional<Circle> reflectionCircle(double magnitude);
/// For r of at least 0.
[[nodiscard]] VNAWIDGETS_TEST_EXPORT std::optional<Circle> resistanceCircle(double resistance);
/// For x other than 0.
[[nodiscard]] VNAWIDGETS_TEST_EXPORT std::optional<Circle> reactanceCircle(double reactance);
/// For g of at least 0.
[[nodiscard]] VNAWIDGETS_TEST_EXPORT std::optional<Circle> conductanceCircle(double conductance);
/// For b other than 0.
[[nodiscard]] VNAWIDGETS_TEST_EXPORT std::optional<Circle> susceptanceCircle(double susceptance);
/// The arcs of |x| / r = q above 0: for inductive and for capacitive impedances; else empty.
[[nodiscard]] VNAWIDGETS_TEST_EXPORT QVector<Circle> qualityCircles(double q);
///@}

/// The parts of a circle that lie within \a rect, and in the unit disk if \a insideChart; each as
/// a line that strays from the circle by \a tolerance at most.
[[nodiscard]] VNAWIDGETS_TEST_EXPORT QVector<QPolygonF>
circleLines(const Circle &circle, const QRectF &rect, bool insideChart, double tolerance);

} // namespace SmithChart
