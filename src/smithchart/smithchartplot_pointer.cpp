// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "reachablepoint_p.h"
#include "smithchartplot_p.h"

#include <base/qtcompat_p.h>
#include <plot/markerselection.h>
#include <plot/markerslayer_p.h>

#include <QKeyEvent>
#include <QMouseEvent>
#include <QTimer>

#include <cmath>
#include <limits>

namespace
{

constexpr double doubleClickToleranceSquared = 225.0; ///< 15 logical pixels

bool hasAxes(const QCPCurve &curve)
{
    return curve.keyAxis() && curve.valueAxis();
}

} // namespace

bool SmithChartPlot::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != d->m_plot || !d->plot())
        return QObject::eventFilter(watched, event);

    switch (event->type()) {
    case QEvent::Resize:
        if (!d->m_resizeRefitPending) {
            d->m_resizeRefitPending = true;
            // Several resizes in one pass of the event loop cost one fit.
            QTimer::singleShot(0, d->plot(), [self = QPointer<SmithChartPlot>(this)] {
                if (self) {
                    self->d->m_resizeRefitPending = false;
                    self->d->applyFixedView();
                }
            });
        }
        d->requestQueuedReplot();
        break;
    case QEvent::Hide:
        d->finishDrag(); // a hidden plot gets no release
        break;
    case QEvent::KeyPress: {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if ((key == Qt::Key_Backspace || key == Qt::Key_Delete) && d->m_selectedMarkerId > 0) {
            int traceId = 0;
            int localId = 0;
            parseMarkerId(d->m_selectedMarkerId, traceId, localId);
            Q_EMIT markerDeleteRequested(traceId, localId);
            return true;
        }
        break;
    }
    default:
        break;
    }
    return false; // QObject's own filter filters nothing
}

bool SmithChartPlot::onlyHandleActiveTrace() const
{
    return d->m_onlyHandleActiveTrace;
}

void SmithChartPlot::setOnlyHandleActiveTrace(bool only)
{
    d->m_onlyHandleActiveTrace = only;
}

bool SmithChartPlot::handleDoubleClick(const QPoint &pos, Qt::KeyboardModifiers modifiers)
{
    QCPCurve *curve = getCurve(d->m_activeTraceId);
    int index = -1;
    double squaredDistance = std::numeric_limits<double>::infinity();
    if (curve && curve->visible())
        index = d->nearestCurveDataIndex(curve, pos, &squaredDistance);
    const bool nearActive = index >= 0 && squaredDistance <= doubleClickToleranceSquared;

    if (d->m_onlyHandleActiveTrace) {
        const auto *const record = nearActive ? d->findOwnedCurve(curve) : nullptr;
        if (!record)
            return false;
        Q_EMIT activeTraceDoubleClicked(d->m_activeTraceId, record->frequencies.at(index),
                                        modifiers);
        return true;
    }

    if (!nearActive && !d->nearestCurveAndIndex(pos, curve, index, squaredDistance))
        return false;
    if (squaredDistance > doubleClickToleranceSquared)
        return false;
    Q_EMIT pointDoubleClicked(d->findOwnedCurve(curve)->traceId, index, modifiers);
    return true;
}

void SmithChartPlotPrivate::onPlotMousePress(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && m_pressDragsMarkers)
        catchMarkerAt(QtCompat::position(event));
}

void SmithChartPlotPrivate::catchMarkerAt(const QPointF &pos)
{
    if (const OwnedMarker *const caught = markerToCatchAt(pos))
        catchMarker(caught->traceId, caught->localId);
}

/// Asks for a marker's selection and begins to drag it; false if it is not there (any more).
bool SmithChartPlotPrivate::catchMarker(int traceId, int localId)
{
    const int id = SmithChartPlot::makeMarkerId(traceId, localId);
    if (traceId < 1 || localId < 1 || id < 1 || !findMarker(traceId, localId))
        return false;
    const QPointer<SmithChartPlot> self(q);
    Q_EMIT q->markerSelectionRequested(traceId, localId);
    if (!self || !findMarker(traceId, localId)) // the host may have answered by removing it
        return false;
    m_draggingMarkerId = id;
    Q_EMIT q->markerDragStarted(traceId, localId);
    return self && m_draggingMarkerId == id;
}

