// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desk.h"
#include "slope.h"

#include <panel/diagrams/markerreading.h>
#include <panel/diagrams/titlelabel.h>
#include <panel/files/viewstate.h>

#include <algorithm>
#include <cmath>

using namespace VnaTest;
using namespace Panel;

namespace
{

struct Desk : PanelDesk {
    using PanelDesk::PanelDesk;

    CartesianView *view() const { return window.cartesianView(); }
    QCustomPlot *plot() const { return view()->plot(); }
    /// A point of a trace in pixels of the window.
    QPoint onTrace(int traceId, int index) const
    {
        const Trace &trace = *model.trace(traceId);
        const double value =
            formatValueAt(model.traceData(trace), index, TraceFormat::LogMagnitude);
        const double hertz = model.network(trace).frequencies.at(index);
        const QPointF point(plot()->xAxis->coordToPixel(hertz), plot()->yAxis->coordToPixel(value));
        return plot()->mapTo(&window, point.toPoint());
    }
    QStringList frequencies() const { return view()->frequencyAxis().texts(); }
    /// Where a marker is drawn.
    QPointF drawn(int traceId, int number) const
    {
        return view()->drawnMarker(traceId, number)->getTracer()->position->coords();
    }
    QCPRange x() const { return plot()->xAxis->range(); }
    QCPRange y() const { return plot()->yAxis->range(); }
};

} // namespace

class CartesianViewTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    /// What holds of the data is never left out, what is written elsewhere first.
    void narrowTitlesLeaveOut()
    {
        const QStringList parts{"S21"_s, "LogM"_s, "ref 0 dB"_s, "Port 1: 105 ps"_s, "file.s2p"_s};
        TitleLabel title;
        title.setParts(parts, {"file.s2p"_s, "ref 0 dB"_s});
        const auto wide = [&title](const QString &text) {
            title.resize(title.fontMetrics().horizontalAdvance(text), 20);
            return title.grab().isNull() ? QStringList() : title.lines();
        };
        const QString all = title.text(), whole = "S21 \u00b7 LogM \u00b7 Port 1: 105 ps"_s;
        QCOMPARE(wide(all), QStringList(all));
        QCOMPARE(wide(all.chopped(1)), QStringList(all.chopped(11)));
        QCOMPARE(wide(whole), QStringList(whole));
        const int height = title.sizeHint().height();
        QCOMPARE(wide(whole.chopped(1)), (QStringList{"S21 \u00b7 LogM"_s, "Port 1: 105 ps"_s}));
        QVERIFY(title.sizeHint().height() > height);
    }

    /// As a window finds when it is moved there.
    void anotherScreenHasAnotherPixelRatio()
    {
        Desk desk;
        QCustomPlot *plot = desk.plot();
        const double ratio = plot->devicePixelRatioF();
        plot->setBufferDevicePixelRatio(3.0 * ratio);
        int replots = 0;
        connect(plot, &QCustomPlot::afterReplot, this, [&replots] { ++replots; });
        QEvent moved(QEvent::ScreenChangeInternal);
        QCoreApplication::sendEvent(desk.view(), &moved);
        QCOMPARE(plot->bufferDevicePixelRatio(), ratio);
        QCOMPARE(replots, 1);
    }

    void initTestCase() { setUpApplication(); }

    /// At whatever height the diagram has: the edge of a pixel must not swallow a marker.
    void markersNearTheTopAreDrawn()
    {
        Desk desk;
        desk.model.addMarker(3, 600.0);
        for (int height = 480; height < 800; height += 7) {
            // Near the top, and beyond it.
            desk.model.setTraceScale(3, {10.0, height % 2 ? 0.0 : -20.0});
            desk.window.resize(1280, height);
            Desk::settle();
            const Plot::Marker *marker = desk.view()->drawnMarker(3, 1);
            const QPointF tip = marker->getTracer()->position->pixelPosition();
            QVERIFY2(QRectF(desk.view()->plot()->axisRect()->rect()).contains(tip),
                     qPrintable(QString::number(height)));
        }
    }

    /// Numbers beside the axis hold for all traces of a format, or the title says for which not.
    /// In every language, as everywhere on the panel.
    void theAxisWritesPoints()
    {
        Desk desk;
        QCPAxis *axis = desk.plot()->yAxis;
        QVector<double> ticks;
        QVector<QString> labels;
        desk.model.setTraceScale(3, {0.5, 0.0});
        Desk::settle();
        axis->ticker()->generate({-1.0, 0.0}, QLocale(QLocale::German), QLatin1Char('g'), 4, ticks,
                                 nullptr, &labels);
        QVERIFY2(labels.contains("\u22120.5"_s), qPrintable(labels.value(0)));
    }

    void filesShareTheirScale()
    {
        Desk desk;
        Network loud = slope(101);
        loud.name = "loud.s2p"_s;
        Network quiet = slope(101);
        quiet.name = "quiet.s2p"_s;
        for (Parameter &parameter : quiet.parameters) {
            for (int i = 0; i < 101; ++i) {
                parameter.real[i] *= 1e-3;
                parameter.imag[i] *= 1e-3;
            }
        }
        desk.model.openNetworks({loud, quiet});
        QCOMPARE(desk.model.trace(3)->scale, desk.model.trace(7)->scale);
        QVERIFY(!desk.view()->title().contains("own scale"_s));
        desk.model.setTraceScale(7, {5.0, -40.0});
        QVERIFY2(desk.view()->title().contains("own scale: Tr7"_s),
                 qPrintable(desk.view()->title()));
    }

    void showsTransmissionBesideReflection()
    {
        Desk desk;
        QCOMPARE(desk.window.smithView()->chart()->traceIds(), (QVector<int>{1, 2}));
        QVERIFY(!desk.view()->graph(1));
        QCPGraph *s21 = desk.view()->graph(3);
        QVERIFY(s21 && desk.view()->graph(4));
        QVERIFY(desk.view()->isVisible() && desk.window.smithView()->isVisible());
        QCOMPARE(s21->pen().color(), currentLook().trace(3));
        bool found = false;
        QVERIFY(s21->getValueRange(found).upper > -3.0);
        QVERIFY(desk.y() == QCPRange(-100.0, 0.0));
        QVERIFY(desk.x() == QCPRange(2.3e9, 2.6e9));

        desk.model.setActiveTrace(4);
        QCOMPARE(desk.view()->graph(4)->layer()->name(), "activeTrace"_s);
        QCOMPARE(desk.window.smithView()->chart()->activeTrace(), 1);
        desk.model.setTraceVisible(4, false);
        QVERIFY(!desk.view()->graph(4)->visible() && s21->visible());
    }

    void choosesDiagrams()
    {
        Desk desk;
        const auto shown = [&desk] {
            return std::pair(desk.window.smithView()->isVisible(), desk.view()->isVisible());
        };
        desk.setLayout(Graph::LayoutType::Single);
        QCOMPARE(shown(), std::pair(true, false));
        desk.model.setActiveTrace(4);
        QCOMPARE(shown(), std::pair(false, true));
        desk.setLayout(Graph::LayoutType::Quad);
        QCOMPARE(desk.window.diagrams()->views().size(), 4);
        desk.model.setTraceFormat(4, TraceFormat::Smith);
        QCOMPARE(desk.window.diagrams()->activeView()->traceIds(), QVector<int>{4});
        QVERIFY(qobject_cast<SmithView *>(desk.window.diagrams()->activeView()));
        desk.setLayout(Graph::LayoutType::SideBySide);
        QCOMPARE(desk.window.smithView()->traceIds(), (QVector<int>{1, 2, 4}));
        QCOMPARE(desk.view()->traceIds(), QVector<int>{3});
        desk.show({});
        QVERIFY(desk.window.diagrams()->views().isEmpty());
    }

    void markersFollowTheirPointer()
    {
        Desk desk;
        mouseDoubleClick(&desk.window, desk.onTrace(3, 600));
        QCOMPARE(desk.model.activeTrace()->id, 3);
        QVERIFY(std::abs(desk.index(3, 1) - 600.0) < 4.0);
        QCOMPARE(desk.model.selectedMarker(), desk.model.marker(3, 1));

        // Its triangle stands on the point.
        const QPoint grip = desk.onTrace(3, int(desk.index(3, 1))) - QPoint(0, 8);
        const QPoint to(desk.onTrace(3, 900).x(), grip.y());
        mouseDrag(desk.window.windowHandle(), grip, to, 5);
        const double index = desk.index(3, 1);
        QVERIFY(std::abs(index - 900.0) < 4.0);
        const TraceData data = desk.model.traceData(*desk.model.trace(3));
        QCOMPARE(desk.drawn(3, 1).y(), formatValueAt(data, index, TraceFormat::LogMagnitude));
        mouseMove(&desk.window, grip);
        QCOMPARE(desk.index(3, 1), index);

        desk.model.setTraceVisible(3, false);
        QVERIFY(!desk.view()->drawnMarker(3, 1)->isVisible());
        desk.model.setTraceVisible(3, true);
        // Beside the marker a tap selects none, and activates the diagram it is on.
        desk.model.setActiveTrace(1);
        mouseClick(&desk.window, desk.onTrace(3, 300) + QPoint(0, 60));
        QCOMPARE(desk.model.activeTrace()->id, 3);
        QVERIFY(!desk.model.selectedMarker());
        desk.model.removeMarker(3, 1);
        QVERIFY(!desk.view()->drawnMarker(3, 1));
    }

    void followsNewDataAndFormats()
    {
        Desk desk;
        desk.show({slope(1001)});
        // Room for the spike of 20 dB.
        QVERIFY(desk.y() == QCPRange(-80.0, 20.0));
        desk.model.addMarker(3, 1000.0);
        Network network = slope(200001, 1.5e9, 2.5e9);
        QVERIFY(desk.model.updateNetwork(0, network));
        QVERIFY(desk.x() == QCPRange(1.5e9, 2.5e9));
        QVERIFY(desk.view()->drawnPoints() < 20000);
        // The marker kept its frequency, which is in the middle now.
        QCOMPARE(desk.index(3, 1), 100000.0);
        const QPointF drawn = desk.drawn(3, 1);
        QVERIFY(std::abs(drawn.x() - 2e9) < 1.0 && std::abs(drawn.y() + 20.0) < 0.01);

        Q_EMIT desk.keys().format->choicePicked(int(TraceFormat::Phase));
        QVERIFY(desk.y() == QCPRange(-180.0, 180.0));
        const double turned = std::remainder(10.0 * 180.0 / std::acos(-1.0), 360.0);
        QVERIFY(std::abs(desk.drawn(3, 1).y() - turned) < 0.01);

        // Data of another kind is refused.
        network.ports = 1;
        QVERIFY(!desk.model.updateNetwork(0, network));
        QVERIFY(!desk.model.updateNetwork(1, slope(3)));
        QVERIFY(!desk.model.updateNetwork(0, Network()));
        QCOMPARE(desk.model.networks().first().ports, 2);
    }

    /// What is shown at once, without a tap or another size, is what a size asked for later gives.
    void firstLayoutIsRight_data()
    {
        columns<QSize>("size");
        for (const QSize &size : {QSize(800, 480), QSize(1280, 800), QSize(1920, 1080)})
            QTest::addRow("%d high", size.height()) << size;
    }

    void firstLayoutIsRight()
    {
        QFETCH(QSize, size);
        PanelModel model;
        PanelWindow window(&model);
        window.resize(size);
        model.openNetworks({slope(1001), slope(501, 1.2e9, 4e9)});
        model.addMarker(3, 300.0);
        model.addMarker(3, 500.0);
        model.setTraceFormat(1, TraceFormat::Vswr);
        model.setActiveTrace(8);
        model.viewSettings()->layoutProfile()->setLayoutType(Graph::LayoutType::Quad);
        window.show();
        const auto check = [&](const char *when) {
            for (int i = 0; i < 4; ++i)
                QCoreApplication::processEvents();
            const QStringList broken = Fuzz::brokenRules(model, *window.diagrams());
            QVERIFY2(broken.isEmpty(), qPrintable(QLatin1String(when) + broken.join("; "_s)));
        };
        check("at first: ");
        // Lines as near as they can be read.
        const auto steps = [&window] {
            QVector<int> counts;
            for (const DiagramView *view : window.diagrams()->views())
                counts << int(view->plot()->yAxis->tickVector().size());
            return counts;
        };
        const QVector<int> before = steps();
        window.resize(size + QSize(8, 8));
        check("after another size: ");
        window.resize(size);
        check("back again: ");
        QCOMPARE(steps(), before);
        // A diagram of its own for each: the marker of Tr3 stays with it.
        model.setActiveTrace(3);
        check("of other traces: ");
        int drawn = 0;
        for (const DiagramView *view : window.diagrams()->views())
            drawn += view->drawnMarker(3, 1) && view->drawnMarker(3, 1)->isVisible();
        QCOMPARE(drawn, 1);
    }

    void writesTheFrequenciesThatItShows()
    {
        Desk desk(QSize(1280, 800));
        const auto is = [&desk](const char *left, const char *centre, const char *right) {
            Desk::settle();
            desk.checkRules();
            const QStringList wanted{QString::fromUtf8(left), QString::fromUtf8(centre),
                                     QString::fromUtf8(right)};
            if (desk.frequencies() != wanted)
                qInfo() << desk.frequencies();
            return desk.frequencies() == wanted;
        };
        QVERIFY(is("2.3 GHz", "2.45 GHz \u00b7 30 MHz/", "2.6 GHz"));
        desk.model.setActiveTrace(3);
        desk.model.setZoom(desk.view()->id(), {4.0, 0.5, 0.0});
        QVERIFY(is("2.4875 GHz", "2.525 GHz \u00b7 7.5 MHz/", "2.5625 GHz"));
        desk.model.setZoom(desk.view()->id(), Zoom());
        desk.model.setStimulus(*desk.model.activeTrace(), {2.4e9, 2.5e9});
        QVERIFY(is("2.4 GHz", "2.45 GHz \u00b7 10 MHz/", "2.5 GHz"));
        // Of two files all that there is, whichever trace is active.
        desk.show({slope(11, 1e9, 2e9), slope(11, 3e9, 4e9)});
        QVERIFY(is("1 GHz", "2.5 GHz \u00b7 300 MHz/", "4 GHz"));
        desk.model.setActiveTrace(7);
        QVERIFY(is("1 GHz", "2.5 GHz \u00b7 300 MHz/", "4 GHz"));
    }

    void logarithmicAxisHasRoundFrequencies()
    {
        Desk desk(QSize(1280, 800));
        Network network = slope(1001, 0.0, 10e9); // of which the first has no logarithm
        desk.show({network});
        desk.model.setActiveTrace(3);
        desk.model.viewSettings()->setFrequencyScale(FrequencyScale::Logarithmic);
        Desk::settle();
        QCOMPARE(desk.frequencies().first(), "10 MHz"_s);
        QVERIFY2(desk.frequencies().contains("1 GHz"_s),
                 qPrintable(desk.frequencies().join(" | "_s)));
        const QCPAxis *axis = desk.view()->plot()->xAxis;
        const QCPRange whole = axis->range();
        // A decade is as wide as another, and the middle of the zoom is that of the screen.
        QVERIFY(qAbs(axis->coordToPixel(1e8) - axis->coordToPixel(1e7) - axis->coordToPixel(1e9)
                     + axis->coordToPixel(1e8))
                < 0.01);
        const QPointF middle = desk.view()->plot()->axisRect()->rect().center();
        const double there = desk.view()->coordinates(middle).x();
        const Zoom zoom = desk.view()->zoomedAt(middle, 3.0);
        desk.model.setZoom(desk.view()->id(), zoom);
        Desk::settle();
        desk.checkRules();
        QVERIFY(qAbs(desk.view()->coordinates(middle).x() / there - 1.0) < 1e-6);
        QVERIFY(qAbs(3.0 * std::log(axis->range().upper / axis->range().lower)
                         / std::log(whole.upper / whole.lower)
                     - 1.0)
                < 1e-6);
        // A finger that pulls to the left comes to higher frequencies.
        desk.model.setZoom(desk.view()->id(),
                           desk.view()->movedTo({there, 0.0}, middle - QPointF(50.0, 0.0)));
        Desk::settle();
        QVERIFY(qAbs(axis->coordToPixel(there) - middle.x() + 50.0) < 0.5);
    }

    /// A phase that begins anew is not joined, however many points a pixel column has.
    void turnsOfThePhaseAreNotJoined()
    {
        Desk desk(QSize(1100, 700));
        desk.setLayout(Graph::LayoutType::SideBySide);
        desk.model.setTraceFormat(3, TraceFormat::Phase);
        desk.model.setActiveTrace(3);
        desk.model.setTraceVisible(4, false);
        Desk::settle();
        const TraceData data = desk.model.traceData(*desk.model.trace(3));
        const QVector<double> values = formatValues(data, TraceFormat::Phase);
        const QCPAxis *axis = desk.view()->plot()->xAxis;
        const QImage picture = desk.view()->plot()->grab().toImage();
        const QColor color = currentLook().trace(3);
        int turns = 0;
        for (int i = 1; i < values.size(); ++i) {
            if (std::abs(values.at(i) - values.at(i - 1)) < 180.0)
                continue;
            ++turns;
            const int column = qRound(axis->coordToPixel(data.frequencies.at(i)));
            for (int x = column - 2; x <= column + 2; ++x) {
                int drawn = 0;
                for (int y = 0; y < picture.height(); ++y) {
                    const QColor here = picture.pixelColor(x, y);
                    drawn += std::abs(here.hslHue() - color.hslHue()) < 8 && here.value() > 80;
                }
                QVERIFY2(drawn < picture.height() / 4, qPrintable(QString::number(drawn)));
            }
        }
        QVERIFY(turns > 1);
    }

    void offersToFitWhatIsOutside()
    {
        Desk desk;
        desk.model.setActiveTrace(3);
        QVERIFY(!desk.view()->fitButton()->isVisible());
        desk.model.setTraceScale(4, {10.0, -200.0});
        QVERIFY(desk.view()->fitButton()->isVisible());
        QCOMPARE(desk.view()->fitButton()->text(), "Tr4 S12 lies above: fit"_s);
        // Of several the active one.
        const Scale sound = desk.model.trace(3)->scale;
        desk.model.setTraceScale(3, {10.0, -200.0});
        for (const int active : {4, 3}) {
            desk.model.setActiveTrace(active);
            QVERIFY(desk.view()->fitButton()->text().startsWith("Tr%1 "_s.arg(active)));
        }
        desk.model.setTraceScale(3, sound);
        desk.model.setTraceVisible(4, false);
        QVERIFY(!desk.view()->fitButton()->isVisible());
        desk.model.setTraceVisible(4, true);
        Desk::settle();
        desk.click(desk.view()->fitButton());
        QVERIFY(!desk.view()->fitButton()->isVisible());
        const Trace &fitted = *desk.model.trace(4);
        QVERIFY(fitted.scale.top
                >= valueRange(desk.model.traceData(fitted), fitted.format).highest);
    }

    /// Where markers of two traces coincide, the active trace's are seen and meant.
    void activeMarkersLieOnTop()
    {
        Desk desk;
        desk.show({slope(1001)}); // S12 is S21
        for (const int trace : {3, 4})
            desk.model.addMarker(trace, 500.0);
        for (const int active : {4, 3, 4}) {
            desk.model.setActiveTrace(active);
            Desk::settle();
            const QCPLayer *layer = desk.view()->drawnMarker(3, 1)->getTracer()->layer();
            const auto depth = [&](int trace) {
                return layer->children().indexOf(desk.view()->drawnMarker(trace, 1)->getTracer());
            };
            QVERIFY(depth(active) > depth(7 - active));
            mouseClick(&desk.window, desk.onTrace(active, 500) - QPoint(0, 6));
            QCOMPARE(desk.model.selectedMarker(), desk.model.marker(active, 1));
            desk.model.selectMarker(0, 0);
        }
    }

    /// Whatever becomes of its trace, in every format, and after a restart.
    void aFixedMarkerKeepsItsValue()
    {
        Desk desk;
        desk.openSamples({"amplifier.s2p"_s});
        desk.model.setActiveTrace(3);
        desk.model.addMarker(3, 200.0);
        desk.model.addMarker(3, 100.0);
        const std::complex<double> kept = desk.model.traceData(*desk.model.trace(3)).at(100);
        desk.model.setMarkerTracking(3, 2, Tracking::Fixed);
        desk.model.setReferenceMarker(3, 2);
        const auto read = [&](int number) {
            return readMarker(desk.model, *desk.model.marker(3, number)).numbers.first();
        };
        const double apart = read(1);

        Network halved = desk.model.networks().first();
        for (Parameter &parameter : halved.parameters) {
            for (int i = 0; i < halved.points(); ++i) {
                parameter.real[i] /= 2.0;
                parameter.imag[i] /= 2.0;
            }
        }
        QVERIFY(desk.model.updateNetwork(0, halved));
        desk.model.moveMarker(3, 2, 300.0);
        desk.settle();
        const double decibels = 20.0 * std::log10(std::abs(kept));
        QVERIFY(std::abs(read(2) - decibels) < 1e-9);
        QVERIFY(std::abs(read(1) - (apart - 20.0 * std::log10(2.0))) < 1e-9);
        QVERIFY(std::abs(desk.drawn(3, 2).y() - decibels) < 1e-9);
        QCOMPARE(markerName(desk.model, *desk.model.marker(3, 2)), "M2FR"_s);

        const QJsonObject state = viewState(desk.model);
        desk.model.setMarkerTracking(3, 2, Tracking::Off);
        QVERIFY(std::abs(read(2) - (decibels - 20.0 * std::log10(2.0))) < 1e-9);
        desk.model.moveMarker(3, 2, 300.0);
        restoreViewState(&desk.model, state);
        QVERIFY(std::abs(read(2) - decibels) < 1e-9);
        QCOMPARE(desk.model.indexOf(*desk.model.marker(3, 2)), 100.0);

        for (const TraceFormat format : {TraceFormat::Smith, TraceFormat::Polar}) {
            desk.model.setTraceFormat(3, format);
            desk.settle();
            const DiagramView *view = desk.window.diagrams()->activeView();
            const double full = format == TraceFormat::Polar ? desk.model.trace(3)->scale.top : 1.0;
            const QPointF place = view->drawnMarker(3, 2)->getTracer()->position->coords();
            QVERIFY(std::abs(place.x() - kept.real() / full) < 1e-9);
            QVERIFY(std::abs(place.y() - kept.imag() / full) < 1e-9);
            desk.checkRules();
        }
        // What the neighbours decide is not known of a single point.
        desk.model.setTraceFormat(3, TraceFormat::GroupDelay);
        QVERIFY(std::isnan(read(2)));
    }
};

QTEST_MAIN(CartesianViewTest)
#include "tst_cartesianview.moc"
