// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desk.h"

#include <panel/diagrams/readouts.h>

#include <cmath>

using namespace VnaTest;
using namespace Panel;

namespace
{

/// A two-port of so many points between two frequencies whose parameters fall from 0 dB to -40 dB
/// and turn as they go; one point is a spike of 20 dB.
Network slope(int points, double start = 1e9, double stop = 2e9)
{
    Network network;
    network.ports = 2;
    network.parameters.resize(4);
    const int spike = points * 3 / 10;
    for (int i = 0; i < points; ++i) {
        const double share = double(i) / (points - 1);
        network.frequencies.append(start + (stop - start) * share);
        const double magnitude = i == spike ? 10.0 : std::pow(10.0, -2.0 * share);
        for (Parameter &parameter : network.parameters) {
            parameter.real.append(magnitude * std::cos(20.0 * share));
            parameter.imag.append(magnitude * std::sin(20.0 * share));
        }
    }
    return network;
}

struct Desk : PanelDesk {
    CartesianView *view() const { return window.cartesianView(); }
    QCustomPlot *plot() const { return view()->plot(); }
    /// A point of a trace in pixels of the window.
    QPoint onTrace(int traceId, int index) const
    {
        const Trace &trace = *model.trace(traceId);
        const double value = cartesianValueAt(model.data(trace), index, TraceFormat::LogMagnitude);
        const double hertz = model.network(trace).frequencies.at(index);
        const QPointF point(plot()->xAxis->coordToPixel(hertz), plot()->yAxis->coordToPixel(value));
        return plot()->mapTo(&window, point.toPoint());
    }
    QCPRange x() const { return plot()->xAxis->range(); }
    QCPRange y() const { return plot()->yAxis->range(); }
};

} // namespace

class CartesianViewTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
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

    void readsDecibelsAndDegrees()
    {
        QCOMPARE(cartesianValue(0.0, -0.1, TraceFormat::LogMagnitude), -20.0);
        QCOMPARE(cartesianValue(0.0, 0.0, TraceFormat::LogMagnitude), -300.0);
        QCOMPARE(cartesianValue(-1.0, 0.0, TraceFormat::Phase), 180.0);
        QCOMPARE(cartesianValue(1.0, -1.0, TraceFormat::Phase), -45.0);
        QCOMPARE(cartesianText(-1.324, TraceFormat::LogMagnitude), "\u22121.32 dB"_s);
        QCOMPARE(cartesianText(90.0, TraceFormat::Phase), "90.0\u00b0"_s);
    }

    void thinsWithoutLosingPeaks()
    {
        QVERIFY(cartesianLine({}, {}, TraceFormat::Phase, 100).values.isEmpty());
        for (const int points : {400, 100003}) { // few are all drawn
            const Network network = slope(points);
            const Parameter parameter = network.s(2, 1);
            for (const auto format : {TraceFormat::LogMagnitude, TraceFormat::Phase}) {
                const CartesianLine line =
                    cartesianLine(network.frequencies, parameter, format, 100);
                QCOMPARE(line.values.size(), line.frequencies.size());
                QVERIFY(line.values.size() <= 400);
                // Both ends, and the extremes of the whole.
                QCOMPARE(line.frequencies.first(), network.frequencies.first());
                QCOMPARE(line.frequencies.last(), network.frequencies.last());
                QVERIFY(std::is_sorted(line.frequencies.begin(), line.frequencies.end()));
                QVector<double> all;
                for (int i = 0; i < points; ++i)
                    all << cartesianValueAt(parameter, i, format);
                const auto [least, most] = std::minmax_element(all.begin(), all.end());
                const auto ends = std::minmax_element(line.values.begin(), line.values.end());
                QCOMPARE(*ends.first, *least);
                QCOMPARE(*ends.second, *most);
            }
        }
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
        auto *layout = desk.model.viewSettings()->layoutProfile();
        const auto shown = [&desk] {
            return std::pair(desk.window.smithView()->isVisible(), desk.view()->isVisible());
        };
        layout->setLayoutType(Graph::LayoutType::Single);
        QCOMPARE(shown(), std::pair(true, false));
        desk.model.setActiveTrace(4);
        QCOMPARE(shown(), std::pair(false, true));
        layout->setLayoutType(Graph::LayoutType::Quad);
        QCOMPARE(desk.window.diagrams()->views().size(), 4);
        desk.model.setTraceFormat(4, TraceFormat::Smith);
        QCOMPARE(desk.window.diagrams()->activeView()->traceIds(), QVector<int>{4});
        QVERIFY(qobject_cast<SmithView *>(desk.window.diagrams()->activeView()));
        layout->setLayoutType(Graph::LayoutType::SideBySide);
        QCOMPARE(desk.window.smithView()->traceIds(), (QVector<int>{1, 2, 4}));
        QCOMPARE(desk.view()->traceIds(), QVector<int>{3});
        desk.model.setNetworks({});
        QVERIFY(desk.window.diagrams()->views().isEmpty());
    }

    void markersFollowTheirPointer()
    {
        Desk desk;
        mouseDoubleClick(&desk.window, desk.onTrace(3, 600));
        QCOMPARE(desk.model.activeTrace()->id, 3);
        const Marker *marker = desk.model.marker(3, 1);
        QVERIFY(marker && std::abs(marker->index - 600.0) < 4.0);
        QCOMPARE(desk.model.selectedMarker(), marker);
        QVERIFY(desk.view()->readOuts()->height() > 10);

        // Its triangle stands on the point.
        const QPoint grip = desk.onTrace(3, int(marker->index)) - QPoint(0, 8);
        const QPoint to(desk.onTrace(3, 900).x(), grip.y());
        mouseDrag(desk.window.windowHandle(), grip, to, 5);
        QVERIFY(std::abs(marker->index - 900.0) < 4.0);
        const double index = marker->index;
        const Parameter &data = desk.model.data(*desk.model.trace(3));
        QCOMPARE(desk.view()->marker(3, 1)->getTracer()->position->value(),
                 cartesianValueAt(data, index, TraceFormat::LogMagnitude));
        mouseMove(&desk.window, grip);
        QCOMPARE(marker->index, index);

        desk.model.setTraceVisible(3, false);
        QVERIFY(!desk.view()->marker(3, 1)->isVisible());
        desk.model.setTraceVisible(3, true);
        // Beside the marker a tap selects none, and activates the diagram it is on.
        desk.model.setActiveTrace(1);
        mouseClick(&desk.window, desk.onTrace(3, 300) + QPoint(0, 60));
        QCOMPARE(desk.model.activeTrace()->id, 3);
        QVERIFY(!desk.model.selectedMarker());
        desk.model.removeMarker(3, 1);
        QVERIFY(!desk.view()->marker(3, 1));
    }

    void followsNewDataAndFormats()
    {
        Desk desk;
        desk.model.setNetworks({slope(1001)});
        Desk::settle();
        // Room for the spike of 20 dB.
        QVERIFY(desk.y() == QCPRange(-80.0, 20.0));
        desk.model.addMarker(3, 1000.0);
        Network network = slope(200001, 1.5e9, 2.5e9);
        QVERIFY(desk.model.updateNetwork(0, network));
        QVERIFY(desk.x() == QCPRange(1.5e9, 2.5e9));
        QVERIFY(desk.view()->drawnPoints() < 20000);
        // The marker kept its frequency, which is in the middle now.
        QCOMPARE(desk.model.marker(3, 1)->index, 100000.0);
        const auto position = [&desk] {
            return desk.view()->marker(3, 1)->getTracer()->position->coords();
        };
        QVERIFY(std::abs(position().x() - 2e9) < 1.0 && std::abs(position().y() + 20.0) < 0.01);

        Q_EMIT desk.keys().format->choicePicked(int(TraceFormat::Phase));
        QVERIFY(desk.y() == QCPRange(-180.0, 180.0));
        const double turned = std::remainder(10.0 * 180.0 / std::acos(-1.0), 360.0);
        QVERIFY(std::abs(position().y() - turned) < 0.01);

        // Data of another kind is refused.
        network.ports = 1;
        QVERIFY(!desk.model.updateNetwork(0, network));
        QVERIFY(!desk.model.updateNetwork(1, slope(3)));
        QVERIFY(!desk.model.updateNetwork(0, Network()));
        QCOMPARE(desk.model.networks().first().ports, 2);

        // The limit of the zoom holds over other frequencies, too.
        desk.view()->setZoom(DiagramView::mostZoom);
        desk.model.setNetworks({slope(1001, 4e9, 8e9)});
        QCOMPARE(desk.view()->zoom(), DiagramView::mostZoom);
        // A view without traces has no other frequencies, and no other magnification than any.
        QCOMPARE(CartesianView(&desk.model).zoom(), 1.0);
    }
};

QTEST_MAIN(CartesianViewTest)
#include "tst_cartesianview.moc"
