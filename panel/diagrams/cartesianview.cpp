// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cartesianview.h"

#include "readouts.h"

#include <panel/ground/look.h>

#include <plot/tracegraph.h>

namespace Panel
{

namespace
{

constexpr char s_activeLayer[] = "activeTrace";

/// Zero where there is none.
double firstAboveZero(const QVector<double> &frequencies)
{
    const auto found = std::upper_bound(frequencies.begin(), frequencies.end(), 0.0);
    return found == frequencies.end() ? 0.0 : *found;
}

} // namespace

CartesianView::CartesianView(const PanelModel *model, const DiagramId &id, QWidget *parent)
    : DiagramView(model, id, parent)
    , m_frequencies(plot())
    , m_values(plot())
    , m_markers(model, plot())
    , m_limits(plot())
    , m_fitButton(new FitOffer(plot()))
{
    setUpPlot();
    connect(m_fitButton, &QPushButton::clicked, this,
            [this] { Q_EMIT fitRequested(m_fitButton->trace()); });
    connect(m_model, &PanelModel::limitsChanged, this, [this](int traceId) {
        if (!follows(traceId) || m_laidOut.isEmpty())
            return;
        const Trace &trace = *m_model->trace(traceId);
        m_limits.show(trace, m_model->traceData(trace), m_lines.at(traceId).values,
                      m_laidOut.width());
        placeReadOuts();
        replotLater();
    });
    connect(m_model, &PanelModel::traceScaleChanged, this, [this](int traceId) {
        if (!follows(traceId))
            return;
        showScale(traceId);
        showWrittenScale();
        showOffScale();
        placeReadOuts();
        replotLater();
    });
    connect(m_model->viewSettings(), &ViewSettings::changed, this, [this] {
        if (fitFrequencies()) {
            fillLines();
            replotLater();
        }
    });
    connect(readOuts(), &ReadOuts::overlaySizeChanged, this, &CartesianView::placeReadOuts);
    recolor();
}

void CartesianView::setUpPlot()
{
    plot()->setAccessibleName(tr("Cartesian diagram"));
    plot()->addLayer(QLatin1String(s_activeLayer), plot()->layer(QStringLiteral("main")));
    plot()->axisRect()->setupFullAxesBox();
    for (QCPAxis *axis : plot()->axisRect()->axes()) {
        axis->setTicks(axis == plot()->yAxis || axis == plot()->xAxis);
        axis->setTickPen(Qt::NoPen);
        axis->setSubTicks(false);
        axis->setTickLabels(axis == plot()->yAxis);
    }
}

QCPGraph *CartesianView::graph(int traceId) const
{
    const auto found = m_lines.find(traceId);
    return found == m_lines.end() ? nullptr : found->second.graph;
}

QCPGraph *CartesianView::memoryGraph(int traceId) const
{
    const auto found = m_lines.find(traceId);
    return found == m_lines.end() ? nullptr : found->second.memory;
}

const Plot::Marker *CartesianView::drawnMarker(int traceId, int number) const
{
    return m_markers.drawn(traceId, number);
}

void CartesianView::clearLines()
{
    m_markers.clear();
    plot()->clearGraphs();
    m_limits.forget();
    for (const auto &[id, line] : m_lines)
        plot()->axisRect()->removeAxis(line.values);
    m_lines.clear();
}

void CartesianView::loadTraces()
{
    clearLines();
    for (const Trace &trace : traces())
        addLine(trace);
    fitFrequencies();
    for (const Trace &trace : traces()) {
        showScale(trace.id);
        addMemory(trace);
    }
    fillLines();
    showActiveTrace();
    recolor();
}

void CartesianView::addLine(const Trace &trace)
{
    Line &line = m_lines[trace.id];
    line.values = plot()->axisRect()->addAxis(QCPAxis::atLeft);
    line.values->setVisible(false);
    line.values->grid()->setVisible(false);
    line.graph = new Plot::TraceGraph(plot()->xAxis, line.values);
    line.graph->setSelectable(QCP::stNone);
    // Columns are thinned already, and the plot's own thinning joins what a gap in a column parts.
    line.graph->setAdaptiveSampling(false);
    line.graph->setVisible(trace.visible);
}

void CartesianView::updateTraces(int network)
{
    if (fitFrequencies()) {
        fillLines();
    } else {
        for (const Trace &trace : traces()) {
            if (trace.network == network)
                fillLine(trace);
        }
        showOffScale();
    }
    replotLater();
}

void CartesianView::fillLines()
{
    for (const Trace &trace : traces())
        fillLine(trace);
    showOffScale();
}

/// Gives a line the points that the pixel columns of the last layout need, and places its markers.
void CartesianView::fillLine(const Trace &trace)
{
    const auto found = m_lines.find(trace.id);
    if (found == m_lines.end() || m_laidOut.isEmpty())
        return;
    Line &line = found->second;
    const QCPRange range = m_frequencies.range();
    const auto load = [&](QCPGraph *graph, const TraceData &drawn) {
        CartesianLine points = cartesianLine(drawn, trace.format, m_laidOut.width(), range.lower,
                                             range.upper, m_frequencies.scale());
        graph->setData(points.frequencies, points.values, true);
        return points;
    };
    const TraceData shown = m_model->traceData(trace);
    line.drawn = valueRange(load(line.graph, shown).values);
    m_limits.show(trace, shown, line.values, m_laidOut.width());
    const auto memory = m_model->drawnMemory(trace);
    if (line.memory && memory)
        load(line.memory, *memory);
    placeMarkers(trace);
}

void CartesianView::showMemory(const Trace &trace)
{
    addMemory(trace);
    fillLine(trace);
    replotLater();
}

/// Gives a trace a line for its memory, or none, as it is set; the line is empty.
void CartesianView::addMemory(const Trace &trace)
{
    Line &line = m_lines.at(trace.id);
    const bool stored = m_model->drawnMemory(trace).has_value();
    if (!stored && line.memory) {
        plot()->removeGraph(line.memory);
        line.memory = nullptr;
    } else if (stored && !line.memory) {
        line.memory = new Plot::TraceGraph(plot()->xAxis, line.values);
        line.memory->setSelectable(QCP::stNone);
        line.memory->setAdaptiveSampling(false);
        showPens();
        line.memory->setVisible(trace.visible);
    }
}

/// Takes in all frequencies of the traces; true if there are others to show than before.
bool CartesianView::fitFrequencies()
{
    const bool logarithmic =
        m_model->viewSettings()->frequencyScale() == FrequencyScale::Logarithmic;
    double lowest = qInf(), highest = -qInf();
    for (const Trace &trace : traces()) {
        Stimulus range = m_model->shownRange(trace);
        // A logarithmic axis begins with the first point that it can show.
        if (range.start <= 0.0 && logarithmic)
            range.start = firstAboveZero(m_model->network(trace).frequencies);
        lowest = qMin(lowest, range.start);
        highest = qMax(highest, range.stop);
    }
    if (lowest > highest)
        lowest = highest = 0.0;
    const Stimulus whole = lowest < highest ? Stimulus{lowest, highest} : around(lowest);
    return showFrequencies({whole.start, whole.stop});
}

/// Shows the part of these frequencies that the zoom leaves; true if it is another one.
bool CartesianView::showFrequencies(const QCPRange &whole)
{
    return m_frequencies.show(whole, m_model->zoom(id()),
                              m_model->viewSettings()->frequencyScale());
}

void CartesianView::showZoom()
{
    showFrequencies(m_frequencies.whole());
    fillLines();
    replotLater();
}

void CartesianView::showScale(int traceId)
{
    const Trace &trace = *m_model->trace(traceId);
    m_lines.at(traceId).values->setRange(bottom(trace.format, trace.scale), trace.scale.top);
    placeMarkers(trace);
}

/// Writes the scale of the active trace.
void CartesianView::showWrittenScale()
{
    const Trace *active = activeTrace();
    if (!active || m_laidOut.isEmpty())
        return;
    m_values.write(*active, m_laidOut.height());
    // Where traces have scales of their own, the numbers are in the colour of theirs.
    const Look look = currentLook();
    m_values.setColors(look.trace(active->id),
                       otherScales(*active).isEmpty() ? look.dimText : look.trace(active->id));
}

/// Offers to fit a visible trace that cannot be seen, the active one before all others.
void CartesianView::showOffScale()
{
    const Trace *active = activeTrace();
    QVector<Trace> order = traces();
    std::stable_partition(order.begin(), order.end(), [active](const Trace &trace) {
        return active && trace.id == active->id;
    });
    QVector<FitOffer::Candidate> candidates;
    for (const Trace &trace : qAsConst(order)) {
        if (trace.visible)
            candidates.append({trace, m_lines.at(trace.id).drawn});
    }
    m_fitButton->offer(candidates);
}

void CartesianView::setTraceVisible(const Trace &trace)
{
    const Line &line = m_lines.at(trace.id);
    line.graph->setVisible(trace.visible);
    if (line.memory)
        line.memory->setVisible(trace.visible);
    fillLine(trace);
    showOffScale();
    showWrittenScale();
    replotLater();
}

void CartesianView::showActiveTrace()
{
    const Trace *active = activeTrace();
    for (const auto &[id, line] : m_lines)
        line.graph->setLayer(active && active->id == id ? QLatin1String(s_activeLayer)
                                                        : QStringLiteral("main"));
    showPens();
    showWrittenScale();
    showOffScale();
    showSelectedMarker();
}

void CartesianView::showPens()
{
    const Look look = currentLook();
    const Trace *active = activeTrace();
    const auto apply = [](QCPGraph *graph, QPen pen, double width) {
        if (pen.style() == Qt::SolidLine)
            pen.setWidthF(width);
        graph->setPen(pen);
    };
    for (const auto &[id, line] : m_lines) {
        const Trace *trace = m_model->trace(id);
        if (!trace)
            continue;
        apply(line.graph, look.pen(id, trace->network),
              active && active->id == id ? Look::activeTraceWidth : Look::traceWidth);
        if (line.memory)
            apply(line.memory, look.memoryPen(id, trace->network), Look::traceWidth);
    }
}

void CartesianView::placeMarker(const Trace &trace, const Marker &marker)
{
    // Before the first layout there is no place to put it.
    if (m_markers.place(trace, marker, m_laidOut.isEmpty() ? nullptr : graph(trace.id)))
        showSelectedMarker();
    replotLater();
}

void CartesianView::removeMarker(int traceId, int number)
{
    m_markers.remove(traceId, number);
    replotLater();
}

void CartesianView::showSelectedMarker()
{
    m_markers.showSelected(activeTrace());
    replotLater();
}

void CartesianView::recolor()
{
    const Look look = currentLook();
    plot()->setBackground(look.background);
    // Fainter than a border: the lines carry the meaning.
    QColor faint = look.border;
    faint.setAlphaF(0.5);
    QFont labels = font();
    labels.setPixelSize(qMax(9, QFontInfo(labels).pixelSize() - 2));
    for (QCPAxis *axis : plot()->axisRect()->axes()) {
        axis->setBasePen(QPen(look.border));
        axis->setTickLabelColor(look.dimText);
        axis->setTickLabelFont(labels);
        axis->grid()->setPen(QPen(faint));
    }
    m_frequencies.setLook(labels, look.dimText);
    showPens();
    m_limits.recolor();
    showWrittenScale();
    showSelectedMarker();
}

QStringList CartesianView::titleParts() const
{
    const Trace *active = activeTrace();
    if (!active)
        return {};
    return QStringList{formatName(active->format),
                       divisionText(active->format, active->scale.perDivision)}
    + writtenBesideAxis() + otherScales(*active);
}

QStringList CartesianView::writtenBesideAxis() const
{
    const Trace *active = activeTrace();
    if (!active)
        return {};
    return {tr("ref %1").arg(cartesianReferenceText(active->scale.reference(), active->format))};
}

int CartesianView::drawnPoints() const
{
    int count = 0;
    for (const auto &[id, line] : m_lines)
        count += line.graph->visible() ? line.graph->dataCount() : 0;
    return count;
}

} // namespace Panel
