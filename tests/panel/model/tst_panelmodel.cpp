// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "vnatest.h"

#include <panel/diagrams/markerreading.h>
#include <panel/ground/numbertext.h>
#include <panel/model/panelmodel.h>

#include <cmath>

using namespace VnaTest;
using namespace Panel;

namespace
{

/// A network whose parameters are 0, 1 and so on at each of its frequencies.
Network network(int ports, const QVector<double> &frequencies = {1e9})
{
    Network result;
    result.ports = ports;
    result.frequencies = frequencies;
    const QVector<double> zeros(frequencies.size());
    for (int i = 0; i < ports * ports; ++i)
        result.parameters.append({QVector<double>(zeros.size(), i), zeros});
    return result;
}

QStringList names(const PanelModel &model)
{
    QStringList result;
    for (const Trace &trace : model.traces())
        result << QString::number(trace.id) + QLatin1Char(' ') + PanelModel::parameterName(trace);
    return result;
}

double index(const PanelModel &model, int trace, int number)
{
    const Marker *marker = model.marker(trace, number);
    return marker ? model.indexOf(*marker) : qQNaN();
}

} // namespace

class PanelModelTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void makesATraceOfEachParameter()
    {
        PanelModel model;
        QVERIFY(!model.activeTrace());
        model.openNetworks({network(1), network(2)});
        QCOMPARE(names(model),
                 (QStringList{"1 S11"_s, "2 S11"_s, "3 S11"_s, "4 S22"_s, "5 S21"_s, "6 S12"_s}));
        QCOMPARE(model.traceData(*model.trace(5)).parameter.real, QVector<double>{1.0});
        QCOMPARE(model.activeTrace(DiagramKind::Cartesian), model.trace(2));
        QCOMPARE(model.traceData(*model.trace(4)).parameter.real, QVector<double>{3.0});
        QCOMPARE(model.network(*model.trace(4)).ports, 2);
        QCOMPARE(model.activeTrace(), model.trace(1));

        model.setActiveTrace(5);
        model.setActiveTrace(3);
        QCOMPARE(model.activeTrace(DiagramKind::Cartesian), model.trace(5));
        QCOMPARE(model.activeTrace(DiagramKind::Smith), model.trace(3));
        model.setTraceVisible(3, false);
        model.openNetworks({network(1)});
        QCOMPARE(names(model), (QStringList{"1 S11"_s, "2 S11"_s}));
        QCOMPARE(model.activeTrace()->id, 1);
        QVERIFY(model.activeTrace()->visible);
        QCOMPARE(model.activeTrace(DiagramKind::Cartesian)->format, TraceFormat::LogMagnitude);

        model.openNetworks({});
        QVERIFY(!model.activeTrace());
        QVERIFY(!model.trace(0));
    }

    void tellsWhatChanged()
    {
        PanelModel model;
        model.openNetworks({network(2)});
        QStringList told;
        note(told, "active", &model, &PanelModel::activeTraceChanged);
        note(told, "visible", &model, &PanelModel::traceVisibleChanged);
        for (const int id : {1, 0, -1, 5, 2, 2})
            model.setActiveTrace(id);
        QCOMPARE(model.activeTrace()->id, 2);
        model.setTraceVisible(1, true);
        model.setTraceVisible(7, false);
        model.setTraceVisible(1, false);
        QCOMPARE(told, (QStringList{"active"_s, "visible 1 false"_s}));

        model.setActiveTrace(1);
        note(told, "selected", &model, &PanelModel::selectedMarkerChanged);
        model.addMarker(2, 0.0);
        QCOMPARE(model.activeTrace()->id, 2);
        QCOMPARE(model.selectedMarker(), model.marker(2, 1));
        QCOMPARE(told.count("selected"_s), 1);
        model.setActiveTrace(1);
        QVERIFY(!model.selectedMarker());
        QCOMPARE(told.count("selected"_s), 2);
        model.selectMarker(2, 1);
        QCOMPARE(model.activeTrace()->id, 2);
        model.removeMarker(2, 1);
        QVERIFY(!model.selectedMarker());
        QCOMPARE(told.count("selected"_s), 4);
        model.selectMarker(2, 1);
        QCOMPARE(told.count("selected"_s), 4);
    }

    void takesOnlySoundLimits()
    {
        PanelModel model;
        model.openNetworks({network(2)});
        QStringList told;
        note(told, "limits", &model, &PanelModel::limitsChanged);
        const LimitLine limit{TraceFormat::LogMagnitude, true, 1e9, 2e9, -3.0, -3.0};
        LimitLine backwards = limit;
        backwards.stop = 0.5e9;
        model.setLimits(7, {limit});
        model.setLimits(1, {limit, backwards});
        model.setLimits(1, QVector<LimitLine>(LimitLine::perTrace + 1, limit));
        QVERIFY(told.isEmpty() && model.trace(1)->limits.isEmpty());
        model.setLimits(1, {limit});
        model.setLimits(1, {limit});
        QCOMPARE(told, QStringList{"limits 1"_s});
        model.setLimits(1, QVector<LimitLine>(LimitLine::perTrace, limit));
        QCOMPARE(model.trace(1)->limits.size(), int(LimitLine::perTrace));
    }

    void numbersMarkers()
    {
        PanelModel model;
        model.openNetworks({network(1, {1e9, 2e9, 3e9})});
        QStringList told;
        note(told, "exhausted", &model, &PanelModel::markersExhausted);
        note(told, "moved", &model, &PanelModel::markerMoved);
        for (const double outside : {-0.1, 2.1, qQNaN()})
            QCOMPARE(model.addMarker(1, outside), 0);
        QCOMPARE(model.addMarker(3, 0.0), 0);
        for (int number = 1; number <= Markers::perTrace; ++number)
            QCOMPARE(model.addMarker(1, 2.0), number);
        QVERIFY(told.isEmpty());
        QCOMPARE(model.addMarker(1, 0.0), 0);
        model.removeMarker(1, 2);
        model.removeMarker(1, 2);
        QCOMPARE(model.addMarker(1, 0.5), 2);
        QCOMPARE(index(model, 1, 2), 0.5);

        for (const double index : {0.5, -1.0, 3.0, 1.0})
            model.moveMarker(1, 2, index);
        QCOMPARE(told, (QStringList{"exhausted 1"_s, "moved 1 2"_s}));
        QCOMPARE(index(model, 1, 2), 1.0);

        model.openNetworks(QVector<Network>(model.networks()));
        QVERIFY(model.markers().isEmpty());
    }

    void formatsAndMemory()
    {
        PanelModel model;
        Network filter = network(2);
        filter.parameters[1] = {{31.6}, {0.0}}; // S21 of 30 dB
        model.openNetworks({filter});
        QCOMPARE(model.trace(3)->scale, (Scale{10.0, 30.0}));
        QCOMPARE(model.trace(4)->scale, model.trace(3)->scale); // comparable
        QStringList told;
        note(told, "traces", &model, &PanelModel::tracesChanged);
        note(told, "scale", &model, &PanelModel::traceScaleChanged);
        note(told, "memory", &model, &PanelModel::memoryChanged);
        model.setTraceFormat(3, TraceFormat::Phase);
        model.setTraceFormat(3, TraceFormat::Phase);
        model.setTraceFormat(9, TraceFormat::Phase);
        QCOMPARE(told, QStringList("traces"_s));
        told.clear();
        QCOMPARE(divisionText(model.trace(3)->format, model.trace(3)->scale.perDivision),
                 "45\u00b0/"_s);
        for (const Scale &bad : {Scale{0.0, 1.0}, Scale{-1.0, 1.0}, Scale{qQNaN(), 1.0},
                                 Scale{1.0, qInf()}, model.trace(3)->scale})
            model.setTraceScale(3, bad);
        QVERIFY(told.isEmpty());
        model.setTraceScale(3, {30.0, 90.0});
        model.storeMemory(3);
        QCOMPARE(told, (QStringList{"scale 3"_s, "memory 3"_s}));
        QCOMPARE(model.memory(3)->parameter.real, QVector<double>{31.6});
        model.setTraceParameter(3, 3, 1);
        QVERIFY(model.memory(3));
        model.setTraceParameter(3, 2, 2);
        QVERIFY(!model.memory(3));
        QCOMPARE(PanelModel::parameterName(*model.trace(3)), "S22"_s);
        model.clearMemory(3);
        QCOMPARE(told.count("memory 3"_s), 2);
    }

    void couplesMarkers()
    {
        PanelModel model;
        model.openNetworks({network(1, {1e9, 2e9, 3e9}), network(1, {1.5e9, 2e9, 2.5e9})});
        model.addMarker(1, 0.25);
        model.setMarkersCoupled(true);
        QCOMPARE(index(model, 2, 1), 0.25);
        QCOMPARE(index(model, 3, 1), -1.0); // 1.25 GHz lies outside
        model.moveMarker(1, 1, 0.75);
        QCOMPARE(index(model, 3, 1), 0.5);
        model.moveMarker(4, 1, 1.5);
        QCOMPARE(index(model, 1, 1), 1.25);
        model.setMarkersDiscrete(true);
        QCOMPARE(index(model, 1, 1), 1.0);
        model.setReferenceMarker(4, 1);
        QCOMPARE(model.referenceMarker(4), model.marker(4, 1));
        model.removeMarker(2, 1);
        QVERIFY(model.markers().isEmpty() && !model.referenceMarker(4));
    }

    /// Markers and the reference that other traces have come along, whichever trace is active.
    void couplingTakesTheMarkersOfAll()
    {
        PanelModel model;
        model.openNetworks({network(2, {1e9, 2e9, 3e9}), network(2, {1e9, 2e9, 3e9})});
        QCOMPARE(model.addMarker(1, 0.25), 1);
        QCOMPARE(model.addMarker(1, 1.75), 2);
        model.setReferenceMarker(1, 2);
        model.addMarker(3, 1.0);
        QCOMPARE(model.activeTrace()->id, 3);
        QStringList told;
        note(told, "reference", &model, &PanelModel::referenceMarkerChanged);
        model.setMarkersCoupled(true);
        QCOMPARE(told.size(), 7);
        for (const Trace &trace : model.traces()) {
            QCOMPARE(index(model, trace.id, 1), 1.0); // the active trace's own
            QCOMPARE(index(model, trace.id, 2), 1.75);
            QCOMPARE(model.referenceMarker(trace.id), model.marker(trace.id, 2));
        }
    }

    void parkedMarkersComeBack()
    {
        PanelModel model;
        model.openNetworks(
            {network(1, {70e9, 75e9, 79e9, 80e9}), network(1, {1e9, 1e9, 1e9, 2e9})});
        const auto show = [&model](double start, double stop) {
            model.setStimulus(*model.trace(1), {start, stop});
        };
        model.addMarker(1, 1.0);
        model.addMarker(1, 1.5);
        show(752.4e9, 752.4e9); // a slip of the finger
        QCOMPARE(index(model, 1, 1), -1.0);
        QCOMPARE(model.hertzOf(*model.marker(1, 1)), 75e9);
        const MarkerReading reading = readMarker(model, *model.marker(1, 1));
        QCOMPARE(reading.frequency, "75.000 GHz"_s);
        QCOMPARE(reading.values.first(), nothingText());
        model.setMarkersDiscrete(true);
        QCOMPARE(index(model, 1, 1), -1.0);
        model.setMarkersDiscrete(false);
        show(70e9, 80e9);
        QCOMPARE(index(model, 1, 1), 1.0);
        QCOMPARE(index(model, 1, 2), 1.5);
        // Of points at the same frequency it keeps its own.
        model.addMarker(3, 2.0);
        model.setStimulus(*model.trace(3), {1e9, 1e9});
        model.setStimulus(*model.trace(3), {1e9, 2e9});
        QCOMPARE(index(model, 3, 1), 2.0);
        // Data of another length leave it at its frequency, those of another band park it.
        QVERIFY(model.updateNetwork(0, network(1, {75e9, 76e9})));
        QCOMPARE(index(model, 1, 1), 0.0);
        QVERIFY(model.updateNetwork(0, network(1, {1e9, 2e9})));
        QCOMPARE(index(model, 1, 1), -1.0);
        QVERIFY(model.updateNetwork(0, network(1, {74e9, 76e9})));
        QCOMPARE(index(model, 1, 1), 0.5);
    }

    void startAndStopTakeEachOtherAlong()
    {
        const std::tuple<decltype(&withStart), double, Stimulus> rows[] = {
            {withStart, 150.0, {150.0, 200.0}},
            {withStart, 300.0, {300.0, 300.0}}, // beyond the stop
            {withStart, -1.0, {0.0, 200.0}},
            {withStop, 500.0, {100.0, 500.0}},
            {withStop, 50.0, {50.0, 50.0}}, // below the start
            {withCenter, 700.0, {650.0, 750.0}},
            {withCenter, 990.0, {980.0, 1000.0}}, // near the edge
            {withSpan, 20.0, {140.0, 160.0}},
            {withSpan, 400.0, {0.0, 400.0}}, // beyond the edge
            {withSpan, 5000.0, {0.0, 1000.0}},
        };
        for (const auto &[change, value, expected] : rows) {
            const Row row(QString::number(value));
            QCOMPARE(change({100.0, 200.0}, value, {0.0, 1000.0}, 0.0), expected);
        }
        // A device sweeps its smallest span at the least, and never on to its limit.
        PanelModel model;
        model.setSource(Source::Filter);
        model.beginMeasurement(network(2, {2.3e9, 2.6e9}));
        const Trace &trace = *model.activeTrace();
        model.setStimulus(
            trace,
            withStart(model.stimulus(trace), 2.7e9, model.limits(trace), model.smallestSpan()));
        QCOMPARE(model.stimulus(trace).start, 2.7e9);
        QCOMPARE(model.stimulus(trace).stop, 2.7e9 + Sweep::smallestSpan);
    }

    /// A scale belongs to its trace, and fits whatever that shows.
    void scalesFitTheirTraces()
    {
        const std::tuple<TraceFormat, double, double, Scale> rows[] = {
            {TraceFormat::LogMagnitude, -3.2, -1.1, {0.5, 0.0}},
            {TraceFormat::LogMagnitude, -95.0, 12.0, {20.0, 60.0}},
            {TraceFormat::Phase, -170.0, 170.0, {45.0, 180.0}},
            {TraceFormat::LogMagnitude, -46.0, -2.0, {5.0, 0.0}},
            {TraceFormat::Vswr, 1.2, 8.0, {1.0, 11.0}},
            {TraceFormat::Vswr, 5.0, qInf(), {1.0, 11.0}},
        };
        for (const auto &[format, lowest, highest, expected] : rows) {
            const Row row(formatName(format) + QString::number(highest));
            const Scale scale = fittingScale(format, lowest, highest);
            QVERIFY2(scale == expected,
                     qPrintable("%1 %2"_s.arg(scale.perDivision).arg(scale.top)));
            QVERIFY(bottom(format, scale) <= lowest);
        }
        // As large as steps of 1, 2 and 5 allow, and within the edges.
        for (int i = 0; i < 2000; ++i) {
            const double lowest = -50.0 + 0.037 * i, span = 1.5 + 0.0131 * i;
            const Scale scale = fittingScale(TraceFormat::LogMagnitude, lowest, lowest + span);
            const double filled = span / (10.0 * scale.perDivision);
            QVERIFY2(filled > 0.36 && filled <= 0.9 + 1e-9, qPrintable(QString::number(filled)));
            QVERIFY(scale.top >= lowest + span - 1e-9);
            QVERIFY(bottom(TraceFormat::LogMagnitude, scale) <= lowest + 1e-9);
        }
        PanelModel model;
        Network amplifier = network(1, {1e9, 2e9});
        amplifier.parameters.first().real = {0.001, 100.0}; // -60 dB and 40 dB
        model.openNetworks({amplifier});
        model.setTraceScale(2, {0.1, -200.0});
        model.fitTrace(2);
        QVERIFY(model.trace(2)->scale.top >= 40.0);
        QVERIFY(bottom(TraceFormat::LogMagnitude, model.trace(2)->scale) <= -60.0);
        model.setTraceScale(2, {0.1, -200.0});
        model.openNetworks({network(1)});
        QCOMPARE(model.trace(2)->scale, traits(TraceFormat::LogMagnitude).defaultScale);
    }

    /// What was arranged of files is there again after a measurement, and the other way round.
    void sourcesKeepTheirArrangement()
    {
        const Network twoPort = network(2, {1e9, 2e9, 3e9});
        PanelModel model;
        const auto arrange = [&model](TraceFormat format, double hertz) {
            model.setTraceFormat(1, format);
            model.storeMemory(2);
            model.addMarker(2, 1.0);
            model.setZoom({DiagramKind::Cartesian, 0}, {hertz / 1e9, 0.5, 0.5});
        };
        const auto check = [&model](TraceFormat format, double hertz) {
            QCOMPARE(model.trace(1)->format, format);
            QVERIFY(model.memory(2) && !model.memory(1));
            QCOMPARE(model.markersOf(2).size(), 1);
            QCOMPARE(model.zoom({DiagramKind::Cartesian, 0}).factor, hertz / 1e9);
        };
        model.openNetworks({twoPort});
        arrange(TraceFormat::Phase, 2e9);
        model.setStimulus(*model.trace(1), {1.5e9, 3e9});
        model.setSource(Source::Filter);
        check(TraceFormat::Phase, 2e9); // until there is something to show
        model.beginMeasurement(twoPort);
        QCOMPARE(model.trace(1)->format, TraceFormat::Smith);
        QVERIFY(model.markers().isEmpty() && model.memories().isEmpty());
        arrange(TraceFormat::GroupDelay, 3e9);
        model.setMarkersDiscrete(true);

        model.setSource(Source::Files);
        check(TraceFormat::Phase, 2e9);
        QCOMPARE(model.stimulus(*model.trace(1)).start, 1.5e9);
        QVERIFY(model.markersDiscrete());
        model.setSource(Source::Antenna);
        model.beginMeasurement(network(1));
        model.setSource(Source::Filter);
        model.beginMeasurement(twoPort);
        check(TraceFormat::GroupDelay, 3e9);
        // Read again with other ports, and opened anew: all is as at first.
        model.updateFile(0, network(1));
        model.setSource(Source::Files);
        QCOMPARE(model.trace(1)->format, TraceFormat::Smith);
        model.setSource(Source::Filter);
        model.beginMeasurement(twoPort);
        model.openNetworks({twoPort});
        QCOMPARE(model.trace(1)->format, TraceFormat::Smith);
    }

    void sourcesTakeTurns()
    {
        PanelModel model;
        QStringList told;
        note(told, "networks", &model, &PanelModel::networksChanged);
        note(told, "tuning", &model, &PanelModel::tuningChanged);
        note(told, "state", &model, &PanelModel::sourceStateChanged);
        model.openNetworks({network(2)});
        model.setSourceState({}, {}); // files have none
        model.beginMeasurement(network(1)); // late, of a simulation that has ended
        QCOMPARE(model.networks().first().ports, 2);
        model.setSource(Source::Antenna);
        QCOMPARE(model.networks().first().ports, 2); // until there is something to show
        QVERIFY(!told.contains("state"_s));
        model.setSourceState({}, {});
        QCOMPARE(told.takeLast(), "state"_s);
        model.beginMeasurement(network(1));
        QCOMPARE(model.networks().first().ports, 1);
        model.updateFile(0, network(2, {1e9, 3e9})); // read again behind the simulation
        QCOMPARE(told, (QStringList{"networks"_s, "networks"_s}));
        model.setSource(Source::Files);
        QCOMPARE(model.networks().first().points(), 2);
        for (const auto &[hertz, kept] : {std::pair(2.2e9, 2.2e9),
                                          {9e9, 2.9e9},
                                          {qInf(), 2.9e9},
                                          {1.0, 2.0e9},
                                          {qQNaN(), 2.0e9}}) {
            model.setTuning(hertz);
            QCOMPARE(model.tuning(), kept);
        }
        QCOMPARE(told.count("tuning"_s), 3);
    }

    void writesNumbers()
    {
        for (const auto &[value, text] : {std::pair(0.0, "0.000 H"),
                                          {1.0, "1.000 H"},
                                          {999.96, "1.000 kH"}, // rounds up to the next prefix
                                          {999.94, "999.9 H"},
                                          {0.01234, "12.34 mH"},
                                          {-4.7e-6, "\u22124.700 \u00b5H"},
                                          {1e-18, "0.001 fH"},
                                          {1.5e16, "15000 TH"}})
            QCOMPARE(engineeringText(value, "H"_s), QString::fromUtf8(text));
        for (const auto &[hertz, text] : {std::pair(0.0, "0.000 Hz"),
                                          {999.0, "999.000 Hz"},
                                          {1e3, "1.000 kHz"},
                                          {2450000001.0, "2.450000001 GHz"},
                                          {75.175 * 1e9, "75.175 GHz"}}) // rounding noise
            QCOMPARE(frequencyText(hertz), QString::fromUtf8(text));
    }
};

QTEST_GUILESS_MAIN(PanelModelTest)
#include "tst_panelmodel.moc"
