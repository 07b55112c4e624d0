// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <plot/markerselection.h>

#include <vnatest.h>

using namespace VnaTest;
using Plot::Marker;

class tst_MarkerSelection : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theItemUnderThePointerComesBeforeANearerOne()
    {
        QCustomPlot plot;
        plot.resize(400, 300);
        plot.setSelectionTolerance(1); // an item is under the pointer where it is hit
        plot.replot();
        const auto markerAtPixel = [&](double x, double y, int id) {
            Marker marker(&plot, id, Plot::PointingDown);
            QCPGraph *const graph = plot.addGraph();
            marker.setPositionCoordinates(graph, plot.xAxis->pixelToCoord(x),
                                          plot.yAxis->pixelToCoord(y));
            return marker;
        };
        Marker first = markerAtPixel(150, 150, 1);
        Marker second = markerAtPixel(190, 150, 2);
        Marker third = markerAtPixel(190, 150, 3);
        plot.replot();
        const QVector<const Marker *> markers{nullptr, &first, &second, &third};
        const QPointF tip = first.getTracer()->position->pixelPosition();
        QCOMPARE(Plot::markerAt(markers, tip - QPointF(0, 4), 18.0), 1);
        QCOMPARE(Plot::markerAt(markers, tip + QPointF(0, 4), 18.0), 1);
        QCOMPARE(Plot::markerAt(markers, tip + QPointF(0, 4), 3.0), -1);
        QCOMPARE(Plot::markerAt(markers, tip + QPointF(40, 4), 18.0), 2); // the earlier of equals

        // A finger's reach starts at the triangle's edge; of markers that coincide, the first is meant.
        QCOMPARE(Plot::markerInReach(markers, tip + QPointF(40, 21), 22.0), 2);
        QCOMPARE(Plot::markerInReach(markers, tip + QPointF(40, 23), 22.0), -1);
        QCOMPARE(Plot::markerInReach(markers, tip - QPointF(0, 15 + 21), 22.0), 1);
        QCOMPARE(Plot::markerInReach(markers, tip + QPointF(25, 0), 30.0), 2);

        second.setType(Plot::PointingUp); // its triangle lies below its point
        QCOMPARE(Plot::markerInReach({&second}, tip + QPointF(40, 15 + 21), 22.0), 0);
        QCOMPARE(Plot::markerInReach({&second}, tip + QPointF(40, -23), 22.0), -1);
        second.setVisible(false);
        QCOMPARE(Plot::markerAt(markers, tip + QPointF(40, 4), 18.0), 3);
        QCOMPARE(Plot::markerAt({}, tip, 18.0), -1);
    }

    void aSelectedMarkerIsFilledAndLighter()
    {
        QCustomPlot plot;
        Marker marker(&plot, 1, Plot::PointingDown);
        const QPen trace(QColor(200, 100, 0), 1.0);
        Plot::drawMarker(marker, trace, false);
        QCOMPARE(marker.getTracer()->pen().color(), trace.color());
        QCOMPARE(marker.getTracer()->brush().style(), Qt::NoBrush);
        const double width = marker.getTracer()->pen().widthF();
        Plot::drawMarker(marker, trace, true);
        QCOMPARE(marker.getTracer()->brush().color(), marker.getTracer()->pen().color());
        QVERIFY(marker.getTracer()->pen().color().lightness() > trace.color().lightness());
        QVERIFY(marker.getTracer()->pen().widthF() > width);
    }
};

QTEST_MAIN(tst_MarkerSelection)
#include "tst_markerselection.moc"
