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

class PanelModel;
class SmithView;

/*! Answers pointer, touch and keys on a Smith chart.

    The chart reports and never acts; this is where the panel decides what a gesture does: the wheel
   and two fingers zoom about their point, a drag moves a magnified view, a double tap makes the
   trace under it active or, on free space, shows the whole chart. Keys on the focused chart: + and
   -, 0, and the arrows. */
class ChartGestures : public QObject
{
    Q_OBJECT

public:
    ChartGestures(PanelModel *model, SmithView *view, QObject *parent = nullptr);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void adoptChart();
    void onWheel(QWheelEvent *event);
    void onPress(QMouseEvent *event);
    void onMove(QMouseEvent *event);
    void onRelease();
    void onDoubleClick(QMouseEvent *event);
    bool onGesture(QGestureEvent *event);
    bool onKey(QKeyEvent *event);
    /// Shifts the view by so many pixels.
    void pan(double right, double down);

    /// What the pressed pointer is doing.
    enum class Drag {
        None, ///< nothing of ours: no button, a marker, two fingers
        Pressed, ///< not yet far enough to tell a drag from a tap
        Panning,
    };

    PanelModel *m_model;
    SmithView *m_view;
    Drag m_drag = Drag::None;
    QPointF m_pressed;
    /// Chart coordinates under the pointer or between two fingers when the move began: they stay
    /// there.
    QPointF m_grabbed;
};

} // namespace Panel
