// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diagramview.h"

#include <QObject>
#include <QPointF>

class QGestureEvent;
class QKeyEvent;
class QMouseEvent;
class QWheelEvent;

namespace Panel
{

class LimitEditor;

/*! Answers pointer, touch and keys on a diagram.

    Diagrams report what lies under a finger and never act; this is where the panel decides what a
    gesture does. The wheel and two fingers zoom about their point; a drag moves the marker under it
    or else a magnified view; while limits are edited, first of all a limit; a tap selects a marker, or activates a trace; a double tap on a trace
    marks it. Keys on the diagram: + and -, 0, the arrows, of which left and right move a selected
    marker by a step of the screen or, with Ctrl, by a point; Escape and Delete. */
class ChartGestures : public QObject
{
    Q_OBJECT

public:
    ChartGestures(PanelModel *model, DiagramView *view);

    /// Answers a key press, wherever it was made; false if it means nothing to a diagram.
    static bool handleKey(PanelModel *model, DiagramView *view, const QKeyEvent *event);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// A sentence about what a gesture has done.
    void said(const QString &sentence);

private:
    void onWheel(QWheelEvent *event);
    void onPress(QMouseEvent *event);
    void onMove(QMouseEvent *event);
    void onRelease();
    void onDoubleClick(QMouseEvent *event);
    bool onGesture(QGestureEvent *event);
    void endDrag();
    void activate();

    /// What the pressed pointer is doing.
    enum class Drag {
        None, ///< nothing of ours: no button, two fingers
        Pressed, ///< not yet far enough to tell a drag from a tap
        Marker,
        Limit,
        Panning,
    };

    PanelModel *m_model;
    DiagramView *m_view;
    LimitEditor *m_limits; ///< or null
    Drag m_drag = Drag::None;
    Hit m_hit; ///< what lay under the press
    QPointF m_pressed;
    /// Coordinates under the pointer or between two fingers when the move began: they stay there.
    QPointF m_grabbed;
};

} // namespace Panel
