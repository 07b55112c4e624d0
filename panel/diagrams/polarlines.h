// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
/*! \file
    Which circles and rays a polar diagram has in view, and where they are labelled. */
#pragma once

#include <QLineF>
#include <QRectF>
#include <QVector>

namespace Panel
{

/// Where a polar diagram lies, in pixels.
struct PolarPlace {
    QPointF centre;
    double radius = 0.0; ///< of the outermost circle
    QRectF seen; ///< the part that is drawn
    QRectF labels; ///< that part and the room around it

    /// A point at a share of the radius and an angle in degrees, counted against the clock.
    QPointF at(double share, double degrees) const;
};

/// Directions in degrees, counted against the clock.
struct AngleRange {
    double from = 0.0;
    double to = 360.0;
};

/// The directions in which a rectangle lies as it is seen from a point: all of them from within it.
AngleRange anglesOf(const QRectF &rectangle, const QPointF &from);

/// The lines of a polar diagram that are in view.
struct PolarLines {
    struct Circle {
        double share; ///< of the outermost circle's radius
        AngleRange seen;
        QPointF label; ///< its middle
        bool isLabelled;
    };
    struct Ray {
        double degrees; ///< above -180, up to 180
        QLineF line; ///< from the centre outwards
        QPointF label; ///< its middle
        bool isLabelled; ///< false for a stretch in a corner of the view
    };
    QVector<Circle> circles;
    QVector<Ray> rays;
};

/*! The lines of a diagram with so many divisions from its centre to the outermost circle, at 30
    degrees: more of them, at round values, where they have room.

    Circles are labelled to the right of the centre, or in the middle of the view where that is out of
    sight; rays beyond the outermost circle, or within the
    edge of the view. */
PolarLines polarLines(const PolarPlace &place, int divisions, const QSizeF &label);

} // namespace Panel
