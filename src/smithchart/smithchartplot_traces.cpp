// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "smithchartplot_p.h"

#include "coverageboostcurve_p.h"
#include "smithchartlayers_p.h"
#include "smithperformance_p.h"
#include "tracepoint.h"

#include <QDateTime>
#include <QDebug>
#include <QElapsedTimer>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

namespace
{

constexpr qint64 reportIntervalMs = 2000;

/// \a width counts pixels of the widget; 0: one of the device, which lines with gaps always have:
/// painters are slow with wide ones.
void applyTracePen(QCPCurve *curve, const QPen &basePen, double width)
{
    QPen pen = basePen;
    const bool hasWidth = width > 0.0 && basePen.style() == Qt::SolidLine;
    pen.setWidthF(hasWidth ? width : 1.0);
    pen.setCosmetic(!hasWidth);
    pen.setCapStyle(Qt::RoundCap);
    pen.setJoinStyle(Qt::RoundJoin);
    curve->setPen(pen);
    curve->setAntialiased(true);
}

} // namespace

bool SmithChartPlot::addCurve(int traceId, const QPen &pen)
{
    if (!d->axisRect() || traceId < 1 || d->findTrace(traceId))
        return false;
    auto *const curve = new CoverageBoostCurve(d->m_xAxis, d->m_yAxis);
    curve->setLayer(SmithLayers::tracers());
    curve->setName(QString::number(traceId));
    applyTracePen(curve, pen, d->m_traceWidth);
    curve->setSelectable(QCP::stNone);
    curve->removeFromLegend();

    SmithChartPlotPrivate::OwnedCurve record;
    record.traceId = traceId;
    record.curve = curve;
    record.basePen = pen;
    d->m_curves.append(record);
    d->setGridVisible(true);
    d->requestQueuedReplot();
    return true;
}

bool SmithChartPlot::removeCurve(int traceId)
{
    QCustomPlot *const plot = d->plot();
    if (!plot || !d->findTrace(traceId))
        return false;
    const QPointer<SmithChartPlot> self(this);
    d->removeMarkersOfTrace(traceId);
    if (!self)
        return true;
    // Looked up anew: a slot of the selection's signal may have changed the traces.
    const int index = d->findCurveIndexByTraceId(traceId);
    if (index >= 0) {
        if (QCPCurve *const curve = d->m_curves.at(index).curve)
            plot->removePlottable(curve);
        d->m_curves.remove(index);
    }
    const bool wasActive = d->m_activeTraceId == traceId;
    if (wasActive)
        d->m_activeTraceId = -1;
    d->setGridVisible(d->anyCurveVisible());
    d->requestQueuedReplot();
    if (self && wasActive)
        Q_EMIT activeTraceChanged(-1);
    return true;
}

void SmithChartPlot::clearAllCurves()
{
    QCustomPlot *const plot = d->plot();
    if (!plot)
        return;
    const QPointer<SmithChartPlot> self(this);
    clearAllMarkers();
    if (!self)
        return;
    for (const auto &record : qAsConst(d->m_curves)) {
        if (record.curve)
            plot->removePlottable(record.curve);
    }
    d->m_curves.clear();
    const bool hadActive = std::exchange(d->m_activeTraceId, -1) != -1;
    d->setGridVisible(false);
    d->requestQueuedReplot();
    if (self && hadActive)
        Q_EMIT activeTraceChanged(-1);
}

bool SmithChartPlot::setCurveData(int traceId, const QVector<double> &frequencies,
                                  const QVector<double> &real, const QVector<double> &imag)
{
    auto *const record = d->findTrace(traceId);
    if (!d->plot() || !record || !record->curve)
        return false;
    QElapsedTimer timer;
    if (smithPerformance().isDebugEnabled())
        timer.start();

    const auto n = std::min(real.size(), imag.size());
    // A vector that is taken whole is shared with the caller, not copied.
    const auto firstN = [n](const QVector<double> &values) {
        return values.size() == n ? values : values.mid(0, n);
    };
    // The arguments may be the record's own vectors, in any order: read all before writing any.
    const QVector<double> newReal = firstN(real);
    const QVector<double> newImag = firstN(imag);
    QVector<double> newFrequencies;
    if (frequencies.size() >= n) {
        newFrequencies = firstN(frequencies);
    } else {
        newFrequencies.resize(n);
        std::iota(newFrequencies.begin(), newFrequencies.end(), 0.0);
    }
    record->real = newReal;
    record->imag = newImag;
    record->frequencies = newFrequencies;
    record->index.setSource(record->real, record->imag);
    d->refreshDisplayCurve(*record, true);
    if (timer.isValid())
        d->reportPerformance(*record, timer.nsecsElapsed());
    const QPointer<SmithChartPlot> self(this);
    d->replaceMarkers(*record);
    d->requestQueuedReplot();
    if (self)
        d->requestQueuedReplot();
    return true;
}

