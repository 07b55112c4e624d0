// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desk.h"

#include <panel/diagrams/readouts.h>
#include <widgets/markerstatusitem.h>

using namespace VnaTest;
using namespace Panel;

class PanelMarkersTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { setUpApplication(); }

    void doubleClickMarksTheTrace()
    {
        ChartDesk desk;
        // The end of S22 lies far from S11, which is active and would win nearby.
        const int last = int(desk.model.networks().first().frequencies.size()) - 1;
        desk.doubleClick(desk.onTrace(2, last));
        QCOMPARE(desk.model.activeTrace()->id, 2);
        QCOMPARE(desk.model.markers().size(), 1);
        QVERIFY(desk.model.marker(2, 1)->index > last - 20.0);
        const auto isShown = [&desk] { return desk.chart()->getMarker(2, 1)->isVisible(); };
        QVERIFY(isShown());
        QVERIFY(desk.view()->readOuts()->height() > 10);

        // On a marker a double click means that marker, and adds none.
        desk.doubleClick(desk.onTrace(2, int(desk.model.marker(2, 1)->index)));
        QCOMPARE(desk.model.markers().size(), 1);

        // A new chart and a hidden trace take the marker with them.
        desk.model.viewSettings()->setDensity(SmithChart::Basic);
        QVERIFY(isShown());
        desk.model.setTraceVisible(2, false);
        QVERIFY(!isShown());
        desk.model.viewSettings()->setDensity(SmithChart::Standard);
        QVERIFY(!isShown());
        desk.model.setTraceVisible(2, true);
        QVERIFY(isShown());
    }

    void markersFollowTheirPointer()
    {
        ChartDesk desk;
        desk.model.addMarker(1, 0.0);
        desk.model.addMarker(2, 0.0);
        ChartDesk::settle();
        desk.drag(desk.onTrace(1, 0), desk.onTrace(1, 100));
        const double index = desk.model.marker(1, 1)->index;
        QVERIFY2(std::abs(index - 100.0) < 10.0, qPrintable(QString::number(index)));
        QCOMPARE(desk.model.selectedMarker(), desk.model.marker(1, 1));
        QCOMPARE(desk.model.activeTrace()->id, 1);
        QCOMPARE(desk.view()->zoom(), 1.0);

        for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Right, Qt::Key_Left})
            desk.press(key);
        QCOMPARE(desk.model.marker(1, 1)->index, index + 1.0);
        desk.press(Qt::Key_Delete);
        QVERIFY(!desk.model.marker(1, 1));
        QVERIFY(desk.model.marker(2, 1));

        // A tap on free space selects none, one on a marker that marker.
        mouseClick(desk.plot(), desk.onTrace(2, 0));
        QCOMPARE(desk.model.selectedMarker(), desk.model.marker(2, 1));
        mouseClick(desk.plot(), desk.onPlot(0.01, 0.01));
        QVERIFY(!desk.model.selectedMarker());
    }

    void markerKeyAddsAndRemoves()
    {
        ChartDesk desk;
        for (int number = 1; number <= PanelModel::markersPerTrace + 1; ++number)
            desk.pick(desk.keys().marker, 0);
        QCOMPARE(desk.model.activeMarkers().size(), PanelModel::markersPerTrace);
        QVERIFY(desk.bar()->isVisible());
        QCOMPARE(desk.keys().marker->value(), "M6"_s);

        // The selected one is read first, then the others by their numbers.
        QCOMPARE(desk.view()->readOuts()->numbers(), (QVector<int>{6, 1, 2, 3, 4, 5}));
        desk.click(desk.view()->readOuts()->item(1));
        QCOMPARE(desk.keys().marker->value(), "M1"_s);
        desk.pick(desk.keys().marker, 1);
        QVERIFY(!desk.model.marker(1, 1));
        QCOMPARE(desk.keys().marker->value(), "None"_s);
        desk.pick(desk.keys().marker, 2);
        QVERIFY(desk.model.markers().isEmpty());
        QCOMPARE(desk.view()->readOuts()->height(), 0);
    }

    void pointerCanBeConfinedToTheActiveTrace()
    {
        ChartDesk desk;
        desk.model.addMarker(2, 0);
        desk.model.setActiveTrace(1);
        desk.pick(desk.keys().pointer, 1);
        desk.doubleClick(desk.onTrace(1, 0));
        QVERIFY(desk.model.marker(1, 1));
        QVERIFY(desk.model.marker(1, 1)->index < 10.0);
        desk.drag(desk.onTrace(2, 0), desk.onTrace(2, 300)); // another trace's marker stays
        QCOMPARE(desk.model.marker(2, 1)->index, 0.0);
        QCOMPARE(desk.model.activeTrace()->id, 1);
        desk.pick(desk.keys().pointer, 0);
        desk.chart()->resetView();
        desk.drag(desk.onTrace(2, 0), desk.onTrace(2, 300));
        QVERIFY(desk.model.marker(2, 1)->index > 0.0);
    }
};

QTEST_MAIN(PanelMarkersTest)
#include "tst_panelmarkers.moc"
