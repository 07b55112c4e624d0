// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cartesian.h"

#include <plot/marker.h>

#include <QHash>
#include <QWidget>

#include <map>
#include <utility>

class QLabel;
class QMouseEvent;

namespace Panel
{

class MarkerTable;
class PanelModel;
struct Trace;

/*! A diagram with the transmission traces of the model over the frequency, below a line that names
    them and the read-outs of a trace's markers.

    It follows the model and the theme by itself. What a pointer does on it is reported as a
   request; it moves no marker and selects none. */
class CartesianView : public QWidget
{
    Q_OBJECT

public:
    explicit CartesianView(const PanelModel *model, QWidget *parent = nullptr);

    QCustomPlot *plot() const { return m_plot; }
    MarkerTable *markerTable() const { return m_markerTable; }
    /// The line of a trace, or null.
    QCPGraph *graph(int traceId) const { return m_graphs.value(traceId); }
    /// A marker as it is drawn, or null.
    const Plot::Marker *marker(int traceId, int number) const;

    CartesianFormat format() const { return m_format; }
    void setFormat(CartesianFormat format);

    /// How many points of the traces on show are drawn.
    int drawnPoints() const;
    /// What the last new measurement cost the diagram, in milliseconds.
    double dataMilliseconds() const { return m_dataMilliseconds; }

Q_SIGNALS:
    /// A press on a marker.
    void markerSelectionRequested(int traceId, int number);
    /// A dragged marker is asked to move to a point of its trace.
    void markerMoveRequested(int traceId, int number, double index);
    /// A double tap on a trace.
    void pointPicked(int traceId, double index);
    /// A tap beside all markers.
    void tapped();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    using MarkerKey = std::pair<int, int>; ///< trace and number

    void setUpPlot();
    void connectPointer();
    void loadTraces();
    void updateTraces(int network);
    void loadLines();
    void loadLine(const Trace &trace);
    void fitFrequencies();
    void fitValues();
    void setTraceVisible(int id, bool visible);
    void showActiveTrace();
    void addMarker(int traceId, int number);
    void placeMarker(int traceId, int number);
    void drawMarkers();
    void recolor();
    void updateTitle();
    QVector<Trace> traces() const;
    void onPress(QMouseEvent *event);
    void onMove(QMouseEvent *event);
    void onDoubleClick(QMouseEvent *event);
    /// The index of a trace at a point of the plot widget.
    double indexAt(int traceId, const QPointF &position) const;

    const PanelModel *m_model;
    QLabel *m_title;
    MarkerTable *m_markerTable;
    QCustomPlot *m_plot;
    QHash<int, QCPGraph *> m_graphs; ///< owned by the plot
    std::map<MarkerKey, Plot::Marker> m_markers;
    MarkerKey m_dragged = {0, 0};
    CartesianFormat m_format = CartesianFormat::LogMagnitude;
    double m_top = 0.0; ///< of the diagram, in dB
    double m_dataMilliseconds = 0.0;
};

} // namespace Panel
