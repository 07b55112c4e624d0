// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "smithchartplot.h"

#include "tracetree.h"

#include <utils/qtcompat_p.h>

#include <QKeyEvent>
#include <QMouseEvent>
#include <QTimer>

#include <limits>

namespace
{

constexpr double doubleClickToleranceSquared = 225.0; ///< 15 logical pixels

} // namespace

bool SmithChartPlot::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_plot || !plot())
        return QObject::eventFilter(watched, event);

    switch (event->type()) {
    case QEvent::Resize:
        if (!m_resizeRefitPending) {
            m_resizeRefitPending = true;
            // Several resizes in one pass of the event loop cost one fit.
            QTimer::singleShot(0, plot(), [self = QPointer<SmithChartPlot>(this)] {
                if (self) {
                    self->m_resizeRefitPending = false;
                    self->applyFixedView();
                }
            });
        }
        requestQueuedReplot();
        break;
    case QEvent::Hide:
        finishDrag(); // a hidden plot gets no release
        break;
    case QEvent::KeyPress: {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if ((key == Qt::Key_Backspace || key == Qt::Key_Delete) && m_selectedMarkerId > 0) {
            int traceId = 0;
            int localId = 0;
            parseMarkerId(m_selectedMarkerId, traceId, localId);
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

bool SmithChartPlot::handleDoubleClick(const QPoint &pos, Qt::KeyboardModifiers modifiers)
{
    QCPCurve *curve = getCurve(m_activeTraceId);
    int index = -1;
    double squaredDistance = std::numeric_limits<double>::infinity();
    if (curve && curve->visible())
        index = nearestCurveDataIndex(curve, pos, &squaredDistance);
    const bool nearActive = index >= 0 && squaredDistance <= doubleClickToleranceSquared;

    if (m_onlyHandleActiveTrace) {
        const OwnedCurve *const record = nearActive ? findOwnedCurve(curve) : nullptr;
        if (!record)
            return false;
        Q_EMIT activeTraceDoubleClicked(m_activeTraceId, record->frequencies.at(index), modifiers);
        return true;
    }

    if (!nearActive && !nearestCurveAndIndex(pos, curve, index, squaredDistance))
        return false;
    const OwnedCurve *const record = findOwnedCurve(curve);
    if (squaredDistance > doubleClickToleranceSquared || !record)
        return false;
    Q_EMIT pointDoubleClicked(record->traceId, index, modifiers);
    return true;
}

void SmithChartPlot::onPlotMousePress(QMouseEvent *event)
{
    if (!event || event->button() != Qt::LeftButton)
        return;
    const OwnedMarker *const caught = markerToCatchAt(QtCompat::position(event));
    if (!caught)
        return;
    const int traceId = caught->traceId;
    const int localId = caught->localId;
    const int id = makeMarkerId(traceId, localId);
    if (traceId < 1 || localId < 1 || id < 1)
        return;
    const QPointer<SmithChartPlot> self(this);
    Q_EMIT markerSelectionRequested(traceId, localId);
    if (!self || !findMarker(traceId, localId)) // the host may have answered by removing it
        return;
    m_draggingMarkerId = id;
    Q_EMIT markerDragStarted(traceId, localId);
}

void SmithChartPlot::onPlotMouseMove(QMouseEvent *event)
{
    if (!event || m_draggingMarkerId < 0 || dragIsConfined())
        return;
    int traceId = 0;
    int localId = 0;
    parseMarkerId(m_draggingMarkerId, traceId, localId);
    const OwnedMarker *const record = findMarker(traceId, localId);
    if (!record || !record->curve || !record->curve->visible())
        return;
    const int index =
        nearestCurveDataIndex(record->curve, QtCompat::position(event).toPoint(), nullptr);
    if (index >= 0)
        Q_EMIT markerPositionChanged(traceId, localId, index);
}

void SmithChartPlot::onPlotMouseRelease(QMouseEvent *event)
{
    Q_UNUSED(event)
    finishDrag();
}

/// Ends a drag where the host last put the marker.
void SmithChartPlot::finishDrag()
{
    if (m_finishingDrag) // a slot hides the plot, or ends the drag once more
        return;
    if (isDraggingMarker() && !dragIsConfined()) {
        int traceId = 0;
        int localId = 0;
        parseMarkerId(m_draggingMarkerId, traceId, localId);
        if (const OwnedMarker *const record = findMarker(traceId, localId)) {
            const QPointer<SmithChartPlot> self(this);
            m_finishingDrag = true;
            Q_EMIT markerDragFinished(traceId, localId, record->sourceIndex);
            if (!self)
                return;
            m_finishingDrag = false;
        }
    }
    m_draggingMarkerId = -1;
}

/// Whether the dragged marker may not move, because only the active trace is handled and it is
/// another's.
bool SmithChartPlot::dragIsConfined() const
{
    int traceId = 0;
    int localId = 0;
    parseMarkerId(m_draggingMarkerId, traceId, localId);
    return m_onlyHandleActiveTrace && traceId != m_activeTraceId;
}

/// The marker that a press catches: the one whose item is under the pointer, else the nearest one
/// within the hit tolerance. Earlier markers win ties.
const SmithChartPlot::OwnedMarker *SmithChartPlot::markerToCatchAt(const QPointF &pos) const
{
    QCustomPlot *const plot = this->plot();
    if (!plot)
        return nullptr;
    const QCPAbstractItem *const item = plot->itemAt(pos, true);
    const OwnedMarker *best = nullptr;
    double bestDistance = std::numeric_limits<double>::max();
    for (const OwnedMarker &record : m_ownedMarkers) {
        if (!record.curve || !record.curve->visible())
            continue;
        const QCPAbstractItem *const parts[] = {record.marker->getTracer(),
                                                record.marker->getLabel()};
        for (const QCPAbstractItem *part : parts) {
            if (!part || !part->visible())
                continue;
            if (part == item)
                return &record;
            const double distance = part->selectTest(pos, false);
            if (distance >= 0.0 && distance <= m_markerHitTolerancePx && distance < bestDistance) {
                bestDistance = distance;
                best = &record;
            }
        }
    }
    return best;
}

/// The point of a trace that is nearest to \a pos, or -1; the squared distance is in logical
/// pixels.
int SmithChartPlot::nearestCurveDataIndex(QCPCurve *curve, const QPoint &pos,
                                          double *squaredDistance) const
{
    if (squaredDistance)
        *squaredDistance = std::numeric_limits<double>::infinity();
    const OwnedCurve *const record = findOwnedCurve(curve);
    if (!record || !curve->keyAxis() || !curve->valueAxis() || !curve->keyAxis()->axisRect())
        return -1;
    const QCPAxisRect *const rect = curve->keyAxis()->axisRect();
    SmithRender::Viewport viewport;
    viewport.xMin = curve->keyAxis()->range().lower;
    viewport.xMax = curve->keyAxis()->range().upper;
    viewport.yMin = curve->valueAxis()->range().lower;
    viewport.yMax = curve->valueAxis()->range().upper;
    viewport.width = rect->width();
    viewport.height = rect->height();
    viewport.devicePixelRatio = plot() ? plot()->devicePixelRatioF() : 1.0;
    viewport.tolerancePx = 0.5;
    return record->tree.nearestIndex(viewport, pos - rect->topLeft(), squaredDistance);
}

bool SmithChartPlot::nearestCurveAndIndex(const QPoint &pos, QCPCurve *&curve, int &index,
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
