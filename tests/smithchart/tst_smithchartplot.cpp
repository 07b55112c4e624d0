// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Layers, traces and view; grid, markers and pointer have tests of their own.
#include "chartscene.h"

#include <controls/thememanager.h>

#include <cmath>
#include <limits>

using namespace VnaTest;
using Controls::ThemeManager;

namespace
{

QString layerNames(const QCustomPlot &plot)
{
    QStringList names;
    for (int i = 0; i < plot.layerCount(); ++i)
        names << plot.layer(i)->name();
    return names.join(QLatin1Char(' '));
}

} // namespace

class tst_SmithChartPlot : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        ThemeManager::instance()->setTheme(ThemeManager::Dark);
        TestCase::cleanup();
    }

    void layers()
    {
        const std::pair<QStringList, QString> rows[] = {
            {{},
             "background grid smithGrid tracers tracers_active smithBoundary main axes legend "
             "overlay markers"_s},
            {{"rect_traces"_s},
             "background grid main axes legend overlay smithGrid tracers tracers_active "
             "smithBoundary rect_traces markers"_s},
            {{"markers"_s, "smithGrid"_s, "host"_s}, // markers buried, the grid there already
             "background grid main axes legend overlay smithGrid tracers tracers_active "
             "smithBoundary host markers"_s},
        };
        for (const auto &[before, after] : rows) {
            QCustomPlot plot;
            for (const QString &name : before)
                plot.addLayer(name);
            for (int charts = 0; charts < 2; ++charts) {
                new SmithChartPlot(&plot, SmithChart::Basic, &plot);
                QCOMPARE(layerNames(plot), after);
            }
        }
    }

    void traceIdsAndPens()
    {
        const ChartScene f;
        QVERIFY(!f.chart->addCurve(0, QPen()) && !f.chart->addCurve(-3, QPen()));
        QVERIFY(f.chart->addCurve(7, QPen(Qt::green, 5, Qt::DotLine)));
        QVERIFY(!f.chart->addCurve(7, QPen(Qt::red)));
        const QCPCurve *const curve = f.chart->getCurve(7);
        QCOMPARE(curve->pen().color(), QColor(Qt::green));
        QVERIFY(curve->pen().width() == 1 && curve->pen().isCosmetic() && curve->antialiased());
        QVERIFY(f.chart->setCurvePen(7, QPen(Qt::red, 9)));
        QCOMPARE(curve->pen().width(), 1);
        QVERIFY(!f.chart->setCurvePen(8, QPen()) && !f.chart->setCurveVisible(8, true)
                && !f.chart->removeCurve(8));
        QCOMPARE(f.chart->traceIds(), QVector<int>{7});
    }

    void activeTrace()
    {
        const ChartScene f;
        f.chart->addCurve(1, QPen());
        QCOMPARE(f.chart->activeTrace(), -1);
        QVERIFY(f.chart->setActiveTrace(1));
        expectWarning("SmithChartPlot::setActiveTrace: traceId 42 not found"_s);
        QVERIFY(!f.chart->setActiveTrace(42));
        QCOMPARE(f.chart->activeTrace(), 1);
        QVERIFY(f.chart->setActiveTrace(0));
        QVERIFY(!f.chart->hasActiveTrace());
        QCOMPARE(f.chart->activeTrace(), 0);
        for (const auto &leave : {+[](SmithChartPlot *chart) { chart->clearActiveTrace(); },
                                  +[](SmithChartPlot *chart) { chart->removeCurve(1); }}) {
            f.chart->setActiveTrace(1);
            leave(f.chart);
            QCOMPARE(f.chart->activeTrace(), -1);
        }
    }

    // Taking a vector whole must not copy it: a live sweep replaces data many times a second.
    void sourceDataIsCutToTheShortestAndShared()
    {
        const ChartScene f;
        f.chart->addCurve(1, QPen());
        const QVector<double> *stimulus, *re, *im;
        QVERIFY(!f.chart->setCurveData(2, {}, {}, {}));
        QVERIFY(!f.chart->sourceCurveData(2, stimulus, re, im));

        QVERIFY(f.chart->setCurveData(1, {10}, {1, 2, 3, 4, 5}, {6, 7, 8}));
        QVERIFY(f.chart->sourceCurveData(1, stimulus, re, im));
        QCOMPARE(*stimulus, (QVector<double>{0, 1, 2})); // too short a one is none
        QCOMPARE(*re, (QVector<double>{1, 2, 3}));
        QCOMPARE(f.chart->getCurve(1)->data()->at(2)->key, 3.0);
        QCOMPARE(f.chart->getCurve(1)->data()->at(2)->value, 8.0);
        QVERIFY(f.chart->setCurveData(1, {5, 6, 7, 8}, {1, 2, 3}, {1, 2, 3}));
        QCOMPARE(*stimulus, (QVector<double>{5, 6, 7}));

        const QVector<double> values(1000, 0.5);
        f.chart->setCurveData(1, values, values, values);
        for (const QVector<double> *source : {stimulus, re, im})
            QCOMPARE(source->constData(), values.constData());
        // And it may be the trace's own.
        QVERIFY(f.chart->setCurveData(1, {}, {0.1, 0.2}, {0.3, 0.4}));
        QVERIFY(f.chart->setCurveData(1, *im, *im, *re));
        QCOMPARE(*stimulus, QVector<double>({0.3, 0.4}));
        QCOMPARE(*im, QVector<double>({0.1, 0.2}));
    }

    void hasSourceData()
    {
        const ChartScene f;
        f.chart->addCurve(1, QPen());
        QVERIFY(!f.chart->hasSourceDataAtIndex(1, 0.0));
        f.chart->setCurveData(1, {10, 20, 30, qQNaN(), 50}, {0, 0, qQNaN(), 0, 0}, {0, 0, 0, 0, 0});
        for (const double index : {0.0, 0.5, 1.0, 4.0})
            QVERIFY2(f.chart->hasSourceDataAtIndex(1, index), qPrintable(QString::number(index)));
        // In and towards the gap, without a stimulus, and outside.
        for (const double index : {1.25, 2.0, 3.0, 4.5, -0.1, qQNaN()})
            QVERIFY2(!f.chart->hasSourceDataAtIndex(1, index), qPrintable(QString::number(index)));
        QVERIFY(!f.chart->hasSourceDataAtIndex(2, 0.0));

        QVERIFY(f.chart->hasSourceDataAtParameter(1, 15.0));
        for (const double stimulus : {25.0, 35.0, 45.0}) // beside the gap, and around no stimulus
            QVERIFY(!f.chart->hasSourceDataAtParameter(1, stimulus));
        f.chart->setCurveData(1, {10, qQNaN()}, {0, 0}, {0, 0});
        QVERIFY(!f.chart->hasSourceDataAtIndex(1, 0.5));

        // Between the largest numbers: their difference is none, their mean is.
        const double largest = std::numeric_limits<double>::max();
        f.chart->setCurveData(1, {10, 20}, {-largest, largest}, {0, 0});
        QVERIFY(f.chart->hasSourceDataAtIndex(1, 0.5));
        QVERIFY(f.chart->hasSourceDataAtParameter(1, 12.0));

        // Falling in the middle and doubled at 20: found wherever one branch has data.
        f.chart->setCurveData(1, {10, 20, 20, 5}, {0, qQNaN(), 0, 0}, {0, 0, 0, 0});
        for (const double stimulus : {10.0, 20.0, 15.0, 7.5})
            QVERIFY(f.chart->hasSourceDataAtParameter(1, stimulus));
        for (const double stimulus : {4.0, 21.0, qQNaN()})
            QVERIFY(!f.chart->hasSourceDataAtParameter(1, stimulus));
    }

    void viewStaysSquareAtEverySize()
    {
        const ChartScene f;
        QCOMPARE(f.plot->xAxis->range(), QCPRange(-2.1, 2.1));
        QCOMPARE(f.plot->yAxis->range(), QCPRange(-1.05, 1.05));
        f.chart->zoomAt({0.0, 0.0}, 2.0);
        f.layOut({200, 400});
        QCOMPARE(f.chart->viewState().zoom, 2.0);
        QCOMPARE(f.plot->xAxis->range().size(), 1.05);
        QCOMPARE(f.plot->yAxis->range().size(), 2.1);
        // Undone at once; of an axis' setters only some check what they are given.
        const QCPRange before = f.plot->xAxis->range();
        for (const double value : {0.0, qQNaN(), qInf(), 1e300, 5e-324}) {
            f.plot->xAxis->setRangeLower(value);
            f.plot->xAxis->moveRange(value);
            f.plot->xAxis->scaleRange(value);
            f.plot->xAxis->setRange(value, 1.0 - value);
            QCOMPARE(f.plot->xAxis->range(), before);
        }
        QVERIFY(!f.plot->xAxis->signalsBlocked());
        QVERIFY(f.chart->isMagnified());
        f.chart->resetView();
        QVERIFY(!f.chart->isMagnified());
        QCOMPARE(f.plot->xAxis->range(), QCPRange(-1.05, 1.05));
        f.chart->setViewFromRequestedRanges({0.0, 0.5}, {0.0, 0.5});
        QCOMPARE(f.chart->viewState().zoom, 4.2);
        QCOMPARE(f.chart->viewState().centerX, 0.25);
    }

    void magnificationBeyondTheDefault()
    {
        const ChartScene f;
        f.chart->zoomAt({0.5, 0.5}, 500.0);
        QCOMPARE(f.chart->viewState().zoom, 20.0);
        for (const double bad : {0.5, 1e7, double(qQNaN()), double(qInf())})
            QVERIFY(!f.chart->setMaximumZoom(bad));
        QVERIFY(f.chart->setMaximumZoom(200.0));
        f.chart->zoomAt({0.5, 0.5}, 500.0);
        QCOMPARE(f.chart->viewState().zoom, 200.0);
        f.chart->setViewFromRequestedRanges({0.5, 0.50001}, {0.5, 0.50001});
        QCOMPARE(f.chart->viewState().zoom, 200.0);
        QVERIFY(f.chart->setMaximumZoom(20.0));
        QCOMPARE(f.chart->viewState().zoom, 20.0);
    }

    /// A view that changes asks for a replot, and one that does not asks for none; many resizes are
    /// fitted once. A host's handler takes the replot's place until it takes itself away.
    void replotRequests()
    {
        const ChartScene f;
        QCoreApplication::processEvents();
        QSignalSpy replots(f.plot.get(), &QCustomPlot::afterReplot);
        int requests = 0;
        f.chart->setQueuedReplotHandler([&requests] { ++requests; });
        f.chart->resetView();
        f.chart->zoomAt({0.0, 0.0}, 0.5);
        f.chart->zoomAt({0.0, 0.0}, qQNaN());
        QCOMPARE(requests, 0);
        f.chart->zoomAt({0.0, 0.0}, 2.0);
        QCOMPARE(requests, 1);
        f.chart->setViewFromRequestedRanges({0.0, 0.2}, {0.0, 0.2});
        f.chart->resetView();
        QCOMPARE(requests, 3);
        for (const QSize &size : {QSize(300, 200), QSize(200, 300)}) {
            QResizeEvent event(size, f.plot->size());
            QCoreApplication::sendEvent(f.plot.get(), &event);
        }
        QCOMPARE(requests, 5);
        QCoreApplication::processEvents();
        QCOMPARE(requests, 6);
        const int drawn = int(replots.count());
        f.chart->setQueuedReplotHandler([&f] { f.chart->setQueuedReplotHandler({}); });
        f.chart->addCurve(1, QPen());
        QCoreApplication::processEvents();
        QCOMPARE(replots.count(), drawn);
        f.chart->setCurveVisible(1, false);
        QTRY_COMPARE(replots.count(), drawn + 1);
    }

    void otherAxes()
    {
        const ChartScene f;
        f.addTraceAndMarker();
        const int items = f.plot->itemCount();
        f.chart->setAxes(f.plot->xAxis2, f.plot->yAxis2);
        QCOMPARE(f.plot->itemCount(), items);
        QCOMPARE(f.chart->getCurve(1)->keyAxis(), f.plot->xAxis2);
        QCOMPARE(f.chart->getMarker(1, 1)->getTracer()->position->keyAxis(), f.plot->xAxis2);
        QCOMPARE(f.plot->xAxis2->range(), QCPRange(-2.1, 2.1));
        f.plot->xAxis->setRange(3, 4); // no longer the chart's
        QCOMPARE(f.plot->xAxis->range(), QCPRange(3, 4));
        f.plot->yAxis2->setRange(3, 4);
        QCOMPARE(f.plot->yAxis2->range(), QCPRange(-1.05, 1.05));
        f.chart->setAxes(nullptr, nullptr);
        QCOMPARE(f.chart->getCurve(1)->keyAxis(), f.plot->xAxis);
        f.chart->setAxes(f.plot->xAxis, f.plot->yAxis2); // only one of them
        QCOMPARE(f.chart->getCurve(1)->valueAxis(), f.plot->yAxis2);
        const SmithChartPlot other(f.plot.get(), f.plot->xAxis2, f.plot->yAxis2, SmithChart::Basic);
        QCOMPARE(other.xAxis(), f.plot->xAxis2);
        QCOMPARE(other.yAxis(), f.plot->yAxis2);
    }

    /// What new data cost is logged when that is asked for, and then not too often.
    void performanceReport()
    {
        static QStringList told;
        told.clear();
        const auto listen = [](QtMsgType, const QMessageLogContext &, const QString &text) {
            told << text;
        };
        const ChartScene f;
        f.chart->addCurve(1, QPen());
        const auto setData = [&f] { f.chart->setCurveData(1, {}, {0.1, 0.2}, {0.1, 0.2}); };
        const QtMessageHandler previous = qInstallMessageHandler(listen);
        const auto restore = qScopeGuard([previous] {
            QLoggingCategory::setFilterRules({});
            qInstallMessageHandler(previous);
        });
        setData();
        QVERIFY(told.isEmpty());
        QLoggingCategory::setFilterRules("vna.smith.render.performance.debug=true"_s);
        setData();
        setData();
        QCOMPARE(told.size(), 1);
        QVERIFY2(told.first().startsWith("trace 1: 2 points, 2 displayed, "_s),
                 qPrintable(told.first()));
    }

    // In the light theme the second stroke is shifted, which makes the line cover more of the
    // picture.
    void doubleStroke()
    {
        const ChartScene f;
        f.chart->addCurve(1, QPen(Qt::black));
        f.chart->setCurveData(1, {}, {-0.9, 0.8}, {0.11, 0.37});
        auto *const plain = new QCPCurve(f.plot->xAxis, f.plot->yAxis);
        plain->setData({-0.9, 0.8}, {0.11, 0.37});
        plain->setPen(f.chart->getCurve(1)->pen());
        plain->setAntialiased(true);
        f.hideAll();
        const int background = inkOf(f.picture(400, 400));
        const auto ink = [&f, background](QCPCurve *curve) {
            curve->setVisible(true);
            const int result = inkOf(f.picture(400, 400)) - background;
            curve->setVisible(false);
            return result;
        };
        const int once = ink(plain);
        const int twice = ink(f.chart->getCurve(1));
        ThemeManager::instance()->setTheme(ThemeManager::Light);
        const int shifted = ink(f.chart->getCurve(1));
        QVERIFY2(twice > once * 5 / 4, qPrintable("%1 %2"_s.arg(once).arg(twice)));
        QVERIFY2(shifted > twice, qPrintable("%1 %2"_s.arg(twice).arg(shifted)));
    }

    /// Nor does the second stroke of the light theme.
    void traceAroundTheViewLeavesNoInk()
    {
        const ChartScene f({400, 400});
        f.chart->addCurve(1, QPen(Qt::black));
        QVector<double> real, imag;
        for (int i = 0; i <= 200; ++i) {
            real.append(0.9 * std::cos(i * 0.0314159));
            imag.append(0.9 * std::sin(i * 0.0314159));
        }
        f.chart->setCurveData(1, {}, real, imag);
        f.chart->zoomAt({0.0, 0.0}, 5.0);
        f.hideAll();
        const QImage empty = f.picture(400, 400);
        f.chart->getCurve(1)->setVisible(true);
        for (const auto theme : {ThemeManager::Dark, ThemeManager::Light}) {
            ThemeManager::instance()->setTheme(theme);
            QCOMPARE(inkOf(f.picture(400, 400)), inkOf(empty));
        }
    }

    void survivesCurvesAxesAndLayersTakenBehindItsBack()
    {
        const ChartScene f;
        f.addTraceAndMarker();
        f.chart->setActiveTrace(1);
        QVERIFY(f.chart->beginMarkerDragAt(
            f.chart->getMarker(1, 1)->getTracer()->position->pixelPosition().toPoint()));
        f.plot->clearPlottables();
        f.chart->updateMarkerDragAt({20, 20});
        f.chart->endMarkerDragAt({20, 20});
        QVERIFY(!f.chart->setCurveData(1, {}, {0.1}, {0.1}) && !f.chart->setCurvePen(1, QPen()));
        QVERIFY(!f.chart->setMarkerIndex(1, 1, 0.0) && !f.chart->selectMarker(1, 1));
        f.plot->clearItems();
        f.chart->setMarkerLabelText(1, 1, "x"_s);
        QVERIFY(f.chart->removeMarkerVisual(1, 1));
        f.plot->removeLayer(f.plot->layer("smithGrid"_s));
        f.chart->setGridMode(SmithChartPlot::Admittance);
        QVERIFY(f.chart->addCurve(2, QPen()));

        auto *const x = f.plot->axisRect()->addAxis(QCPAxis::atBottom);
        f.chart->setAxes(x, nullptr);
        f.plot->axisRect()->removeAxis(x);
        f.chart->zoomAt({0.1, 0.1}, 2.0);
        QVERIFY(!f.chart->addCurve(3, QPen()));
        f.chart->setAxes(nullptr, nullptr);
        QVERIFY(f.chart->addCurve(3, QPen()));
        f.plot->plotLayout()->clear();
        f.chart->zoomAt({0.1, 0.1}, 2.0);
        QVERIFY(!f.chart->addCurve(4, QPen()));
    }
};

QTEST_MAIN(tst_SmithChartPlot)
#include "tst_smithchartplot.moc"
