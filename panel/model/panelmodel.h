// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "network.h"
#include "stimulus.h"
#include "sweep.h"
#include "viewsettings.h"

#include <QHash>

namespace Panel
{

/// One line on the panel: a parameter of a network in a format.
struct Trace {
    int id = 0; ///< from 1, unique on the panel
    int network = 0; ///< index into PanelModel::networks()
    int to = 1; ///< port that the wave leaves
    int from = 1; ///< port that the wave enters
    TraceFormat format = TraceFormat::Smith; ///< decides which diagram shows it
    Scale scale;
    bool visible = true;

    bool onSmithChart() const { return format == TraceFormat::Smith; }
};

/// A trace's data as they were stored to compare later ones with.
struct Memory {
    QVector<double> frequencies;
    Parameter parameter;
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
    /// Numbered from 1 in the order of the networks. A two-port has its reflections on the Smith
    /// chart, then its transmissions in dB; a one-port its reflection in both ways.
    const QVector<Trace> &traces() const { return m_traces; }
    /// The trace of this id, or null.
    const Trace *trace(int id) const;
    /// The active trace, or null when there are no traces.
    const Trace *activeTrace() const { return trace(m_activeTrace); }

    /// The one of these traces that is active or was last, or null when there is none.
    const Trace *activeTrace(const QVector<int> &among) const;
    /// The same among the traces on the Smith chart, or among the others.
    const Trace *activeTrace(bool onSmithChart) const;

    /// How all of it is to be seen.
    ViewSettings *viewSettings() { return &m_viewSettings; }
    const ViewSettings *viewSettings() const { return &m_viewSettings; }
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
    /// What was stored of a trace, or null.
    const Memory *memory(int traceId) const;

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
    /// The marker that the others of its trace are read against, or null.
    const Marker *referenceMarker(int traceId) const
    {
        return marker(traceId, m_references.value(traceId));
    }
    /// Whether markers stand on measured points only, and not between them.
    bool markersDiscrete() const { return m_markersDiscrete; }
    /// Whether markers of the same number stand at the same frequency on all traces.
    bool markersCoupled() const { return m_markersCoupled; }
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
    /// Replaces the data of one network by a new measurement of it; traces and markers stay, the
    /// part on show too as far as there is any of it, and markers keep their frequencies. False,
    /// without a change, for an index without a network, another number of ports, or no points.
    bool updateNetwork(int index, const Network &network);
    void setTraceVisible(int id, bool visible);
    /// The trace's diagram changes with its format, and the scale becomes the usual one.
    void setTraceFormat(int id, TraceFormat format);
    /// A parameter that the trace's network does not have is ignored.
    void setTraceParameter(int id, int to, int from);
    /// What is not finite, or not above zero a division, is ignored.
    void setTraceScale(int id, const Scale &scale);
    /// Stores the trace's data on show.
    void storeMemory(int id);
    void clearMemory(int id);
    /// Marks a point with the lowest free number and selects the marker. Returns the number, or 0
    /// for an unknown trace, an index outside its data, or a trace that has all its markers.
    int addMarker(int traceId, double index);
    /// Marks a frequency in Hz with a certain number, without selecting the marker; nothing happens
    /// outside the trace's data on show, or for a number that no marker can have.
    void restoreMarker(int traceId, int number, double hertz);
    /// An index outside the trace's data on show is ignored, like an unknown marker.
    void moveMarker(int traceId, int number, double index);
    void removeMarker(int traceId, int number);
    /// Also makes its trace active. A marker that does not exist, such as number 0, leaves none
    /// selected.
    void selectMarker(int traceId, int number);
    /// A marker that does not exist, such as number 0, leaves the trace without a reference.
    void setReferenceMarker(int traceId, int number);
    /// Moves the markers that stand between points.
    void setMarkersDiscrete(bool discrete);
    /// Gives all traces the markers of the active one.
    void setMarkersCoupled(bool coupled);
    /// A sweep outside the limits is ignored.
    void setSweep(const Sweep &sweep);
    void setSweeping(bool sweeping);

Q_SIGNALS:
    /// All networks and traces are new; tracesChanged() follows.
    void networksChanged();
    /// Which traces there are, or what and how one of them shows.
    void tracesChanged();
    void traceScaleChanged(int id);
    void memoryChanged(int id);
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
    void referenceMarkerChanged(int traceId);
    /// Continuous or discrete, coupled or not.
    void markerModeChanged();
    void sweepChanged();
    void sweepingChanged();

private:
    bool holdsIndex(int traceId, double index) const;
    Trace *findTrace(int id);
    void showPart(int index);
    /// The scale for all traces of a format, which they share until the user sets one.
    Scale usualScale(TraceFormat format) const;
    void placeMarker(int traceId, int number, double index);
    void dropMarker(int traceId, int number);
    /// Takes the trace's marker as the model for the same number on all other traces.
    void couple(int traceId, int number);
    /// Index on a trace for a frequency of another, or -1 outside its data.
    double indexAt(int traceId, double hertz) const;
    Stimulus limits(int network) const;

    QVector<Network> m_networks;
    QVector<Network> m_shown; ///< the part of each network that the stimulus leaves
    QVector<Stimulus> m_stimuli;
    QVector<int> m_firstShown; ///< index of its first point within the whole network
    QVector<Trace> m_traces;
    QVector<Marker> m_markers;
    int m_activeTrace = 0;
    QVector<int> m_recentTraces; ///< ids, the one that was active last in front
    QHash<int, Memory> m_memories; ///< by trace
    QHash<int, int> m_references; ///< marker numbers by trace
    bool m_markersDiscrete = false;
    bool m_markersCoupled = false;
    ViewSettings m_viewSettings;
    int m_selectedTrace = 0;
    int m_selectedNumber = 0;
    Sweep m_sweep;
    bool m_sweeping = true;
};

} // namespace Panel
