// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "smithchartplot_p.h"

#include <QSignalBlocker>

namespace
{

SmithChart::HalfRanges baseHalfRanges(const QCPAxisRect *rect)
{
    return SmithChart::baseHalfRanges(rect->width(), rect->height());
}

} // namespace

SmithChart::ViewState SmithChartPlot::viewState() const
{
    return d->m_viewState;
}

bool SmithChartPlot::isMagnified() const
{
    return d->m_viewState.zoom > SmithChart::magnifiedThreshold;
}

void SmithChartPlot::resetView()
{
    d->setViewState({});
}

void SmithChartPlot::zoomAt(const QPointF &anchor, double factor)
{
    if (QCPAxisRect *const rect = d->axisRect()) {
        d->setViewState(SmithChart::zoomedViewState(d->m_viewState, anchor.x(), anchor.y(), factor,
                                                    baseHalfRanges(rect), d->m_maximumZoom));
    }
}

void SmithChartPlot::setViewFromRequestedRanges(const QCPRange &xRange, const QCPRange &yRange)
{
    if (QCPAxisRect *const rect = d->axisRect()) {
        d->setViewState(SmithChart::viewStateFromRanges(
            {xRange.lower, xRange.upper, yRange.lower, yRange.upper}, baseHalfRanges(rect),
            d->m_maximumZoom));
    }
}

double SmithChartPlot::maximumZoom() const
{
    return d->m_maximumZoom;
}

bool SmithChartPlot::setMaximumZoom(double zoom)
{
    constexpr double highest = 1e6; // beyond, pixels are no longer told apart
    if (!(zoom >= 1.0 && zoom <= highest))
        return false;
    d->m_maximumZoom = zoom;
    d->setViewState(d->m_viewState);
    return true;
}

/// Shows another view; a replot is asked for if the picture changes.
void SmithChartPlotPrivate::setViewState(const SmithChart::ViewState &state)
{
    const SmithChart::ViewState before = m_viewState;
    m_viewState = state;
    applyViewState();
    if (m_viewState != before)
        requestQueuedReplot();
}

/// Fits both axes to the stored state. The axes' signals are blocked, or each range set here would
/// come back as one set from outside.
void SmithChartPlotPrivate::applyViewState()
{
    QCPAxisRect *const rect = axisRect();
    if (!rect)
        return;
    const SmithChart::HalfRanges base = baseHalfRanges(rect);
    m_viewState = SmithChart::clampViewState(m_viewState, base, m_maximumZoom);
    const SmithChart::ViewRanges ranges = SmithChart::viewRanges(m_viewState, base);

    const QSignalBlocker blockX(m_xAxis);
    const QSignalBlocker blockY(m_yAxis);
    m_xAxis->setRange(ranges.xLower, ranges.xUpper);
    m_yAxis->setRange(ranges.yLower, ranges.yUpper);
    refreshAllDisplayCurves(false);
}

void SmithChartPlotPrivate::applyFixedView()
{
    if (!plot())
        return;
    applyViewState();
    requestQueuedReplot();
}

void SmithChartPlotPrivate::ensureAspectRatio()
{
    applyViewState();
}