bool SmithChartPlot::pressDragsMarkers() const
{
    return d->m_pressDragsMarkers;
}

void SmithChartPlot::setPressDragsMarkers(bool drags)
{
    d->m_pressDragsMarkers = drags;
}

bool SmithChartPlot::beginMarkerDrag(int traceId, int localId)
{
    return d->plot() && d->catchMarker(traceId, localId);
}

bool SmithChartPlot::nearestPoint(int traceId, const QPoint &pos, int &index,
                                  double &distance) const
{
    QCPCurve *const curve = getCurve(traceId);
    if (!curve || !curve->visible())
        return false;
    double squaredDistance = 0.0;
    const int nearest = d->nearestCurveDataIndex(curve, pos, &squaredDistance);
    if (nearest < 0)
        return false;
    index = nearest;
    distance = std::sqrt(squaredDistance);
    return true;
}

void SmithChartPlotPrivate::onPlotMouseMove(QMouseEvent *event)
{
    if (m_draggingMarkerId < 0 || dragIsConfined())
        return;
    int traceId = 0;
    int localId = 0;
    SmithChartPlot::parseMarkerId(m_draggingMarkerId, traceId, localId);
    const OwnedMarker *const record = findMarker(traceId, localId);
    if (!record || !record->curve || !record->curve->visible())
        return;
    const QPoint pos = QtCompat::position(event).toPoint();
    const int index = draggedIndex(*record, pos);
    if (index < 0)
        return;
    const QPointer<SmithChartPlot> self(q);
    Q_EMIT q->markerPositionChanged(traceId, localId, index);
    if (!self || m_markerDragJumpPx <= 0.0)
        return;
    if (const OwnedMarker *const moved = findMarker(traceId, localId)) // where the host put it
        showDragLine(*moved, pos);
}

/// Where a dragged marker is to go: to the nearest point, or as the host chose, to one that it
/// reaches along its trace.
int SmithChartPlotPrivate::draggedIndex(const OwnedMarker &record, const QPoint &pos) const
{
    const OwnedCurve *const trace = findOwnedCurve(record.curve);
    if (m_markerDragJumpPx > 0.0 && record.sourceIndex >= 0.0 && hasAxes(*record.curve)) {
        const QCPAxis *const xAxis = record.curve->keyAxis();
        double squaredDistance = 0.0;
        const int reached = SmithRender::reachableIndex(
            trace->real, trace->imag, viewportOf(xAxis, record.curve->valueAxis()),
            pos - xAxis->axisRect()->topLeft(), qRound(record.sourceIndex), squaredDistance);
        if (reached >= 0 && squaredDistance <= m_markerDragJumpPx * m_markerDragJumpPx)
            return reached;
    }
    return nearestCurveDataIndex(record.curve, pos, nullptr);
}

/// Ties a marker to the pointer while both are apart.
void SmithChartPlotPrivate::showDragLine(const OwnedMarker &record, const QPoint &pos)
{
    const QCPItemTracer *const tracer = record.marker->getTracer();
    if (!tracer)
        return;
    constexpr double apartPx = 6.0;
    const QPointF marker = tracer->position->pixelPosition();
    const QPointF way = QPointF(pos) - marker;
    if (std::hypot(way.x(), way.y()) < apartPx) {
        hideDragLine();
        return;
    }
    if (!m_dragLine) {
        m_dragLine = new QCPItemLine(tracer->parentPlot());
        m_dragLine->setLayer(Plot::markersLayerName());
        m_dragLine->setSelectable(false);
        for (QCPItemPosition *end : {m_dragLine->start, m_dragLine->end})
            end->setType(QCPItemPosition::ptAbsolute);
    }
    m_dragLine->setPen(QPen(tracer->pen().color(), 1.0));
    m_dragLine->setVisible(true);
    m_dragLine->start->setCoords(marker);
    m_dragLine->end->setCoords(pos);
    requestQueuedReplot();
}

