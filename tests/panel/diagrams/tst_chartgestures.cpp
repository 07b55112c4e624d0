// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desk.h"

#include <panel/diagrams/readouts.h>
#include <widgets/markerstatusitem.h>

using namespace VnaTest;
using namespace Panel;

class ChartGesturesTest : public TestCase
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
        QVERIFY(desk.index(2, 1) > last - 20.0);
        const auto isShown = [&desk] { return desk.view()->drawnMarker(2, 1)->isVisible(); };
        QVERIFY(isShown());

        // On a marker a double click means that marker, and adds none.
        desk.doubleClick(desk.onTrace(2, int(desk.index(2, 1))));
        QCOMPARE(desk.model.markers().size(), 1);

        // A new chart and a hidden trace take the marker with them.
        desk.model.viewSettings()->setDensity(GridDensity::Basic);
        QVERIFY(isShown());
        desk.model.setTraceVisible(2, false);
        QVERIFY(!isShown());
        desk.model.viewSettings()->setDensity(GridDensity::Standard);
        QVERIFY(!isShown());
        desk.model.setTraceVisible(2, true);
        QVERIFY(isShown());
    }

    void numbersOfMarkersInOnePlaceStandApart()
    {
        ChartDesk desk;
        desk.setLayout(Graph::LayoutType::SideBySide);
        const DiagramView *views[] = {desk.view(), desk.window.cartesianView()};
        for (const DiagramView *view : views) {
            const int trace = view->traceIds().first();
            for (const double index : {600.0, 601.0, 602.0})
                desk.model.addMarker(trace, index);
            ChartDesk::settle();
            QVector<double> places;
            for (const int number : {1, 2, 3})
                places
                    << view->drawnMarker(trace, number)->getLabel()->position->pixelPosition().x();
            std::sort(places.begin(), places.end()); // in the order of their tips
            QVERIFY(places.at(1) - places.at(0) > 8.0 && places.at(2) - places.at(1) > 8.0);
            // One that moves away takes its number along.
            desk.model.moveMarker(trace, 3, 900.0);
            ChartDesk::settle();
            const Plot::Marker *gone = view->drawnMarker(trace, 3);
            QCOMPARE(gone->getLabel()->position->coords().x(), 0.0);
        }
        // The picture that a resize draws has them where the next one does.
        const int trace = desk.view()->traceIds().first();
        const auto shift = [&] {
            return desk.view()->drawnMarker(trace, 1)->getLabel()->position->coords().x();
        };
        desk.plot()->resize(desk.plot()->width(), desk.plot()->width() / 2);
        const double resized = shift();
        QVERIFY(resized != 0.0);
        desk.plot()->replot();
        QCOMPARE(resized, shift());
    }

    void markersFollowTheirPointer()
    {
        ChartDesk desk;
        desk.model.addMarker(1, 0.0);
        desk.model.addMarker(2, 0.0);
        ChartDesk::settle();
        desk.drag(desk.onTrace(1, 0), desk.onTrace(1, 100));
        const double index = desk.index(1, 1);
        QVERIFY2(std::abs(index - 100.0) < 10.0, qPrintable(QString::number(index)));
        QCOMPARE(desk.model.selectedMarker(), desk.model.marker(1, 1));
        QCOMPARE(desk.model.activeTrace()->id, 1);
        QCOMPARE(desk.zoom(desk.view()), 1.0);

        for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Right, Qt::Key_Left})
            desk.press(key, Qt::ControlModifier);
        QCOMPARE(desk.index(1, 1), index + 1.0);
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
        for (int number = 1; number <= Markers::perTrace + 1; ++number)
            desk.pick(desk.keys().marker, 0);
        QCOMPARE(desk.model.activeMarkers().size(), Markers::perTrace);
        QVERIFY(desk.bar()->isVisible());
        QCOMPARE(desk.keys().marker->value(), "M6"_s);

        // They are read by their numbers, whichever is selected.
        ReadOuts *readOuts = desk.view()->readOuts();
        QCOMPARE(readOuts->markers().last().number, 6);
        readOuts->ensureWidgetVisible(readOuts->item(0));
        desk.click(readOuts->item(0));
        QCOMPARE(desk.keys().marker->value(), "M1"_s);
        QCOMPARE(readOuts->markers().first().number, 1);
        desk.pick(desk.keys().marker, 1);
        QVERIFY(!desk.model.marker(1, 1));
        QCOMPARE(desk.keys().marker->value(), "None"_s);
        desk.pick(desk.keys().marker, 2);
        QVERIFY(desk.model.markers().isEmpty() && readOuts->markers().isEmpty());
    }

    void pointerCanBeConfinedToTheActiveTrace()
    {
        ChartDesk desk;
        desk.model.addMarker(2, 0);
        desk.model.setActiveTrace(1);
        desk.pick(desk.keys().pointer, 1);
        desk.doubleClick(desk.onTrace(1, 0));
        QVERIFY(desk.model.marker(1, 1));
        QVERIFY(desk.index(1, 1) < 10.0);
        desk.drag(desk.onTrace(2, 0), desk.onTrace(2, 300)); // another trace's marker stays
        QCOMPARE(desk.index(2, 1), 0.0);
        QCOMPARE(desk.model.activeTrace()->id, 1);
        desk.pick(desk.keys().pointer, 0);
        desk.press(Qt::Key_0);
        desk.drag(desk.onTrace(2, 0), desk.onTrace(2, 300));
        QVERIFY(desk.index(2, 1) > 0.0);
    }

    /// A press on a marker selects it and moves nothing, whatever chart was made meanwhile.
    void pressOnAMarkerMeansTheMarker()
    {
        ChartDesk desk;
        desk.model.addMarker(1, 100.0);
        const Parameter at = desk.model.traceData(*desk.model.trace(1)).parameter;
        for (const auto density :
             {GridDensity::Standard, GridDensity::Detailed, GridDensity::Basic}) {
            desk.model.viewSettings()->setDensity(density);
            for (const double factor : {1.0, 3.0}) {
                desk.model.setZoom(desk.view()->id(), {factor, at.real.at(100), at.imag.at(100)});
                desk.model.selectMarker(0, 0);
                ChartDesk::settle();
                const QPoint body = desk.onTrace(1, 100) - QPoint(0, 6);
                const QCPRange before = desk.plot()->xAxis->range();
                mouseClick(desk.plot(), body);
                ChartDesk::settle();
                QCOMPARE(desk.model.selectedMarker(), desk.model.marker(1, 1));
                QCOMPARE(desk.index(1, 1), 100.0);
                mousePress(desk.plot(), body);
                mouseMove(desk.plot(), body + QPoint(40, 30));
                mouseRelease(desk.plot(), body + QPoint(40, 30));
                QCOMPARE(desk.plot()->xAxis->range(), before);
                desk.model.moveMarker(1, 1, 100.0);
            }
        }
    }

    /// A fingertip beside a marker or a trace means it.
    void fingersReachWhatIsNear()
    {
        ChartDesk desk;
        desk.model.addMarker(1, 0.0);
        ChartDesk::settle();
        const QPoint tip = desk.onTrace(1, 0);
        for (const QPoint &beside :
             {QPoint(0, 12), QPoint(0, 20), QPoint(20, -8), QPoint(-20, 0)}) {
            desk.model.selectMarker(0, 0);
            mouseClick(desk.plot(), tip + beside);
            QCOMPARE(desk.model.selectedMarker(), desk.model.marker(1, 1));
        }
        QCOMPARE(desk.view()->hit(tip + QPoint(40, 0)).kind, Hit::Line);
        QCOMPARE(desk.view()->hit(desk.onPlot(0.01, 0.01)).kind, Hit::Nothing);

        // Beside a trace, the nearer of two.
        desk.model.removeMarker(1, 1);
        const int last = desk.model.networks().first().points() - 1;
        mouseClick(desk.plot(), desk.onTrace(2, last));
        QCOMPARE(desk.model.activeTrace()->id, 2);
        // A double tap on nothing is no gesture, and leaves the view.
        desk.model.setZoom(desk.view()->id(), {2.0, 0.9, 0.9});
        ChartDesk::settle();
        desk.doubleClick(desk.onPlot(0.98, 0.02));
        QCOMPARE(desk.zoom(desk.view()), 2.0);
        QVERIFY(desk.model.markers().isEmpty());
        desk.click(desk.keys().whole);
        QCOMPARE(desk.zoom(desk.view()), 1.0);
        QVERIFY(!desk.keys().whole->isEnabled());
    }

    void wheelAndKeysActivateTheirDiagram()
    {
        ChartDesk desk;
        desk.setLayout(Graph::LayoutType::SideBySide);
        QCustomPlot *other = desk.window.cartesianView()->plot();
        const QPoint middle = other->mapTo(&desk.window, other->rect().center());
        desk.turnWheelAt(middle, 1);
        QCOMPARE(desk.model.activeTrace()->id, 3);
        QVERIFY(desk.zoom(desk.window.cartesianView()) > 1.2);
        QCOMPARE(desk.zoom(desk.view()), 1.0);
        // The focus is to be seen; the active diagram has it from the start.
        QVERIFY(desk.plot()->hasFocus());
        other->setFocus();
        const QWidget *frame = desk.plot()->parentWidget()->parentWidget();
        const auto edge = [&] {
            const QImage picture = desk.window.grab().toImage();
            return picture.pixelColor(frame->mapTo(&desk.window, QPoint(1, frame->height() / 2)));
        };
        const QColor before = edge();
        desk.plot()->setFocus(Qt::TabFocusReason);
        ChartDesk::settle();
        QVERIFY(edge() != before);
        QCOMPARE(edge(), currentLook().accent);
        // Tab only passes by; a key that the diagram answers makes it the active one.
        QCOMPARE(desk.model.activeTrace()->id, 3);
        desk.press(Qt::Key_Plus);
        QCOMPARE(desk.model.activeTrace()->id, 1);
    }

    /// A key is the active diagram's wherever the focus is, and an arrow a step that can be seen.
    void keysReachTheActiveDiagram()
    {
        ChartDesk desk;
        Network network;
        network.ports = 1;
        network.parameters.resize(1);
        for (int i = 0; i <= 1000000; ++i) {
            network.frequencies << 1e9 + i;
            network.parameters[0].real << i / 1e6;
            network.parameters[0].imag << 0.0;
        }
        desk.show({network});
        desk.setLayout(Graph::LayoutType::SideBySide);
        desk.model.addMarker(2, 500000.0);
        desk.window.softKeys()->setPage(0);
        desk.keys().start->setFocus();
        const QCustomPlot *plot = desk.window.cartesianView()->plot();
        const auto pixel = [&] { return plot->xAxis->coordToPixel(1e9 + desk.index(2, 1)); };
        const double before = pixel();
        desk.press(Qt::Key_Right);
        QVERIFY(pixel() - before > 0.5 && pixel() - before < 4.0);
        desk.press(Qt::Key_Left);
        desk.press(Qt::Key_Left, Qt::ControlModifier);
        QCOMPARE(desk.index(2, 1), 499999.0);
        desk.press(Qt::Key_Plus);
        QVERIFY(desk.zoom(desk.window.cartesianView()) > 1.2);
        QCOMPARE(desk.zoom(desk.view()), 1.0);
        desk.press(Qt::Key_Delete);
        QVERIFY(desk.model.markers().isEmpty());
    }

    void readOutsKeepTheirOrderAndTheirRoom()
    {
        for (const QSize &size : {QSize(800, 480), QSize(1280, 800)}) {
            ChartDesk desk(size);
            desk.setLayout(Graph::LayoutType::SideBySide);
            const QRect place = desk.plot()->geometry();
            const ReadOuts *readOuts = desk.window.cartesianView()->readOuts();
            QVector<std::pair<int, int>> wanted;
            for (const int trace : {4, 3}) {
                for (const double index : {700.0, 20.0})
                    desk.model.addMarker(trace, index);
            }
            desk.model.addMarker(1, 700.0);
            desk.model.setActiveTrace(1);
            desk.bar()->setMessage("A sentence."_s);
            ChartDesk::settle();
            QVector<std::pair<int, int>> rows;
            for (const Marker &marker : readOuts->markers())
                rows << std::pair(marker.trace, marker.number);
            QCOMPARE(rows, (QVector<std::pair<int, int>>{{3, 1}, {3, 2}, {4, 1}, {4, 2}}));
            QCOMPARE(desk.plot()->geometry(), place);
            // No digit is cut, in the narrow diagrams of a small screen neither.
            if (size.width() < 1000)
                desk.setLayout(Graph::LayoutType::Quad);
            ChartDesk::settle();
            for (const ReadOuts *each :
                 QVector<const ReadOuts *>{readOuts, desk.view()->readOuts()}) {
                const auto labels = each->findChildren<QLabel *>();
                for (const QLabel *label : labels) {
                    const QSize needed = label->fontMetrics().size(0, label->text());
                    QVERIFY2(!label->isVisible() || needed.width() <= label->width(),
                             qPrintable(label->text()));
                }
            }
            QStringList texts;
            const auto labels = readOuts->findChildren<QLabel *>();
            for (const QLabel *label : labels)
                texts << label->text();
            const Trace &trace = *desk.model.trace(3);
            const QString value = cartesianText(
                formatValueAt(desk.model.traceData(trace), 700.0, trace.format), trace.format);
            QVERIFY2(texts.contains(value), qPrintable(texts.join(" | "_s)));
        }
    }
};

QTEST_MAIN(ChartGesturesTest)
#include "tst_chartgestures.moc"
