// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPointF>

class QGestureEvent;
class QKeyEvent;
class QMouseEvent;
class QWheelEvent;

namespace Panel
{

class DiagramView;
class PanelModel;

/*! Answers pointer, touch and keys on a diagram.

    Diagrams report and never act; this is where the panel decides what a gesture does. The wheel
    and two fingers zoom about their point; a drag moves the marker under it or else a magnified
    view; a tap selects a marker, or none; a double tap marks the trace under it or, on free space,
    shows the whole diagram. Keys on the focused diagram: + and -, 0, the arrows, of which left and
    right move a selected marker, Escape and Delete. */
class ChartGestures : public QObject
{
    Q_OBJECT

public:
    ChartGestures(PanelModel *model, DiagramView *view);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void onWheel(QWheelEvent *event);
    void onPress(QMouseEvent *event);
    void onMove(QMouseEvent *event);
    void onRelease();
    void onDoubleClick(QMouseEvent *event);
    bool onGesture(QGestureEvent *event);
    bool onKey(QKeyEvent *event);
    /// Moves the selected marker by so many points; false if there is none.
    bool stepMarker(int points);
    /// Shifts the view by so many pixels.
    void pan(double right, double down);

    /// What the pressed pointer is doing.
    enum class Drag {
        None, ///< nothing of ours: no button, a marker, two fingers
        Pressed, ///< not yet far enough to tell a drag from a tap
        Panning,
    };

    PanelModel *m_model;
    DiagramView *m_view;
    Drag m_drag = Drag::None;
    QPointF m_pressed;
    /// Whether the last press caught a marker: a double tap then means that marker.
    bool m_pressedMarker = false;
    /// Coordinates under the pointer or between two fingers when the move began: they stay there.
    QPointF m_grabbed;
};

} // namespace Panel
