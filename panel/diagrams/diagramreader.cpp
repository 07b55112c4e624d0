// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagramreader.h"

#include "markerreading.h"
#include "verdict.h"

#include <panel/ground/numbertext.h>
#include <panel/model/cartesian.h>

#include <plot/qcp.h>
#include <smithchart/tracewords.h>

namespace Panel
{

namespace
{

/// Where a value is lowest and highest.
struct Extremes {
    int lowest = -1;
    int highest = -1;
};

Extremes extremesOf(const QVector<double> &values)
{
    Extremes found;
    for (int i = 0; i < values.size(); ++i) {
        if (!qIsFinite(values.at(i)))
            continue;
        if (found.lowest < 0 || values.at(i) < values.at(found.lowest))
            found.lowest = i;
        if (found.highest < 0 || values.at(i) > values.at(found.highest))
            found.highest = i;
    }
    return found;
}

} // namespace

DiagramReader::DiagramReader(const PanelModel *model, DiagramView *view)
    : QObject(view)
    , m_model(model)
    , m_view(view)
    , m_accessible(AccessiblePlot::on(view->plot()))
{
    m_accessible->add(this);
    if (const auto *verdict = view->findChild<Verdict *>())
        connect(verdict, &Verdict::changed, this,
                [this, verdict] { announce(verdict->sentence()); });
    const auto tellData = [this] {
        if (m_accessible)
            m_accessible->tellDataChanged();
    };
    for (const auto signal : {&PanelModel::networkUpdated, &PanelModel::stimulusChanged})
        connect(model, signal, this, tellData);
    connect(model, &PanelModel::tracesChanged, this, tellData);
    connect(model, &PanelModel::markerMoved, this, [this](int trace, int number) {
        const Marker *marker = m_model->marker(trace, number);
        if (!marker || !m_accessible || !shows(trace))
            return;
        m_accessible->tellMarkerMoved(this, {trace, number});
        if (m_model->isSelected(*marker))
            announce(markerText({trace, number}));
    });
}

DiagramReader::~DiagramReader()
{
    if (m_accessible)
        m_accessible->remove(this);
}

void DiagramReader::announce(const QString &text) const
{
    if (m_accessible)
        m_accessible->announce(text);
}

bool DiagramReader::shows(int trace) const
{
    const Trace *found = m_model->trace(trace);
    return found && found->visible && m_view->traceIds().contains(trace);
}

QString DiagramReader::name() const
{
    return m_view->plot()->accessibleName();
}

QString DiagramReader::summary() const
{
    QStringList sentences;
    for (const int id : traces()) {
        const Trace &trace = *m_model->trace(id);
        const TraceData data = m_model->traceData(trace);
        if (reflects(trace)) {
            sentences << SmithChart::summaryText(
                traceName(id), SmithChart::summarise(data.parameter.real, data.parameter.imag),
                data.frequencies, [](double hertz) { return SmithChart::hertzText(hertz, 5); });
            continue;
        }
        const TraceFormat format = trace.overFrequency() ? trace.format : TraceFormat::LogMagnitude;
        const QVector<double> values = formatValues(data, format);
        const Extremes found = extremesOf(values);
        if (found.lowest < 0)
            continue;
        const auto at = [&](int index) { return shortFrequencyText(data.frequencies.at(index)); };
        sentences << tr("%1 from %2 to %3: highest %4 at %5, lowest %6 at %7.")
                         .arg(traceName(id), at(0), at(data.points() - 1),
                              cartesianText(values.at(found.highest), format), at(found.highest),
                              cartesianText(values.at(found.lowest), format), at(found.lowest));
    }
    return sentences.join(QLatin1Char(' '));
}

QVector<int> DiagramReader::traces() const
{
    QVector<int> ids;
    for (const int id : m_view->traceIds()) {
        if (shows(id))
            ids << id;
    }
    return ids;
}

QString DiagramReader::traceName(int trace) const
{
    const Trace *found = m_model->trace(trace);
    if (!found)
        return {};
    const QString name = found->name.isEmpty() ? QString() : found->name + QLatin1Char(' ');
    return name + PanelModel::parameterName(*found) + QLatin1Char(' ') + formatName(found->format);
}

int DiagramReader::rows(int trace) const
{
    return m_model->trace(trace) ? m_model->network(*m_model->trace(trace)).points() : 0;
}

QStringList DiagramReader::columns(int trace) const
{
    const Trace *found = m_model->trace(trace);
    QStringList names = SmithChart::pointColumns(QStringLiteral("\u03a9"));
    names[SmithChart::StimulusColumn] = tr("Frequency");
    if (found && reflects(*found))
        return names;
    return {names.first(), tr("Magnitude (dB)"), names.at(SmithChart::PhaseColumn)};
}

QString DiagramReader::cell(int trace, int row, int column) const
{
    if (!m_model->trace(trace) || row < 0 || row >= rows(trace))
        return {};
    const Trace &found = *m_model->trace(trace);
    const TraceData data = m_model->traceData(found);
    if (column == 0)
        return frequencyText(data.frequencies.at(row));
    const std::complex<double> value = data.at(row);
    const SmithChart::PointValues point{
        data.frequencies.at(row), value, impedanceOf(value, data.reference), {}};
    if (reflects(found))
        return SmithChart::pointValue(point, SmithChart::PointColumn(column));
    return column == 1
        ? QString::number(formatValue(value, data.reference, TraceFormat::LogMagnitude), 'g', 6)
        : SmithChart::pointValue(point, SmithChart::PhaseColumn);
}

QVector<PlotDescription::MarkerId> DiagramReader::markers() const
{
    QVector<MarkerId> ids;
    for (const int trace : traces()) {
        for (const Marker &marker : m_model->markersOf(trace)) {
            if (m_model->indexOf(marker) >= 0.0)
                ids.append({trace, marker.number});
        }
    }
    return ids;
}

QString DiagramReader::markerText(const MarkerId &id) const
{
    const Marker *marker = m_model->marker(id.trace, id.number);
    if (!marker)
        return {};
    const MarkerReading reading = readMarker(*m_model, *marker);
    return tr("Marker %1 on %2: %3")
        .arg(QString::number(id.number), PanelModel::parameterName(*m_model->trace(id.trace)),
             (QStringList(reading.frequency) + reading.values).join(QStringLiteral(", ")));
}

PlotDescription::MarkerValue DiagramReader::markerValue(const MarkerId &id) const
{
    const Marker *marker = m_model->marker(id.trace, id.number);
    if (!marker || rows(id.trace) == 0)
        return {0.0, 0.0, 0.0};
    const QVector<double> &frequencies = m_model->network(*m_model->trace(id.trace)).frequencies;
    return {m_model->hertzOf(*marker), frequencies.first(), frequencies.last()};
}

void DiagramReader::requestMarkerValue(const MarkerId &id, double value)
{
    if (rows(id.trace) == 0)
        return;
    const QVector<double> &frequencies = m_model->network(*m_model->trace(id.trace)).frequencies;
    const double hertz = qBound(frequencies.first(), value, frequencies.last());
    Q_EMIT m_view->markerMoveRequested(id.trace, id.number, indexOfFrequency(frequencies, hertz));
}

} // namespace Panel
