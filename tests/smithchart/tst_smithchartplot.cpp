// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Construction, grid, traces and view; pointer and markers are in tests of their own.
#include <controls/thememanager.h>
#include <smithchart/gridgeometry.h>
#include <smithchart/smithchartplot.h>

#include <QtTest>

#include <vnatest.h>

#include <limits>
#include <memory>

namespace
{

QStringList layerNames(QCustomPlot &plot)
{
    QStringList names;
    for (int i = 0; i < plot.layerCount(); ++i)
        names << plot.layer(i)->name();
    return names;
}

template<typename T>
int countOnLayer(QCustomPlot &plot, const char *layer)
{
    int count = 0;
    for (int i = 0; i < plot.itemCount(); ++i) {
        if (plot.item(i)->layer()->name() == QLatin1String(layer)
            && qobject_cast<T *>(plot.item(i)))
            ++count;
    }
    for (int i = 0; i < plot.plottableCount(); ++i) {
        if (plot.plottable(i)->layer()->name() == QLatin1String(layer)
            && qobject_cast<T *>(plot.plottable(i)))
            ++count;
    }
    return count;
}

bool gridIsVisible(QCustomPlot &plot)
{
    bool any = false;
    bool all = true;
    for (int i = 0; i < plot.itemCount(); ++i) {
        any |= plot.item(i)->visible();
        all &= plot.item(i)->visible();
    }
    Q_ASSERT(any == all);
    return any;
}

/// Lays the plot out at a size, as a resize of a shown plot does.
void layOut(QCustomPlot &plot, QSize size)
{
    plot.setViewport(QRect({}, size));
    plot.replot();
}

/// A plot whose axis rectangle has the given size, without being shown.
std::unique_ptr<QCustomPlot> makePlot(QSize size = {400, 400})
{
    auto plot = std::make_unique<QCustomPlot>();
    plot->plotLayout()->setMargins({});
    plot->axisRect()->setAutoMargins(QCP::msNone);
    plot->axisRect()->setMargins({});
    layOut(*plot, size);
    return plot;
}

/// The colours along a line of an image, as a number for each pixel: how far it is from the
/// background.
int inkOf(const QImage &image)
{
    int ink = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            ink += 255 - qGray(image.pixel(x, y));
    }
    return ink;
}

} // namespace

