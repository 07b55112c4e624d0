// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cartesian.h"
#include "diagramplan.h"
#include "limitediting.h"
#include "markers.h"
#include "measurementsource.h"
#include "networks.h"
#include "preferences.h"
#include "source.h"
#include "traces.h"
#include "viewsettings.h"

#include <map>
#include <optional>
#include <utility>

namespace Panel
{

/// The id of a trace, and numbers of what it shows: equal ones show the same.
using TraceRevision = std::tuple<int, quint64, quint64>;

/*! What the panel shows: the one door to networks, traces, markers, zooms and the source.

    Each value has one home behind this door: the part on show in Networks, what is drawn in Traces,
    where the user set a marker in Markers. What follows from them (the index of a marker, the
    diagram of a trace) is computed when it is asked for. Whoever wants a change calls the model;
    whoever shows something hears its signals, which are emitted when the change is complete.

    It knows no widget and no file: whoever has read or measured networks hands them over.

    \code
    PanelModel model;
    model.openNetworks({readTouchstone(path).network});
    for (const Trace &trace : model.traces())
        chart->setCurveData(trace.id, model.network(trace).frequencies, ...);
    \endcode */
class PanelModel : public QObject
{
    Q_OBJECT

public:
    explicit PanelModel(QObject *parent = nullptr);

    /*! \name Networks and the part of them on show
        @{ */
    const QVector<Network> &networks() const { return m_networks.all(); }
    /// The part of the trace's network that is on show.
    const Network &network(const Trace &trace) const { return m_networks.shown(trace.network); }
    /// What the trace draws and its markers read: with its memory and smoothed, as it is set. There
    /// are as many points as in its network.
    TraceData traceData(const Trace &trace) const;
    /// Whether many changes are under way, after which tracesChanged() comes: see TraceChanges.
    bool isChanging() const { return m_changing > 0; }
    /// Another one whenever the trace's data or the way that it shows them are others; visibility,
    /// scale and limits do not count.
    TraceRevision revision(const Trace &trace) const
    {
        return {trace.id, trace.revision, m_networks.revision(trace.network)};
    }
    /// What is drawn beside it of a trace whose memory is on show, or null.
    std::optional<TraceData> drawnMemory(const Trace &trace) const;
    const Correction &correction(int network) const { return m_networks.correction(network); }
    const Correction &correction(const Trace &trace) const { return correction(trace.network); }
    /// What the source of a network is to sweep: the sweep of a device, or the part of a file on show.
    Stimulus stimulus(int network) const;
    Stimulus stimulus(const Trace &trace) const { return stimulus(trace.network); }
    /// The frequencies that a diagram of the trace shows while it is not magnified.
    Stimulus shownRange(const Trace &trace) const { return m_networks.shownRange(trace.network); }
    /// What the stimulus can go to: the limits of the device, or all that the file has.
    Stimulus limits(const Trace &trace) const;
    /// The smallest span that the stimulus can have.
    double smallestSpan() const;

    /// Shows files: replaces all networks, makes new traces of them, and ends a measurement. The
    /// first trace becomes active; markers and zooms go.
    void openNetworks(const QVector<Network> &networks);
    /// The same with the first data of another source; nothing happens while files are on show.
    void beginMeasurement(const Network &network);
    /// Replaces the data of one network by a new measurement of it; traces and markers stay. False,
    /// without a change, for an index without a network, another number of ports, or no points.
    bool updateNetwork(int index, const Network &network);
    /// What is done to a whole network from now on.
    void setCorrection(int network, const Correction &correction);
    void setCorrection(const Trace &trace, const Correction &correction)
    {
        setCorrection(trace.network, correction);
    }
    /// Takes a file that was read again. Traces and markers stay unless it has other ports than
    /// before.
    void updateFile(int index, const Network &network);
    /// What a device cannot sweep is ignored; the part of a file is bounded by its limits.
    void setStimulus(int network, const Stimulus &stimulus);
    void setStimulus(const Trace &trace, const Stimulus &stimulus)
    {
        setStimulus(trace.network, stimulus);
    }
    /*! @} */

