// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "network.h"
#include "traceformat.h"

#include <QHash>

#include <complex>

namespace Panel
{

/// What a marker goes to by itself, whenever its trace has other data.
enum class Tracking {
    Off,
    Maximum,
    Minimum,
    Fixed, ///< nowhere: it keeps its place and its value, whatever becomes of the trace
};
constexpr int trackingCount = 4;

/// What a fixed marker keeps of its trace.
struct FixedPoint {
    std::complex<double> s;
    std::complex<double> reference = 50.0; ///< in ohms
    TraceFormat format = TraceFormat::Smith; ///< that the trace had
    double value = 0.0; ///< in that format
};

/// A marked frequency of a trace. Where it stands in the data on show is derived from it.
struct Marker {
    int trace = 0; ///< id of the trace
    int number = 0; ///< from 1 within the trace
    StimulusPlace place; ///< where the user set it, or where it has gone
    Tracking tracking = Tracking::Off;
    FixedPoint fixed; ///< what it keeps while it is Tracking::Fixed

    bool isFixed() const { return tracking == Tracking::Fixed; }
};

/// What became of a marker.
struct MarkerChange {
    enum Kind {
        Added,
        Moved,
        Removed,
    };
    Kind kind;
    int trace;
    int number;
};

/*! The markers of all traces: which there are, which one is selected, which one the others of a
    trace are read against, and whether those of one number stand together.

    Coupled, a number stands at the same frequency on all traces. What a call has changed is
    returned, to be told when all of it is done. */
class Markers
{
public:
    /// How many markers a trace can have.
    static constexpr int perTrace = 6;

    using Changes = QVector<MarkerChange>;

    /// In the order they were added.
    const QVector<Marker> &all() const { return m_all; }
    /// The markers of a trace by their numbers.
    QVector<Marker> of(int trace) const;
    /// The marker of this trace and number, or null.
    const Marker *find(int trace, int number) const;
    /// The selected marker, or null.
    const Marker *selected() const { return find(m_selectedTrace, m_selectedNumber); }
    /// The marker that the others of its trace are read against, or null.
    const Marker *reference(int trace) const { return find(trace, m_references.value(trace)); }
    /// The lowest number that a trace has no marker of, or 0 when it has them all.
    int freeNumber(int trace) const;
    bool isDiscrete() const { return m_discrete; }
    bool isCoupled() const { return m_coupled; }

    /// Removes all markers; markers can be set on these traces from now on.
    void reset(const QVector<int> &traces);
    /// Markers can be set on these traces; those of others go. Returns what has changed. Where they
    /// are coupled, a trace that is new gets what the others have.
    Changes setTraces(const QVector<int> &traces);
    /// Sets a marker, or moves the one of this number; one that is fixed stays.
    Changes place(int trace, int number, const StimulusPlace &place);
    Changes remove(int trace, int number);
    /// False for a marker that does not exist, and for what it does already; a fixed one is fixed by
    /// fix().
    bool setTracking(int trace, int number, Tracking tracking);
    /// False for a marker that does not exist.
    bool fix(int trace, int number, const FixedPoint &point);
    /// A marker that does not exist, such as number 0, leaves none selected. True if another one is
    /// selected than before.
    bool select(int trace, int number);
    /// A marker that does not exist, such as number 0, leaves the trace without a reference.
    /// Returns the traces that have another one than before.
    QVector<int> setReference(int trace, int number);
    bool setDiscrete(bool discrete);
    /// Gives all traces the markers of the active one, and each marker that it lacks from the first
    /// trace that has it.
    Changes setCoupled(bool coupled, int activeTrace);
    /// Gives all traces the reference of the active one or, if it has none, of the first that has.
    /// Returns the traces that have another one than before.
    QVector<int> shareReference(int activeTrace);

private:
    QVector<int> reach(int trace) const { return m_coupled ? m_traces : QVector<int>{trace}; }
    /// All traces, this one first.
    QVector<int> ordered(int first) const;

    QVector<int> m_traces;
    QVector<Marker> m_all;
    QHash<int, int> m_references; ///< marker numbers by trace
    int m_selectedTrace = 0;
    int m_selectedNumber = 0;
    bool m_discrete = false;
    bool m_coupled = false;
};

} // namespace Panel
