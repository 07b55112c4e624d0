// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "smithchartplot.h"

#include "decimation.h"
#include "smithperformance_p.h"

#include <QElapsedTimer>

#include <cmath>

Q_LOGGING_CATEGORY(smithPerformance, "vna.smith.render.performance", QtWarningMsg)

/// What traces are decimated for: the axes' ranges over the axis rectangle's device pixels.
SmithRender::Viewport SmithChartPlot::currentRenderViewport() const
{
    SmithRender::Viewport viewport;
    const QCPAxisRect *const rect = axisRect();
    if (!rect)
        return viewport;
    viewport.xMin = m_xAxis->range().lower;
    viewport.xMax = m_xAxis->range().upper;
    viewport.yMin = m_yAxis->range().lower;
    viewport.yMax = m_yAxis->range().upper;
    viewport.width = rect->width();
    viewport.height = rect->height();
    viewport.devicePixelRatio = plot()->devicePixelRatioF();
    viewport.tolerancePx = 0.5;
    return viewport;
}

/// Brings a trace's curve up to date; true when the curve's data was rebuilt. With \a force the
/// trace is decimated anew even where data and view are unchanged.
bool SmithChartPlot::refreshDisplayCurve(OwnedCurve &record, bool force)
{
    if (!record.curve)
        return false;
    const SmithRender::Viewport viewport = currentRenderViewport();
    record.lastDecimationNs = -1;
    const int n = static_cast<int>(record.real.size());
    if (n == 0) {
        record.curve->data()->clear();
        record.keptIndices.clear();
        record.cachedSourceRevision = record.sourceRevision;
        record.cachedViewport = viewport;
        record.cachedMarkerRevision = record.markerRevision;
        record.cacheValid = true;
        record.displayedPointCount = 0;
        return true;
    }

    if (force || !record.cacheValid || record.cachedSourceRevision != record.sourceRevision
        || record.cachedViewport != viewport) {
        QElapsedTimer timer;
        if (smithPerformance().isDebugEnabled())
            timer.start();
        record.keptIndices = record.tree.decimate(viewport).keptIndices;
        if (timer.isValid())
            record.lastDecimationNs = timer.nsecsElapsed();
        record.cachedSourceRevision = record.sourceRevision;
        record.cachedViewport = viewport;
        record.cacheValid = true;
    } else if (record.markerRevision == record.cachedMarkerRevision && record.curve->data()) {
        record.displayedPointCount = record.curve->data()->size();
        return false;
    }

    const QVector<int> indices =
        SmithRender::mergeIndices(record.keptIndices, mandatorySourceIndices(record), n);
    QVector<QCPCurveData> points;
    points.reserve(indices.size());
    for (const int i : indices)
        points.append(QCPCurveData(record.frequencies.at(i), record.real.at(i), record.imag.at(i)));
    record.curve->data()->set(points, true);
    record.displayedPointCount = static_cast<int>(points.size());
    record.cachedMarkerRevision = record.markerRevision;
    return true;
}

void SmithChartPlot::refreshAllDisplayCurves(bool force)
{
    for (OwnedCurve &record : m_curves)
        refreshDisplayCurve(record, force);
}

/// The points that a trace's markers stand on or between: they stay displayed, so that a marker
/// sits exactly on the drawn line.
QVector<int> SmithChartPlot::mandatorySourceIndices(const OwnedCurve &record) const
{
    QVector<int> indices;
    for (const OwnedMarker &marker : m_ownedMarkers) {
        if (marker.curve != record.curve || !(marker.sourceIndex >= 0.0))
            continue;
        indices.append(static_cast<int>(std::floor(marker.sourceIndex)));
        indices.append(static_cast<int>(std::ceil(marker.sourceIndex)));
    }
    return indices;
}