    /*! \name Source
        @{ */
    Source source() const { return m_source; }
    /// The address of the instrument, as parseLinkAddress() takes it; empty while none was chosen.
    QString instrument() const { return m_instrument; }
    /// What the source can be set to; empty ranges for files.
    const SourceLimits &sourceLimits() const { return m_sourceLimits; }
    const SourceState &sourceState() const { return m_sourceState; }
    /// Whether what is on show was measured, and not read from files.
    bool showsMeasurement() const { return m_showsMeasurement; }
    /// Whether what is on show was measured by an instrument that is not there now.
    bool isStale() const;
    /// The sweep of a measurement; what files hold does not depend on it.
    const Sweep &sweep() const { return m_sweep; }
    /// Bandwidth, power and averages of a measurement.
    const Acquisition &acquisition() const { return m_acquisition; }
    /// Whether measurements go on; otherwise the last one is held.
    bool isSweeping() const { return m_sweeping; }
    /// What the antenna is tuned to, in Hz.
    double tuning() const { return m_tuning; }
    /// The networks of the files that were opened last, on show or waiting behind a measurement.
    const QVector<Network> &files() const { return m_files; }

    /// A simulated source begins with its default sweep, an instrument with its own; the data
    /// replace the networks when the first come. Going back to files shows those of before at once.
    /// Each source comes back as it was arranged (traces, markers, zooms), if it has the same ports.
    void setSource(Source source);
    /// Goes to the instrument at this address, also to the one that is the source already.
    void setInstrument(const QString &address);
    /// What the source says of itself; its limits bound what is set from now on.
    void setSourceState(const SourceState &state, const SourceLimits &limits);
    /// What the source has made of its settings.
    void takeSettings(const MeasurementSettings &settings);
    /// A sweep outside the limits is ignored.
    void setSweep(const Sweep &sweep);
    /// A number outside its limits moves to the limit.
    void setAcquisition(const Acquisition &acquisition);
    void setSweeping(bool sweeping);
    /// Holds, and asks for one sweep.
    void sweepOnce();
    /// A value outside the limits moves to the limit.
    void setTuning(double hertz);
    /*! @} */

    /*! \name Traces
        @{ */
    const QVector<Trace> &traces() const { return m_traces.all(); }
    /// The trace of this id, or null.
    const Trace *trace(int id) const { return m_traces.find(id); }
    /// The active trace, or null when there are no traces.
    const Trace *activeTrace() const { return m_traces.active(); }
    /// The one of these traces that is active or was last, or null when there is none.
    const Trace *activeTrace(const QVector<int> &among) const { return m_traces.active(among); }
    /// The same among the traces that a kind of diagram shows.
    const Trace *activeTrace(DiagramKind kind) const;
    /// "S11".
    static QString parameterName(const Trace &trace);
    /// What was stored of a trace, or null.
    const TraceData *memory(int traceId) const { return m_traces.memory(traceId); }
    /// All that was stored, by trace; copies share the data.
    const QHash<int, TraceData> &memories() const { return m_traces.memories(); }

    /// Adds a trace that is like another one, and makes it active; its id, or 0 when there are as
    /// many as there can be. \a wanted is the id it gets if no other trace has it.
    int addTrace(int like, int wanted = 0);
    /// With its markers and its memory; the last one of all stays.
    void removeTrace(int id);
    /// Lines that are not valid, or too many of them, are ignored as a whole.
    void setLimits(int id, const QVector<LimitLine> &limits);
    /// A selected marker of another trace is deselected, or, where markers are coupled, that of the
    /// same number is selected. An unknown id is ignored.
    void setActiveTrace(int id);
    void setTraceVisible(int id, bool visible);
    /// Bounded to the length that a name can have, without blanks around it; an empty one ends it.
    void setTraceName(int id, const QString &name);
    /// Shows the trace's parameter of another network, or as far as that has ports; markers stay at
    /// their frequencies, and the memory stays to compare with. Ignored where there is none.
    void setTraceNetwork(int id, int network);
    /// Puts a trace into the diagram of this number, from 1 in the order of allDiagrams(), or a new
    /// one after them; the other traces stay in the diagrams that they are in from now on.
    void setTraceDiagram(int id, int number);
    /// Format and layout decide again which diagrams there are.
    void setDiagramsAutomatic();
    /// Gives a trace the diagram that was saved of it (Trace::diagram), whatever becomes of the others.
    void restoreTraceDiagram(int id, int number);
    /// The trace's diagram changes with its format, and the scale becomes the default one.
    void setTraceFormat(int id, TraceFormat format);
    /// A parameter that the trace's network does not have is ignored.
    void setTraceParameter(int id, int to, int from);
    /// What is not finite, not above zero a division, or has its reference outside the diagram, is
    /// ignored.
    void setTraceScale(int id, const Scale &scale);
    /// Gives a trace a scale at which all of its data on show are seen; nothing happens on a Smith
    /// chart.
    void fitTrace(int id);
    /// Stores the trace's data on show, as they are without memory and smoothing.
    void storeMemory(int id);
    /// Stores data of another time, of frequencies of their own.
    void restoreMemory(int id, const TraceData &memory);
    void clearMemory(int id);
    /// Ignored while nothing is stored. The scale of a trace over the frequency is fitted to a
    /// quotient or a difference, which is nowhere near the data.
    void setTraceMath(int id, TraceMath math);
    /// A share of the points in percent, bounded; 0 ends it.
    void setSmoothing(int id, double percent);
    /*! @} */