void SmithChartPlotPrivate::hideDragLine()
{
    if (!m_dragLine || !m_dragLine->visible())
        return;
    m_dragLine->setVisible(false);
    requestQueuedReplot();
}

/// Ends a drag without a word, for a marker that is gone.
void SmithChartPlotPrivate::forgetDrag()
{
    m_draggingMarkerId = -1;
    if (m_dragLine)
        m_dragLine->setVisible(false);
}

double SmithChartPlot::markerDragJumpPx() const
{
    return d->m_markerDragJumpPx;
}

bool SmithChartPlot::setMarkerDragJumpPx(double px)
{
    if (!std::isfinite(px) || px < 0.0)
        return false;
    d->m_markerDragJumpPx = px;
    return true;
}

/// Ends a drag where the host last put the marker.
void SmithChartPlotPrivate::finishDrag()
{
    if (m_finishingDrag) // a slot hides the plot, or ends the drag once more
        return;
    const QPointer<SmithChartPlot> chart(q);
    hideDragLine();
    if (!chart)
        return;
    if (q->isDraggingMarker() && !dragIsConfined()) {
        int traceId = 0;
        int localId = 0;
        SmithChartPlot::parseMarkerId(m_draggingMarkerId, traceId, localId);
        if (const OwnedMarker *const record = findMarker(traceId, localId)) {
            const QPointer<SmithChartPlot> self(q);
            m_finishingDrag = true;
            Q_EMIT q->markerDragFinished(traceId, localId, record->sourceIndex);
            if (!self)
                return;
            m_finishingDrag = false;
        }
    }
    m_draggingMarkerId = -1;
}

/// Whether the dragged marker may not move, because only the active trace is handled and it is
/// another's.
bool SmithChartPlotPrivate::dragIsConfined() const
{
    int traceId = 0;
    int localId = 0;
    SmithChartPlot::parseMarkerId(m_draggingMarkerId, traceId, localId);
    return m_onlyHandleActiveTrace && traceId != m_activeTraceId;
}

/// The marker that a press catches, of a trace that is shown.
const SmithChartPlotPrivate::OwnedMarker *
SmithChartPlotPrivate::markerToCatchAt(const QPointF &pos) const
{
    QVector<const Plot::Marker *> markers;
    for (const OwnedMarker &record : m_ownedMarkers) {
        const bool isShown = record.curve && record.curve->visible();
        markers.append(isShown ? record.marker.get() : nullptr);
    }
    const int index = Plot::markerAt(markers, pos, m_markerHitTolerancePx);
    return index < 0 ? nullptr : &m_ownedMarkers[static_cast<std::size_t>(index)];
}

/// The point of a trace that is nearest to \a pos, or -1; the squared distance is in logical
/// pixels.
int SmithChartPlotPrivate::nearestCurveDataIndex(QCPCurve *curve, const QPoint &pos,
                                                 double *squaredDistance) const
{
    if (squaredDistance)
        *squaredDistance = std::numeric_limits<double>::infinity();
    const OwnedCurve *const record = findOwnedCurve(curve);
    if (!record || !hasAxes(*curve))
        return -1;
    const QCPAxisRect *const rect = curve->keyAxis()->axisRect();
    return record->index.nearestIndex(viewportOf(curve->keyAxis(), curve->valueAxis()),
                                      pos - rect->topLeft(), squaredDistance);
}

bool SmithChartPlotPrivate::nearestCurveAndIndex(const QPoint &pos, QCPCurve *&curve, int &index,
                                                 double &squaredDistance) const
{
    curve = nullptr;
    index = -1;
    squaredDistance = std::numeric_limits<double>::max();
    const QVector<QCPCurve *> candidates = dataCurves();
    for (QCPCurve *const candidate : candidates) {
        double distance = 0.0;
        const int nearest = nearestCurveDataIndex(candidate, pos, &distance);
        if (nearest >= 0 && distance < squaredDistance) {
            curve = candidate;
            index = nearest;
            squaredDistance = distance;
        }
    }
    return curve != nullptr;
}
