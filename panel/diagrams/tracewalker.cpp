// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tracewalker.h"

#include "cartesianview.h"
#include "markerreading.h"
#include "planeview.h"

#include <panel/ground/look.h>
#include <panel/model/limitline.h>

#include <controls/thememanager.h>
#include <plot/qcp.h>
#include <smithchart/tracewords.h>

#include <QKeyEvent>

namespace Panel
{

namespace
{

/// In pixels.
constexpr double s_ringSize = 20.0;
constexpr double s_ringWidth = 2.5;
/// A step within the view, as a share of its width.
constexpr double s_viewStep = 0.1;
/// What counts as a match while no standing wave ratio is set.
constexpr double s_match = 2.0;

} // namespace

TraceWalker::TraceWalker(PanelModel *model, DiagramView *view)
    : QObject(view)
    , m_model(model)
    , m_view(view)
{
    const auto follow = [this] {
        const Trace *trace = m_model->trace(m_trace);
        if (!isWalking())
            return;
        if (trace && m_view->traceIds().contains(m_trace)
            && m_index <= m_model->network(*trace).points() - 1)
            showRing(*trace);
        else
            end();
    };
    for (const auto signal : {&PanelModel::networkUpdated, &PanelModel::stimulusChanged})
        connect(model, signal, this, follow);
    connect(model, &PanelModel::tracesChanged, this, follow);
    connect(model, &PanelModel::traceScaleChanged, this, follow);
    connect(Controls::ThemeManager::instance(), &Controls::ThemeManager::themeChanged, this,
            follow);
}

bool TraceWalker::handleKey(const QKeyEvent *event)
{
    const auto step = SmithChart::walkStepOf(event->key(), event->modifiers());
    const bool plain = (event->modifiers() & ~Qt::KeyboardModifiers(Qt::KeypadModifier)) == 0;
    if (!isWalking()) {
        // The arrows move markers and the view until a walk begins.
        const bool begins = step
            && (step->unit == SmithChart::WalkUnit::View
                || step->unit == SmithChart::WalkUnit::End);
        if (begins)
            walk(*step);
        else if (event->key() == Qt::Key_F2 && plain)
            begin();
        else
            return false;
        return true;
    }
    if (step) {
        walk(*step);
        return true;
    }
    if (!plain)
        return false;
    switch (event->key()) {
    case Qt::Key_Escape:
    case Qt::Key_F2:
        end();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        setMarker();
        return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
        changeTrace(event->key() == Qt::Key_Up ? -1 : 1);
        return true;
    default:
        return false;
    }
}

/// Begins at the selected marker, or at the start of the trace.
void TraceWalker::begin()
{
    const Trace *trace = m_view->activeTrace();
    const Marker *marker = m_model->selectedMarker();
    if (!trace)
        return;
    if (marker && marker->trace == trace->id && m_model->indexOf(*marker) >= 0.0) {
        m_trace = trace->id;
        goTo(m_model->indexOf(*marker));
    } else {
        walk({SmithChart::WalkUnit::End, -1});
    }
}

void TraceWalker::walk(const SmithChart::WalkStep &step)
{
    const Trace *trace = m_view->activeTrace();
    if (!trace)
        return;
    if (trace->id != m_trace)
        m_index = -1.0;
    m_trace = trace->id;
    const double reached = nextPlace(*trace, step);
    if (reached >= 0.0)
        goTo(reached);
}

/// Tells the walk all that counts on a trace.
void TraceWalker::prepare(const Trace &trace)
{
    const TraceData data = m_model->traceData(trace);
    m_walk.setData(data.parameter.real, data.parameter.imag);
    const double limit = m_model->viewSettings()->vswrLimit();
    const double circle = m_model->viewSettings()->vswrCircle();
    m_walk.setVswr(limit > 1.0 ? limit : circle > 1.0 ? circle : s_match);
    // A transmission has no impedance.
    m_walk.setFeatures(reflects(trace) ? ~SmithChart::TraceFeatures()
                                       : SmithChart::Minimum | SmithChart::Maximum);
    QVector<double> places;
    for (const Marker &marker : m_model->markersOf(trace.id)) {
        if (m_model->indexOf(marker) >= 0.0)
            places << m_model->indexOf(marker);
    }
    m_walk.setMarkers(places);
    // Limits are tested once for each measurement, and not at each step.
    Tested tested{data.parameter.real, trace.limits, trace.format};
    if (!trace.overFrequency())
        tested.limits.clear();
    if (tested == m_tested)
        return;
    m_tested = tested;
    m_walk.setLimitEdges(limitEdges(trace));
}

/// Where a step leads; -1 where there are no points.
double TraceWalker::nextPlace(const Trace &trace, const SmithChart::WalkStep &step)
{
    prepare(trace);
    if (step.unit == SmithChart::WalkUnit::View && trace.overFrequency() && isWalking()) {
        const int columns = m_view->plot()->axisRect()->width();
        const int points = qRound(s_viewStep * columns * m_view->pointsPerStep(trace.id));
        // A column may hold less than a point: no step is longer than a tenth of the trace.
        return m_walk.byPoints(
            m_index,
            step.direction
                * qBound(1, points,
                         qMax(1, qRound(s_viewStep * m_model->network(trace).points()))));
    }
    const double radius = 1.0 / m_model->zoom(m_view->id()).factor;
    return m_walk.walked(m_index, step, 2.0 * s_viewStep * radius).value_or(-1.0);
}

void TraceWalker::goTo(double index)
{
    const double before = m_index;
    m_index = index;
    const Trace &trace = *m_model->trace(m_trace);
    prepare(trace);
    showRing(trace);
    Q_EMIT walked(m_trace, m_index);
    Q_EMIT said(textAt(trace, before));
}

void TraceWalker::end()
{
    m_index = -1.0;
    m_walk.setData({}, {}); // lets old data go
    m_tested = {};
    if (m_ring) {
        m_ring->setVisible(false);
        m_view->plot()->replot(QCustomPlot::rpQueuedReplot);
    }
    Q_EMIT said({});
}

/// Goes to the same frequency on another trace of the diagram.
void TraceWalker::changeTrace(int direction)
{
    QVector<int> shown;
    for (const int id : m_view->traceIds()) {
        if (m_model->trace(id)->visible)
            shown << id;
    }
    const int place = int(shown.indexOf(m_trace)) + direction;
    if (place < 0 || place >= shown.size())
        return;
    const double hertz = valueAt(m_model->network(*m_model->trace(m_trace)).frequencies, m_index);
    m_trace = shown.at(place);
    m_model->setActiveTrace(m_trace);
    const Trace *trace = m_model->trace(m_trace);
    if (!trace || m_model->network(*trace).points() == 0)
        return;
    const QVector<double> &frequencies = m_model->network(*trace).frequencies;
    m_index = -1.0; // nothing is compared between traces
    goTo(indexOfFrequency(frequencies, qBound(frequencies.first(), hertz, frequencies.last())));
}

void TraceWalker::setMarker()
{
    const int number = m_model->addMarker(m_trace, m_index);
    const Trace *trace = m_model->trace(m_trace);
    if (number > 0 && trace)
        Q_EMIT said(tr("Marker %1 is set at %2.")
                        .arg(number)
                        .arg(SmithChart::hertzText(
                            valueAt(m_model->network(*trace).frequencies, m_index))));
}

QVector<double> TraceWalker::limitEdges(const Trace &trace) const
{
    if (!trace.overFrequency() || trace.limits.isEmpty())
        return {};
    const QVector<int> failing =
        testLimits(m_model->traceData(trace), trace.format, trace.limits).failing;
    QVector<double> edges;
    for (int i = 0; i < failing.size(); ++i) {
        const bool first = i == 0 || failing.at(i - 1) < failing.at(i) - 1;
        const bool last = i == failing.size() - 1 || failing.at(i + 1) > failing.at(i) + 1;
        if (first || last)
            edges << failing.at(i);
    }
    return edges;
}

/// What is at the place, and what changed on the way from the one before.
QString TraceWalker::textAt(const Trace &trace, double before) const
{
    const TraceData data = m_model->traceData(trace);
    const MarkedPoint here{data, m_index};
    const bool compared = before >= 0.0 && before <= data.points() - 1 && before != m_index;
    const SmithChart::TraceFeatures features = m_walk.featuresAt(m_index);
    const QString name = PanelModel::parameterName(trace) + QLatin1Char(' ');
    if (!trace.overFrequency() && reflects(trace)) {
        const std::complex<double> gamma = data.at(m_index);
        const SmithChart::PointValues point{valueAt(data.frequencies, m_index), gamma,
                                            impedanceOf(gamma, data.reference),
                                            QStringLiteral("\u03a9")};
        return name
            + SmithChart::placeText(
                   features, m_walk.vswr(), point,
                   [](double hertz) { return SmithChart::hertzText(hertz); },
                   compared ? std::optional(data.at(before)) : std::nullopt);
    }
    const bool plane = !trace.overFrequency();
    const ReadoutFormat format = ReadoutFormat::Decibels;
    const MarkerReading reading =
        plane ? readOnSmithChart(here, format) : readOnCartesian(here, trace.format);
    QString text = SmithChart::featureText(features, m_walk.vswr());
    if (!text.isEmpty())
        text += QStringLiteral(": ");
    text +=
        (QStringList(SmithChart::hertzText(valueAt(data.frequencies, m_index))) + reading.values)
            .join(QStringLiteral(", "));
    if (compared) {
        const MarkedPoint there{data, before};
        const MarkerReading change = plane ? readOnSmithChart(here, format, there)
                                           : readOnCartesian(here, trace.format, there);
        text += QStringLiteral(", ") + tr("changed by %1").arg(change.values.first());
    }
    return name + text;
}

void TraceWalker::showRing(const Trace &trace)
{
    QCustomPlot *plot = m_view->plot();
    if (!m_ring) {
        m_ring = new QCPItemTracer(plot);
        m_ring->setSelectable(false);
        m_ring->setStyle(QCPItemTracer::tsCircle);
        m_ring->setSize(s_ringSize);
        m_ring->setBrush(Qt::NoBrush);
    }
    m_ring->setLayer(plot->layer(plot->layerCount() - 1));
    const TraceData data = m_model->traceData(trace);
    const auto *view = qobject_cast<const CartesianView *>(m_view);
    const QCPGraph *graph = view ? view->graph(trace.id) : nullptr;
    if (graph) {
        m_ring->position->setAxes(graph->keyAxis(), graph->valueAxis());
        m_ring->position->setCoords(valueAt(data.frequencies, m_index),
                                    formatValueAt(data, m_index, trace.format));
    } else {
        const auto *plane = qobject_cast<const PlaneView *>(m_view);
        const std::complex<double> gamma = data.at(m_index) / plane->fullScale(trace);
        m_ring->position->setAxes(plot->xAxis, plot->yAxis);
        m_ring->position->setCoords(gamma.real(), gamma.imag());
    }
    m_ring->setPen(QPen(currentLook().text, s_ringWidth));
    m_ring->setVisible(qIsFinite(m_ring->position->value()));
    plot->replot(QCustomPlot::rpQueuedReplot);
}

} // namespace Panel
