// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Random calls in random order, also from inside the chart's own signals and replot handler; what
// must hold at all times is checked after each.
#include "tracesamples.h"

#include <smithchart/smithchartplot.h>

#include <QtTest>

#include <vnatest.h>

#include <functional>
#include <memory>

using TraceSamples::uniform;
using TraceSamples::uniformInt;

class tst_SmithChartMonkey : public VnaTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void randomCalls_data()
    {
        QTest::addColumn<unsigned>("seed");
        for (unsigned seed = 1; seed <= 4; ++seed)
            QTest::addRow("seed %u", seed) << seed;
    }

    void randomCalls()
    {
        QFETCH(unsigned, seed);
        m_random.seed(seed);
        m_depth = 0;
        m_plot = std::make_unique<QCustomPlot>();
        m_plot->resize(300, 300);
        m_plot->show();
        m_chart = std::make_unique<SmithChartPlot>(m_plot.get(), SmithChart::Basic);
        m_chart->setOnlyHandleActiveTrace(seed % 2);
        if (seed % 4 >= 2)
            m_chart->setQueuedReplotHandler([this] { react(); });
        const auto connectAll = [this](auto... signal) {
            (connect(m_chart.get(), signal, this, &tst_SmithChartMonkey::react), ...);
        };
        connectAll(&SmithChartPlot::activeTraceDoubleClicked, &SmithChartPlot::pointDoubleClicked,
                   &SmithChartPlot::markerDeleteRequested, &SmithChartPlot::markerPositionChanged,
                   &SmithChartPlot::markerSelected, &SmithChartPlot::markerSelectionCleared,
                   &SmithChartPlot::markerDragStarted, &SmithChartPlot::markerDragFinished,
                   &SmithChartPlot::markerSelectionRequested);
        connect(m_chart.get(), &SmithChartPlot::markerPositionChanged, m_chart.get(),
                &SmithChartPlot::setMarkerIndex);
        connect(m_chart.get(), &SmithChartPlot::markerSelectionRequested, m_chart.get(),
                &SmithChartPlot::selectMarker);
        for (int step = 0; step < 1000; ++step) {
            const int call = act();
            check();
            if (QTest::currentTestFailed()) {
                qInfo("at step %d, call %d", step, call);
                break;
            }
        }
        m_chart.reset();
        m_plot.reset();
    }

    /// Some setters ask for several replots, and the host may act on the first.
    void replotHandlerMayChangeOrDeleteTheChart()
    {
        using Chart = SmithChartPlot;
        const std::function<void(Chart &)> setters[] = {
            [](Chart &chart) { chart.setGridMode(Chart::Admittance); },
            [](Chart &chart) { chart.setAxes(chart.getPlot()->xAxis2, chart.getPlot()->yAxis2); },
            [](Chart &chart) { chart.clearAllCurves(); },
            [](Chart &chart) { chart.setCurveData(1, {}, {0.3}, {0.3}); },
            [](Chart &chart) { chart.selectMarker(1, 2); },
            [](Chart &chart) { chart.clearMarkerSelection(); },
            [](Chart &chart) {
                QResizeEvent resize({}, {});
                QCoreApplication::sendEvent(chart.getPlot(), &resize);
            },
        };
        const std::function<void(Chart &)> reactions[] = {
            [](Chart &chart) { delete &chart; },
            [](Chart &chart) { chart.removeCurve(1); },
            [](Chart &chart) { chart.clearAllCurves(); },
            [](Chart &chart) {
                for (int id = 10; id < 30; ++id)
                    chart.addCurve(id, QPen());
            },
        };
        QLoggingCategory::setFilterRules(QStringLiteral("vna.smith.render.performance.debug=true"));
        for (const auto &setter : setters) {
            for (const auto &reaction : reactions) {
                for (int when = 1; when <= 3; ++when) {
                    const auto plot = std::make_unique<QCustomPlot>();
                    QPointer<Chart> chart = new Chart(plot.get(), SmithChart::Basic, plot.get());
                    for (int id : {1, 2}) {
                        chart->addCurve(id, QPen());
                        chart->setCurveData(id, {}, {0.1, 0.2}, {0.1, 0.2});
                    }
                    chart->addMarkerVisual(1, 1, 0.0, Plot::PointingDown);
                    chart->addMarkerVisual(1, 2, 1.0, Plot::PointingDown);
                    chart->selectMarker(1, 1);
                    int calls = 0;
                    chart->setQueuedReplotHandler([&] {
                        if (++calls == when)
                            reaction(*chart);
                    });
                    setter(*chart);
                    int trace = 0;
                    int local = 0;
                    if (chart && chart->getSelectedMarker(trace, local))
                        QVERIFY(chart->getMarker(trace, local));
                    if (chart)
                        chart->setQueuedReplotHandler({});
                }
            }
        }
        QLoggingCategory::setFilterRules(QString());
    }

