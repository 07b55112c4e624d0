// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
/*! \file
    Where to go along a trace without seeing it. Arithmetic on reflection coefficients alone, for
    traces of a million points and more. */
#pragma once

#include <vnawidgets_export.h>

#include <QFlags>
#include <QVector>

#include <optional>

namespace SmithChart
{

/// What is worth a stop on a trace. A trace is followed in the order of its points, which is that of
/// rising frequency.
enum TraceFeature {
    Resonance = 0x01, ///< the reactance goes from - to +: a series resonance
    RealAxis = 0x02, ///< the reactance goes from + to -: a parallel resonance
    Minimum = 0x04, ///< the magnitude is smallest here, and greater on both sides
    Maximum = 0x08, ///< the magnitude is greatest here, and less on both sides
    VswrCircle = 0x10, ///< the trace crosses the circle of a standing wave ratio
    LimitEdge = 0x20, ///< a stretch that fails a limit begins or ends
    MarkedPoint = 0x40, ///< a marker stands here
};
Q_DECLARE_FLAGS(TraceFeatures, TraceFeature)
Q_DECLARE_OPERATORS_FOR_FLAGS(TraceFeatures)

/// A place on a trace where something is.
struct TraceStop {
    double index; ///< into the trace's points; a crossing lies between two
    TraceFeatures features; ///< at least one
};

/// How far a step goes.
enum class WalkUnit {
    Point,
    View, ///< a tenth of what is in view
    Feature,
    End, ///< to the end of the trace
};

/// A step along a trace.
struct WalkStep {
    WalkUnit unit; ///< how far
    int direction; ///< 1 or -1
};

/// The step that a key stands for: left and right for a point, with Ctrl for a feature, Page Up and
/// Page Down, Home and End. Nothing for other keys and modifiers.
[[nodiscard]] VNAWIDGETS_EXPORT std::optional<WalkStep> walkStepOf(int key,
                                                                   Qt::KeyboardModifiers modifiers);

/*! Walks a trace by points, by distance and from feature to feature, in both directions.

    The features of the data are found in one pass, when they are first asked for; a step then is a
    binary search. Crossings are interpolated linearly between two points, in the imaginary part or
    in the magnitude. The sign of a reactance is that of the imaginary part of the reflection
    coefficient, because Im Z = Z0 2 Im G / |1 - G|^2 (Pozar, Microwave Engineering, section 2.4).
    Points that are not finite are gaps: no step ends on one, and nothing crosses within. Vectors
    are shared, not copied.

    \code
    SmithChart::TraceWalk walk;
    walk.setData({-0.5, -0.1, 0.3}, {-0.2, -0.1, 0.1});
    const auto stop = walk.nextFeature(0.0, 1);
    if (stop && stop->features.testFlag(SmithChart::Resonance))
        qInfo("It resonates at index %g.", stop->index); // 1.5
    \endcode */
class VNAWIDGETS_EXPORT TraceWalk
{
public:
    /// Takes real and imaginary parts of the reflection coefficient, cut to the shorter of both. Those
    /// that it has already cost nothing.
    void setData(const QVector<double> &real, const QVector<double> &imag);
    /// The standing wave ratio whose circle counts. Default: 2. False unless finite and above 1.
    bool setVswr(double ratio);
    /// See setVswr().
    double vswr() const { return m_vswr; }
    /// What counts beside noise, in units of the magnitude: an extreme must stand out by as much on
    /// both sides, a crossing go half as far before the next one. Default: 0.02. From 10,000 points
    /// on, it is at least ten standard deviations of the noise. False unless finite and above 0.
    bool setExcursion(double magnitude);
    /// See setExcursion().
    double excursion() const { return m_excursion; }
    /// Which features of the data count. Default: all of them.
    void setFeatures(TraceFeatures features);
    /// Indices of the first and last points of what fails its limits, in any order.
    void setLimitEdges(const QVector<double> &indices);
    /// Indices of the markers on the trace, in any order.
    void setMarkers(const QVector<double> &indices);

    /// The first finite point, or -1 where there is none.
    double start() const;
    /// The last finite point, or -1 where there is none.
    double end() const;
    /// So many points on, or back where \a points is negative, as far as there are any; between two
    /// points, the first step goes to the next one. -1 without points.
    double byPoints(double from, int points) const;
    /// The next point that is at least \a distance away in the plane of the reflection coefficient,
    /// or the last one in that direction (1 or -1). -1 without points.
    double byDistance(double from, int direction, double distance) const;
    /// The next place with a feature in a direction (1 or -1), if there is one.
    std::optional<TraceStop> nextFeature(double from, int direction) const;
    /// Where a step ends that begins at an index, or anywhere off the trace: there, all but a step to
    /// an end go to the first feature or point. A step within the view goes \a distance. At the end of
    /// all features it stays. Nothing where there are no points.
    std::optional<double> walked(double from, const WalkStep &step, double distance) const;
    /// What is at a place, if anything.
    TraceFeatures featuresAt(double index) const;
    /// All places with features of the data themselves, ascending: neither limits nor markers.
    const QVector<TraceStop> &dataFeatures() const;

private:
    bool isPoint(int index) const;
    int size() const;
    int pointFrom(int index, int direction) const;

    QVector<double> m_real;
    QVector<double> m_imag;
    double m_vswr = 2.0;
    double m_excursion = 0.02;
    TraceFeatures m_wanted = ~TraceFeatures();
    QVector<double> m_limitEdges; ///< ascending
    QVector<double> m_markers; ///< ascending
    mutable QVector<TraceStop> m_features;
    mutable bool m_found = false; ///< whether m_features belong to the data
};

} // namespace SmithChart
