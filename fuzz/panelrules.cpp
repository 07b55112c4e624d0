// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "panelrules.h"

#include <panel/diagrams/cartesianview.h>
#include <panel/diagrams/diagrams.h>
#include <panel/diagrams/planeview.h>
#include <plot/qcp.h>
#include <smithchart/smithchartplot.h>

#include <algorithm>
#include <cmath>

using namespace Panel;

namespace Fuzz
{

namespace
{

bool isNear(double a, double b, double scale)
{
    return std::abs(a - b) <= 1e-6 * std::max(std::abs(scale), 1e-9);
}

/// "2.45 GHz" in Hz; NaN for what is no frequency.
double hertzOf(const QString &text)
{
    const QStringList words = text.split(QLatin1Char(' '));
    const int power = 3 * int(QStringLiteral("HkMG").indexOf(words.value(1).left(1)));
    return words.size() == 2 && power >= 0
        ? QString(words.first()).replace(QChar(0x2212), QLatin1Char('-')).toDouble()
            * std::pow(10.0, power)
        : qQNaN();
}

class Judge
{
public:
    Judge(const PanelModel &model, const DiagramView *view)
        : m_model(model)
        , m_view(view)
        , m_cartesian(qobject_cast<const CartesianView *>(view))
        , m_plane(qobject_cast<const PlaneView *>(view))
    {
        for (const int id : view->traceIds()) {
            for (const Marker &marker : model.markersOf(id))
                checkMarker(*model.trace(id), marker);
        }
        // In a window too low for a diagram there is no room to write anything.
        if (m_cartesian && view->activeTrace() && !view->plot()->axisRect()->rect().isEmpty()) {
            checkFrequencies();
            checkScale(*view->activeTrace());
        }
        if (m_plane)
            expect(m_plane->chart()->viewState().zoom, model.zoom(view->id()).factor, "the zoom");
    }

    const QStringList &broken() const { return m_broken; }

private:
    void expect(double found, double wanted, const char *what, double scale = 0.0)
    {
        if (!isNear(found, wanted, scale == 0.0 ? wanted : scale))
            say(QStringLiteral("%1 is %2 and should be %3")
                    .arg(QLatin1String(what), QString::number(found, 'g', 12),
                         QString::number(wanted, 'g', 12)));
    }

    void say(const QString &sentence)
    {
        m_broken << QStringLiteral("%1 diagram %2: %3")
                        .arg(m_cartesian ? QStringLiteral("Cartesian") : QStringLiteral("Smith"))
                        .arg(m_view->id().place)
                        .arg(sentence);
    }

    /// Where a marker belongs in the coordinates of the plot; NaN where it cannot be seen.
    QPointF place(const Trace &trace, const Marker &marker) const
    {
        const MarkedPoint point = m_model.markedPoint(marker);
        const double index = point.index;
        if (!trace.visible || index < 0.0)
            return {qQNaN(), qQNaN()};
        const std::complex<double> s = point.data.at(index);
        if (m_plane)
            return QPointF(s.real(), s.imag()) / m_plane->fullScale(trace);
        const double hertz = valueAt(point.data.frequencies, index);
        const double value = point.value(trace.format);
        const QCPRange range = m_cartesian->frequencyAxis().range();
        if (!range.contains(hertz) || !std::isfinite(value))
            return {qQNaN(), qQNaN()};
        return {hertz, std::clamp(value, bottom(trace.format, trace.scale), trace.scale.top)};
    }

    void checkMarker(const Trace &trace, const Marker &marker)
    {
        const QPointF wanted = place(trace, marker);
        const bool shown = std::isfinite(wanted.x()) && std::isfinite(wanted.y());
        const Plot::Marker *drawn = m_view->drawnMarker(trace.id, marker.number);
        const bool isShown = drawn && drawn->isVisible();
        // A Smith chart leaves a marker in a gap of the data to itself.
        const bool inGap =
            !m_cartesian && !shown && trace.visible && m_model.indexOf(marker) >= 0.0;
        if (shown != isShown && !inGap)
            say(QStringLiteral("M%1 of Tr%2 is drawn: %3")
                    .arg(marker.number)
                    .arg(trace.id)
                    .arg(isShown));
        if (!shown || !isShown)
            return;
        drawn->getTracer()->updatePosition();
        const QPointF found = drawn->getTracer()->position->coords();
        // At the upper edge it may stand a pixel below.
        const double height = m_cartesian ? 2e6 * trace.scale.perDivision
                * traits(trace.format).divisions / std::max(2, m_view->plot()->axisRect()->height())
                                          : wanted.y();
        expect(found.x(), wanted.x(), "a marker's place");
        expect(found.y(), wanted.y(), "a marker's value", height);
    }

