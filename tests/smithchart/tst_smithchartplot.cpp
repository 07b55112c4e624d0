// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Construction, grid, traces and view; pointer and markers are in tests of their own.
#include <controls/thememanager.h>
#include <smithchart/gridgeometry.h>
#include <smithchart/smithchartplot.h>

#include <vnatest.h>

#include <limits>
#include <memory>

using namespace VnaTest;

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
    for (const QCPLayerable *each : plot.layer(QLatin1String(layer))->children())
        count += qobject_cast<const T *>(each) ? 1 : 0;
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
std::unique_ptr<QCustomPlot> makePlot()
{
    auto plot = std::make_unique<QCustomPlot>();
    plot->plotLayout()->setMargins({});
    plot->axisRect()->setAutoMargins(QCP::msNone);
    plot->axisRect()->setMargins({});
    layOut(*plot, {400, 200});
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

class tst_SmithChartPlot : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        m_plot = makePlot();
        m_chart = new SmithChartPlot(m_plot.get(), SmithChart::Basic);
    }

    void cleanup()
    {
        delete m_chart;
        m_plot.reset();
        TestCase::cleanup();
    }

    void layers()
    {
        const struct {
            QStringList before;
            QString after;
        } rows[] = {
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
        for (const auto &expected : rows) {
            QCustomPlot plot;
            for (const QString &name : expected.before)
                plot.addLayer(name);
            for (int charts = 0; charts < 2; ++charts) {
                new SmithChartPlot(&plot, SmithChart::Basic, &plot);
                QCOMPARE(layerNames(plot).join(QLatin1Char(' ')), expected.after);
            }
            QCOMPARE(plot.selectionTolerance(), 18);
        }
    }

    void gridCounts()
    {
        struct Expected {
            int preset, circles, labels;
        };
        for (const auto &[preset, circles, labels] :
             {Expected{0, 3, 10}, {1, 5, 16}, {2, 7, 22}, {7, 0, 0}}) {
            for (int mode = 0; mode < 3; ++mode) {
                const Row row("preset %1, mode %2"_s.arg(preset).arg(mode));
                QCustomPlot plot;
                SmithChartPlot chart(&plot, static_cast<SmithChart::Preset>(preset));
                chart.setGridMode(static_cast<SmithChartPlot::GridMode>(mode));
                const int charts = mode == SmithChartPlot::ImpedanceAndAdmittance ? 2 : 1;
                QCOMPARE(countOnLayer<QCPItemEllipse>(plot, "smithGrid"), circles * charts);
                QCOMPARE(countOnLayer<QCPItemEllipse>(plot, "smithBoundary"), 1);
                QCOMPARE(countOnLayer<QCPItemText>(plot, "smithGrid"), labels * charts);

                const auto values = SmithChart::gridValues(static_cast<SmithChart::Preset>(preset));
                const auto grid =
                    SmithChart::gridGeometry(values.resistances, values.reactances, 720);
                const auto arcs = grid.impedance.circles.x.size() - values.resistances.size();
                QCOMPARE(countOnLayer<QCPCurve>(plot, "smithGrid"), int(arcs) * charts + 1);
                QCOMPARE(plot.legend->itemCount(), 0);
                QVERIFY(!gridIsVisible(plot));
            }
        }
    }

    void gridLook()
    {
        int aligned = 0;
        for (int i = 0; i < m_plot->itemCount(); ++i) {
            QVERIFY(!m_plot->item(i)->selectable());
            QCOMPARE(m_plot->item(i)->clipAxisRect(), m_plot->axisRect());
            if (auto *ellipse = qobject_cast<QCPItemEllipse *>(m_plot->item(i))) {
                const bool boundary = ellipse->layer()->name() == "smithBoundary"_s;
                QCOMPARE(ellipse->pen().style(), boundary ? Qt::SolidLine : Qt::DashLine);
            }
            if (auto *label = qobject_cast<QCPItemText *>(m_plot->item(i)))
                aligned += label->positionAlignment() == Qt::Alignment(36) ? 1 : 0;
        }
        QCOMPARE(aligned, 4); // the labels of the resistances
        QVERIFY(!m_plot->xAxis->ticks() && !m_plot->yAxis->tickLabels()
                && !m_plot->xAxis->grid()->visible());
    }

    void gridModeOutsideItsRangeChangesNothingShown()
    {
        m_chart->setGridMode(SmithChartPlot::Admittance);
        const int items = m_plot->itemCount();
        const QCPAbstractItem *const first = m_plot->item(0);
        m_chart->setGridMode(SmithChartPlot::Admittance); // no rebuild
        QCOMPARE(m_plot->item(0), first);
        m_chart->setGridMode(static_cast<SmithChartPlot::GridMode>(9));
        QCOMPARE(m_plot->itemCount(), items);
        QCOMPARE(int(m_chart->gridMode()), 9);
    }

    void gridFollowsTheTraces()
    {
        QVERIFY(m_chart->addCurve(1, QPen(Qt::red)));
        QVERIFY(gridIsVisible(*m_plot));
        QVERIFY(m_chart->addCurve(2, QPen(Qt::blue)));
        m_chart->setCurveVisible(1, false);
        QVERIFY(gridIsVisible(*m_plot));
        m_chart->setCurveVisible(2, false);
        QVERIFY(!gridIsVisible(*m_plot));
        m_chart->setGridMode(SmithChartPlot::ImpedanceAndAdmittance);
        QVERIFY(!gridIsVisible(*m_plot));
        m_chart->setCurveVisible(2, true);
        QVERIFY(gridIsVisible(*m_plot));
        QVERIFY(m_chart->removeCurve(2));
        QVERIFY(!gridIsVisible(*m_plot));
        m_chart->addCurve(3, QPen());
        m_chart->clearAllCurves();
        QVERIFY(!gridIsVisible(*m_plot));
        QVERIFY(m_chart->traceIds().isEmpty());
    }

    void traceIdsAndPens()
    {
        QVERIFY(!m_chart->addCurve(0, QPen()));
        QVERIFY(!m_chart->addCurve(-3, QPen()));
        QVERIFY(m_chart->addCurve(7, QPen(Qt::green, 5, Qt::DotLine)));
        QCPCurve *const curve = m_chart->getCurve(7);
        QVERIFY(!m_chart->addCurve(7, QPen(Qt::red)));
        QCOMPARE(m_chart->getCurve(7), curve);
        QCOMPARE(curve->layer()->name(), "tracers"_s);
        QCOMPARE(curve->name(), "7"_s);
        QCOMPARE(curve->pen().color(), QColor(Qt::green));
        QCOMPARE(curve->pen().width(), 1);
        QVERIFY(curve->pen().isCosmetic() && curve->antialiased());
        QCOMPARE(curve->pen().capStyle(), Qt::RoundCap);
        QCOMPARE(curve->selectable(), QCP::stNone);
        QVERIFY(m_chart->setCurvePen(7, QPen(Qt::red, 9)));
        QCOMPARE(curve->pen().width(), 1);
        QVERIFY(!m_chart->setCurvePen(8, QPen()) && !m_chart->setCurveVisible(8, true)
                && !m_chart->removeCurve(8));
        QCOMPARE(m_chart->traceIds(), QVector<int>{7});
    }

    void activeTrace()
    {
        m_chart->addCurve(1, QPen());
        m_chart->addCurve(2, QPen());
        QCOMPARE(m_chart->activeTrace(), -1);
        QVERIFY(m_chart->setActiveTrace(2));
        QCOMPARE(m_chart->getCurve(2)->layer()->name(), "tracers_active"_s);
        expectWarning("SmithChartPlot::setActiveTrace: traceId 42 not found"_s);
        QVERIFY(!m_chart->setActiveTrace(42));
        QCOMPARE(m_chart->activeTrace(), 2);
        QVERIFY(m_chart->setActiveTrace(1));
        QCOMPARE(m_chart->getCurve(2)->layer()->name(), "tracers"_s);
        QVERIFY(m_chart->setActiveTrace(0));
        QVERIFY(!m_chart->hasActiveTrace());
        QCOMPARE(m_chart->activeTrace(), 0);
        QCOMPARE(m_chart->getCurve(1)->layer()->name(), "tracers"_s);
        QVERIFY(m_chart->setActiveTrace(1));
        QVERIFY(m_chart->removeCurve(1));
        QCOMPARE(m_chart->activeTrace(), -1);
        m_chart->setActiveTrace(2);
        m_chart->clearActiveTrace();
        QCOMPARE(m_chart->activeTrace(), -1);
        QCOMPARE(m_chart->getCurve(2)->layer()->name(), "tracers"_s);
    }

    void sourceData()
    {
        m_chart->addCurve(1, QPen());
        const QVector<double> *f, *re, *im;
        QVERIFY(!m_chart->setCurveData(2, {}, {}, {}));
        QVERIFY(!m_chart->sourceCurveData(2, f, re, im));

        QVERIFY(m_chart->setCurveData(1, {10}, {1, 2, 3, 4, 5}, {6, 7, 8}));
        QVERIFY(m_chart->sourceCurveData(1, f, re, im));
        QCOMPARE(*f, (QVector<double>{0, 1, 2}));
        QCOMPARE(*re, (QVector<double>{1, 2, 3}));
        QCOMPARE(*im, (QVector<double>{6, 7, 8}));
        QCOMPARE(m_chart->getCurve(1)->data()->size(), 3);
        QCOMPARE(m_chart->getCurve(1)->data()->at(2)->key, 3.0);
        QCOMPARE(m_chart->getCurve(1)->data()->at(2)->value, 8.0);

        QVERIFY(m_chart->setCurveData(1, {5, 6, 7, 8}, {1, 2, 3}, {1, 2, 3}));
        QCOMPARE(*f, (QVector<double>{5, 6, 7}));
        QVERIFY(m_chart->setCurveData(1, {}, {}, {1}));
        QCOMPARE(m_chart->getCurve(1)->data()->size(), 0);
    }

    // Taking a vector whole must not copy it: a live sweep replaces data many times a second.
    void wholeVectorsAreShared()
    {
        m_chart->addCurve(1, QPen());
        const QVector<double> values(1000, 0.5);
        m_chart->setCurveData(1, values, values, values);
        const QVector<double> *f, *re, *im;
        m_chart->sourceCurveData(1, f, re, im);
        for (const QVector<double> *source : {f, re, im})
            QCOMPARE(source->constData(), values.constData());

        // And it may be the trace's own.
        QVERIFY(m_chart->setCurveData(1, {}, {0.1, 0.2}, {0.3, 0.4}));
        QVERIFY(m_chart->setCurveData(1, *im, *im, *re));
        QCOMPARE(*f, QVector<double>({0.3, 0.4}));
        QCOMPARE(*re, QVector<double>({0.3, 0.4}));
        QCOMPARE(*im, QVector<double>({0.1, 0.2}));
    }

    void hasSourceData()
    {
        m_chart->addCurve(1, QPen());
        QVERIFY(!m_chart->hasSourceDataAtIndex(1, 0.0));
        m_chart->setCurveData(1, {10, 20, 30, qQNaN(), 50}, {0, 0, qQNaN(), 0, 0}, {0, 0, 0, 0, 0});
        for (const double index : {0.0, 0.5, 1.0, 4.0})
            QVERIFY2(m_chart->hasSourceDataAtIndex(1, index), qPrintable(QString::number(index)));
        // In and towards the gap, without a stimulus, and outside.
        for (const double index : {1.25, 2.0, 3.0, 4.5, -0.1, qQNaN()})
            QVERIFY2(!m_chart->hasSourceDataAtIndex(1, index), qPrintable(QString::number(index)));
        QVERIFY(!m_chart->hasSourceDataAtIndex(2, 0.0));

        // Between the largest numbers: their difference is none, their mean is.
        const double largest = std::numeric_limits<double>::max();
        m_chart->setCurveData(1, {10, 20}, {-largest, largest}, {0, 0});
        QVERIFY(m_chart->hasSourceDataAtIndex(1, 0.5));
        QVERIFY(m_chart->hasSourceDataAtParameter(1, 12.0));

        // Falling in the middle and doubled at 20: found wherever one branch has data.
        m_chart->setCurveData(1, {10, 20, 20, 5}, {0, qQNaN(), 0, 0}, {0, 0, 0, 0});
        for (const double stimulus : {10.0, 20.0, 15.0, 7.5})
            QVERIFY(m_chart->hasSourceDataAtParameter(1, stimulus));
        for (const double stimulus : {4.0, 21.0, qQNaN()})
            QVERIFY(!m_chart->hasSourceDataAtParameter(1, stimulus));
        QVERIFY(!m_chart->hasSourceDataAtParameter(2, 10));
    }

    void viewStaysSquareAtEverySize()
    {
        QCOMPARE(m_plot->xAxis->range(), QCPRange(-2.1, 2.1));
        QCOMPARE(m_plot->yAxis->range(), QCPRange(-1.05, 1.05));
        m_chart->zoomAt({0.0, 0.0}, 2.0);
        layOut(*m_plot, {200, 400});
        QCOMPARE(m_chart->viewState().zoom, 2.0);
        QCOMPARE(m_plot->xAxis->range().size(), 1.05);
        QCOMPARE(m_plot->yAxis->range().size(), 2.1);

        m_plot->xAxis->setRange(0, 1); // undone at once
        QCOMPARE(m_plot->xAxis->range().size(), 1.05);
        QVERIFY(!m_plot->xAxis->signalsBlocked());
        QVERIFY(m_chart->isMagnified());
        m_chart->resetView();
        QVERIFY(!m_chart->isMagnified());
        QCOMPARE(m_plot->xAxis->range(), QCPRange(-1.05, 1.05));
        m_chart->setViewFromRequestedRanges({0.0, 0.5}, {0.0, 0.5});
        QCOMPARE(m_chart->viewState().zoom, 4.2);
        QCOMPARE(m_chart->viewState().centerX, 0.25);
    }

    void resizesAreFittedOnce()
    {
        QCoreApplication::processEvents();
        int requests = 0;
        m_chart->setQueuedReplotHandler([&requests] { ++requests; });
        for (const QSize size : {QSize(300, 200), QSize(200, 300)}) {
            QResizeEvent event(size, m_plot->size());
            QCoreApplication::sendEvent(m_plot.get(), &event);
        }
        QCOMPARE(requests, 2);
        QCoreApplication::processEvents();
        QCOMPARE(requests, 3);
        m_chart->setQueuedReplotHandler({}); // or the chart's end would still count
    }

    void replotHandlerReplacesTheReplot()
    {
        QCoreApplication::processEvents();
        QSignalSpy replots(m_plot.get(), &QCustomPlot::afterReplot);
        int requests = 0;
        m_chart->setQueuedReplotHandler([&] {
            ++requests;
            m_chart->setQueuedReplotHandler({}); // also from inside
        });
        m_chart->addCurve(1, QPen());
        QCoreApplication::processEvents();
        QCOMPARE(requests, 1);
        QCOMPARE(replots.count(), 0);
        m_chart->setCurveVisible(1, false);
        QTRY_COMPARE(replots.count(), 1);
    }

    void otherAxes()
    {
        addTraceAndMarker();
        const int items = m_plot->itemCount();
        m_chart->setAxes(m_plot->xAxis2, m_plot->yAxis2);
        QCOMPARE(m_plot->itemCount(), items);
        QCOMPARE(m_chart->getCurve(1)->keyAxis(), m_plot->xAxis2);
        QCOMPARE(m_chart->getMarker(1, 1)->getTracer()->position->keyAxis(), m_plot->xAxis2);
        QCOMPARE(m_plot->xAxis2->range(), QCPRange(-2.1, 2.1));
        QVERIFY(!m_plot->xAxis2->grid()->visible());
        m_plot->xAxis->setRange(3, 4); // no longer the chart's
        QCOMPARE(m_plot->xAxis->range(), QCPRange(3, 4));
        m_plot->yAxis2->setRange(3, 4);
        QCOMPARE(m_plot->yAxis2->range(), QCPRange(-1.05, 1.05));
        for (int round = 0; round < 2; ++round) {
            m_chart->setAxes(nullptr, nullptr);
            QCOMPARE(m_chart->getCurve(1)->keyAxis(), m_plot->xAxis);
        }
    }

    // In the light theme the second stroke is shifted, which makes the line cover more of the
    // picture.
    void doubleStroke()
    {
        m_chart->addCurve(1, QPen(Qt::black));
        m_chart->setCurveData(1, {}, {-0.9, 0.8}, {0.11, 0.37});
        auto *const plain = new QCPCurve(m_plot->xAxis, m_plot->yAxis);
        plain->setData({-0.9, 0.8}, {0.11, 0.37});
        plain->setPen(m_chart->getCurve(1)->pen());
        plain->setAntialiased(true);
        for (int i = 0; i < m_plot->itemCount(); ++i)
            m_plot->item(i)->setVisible(false);
        for (int i = 0; i < m_plot->plottableCount(); ++i)
            m_plot->plottable(i)->setVisible(false);

        const auto ink = [this](QCPCurve *curve) {
            curve->setVisible(true);
            const int result = inkOf(m_plot->toPixmap(400, 400).toImage());
            curve->setVisible(false);
            return result;
        };
        const int background = inkOf(m_plot->toPixmap(400, 400).toImage());
        const int once = ink(plain) - background;
        const int twice = ink(m_chart->getCurve(1)) - background;
        Controls::ThemeManager::instance()->setTheme(Controls::ThemeManager::Light);
        const int shifted = ink(m_chart->getCurve(1)) - background;
        Controls::ThemeManager::instance()->setTheme(Controls::ThemeManager::Dark);
        QVERIFY2(twice > once * 5 / 4, qPrintable("%1 %2"_s.arg(once).arg(twice)));
        QVERIFY2(shifted > twice, qPrintable("%1 %2"_s.arg(twice).arg(shifted)));
    }

    /// A trace around the view leaves no ink in it, in the light theme neither, whose second stroke
    /// is shifted.
    void traceAroundTheViewLeavesNoInk()
    {
        layOut(*m_plot, {400, 400});
        m_chart->addCurve(1, QPen(Qt::black));
        QVector<double> real;
        QVector<double> imag;
        for (int i = 0; i <= 200; ++i) {
            real.append(0.9 * std::cos(i * 0.0314159));
            imag.append(0.9 * std::sin(i * 0.0314159));
        }
        m_chart->setCurveData(1, {}, real, imag);
        m_chart->zoomAt({0.0, 0.0}, 5.0);
        for (int i = 0; i < m_plot->itemCount(); ++i)
            m_plot->item(i)->setVisible(false);
        for (int i = 0; i < m_plot->plottableCount(); ++i)
            m_plot->plottable(i)->setVisible(false);
        for (QCPAxis *axis : m_plot->axisRect()->axes())
            axis->setVisible(false);
        const auto picture = [this] { return m_plot->toPixmap(400, 400).toImage(); };
        const QImage empty = picture();
        m_chart->getCurve(1)->setVisible(true);
        for (const auto theme : {Controls::ThemeManager::Dark, Controls::ThemeManager::Light}) {
            Controls::ThemeManager::instance()->setTheme(theme);
            QCOMPARE(inkOf(picture()), inkOf(empty));
        }
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

    void survivesCurvesAxesAndLayersTakenBehindItsBack()
    {
        addTraceAndMarker();
        m_chart->setActiveTrace(1);
        m_plot->clearPlottables();
        QVERIFY(!m_chart->setCurveData(1, {}, {0.1}, {0.1}) && !m_chart->setCurvePen(1, QPen()));
        QVERIFY(!m_chart->setMarkerIndex(1, 1, 0.0) && !m_chart->selectMarker(1, 1));
        m_plot->clearItems();
        m_chart->setMarkerLabelText(1, 1, "x"_s);
        QVERIFY(m_chart->removeMarkerVisual(1, 1));
        m_plot->removeLayer(m_plot->layer("smithGrid"_s));
        m_chart->setGridMode(SmithChartPlot::Admittance);
        QVERIFY(m_chart->addCurve(2, QPen()));

        auto *const x = m_plot->axisRect()->addAxis(QCPAxis::atBottom);
        m_chart->setAxes(x, nullptr);
        m_plot->axisRect()->removeAxis(x);
        m_chart->zoomAt({0.1, 0.1}, 2.0);
        QVERIFY(!m_chart->addCurve(3, QPen()));
        m_chart->setAxes(nullptr, nullptr);
        QVERIFY(m_chart->addCurve(3, QPen()));
        m_plot->plotLayout()->clear();
        m_chart->zoomAt({0.1, 0.1}, 2.0);
        QVERIFY(!m_chart->addCurve(4, QPen()));
    }

    void destructionLeavesThePlotClean()
    {
        const int items = m_plot->itemCount();
        const int plottables = m_plot->plottableCount();
        addTraceAndMarker();
        delete m_chart;
        QCOMPARE(m_plot->itemCount(), items);
        QCOMPARE(m_plot->plottableCount(), plottables);
        QVERIFY(!gridIsVisible(*m_plot));
        m_plot->replot();
    }

private:
    void addTraceAndMarker()
    {
        m_chart->addCurve(1, QPen());
        m_chart->setCurveData(1, {}, {0.1, 0.2}, {0.1, 0.2});
        m_chart->addMarkerVisual(1, 1, 0.5, Plot::PointingDown);
    }

    std::unique_ptr<QCustomPlot> m_plot;
    QPointer<SmithChartPlot> m_chart;
};

QTEST_MAIN(tst_SmithChartPlot)
#include "tst_smithchartplot.moc"