private:
    /// The host answers a signal or a replot request with a call of its own, now and then.
    void react()
    {
        if (m_chart && m_depth < 2 && uniformInt(m_random, 0, 3) == 0) {
            ++m_depth;
            act();
            --m_depth;
        }
    }

    int act()
    {
        SmithChartPlot &chart = *m_chart;
        const int trace = uniformInt(m_random, 1, 4);
        const int local = uniformInt(m_random, 1, 3);
        const double index = uniformInt(m_random, -2, 800) / 2.0;
        const bool flag = uniformInt(m_random, 0, 1);
        const QPoint pos(uniformInt(m_random, 0, 300), uniformInt(m_random, 0, 300));
        const int call = uniformInt(m_random, 0, 23);
        switch (call) {
        case 0:
        case 1:
            chart.addCurve(trace, QPen(Qt::GlobalColor(uniformInt(m_random, 2, 18))));
            break;
        case 2:
            chart.removeCurve(trace);
            break;
        case 3:
            if (uniformInt(m_random, 0, 9) == 0)
                chart.clearAllCurves();
            break;
        case 4:
        case 5: {
            auto data = TraceSamples::randomTrace(
                m_random,
                static_cast<TraceSamples::Kind>(uniformInt(m_random, 0, TraceSamples::Huge - 1)),
                uniformInt(m_random, 1, 900));
            TraceSamples::punchGaps(m_random, data, flag ? 0.0 : 0.02);
            chart.setCurveData(trace, {}, data.real, data.imag);
            break;
        }
        case 6:
            chart.setCurveData(trace, {}, {}, {});
            break;
        case 7:
            chart.setCurveVisible(trace, flag);
            break;
        case 8:
            if (chart.getCurve(trace) || flag)
                chart.setActiveTrace(chart.getCurve(trace) ? trace : 0);
            break;
        case 9:
            chart.clearActiveTrace();
            break;
        case 10:
            chart.setGridMode(static_cast<SmithChartPlot::GridMode>(uniformInt(m_random, 0, 2)));
            break;
        case 11:
            chart.zoomAt({uniform(m_random, -2, 2), uniform(m_random, -2, 2)},
                         uniform(m_random, -0.1, 3));
            break;
        case 12:
            chart.setAxes(flag ? m_plot->xAxis : m_plot->xAxis2, m_plot->yAxis);
            break;
        case 13:
        case 14:
            chart.addMarkerVisual(trace, local, index, static_cast<Plot::MarkerType>(flag));
            break;
        case 15:
            chart.removeMarkerVisual(trace, local);
            break;
        case 16:
            chart.setMarkerIndex(trace, local, index);
            break;
        case 17:
            chart.setMarkerVisible(trace, local, flag);
            break;
        case 18:
            chart.selectMarker(trace, local);
            break;
        case 19:
            flag ? chart.clearMarkerSelection() : (void)chart.setCurvePen(trace, QPen(Qt::red));
            break;
        case 20:
            if (const Plot::Marker *const marker = chart.getMarker(trace, local))
                chart.beginMarkerDragAt(marker->getTracer()->position->pixelPosition().toPoint());
            break;
        case 21:
            flag ? chart.updateMarkerDragAt(pos) : chart.endMarkerDragAt(pos);
            break;
        case 22:
            chart.handleDoubleClick(pos, Qt::NoModifier);
            break;
        case 23:
            if (m_depth == 0) {
                m_plot->resize(uniformInt(m_random, 1, 300), uniformInt(m_random, 1, 300));
                m_plot->xAxis->setRange(uniform(m_random, -9, 0), 1);
                m_plot->replot();
                QCoreApplication::processEvents();
            }
            break;
        }
        return call;
    }

    void check()
    {
        const SmithChartPlot &chart = *m_chart;
        bool anyVisible = false;
        int markers = 0;
        const QVector<int> ids = chart.traceIds();
        for (const int id : ids) {
            QCPCurve *const curve = chart.getCurve(id);
            QVERIFY(curve && m_plot->hasPlottable(curve));
            QCOMPARE(curve->layer()->name(),
                     id == chart.activeTrace() ? QStringLiteral("tracers_active")
                                               : QStringLiteral("tracers"));
            anyVisible |= curve->visible();
            markers += static_cast<int>(chart.markers(id).size());
            checkMarkers(id);
        }
        const auto countOn = [this](const char *layer) {
            return static_cast<int>(m_plot->layer(QLatin1String(layer))->children().size());
        };
        QCOMPARE(countOn("tracers") + countOn("tracers_active"), static_cast<int>(ids.size()));
        QCOMPARE(countOn("markers"), 2 * markers);
        const auto grid = m_plot->layer(QStringLiteral("smithGrid"))->children();
        QVERIFY(!grid.isEmpty());
        for (const QCPLayerable *const part : grid)
            QCOMPARE(part->visible(), anyVisible);
        QVERIFY(!chart.hasActiveTrace() || chart.getCurve(chart.activeTrace()));

        int trace = 0;
        int local = 0;
        QVERIFY(!chart.getSelectedMarker(trace, local) || chart.getMarker(trace, local));
        QVERIFY(!chart.isDraggingMarker() || markers > 0);

        const SmithChart::ViewState view = chart.viewState();
        QVERIFY(view.zoom >= 1.0 && view.zoom <= SmithChart::maximumZoom);
        QVERIFY(std::isfinite(view.centerX) && std::isfinite(view.centerY));
    }

    /// What is displayed of a trace is its own data, and of its markers the selected one is filled.
    void checkMarkers(int id) const
    {
        const QVector<double> *frequencies = nullptr;
        const QVector<double> *real = nullptr;
        const QVector<double> *imag = nullptr;
        QVERIFY(m_chart->sourceCurveData(id, frequencies, real, imag));
        const auto shown = m_chart->getCurve(id)->data();
        QCOMPARE(shown->isEmpty(), real->isEmpty());
        for (auto point = shown->constBegin(); point != shown->constEnd(); ++point) {
            const int i = static_cast<int>(point->t);
            QVERIFY(i < real->size());
            QVERIFY(point->key == real->at(i) || std::isnan(real->at(i)));
        }
        int trace = 0;
        int local = 0;
        const bool selection = m_chart->getSelectedMarker(trace, local);
        const int selected = selection ? SmithChartPlot::makeMarkerId(trace, local) : -1;
        for (const Plot::Marker *const marker : m_chart->markers(id))
            QCOMPARE(marker->getTracer()->brush().style() == Qt::SolidPattern,
                     marker->getId() == selected);
    }

    TraceSamples::Random m_random;
    std::unique_ptr<QCustomPlot> m_plot;
    std::unique_ptr<SmithChartPlot> m_chart;
    int m_depth = 0; ///< of calls from inside the chart's own
};

QTEST_MAIN(tst_SmithChartMonkey)
#include "tst_smithchartmonkey.moc"