    void checkFrequencies()
    {
        constexpr FrequencyScale linear = FrequencyScale::Linear;
        double lowest = qInf(), highest = -qInf();
        for (const int id : m_view->traceIds()) {
            const Trace &trace = *m_model.trace(id);
            Stimulus shown = m_model.shownRange(trace);
            if (shown.start <= 0.0 && m_model.viewSettings()->frequencyScale() != linear) {
                for (const double hertz : m_model.network(trace).frequencies) {
                    shown.start = hertz;
                    if (hertz > 0.0)
                        break;
                }
            }
            lowest = std::min(lowest, shown.start);
            highest = std::max(highest, shown.stop);
        }
        const Stimulus shown = lowest < highest ? Stimulus{lowest, highest} : around(lowest);
        const bool logarithmic = m_cartesian->frequencyAxis().scale() != linear;
        const auto along = [logarithmic](double start, double stop) {
            return logarithmic ? QCPRange(std::log10(start), std::log10(stop))
                               : QCPRange(start, stop);
        };
        const QCPRange whole = along(shown.start, shown.stop);
        const QCPRange seen = m_cartesian->frequencyAxis().range();
        const QCPRange range = along(seen.lower, seen.upper);
        const Zoom zoom = m_model.zoom(m_view->id());
        const double size = whole.size() / zoom.factor;
        expect(range.size(), size, "what is seen of the frequencies");
        expect(range.center(), whole.center() + zoom.x * whole.size() / 2.0, "their centre",
               whole.size());
        const QStringList texts = m_cartesian->frequencyAxis().texts();
        const double rounding = 1e3 * seen.size();
        expect(hertzOf(texts.first()), seen.lower, "the left label", rounding);
        expect(hertzOf(texts.last()), seen.upper, "the right label", rounding);
        if (logarithmic)
            return;
        // Beside the middle frequency, or below it.
        QString division =
            texts.at(1).split(QLatin1Char('\n')).last().section(QStringLiteral(" \u00b7 "), -1);
        division.chop(1);
        expect(hertzOf(division), size / FrequencyAxis::divisions, "the division", rounding);
    }

    /// What is written at the value axis are the active trace's divisions.
    void checkScale(const Trace &active)
    {
        const QCPRange written = m_view->plot()->yAxis->range();
        const double size = active.scale.perDivision * traits(active.format).divisions;
        expect(written.upper, active.scale.top, "the upper edge", size);
        expect(written.lower, active.scale.top - size, "the lower edge", size);
        const QVector<double> ticks = m_view->plot()->yAxis->tickVector();
        for (const double tick : ticks) {
            const double division = (active.scale.top - tick) / active.scale.perDivision;
            expect(division, std::round(division), "a grid line", 1.0);
        }
        if (ticks.size() < 2)
            say(QStringLiteral("there are %1 grid lines").arg(ticks.size()));
    }

    const PanelModel &m_model;
    const DiagramView *m_view;
    const CartesianView *m_cartesian;
    const PlaneView *m_plane;
    QStringList m_broken;
};

} // namespace

QStringList brokenRules(const PanelModel &model, const Diagrams &diagrams)
{
    QStringList broken;
    for (const DiagramView *view : diagrams.views()) {
        // What is hidden or minimised catches up when it is shown.
        if (view->isVisible() && !view->window()->isMinimized() && !view->visibleRegion().isEmpty())
            broken << Judge(model, view).broken();
    }
    return broken;
}

} // namespace Fuzz
