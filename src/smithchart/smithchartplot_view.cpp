// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "smithchartplot.h"

#include <QSignalBlocker>

namespace
{

SmithChart::HalfRanges baseHalfRanges(const QCPAxisRect *rect)
{
    return SmithChart::baseHalfRanges(rect->width(), rect->height());
}

} // namespace

void SmithChartPlot::resetView()
{
    m_viewState = {};
    applyViewState();
}

void SmithChartPlot::zoomAt(const QPointF &anchor, double factor)
{
    if (QCPAxisRect *const rect = axisRect()) {
        m_viewState = SmithChart::zoomedViewState(m_viewState, anchor.x(), anchor.y(), factor,
                                                  baseHalfRanges(rect));
        applyViewState();
    }
}

void SmithChartPlot::setViewFromRequestedRanges(const QCPRange &xRange, const QCPRange &yRange)
{
    if (QCPAxisRect *const rect = axisRect()) {
        m_viewState = SmithChart::viewStateFromRanges(
            {xRange.lower, xRange.upper, yRange.lower, yRange.upper}, baseHalfRanges(rect));
        applyViewState();
    }
}

/// Fits both axes to the stored state. The axes' signals are blocked, or each range set here would
/// come back as one set from outside.
void SmithChartPlot::applyViewState()
{
    QCPAxisRect *const rect = axisRect();
    if (!rect)
        return;
    const SmithChart::HalfRanges base = baseHalfRanges(rect);
    m_viewState = SmithChart::clampViewState(m_viewState, base);
    const SmithChart::ViewRanges ranges = SmithChart::viewRanges(m_viewState, base);

    const QSignalBlocker blockX(m_xAxis);
    const QSignalBlocker blockY(m_yAxis);
    m_xAxis->setRange(ranges.xLower, ranges.xUpper);
    m_yAxis->setRange(ranges.yLower, ranges.yUpper);
    refreshAllDisplayCurves(false);
}

void SmithChartPlot::applyFixedView()
{
    if (!plot())
        return;
    applyViewState();
    requestQueuedReplot();
}

void SmithChartPlot::ensureAspectRatio()
{
    applyViewState();
}
