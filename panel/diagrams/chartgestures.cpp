// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "chartgestures.h"

#include "diagramview.h"

#include <plot/qcp.h>
#include <base/qtcompat_p.h>

#include <QApplication>
#include <QGestureEvent>

#include <cmath>

namespace Panel
{

namespace
{

/// Zoom for one notch of the wheel or one press of a key.
constexpr double s_zoomStep = 1.25;
/// Pixels that an arrow key moves the view.
constexpr double s_panStep = 40.0;

} // namespace

ChartGestures::ChartGestures(PanelModel *model, DiagramView *view)
    : QObject(view)
    , m_model(model)
    , m_view(view)
{
    QCustomPlot *plot = view->plot();
    // The view connected first: a press that catches a marker has done so when it comes here.
    connect(plot, &QCustomPlot::mouseWheel, this, &ChartGestures::onWheel);
    connect(plot, &QCustomPlot::mousePress, this, &ChartGestures::onPress);
    connect(plot, &QCustomPlot::mouseMove, this, &ChartGestures::onMove);
    connect(plot, &QCustomPlot::mouseRelease, this, &ChartGestures::onRelease);
    connect(plot, &QCustomPlot::mouseDoubleClick, this, &ChartGestures::onDoubleClick);
    plot->grabGesture(Qt::PinchGesture);
    plot->installEventFilter(this);

    connect(view, &DiagramView::markerSelectionRequested, model, &PanelModel::selectMarker);
    connect(view, &DiagramView::markerMoveRequested, model, &PanelModel::moveMarker);
    connect(view, &DiagramView::markerDeleteRequested, model, &PanelModel::removeMarker);
    connect(view, &DiagramView::pointPicked, this, [this](int traceId, double index) {
        m_model->setActiveTrace(traceId);
        m_model->addMarker(traceId, index);
    });
}

bool ChartGestures::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Gesture:
        return onGesture(static_cast<QGestureEvent *>(event));
    case QEvent::KeyPress:
        return onKey(static_cast<QKeyEvent *>(event));
    case QEvent::Hide:
    case QEvent::UngrabMouse:
    case QEvent::WindowBlocked:
    case QEvent::WindowDeactivate:
    case QEvent::TouchCancel:
        // The release may never come.
        m_drag = Drag::None;
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void ChartGestures::onWheel(QWheelEvent *event)
{
    const double notches = event->angleDelta().y() / 120.0;
    m_view->zoomAt(event->position(), std::pow(s_zoomStep, notches));
    event->accept();
}

void ChartGestures::onPress(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    m_pressedMarker = m_view->isMarkerPressed();
    if (m_pressedMarker)
        return;
    m_drag = Drag::Pressed;
    m_pressed = QtCompat::position(event);
}

void ChartGestures::onMove(QMouseEvent *event)
{
    const QPointF position = QtCompat::position(event);
    if (m_drag == Drag::Pressed) {
        if ((position - m_pressed).manhattanLength() < QApplication::startDragDistance())
            return;
        // From here on, so that the view does not jump by the distance it took to be sure.
        m_drag = Drag::Panning;
        m_grabbed = m_view->coordinates(position);
    }
    if (m_drag == Drag::Panning)
        m_view->moveTo(m_grabbed, position);
}

void ChartGestures::onRelease()
{
    // A tap beside all markers.
    if (m_drag == Drag::Pressed) {
        m_model->selectMarker(0, 0);
        if (const Trace *trace = m_view->activeTrace())
            m_model->setActiveTrace(trace->id);
    }
    m_drag = Drag::None;
}

void ChartGestures::onDoubleClick(QMouseEvent *event)
{
    m_drag = Drag::None;
    if (event->button() != Qt::LeftButton || m_pressedMarker)
        return;
    if (!m_view->pick(QtCompat::position(event).toPoint(), event->modifiers()))
        m_view->resetView();
}

bool ChartGestures::onGesture(QGestureEvent *event)
{
    const auto *pinch = static_cast<QPinchGesture *>(event->gesture(Qt::PinchGesture));
    if (!pinch)
        return false;
    // The first finger of the two came as a mouse press.
    m_drag = Drag::None;
    const QPointF centre = m_view->plot()->mapFromGlobal(pinch->centerPoint().toPoint());
    if (pinch->state() == Qt::GestureStarted)
        m_grabbed = m_view->coordinates(centre);
    m_view->moveTo(m_grabbed, centre);
    m_view->zoomAt(centre, pinch->scaleFactor());
    return true;
}

bool ChartGestures::onKey(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        m_view->setZoom(m_view->zoom() * s_zoomStep);
        return true;
    case Qt::Key_Minus:
        m_view->setZoom(m_view->zoom() / s_zoomStep);
        return true;
    case Qt::Key_0:
        m_view->resetView();
        return true;
    case Qt::Key_Left:
        if (!stepMarker(-1))
            pan(s_panStep, 0.0);
        return true;
    case Qt::Key_Right:
        if (!stepMarker(1))
            pan(-s_panStep, 0.0);
        return true;
    case Qt::Key_Up:
        pan(0.0, s_panStep);
        return true;
    case Qt::Key_Down:
        pan(0.0, -s_panStep);
        return true;
    case Qt::Key_Escape:
        m_model->selectMarker(0, 0);
        return true;
    default:
        return false;
    }
}

bool ChartGestures::stepMarker(int points)
{
    const Marker *marker = m_model->selectedMarker();
    if (!marker)
        return false;
    m_model->moveMarker(marker->trace, marker->number, marker->index + points);
    return true;
}

void ChartGestures::pan(double right, double down)
{
    const QPointF from = m_view->plot()->axisRect()->center();
    m_view->moveTo(m_view->coordinates(from), from + QPointF(right, down));
}

} // namespace Panel
