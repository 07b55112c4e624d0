// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "markerscene.h"

#include <smithchart/smithcircle.h>
#include <smithchart/smithlimit.h>

#include <functional>
#include <utility>

using namespace VnaTest;

namespace
{

using Loss = std::function<void(MarkerScene &scene)>;

/// Asks a chart for all that a host may, of marker 1 of a trace; tells what it refused.
QString refusedBy(SmithChartPlot *chart, int trace)
{
    QStringList refused;
    const auto say = [&](const char *what, bool isDone) {
        if (!isDone)
            refused << QString::fromLatin1(what);
    };
    int index = 0, number = 0;
    double distance = 0.0;
    say("pen", chart->setCurvePen(trace, QPen(Qt::green)));
    say("activate", chart->setActiveTrace(trace));
    chart->setTraceWidths(1.0, 2.0);
    chart->setTraceWidths(qQNaN(), 3.0);
    say("data", chart->setCurveData(trace, {1.0, 2.0}, {0.1, 0.2}, {0.1, 0.2}));
    say("hide", chart->setCurveVisible(trace, false));
    say("show", chart->setCurveVisible(trace, true));
    say("at index", chart->hasSourceDataAtIndex(trace, 0.5));
    say("at stimulus", chart->hasSourceDataAtParameter(trace, 1.5));
    say("near", chart->nearestPoint(trace, QPoint(320, 320), index, distance));
    say("add", chart->addMarkerVisual(trace, 2, 1.0, Plot::PointingDown));
    say("place", chart->setMarkerIndex(trace, 1, 1.0));
    say("label", chart->setMarkerLabelText(trace, 1, QStringLiteral("a")));
    say("see", chart->setMarkerVisible(trace, 1, true));
    say("select", chart->selectMarker(trace, 1));
    say("selected", chart->getSelectedMarker(index, number));
    say("drag", chart->beginMarkerDrag(trace, 1));
    say("catch", chart->beginMarkerDragAt(QPoint(320, 320)));
    chart->updateMarkerDragAt(QPoint(330, 330));
    chart->endMarkerDragAt(QPoint(330, 330));
    say("let go", !chart->isDraggingMarker());
    chart->handleDoubleClick(QPoint(320, 320), Qt::NoModifier);
    chart->setGridMode(SmithChartPlot::ImpedanceAndAdmittance);
    chart->setGridFollowsView(true);
    chart->setFollowsTheme(true);
    chart->zoomAt(QPointF(320, 320), 2.0);
    chart->setViewFromRequestedRanges({-0.5, 0.5}, {-0.5, 0.5});
    say("magnified", chart->isMagnified());
    chart->resetView();
    chart->clearMarkerSelection();
    say("unmark", chart->removeMarkerVisual(trace, 1));
    chart->clearActiveTrace();
    say("remove", chart->removeCurve(trace));
    chart->setAxes(nullptr, nullptr);
    if (const QCustomPlot *const plot = chart->getPlot())
        chart->setAxes(plot->xAxis2, nullptr);
    chart->clearAllMarkers();
    chart->clearAllCurves();
    return refused.join(QLatin1Char('|'));
}

/// What makes a chart with a marker tell something, one thing after the other.
const std::function<void(SmithChartPlot *, const QPoint &)> acts[] = {
    [](SmithChartPlot *chart, const QPoint &) { chart->selectMarker(1, 1); },
    [](SmithChartPlot *chart, const QPoint &marker) {
        const QPointer<QCustomPlot> plot = chart->getPlot();
        mousePress(plot, marker);
        mouseMove(plot, marker + QPoint(0, 20));
        mouseRelease(plot, marker + QPoint(0, 20));
    },
    [](SmithChartPlot *chart, const QPoint &marker) {
        chart->handleDoubleClick(marker, Qt::NoModifier);
    },
    [](SmithChartPlot *chart, const QPoint &marker) { chart->beginMarkerDragAt(marker); },
    [](SmithChartPlot *chart, const QPoint &) {
        QTest::keyClick(chart->getPlot(), Qt::Key_Delete);
    },
    [](SmithChartPlot *chart, const QPoint &) { chart->clearMarkerSelection(); },
    [](SmithChartPlot *chart, const QPoint &) { chart->setGridMode(SmithChartPlot::Admittance); },
    [](SmithChartPlot *chart, const QPoint &) { chart->setCurveVisible(1, false); },
    [](SmithChartPlot *chart, const QPoint &) { chart->setActiveTrace(2); },
    [](SmithChartPlot *chart, const QPoint &) { chart->removeCurve(2); }, // it has no markers
    [](SmithChartPlot *chart, const QPoint &) { chart->setCurveData(1, {}, {0.1}, {0.1}); },
    [](SmithChartPlot *chart, const QPoint &) {
        chart->setAxes(chart->getPlot()->xAxis2, chart->getPlot()->yAxis2);
    },
    [](SmithChartPlot *chart, const QPoint &) { chart->setActiveTrace(1); },
    [](SmithChartPlot *chart, const QPoint &) { chart->clearActiveTrace(); },
    [](SmithChartPlot *chart, const QPoint &) { chart->removeCurve(1); },
    [](SmithChartPlot *chart, const QPoint &) { chart->addCurve(1, QPen()); },
    [](SmithChartPlot *chart, const QPoint &) { chart->setActiveTrace(1); },
    [](SmithChartPlot *chart, const QPoint &) { chart->clearAllCurves(); }};

} // namespace

