// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Markers and the pointer, with real events on a shown plot.
#include <smithchart/smithchartplot.h>

#include <vnatest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <memory>

using namespace VnaTest;

class tst_SmithChartMarkers : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        m_log.clear();
        m_plot = std::make_unique<QCustomPlot>();
        m_plot->axisRect()->setAutoMargins(QCP::msNone);
        m_plot->axisRect()->setMargins(QMargins(20, 20, 20, 20));
        m_plot->resize(640, 640);
        m_plot->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_plot.get()));
        m_chart = std::make_unique<SmithChartPlot>(m_plot.get(), SmithChart::Basic);
        // A quarter circle of 11 points and the same turned by half a turn.
        for (int i = 0; i <= 10; ++i) {
            const double angle = M_PI / 20.0 * i;
            m_real << 0.6 * std::cos(angle);
            m_imag << 0.6 * std::sin(angle);
            m_stimulus << 1e9 + i * 1e6;
            m_negReal << -m_real.last();
            m_negImag << -m_imag.last();
        }
        m_chart->addCurve(1, QPen(Qt::red));
        m_chart->addCurve(2, QPen(Qt::blue));
        m_chart->setCurveData(1, m_stimulus, m_real, m_imag);
        m_chart->setCurveData(2, m_stimulus, m_negReal, m_negImag);
        m_chart->setActiveTrace(1);
        QCoreApplication::processEvents();

        using Chart = SmithChartPlot;
        note(m_log, "request", m_chart.get(), &Chart::markerSelectionRequested);
        note(m_log, "start", m_chart.get(), &Chart::markerDragStarted);
        note(m_log, "move", m_chart.get(), &Chart::markerPositionChanged);
        note(m_log, "finish", m_chart.get(), &Chart::markerDragFinished);
        note(m_log, "selected", m_chart.get(), &Chart::markerSelected);
        note(m_log, "cleared", m_chart.get(), &Chart::markerSelectionCleared);
        note(m_log, "delete", m_chart.get(), &Chart::markerDeleteRequested);
    }

    void cleanup()
    {
        m_chart.reset();
        m_plot.reset();
        for (QVector<double> *values : {&m_real, &m_imag, &m_negReal, &m_negImag, &m_stimulus})
            values->clear();
        TestCase::cleanup();
    }

    void ids()
    {
        QCOMPARE(SmithChartPlot::makeMarkerId(3, 7), 307);
        int trace = 0;
        int local = 0;
        SmithChartPlot::parseMarkerId(307, trace, local);
        QCOMPARE(qMakePair(trace, local), qMakePair(3, 7));
        SmithChartPlot::parseMarkerId(-1, trace, local);
        QCOMPARE(qMakePair(trace, local), qMakePair(0, -1));

        // Trace ids are the host's choice; a marker whose id does not fit can still be used.
        const int huge = std::numeric_limits<int>::max();
        QVERIFY(m_chart->addCurve(huge, QPen()));
        m_chart->setCurveData(huge, {}, {0.0}, {0.0});
        QVERIFY(m_chart->addMarkerVisual(huge, 99, 0.0, Plot::PointingDown));
        m_chart->beginMarkerDragAt(dataPixel(0.0, 0.0).toPoint());
        QVERIFY(m_chart->selectMarker(huge, 99));
        QVERIFY(m_chart->removeMarkerVisual(huge, 99));
    }

    /// Number 100 of trace 1 would read back as number 0 of trace 2.
    void numberThatIsAnotherTraces()
    {
        for (const int number : {100, 250, -1, std::numeric_limits<int>::max()})
            QVERIFY(!m_chart->addMarkerVisual(1, number, 5.0, Plot::PointingDown));
        QVERIFY(m_chart->addMarkerVisual(1, 99, 5.0, Plot::PointingDown));
        QVERIFY(m_chart->addMarkerVisual(1, 0, 5.0, Plot::PointingDown));
    }

    /// Where a trace crosses itself, a drag stays on its branch if the host wants that.
    void dragStaysOnItsBranch()
    {
        // A bow: through the middle twice, at points 100 and 300.
        QVector<double> real;
        QVector<double> imag;
        for (int i = 0; i <= 400; ++i) {
            const double t = i * 2.0 * 3.141592653589793 / 400.0;
            real.append(0.8 * std::cos(t));
            imag.append(0.8 * std::sin(2.0 * t));
        }
        m_chart->setCurveData(1, {}, real, imag);
        m_chart->addMarkerVisual(1, 1, 90.0, Plot::PointingDown);
        int index = 90;
        connect(m_chart.get(), &SmithChartPlot::markerPositionChanged, m_chart.get(),
                [&](int trace, int marker, double at) {
                    m_chart->setMarkerIndex(trace, marker, at);
                    index = qRound(at);
                });
        const auto pixelAt = [&](int i) { return dataPixel(real.at(i), imag.at(i)).toPoint(); };
        const auto items = m_plot->itemCount();
        for (const double bad : {-1.0, double(qQNaN()), double(qInf())})
            QVERIFY(!m_chart->setMarkerDragJumpPx(bad));
        QCOMPARE(m_chart->markerDragJumpPx(), 0.0);

        // Along the other branch from the crossing on: it would jump there.
        const auto drag = [&](const QVector<int> &along) {
            m_chart->setMarkerIndex(1, 1, 90.0);
            QVERIFY(m_chart->beginMarkerDragAt(pixelAt(90)));
            for (const int i : along)
                m_chart->updateMarkerDragAt(pixelAt(i));
        };
        const QVector<int> way{95, 100, 300, 296, 292};
        drag(way);
        QVERIFY2(index > 280, qPrintable(QString::number(index)));
        m_chart->endMarkerDragAt(pixelAt(292));
        QCOMPARE(m_plot->itemCount(), items);

        QVERIFY(m_chart->setMarkerDragJumpPx(60.0));
        drag(way);
        QVERIFY2(index > 85 && index < 115, qPrintable(QString::number(index)));
        // Apart from the pointer, a line leads to it, which goes with the drag.
        const auto line = [this]() -> QCPItemLine * {
            for (int i = 0; i < m_plot->itemCount(); ++i) {
                if (auto *found = qobject_cast<QCPItemLine *>(m_plot->item(i)))
                    return found;
            }
            return nullptr;
        };
        QVERIFY(line() && line()->visible());
        QCOMPARE(line()->end->coords(), QPointF(pixelAt(292)));
        m_chart->endMarkerDragAt(pixelAt(292));
        QVERIFY(!line()->visible());

        // Farther than the host's distance, it jumps.
        drag({95, 100, 300, 240});
        QVERIFY2(std::abs(index - 240) < 3, qPrintable(QString::number(index)));
        m_chart->updateMarkerDragAt(pixelAt(240) + QPoint(30, 30));
        QVERIFY(line()->visible());
        m_chart->removeMarkerVisual(1, 1);
        QVERIFY(!line()->visible());
    }

    void catchesAMarkerUnderAnItemOfTheHost()
    {
        m_chart->addMarkerVisual(1, 1, 5.0, Plot::PointingDown);
        auto *const box = new QCPItemRect(m_plot.get());
        box->setBrush(Qt::white);
        box->topLeft->setCoords(-2.0, 2.0);
        box->bottomRight->setCoords(2.0, -2.0);
        box->setLayer("markers"_s);
        const QPoint apex = pointPixel(5).toPoint();
        QVERIFY(m_chart->beginMarkerDragAt(apex + QPoint(0, -3)));
        m_chart->endMarkerDragAt(apex);
        QVERIFY(!m_chart->beginMarkerDragAt(apex + QPoint(0, 60)));

        // As far as the tolerance, and no farther.
        const QPoint below = apex + QPoint(0, 5);
        const double distance = m_chart->getMarker(1, 1)->getTracer()->selectTest(below, false);
        QVERIFY(distance > 3.0);
        m_chart->setMarkerHitTolerancePx(std::nextafter(distance, 0.0));
        QVERIFY(!m_chart->beginMarkerDragAt(below));
        m_chart->setMarkerHitTolerancePx(distance);
        QVERIFY(m_chart->beginMarkerDragAt(below));
        m_chart->endMarkerDragAt(below);
    }

    void tellsTheLogWhatNewDataCosts()
    {
        static QStringList s_lines;
        s_lines.clear();
        QLoggingCategory::setFilterRules("vna.smith.render.performance.debug=true"_s);
        const auto before = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext &, const QString &text) { s_lines << text; });
        m_chart->setCurveData(2, {}, {0.1, 0.2, 0.3}, {0.1, 0.2, 0.3});
        m_chart->setCurveData(2, {}, {0.1}, {0.1}); // too soon for another line
        qInstallMessageHandler(before);
        QLoggingCategory::setFilterRules(QString());
        QCOMPARE(s_lines.size(), 1);
        const QRegularExpression line("^trace 2: 3 points, 3 displayed, setCurveData .* ms, "
                                      "decimation .* ms$"_s);
        QVERIFY2(line.match(s_lines.first()).hasMatch(), qPrintable(s_lines.first()));
    }

    void creation()
    {
        QVERIFY(!m_chart->addMarkerVisual(9, 1, 0.0, Plot::PointingDown));
        QVERIFY(m_chart->addMarkerVisual(1, 1, 2.5, Plot::PointingDown));
        Plot::Marker *const marker = m_chart->getMarker(1, 1);
        QVERIFY(!m_chart->addMarkerVisual(1, 1, 5.0, Plot::PointingUp));
        QCOMPARE(std::as_const(*m_chart).getMarker(1, 1), marker);
        const QPointF at = marker->getTracer()->position->coords();
        QCOMPARE(at.x(), m_real[2] + (m_real[3] - m_real[2]) * 0.5);
        QCOMPARE(at.y(), m_imag[2] + (m_imag[3] - m_imag[2]) * 0.5);
        QCOMPARE(marker->getId(), 101);
        QCOMPARE(marker->getLabel()->text(), "1"_s);
        QCOMPARE(marker->getTracer()->pen().color(), QColor(Qt::red));
        QCOMPARE(marker->getTracer()->pen().widthF(), 1.5);
        QVERIFY(m_chart->setMarkerLabelText(1, 1, "R"_s));
        QCOMPARE(marker->getLabel()->text(), "R"_s);

        // Outside the data: kept hidden until it is placed and shown.
        QVERIFY(m_chart->addMarkerVisual(1, 2, 11.0, Plot::PointingUp));
        QVERIFY(!m_chart->getMarker(1, 2)->isVisible());
        QVERIFY(!m_chart->getMarker(1, 2)->getTracer()->selectable());
        QVERIFY(m_chart->addMarkerVisual(1, 3, qQNaN(), Plot::PointingUp));
        QVERIFY(m_chart->setMarkerIndex(1, 2, 10.0));
        QVERIFY(m_chart->setMarkerVisible(1, 2, true));
        QVERIFY(m_chart->getMarker(1, 2)->getLabel()->selectable());
        QCOMPARE(m_chart->markers(1).size(), 3);
        QVERIFY(m_chart->markers(2).isEmpty());

        // Between the last point and the end there is nothing to stand on.
        const int items = m_plot->itemCount();
        QVERIFY(!m_chart->addMarkerVisual(1, 4, 10.5, Plot::PointingUp));
        QCOMPARE(m_plot->itemCount(), items);
    }

    void movingAndNewData()
    {
        m_chart->addMarkerVisual(1, 1, 0.0, Plot::PointingDown);
        QVERIFY(!m_chart->setMarkerIndex(1, 9, 0.0) && !m_chart->setMarkerVisible(1, 9, true));
        for (const double outside : {11.0, -0.1, qQNaN()})
            QVERIFY(!m_chart->setMarkerIndex(1, 1, outside));
        QVERIFY(m_chart->setMarkerIndex(1, 1, 10.0));
        m_imag[4] = qQNaN();
        m_chart->setCurveData(1, m_stimulus, m_real, m_imag);
        const QPointF before = positionOf(1, 1);
        QVERIFY(!m_chart->setMarkerIndex(1, 1, 3.5)); // into a gap
        QCOMPARE(positionOf(1, 1), before);

        QVERIFY(m_chart->setMarkerIndex(1, 1, 2.0));
        m_chart->addMarkerVisual(1, 2, 9.0, Plot::PointingDown);
        const QPointF far = positionOf(1, 2);
        m_chart->setCurveData(1, {}, {0.0, 0.1, 0.2}, {0.0, 0.0, 0.3});
        QCOMPARE(positionOf(1, 1), QPointF(0.2, 0.3));
        QCOMPARE(positionOf(1, 2),
                 far); // beyond the new end: stays where it was, and keeps its index
        m_chart->setCurveData(1, m_stimulus, m_negReal, m_negImag);
        QCOMPARE(positionOf(1, 2), QPointF(m_negReal[9], m_negImag[9]));
    }

    void markersKeepTheirPointsDisplayed()
    {
        QVector<double> x;
        QVector<double> y;
        for (int i = 0; i < 5000; ++i) {
            x << -0.9 + 1.8 * i / 4999.0;
            y << 0.1;
        }
        m_chart->setCurveData(1, {}, x, y);
        const auto displayed = [this] { return m_chart->getCurve(1)->data()->size(); };
        QCOMPARE(displayed(), 2); // a straight line
        m_chart->addMarkerVisual(2, 1, 7.0, Plot::PointingDown); // of no concern to this trace
        m_chart->addMarkerVisual(1, 1, 1000.4, Plot::PointingDown);
        QCOMPARE(displayed(), 4);
        QCOMPARE(m_chart->getCurve(1)->data()->at(1)->key, x[1000]);
        m_chart->setMarkerIndex(1, 1, 12.0);
        QCOMPARE(displayed(), 3);
        m_chart->removeMarkerVisual(1, 1);
        QCOMPARE(displayed(), 2);
    }

    void selection()
    {
        m_chart->addMarkerVisual(1, 1, 2.0, Plot::PointingDown);
        m_chart->addMarkerVisual(2, 1, 2.0, Plot::PointingDown);
        QVERIFY(!m_chart->selectMarker(1, 9));
        QVERIFY(m_chart->selectMarker(1, 1));
        QVERIFY(m_chart->selectMarker(1, 1)); // silent
        const QCPItemTracer *const tracer = m_chart->getMarker(1, 1)->getTracer();
        QCOMPARE(tracer->pen().widthF(), 2.5);
        QCOMPARE(tracer->brush().color(), QColor(Qt::red).lighter(130));
        QVERIFY(m_chart->selectMarker(2, 1));
        QCOMPARE(tracer->pen().widthF(), 1.5);
        QCOMPARE(tracer->brush().style(), Qt::NoBrush);
        m_chart->setCurveVisible(1, false);
        QVERIFY(!m_chart->selectMarker(1, 1)); // of a hidden trace
        int trace = 0;
        int local = 0;
        QVERIFY(m_chart->getSelectedMarker(trace, local));
        QCOMPARE(trace, 2);
        m_chart->clearMarkerSelection();
        m_chart->clearMarkerSelection();
        QVERIFY(!m_chart->getSelectedMarker(trace, local));
        QCOMPARE(m_log, lines("selected 1 1|selected 2 1|cleared"));
        // Whoever replots may select another one meanwhile.
        m_chart->selectMarker(2, 1);
        m_log.clear();
        m_chart->setQueuedReplotHandler([this] {
            m_chart->setQueuedReplotHandler({});
            m_chart->selectMarker(2, 1);
        });
        m_chart->clearMarkerSelection();
        QCOMPARE(m_log, lines("selected 2 1"));

        // A new pen recolours the markers.
        m_chart->setCurveVisible(1, true);
        m_chart->addMarkerVisual(1, 2, 4.0, Plot::PointingDown);
        m_chart->selectMarker(1, 2);
        m_chart->setCurvePen(1, QPen(QColor(0, 100, 0)));
        QCOMPARE(m_chart->getMarker(1, 1)->getLabel()->color(), QColor(0, 100, 0));
        QCOMPARE(m_chart->getMarker(1, 2)->getTracer()->brush().color(),
                 QColor(0, 100, 0).lighter(130));
    }

    void removalAndClearing()
    {
        const int items = m_plot->itemCount();
        for (int local = 1; local <= 3; ++local)
            m_chart->addMarkerVisual(1, local, local, Plot::PointingDown);
        m_chart->addMarkerVisual(2, 1, 1.0, Plot::PointingDown);
        m_chart->selectMarker(1, 2);
        QVERIFY(!m_chart->removeMarkerVisual(1, 7));
        QVERIFY(m_chart->removeMarkerVisual(1, 2));
        QCOMPARE(m_plot->itemCount(), items + 6);
        m_chart->selectMarker(2, 1);
        m_chart->removeCurve(2);
        QCOMPARE(m_plot->itemCount(), items + 4);
        m_chart->selectMarker(1, 1);
        m_chart->clearAllMarkers(); // without a word
        QCOMPARE(m_plot->itemCount(), items);
        QVERIFY(!m_chart->hasVisibleMarkers());
        QCOMPARE(m_log, lines("selected 1 2|cleared|selected 2 1|cleared|selected 1 1"));
    }

    void dragWithTheMouse()
    {
        m_chart->addMarkerVisual(1, 1, 5.0, Plot::PointingDown);
        connect(m_chart.get(), &SmithChartPlot::markerPositionChanged, m_chart.get(),
                &SmithChartPlot::setMarkerIndex);
        press(pixelOf(1, 1) - QPointF(0, 8));
        QVERIFY(m_chart->isDraggingMarker());
        move(pointPixel(7));
        QCOMPARE(positionOf(1, 1), QPointF(m_real[7], m_imag[7]));
        move(dataPixel(0.9, 0.05)); // far off the trace: the nearest point counts
        release(dataPixel(0.9, 0.05));
        QVERIFY(!m_chart->isDraggingMarker());
        move(pointPixel(3));
        QCOMPARE(m_log, lines("request 1 1|start 1 1|move 1 1 7|move 1 1 0|finish 1 1 0"));
    }

    void dragByTheHostsOwnInput()
    {
        m_chart->addMarkerVisual(1, 1, 5.0, Plot::PointingDown);
        QVERIFY(!m_chart->beginMarkerDragAt(QPoint(5, 5)));
        m_chart->updateMarkerDragAt(QPoint(5, 5)); // no drag: nothing
        QVERIFY(m_chart->beginMarkerDragAt(pixelOf(1, 1).toPoint()));
        m_chart->updateMarkerDragAt(pointPixel(2).toPoint());
        m_chart->endMarkerDragAt(QPoint());
        // The host did not move it, so it finishes where it was.
        QCOMPARE(m_log, lines("request 1 1|start 1 1|move 1 1 2|finish 1 1 5"));
    }

    void dragsOfOtherTracesAreConfined()
    {
        m_chart->addMarkerVisual(2, 1, 5.0, Plot::PointingDown);
        const auto drag = [this] {
            m_log.clear();
            press(pixelOf(2, 1));
            move(dataPixel(m_negReal[7], m_negImag[7]));
            release(dataPixel(m_negReal[7], m_negImag[7]));
            return m_log;
        };
        QCOMPARE(drag(), lines("request 2 1|start 2 1"));
        QVERIFY(!m_chart->isDraggingMarker());
        m_chart->setOnlyHandleActiveTrace(false);
        QCOMPARE(drag(), lines("request 2 1|start 2 1|move 2 1 7|finish 2 1 5"));
    }

    void whatAPressCatches()
    {
        m_chart->addMarkerVisual(1, 1, 5.0, Plot::PointingDown);
        m_chart->addMarkerVisual(1, 2, 5.0, Plot::PointingDown); // the same place: the earlier wins
        const auto tap = [this](QPointF pos, Qt::MouseButton button = Qt::LeftButton) {
            press(pos, button);
            release({}, button);
        };
        tap(pixelOf(1, 1) + QPointF(0, 4));
        QCOMPARE(m_log.value(0), "request 1 1"_s);
        m_log.clear();
        tap(pixelOf(1, 1), Qt::RightButton);
        tap(pixelOf(1, 1) + QPointF(0, 30));
        m_chart->setMarkerVisible(1, 1, false);
        m_chart->setMarkerVisible(1, 2, false);
        tap(pixelOf(1, 1));
        m_chart->setMarkerVisible(1, 1, true);
        m_chart->setCurveVisible(1, false);
        tap(pixelOf(1, 1));
        m_chart->addMarkerVisual(2, 0, 5.0, Plot::PointingDown); // number 0 is none
        tap(pixelOf(2, 0));
        QVERIFY2(m_log.isEmpty(), qPrintable(m_log.join(QLatin1Char('|'))));
    }

    void hitTolerance()
    {
        QCOMPARE(m_chart->markerHitTolerancePx(), 18.0);
        struct Tolerance {
            double set, kept;
            int plot;
        };
        for (const auto &[set, kept, plot] : {Tolerance{30.4, 30.4, 30},
                                              {-4.0, 0.0, 0},
                                              {qQNaN(), 0.0, 0},
                                              {1e300, 1e300, std::numeric_limits<int>::max()}}) {
            m_chart->setMarkerHitTolerancePx(set);
            QCOMPARE(m_chart->markerHitTolerancePx(), kept);
            QCOMPARE(m_plot->selectionTolerance(), plot);
        }
    }

    void deleteKey()
    {
        m_chart->addMarkerVisual(1, 7, 5.0, Plot::PointingDown);
        QKeyEvent before(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier);
        QVERIFY(!m_chart->eventFilter(m_plot.get(), &before));
        m_chart->selectMarker(1, 7);
        m_log.clear();
        for (const Qt::Key key : {Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_A}) {
            QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
            QCOMPARE(m_chart->eventFilter(m_plot.get(), &event), key != Qt::Key_A);
        }
        QCOMPARE(m_log, lines("delete 1 7|delete 1 7"));
        QVERIFY(m_chart->getMarker(1, 7));
    }

    void doubleClicks()
    {
        QSignalSpy active(m_chart.get(), &SmithChartPlot::activeTraceDoubleClicked);
        QSignalSpy any(m_chart.get(), &SmithChartPlot::pointDoubleClicked);
        const QPointF outward(M_SQRT1_2, -M_SQRT1_2); // point 5 lies at 45 degrees
        const QPoint on5 = pointPixel(5).toPoint();
        QVERIFY(m_chart->handleDoubleClick(on5 + (outward * 14).toPoint(), Qt::ShiftModifier));
        QCOMPARE(active.count(), 1);
        QCOMPARE(active.at(0).at(0).toInt(), 1);
        QCOMPARE(active.at(0).at(1).toDouble(), m_stimulus[5]);
        QVERIFY(!m_chart->handleDoubleClick(on5 + (outward * 17).toPoint(), Qt::NoModifier));
        const QPoint on2nd = dataPixel(m_negReal[5], m_negImag[5]).toPoint();
        QVERIFY(!m_chart->handleDoubleClick(on2nd, Qt::NoModifier));
        m_chart->clearActiveTrace();
        QVERIFY(!m_chart->handleDoubleClick(on5, Qt::NoModifier));

        m_chart->setOnlyHandleActiveTrace(false);
        QVERIFY(m_chart->handleDoubleClick(on2nd, Qt::ControlModifier));
        QCOMPARE(any.count(), 1);
        QCOMPARE(any.at(0).at(0).toInt(), 2);
        QCOMPARE(any.at(0).at(1).toInt(), 5);
        m_chart->setActiveTrace(1);
        QVERIFY(m_chart->handleDoubleClick(on2nd, Qt::NoModifier)); // not near the active one
        QVERIFY(m_chart->handleDoubleClick(on5, Qt::NoModifier));
        QCOMPARE(any.last().at(0).toInt(), 1);
        m_chart->setCurveVisible(2, false);
        QVERIFY(!m_chart->handleDoubleClick(on2nd, Qt::NoModifier));

        // Of two traces that are one on the other, the first; of a hidden one nothing.
        m_chart->setCurveVisible(2, true);
        m_chart->setCurveData(2, m_stimulus, m_real, m_imag);
        m_chart->clearActiveTrace();
        QVERIFY(m_chart->handleDoubleClick(on5, Qt::NoModifier));
        QCOMPARE(any.last().at(0).toInt(), 1);
        m_chart->setActiveTrace(1);
        m_chart->setCurveVisible(1, false);
        QVERIFY(m_chart->handleDoubleClick(on5, Qt::NoModifier));
        QCOMPARE(any.last().at(0).toInt(), 2);
        QCOMPARE(active.count(), 1);
    }

    // A host may answer any of the signals by taking away what the signal is about.
    void hostTakesThingsAwayInsideASignal()
    {
        const std::function<void()> takeAways[] = {
            [this] { m_chart->removeMarkerVisual(1, 1); },
            [this] { m_chart->removeCurve(1); },
            [this] { m_chart->clearAllCurves(); },
        };
        const auto drag = [this] {
            const QPointF start = pixelOf(1, 1);
            press(start);
            move(start + QPointF(20, 20));
            release(start);
            QVERIFY(!m_chart->isDraggingMarker());
        };
        const auto select = [this] { m_chart->selectMarker(1, 1); };
        for (const auto &takeAway : takeAways) {
            const auto meanwhile = [this, takeAway](auto signal, const auto &happen,
                                                    const std::function<void()> &before = {}) {
                m_chart = std::make_unique<SmithChartPlot>(m_plot.get(), SmithChart::Basic);
                m_chart->addCurve(1, QPen(Qt::red));
                m_chart->setCurveData(1, m_stimulus, m_real, m_imag);
                m_chart->setActiveTrace(1);
                m_chart->addMarkerVisual(1, 1, 5.0, Plot::PointingDown);
                if (before)
                    before();
                connect(m_chart.get(), signal, this, takeAway);
                happen();
            };
            using Chart = SmithChartPlot;
            meanwhile(&Chart::markerSelectionRequested, drag);
            meanwhile(&Chart::markerPositionChanged, drag);
            meanwhile(&Chart::markerDragFinished, drag);
            meanwhile(&Chart::markerSelected, select);
            meanwhile(
                &Chart::markerSelectionCleared, [this] { m_chart->removeCurve(1); }, select);
            meanwhile(
                &Chart::markerDeleteRequested,
                [this] {
                    QTest::sendKeyEvent(QTest::Click, m_plot.get(), Qt::Key_Delete, QString(),
                                        Qt::NoModifier);
                },
                select);
            meanwhile(&Chart::activeTraceDoubleClicked, [this] {
                QVERIFY(m_chart->handleDoubleClick(pixelOf(1, 1).toPoint(), Qt::NoModifier));
            });
        }
    }

    void plotOrCurveGoneDuringADrag()
    {
        m_chart->addMarkerVisual(1, 1, 5.0, Plot::PointingDown);
        const QPointF start = pixelOf(1, 1);
        press(start);
        m_plot->removePlottable(m_chart->getCurve(1));
        m_plot->removeLayer(m_plot->layer("tracers"_s));
        move(start + QPointF(10, 0));
        QCOMPARE(m_log, lines("request 1 1|start 1 1"));
        m_plot.reset();
        m_chart->updateMarkerDragAt(start.toPoint());
        m_chart->endMarkerDragAt(start.toPoint());
    }

    void hidingThePlotEndsTheDragOnce()
    {
        m_chart->addMarkerVisual(1, 1, 5.0, Plot::PointingDown);
        press(pixelOf(1, 1));
        m_plot->hide();
        QVERIFY(!m_chart->isDraggingMarker());
        QCOMPARE(m_log.last(), "finish 1 1 5"_s);

        // Also from inside the end of a drag, and the next one ends as any other.
        connect(m_chart.get(), &SmithChartPlot::markerDragFinished, m_plot.get(), &QWidget::hide);
        for (int round = 0; round < 2; ++round) {
            m_plot->show();
            m_log.clear();
            QVERIFY(m_chart->beginMarkerDragAt(pixelOf(1, 1).toPoint()));
            m_chart->endMarkerDragAt({});
            QCOMPARE(m_log, lines("request 1 1|start 1 1|finish 1 1 5"));
        }
    }