    Preferences *preferences() { return &m_preferences; }
    const Preferences *preferences() const { return &m_preferences; }

    /*! \name Diagrams
        @{ */
    ViewSettings *viewSettings() { return &m_viewSettings; }
    const ViewSettings *viewSettings() const { return &m_viewSettings; }
    LimitEditing *limitEditing() { return &m_limitEditing; }
    /// The diagrams that the traces make in the present layout in reading order, on show or not.
    QVector<PlannedDiagram> allDiagrams() const;
    /// Those of them on show.
    QVector<PlannedDiagram> diagrams() const;
    /// The diagram that shows a trace, or would if it were in the layout.
    DiagramId diagramOf(int traceId) const;
    Zoom zoom(const DiagramId &diagram) const;
    /// The zooms of the diagrams that do not show all.
    const std::map<DiagramId, Zoom> &zooms() const { return m_zooms; }
    /// Bounded; over the frequency nothing beyond the edges is shown.
    void setZoom(const DiagramId &diagram, const Zoom &zoom);
    /*! @} */

    /*! \name Markers
        @{ */
    /// All markers in the order they were added.
    const QVector<Marker> &markers() const { return m_markers.all(); }
    /// The markers of a trace by their numbers.
    QVector<Marker> markersOf(int traceId) const { return m_markers.of(traceId); }
    QVector<Marker> activeMarkers() const;
    /// The marker of this trace and number, or null.
    const Marker *marker(int traceId, int number) const { return m_markers.find(traceId, number); }
    const Marker *selectedMarker() const { return m_markers.selected(); }
    bool isSelected(const Marker &marker) const;
    /// The marker that the others of its trace are read against, or null.
    const Marker *referenceMarker(int traceId) const { return m_markers.reference(traceId); }
    /// Where a marker stands in its trace's data on show; a fraction lies between two points. -1
    /// while it is parked, because its stimulus is not on show.
    double indexOf(const Marker &marker) const;
    /// What a marker reads: its point of the trace's data on show, or the one that it keeps. Its
    /// index is -1 while it is parked.
    MarkedPoint markedPoint(const Marker &marker) const;
    /// The frequency in Hz that a marker stands at; a parked one, that it would stand at.
    double hertzOf(const Marker &marker) const;
    /// Whether markers stand on measured points only, and not between them.
    bool markersDiscrete() const { return m_markers.isDiscrete(); }
    /// Whether markers of the same number stand at the same frequency on all traces.
    bool markersCoupled() const { return m_markers.isCoupled(); }
    /// Whether markers are being moved by what they track, and not by the user.
    bool isTracking() const { return m_tracking; }