/// Tells the log what new data cost, at most every two seconds a trace.
void SmithChartPlotPrivate::reportPerformance(OwnedCurve &record, qint64 elapsedNs)
{
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    if (now - record.lastReportMs < reportIntervalMs)
        return;
    record.lastReportMs = now;
    qCDebug(smithPerformance).nospace()
        << "trace " << record.traceId << ": " << record.real.size() << " points, "
        << record.displayedPointCount << " displayed, setCurveData "
        << static_cast<double>(elapsedNs) / 1e6 << " ms, decimation "
        << static_cast<double>(record.lastDecimationNs) / 1e6 << " ms";
}

bool SmithChartPlot::sourceCurveData(int traceId, const QVector<double> *&frequencies,
                                     const QVector<double> *&real,
                                     const QVector<double> *&imag) const
{
    const auto *const record = d->findTrace(traceId);
    if (!record)
        return false;
    frequencies = &record->frequencies;
    real = &record->real;
    imag = &record->imag;
    return true;
}

bool SmithChartPlot::setCurvePen(int traceId, const QPen &pen)
{
    auto *const record = d->findTrace(traceId);
    if (!record || !record->curve)
        return false;
    record->basePen = pen;
    d->applyPen(*record);
    d->recolorMarkers(record->curve);
    d->requestQueuedReplot();
    return true;
}

double SmithChartPlot::traceWidth() const
{
    return d->m_traceWidth;
}

double SmithChartPlot::activeTraceWidth() const
{
    return d->m_activeTraceWidth;
}

void SmithChartPlot::setTraceWidths(double width, double activeWidth)
{
    if (!std::isfinite(width) || !std::isfinite(activeWidth))
        return;
    d->m_traceWidth = std::max(width, 0.0);
    d->m_activeTraceWidth = std::max(activeWidth, 0.0);
    for (const auto &record : std::as_const(d->m_curves)) {
        if (record.curve)
            d->applyPen(record);
    }
    d->requestQueuedReplot();
}

bool SmithChartPlot::setCurveVisible(int traceId, bool visible)
{
    auto *const record = d->findTrace(traceId);
    if (!record || !record->curve)
        return false;
    const bool changes = record->curve->visible() != visible;
    record->curve->setVisible(visible);
    d->setGridVisible(d->anyCurveVisible());
    const QPointer<SmithChartPlot> self(this);
    d->requestQueuedReplot();
    if (self && changes)
        Q_EMIT curveVisibleChanged(traceId, visible);
    return true;
}

int SmithChartPlot::activeTrace() const
{
    return d->m_activeTraceId;
}

bool SmithChartPlot::hasActiveTrace() const
{
    return d->m_activeTraceId > 0;
}

QVector<int> SmithChartPlot::traceIds() const
{
    QVector<int> ids;
    ids.reserve(d->m_curves.size());
    for (const auto &record : qAsConst(d->m_curves))
        ids.append(record.traceId);
    return ids;
}

QCPCurve *SmithChartPlot::getCurve(int traceId) const
{
    const auto *const record = d->findTrace(traceId);
    return record ? record->curve.data() : nullptr;
}

bool SmithChartPlot::hasSourceDataAtIndex(int traceId, double index) const
{
    const auto *const record = d->findTrace(traceId);
    if (!record || !std::isfinite(index) || index < 0.0)
        return false;
    if (index > static_cast<double>(record->real.size() - 1))
        return false;
    const auto below = static_cast<int>(std::floor(index));
    const auto above = static_cast<int>(std::ceil(index));
    return std::isfinite(record->frequencies.at(below))
        && std::isfinite(record->frequencies.at(above))
        && SmithChart::tracePoint(record->real, record->imag, index).has_value();
}