class tst_SmithChartPlot : public VnaTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void layers_data()
    {
        QTest::addColumn<QStringList>("before");
        QTest::addColumn<QString>("after");
        QTest::newRow("plain plot") << QStringList()
                                    << "background grid smithGrid tracers tracers_active "
                                       "smithBoundary main axes legend overlay markers";
        QTest::newRow("with rect_traces")
            << QStringList{QStringLiteral("rect_traces")}
            << "background grid main axes legend overlay smithGrid tracers tracers_active "
               "smithBoundary rect_traces markers";
        QTest::newRow("markers buried, grid there already")
            << QStringList{QStringLiteral("markers"), QStringLiteral("smithGrid"),
                           QStringLiteral("host")}
            << "background grid main axes legend overlay smithGrid tracers tracers_active "
               "smithBoundary host markers";
    }

    void layers()
    {
        QFETCH(QStringList, before);
        QFETCH(QString, after);
        QCustomPlot plot;
        for (const QString &name : before)
            plot.addLayer(name);
        const SmithChartPlot chart(&plot, SmithChart::Basic);
        QCOMPARE(layerNames(plot).join(QLatin1Char(' ')), after);
        QCOMPARE(plot.selectionTolerance(), 18);
        const SmithChartPlot second(&plot, SmithChart::Basic);
        QCOMPARE(layerNames(plot).join(QLatin1Char(' ')), after);
    }

    void gridCounts_data()
    {
        QTest::addColumn<int>("preset");
        QTest::addColumn<int>("mode");
        QTest::addColumn<int>("ellipses");
        QTest::addColumn<int>("labels");
        const struct {
            const char *name;
            int preset, circles, labels;
        } rows[] = {{"basic", 0, 3, 10},
                    {"standard", 1, 5, 16},
                    {"detailed", 2, 7, 22},
                    {"no preset", 7, 0, 0}};
        for (const auto &row : rows) {
            for (int mode = 0; mode < 3; ++mode) {
                const int charts = mode == 2 ? 2 : 1;
                QTest::addRow("%s, mode %d", row.name, mode)
                    << row.preset << mode << row.circles * charts << row.labels * charts;
            }
        }
    }

    void gridCounts()
    {
        QFETCH(int, preset);
        QFETCH(int, mode);
        QFETCH(int, ellipses);
        QFETCH(int, labels);
        QCustomPlot plot;
        SmithChartPlot chart(&plot, static_cast<SmithChart::Preset>(preset));
        chart.setGridMode(static_cast<SmithChartPlot::GridMode>(mode));
        QCOMPARE(countOnLayer<QCPItemEllipse>(plot, "smithGrid"), ellipses);
        QCOMPARE(countOnLayer<QCPItemEllipse>(plot, "smithBoundary"), 1);
        QCOMPARE(countOnLayer<QCPItemText>(plot, "smithGrid"), labels);

        const auto values = SmithChart::gridValues(static_cast<SmithChart::Preset>(preset));
        const auto grid = SmithChart::gridGeometry(values.resistances, values.reactances, 720);
        int arcs = 0;
        if (mode != SmithChartPlot::Admittance)
            arcs += int(grid.impedance.circles.x.size() - values.resistances.size());
        if (mode != SmithChartPlot::Impedance)
            arcs += int(grid.admittance.circles.x.size() - values.resistances.size());
        QCOMPARE(countOnLayer<QCPCurve>(plot, "smithGrid"), arcs + 1); // and the real axis
        QCOMPARE(plot.legend->itemCount(), 0);
        QVERIFY(!gridIsVisible(plot));
    }

    void gridLook()
    {
        QCustomPlot plot;
        SmithChartPlot chart(&plot, SmithChart::Basic);
        int aligned = 0;
        for (int i = 0; i < plot.itemCount(); ++i) {
            QVERIFY(!plot.item(i)->selectable());
            QCOMPARE(plot.item(i)->clipAxisRect(), plot.axisRect());
            if (auto *ellipse = qobject_cast<QCPItemEllipse *>(plot.item(i))) {
                const bool boundary = ellipse->layer()->name() == QLatin1String("smithBoundary");
                QCOMPARE(ellipse->pen().style(), boundary ? Qt::SolidLine : Qt::DashLine);
                QCOMPARE(ellipse->pen().color(), QColor(120, 120, 120));
            }
            if (auto *label = qobject_cast<QCPItemText *>(plot.item(i))) {
                QCOMPARE(label->font().pointSize(), 8);
                if (label->positionAlignment() == Qt::Alignment(36))
                    ++aligned;
            }
        }
        QCOMPARE(aligned, 4); // the labels of the resistances
        QVERIFY(!plot.xAxis->ticks() && !plot.yAxis->tickLabels()
                && !plot.xAxis->grid()->visible());
    }

    void gridModeOutsideItsRangeChangesNothingShown()
    {
        QCustomPlot plot;
        SmithChartPlot chart(&plot, SmithChart::Basic);
        chart.setGridMode(SmithChartPlot::Admittance);
        const int items = plot.itemCount();
        const QCPAbstractItem *const first = plot.item(0);
        chart.setGridMode(SmithChartPlot::Admittance); // no rebuild
        QCOMPARE(plot.item(0), first);
        chart.setGridMode(static_cast<SmithChartPlot::GridMode>(9));
        QCOMPARE(plot.itemCount(), items);
        QCOMPARE(int(chart.gridMode()), 9);
    }

    void gridFollowsTheTraces()
    {
        QCustomPlot plot;
        SmithChartPlot chart(&plot, SmithChart::Basic);
        QVERIFY(chart.addCurve(1, QPen(Qt::red)));
        QVERIFY(gridIsVisible(plot));
        QVERIFY(chart.addCurve(2, QPen(Qt::blue)));
        chart.setCurveVisible(1, false);
        QVERIFY(gridIsVisible(plot));
        chart.setCurveVisible(2, false);
        QVERIFY(!gridIsVisible(plot));
        chart.setGridMode(SmithChartPlot::ImpedanceAndAdmittance);
        QVERIFY(!gridIsVisible(plot));
        chart.setCurveVisible(2, true);
        QVERIFY(gridIsVisible(plot));
        QVERIFY(chart.removeCurve(2));
        QVERIFY(!gridIsVisible(plot));
        chart.addCurve(3, QPen());
        chart.clearAllCurves();
        QVERIFY(!gridIsVisible(plot));
        QVERIFY(chart.traceIds().isEmpty());
    }

    void traceIdsAndPens()
    {
        QCustomPlot plot;
        SmithChartPlot chart(&plot, SmithChart::Basic);
        QVERIFY(!chart.addCurve(0, QPen()));
        QVERIFY(!chart.addCurve(-3, QPen()));
        QVERIFY(chart.addCurve(7, QPen(Qt::green, 5, Qt::DotLine)));
        QCPCurve *const curve = chart.getCurve(7);
        QVERIFY(!chart.addCurve(7, QPen(Qt::red)));
        QCOMPARE(chart.getCurve(7), curve);
        QCOMPARE(curve->layer()->name(), QStringLiteral("tracers"));
        QCOMPARE(curve->name(), QStringLiteral("7"));
        QCOMPARE(curve->pen().color(), QColor(Qt::green));
        QCOMPARE(curve->pen().width(), 1);
        QVERIFY(curve->pen().isCosmetic() && curve->antialiased());
        QCOMPARE(curve->pen().capStyle(), Qt::RoundCap);
        QCOMPARE(curve->selectable(), QCP::stNone);
        QCOMPARE(plot.legend->itemCount(), 0);
        QVERIFY(chart.setCurvePen(7, QPen(Qt::red, 9)));
        QCOMPARE(curve->pen().width(), 1);
        QVERIFY(!chart.setCurvePen(8, QPen()) && !chart.setCurveVisible(8, true)
                && !chart.removeCurve(8));
        QCOMPARE(chart.traceIds(), QVector<int>{7});
    }

    void activeTrace()
    {
        QCustomPlot plot;
        SmithChartPlot chart(&plot, SmithChart::Basic);
        chart.addCurve(1, QPen());
        chart.addCurve(2, QPen());
        QCOMPARE(chart.activeTrace(), -1);
        QVERIFY(chart.setActiveTrace(2));
        QCOMPARE(chart.getCurve(2)->layer()->name(), QStringLiteral("tracers_active"));
        expectWarning(QStringLiteral("SmithChartPlot::setActiveTrace: traceId 42 not found"));
        QVERIFY(!chart.setActiveTrace(42));
        QCOMPARE(chart.activeTrace(), 2);
        QVERIFY(chart.setActiveTrace(1));
        QCOMPARE(chart.getCurve(2)->layer()->name(), QStringLiteral("tracers"));
        QVERIFY(chart.setActiveTrace(0));
        QVERIFY(!chart.hasActiveTrace());
        QCOMPARE(chart.activeTrace(), 0);
        QCOMPARE(chart.getCurve(1)->layer()->name(), QStringLiteral("tracers"));
        QVERIFY(chart.setActiveTrace(1));
        QVERIFY(chart.removeCurve(1));
        QCOMPARE(chart.activeTrace(), -1);
        chart.setActiveTrace(2);
        chart.clearActiveTrace();
        QCOMPARE(chart.activeTrace(), -1);
        QCOMPARE(chart.getCurve(2)->layer()->name(), QStringLiteral("tracers"));
    }

    void sourceData()
    {
        QCustomPlot plot;
        SmithChartPlot chart(&plot, SmithChart::Basic);
        chart.addCurve(1, QPen());
        const QVector<double> *f = nullptr;
        const QVector<double> *re = nullptr;
        const QVector<double> *im = nullptr;
        QVERIFY(!chart.setCurveData(2, {}, {}, {}));
        QVERIFY(!chart.sourceCurveData(2, f, re, im));

        QVERIFY(chart.setCurveData(1, {10}, {1, 2, 3, 4, 5}, {6, 7, 8}));
        QVERIFY(chart.sourceCurveData(1, f, re, im));
        QCOMPARE(*f, (QVector<double>{0, 1, 2}));
        QCOMPARE(*re, (QVector<double>{1, 2, 3}));
        QCOMPARE(*im, (QVector<double>{6, 7, 8}));
        QCOMPARE(chart.getCurve(1)->data()->size(), 3);
        QCOMPARE(chart.getCurve(1)->data()->at(2)->key, 3.0);
        QCOMPARE(chart.getCurve(1)->data()->at(2)->value, 8.0);

        const QVector<double> shared{5, 6, 7, 8};
        QVERIFY(chart.setCurveData(1, shared, {1, 2, 3}, {1, 2, 3}));
        chart.sourceCurveData(1, f, re, im);
        QCOMPARE(*f, (QVector<double>{5, 6, 7}));
        QVERIFY(chart.setCurveData(1, {}, {}, {1}));
        QCOMPARE(chart.getCurve(1)->data()->size(), 0);
    }

    // Taking a vector whole must not copy it: a live sweep replaces data many times a second.
    void wholeVectorsAreShared()
    {
        QCustomPlot plot;
        SmithChartPlot chart(&plot, SmithChart::Basic);
        chart.addCurve(1, QPen());
        const QVector<double> values(1000, 0.5);
        chart.setCurveData(1, values, values, values);
        const QVector<double> *f = nullptr;
        const QVector<double> *re = nullptr;
        const QVector<double> *im = nullptr;
        chart.sourceCurveData(1, f, re, im);
        QCOMPARE(f->constData(), values.constData());
        QCOMPARE(re->constData(), values.constData());
        QCOMPARE(im->constData(), values.constData());
    }

    void dataMayComeFromTheTraceItself()
    {
        const auto plot = makePlot();
        SmithChartPlot chart(plot.get(), SmithChart::Basic);
        chart.addCurve(1, QPen());
        chart.setCurveData(1, {}, {0.1, 0.2}, {0.3, 0.4});
        const QVector<double> *frequencies, *real, *imag;
        QVERIFY(chart.sourceCurveData(1, frequencies, real, imag));
        QVERIFY(chart.setCurveData(1, *imag, *imag, *real));
        QCOMPARE(*frequencies, QVector<double>({0.3, 0.4}));
        QCOMPARE(*real, QVector<double>({0.3, 0.4}));
        QCOMPARE(*imag, QVector<double>({0.1, 0.2}));
    }

    void hasSourceData_data()
    {
        QTest::addColumn<double>("index");
        QTest::addColumn<bool>("valid");
        QTest::newRow("first") << 0.0 << true;
        QTest::newRow("between") << 0.5 << true;
        QTest::newRow("before a gap") << 1.0 << true;
        QTest::newRow("towards a gap") << 1.25 << false;
        QTest::newRow("gap") << 2.0 << false;
        QTest::newRow("last") << 4.0 << true;
        QTest::newRow("beyond") << 4.5 << false;
        QTest::newRow("stimulus missing") << 3.0 << false;
        QTest::newRow("negative") << -0.1 << false;
        QTest::newRow("NaN") << qQNaN() << false;
    }

    void hasSourceData()
    {
        QFETCH(double, index);
        QCustomPlot plot;
        SmithChartPlot chart(&plot, SmithChart::Basic);
        chart.addCurve(1, QPen());
        QVERIFY(!chart.hasSourceDataAtIndex(1, 0.0));
        chart.setCurveData(1, {10, 20, 30, qQNaN(), 50}, {0, 0, qQNaN(), 0, 0}, {0, 0, 0, 0, 0});
        QTEST(chart.hasSourceDataAtIndex(1, index), "valid");
        QVERIFY(!chart.hasSourceDataAtIndex(2, 0.0));
    }

    void hasSourceDataAtStimulus()
    {
        QCustomPlot plot;
        SmithChartPlot chart(&plot, SmithChart::Basic);
        chart.addCurve(1, QPen());
        // Falling in the middle and doubled at 20: found wherever one branch has data.
        chart.setCurveData(1, {10, 20, 20, 5}, {0, qQNaN(), 0, 0}, {0, 0, 0, 0});
        QVERIFY(chart.hasSourceDataAtParameter(1, 10));
        QVERIFY(chart.hasSourceDataAtParameter(1, 20));
        QVERIFY(chart.hasSourceDataAtParameter(1, 15)); // by the falling branch
        QVERIFY(chart.hasSourceDataAtParameter(1, 7.5));
        QVERIFY(!chart.hasSourceDataAtParameter(1, 4));
        QVERIFY(!chart.hasSourceDataAtParameter(1, 21));
        QVERIFY(!chart.hasSourceDataAtParameter(1, qQNaN()));
        QVERIFY(!chart.hasSourceDataAtParameter(2, 10));
    }

    void viewStaysSquareAtEverySize()
    {
        const auto plot = makePlot({400, 200});
        SmithChartPlot chart(plot.get(), SmithChart::Basic);
        QCOMPARE(plot->xAxis->range(), QCPRange(-2.1, 2.1));
        QCOMPARE(plot->yAxis->range(), QCPRange(-1.05, 1.05));
        chart.zoomAt({0.0, 0.0}, 2.0);
        layOut(*plot, {200, 400});
        QCOMPARE(chart.viewState().zoom, 2.0);
        QCOMPARE(plot->xAxis->range().size(), 1.05);
        QCOMPARE(plot->yAxis->range().size(), 2.1);

        plot->xAxis->setRange(0, 1); // undone at once
        QCOMPARE(plot->xAxis->range().size(), 1.05);
        QVERIFY(!plot->xAxis->signalsBlocked());
        QVERIFY(chart.isMagnified());
        chart.resetView();
        QVERIFY(!chart.isMagnified());
        QCOMPARE(plot->xAxis->range(), QCPRange(-1.05, 1.05));
        chart.setViewFromRequestedRanges({0.0, 0.5}, {0.0, 0.5});
        QCOMPARE(chart.viewState().zoom, 4.2);
        QCOMPARE(chart.viewState().centerX, 0.25);
    }

    void resizesAreFittedOnce()
    {
        const auto plot = makePlot();
        SmithChartPlot chart(plot.get(), SmithChart::Basic);
        QCoreApplication::processEvents();
        int requests = 0;
        chart.setQueuedReplotHandler([&requests] { ++requests; });
        for (const QSize size : {QSize(300, 200), QSize(200, 300)}) {
            QResizeEvent event(size, plot->size());
            QCoreApplication::sendEvent(plot.get(), &event);
        }
        QCOMPARE(requests, 2);
        QCoreApplication::processEvents();
        QCOMPARE(requests, 3);
    }

    void replotHandlerReplacesTheReplot()
    {
        QCustomPlot plot;
        SmithChartPlot chart(&plot, SmithChart::Basic);
        QCoreApplication::processEvents();
        QSignalSpy replots(&plot, &QCustomPlot::afterReplot);
        int requests = 0;
        chart.setQueuedReplotHandler([&] {
            ++requests;
            chart.setQueuedReplotHandler({}); // also from inside
        });
        chart.addCurve(1, QPen());
        QCoreApplication::processEvents();
        QCOMPARE(requests, 1);
        QCOMPARE(replots.count(), 0);
        chart.setCurveVisible(1, false);
        QTRY_COMPARE(replots.count(), 1);
    }

    void otherAxes()
    {
        const auto plot = makePlot();
        SmithChartPlot chart(plot.get(), SmithChart::Basic);
        chart.addCurve(1, QPen());
        chart.setCurveData(1, {}, {0.1, 0.2}, {0.1, 0.2});
        chart.addMarkerVisual(1, 1, 0.0, Plot::PointingDown);
        const int items = plot->itemCount();
        chart.setAxes(plot->xAxis2, plot->yAxis2);
        QCOMPARE(plot->itemCount(), items);
        QCOMPARE(chart.getCurve(1)->keyAxis(), plot->xAxis2);
        QCOMPARE(chart.getMarker(1, 1)->getTracer()->position->keyAxis(), plot->xAxis2);
        QCOMPARE(plot->xAxis2->range(), QCPRange(-1.05, 1.05));
        QVERIFY(!plot->xAxis2->grid()->visible());
        plot->xAxis->setRange(3, 4); // no longer the chart's
        QCOMPARE(plot->xAxis->range(), QCPRange(3, 4));
        plot->yAxis2->setRange(3, 4);
        QCOMPARE(plot->yAxis2->range(), QCPRange(-1.05, 1.05));
        chart.setAxes(nullptr, nullptr);
        QCOMPARE(chart.getCurve(1)->keyAxis(), plot->xAxis);
    }

    // In the light theme the second stroke is shifted, which makes the line cover more of the
    // picture.
    void doubleStroke()
    {
        const auto plot = makePlot();
        SmithChartPlot chart(plot.get(), SmithChart::Basic);
        chart.addCurve(1, QPen(Qt::black));
        chart.setCurveData(1, {}, {-0.9, 0.8}, {0.11, 0.37});
        auto *const plain = new QCPCurve(plot->xAxis, plot->yAxis);
        plain->setData({-0.9, 0.8}, {0.11, 0.37});
        plain->setPen(chart.getCurve(1)->pen());
        plain->setAntialiased(true);
        for (int i = 0; i < plot->itemCount(); ++i)
            plot->item(i)->setVisible(false);
        for (int i = 0; i < plot->plottableCount(); ++i)
            plot->plottable(i)->setVisible(false);

        const auto ink = [&plot](QCPCurve *curve) {
            curve->setVisible(true);
            const int result = inkOf(plot->toPixmap(400, 400).toImage());
            curve->setVisible(false);
            return result;
        };
        const int background = inkOf(plot->toPixmap(400, 400).toImage());
        const int once = ink(plain) - background;
        const int twice = ink(chart.getCurve(1)) - background;
        Controls::ThemeManager::instance()->setTheme(Controls::ThemeManager::Light);
        const int shifted = ink(chart.getCurve(1)) - background;
        Controls::ThemeManager::instance()->setTheme(Controls::ThemeManager::Dark);
        QVERIFY2(twice > once * 5 / 4, qPrintable(QStringLiteral("%1 %2").arg(once).arg(twice)));
        QVERIFY2(shifted > twice, qPrintable(QStringLiteral("%1 %2").arg(twice).arg(shifted)));
    }

    void withoutAPlot()
    {
        SmithChartPlot chart(nullptr, SmithChart::Basic);
        QVERIFY(!chart.addCurve(1, QPen()) && !chart.removeCurve(1)
                && !chart.setCurveData(1, {}, {}, {}));
        chart.setGridMode(SmithChartPlot::Admittance);
        QCOMPARE(chart.gridMode(), SmithChartPlot::Impedance);
        chart.zoomAt({}, 2);
        chart.resetView();
        chart.setAxes(nullptr, nullptr);
        chart.clearAllCurves();
        QVERIFY(!chart.handleDoubleClick({}, {}) && !chart.beginMarkerDragAt({}));
        QVERIFY(chart.setActiveTrace(0));
        QCOMPARE(chart.getPlot(), nullptr);
    }

    void survivesItsPlot_data()
    {
        QTest::addColumn<bool>("chartIsChild");
        QTest::newRow("chart outlives the plot") << false;
        QTest::newRow("chart is the plot's child") << true;
    }

    void survivesItsPlot()
    {
        QFETCH(bool, chartIsChild);
        auto plot = makePlot();
        QPointer<SmithChartPlot> chart =
            new SmithChartPlot(plot.get(), SmithChart::Basic, chartIsChild ? plot.get() : nullptr);
        chart->addCurve(1, QPen());
        chart->setCurveData(1, {}, {0.1, 0.2}, {0.1, 0.2});
        chart->addMarkerVisual(1, 1, 0.5, Plot::PointingDown);
        chart->selectMarker(1, 1);
        plot.reset();
        QCOMPARE(chart.isNull(), chartIsChild);
        if (!chart)
            return;
        QVERIFY(!chart->addCurve(2, QPen()));
        QVERIFY(!chart->setCurveData(1, {}, {0.5}, {0.5}));
        QCOMPARE(chart->getCurve(1), nullptr);
        QVERIFY(!chart->setMarkerIndex(1, 1, 0.0));
        chart->setMarkerVisible(1, 1, true);
        chart->clearMarkerSelection();
        chart->zoomAt({}, 2.0);
        chart->clearAllCurves();
        delete chart;
    }

    void survivesCurvesAxesAndLayersTakenBehindItsBack()
    {
        const auto plot = makePlot();
        SmithChartPlot chart(plot.get(), SmithChart::Basic);
        chart.addCurve(1, QPen());
        chart.setCurveData(1, {}, {0.1, 0.2}, {0.1, 0.2});
        chart.addMarkerVisual(1, 1, 0.5, Plot::PointingDown);
        chart.setActiveTrace(1);
        plot->clearPlottables();
        QVERIFY(!chart.setCurveData(1, {}, {0.1}, {0.1}) && !chart.setCurvePen(1, QPen()));
        QVERIFY(!chart.setMarkerIndex(1, 1, 0.0) && !chart.selectMarker(1, 1));
        plot->clearItems();
        chart.setMarkerLabelText(1, 1, QStringLiteral("x"));
        QVERIFY(chart.removeMarkerVisual(1, 1));
        plot->removeLayer(plot->layer(QStringLiteral("smithGrid")));
        chart.setGridMode(SmithChartPlot::Admittance);
        QVERIFY(chart.addCurve(2, QPen()));

        auto *const x = plot->axisRect()->addAxis(QCPAxis::atBottom);
        chart.setAxes(x, nullptr);
        plot->axisRect()->removeAxis(x);
        chart.zoomAt({0.1, 0.1}, 2.0);
        QVERIFY(!chart.addCurve(3, QPen()));
        chart.setAxes(nullptr, nullptr);
        QVERIFY(chart.addCurve(3, QPen()));
        plot->plotLayout()->clear();
        chart.zoomAt({0.1, 0.1}, 2.0);
        QVERIFY(!chart.addCurve(4, QPen()));
    }

    void destructionLeavesThePlotClean()
    {
        const auto plot = makePlot();
        auto chart = std::make_unique<SmithChartPlot>(plot.get(), SmithChart::Basic);
        const int items = plot->itemCount();
        const int plottables = plot->plottableCount();
        chart->addCurve(1, QPen());
        chart->setCurveData(1, {}, {0.1, 0.2}, {0.1, 0.2});
        chart->addMarkerVisual(1, 1, 0.5, Plot::PointingDown);
        chart.reset();
        QCOMPARE(plot->itemCount(), items);
        QCOMPARE(plot->plottableCount(), plottables);
        QVERIFY(!gridIsVisible(*plot));
        plot->replot();
    }
};

QTEST_MAIN(tst_SmithChartPlot)
#include "tst_smithchartplot.moc"
