// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "chartgestures.h"

#include "limiteditor.h"
#include "tracewalker.h"

#include <panel/ground/pointerevent.h>

#include <plot/qcp.h>

#include <QApplication>
#include <QGestureEvent>
#include <QKeyEvent>

#include <cmath>

namespace Panel
{

namespace
{

/// Zoom for one notch of the wheel or one press of a key.
constexpr double s_zoomStep = 1.25;
/// Pixels that an arrow key moves the view.
constexpr double s_panStep = 40.0;

QPointF centreOf(const DiagramView *view)
{
    return view->plot()->axisRect()->center();
}

/// Moves the selected marker by so many points, to the ends of its data at most; a parked one comes
/// back to the nearer end.
void stepMarker(PanelModel *model, const Marker &marker, double points)
{
    const Network &network = model->network(*model->trace(marker.trace));
    const double last = network.points() - 1;
    double index = model->indexOf(marker);
    if (index < 0.0)
        index = indexOfFrequency(network.frequencies, marker.place.hertz);
    else
        index += points;
    model->moveMarker(marker.trace, marker.number, qBound(0.0, index, last));
}

TraceWalker *walkerOf(const DiagramView *view)
{
    return view->findChild<TraceWalker *>(QString(), Qt::FindDirectChildrenOnly);
}

/// Null where traces cannot have limits.
LimitEditor *limitEditorOf(const DiagramView *view)
{
    return view->findChild<LimitEditor *>(QString(), Qt::FindDirectChildrenOnly);
}

} // namespace

ChartGestures::ChartGestures(PanelModel *model, DiagramView *view)
    : QObject(view)
    , m_model(model)
    , m_view(view)
    , m_limits(limitEditorOf(view))
{
    QCustomPlot *plot = view->plot();
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
    connect(view, &DiagramView::titleDoubleTapped, this, [this] {
        activate();
        m_model->viewSettings()->toggleSingleDiagram();
        if (m_model->viewSettings()->isMaximized())
            Q_EMIT said(tr("Two taps on the title, or Esc, show all diagrams again."));
    });
    connect(view, &DiagramView::fitRequested, model, &PanelModel::fitTrace);
}

bool ChartGestures::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Gesture:
        return onGesture(static_cast<QGestureEvent *>(event));
    case QEvent::KeyPress:
        // The focus alone activates nothing: Tab only passes by.
        if (!handleKey(m_model, m_view, static_cast<QKeyEvent *>(event)))
            return false;
        activate();
        return true;
    case QEvent::Hide:
    case QEvent::UngrabMouse:
    case QEvent::WindowBlocked:
    case QEvent::WindowDeactivate:
    case QEvent::TouchCancel:
        // The release may never come.
        endDrag();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

/// Makes the diagram the active one, unless it is.
void ChartGestures::activate()
{
    if (const Trace *trace = m_view->activeTrace())
        m_model->setActiveTrace(trace->id);
}

void ChartGestures::onWheel(QWheelEvent *event)
{
    activate();
    const double notches = event->angleDelta().y() / 120.0;
    TraceWalker *walker = walkerOf(m_view);
    if (walker->isWalking() && notches != 0.0) {
        const bool byFeatures = event->modifiers().testFlag(Qt::ControlModifier);
        walker->walk({byFeatures ? SmithChart::WalkUnit::Feature : SmithChart::WalkUnit::Point,
                      notches > 0.0 ? 1 : -1});
        event->accept();
        return;
    }
    m_model->setZoom(m_view->id(),
                     m_view->zoomedAt(event->position(), std::pow(s_zoomStep, notches)));
    event->accept();
}

void ChartGestures::onPress(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    m_pressed = pointerPosition(event);
    if (m_limits && m_limits->press(m_pressed)) {
        m_drag = Drag::Limit;
        return;
    }
    m_hit = m_view->hit(m_pressed);
    m_drag = m_hit.kind == Hit::MarkerBody ? Drag::Marker : Drag::Pressed;
    if (m_drag != Drag::Marker)
        return;
    m_model->selectMarker(m_hit.trace, m_hit.marker);
    m_view->beginDrag(m_hit.trace, m_hit.marker);
}

void ChartGestures::onMove(QMouseEvent *event)
{
    // A release that was lost ends the drag here.
    if (!event->buttons().testFlag(Qt::LeftButton))
        endDrag();
    const QPointF position = pointerPosition(event);
    if (m_drag == Drag::Limit)
        m_limits->dragTo(position);
    if (m_drag == Drag::Marker && m_model->marker(m_hit.trace, m_hit.marker))
        m_view->dragTo(m_hit.trace, m_hit.marker, position);
    if (m_drag == Drag::Pressed) {
        if ((position - m_pressed).manhattanLength() < QApplication::startDragDistance())
            return;
        // From here on, so that the view does not jump by the distance it took to be sure.
        m_drag = Drag::Panning;
        m_grabbed = m_view->coordinates(position);
    }
    if (m_drag == Drag::Panning && !m_model->zoom(m_view->id()).isWhole())
        m_model->setZoom(m_view->id(), m_view->movedTo(m_grabbed, position));
}

void ChartGestures::onRelease()
{
    // A tap beside all markers.
    if (m_drag == Drag::Pressed) {
        m_model->selectMarker(0, 0);
        if (m_hit.kind == Hit::Line)
            m_model->setActiveTrace(m_hit.trace);
        else
            activate();
    }
    endDrag();
}

void ChartGestures::endDrag()
{
    if (m_drag == Drag::Limit)
        m_limits->release();
    m_drag = Drag::None;
}

void ChartGestures::onDoubleClick(QMouseEvent *event)
{
    endDrag();
    if (event->button() != Qt::LeftButton)
        return;
    const Hit hit = m_view->hit(pointerPosition(event));
    if (hit.kind == Hit::Nothing && m_limits)
        m_limits->addAt(pointerPosition(event));
    if (hit.kind != Hit::Line)
        return;
    m_model->setActiveTrace(hit.trace);
    m_model->addMarker(hit.trace, hit.index);
}

bool ChartGestures::onGesture(QGestureEvent *event)
{
    const auto *pinch = static_cast<QPinchGesture *>(event->gesture(Qt::PinchGesture));
    if (!pinch)
        return false;
    // The first finger of the two came as a mouse press.
    if (m_drag == Drag::Limit)
        m_limits->giveUp();
    m_drag = Drag::None;
    const QPointF centre = m_view->plot()->mapFromGlobal(pinch->centerPoint().toPoint());
    if (pinch->state() == Qt::GestureStarted) {
        activate();
        m_grabbed = m_view->coordinates(centre);
    }
    m_model->setZoom(m_view->id(), m_view->movedTo(m_grabbed, centre));
    m_model->setZoom(m_view->id(), m_view->zoomedAt(centre, pinch->scaleFactor()));
    return true;
}

bool ChartGestures::handleKey(PanelModel *model, DiagramView *view, const QKeyEvent *event)
{
    LimitEditor *limits = limitEditorOf(view);
    if ((limits && limits->handleKey(event)) || walkerOf(view)->handleKey(event))
        return true;
    const Marker *selected = model->selectedMarker();
    const auto zoom = [=](double factor) {
        model->setZoom(view->id(), view->zoomedAt(centreOf(view), factor));
    };
    const auto pan = [=](double right, double down) {
        const QPointF from = centreOf(view);
        model->setZoom(view->id(),
                       view->movedTo(view->coordinates(from), from + QPointF(right, down)));
    };
    const auto step = [=](int direction) {
        const bool onePoint = event->modifiers().testFlag(Qt::ControlModifier);
        if (selected)
            stepMarker(model, *selected,
                       direction * (onePoint ? 1 : view->pointsPerStep(selected->trace)));
        else
            pan(-direction * s_panStep, 0.0);
    };
    switch (event->key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        zoom(s_zoomStep);
        return true;
    case Qt::Key_Minus:
        zoom(1.0 / s_zoomStep);
        return true;
    case Qt::Key_0:
        model->setZoom(view->id(), Zoom());
        return true;
    case Qt::Key_Left:
        step(-1);
        return true;
    case Qt::Key_Right:
        step(1);
        return true;
    case Qt::Key_Up:
        pan(0.0, s_panStep);
        return true;
    case Qt::Key_Down:
        pan(0.0, -s_panStep);
        return true;
    case Qt::Key_Escape:
        if (!selected && model->viewSettings()->isMaximized())
            model->viewSettings()->toggleSingleDiagram();
        model->selectMarker(0, 0);
        return true;
    case Qt::Key_Delete:
        if (selected)
            model->removeMarker(selected->trace, selected->number);
        return true;
    default:
        return false;
    }
}

} // namespace Panel