    /// Marks a point with the lowest free number and selects the marker. Returns the number, or 0
    /// for an unknown trace, an index outside its data, or a trace that has all its markers.
    int addMarker(int traceId, double index);
    /// Sets a marker of a certain number at a place on show or not, without selecting it; nothing
    /// happens for an unknown trace or a number that no marker can have.
    void restoreMarker(int traceId, int number, const StimulusPlace &place);
    /// An index outside the trace's data on show is ignored, like an unknown marker and a fixed one.
    void moveMarker(int traceId, int number, double index);
    void removeMarker(int traceId, int number);
    /// Also makes its trace active. A marker that does not exist, such as number 0, leaves none
    /// selected.
    void selectMarker(int traceId, int number);
    /// A marker that does not exist, such as number 0, leaves the trace without a reference.
    void setReferenceMarker(int traceId, int number);
    /// The marker goes there at once, and again with other data, until it is moved. One that is
    /// fixed keeps what it reads now, until it is told otherwise; a parked one cannot be fixed.
    void setMarkerTracking(int traceId, int number, Tracking tracking);
    /// Fixes a marker at a value of before.
    void restoreFixedMarker(int traceId, int number, const FixedPoint &point);
    void setMarkersDiscrete(bool discrete);
    /// Gives all traces the same markers, those of the active one first.
    void setMarkersCoupled(bool coupled);
    /*! @} */

Q_SIGNALS:
    /// All networks and traces are new; tracesChanged() follows.
    void networksChanged();
    /// A network has new data.
    void networkUpdated(int index);
    /// A network is corrected in another way; tracesChanged() follows.
    void correctionChanged(int network);
    /// Another part of a network is on show, or is to be swept.
    void stimulusChanged(int network);
    void sourceChanged();
    void sourceStateChanged();
    void sweepChanged();
    void acquisitionChanged();
    void singleRequested();
    void sweepingChanged();
    void tuningChanged();

    /// Which traces there are, or what and how one of them shows.
    void tracesChanged();
    void activeTraceChanged();
    void traceScaleChanged(int id);
    void limitsChanged(int id);
    void traceVisibleChanged(int id, bool visible);
    void memoryChanged(int id);
    void zoomChanged(const Panel::DiagramId &diagram);

    void markerAdded(int traceId, int number);
    void markerMoved(int traceId, int number);
    void markerRemoved(int traceId, int number);
    /// A marker was asked for on a trace that has all its markers.
    void markersExhausted(int traceId);
    void selectedMarkerChanged();
    void referenceMarkerChanged(int traceId);
    /// A marker of a trace follows something else, or nothing.
    void markerTrackingChanged(int traceId);
    /// Continuous or discrete, coupled or not: where markers stand may have changed.
    void markerModeChanged();

private:
    friend class TraceChanges;

    /// How networks are shown: all that they do not hold themselves.
    struct Arrangement {
        QVector<int> ports; ///< of the networks, in their order
        QVector<Stimulus> stimuli;
        QVector<Correction> corrections;
        Traces traces;
        Markers markers;
        std::map<DiagramId, Zoom> zooms;
    };

    bool sweeps() const;
    void openFiles(const QVector<Network> &networks, bool arranged);
    void replaceNetworks(const QVector<Network> &networks, bool arranged);
    Arrangement shownArrangement() const;
    void arrangeAs(const Arrangement &arrangement);
    bool holdsIndex(int traceId, double index) const;
    void placeMarker(int traceId, int number, double index);
    void tell(const Markers::Changes &changes);
    void tellTraces();
    void fitTraceBy(int id, double smallestDivision);
    void trackMarkers();

    Networks m_networks;
    Traces m_traces;
    Markers m_markers;
    std::map<DiagramId, Zoom> m_zooms; ///< of diagrams that do not show all
    ViewSettings m_viewSettings;
    LimitEditing m_limitEditing;
    Preferences m_preferences;
    Source m_source = Source::Files;
    QString m_instrument;
    SourceLimits m_sourceLimits;
    SourceState m_sourceState;
    bool m_showsMeasurement = false;
    Source m_shown = Source::Files; ///< whose networks are on show; a new source has none at first
    std::map<Source, Arrangement> m_arrangements; ///< of the sources that were on show before
    QVector<Network> m_files; ///< kept while a measurement is on show
    Sweep m_sweep;
    Acquisition m_acquisition;
    double m_tuning = defaultTuning;
    bool m_sweeping = true;
    bool m_tracking = false;
    int m_changing = 0; ///< how many TraceChanges there are
    /// What traces made of their data, by trace, and the revision that it was made at.
    mutable QHash<int, std::pair<TraceRevision, TraceData>> m_processed;
};

/*! Many changes of traces in one go: while one lives, diagrams do not load, and what a change makes
    of the traces is told once, by the tracesChanged() at its end. The model must outlive it. */
class TraceChanges
{
public:
    explicit TraceChanges(PanelModel *model)
        : m_model(model)
    {
        ++m_model->m_changing;
    }
    ~TraceChanges()
    {
        if (--m_model->m_changing == 0)
            m_model->tellTraces();
    }
    Q_DISABLE_COPY(TraceChanges)

private:
    PanelModel *m_model;
};

} // namespace Panel
