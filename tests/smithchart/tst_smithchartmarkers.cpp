// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Markers of a chart; what the pointer does with them is in a test of its own.
#include "markerscene.h"

#include <limits>

using namespace VnaTest;

class tst_SmithChartMarkers : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ids()
    {
        const MarkerScene f;
        QCOMPARE(SmithChartPlot::makeMarkerId(3, 7), 307);
        for (const auto &[id, expected] : {std::pair(307, std::pair(3, 7)), {-1, {0, -1}}}) {
            std::pair<int, int> parts;
            SmithChartPlot::parseMarkerId(id, parts.first, parts.second);
            QCOMPARE(parts, expected);
        }
        // Number 100 of trace 1 would read back as number 0 of trace 2.
        for (const int number : {100, 250, -1, std::numeric_limits<int>::max()})
            QVERIFY(!f.add(1, number, 5.0));
        QVERIFY(f.add(1, 99, 5.0) && f.add(1, 0, 5.0));
        // Trace ids are the host's choice; a marker whose id does not fit can still be used.
        const int huge = std::numeric_limits<int>::max();
        QVERIFY(f.chart->addCurve(huge, QPen()));
        f.chart->setCurveData(huge, {}, {0.0}, {0.0});
        QVERIFY(f.add(huge, 99, 0.0));
        f.chart->beginMarkerDragAt(f.dataPixel(0.0, 0.0));
        QVERIFY(f.chart->selectMarker(huge, 99));
        QVERIFY(f.chart->removeMarkerVisual(huge, 99));
    }

    void creation()
    {
        const MarkerScene f;
        QVERIFY(!f.add(9, 1, 0.0));
        QVERIFY(f.add(1, 1, 2.5));
        const Plot::Marker *const marker = f.chart->getMarker(1, 1);
        QVERIFY(!f.add(1, 1, 5.0));
        QCOMPARE(f.chart->getMarker(1, 1), marker);
        QCOMPARE(f.positionOf(1, 1), (f.point(f.first, 2) + f.point(f.first, 3)) / 2.0);
        QCOMPARE(marker->getId(), 101);
        QCOMPARE(marker->getLabel()->text(), "1"_s);
        QCOMPARE(f.tracer(1, 1)->pen().color(), QColor(Qt::red));
        QVERIFY(f.chart->setMarkerLabelText(1, 1, "R"_s));
        QCOMPARE(marker->getLabel()->text(), "R"_s);

        // Outside the data: kept hidden until it is placed and shown.
        QVERIFY(f.add(1, 2, 11.0) && f.add(1, 3, qQNaN()));
        QVERIFY(!f.chart->getMarker(1, 2)->isVisible() && !f.tracer(1, 2)->selectable());
        QVERIFY(f.chart->setMarkerIndex(1, 2, 10.0) && f.chart->setMarkerVisible(1, 2, true));
        QVERIFY(f.chart->getMarker(1, 2)->getLabel()->selectable());
        QVERIFY(f.chart->markers(1).size() == 3 && f.chart->markers(2).isEmpty());

        // Between the last point and the end there is nothing to stand on.
        const int items = f.plot->itemCount();
        QVERIFY(!f.add(1, 4, 10.5));
        QCOMPARE(f.plot->itemCount(), items);
    }

    void movingAndNewData()
    {
        MarkerScene f;
        f.add(1, 1, 0.0);
        QVERIFY(!f.chart->setMarkerIndex(1, 9, 0.0) && !f.chart->setMarkerVisible(1, 9, true));
        for (const double outside : {11.0, 10.5, -0.1, qQNaN()})
            QVERIFY(!f.chart->setMarkerIndex(1, 1, outside));
        QCOMPARE(f.chart->markerIndex(1, 9), -1.0);
        QVERIFY(!std::as_const(*f.chart).getMarker(1, 9));
        QVERIFY(f.chart->setMarkerIndex(1, 1, 10.0));
        f.first.imag[4] = qQNaN();
        f.set(1, f.first);
        const QPointF before = f.positionOf(1, 1);
        QVERIFY(!f.chart->setMarkerIndex(1, 1, 3.5)); // into a gap
        QCOMPARE(f.positionOf(1, 1), before);

        QVERIFY(f.chart->setMarkerIndex(1, 1, 2.0));
        f.add(1, 2, 9.0);
        const QPointF far = f.positionOf(1, 2);
        f.chart->setCurveData(1, {}, {0.0, 0.1, 0.2}, {0.0, 0.0, 0.3});
        QCOMPARE(f.positionOf(1, 1), QPointF(0.2, 0.3));
        QCOMPARE(f.positionOf(1, 2), far); // beyond the new end: stays, and keeps its index
        f.set(1, f.second);
        QCOMPARE(f.positionOf(1, 2), f.point(f.second, 9));
    }

    void markersKeepTheirPointsDisplayed()
    {
        const MarkerScene f;
        QVector<double> x;
        for (int i = 0; i < 5000; ++i)
            x << -0.9 + 1.8 * i / 4999.0;
        f.chart->setCurveData(1, {}, x, QVector<double>(5000, 0.1));
        const auto displayed = [&f] { return f.chart->getCurve(1)->data()->size(); };
        QCOMPARE(displayed(), 2); // a straight line
        f.add(2, 1, 7.0); // of no concern to this trace
        f.add(1, 1, 1000.4);
        QCOMPARE(displayed(), 4);
        QCOMPARE(f.chart->getCurve(1)->data()->at(1)->key, x[1000]);
        f.chart->setMarkerIndex(1, 1, 12.0);
        QCOMPARE(displayed(), 3);
        f.chart->removeMarkerVisual(1, 1);
        QCOMPARE(displayed(), 2);
    }

    void selection()
    {
        MarkerScene f;
        f.add(1, 1, 2.0);
        f.add(2, 1, 2.0);
        QVERIFY(!f.chart->selectMarker(1, 9));
        QVERIFY(f.chart->selectMarker(1, 1));
        QVERIFY(f.chart->selectMarker(1, 1)); // silent
        f.chart->setCurvePen(1, QPen(QColor(0, 100, 0)));
        QCOMPARE(f.tracer(1, 1)->brush().color(), QColor(0, 100, 0).lighter(130));
        QVERIFY(f.chart->selectMarker(2, 1));
        QCOMPARE(f.tracer(1, 1)->brush().style(), Qt::NoBrush);
        QCOMPARE(f.chart->getMarker(1, 1)->getLabel()->color(), QColor(0, 100, 0));
        f.chart->setCurveVisible(1, false);
        QVERIFY(!f.chart->selectMarker(1, 1)); // of a hidden trace
        int trace = 0;
        int number = 0;
        QVERIFY(f.chart->getSelectedMarker(trace, number));
        QCOMPARE(trace, 2);
        f.chart->clearMarkerSelection();
        f.chart->clearMarkerSelection();
        QVERIFY(!f.chart->getSelectedMarker(trace, number));
        QCOMPARE(f.told(), "selected 1 1|selected 2 1|cleared"_s);
        // Whoever replots may select another one meanwhile.
        f.chart->selectMarker(2, 1);
        (void)f.told();
        f.chart->setQueuedReplotHandler([&f] {
            f.chart->setQueuedReplotHandler({});
            f.chart->selectMarker(2, 1);
        });
        f.chart->clearMarkerSelection();
        QCOMPARE(f.told(), "selected 2 1"_s);
        f.chart->setCurveVisible(1, true);
        f.chart->setQueuedReplotHandler([&f] {
            f.chart->setQueuedReplotHandler({});
            f.chart->removeMarkerVisual(1, 1);
        });
        QVERIFY(f.chart->selectMarker(1, 1)); // which is gone before it is told
        QCOMPARE(f.told(), "cleared"_s);
    }

    /// Numbers of traces have no bound, those of markers have: such a one is shown and selected, but
    /// another marker is never taken for it.
    void traceBeyondTheIds()
    {
        MarkerScene f;
        constexpr int beyond = 42949673; // its marker 1 has number 5
        QVERIFY(f.chart->addCurve(beyond, QPen()));
        f.set(beyond, f.second);
        f.chart->setCurveVisible(2, false);
        QVERIFY(f.add(beyond, 1, 5.0));
        QCOMPARE(f.chart->getMarker(beyond, 1)->getId(), 5);
        QVERIFY(f.chart->selectMarker(beyond, 1));
        QCOMPARE(f.tracer(beyond, 1)->brush().style(), Qt::SolidPattern);
        f.chart->clearMarkerSelection();
        f.chart->setOnlyHandleActiveTrace(false);
        f.press(f.pixelOf(beyond, 1));
        f.move(f.pixel(f.second, 7));
        f.release(f.pixel(f.second, 7));
        QCOMPARE(f.told(), "selected %1 1|cleared|request %1 1|start %1 1"_s.arg(beyond));
        QCOMPARE(f.positionOf(beyond, 1), f.point(f.second, 5));
        QVERIFY(!f.chart->isDraggingMarker());
    }

    void removalAndClearing()
    {
        MarkerScene f;
        const int items = f.plot->itemCount();
        for (int number = 1; number <= 3; ++number)
            f.add(1, number, number);
        f.add(2, 1, 1.0);
        f.chart->selectMarker(1, 2);
        QVERIFY(!f.chart->removeMarkerVisual(1, 7));
        QVERIFY(f.chart->removeMarkerVisual(1, 2));
        QCOMPARE(f.plot->itemCount(), items + 6);
        f.chart->selectMarker(2, 1);
        f.chart->removeCurve(2);
        QCOMPARE(f.plot->itemCount(), items + 4);
        f.chart->selectMarker(1, 1);
        f.chart->clearAllMarkers(); // without a word
        QCOMPARE(f.plot->itemCount(), items);
        QVERIFY(!f.chart->hasVisibleMarkers());
        QCOMPARE(f.told(), "selected 1 2|cleared|selected 2 1|cleared|selected 1 1"_s);
    }
};

QTEST_MAIN(tst_SmithChartMarkers)
#include "tst_smithchartmarkers.moc"
