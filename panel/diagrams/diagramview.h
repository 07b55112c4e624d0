// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <panel/model/panelmodel.h>

#include <QWidget>

#include <optional>

class QBoxLayout;
class QCustomPlot;

namespace Plot
{
class Marker;
}

namespace Panel
{

class TitleLabel;
class ReadOuts;

/// What lies under a finger.
struct Hit {
    enum Kind {
        Nothing,
        Line, ///< a point of a trace
        MarkerBody,
    };
    Kind kind = Nothing;
    int trace = 0;
    int marker = 0; ///< its number
    double index = 0.0; ///< of the point in the trace's data on show
};

/*! A diagram with some of the model's traces: a line that names them, the read-outs of their
    markers, and a plot.

    It follows the model and the theme by itself, and writes to neither. ChartGestures asks what lies
    under a finger and decides what comes of it. */
class DiagramView : public QWidget
{
    Q_OBJECT

public:
    /// How near a finger must be to a marker or a line, in pixels.
    static constexpr double reach = 22.0;

    DiagramView(const PanelModel *model, const DiagramId &id, QWidget *parent = nullptr);

    DiagramId id() const { return m_id; }
    QCustomPlot *plot() const { return m_plot; }
    ReadOuts *readOuts() const { return m_readOuts; }
    QString title() const;

    /// The ids of the traces on show, which must be traces for this kind of diagram.
    QVector<int> traceIds() const { return m_traceIds; }
    /// Loads what they show, unless it is on show already.
    void setTraces(const QVector<int> &ids);
    /// The one of them that is active or was last, or null.
    const Trace *activeTrace() const { return m_model->activeTrace(m_traceIds); }

    /// What lies at a point of the plot widget: the nearest marker within reach, else the nearest
    /// trace.
    Hit hit(const QPointF &position) const;
    /// A press on a marker begins to drag it; while the pointer moves, markerMoveRequested() asks
    /// for it to follow.
    virtual void beginDrag(int /*traceId*/, int /*number*/) { }
    virtual void dragTo(int /*traceId*/, int /*number*/, const QPointF & /*position*/) { }
    /// A marker as it is drawn, or null.
    virtual const Plot::Marker *drawnMarker(int traceId, int number) const = 0;
    /// How many points of a trace lie under one step on the screen; at least 1.
    virtual int pointsPerStep(int traceId) const = 0;

    /// \name The zoom that a gesture asks for; points of the plot widget are in its pixels
    ///@{
    /// The part around a point is magnified, and the point stays where it is.
    virtual Zoom zoomedAt(const QPointF &position, double factor) const = 0;
    /// The view is shifted so that these coordinates of the plot lie at a point of the widget, or as
    /// near to it as the edge of the diagram allows.
    virtual Zoom movedTo(const QPointF &coordinates, const QPointF &position) const = 0;
    /// The coordinates of the plot at a point of the widget.
    QPointF coordinates(const QPointF &position) const;
    ///@}

    /// How many points of the traces on show are drawn.
    virtual int drawnPoints() const = 0;
    /// What the last new measurement cost the diagram, in milliseconds.
    double dataMilliseconds() const { return m_dataMilliseconds; }

Q_SIGNALS:
    /// A dragged marker is asked to move to a point of its trace.
    void markerMoveRequested(int traceId, int number, double index);
    /// The title was tapped twice.
    void titleDoubleTapped();
    /// A row of the read-outs was tapped.
    void markerSelectionRequested(int traceId, int number);
    void markerDeleteRequested(int traceId, int number);
    /// A trace that nobody can see is to be given a scale at which it is seen.
    void fitRequested(int traceId);

protected:
    /// Shows the traces, and all that belongs to them, from scratch.
    virtual void loadTraces() = 0;
    /// Takes over new data of the traces of a network; called while the view is visible.
    virtual void updateTraces(int network) = 0;
    virtual void recolor() = 0;
    virtual void showZoom() = 0;
    virtual void setTraceVisible(const Trace &trace) = 0;
    virtual void showActiveTrace() = 0;
    /// Draws a marker where the model has it, which may be a new one; a parked one is not drawn.
    virtual void placeMarker(const Trace &trace, const Marker &marker) = 0;
    virtual void removeMarker(int traceId, int number) = 0;
    virtual void showSelectedMarker() = 0;
    virtual void showMemory(const Trace &trace) = 0;
    /// What the title says between the names of the traces and those of their networks.
    virtual QStringList titleParts() const = 0;
    /// What of that the diagram shows beside its axes, too: a narrow title leaves it out.
    virtual QStringList writtenBesideAxis() const { return {}; }
    /// The plot has been laid out: what depends on its pixels is computed here and nowhere else.
    virtual void onLayout() = 0;
    /// The nearest trace within reach, as a Hit that is a Line or Nothing.
    virtual Hit hitLine(const QPointF &position) const = 0;

    /// The traces on show.
    QVector<Trace> traces() const;
    /// Whether a change of a trace is to be shown now: it is among those on show, and they are not
    /// to be loaded anyway.
    bool follows(int traceId) const;
    /// Whether the pointer may act on a trace.
    bool reaches(const Trace &trace) const;
    /// Places all markers of a trace.
    void placeMarkers(const Trace &trace);
    /// Which traces have another scale than the one whose numbers are written; empty for none.
    QStringList otherScales(const Trace &written) const;
    void updateTitle();
    void replotLater();
    /// Places what lies over the plot after all that have followed its layout until now.
    void followLayout();

    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

    const PanelModel *m_model;

private:
    void followModel();
    void clearEdges();
    void placeReadOuts();
    void followMarkers();
    void reload();
    QVector<TraceRevision> revisions() const;
    Hit hitMarker(const QPointF &position) const;
    QStringList processingTexts() const;

    DiagramId m_id;
    QMetaObject::Connection m_layout; ///< of the plot
    TitleLabel *m_title;
    ReadOuts *m_readOuts;
    QCustomPlot *m_plot;
    QBoxLayout *m_body; ///< of read-outs and plot
    QVector<int> m_traceIds;
    std::optional<QVector<TraceRevision>> m_loaded; ///< none before the first load
    double m_dataMilliseconds = 0.0;
    bool m_stale = false; ///< data came while the view was hidden
};

} // namespace Panel
