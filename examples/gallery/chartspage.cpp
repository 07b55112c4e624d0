// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: 0BSD
#include "page.h"
#include "pages.h"

#include <controls/thememanager.h>
#include <plot/marker.h>
#include <plot/qcp.h>
#include <smithchart/smithchartplot.h>
#include <smithchart/smithcircle.h>
#include <smithchart/smithlimit.h>

#include <cmath>
#include <complex>
#include <memory>

namespace Gallery
{

namespace
{

using Controls::ThemeManager;

constexpr int s_points = 401;

/// Reflection of a resonant load behind a length of line.
struct Trace {
    QVector<double> frequencies;
    QVector<double> real;
    QVector<double> imag;
};

Trace resonator(double resistance)
{
    Trace trace;
    for (int i = 0; i < s_points; ++i) {
        const double x = -3.0 + 6.0 * i / (s_points - 1);
        const std::complex<double> impedance(resistance, 1.4 * x);
        const std::complex<double> load = (impedance - 1.0) / (impedance + 1.0);
        const std::complex<double> seen = load * std::polar(1.0, -0.9 - 0.25 * x);
        trace.frequencies << 2.45e9 + x * 50e6;
        trace.real << seen.real();
        trace.imag << seen.imag();
    }
    return trace;
}

/// Gives a plot the background of the theme, now and later, and calls \a recolour with it.
void followTheme(QCustomPlot *plot, const std::function<void()> &recolour)
{
    const auto apply = [plot, recolour] {
        plot->setBackground(ThemeManager::instance()->backgroundColor());
        recolour();
        plot->replot(QCustomPlot::rpQueuedReplot);
    };
    QObject::connect(ThemeManager::instance(), &ThemeManager::themeChanged, plot, apply);
    apply();
}

QPen tracePen(int index)
{
    return QPen(ThemeManager::instance()->getTracePalette().value(index));
}

/// A grid that follows the view, in the theme's colours, a circle to read against, and an area that
/// the first trace must stay in.
void addReferences(SmithChartPlot *chart)
{
    QCustomPlot *const plot = chart->xAxis()->parentPlot();
    chart->setGridFollowsView(true);
    chart->setGridReference(50.0);
    followTheme(plot, [chart] {
        SmithChart::GridLook look;
        look.linePen = QPen(ThemeManager::instance()->borderColor());
        look.boundaryPen = look.linePen;
        look.labelColor = ThemeManager::instance()->textColor();
        chart->setGridLook(look);
    });
    chart->zoomAt({0.0, 0.0}, 1.6);
    auto *const circle = new SmithCircle(plot->xAxis, plot->yAxis);
    circle->setVswr(2.0);
    circle->setLabel(QStringLiteral("VSWR 2"));
    auto *const limit = new SmithLimit(chart);
    SmithChart::LimitArea area;
    area.setCircle({0.0, 0.0}, 0.5, SmithChart::LimitArea::StayInside);
    limit->setArea(area);
    limit->setColors(QColor(Qt::darkGreen), QColor(Qt::red));
    limit->test(1);
}

Section *smithCharts(Page *page)
{
    auto *const section =
        new Section(QStringLiteral("smithchartplot"), QStringLiteral("SmithChartPlot"),
                    tr("A Smith chart on a QCustomPlot, with traces and markers to drag."));
    const auto add = [page, section](SmithChart::Preset preset, SmithChartPlot::GridMode mode,
                                     const char *caption) -> SmithChartPlot * {
        auto *const plot = new QCustomPlot;
        plot->xAxis->setVisible(false);
        plot->yAxis->setVisible(false);
        plot->axisRect()->setAutoMargins(QCP::msNone);
        plot->axisRect()->setMargins(QMargins(8, 8, 8, 8));
        plot->setAccessibleName(tr("Smith chart"));
        auto *const chart = new SmithChartPlot(plot, preset, plot);
        chart->setGridMode(mode);
        for (int id = 1; id <= 2; ++id) {
            const Trace trace = resonator(id == 1 ? 0.55 : 1.6);
            chart->addCurve(id, tracePen(id - 1));
            chart->setCurveData(id, trace.frequencies, trace.real, trace.imag);
        }
        chart->setActiveTrace(1);
        chart->addMarkerVisual(1, 1, s_points / 2, Plot::PointingDown);
        chart->addMarkerVisual(1, 2, s_points * 0.62, Plot::PointingDown);
        chart->selectMarker(1, 1);
        followTheme(plot, [chart] {
            for (int id = 1; id <= 2; ++id)
                chart->setCurvePen(id, tracePen(id - 1));
        });
        QObject::connect(chart, &SmithChartPlot::markerSelectionRequested, chart,
                         &SmithChartPlot::selectMarker);
        QObject::connect(chart, &SmithChartPlot::markerPositionChanged, page,
                         [page, chart](int traceId, int localId, double index) {
                             chart->setMarkerIndex(traceId, localId, index);
                             Q_EMIT page->told(QStringLiteral("SmithChartPlot: "
                                                              "markerPositionChanged(%1, %2, %3)")
                                                   .arg(traceId)
                                                   .arg(localId)
                                                   .arg(index));
                         });
        section->add(plot, tr(caption), QSize(330, 330));
        return chart;
    };
    add(SmithChart::Detailed, SmithChartPlot::Impedance, "detailed, impedance");
    add(SmithChart::Standard, SmithChartPlot::Admittance, "standard, admittance");
    add(SmithChart::Basic, SmithChartPlot::ImpedanceAndAdmittance, "basic, both");
    addReferences(add(SmithChart::Standard, SmithChartPlot::Impedance,
                      "in ohms, magnified, with a circle and a limit"));
    return section;
}

Section *markers(Page *)
{
    auto *const section =
        new Section(QStringLiteral("marker"), QStringLiteral("Plot::Marker"),
                    tr("A triangle on a trace and its text, on any QCustomPlot."));
    auto *const plot = new QCustomPlot;
    plot->setAccessibleName(tr("Transmission"));
    plot->axisRect()->setupFullAxesBox();
    plot->xAxis->setRange(2.2, 2.7);
    plot->yAxis->setRange(-80, 10);
    QCPGraph *const graph = plot->addGraph();
    for (int i = 0; i < s_points; ++i) {
        const double x = 2.2 + 0.5 * i / (s_points - 1);
        const double offset = (x - 2.45) / 0.06;
        graph->addData(x, -1.5 - 10.0 * std::log10(1.0 + std::pow(offset, 6.0)));
    }
    // Owned here: a marker is a value and takes its items off the plot when it goes.
    auto shown = std::make_shared<std::vector<Plot::Marker>>();
    const std::pair<double, Plot::MarkerType> places[] = {
        {120.0, Plot::PointingUp}, {160.0, Plot::PointingDown}, {241.5, Plot::PointingDown}};
    for (const auto &[index, type] : places) {
        shown->emplace_back(plot, int(shown->size()) + 1, type);
        shown->back().setPosition(graph, index);
        shown->back().getLabel()->setText(QString::number(shown->size()));
    }
    followTheme(plot, [plot, graph, shown] {
        const auto *const theme = ThemeManager::instance();
        graph->setPen(tracePen(2));
        for (Plot::Marker &marker : *shown)
            marker.setColors(QPen(graph->pen().color(), 1.5),
                             marker.getId() == 2 ? QBrush(graph->pen().color()) : Qt::NoBrush);
        for (QCPAxis *const axis : plot->axisRect()->axes()) {
            axis->setBasePen(QPen(theme->borderColor()));
            axis->setTickPen(QPen(theme->borderColor()));
            axis->setSubTickPen(QPen(theme->borderColor()));
            axis->setTickLabelColor(theme->textColor());
            axis->grid()->setPen(QPen(theme->gridColor()));
            axis->grid()->setZeroLinePen(QPen(theme->gridColor()));
        }
    });
    section->add(plot, tr("pointing up, filled, between two points"), QSize(680, 280));
    return section;
}

} // namespace

Page *createChartsPage()
{
    auto *const page = new Page(tr("Charts"));
    page->add(smithCharts(page));
    page->add(markers(page));
    return page;
}

} // namespace Gallery
