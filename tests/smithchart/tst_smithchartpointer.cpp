// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Drags, presses, keys and double clicks on a chart. Hosts that take things away meanwhile are
// played by the fuzz target of the chart and by the test of teardowns.
#include "markerscene.h"

#include <limits>

using namespace VnaTest;

class tst_SmithChartPointer : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void dragWithTheMouse()
    {
        MarkerScene f;
        f.add(1, 1, 5.0);
        connect(f.chart.get(), &SmithChartPlot::markerPositionChanged, f.chart.get(),
                &SmithChartPlot::setMarkerIndex);
        f.press(f.pixelOf(1, 1) - QPoint(0, 8));
        QVERIFY(f.chart->isDraggingMarker());
        f.move(f.pixel(f.first, 7));
        QCOMPARE(f.positionOf(1, 1), f.point(f.first, 7));
        const QPoint off = f.dataPixel(0.9, 0.05); // far off the trace: the nearest point counts
        f.move(off);
        f.release(off);
        QVERIFY(!f.chart->isDraggingMarker());
        f.move(f.pixel(f.first, 3));
        QCOMPARE(f.told(), "request 1 1|start 1 1|move 1 1 7|move 1 1 0|finish 1 1 0"_s);
    }

    void dragByTheHostsOwnInput()
    {
        MarkerScene f;
        f.add(1, 1, 5.0);
        QVERIFY(!f.chart->beginMarkerDragAt({5, 5}));
        f.chart->updateMarkerDragAt({5, 5}); // no drag: nothing
        QVERIFY(f.chart->beginMarkerDragAt(f.pixelOf(1, 1)));
        f.chart->updateMarkerDragAt(f.pixel(f.first, 2));
        f.chart->endMarkerDragAt({});
        // The host did not move it, so it finishes where it was.
        QCOMPARE(f.told(), "request 1 1|start 1 1|move 1 1 2|finish 1 1 5"_s);
        // By its number; one that is not there is not asked for, either.
        QVERIFY(!f.chart->beginMarkerDrag(1, 2) && !f.chart->beginMarkerDrag(0, 1));
        QVERIFY(f.chart->beginMarkerDrag(1, 1));
        f.chart->endMarkerDragAt({});
        QCOMPARE(f.told(), "request 1 1|start 1 1|finish 1 1 5"_s);
    }

    void dragsOfOtherTracesAreConfined()
    {
        MarkerScene f;
        f.add(2, 1, 5.0);
        const auto drag = [&f] {
            f.press(f.pixelOf(2, 1));
            f.move(f.pixel(f.second, 7));
            f.release(f.pixel(f.second, 7));
            return f.told();
        };
        QCOMPARE(drag(), "request 2 1|start 2 1"_s);
        QVERIFY(!f.chart->isDraggingMarker());
        f.chart->setOnlyHandleActiveTrace(false);
        QCOMPARE(drag(), "request 2 1|start 2 1|move 2 1 7|finish 2 1 5"_s);
    }

    /// Where a trace crosses itself, a drag stays on its branch if the host wants that.
    void dragStaysOnItsBranch()
    {
        const MarkerScene f;
        // A bow: through the middle twice, at points 100 and 300.
        Line bow;
        for (int i = 0; i <= 400; ++i) {
            bow.real.append(0.8 * std::cos(i * M_PI / 200.0));
            bow.imag.append(0.8 * std::sin(i * M_PI / 100.0));
        }
        f.set(1, bow);
        f.add(1, 1, 90.0);
        int index = 90;
        connect(f.chart.get(), &SmithChartPlot::markerPositionChanged, f.chart.get(),
                [&](int trace, int marker, double at) {
                    f.chart->setMarkerIndex(trace, marker, at);
                    index = qRound(at);
                });
        const auto drag = [&](const QVector<int> &along) {
            f.chart->setMarkerIndex(1, 1, 90.0);
            QVERIFY(f.chart->beginMarkerDragAt(f.pixel(bow, 90)));
            for (const int i : along)
                f.chart->updateMarkerDragAt(f.pixel(bow, i));
        };
        const auto isNear = [&index](int wanted) {
            return QTest::qVerify(std::abs(index - wanted) < 16, "index near",
                                  qPrintable(QString::number(index)), __FILE__, __LINE__);
        };
        // Along the other branch from the crossing on: it would jump there.
        const auto items = f.plot->itemCount();
        const QVector<int> way{95, 100, 300, 296, 292};
        drag(way);
        QVERIFY(isNear(292));
        f.chart->endMarkerDragAt({});
        QCOMPARE(f.plot->itemCount(), items);

        for (const double bad : {-1.0, double(qQNaN()), double(qInf())})
            QVERIFY(!f.chart->setMarkerDragJumpPx(bad));
        QVERIFY(f.chart->setMarkerDragJumpPx(60.0));
        drag(way);
        QVERIFY(isNear(100));
        // Apart from the pointer, a line leads to it, which goes with the drag.
        const auto line = [&f]() -> const QCPItemLine * {
            for (int i = 0; i < f.plot->itemCount(); ++i) {
                if (const auto *found = qobject_cast<QCPItemLine *>(f.plot->item(i)))
                    return found;
            }
            return nullptr;
        };
        QVERIFY(line() && line()->visible());
        QCOMPARE(line()->end->coords(), QPointF(f.pixel(bow, 292)));
        f.chart->endMarkerDragAt({});
        QVERIFY(!line()->visible());

        // Farther than the host's distance, it jumps.
        drag({95, 100, 300, 240});
        QVERIFY(isNear(240));
        f.chart->updateMarkerDragAt(f.pixel(bow, 240) + QPoint(30, 30));
        QVERIFY(line()->visible());
        f.chart->removeMarkerVisual(1, 1);
        QVERIFY(!line()->visible());
    }

    void whatAPressCatches()
    {
        MarkerScene f;
        f.add(1, 1, 5.0);
        f.add(1, 2, 5.0); // the same place: the earlier wins
        auto *const box = new QCPItemRect(f.plot.get()); // an item of the host over all
        box->setBrush(Qt::white);
        box->topLeft->setCoords(-2.0, 2.0);
        box->bottomRight->setCoords(2.0, -2.0);
        box->setLayer("markers"_s);
        const auto tap = [&f](const QPoint &pos, Qt::MouseButton button = Qt::LeftButton) {
            mouseClick(f.plot.get(), pos, button);
            return f.told();
        };
        const QPoint apex = f.pixelOf(1, 1);
        QVERIFY(tap(apex + QPoint(0, 4)).startsWith("request 1 1|start 1 1"_s));
        QCOMPARE(tap(apex, Qt::RightButton), QString());
        QCOMPARE(tap(apex + QPoint(0, 30)), QString());
        f.chart->setMarkerVisible(1, 1, false);
        f.chart->setMarkerVisible(1, 2, false);
        QCOMPARE(tap(apex), QString());
        f.chart->setMarkerVisible(1, 1, true);
        f.chart->setCurveVisible(1, false);
        QCOMPARE(tap(apex), QString());
        f.add(2, 0, 5.0); // number 0 is none
        QCOMPARE(tap(f.pixelOf(2, 0)), QString());

        // As far as the tolerance, and no farther.
        f.chart->setCurveVisible(1, true);
        const QPoint below = apex + QPoint(0, 5);
        const double distance = f.tracer(1, 1)->selectTest(below, false);
        QVERIFY(distance > 3.0);
        for (const double bad : {-4.0, double(qQNaN()), std::nextafter(distance, 0.0)}) {
            f.chart->setMarkerHitTolerancePx(bad);
            QVERIFY(!f.chart->beginMarkerDragAt(below));
        }
        f.chart->setMarkerHitTolerancePx(distance);
        QVERIFY(f.chart->beginMarkerDragAt(below));
        f.chart->setMarkerHitTolerancePx(1e300);
        QCOMPARE(f.plot->selectionTolerance(), std::numeric_limits<int>::max());
    }

    void deleteKey()
    {
        MarkerScene f;
        f.add(1, 7, 5.0);
        for (const char *told : {"", "delete 1 7|delete 1 7"}) {
            for (const Qt::Key key : {Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_A})
                sendKey(f.plot.get(), key);
            QCOMPARE(f.told(), QLatin1String(told));
            f.chart->selectMarker(1, 7);
            (void)f.told();
        }
        QVERIFY(f.chart->getMarker(1, 7));
    }

    void doubleClicks()
    {
        const MarkerScene f;
        SmithChartPlot *const chart = f.chart.get();
        QStringList log;
        note(log, "active", chart, &SmithChartPlot::activeTraceDoubleClicked);
        note(log, "any", chart, &SmithChartPlot::pointDoubleClicked);
        const auto doubleClick = [&](const QPoint &pos) {
            log.clear();
            const bool taken = chart->handleDoubleClick(pos, Qt::ShiftModifier);
            return taken == log.isEmpty() ? "taken: %1"_s.arg(taken) : log.join(QLatin1Char('|'));
        };
        const auto outward = [](int distance) { // point 5 lies at 45 degrees
            return (QPointF(M_SQRT1_2, -M_SQRT1_2) * distance).toPoint();
        };
        const QPoint onFirst = f.pixel(f.first, 5);
        const QPoint onSecond = f.pixel(f.second, 5);
        const QString active = "active 1 1.005e+09"_s;
        QVERIFY2(doubleClick(onFirst + outward(14)).startsWith(active),
                 qPrintable(log.join("|"_s)));
        QCOMPARE(doubleClick(onFirst + outward(17)), QString());
        QCOMPARE(doubleClick(onSecond), QString());
        chart->clearActiveTrace();
        QCOMPARE(doubleClick(onFirst), QString());

        chart->setOnlyHandleActiveTrace(false);
        QVERIFY(doubleClick(onSecond).startsWith("any 2 5"_s));
        chart->setActiveTrace(1);
        QVERIFY(doubleClick(onSecond).startsWith("any 2 5"_s)); // not near the active one
        QVERIFY(doubleClick(onFirst).startsWith("any 1 5"_s));
        chart->setCurveVisible(2, false);
        QCOMPARE(doubleClick(onSecond), QString());

        // Of two traces that are one on the other, the first; of a hidden one nothing.
        chart->setCurveVisible(2, true);
        f.set(2, f.first);
        chart->clearActiveTrace();
        QVERIFY(doubleClick(onFirst).startsWith("any 1 5"_s));
        chart->setActiveTrace(1);
        chart->setCurveVisible(1, false);
        QVERIFY(doubleClick(onFirst).startsWith("any 2 5"_s));
    }

    /// What a host draws itself is no trace of the chart, wherever it lies.
    void theHostsOwnPlottablesAreNoTraces()
    {
        const MarkerScene f;
        SmithChartPlot *const chart = f.chart.get();
        chart->setOnlyHandleActiveTrace(false);
        const auto add = [&f](QCPAxis *x, QCPAxis *y, const QString &layer) {
            auto *const curve = new QCPCurve(x, y);
            curve->setData({-0.1, 0.1}, {-0.1, 0.1});
            curve->setLayer(f.plot->layer(layer));
        };
        add(f.plot->xAxis, f.plot->yAxis, "tracers"_s);
        add(f.plot->xAxis2, f.plot->yAxis, "tracers"_s);
        add(f.plot->xAxis, f.plot->yAxis2, "tracers"_s);
        add(f.plot->xAxis, f.plot->yAxis, QString());
        f.plot->addGraph()->setData(QVector<double>{-0.1, 0.1}, QVector<double>{-0.1, 0.1});
        QVERIFY(!chart->handleDoubleClick(f.dataPixel(-0.1, -0.1), Qt::NoModifier));
        QVERIFY(chart->handleDoubleClick(f.pixel(f.second, 3), Qt::NoModifier));
        // Nor are keys of other widgets the chart's.
        QVERIFY(f.add(1, 1, 5.0) && chart->selectMarker(1, 1));
        QWidget other;
        other.installEventFilter(chart);
        QSignalSpy deletes(chart, &SmithChartPlot::markerDeleteRequested);
        QTest::keyClick(&other, Qt::Key_Delete);
        QVERIFY(deletes.isEmpty());
        QTest::keyClick(f.plot.get(), Qt::Key_Delete);
        QCOMPARE(deletes.size(), 1);
    }

    /// A marker that cannot reach the pointer along its trace goes to the nearest point.
    void dragOfAMarkerWithoutAPlace()
    {
        using Change = std::function<void(MarkerScene &)>;
        const Change changes[] = {
            [](MarkerScene &f) { f.add(1, 2, -1.0); }, // never placed
            [](MarkerScene &f) { // on a point that is gone
                f.add(1, 2, 10.0);
                for (QVector<double> *values : {&f.first.stimulus, &f.first.real, &f.first.imag})
                    values->resize(8);
                f.set(1, f.first);
            },
            [](MarkerScene &f) { // on a gap
                f.add(1, 2, 3.0);
                f.first.real[3] = qQNaN();
                f.set(1, f.first);
            },
        };
        for (const Change &change : changes) {
            MarkerScene f;
            change(f);
            QVERIFY(f.chart->setMarkerDragJumpPx(10.0) && f.chart->beginMarkerDrag(1, 2));
            (void)f.told();
            f.chart->updateMarkerDragAt(f.pixel(f.first, 6));
            QCOMPARE(f.told(), "move 1 2 6"_s);
            // Of a hidden trace no marker moves, and no point is near.
            f.chart->setCurveVisible(1, false);
            f.chart->updateMarkerDragAt(f.pixel(f.first, 5));
            QCOMPARE(f.told(), QString());
            int index = -1;
            double distance = -1.0;
            QVERIFY(!f.chart->nearestPoint(1, f.pixel(f.first, 5), index, distance));
            f.chart->setCurveVisible(1, true);
            // Without its triangle it moves, but no line leads to it.
            f.plot->removeItem(f.tracer(1, 2));
            const int items = f.plot->itemCount();
            f.chart->updateMarkerDragAt(f.pixel(f.first, 4) + QPoint(20, 20));
            QVERIFY(f.told().startsWith("move 1 2 "_s));
            QCOMPARE(f.plot->itemCount(), items);
            // In a plot too small to show anything it stays.
            f.plot->resize(20, 20);
            f.plot->replot();
            f.chart->updateMarkerDragAt({5, 5});
            QCOMPARE(f.told(), QString());
            f.chart.reset(); // and the resize is answered no more
            QCoreApplication::processEvents();
        }
    }

    void hidingThePlotEndsTheDragOnce()
    {
        MarkerScene f;
        f.add(1, 1, 5.0);
        f.press(f.pixelOf(1, 1));
        f.plot->hide();
        QVERIFY(!f.chart->isDraggingMarker());
        QVERIFY(f.told().endsWith("finish 1 1 5"_s));

        // Also from inside the end of a drag, and the next one ends as any other.
        connect(f.chart.get(), &SmithChartPlot::markerDragFinished, f.plot.get(), &QWidget::hide);
        for (int round = 0; round < 2; ++round) {
            f.plot->show();
            QVERIFY(f.chart->beginMarkerDragAt(f.pixelOf(1, 1)));
            f.chart->endMarkerDragAt({});
            QCOMPARE(f.told(), "request 1 1|start 1 1|finish 1 1 5"_s);
        }
    }
};

QTEST_MAIN(tst_SmithChartPointer)
#include "tst_smithchartpointer.moc"
