// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diagramview.h"
#include <panel/model/cartesian.h>

#include <plot/marker.h>

#include <map>
#include <utility>

class QMouseEvent;

namespace Panel
{

/*! Traces over the frequency, each in its own format and scale.

    The plot's own axes are the scales that are written: those of the active trace. Every line has
    a value axis of its own, which is never seen. The view magnifies the frequencies. */
class CartesianView : public DiagramView
{
    Q_OBJECT

public:
    explicit CartesianView(const PanelModel *model, QWidget *parent = nullptr);

    /// The line of a trace, or null.
    QCPGraph *graph(int traceId) const;
    /// The line of a trace's stored data, or null.
    QCPGraph *memoryGraph(int traceId) const;
    /// A marker as it is drawn, or null.
    const Plot::Marker *marker(int traceId, int number) const;

    double zoom() const override;
    void setZoom(double zoom) override;
    void zoomAt(const QPointF &position, double factor) override;
    void moveTo(const QPointF &coordinates, const QPointF &position) override;
    void resetView() override;
    bool isMarkerPressed() const override { return m_dragged.first > 0; }
    bool pick(const QPoint &position, Qt::KeyboardModifiers modifiers) override;
    int drawnPoints() const override;

protected:
    void loadTraces() override;
    void updateTraces(int network) override;
    void recolor() override;
    void setTraceVisible(const Trace &trace) override;
    void showActiveTrace() override;
    void addMarker(const Trace &trace, const Marker &marker) override;
    void moveMarker(const Trace &trace, const Marker &marker) override;
    void removeMarker(int traceId, int number) override;
    void showSelectedMarker() override;
    void showMemory(const Trace &trace) override;
    QStringList titleParts() const override;

    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    using MarkerKey = std::pair<int, int>; ///< trace and number
    /// What is drawn of a trace; all owned by the plot.
    struct Line {
        QCPGraph *graph = nullptr;
        QCPGraph *memory = nullptr; ///< null while nothing is stored
        QCPAxis *values = nullptr;
    };

    void setUpPlot();
    void clearLines();
    void loadLines();
    void loadLine(const Trace &trace);
    void fitFrequencies();
    void showScale(int traceId);
    void setFrequencies(double from, double to);
    void onPress(QMouseEvent *event);
    void onMove(QMouseEvent *event);
    /// Whether the pointer may act on a trace.
    bool reaches(int traceId) const;
    /// The index of a trace at a point of the plot widget.
    double indexAt(int traceId, const QPointF &position) const;

    std::map<int, Line> m_lines; ///< by trace
    std::map<MarkerKey, Plot::Marker> m_markers;
    MarkerKey m_dragged = {0, 0};
    /// All frequencies that there are, in Hz; the view shows a part.
    double m_lowest = 0.0;
    double m_highest = 1.0;
};

} // namespace Panel