bool SmithChartPlot::hasSourceDataAtParameter(int traceId, double frequency) const
{
    const auto *const record = d->findTrace(traceId);
    if (!record || !std::isfinite(frequency))
        return false;
    const QVector<double> &f = record->frequencies;
    for (int i = 0; i < f.size(); ++i) {
        if (f.at(i) == frequency && hasSourceDataAtIndex(traceId, i))
            return true;
    }
    for (int i = 0; i + 1 < f.size(); ++i) {
        const double a = f.at(i);
        const double b = f.at(i + 1);
        if (!std::isfinite(a) || !std::isfinite(b) || a == b)
            continue;
        if (std::min(a, b) <= frequency && frequency <= std::max(a, b)
            && hasSourceDataAtIndex(traceId, i + (frequency - a) / (b - a)))
            return true;
    }
    return false;
}

bool SmithChartPlot::setActiveTrace(int traceId)
{
    if (traceId > 0 && !d->findTrace(traceId)) {
        qWarning() << "SmithChartPlot::setActiveTrace: traceId" << traceId << "not found";
        return false;
    }
    const bool changes = d->m_activeTraceId != traceId;
    d->moveCurveToLayer(d->m_activeTraceId, SmithLayers::tracers());
    d->m_activeTraceId = traceId;
    d->moveCurveToLayer(d->m_activeTraceId, SmithLayers::activeTracers());
    const QPointer<SmithChartPlot> self(this);
    d->requestQueuedReplot();
    if (self && changes)
        Q_EMIT activeTraceChanged(traceId);
    return true;
}

void SmithChartPlot::clearActiveTrace()
{
    const bool changes = d->m_activeTraceId != -1;
    d->moveCurveToLayer(d->m_activeTraceId, SmithLayers::tracers());
    d->m_activeTraceId = -1;
    const QPointer<SmithChartPlot> self(this);
    d->requestQueuedReplot();
    if (self && changes)
        Q_EMIT activeTraceChanged(-1);
}

/// Moves a trace to another layer; does nothing for a trace that does not exist.
void SmithChartPlotPrivate::moveCurveToLayer(int traceId, const QString &layer)
{
    const OwnedCurve *const record = traceId > 0 ? findTrace(traceId) : nullptr;
    if (!plot() || !record || !record->curve)
        return;
    record->curve->setLayer(layer);
    applyPen(*record);
}

void SmithChartPlotPrivate::applyPen(const OwnedCurve &record) const
{
    const bool isActive =
        record.curve->layer() && record.curve->layer()->name() == SmithLayers::activeTracers();
    applyTracePen(record.curve, record.basePen, isActive ? m_activeTraceWidth : m_traceWidth);
}

SmithChartPlotPrivate::OwnedCurve *SmithChartPlotPrivate::findTrace(int traceId)
{
    const int index = findCurveIndexByTraceId(traceId);
    return index < 0 ? nullptr : &m_curves[index];
}

int SmithChartPlotPrivate::findCurveIndexByTraceId(int traceId) const
{
    const auto found =
        std::find_if(m_curves.cbegin(), m_curves.cend(),
                     [traceId](const OwnedCurve &record) { return record.traceId == traceId; });
    return found == m_curves.cend() ? -1 : static_cast<int>(found - m_curves.cbegin());
}

SmithChartPlotPrivate::OwnedCurve *SmithChartPlotPrivate::findOwnedCurve(QCPCurve *curve)
{
    for (OwnedCurve &record : m_curves) {
        if (curve && record.curve == curve)
            return &record;
    }
    return nullptr;
}

const SmithChartPlotPrivate::OwnedCurve *
SmithChartPlotPrivate::findOwnedCurve(QCPCurve *curve) const
{
    return const_cast<SmithChartPlotPrivate *>(this)->findOwnedCurve(curve);
}

/// The visible trace curves on the chart's axes, in the plot's order.
QVector<QCPCurve *> SmithChartPlotPrivate::dataCurves() const
{
    QVector<QCPCurve *> curves;
    QCustomPlot *const plot = this->plot();
    if (!plot)
        return curves;
    for (int i = 0; i < plot->plottableCount(); ++i) {
        auto *const curve = qobject_cast<QCPCurve *>(plot->plottable(i));
        if (!curve || !curve->visible() || !curve->layer() || curve->keyAxis() != m_xAxis
            || curve->valueAxis() != m_yAxis)
            continue;
        const QString layer = curve->layer()->name();
        if (layer == SmithLayers::tracers() || layer == SmithLayers::activeTracers())
            curves.append(curve);
    }
    return curves;
}

bool SmithChartPlotPrivate::anyCurveVisible() const
{
    return std::any_of(m_curves.cbegin(), m_curves.cend(), [](const OwnedCurve &record) {
        return record.curve && record.curve->visible();
    });
}
