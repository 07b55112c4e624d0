// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The markers of all traces in one table, and those that move by themselves.
#include "desk.h"
#include "slope.h"

#include <panel/diagrams/markerreading.h>
#include <panel/diagrams/markertable.h>
#include <panel/diagrams/readouts.h>
#include <panel/files/viewstate.h>
#include <panel/model/markersearch.h>

#include <widgets/menubutton.h>

#include <QHeaderView>
#include <QScrollBar>
#include <QTableView>

#include <cmath>

using namespace VnaTest;
using namespace Panel;

namespace
{

struct TableDesk : ChartDesk {
    using ChartDesk::ChartDesk;

    CartesianView *cartesian() const { return window.cartesianView(); }
    MarkerTable *table() const { return window.markerTable(); }
    /// The names of the markers from the first row on.
    QStringList names() const
    {
        QStringList names;
        for (int row = 0; row < table()->table()->model()->rowCount(); ++row)
            names << table()->rowTexts(row).first();
        return names;
    }
    void tapRow(int row) const
    {
        QTableView *view = table()->table();
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {},
                          view->visualRect(view->model()->index(row, 2)).center());
    }
    static void waitForTable() { QTest::qWait(150); }
};

/// A filter whose transmission is highest at one index.
Network peaked(int at)
{
    Network network = slope(101);
    for (int i = 0; i < network.points(); ++i)
        network.parameters[1].real[i] = 1.0 / (1.0 + qAbs(i - at));
    network.parameters[1].imag.fill(0.0);
    return network;
}

} // namespace

class MarkerTableTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { setUpApplication(); }

    void readsSortsAndSelects()
    {
        TableDesk desk(QSize(1280, 800));
        desk.model.addMarker(1, 900.123456);
        desk.model.addMarker(3, 700);
        desk.model.addMarker(3, 100);
        QVERIFY(desk.table()->isHidden() && desk.cartesian()->readOuts()->isVisible());
        desk.model.viewSettings()->setMarkerTable(true);
        TableDesk::waitForTable();
        QVERIFY(desk.table()->isVisible() && desk.cartesian()->readOuts()->isHidden());
        QCOMPARE(desk.names(), (QStringList{"Tr1 M1"_s, "Tr3 M1"_s, "Tr3 M2"_s}));
        QCOMPARE(desk.table()->rowTexts(0).at(2), "2.525031 GHz"_s); // no more than the span tells
        QCOMPARE(desk.table()->rowTexts(1).mid(1, 2), (QStringList{"S21 LogM"_s, "2.475 GHz"_s}));
        // (1 + |S11|) / (1 - |S11|), which what passes the filter does not have.
        const Parameter &s11 = desk.model.networks().first().parameters.first();
        const auto part = [](const QVector<double> &values) {
            return values.at(900) + 0.123456 * (values.at(901) - values.at(900));
        };
        const double gamma = std::hypot(part(s11.real), part(s11.imag));
        QCOMPARE(desk.table()->rowTexts(0).last(),
                 QString::number((1.0 + gamma) / (1.0 - gamma), 'f', 2));
        QVERIFY(desk.table()->rowTexts(1).last().isEmpty());
        desk.table()->table()->sortByColumn(2, Qt::AscendingOrder); // as a tap on "Frequency" does
        QCOMPARE(desk.names(), (QStringList{"Tr3 M2"_s, "Tr3 M1"_s, "Tr1 M1"_s}));
        desk.tapRow(2);
        QCOMPARE(desk.model.activeTrace()->id, 1);
        QVERIFY(desk.model.selectedMarker() && desk.model.selectedMarker()->trace == 1);
        // No marker that comes or goes moves a diagram.
        const QRect place = desk.cartesian()->plot()->geometry();
        desk.model.removeMarker(1, 1);
        for (const double index : {200.0, 300.0, 400.0, 500.0})
            desk.model.addMarker(3, index);
        TableDesk::waitForTable();
        QCOMPARE(desk.names().size(), 6);
        QCOMPARE(desk.cartesian()->plot()->geometry(), place);
        QVERIFY(desk.table()->table()->selectionModel()->hasSelection());
        desk.model.viewSettings()->setMarkerTable(false);
        QVERIFY(desk.table()->isHidden() && desk.cartesian()->readOuts()->isVisible());
    }

    /// Without a marker to measure from.
    void bandwidthFindsItsBand()
    {
        TableDesk desk(QSize(1280, 800));
        desk.show({peaked(40)});
        desk.model.setActiveTrace(3);
        desk.pick(desk.keys().bandwidth, 2);
        QCOMPARE(desk.index(3, 1), 40.0);
        QVERIFY(bandwidthText(desk.model).contains("Q "_s));
    }

    void fitsASmallScreen()
    {
        TableDesk desk(QSize(798, 455));
        desk.model.addMarker(1, 900);
        desk.model.viewSettings()->setMarkerTable(true);
        TableDesk::waitForTable();
        QCOMPARE(desk.window.size(), QSize(798, 455));
    }

    /// More rows than have room bring their scroll bar when the columns have long been fitted.
    void columnsLeaveRoomForTheScrollBar()
    {
        TableDesk desk(QSize(1280, 800));
        for (int number = 1; number <= 9; ++number)
            desk.model.addMarker(1, 100 * number);
        desk.model.viewSettings()->setMarkerTable(true);
        TableDesk::waitForTable();
        const QTableView *table = desk.table()->table();
        QVERIFY(table->verticalScrollBar()->isVisible());
        QVERIFY2(table->horizontalHeader()->length() <= table->viewport()->width(),
                 qPrintable(QString::number(table->horizontalHeader()->length())));
        desk.window.resize(1180, 800);
        TableDesk::waitForTable();
        QVERIFY(table->horizontalHeader()->length() <= table->viewport()->width());
    }

    void markersFollowTheirExtreme()
    {
        TableDesk desk;
        desk.show({peaked(20)});
        const int trace = 3;
        desk.model.setTraceFormat(trace, TraceFormat::LinearMagnitude);
        desk.model.addMarker(trace, 50);
        desk.pick(desk.keys().track, 1);
        QCOMPARE(desk.index(trace, 1), 20.0);
        QVERIFY(desk.model.updateNetwork(0, peaked(70)));
        QCOMPARE(desk.index(trace, 1), 70.0);
        const QJsonObject saved = viewState(desk.model);
        // Whoever takes hold of it ends that.
        desk.model.moveMarker(trace, 1, 10);
        QVERIFY(desk.model.updateNetwork(0, peaked(40)));
        QCOMPARE(desk.index(trace, 1), 10.0);
        QCOMPARE(desk.keys().track->choice(), 0);
        restoreViewState(&desk.model, saved);
        QCOMPARE(desk.index(trace, 1), 40.0);
        desk.model.addMarker(trace, 50);
        desk.pick(desk.keys().search, 4);
        QCOMPARE(desk.model.activeMarkers().size(), 1);
        QCOMPARE(desk.index(trace, 1), 40.0);
    }

    void readOutsLeaveTheLineFree()
    {
        TableDesk desk(QSize(1280, 800));
        for (const double top : {0.0, 60.0}) { // the line is high, then low
            desk.model.setTraceScale(3, {10.0, top});
            desk.model.addMarker(3, 700);
            TableDesk::settle();
            const CartesianView *view = desk.cartesian();
            const QRect box = view->readOuts()->geometry();
            QVERIFY(view->plot()->axisRect()->rect().contains(box));
            const QCPGraph *line = view->graph(3);
            for (const QCPGraphData &point : *line->data())
                QVERIFY(!box.contains(QPointF(line->keyAxis()->coordToPixel(point.key),
                                              line->valueAxis()->coordToPixel(point.value))
                                          .toPoint()));
        }
    }

    void referenceStaysAtItsPosition()
    {
        TableDesk desk;
        desk.model.setActiveTrace(3);
        desk.model.setTraceScale(3, {10.0, 0.0});
        desk.pick(desk.keys().referencePosition, 5);
        QVERIFY((desk.model.trace(3)->scale == Scale{10.0, 50.0, 5}));
        const Scale finer = desk.model.trace(3)->scale.withDivision(2.0);
        QVERIFY((finer == Scale{2.0, 10.0, 5}));
        QCOMPARE(finer.reference(), 0.0);
        QVERIFY((finer.withReference(-3.0) == Scale{2.0, 7.0, 5}));
        for (const int outside : {-1, 11}) {
            desk.model.setTraceScale(3, {1.0, 0.0, outside});
            QVERIFY((desk.model.trace(3)->scale == Scale{10.0, 50.0, 5}));
        }
        const QJsonObject saved = viewState(desk.model);
        desk.model.setTraceScale(3, {1.0, 0.0});
        restoreViewState(&desk.model, saved);
        QVERIFY((desk.model.trace(3)->scale == Scale{10.0, 50.0, 5}));
    }
};

QTEST_MAIN(MarkerTableTest)
#include "tst_markertable.moc"
