// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <panel/model/panelmodel.h>

#include <QWidget>

class QCustomPlot;

namespace Panel
{

class ElidedLabel;
class ReadOuts;

/*! A diagram with some of the model's traces: a line that names them, the read-outs of a trace's
    markers, and a plot.

    It follows the model and the theme by itself. What a pointer does on it is reported as a
    request; ChartGestures answers. */
class DiagramView : public QWidget
{
    Q_OBJECT

public:
    /// The greatest magnification.
    static constexpr double mostZoom = 20.0;

    explicit DiagramView(const PanelModel *model, QWidget *parent = nullptr);

    QCustomPlot *plot() const { return m_plot; }
    ReadOuts *readOuts() const { return m_readOuts; }

    /// The ids of the traces on show, which must be traces for this kind of diagram.
    QVector<int> traceIds() const { return m_traceIds; }
    void setTraces(const QVector<int> &ids);
    /// The one of them that is active or was last, or null.
    const Trace *activeTrace() const { return m_model->activeTrace(m_traceIds); }

    /// \name What part of the diagram is seen; points of the plot widget are in its pixels
    ///@{
    virtual double zoom() const = 0;
    /// Magnifies about the centre of the view to a factor between 1 and mostZoom.
    virtual void setZoom(double zoom) = 0;
    /// Magnifies the part around a point, which stays where it is.
    virtual void zoomAt(const QPointF &position, double factor) = 0;
    /// Shifts a magnified view so that these coordinates of the plot lie at a point of the widget,
    /// or as near to it as the edge of the diagram allows.
    virtual void moveTo(const QPointF &coordinates, const QPointF &position) = 0;
    virtual void resetView() = 0;
    /// The coordinates of the plot at a point of the widget.
    QPointF coordinates(const QPointF &position) const;
    ///@}

    /// Whether the pointer that was pressed last has caught a marker and not let it go.
    virtual bool isMarkerPressed() const = 0;
    /// Reports the point of a trace at a point of the widget as picked; false if there is none.
    virtual bool pick(const QPoint &position, Qt::KeyboardModifiers modifiers) = 0;

    /// How many points of the traces on show are drawn.
    virtual int drawnPoints() const = 0;
    /// What the last new measurement cost the diagram, in milliseconds.
    double dataMilliseconds() const { return m_dataMilliseconds; }

Q_SIGNALS:
    /// Zoom or centre of the view changed.
    void viewChanged();
    /// A press on a marker.
    void markerSelectionRequested(int traceId, int number);
    /// A dragged marker is asked to move to a point of its trace.
    void markerMoveRequested(int traceId, int number, double index);
    void markerDeleteRequested(int traceId, int number);
    /// A double tap on a trace.
    void pointPicked(int traceId, double index);

protected:
    /// Shows the traces, and all that belongs to them, from scratch.
    virtual void loadTraces() = 0;
    /// Takes over new data of the traces of a network; called while the view is visible.
    virtual void updateTraces(int network) = 0;
    virtual void recolor() = 0;
    virtual void setTraceVisible(const Trace &trace) = 0;
    virtual void showActiveTrace() = 0;
    virtual void addMarker(const Trace &trace, const Marker &marker) = 0;
    virtual void moveMarker(const Trace &trace, const Marker &marker) = 0;
    virtual void removeMarker(int traceId, int number) = 0;
    virtual void showSelectedMarker() = 0;
    virtual void showMemory(const Trace &trace) = 0;
    /// What the title says beside the names of the traces.
    virtual QStringList titleParts() const = 0;

    /// The traces on show.
    QVector<Trace> traces() const;
    void updateTitle();
    void replotLater();

    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    bool event(QEvent *event) override;

    const PanelModel *m_model;

private:
    void followModel();

    ElidedLabel *m_title;
    ReadOuts *m_readOuts;
    QCustomPlot *m_plot;
    QVector<int> m_traceIds;
    double m_dataMilliseconds = 0.0;
    bool m_stale = false; ///< data came while the view was hidden
};

} // namespace Panel
