// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "smithreader_p.h"

#include "tracepoint.h"

#include <cmath>

using namespace SmithChart;

/// None when the chart has gone; who asks for one of them, or its parts, need not look again.
QVector<int> SmithReader::Private::traces() const
{
    QVector<int> shown;
    const QVector<int> all = chart ? chart->traceIds() : QVector<int>();
    for (const int id : all) {
        const QCPCurve *const curve = chart->getCurve(id);
        if (curve && curve->visible())
            shown << id;
    }
    return shown;
}

ReadTrace SmithReader::Private::data(int trace) const
{
    const QVector<double> *stimulus = nullptr, *real = nullptr, *imag = nullptr;
    if (!chart || !chart->sourceCurveData(trace, stimulus, real, imag))
        return {};
    return {*stimulus, *real, *imag};
}

PointValues SmithReader::Private::point(const ReadTrace &of, double at) const
{
    const std::complex<double> nothing(qQNaN(), qQNaN());
    const std::optional<QPointF> place = tracePoint(of.real, of.imag, at);
    const std::complex<double> gamma =
        place ? std::complex<double>(place->x(), place->y()) : nothing;
    const double reference = chart->gridReference().value_or(1.0);
    return {of.stimulusAt(at), gamma, normalisedImpedance(gamma) * reference, unit()};
}

QString SmithReader::Private::summary() const
{
    QStringList sentences;
    for (const int trace : traces()) {
        const ReadTrace of = data(trace);
        sentences << summaryText(traceName(trace), summarise(of.real, of.imag, walk.vswr()),
                                 of.stimulus, stimulusText, walk.vswr());
    }
    return sentences.isEmpty() ? tr("No traces.") : sentences.join(QLatin1Char(' '));
}

QString SmithReader::Private::cell(int trace, int row, int column) const
{
    const ReadTrace of = data(trace);
    return column == StimulusColumn ? stimulusText(of.stimulus.at(row))
                                    : pointValue(point(of, row), PointColumn(column));
}

QVector<PlotDescription::MarkerId> SmithReader::Private::markers() const
{
    QVector<MarkerId> ids;
    for (const int trace : traces()) {
        constexpr int highest = 99;
        for (int number = 1; number <= highest && ids.size() < highest; ++number) {
            const Plot::Marker *const marker = std::as_const(*chart).getMarker(trace, number);
            if (marker && marker->isVisible())
                ids.append({trace, number});
        }
    }
    return ids;
}

PlotDescription::MarkerValue SmithReader::Private::markerValue(const MarkerId &id) const
{
    const ReadTrace of = data(id.trace);
    const double at = chart->markerIndex(id.trace, id.number);
    if (!of.holds(at))
        return {qQNaN(), qQNaN(), qQNaN()};
    return {of.stimulusAt(at), of.stimulus.first(), of.stimulus.last()};
}

QString SmithReader::Private::markerText(const MarkerId &id) const
{
    const QString which = tr("Marker %1 on %2").arg(id.number).arg(traceName(id.trace));
    const ReadTrace of = data(id.trace);
    const double at = chart->markerIndex(id.trace, id.number);
    return of.holds(at)
        ? which + QStringLiteral(": ") + placeText({}, walk.vswr(), point(of, at), stimulusText)
        : which;
}

/// Asks as a drag does, from its first signal to its last.
void SmithReader::Private::requestMarkerValue(const MarkerId &id, double value)
{
    const ReadTrace of = data(id.trace);
    if (of.size() == 0)
        return;
    const QPointer<SmithChartPlot> guard(chart);
    Q_EMIT chart->markerDragStarted(id.trace, id.number);
    if (guard)
        Q_EMIT guard->markerPositionChanged(id.trace, id.number, std::round(of.indexOf(value)));
    if (guard)
        Q_EMIT guard->markerDragFinished(id.trace, id.number,
                                         guard->markerIndex(id.trace, id.number));
}

QStringList SmithReader::Private::verdicts() const
{
    QStringList texts;
    for (const Limit &known : limits) {
        if (!known.limit)
            continue;
        const LimitResult result = known.limit->result();
        const ReadTrace of = data(known.trace);
        const QString name = traceName(known.trace);
        if (!result.passed() && !of.holds(result.firstFailing))
            continue; // what failed has gone
        texts << (result.passed()
                      ? tr("%1 keeps within its limit.").arg(name)
                      : tr("%1 fails its limit from %2 on.")
                            .arg(name, stimulusText(of.stimulus.at(result.firstFailing))));
    }
    return texts;
}

QVector<double> SmithReader::Private::limitEdges(int trace) const
{
    QVector<double> edges;
    for (const Limit &known : limits) {
        if (!known.limit || known.trace != trace)
            continue;
        const LimitResult result = known.limit->result();
        for (const LimitResult::Stretch &stretch : result.failing)
            edges << stretch.first << stretch.last;
    }
    return edges;
}
