// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cartesianlimits.h"

#include <panel/ground/look.h>
#include <panel/model/cartesian.h>

#include <algorithm>

namespace Panel
{

namespace
{

/// A bent line is drawn in so many straight ones.
constexpr int s_piecesOfABend = 100;

constexpr double s_lineWidth = 2.0;
constexpr double s_failureSize = 5.0;

QCPGraph *addGraph(QCustomPlot *plot, QCPAxis *values)
{
    QCPGraph *graph = plot->addGraph(plot->xAxis, values);
    graph->setSelectable(QCP::stNone);
    return graph;
}

} // namespace

CartesianLimits::CartesianLimits(QCustomPlot *plot)
    : m_plot(plot)
    , m_verdict(new Verdict(plot))
{
}

void CartesianLimits::show(const Trace &trace, const TraceData &data, QCPAxis *values, int columns)
{
    QVector<double> frequencies, bounds;
    for (const LimitLine &limit : trace.limits) {
        if (limit.format != trace.format)
            continue;
        // A slope over linear frequencies is bent on a logarithmic axis.
        const bool bent = m_plot->xAxis->scaleType() == QCPAxis::stLogarithmic
            && limit.startValue != limit.stopValue;
        const int pieces = bent ? s_piecesOfABend : 1;
        for (int i = 0; i <= pieces; ++i) {
            const double share = double(i) / pieces;
            frequencies << limit.start + share * (limit.stop - limit.start);
            bounds << limit.startValue + share * (limit.stopValue - limit.startValue);
        }
        frequencies << limit.stop;
        bounds << qQNaN();
    }
    if (frequencies.isEmpty() || !trace.visible) {
        remove(trace.id);
        showVerdict();
        return;
    }
    Drawn &drawn = m_drawn[trace.id];
    if (!drawn.lines) {
        drawn.lines = new QCPCurve(m_plot->xAxis, values);
        drawn.lines->setSelectable(QCP::stNone);
        drawn.failures = addGraph(m_plot, values);
        setLook(drawn);
    }
    drawn.lines->setData(frequencies, bounds);
    drawn.verdict = testLimits(data, trace.format, trace.limits);
    const QVector<int> &failing = drawn.verdict.failing;
    drawn.label = trace.label();
    drawn.firstFailure = failing.isEmpty() ? 0.0 : data.frequencies.at(failing.constFirst());
    // One point in each column shows where the trace fails.
    const int step = std::max(1, data.points() / std::max(1, columns));
    QVector<double> failedFrequencies, failedValues;
    int next = 0;
    for (const int index : failing) {
        if (index < next)
            continue;
        failedFrequencies << data.frequencies.at(index);
        failedValues << formatValueAt(data, index, trace.format);
        next = index + step;
    }
    drawn.failures->setData(failedFrequencies, failedValues, true);
    showVerdict();
}

void CartesianLimits::remove(int traceId)
{
    const auto found = m_drawn.find(traceId);
    if (found == m_drawn.end())
        return;
    m_plot->removePlottable(found->second.lines);
    m_plot->removeGraph(found->second.failures);
    m_drawn.erase(found);
}

void CartesianLimits::forget()
{
    for (const auto &[id, drawn] : m_drawn)
        m_plot->removePlottable(drawn.lines);
    m_drawn.clear();
    showVerdict();
}

void CartesianLimits::setLook(const Drawn &drawn) const
{
    const QColor fail = currentLook().fail;
    drawn.lines->setPen(QPen(fail, s_lineWidth));
    drawn.failures->setPen(Qt::NoPen);
    drawn.failures->setLineStyle(QCPGraph::lsNone);
    drawn.failures->setScatterStyle({QCPScatterStyle::ssDisc, fail, s_failureSize});
}

void CartesianLimits::recolor()
{
    for (const auto &[id, drawn] : m_drawn)
        setLook(drawn);
    showVerdict();
}

void CartesianLimits::showVerdict()
{
    bool tested = false;
    QVector<Verdict::Failure> failures;
    for (const auto &[id, drawn] : m_drawn) {
        tested = tested || drawn.verdict.tested > 0;
        if (!drawn.verdict.passed())
            failures.append({id, drawn.label, drawn.firstFailure});
    }
    m_verdict->show(tested, failures);
}

} // namespace Panel
