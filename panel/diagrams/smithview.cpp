// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "smithview.h"

#include "readouts.h"

#include <panel/ground/look.h>
#include <panel/ground/numbertext.h>

#include <plot/qcp.h>

#include <algorithm>
#include <functional>

namespace Panel
{

namespace
{

SmithChart::Preset presetOf(GridDensity density)
{
    return density == GridDensity::Basic   ? SmithChart::Basic
        : density == GridDensity::Detailed ? SmithChart::Detailed
                                           : SmithChart::Standard;
}

} // namespace

SmithView::SmithView(const PanelModel *model, const DiagramId &id, QWidget *parent)
    : PlaneView(model, id, QMargins(8, 4, 8, 8), parent)
    , m_density(model->viewSettings()->density())
    , m_verdict(new Verdict(this))
{
    plot()->setAccessibleName(tr("Smith chart"));
    showDensity();
    recolor();
    connect(m_model->viewSettings(), &ViewSettings::changed, this, &SmithView::followSettings);
}

void SmithView::followSettings()
{
    const ViewSettings *settings = m_model->viewSettings();
    if (settings->density() != m_density) {
        m_density = settings->density();
        showDensity();
    }
    chart()->setGridMode(settings->gridMode());
    showGrid();
    showLimit();
}

/// Whether all traces on show refer to the same impedance.
bool SmithView::hasOneReference() const
{
    QVector<std::complex<double>> references;
    for (const Trace &trace : traces()) {
        if (trace.visible)
            references << m_model->traceData(trace).reference;
    }
    return std::adjacent_find(references.begin(), references.end(), std::not_equal_to<>())
        == references.end();
}

/// Labels of the grid and the circle to read against.
void SmithView::showGrid()
{
    const ViewSettings *settings = m_model->viewSettings();
    const Trace *active = activeTrace();
    // Lines of a complex reference are not where those of its real part are, and those of several
    // references are nowhere.
    const std::complex<double> reference = active && hasOneReference()
        ? m_model->traceData(*active).reference
        : std::complex<double>();
    if (settings->gridLabels() == GridLabels::Ohms && reference.real() > 0.0
        && reference.imag() == 0.0)
        chart()->setGridReference(reference.real());
    else
        chart()->setGridReference(std::nullopt);
    const double ratio = settings->vswrCircle();
    if (ratio == 0.0) {
        if (m_circle)
            plot()->removeItem(m_circle);
    } else {
        if (!m_circle)
            m_circle = new SmithCircle(plot()->xAxis, plot()->yAxis);
        m_circle->setVswr(ratio);
        m_circle->setLabel(tr("VSWR %1").arg(ratio));
        m_circle->setPen(QPen(currentLook().warning, 1.0, Qt::DashLine));
    }
    replotLater();
}

/// Gives each trace the area that it must stay in; one of them draws it.
void SmithView::showLimit()
{
    const LimitCircle &circle = m_model->viewSettings()->limitCircle();
    for (const auto &[id, limit] : m_limits)
        delete limit;
    m_limits.clear();
    const Look look = currentLook();
    if (!circle.isNone()) {
        SmithChart::LimitArea area;
        area.setCircle(circle.centre, circle.radius,
                       circle.keepOut ? SmithChart::LimitArea::KeepOut
                                      : SmithChart::LimitArea::StayInside);
        for (const Trace &trace : traces()) {
            auto *limit = new SmithLimit(chart());
            limit->setArea(area);
            limit->setColors(m_limits.empty() ? look.pass : QColor(Qt::transparent), look.fail);
            m_limits[trace.id] = limit;
        }
    }
    testTraces();
}

void SmithView::testTraces()
{
    QVector<Verdict::Failure> failures;
    bool tested = false;
    for (const auto &[id, limit] : m_limits) {
        const Trace *trace = m_model->trace(id);
        if (!trace || !limit)
            continue;
        // The first one shows the area for all.
        limit->setVisible(trace->visible || m_limits.begin()->first == id);
        const SmithChart::LimitResult result = limit->test(trace->visible ? id : 0);
        tested = tested || result.tested > 0;
        // A hidden chart may still have the points of before.
        if (!result.passed() && result.firstFailing < m_model->network(*trace).points())
            failures.append(
                {id, trace->label(), m_model->network(*trace).frequencies.at(result.firstFailing)});
    }
    m_verdict->show(tested, failures);
    replotLater();
}

void SmithView::showDensity()
{
    makeChart(presetOf(m_density));
    chart()->setGridFollowsView(m_density == GridDensity::Automatic);
    chart()->setGridMode(m_model->viewSettings()->gridMode());
    loadTraces();
    showZoom();
}

void SmithView::loadTraces()
{
    PlaneView::loadTraces();
    showLimit();
}

void SmithView::updateTraces(int network)
{
    PlaneView::updateTraces(network);
    testTraces();
}

void SmithView::setTraceVisible(const Trace &trace)
{
    PlaneView::setTraceVisible(trace);
    showGrid();
    testTraces();
}

void SmithView::showActiveTrace()
{
    PlaneView::showActiveTrace();
    showGrid();
}

void SmithView::recolor()
{
    PlaneView::recolor();
    showGrid();
    showLimit();
}

QStringList SmithView::titleParts() const
{
    const Trace *active = activeTrace();
    if (!active)
        return {};
    const QString reference = ohmsText(m_model->traceData(*active).reference);
    return {hasOneReference()
                ? tr("Z\u2080 %1").arg(reference)
                : tr("normalised, Tr%1 to %2").arg(QString::number(active->id), reference)};
}

void SmithView::onLayout()
{
    PlaneView::onLayout();
    constexpr int margin = 8;
    const QRect clip = plot()->geometry();
    const QPointF centre(plot()->xAxis->coordToPixel(0.0), plot()->yAxis->coordToPixel(0.0));
    const QRect whole(0, clip.top(), width(), height() - clip.top());
    m_verdict->setRoom(whole.adjusted(margin, margin, -margin, -margin),
                       {centre + clip.topLeft(), plot()->xAxis->coordToPixel(1.0) - centre.x(),
                        clip, readOuts()->contentGeometry()});
}

} // namespace Panel
