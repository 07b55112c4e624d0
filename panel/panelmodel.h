// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "network.h"
#include "stimulus.h"
#include "sweep.h"

#include <QObject>

namespace Panel
{

/// One line on the panel: a parameter of a network.
struct Trace {
    /// What it tells decides which diagram shows it.
    enum Kind {
        Reflection,
        Transmission,
    };

    int id = 0; ///< from 1, unique on the panel
    int network = 0; ///< index into PanelModel::networks()
    int to = 1; ///< port that the wave leaves
    int from = 1; ///< port that the wave enters
    bool visible = true;

    Kind kind() const { return to == from ? Reflection : Transmission; }
};

/// A marked point of a trace.
struct Marker {
    int trace = 0; ///< id of the trace
    int number = 0; ///< from 1 within the trace
    double index = 0.0; ///< into the trace's data on show; a fraction lies between two points
};

/*! What the panel shows, apart from how: the networks, the traces made from them and which one is
   active.

    Everything that changes here is told by a signal; views read the model and never keep a copy. It
   knows no widget and no file: whoever has measured or read networks hands them over with
   setNetworks().

    \code
    PanelModel model;
    model.setNetworks({readTouchstone(path).network});
    for (const Trace &trace : model.traces())
        chart->setCurveData(trace.id, model.network(trace).frequencies, ...);
    \endcode */
class PanelModel : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    const QVector<Network> &networks() const { return m_networks; }
    /// One trace for each parameter, numbered from 1 in the order of the networks; the reflections
    /// of a network come first.
    const QVector<Trace> &traces() const { return m_traces; }
    /// The trace of this id, or null.
    const Trace *trace(int id) const;
    /// The active trace, or null when there are no traces.
    const Trace *activeTrace() const { return trace(m_activeTrace); }

    /// The trace of this kind that is active or was last, or null when there is none.
    const Trace *activeTrace(Trace::Kind kind) const { return trace(m_lastActive[kind]); }

    /// The part of the trace's network that is on show.
    const Network &network(const Trace &trace) const { return m_shown.at(trace.network); }
    const Parameter &data(const Trace &trace) const
    {
        return network(trace).s(trace.to, trace.from);
    }
    /// The frequencies that the user asked to see; points at both ends need not lie on them.
    const Stimulus &stimulus(const Trace &trace) const { return m_stimuli.at(trace.network); }
    /// The frequencies that the trace's whole network has.
    Stimulus limits(const Trace &trace) const { return limits(trace.network); }
    /// "S11".
    static QString parameterName(const Trace &trace);

    /// All markers in the order they were added.
    const QVector<Marker> &markers() const { return m_markers; }
    /// The markers of a trace by their numbers.
    QVector<Marker> markersOf(int traceId) const;
    /// The markers of the active trace by their numbers.
    QVector<Marker> activeMarkers() const;
    /// The marker of this trace and number, or null.
    const Marker *marker(int traceId, int number) const;
    /// The selected marker, or null.
    const Marker *selectedMarker() const { return marker(m_selectedTrace, m_selectedNumber); }
    /// The sweep that is measured, or would be; what files hold does not depend on it.
    const Sweep &sweep() const { return m_sweep; }
    /// Whether measurements go on; otherwise the last one is held.
    bool isSweeping() const { return m_sweeping; }
    /// How many markers a trace can have.
    static constexpr int markersPerTrace = 6;

    /// Replaces all networks and makes new traces of them; the first becomes active. Markers go.
    void setNetworks(const QVector<Network> &networks);
    /// Shows a part of the trace's network: the points within, and never less than the two around
    /// it. Markers keep their frequency, or go to the edge of the part.
    void setStimulus(const Trace &trace, const Stimulus &stimulus);
    /// A selected marker of another trace is deselected. An unknown id is ignored.
    void setActiveTrace(int id);
    /// Replaces the data of one network by a new measurement of it, which is shown whole; traces
    /// and markers stay. A marker keeps its index or, in another sweep, its frequency. False,
    /// without a change, for an index without a network, another number of ports, or no points.
    bool updateNetwork(int index, const Network &network);
    void setTraceVisible(int id, bool visible);
    /// Marks a point with the lowest free number and selects the marker. Returns the number, or 0
    /// for an unknown trace, an index outside its data, or a trace that has all its markers.
    int addMarker(int traceId, double index);
    /// An index outside the trace's data on show is ignored, like an unknown marker.
    void moveMarker(int traceId, int number, double index);
    void removeMarker(int traceId, int number);
    /// Also makes its trace active. A marker that does not exist, such as number 0, leaves none
    /// selected.
    void selectMarker(int traceId, int number);
    /// A sweep outside the limits is ignored.
    void setSweep(const Sweep &sweep);
    void setSweeping(bool sweeping);

Q_SIGNALS:
    /// All networks and traces are new.
    void networksChanged();
    /// A network has new data; markers that moved with it are told afterwards.
    void networkUpdated(int index);
    void activeTraceChanged();
    /// Another part of a network is on show; indices of its markers have changed with it.
    void stimulusChanged(int network);
    void traceVisibleChanged(int id, bool visible);
    /// A marker was asked for on a trace that has all its markers.
    void markersExhausted(int traceId);
    void markerAdded(int traceId, int number);
    void markerMoved(int traceId, int number);
    void markerRemoved(int traceId, int number);
    void selectedMarkerChanged();
    void sweepChanged();
    void sweepingChanged();

private:
    bool holdsIndex(int traceId, double index) const;
    Stimulus limits(int network) const;

    QVector<Network> m_networks;
    QVector<Network> m_shown; ///< the part of each network that the stimulus leaves
    QVector<Stimulus> m_stimuli;
    QVector<int> m_firstShown; ///< index of its first point within the whole network
    QVector<Trace> m_traces;
    QVector<Marker> m_markers;
    int m_activeTrace = 0;
    int m_lastActive[2] = {0, 0}; ///< ids by kind
    int m_selectedTrace = 0;
    int m_selectedNumber = 0;
    Sweep m_sweep;
    bool m_sweeping = true;
};

} // namespace Panel
