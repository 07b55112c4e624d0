// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
/*! \file
    The geometry of the Smith chart's grid in the plane of the reflection coefficient, as plain
    numbers.

    With z = r + jx the normalised impedance and G = (z - 1) / (z + 1) the reflection coefficient,
    constant r maps to a circle about (r/(r+1), 0) with radius 1/(r+1), and constant x to one about
    (1, 1/x) with radius 1/x (P. H. Smith, "Transmission line calculator", Electronics, January
    1939). The admittance chart is the same picture turned by half a turn. */
#pragma once

#include <vnawidgets_export.h>

#include <QString>
#include <QVector>
#include <Qt>

namespace SmithChart
{

/// Runs of points: x[k] and y[k] have equal lengths and make one connected line.
struct Runs {
    QVector<QVector<double>> x; ///< real parts, a list a run
    QVector<QVector<double>> y; ///< imaginary parts
};

/// Text labels; the three lists have equal lengths.
struct GridLabels {
    QVector<double> x; ///< where it stands: real part
    QVector<double> y; ///< imaginary part
    QVector<QString> text; ///< what it says
};

/// One of the two charts: the first runs are the resistance (conductance) circles, one a value, in
/// order; the others are the reactance (susceptance) arcs.
struct ChartGrid {
    Runs circles; ///< circles, then arcs
    GridLabels labels; ///< of the values
};

/// Both charts, the rim and the real axis.
struct Grid {
    ChartGrid impedance; ///< circles of resistance, arcs of reactance
    ChartGrid admittance; ///< circles of conductance, arcs of susceptance
    QVector<double> boundaryX; ///< the unit circle, samples + 1 points
    QVector<double> boundaryY; ///< as many
    QVector<double> realAxisX; ///< the horizontal diameter, 2 points
    QVector<double> realAxisY; ///< 2 points
};

/*! Appends the parts of a circle that lie inside the unit disk, one run an arc. The circle is
    walked from angle 0 in \a samples steps, so an arc that spans angle 0 arrives in two runs; \a
    radius may be negative, which starts the walk on the far side. */
VNAWIDGETS_EXPORT void appendCircleInsideUnitDisk(double centerX, double centerY, double radius,
                                                  int samples, Runs &runs);

/// The whole grid for the given normalised values; empty circles and boundary for \a samples
/// below 1.
[[nodiscard]] VNAWIDGETS_EXPORT Grid gridGeometry(const QVector<double> &resistances,
                                                  const QVector<double> &reactances, int samples);

/// Where a label lies relative to its point, as Qt::Alignment flags.
[[nodiscard]] VNAWIDGETS_EXPORT Qt::Alignment labelAlignment(double labelX, double labelY);

} // namespace SmithChart