Q_DECLARE_METATYPE(Loss)

/// A chart goes on, or refuses, where the host has taken a part of it away.
class tst_LostParts : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void chartWithoutAPart_data()
    {
        QTest::addColumn<Loss>("lose");
        QTest::addColumn<QString>("refused");
        const auto row = [](const char *name, const char *refused, const Loss &lose) {
            QTest::newRow(name) << lose << QString::fromLatin1(refused);
        };
        row("nothing", "", [](MarkerScene &) {});
        row("plot",
            "pen|data|hide|show|at "
            "stimulus|near|add|place|label|select|selected|drag|catch|magnified|remove",
            [](MarkerScene &scene) { scene.plot.reset(); });
        row("axis rectangle", "near|magnified",
            [](MarkerScene &scene) { scene.plot->plotLayout()->remove(scene.plot->axisRect()); });
        row("x axis", "near|magnified",
            [](MarkerScene &scene) { scene.plot->axisRect()->removeAxis(scene.plot->xAxis); });
        row("y axis", "near|magnified",
            [](MarkerScene &scene) { scene.plot->axisRect()->removeAxis(scene.plot->yAxis); });
        row("layer of the curve", "", [](MarkerScene &scene) {
            scene.chart->getCurve(1)->setLayer(static_cast<QCPLayer *>(nullptr));
        });
        row("layer of the rim", "", [](MarkerScene &scene) {
            scene.plot->removeLayer(scene.plot->layer("smithBoundary"_s));
        });
        row("curve", "pen|data|hide|show|at stimulus|near|add|place|select|selected",
            [](MarkerScene &scene) { scene.plot->removePlottable(scene.chart->getCurve(1)); });
        row("tracer", "place",
            [](MarkerScene &scene) { scene.plot->removeItem(scene.tracer(1, 1)); });
        row("label", "label", [](MarkerScene &scene) {
            scene.plot->removeItem(scene.chart->getMarker(1, 1)->getLabel());
        });
        row("layers", "", [](MarkerScene &scene) {
            while (scene.plot->layerCount() > 1)
                scene.plot->removeLayer(scene.plot->layer(scene.plot->layerCount() - 1));
        });
        row("grid", "label", [](MarkerScene &scene) {
            for (int i = scene.plot->itemCount() - 1; i >= 0; --i) {
                if (!qobject_cast<QCPItemTracer *>(scene.plot->item(i)))
                    scene.plot->removeItem(i);
            }
        });
        row("trace",
            "pen|activate|data|hide|show|at index|at "
            "stimulus|near|add|place|label|see|select|selected|drag|catch|unmark|remove",
            [](MarkerScene &scene) { scene.chart->removeCurve(1); });
    }
    void chartWithoutAPart()
    {
        QFETCH(Loss, lose);
        QFETCH(QString, refused);
        MarkerScene scene;
        QVERIFY(scene.add(1, 1, 5.0));
        auto *const circle = new SmithCircle(scene.plot->xAxis, scene.plot->yAxis);
        circle->setVswr(2.0);
        SmithLimit limit(scene.chart.get());
        SmithChart::LimitArea area;
        area.setCircle({0.0, 0.0}, 0.1, SmithChart::LimitArea::StayInside);
        limit.setArea(area);
        scene.chart->setGridFollowsView(true);
        scene.chart->setMarkerDragJumpPx(500.0);
        lose(scene);
        if (scene.plot)
            scene.plot->replot();
        if (refused.contains(QLatin1String("activate")))
            expectWarning(QStringLiteral("SmithChartPlot::setActiveTrace: traceId 1 not found"));
        QCOMPARE(refusedBy(scene.chart.get(), 1), refused);
        limit.test(1);
        limit.setArea(area);
        if (scene.plot) {
            scene.press(QPoint(320, 320));
            scene.move(QPoint(340, 340));
            scene.release(QPoint(340, 340));
            scene.plot->replot();
        }
    }

    void hostDestroysWhenTold_data()
    {
        QTest::addColumn<Loss>("lose");
        QTest::newRow("chart") << Loss([](MarkerScene &scene) { scene.chart.reset(); });
        QTest::newRow("trace") << Loss([](MarkerScene &scene) { scene.chart->removeCurve(1); });
        QTest::newRow("curve") << Loss(
            [](MarkerScene &scene) { scene.plot->removePlottable(scene.chart->getCurve(1)); });
        QTest::newRow("marker") << Loss(
            [](MarkerScene &scene) { scene.chart->removeMarkerVisual(1, 1); });
        QTest::newRow("traces") << Loss([](MarkerScene &scene) { scene.chart->clearAllCurves(); });
        QTest::newRow("axis rectangle") << Loss(
            [](MarkerScene &scene) { scene.plot->plotLayout()->remove(scene.plot->axisRect()); });
    }
    /// Whatever the host takes away when it is told something, the call that told it ends well.
    void hostDestroysWhenTold()
    {
        QFETCH(Loss, lose);
        using Chart = SmithChartPlot;
        using Connect = std::function<void(MarkerScene &, const std::function<void()> &)>;
        const auto told = [](auto signal) {
            return Connect([signal](MarkerScene &scene, const std::function<void()> &answer) {
                QObject::connect(scene.chart.get(), signal, scene.plot.get(), answer);
            });
        };
        const Connect signalsOfChart[] = {
            told(&Chart::activeTraceDoubleClicked), told(&Chart::pointDoubleClicked),
            told(&Chart::markerDeleteRequested), told(&Chart::markerPositionChanged),
            told(&Chart::markerSelected), told(&Chart::markerSelectionCleared),
            told(&Chart::markerDragStarted), told(&Chart::markerDragFinished),
            told(&Chart::markerSelectionRequested), told(&Chart::activeTraceChanged),
            told(&Chart::curveVisibleChanged), told(&Chart::gridModeChanged),
            // The host's replots are its own, too.
            [](MarkerScene &scene, const std::function<void()> &answer) {
                scene.chart->setQueuedReplotHandler(answer);
            }};
        int answers = 0;
        for (const Connect &connect : signalsOfChart) {
            constexpr int steps = int(std::size(acts));
            for (int step = 0, patience = 0; step < steps || patience < 2;) {
                if (step >= steps) { // once more, when it is told the next time
                    step = 0;
                    ++patience;
                }
                MarkerScene scene;
                QVERIFY(scene.add(1, 1, 5.0));
                scene.chart->setMarkerDragJumpPx(5.0);
                QVERIFY(step == 0 || scene.chart->selectMarker(1, 1));
                const QPoint marker = scene.pixelOf(1, 1);
                bool answered = false;
                int waits = patience;
                connect(scene, [&] {
                    if (waits-- > 0 || std::exchange(answered, true) || !scene.chart)
                        return;
                    ++answers;
                    lose(scene);
                });
                for (; step < steps && !answered; ++step)
                    acts[step](scene.chart.get(), marker);
                scene.plot->replot();
                answered = true;
                QVERIFY(!scene.chart || scene.chart->getPlot() == scene.plot.get());
            }
        }
        QVERIFY2(answers >= 12, qPrintable(QString::number(answers)));
    }
};

QTEST_MAIN(tst_LostParts)
#include "tst_lostparts.moc"