private:
    static QStringList lines(const char *text)
    {
        return QString::fromLatin1(text).split(QLatin1Char('|'));
    }
    QPointF dataPixel(double x, double y) const
    {
        return {m_plot->xAxis->coordToPixel(x), m_plot->yAxis->coordToPixel(y)};
    }
    /// Where a point of trace 1 lies.
    QPointF pointPixel(int index) const { return dataPixel(m_real[index], m_imag[index]); }
    QPointF positionOf(int trace, int local) const
    {
        return m_chart->getMarker(trace, local)->getTracer()->position->coords();
    }
    QPointF pixelOf(int trace, int local) const
    {
        const QPointF at = positionOf(trace, local);
        return dataPixel(at.x(), at.y());
    }
    void press(QPointF pos, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mousePress(m_plot->windowHandle(), button, Qt::NoModifier, pos.toPoint());
    }
    void move(QPointF pos) { QTest::mouseMove(m_plot->windowHandle(), pos.toPoint()); }
    void release(QPointF pos, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseRelease(m_plot->windowHandle(), button, Qt::NoModifier, pos.toPoint());
    }

    std::unique_ptr<QCustomPlot> m_plot;
    std::unique_ptr<SmithChartPlot> m_chart;
    QVector<double> m_real, m_imag, m_negReal, m_negImag, m_stimulus;
    QStringList m_log;
};

QTEST_MAIN(tst_SmithChartMarkers)
#include "tst_smithchartmarkers.moc"
