// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "smithchartplot_p.h"

#include "decimation.h"
#include "smithperformance_p.h"

#include <QElapsedTimer>

#include <cmath>

Q_LOGGING_CATEGORY(smithPerformance, "vna.smith.render.performance", QtWarningMsg)

/// The axes' ranges over the device pixels of the x axis' rectangle.
SmithRender::Viewport SmithChartPlotPrivate::viewportOf(const QCPAxis *xAxis, const QCPAxis *yAxis)
{
    SmithRender::Viewport viewport;
    viewport.xMin = xAxis->range().lower;
    viewport.xMax = xAxis->range().upper;
    viewport.yMin = yAxis->range().lower;
    viewport.yMax = yAxis->range().upper;
    viewport.width = xAxis->axisRect()->width();
    viewport.height = xAxis->axisRect()->height();
    viewport.devicePixelRatio = xAxis->parentPlot()->devicePixelRatioF();
    return viewport;
}

/// What traces are decimated for.
SmithRender::Viewport SmithChartPlotPrivate::currentRenderViewport() const
{
    return axisRect() ? viewportOf(m_xAxis, m_yAxis) : SmithRender::Viewport();
}

/// Brings a trace's curve up to date; true when the curve's data was rebuilt. With \a force the
/// trace is decimated anew even where data and view are unchanged.
bool SmithChartPlotPrivate::refreshDisplayCurve(OwnedCurve &record, bool force)
{
    if (!record.curve)
        return false;
    const SmithRender::Viewport viewport = currentRenderViewport();
    record.lastDecimationNs = -1;
    const int n = static_cast<int>(record.real.size());
    if (n == 0) {
        record.curve->data()->clear();
        record.keptIndices.clear();
        record.cachedViewport = viewport;
        record.cachedMarkerRevision = record.markerRevision;
        record.displayedPointCount = 0;
        return true;
    }

    if (force || record.cachedViewport != viewport) {
        QElapsedTimer timer;
        if (smithPerformance().isDebugEnabled())
            timer.start();
        record.keptIndices = record.index.decimate(viewport).keptIndices;
        if (timer.isValid())
            record.lastDecimationNs = timer.nsecsElapsed();
        record.cachedViewport = viewport;
    } else if (record.markerRevision == record.cachedMarkerRevision) {
        record.displayedPointCount = record.curve->data()->size();
        return false;
    }

    const QVector<int> indices =
        SmithRender::mergeIndices(record.keptIndices, mandatorySourceIndices(record), n);
    // The old points go first: the new ones then get their memory, which the system need not clear.
    record.curve->data()->set(QVector<QCPCurveData>(), true);
    QVector<QCPCurveData> points(indices.size());
    QCPCurveData *point = points.data();
    for (const int i : indices) {
        point->t = record.frequencies.at(i);
        point->key = record.real.at(i);
        point->value = record.imag.at(i);
        ++point;
    }
    record.curve->data()->set(points, true);
    record.displayedPointCount = static_cast<int>(points.size());
    record.cachedMarkerRevision = record.markerRevision;
    return true;
}

void SmithChartPlotPrivate::refreshAllDisplayCurves(bool force)
{
    for (OwnedCurve &record : m_curves)
        refreshDisplayCurve(record, force);
}

/// The points that a trace's markers stand on or between: they stay displayed, so that a marker
/// sits exactly on the drawn line.
QVector<int> SmithChartPlotPrivate::mandatorySourceIndices(const OwnedCurve &record) const
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
