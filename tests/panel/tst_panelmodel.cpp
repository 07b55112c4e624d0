// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "vnatest.h"

#include <panel/diagrams/markerreading.h>
#include <panel/model/format.h>
#include <panel/model/markersearch.h>
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

} // namespace

class PanelModelTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void makesATraceOfEachParameter()
    {
        PanelModel model;
        QVERIFY(!model.activeTrace());
        model.setNetworks({network(1), network(2)});
        QCOMPARE(names(model),
                 (QStringList{"1 S11"_s, "2 S11"_s, "3 S11"_s, "4 S22"_s, "5 S21"_s, "6 S12"_s}));
        QCOMPARE(model.data(*model.trace(5)).real, QVector<double>{1.0});
        QCOMPARE(model.activeTrace(false), model.trace(2));
        QCOMPARE(model.data(*model.trace(4)).real, QVector<double>{3.0});
        QCOMPARE(model.network(*model.trace(4)).ports, 2);
        QCOMPARE(model.activeTrace(), model.trace(1));

        model.setActiveTrace(5);
        model.setActiveTrace(3);
        QCOMPARE(model.activeTrace(false), model.trace(5));
        QCOMPARE(model.activeTrace(true), model.trace(3));
        model.setTraceVisible(3, false);
        model.setNetworks({network(1)});
        QCOMPARE(names(model), (QStringList{"1 S11"_s, "2 S11"_s}));
        QCOMPARE(model.activeTrace()->id, 1);
        QVERIFY(model.activeTrace()->visible);
        QCOMPARE(model.activeTrace(false)->format, TraceFormat::LogMagnitude);

        model.setNetworks({});
        QVERIFY(!model.activeTrace());
        QVERIFY(!model.trace(0));
    }

    void tellsWhatChanged()
    {
        PanelModel model;
        model.setNetworks({network(2)});
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

    void numbersMarkers()
    {
        PanelModel model;
        model.setNetworks({network(1, {1e9, 2e9, 3e9})});
        QStringList told;
        note(told, "exhausted", &model, &PanelModel::markersExhausted);
        note(told, "moved", &model, &PanelModel::markerMoved);
        for (const double outside : {-0.1, 2.1, qQNaN()})
            QCOMPARE(model.addMarker(1, outside), 0);
        QCOMPARE(model.addMarker(3, 0.0), 0);
        for (int number = 1; number <= PanelModel::markersPerTrace; ++number)
            QCOMPARE(model.addMarker(1, 2.0), number);
        QVERIFY(told.isEmpty());
        QCOMPARE(model.addMarker(1, 0.0), 0);
        model.removeMarker(1, 2);
        model.removeMarker(1, 2);
        QCOMPARE(model.addMarker(1, 0.5), 2);
        QCOMPARE(model.activeMarkers().at(1).index, 0.5);

        for (const double index : {0.5, -1.0, 3.0, 1.0})
            model.moveMarker(1, 2, index);
        QCOMPARE(told, (QStringList{"exhausted 1"_s, "moved 1 2"_s}));
        QCOMPARE(model.marker(1, 2)->index, 1.0);

        model.setNetworks(model.networks());
        QVERIFY(model.markers().isEmpty());
    }

    void readsPoints_data()
    {
        columns<QPointF, int, QString>("gamma", "format", "values");
        const int z = int(ReadoutFormat::Impedance), y = int(ReadoutFormat::Admittance);
        const int db = int(ReadoutFormat::Decibels), vswr = int(ReadoutFormat::Vswr);
        row("match", QPointF(), z, "50.00 \u03a9|+j0.000 \u03a9|");
        row("short", QPointF(-1, 0), z, "0.000 \u03a9|+j0.000 \u03a9|");
        row("open", QPointF(1, 0), z, "\u221e \u03a9|\u2013|");
        // 50 Ohm and j50 Ohm: the inductor has 50 / (2 pi 1 GHz), the capacitor 1 / (2 pi 1 GHz
        // 50).
        row("inductive", QPointF(0.2, 0.4), z, "50.00 \u03a9|+j50.00 \u03a9|7.958 nH");
        row("capacitive", QPointF(0.2, -0.4), z, "50.00 \u03a9|\u2212j50.00 \u03a9|3.183 pF");
        row("active", QPointF(-2, 0), z, "\u221216.67 \u03a9|+j0.000 \u03a9|");
        // 1 / (50 + j50) is 10 mS - j10 mS.
        row("admittance", QPointF(0.2, 0.4), y, "10.00 mS|\u2212j10.00 mS|15.92 nH");
        row("short as admittance", QPointF(-1, 0), y, "\u221e S|\u2013|");
        row("polar", QPointF(0, 0.5), int(ReadoutFormat::MagnitudePhase), "0.5000|90.0\u00b0");
        row("decibels", QPointF(-0.1, 0), db, "\u221220.00 dB|180.0\u00b0");
        row("standing wave", QPointF(0, -0.5), vswr, "3.00");
        row("no standing wave", QPointF(1, 0), vswr, "\u2013");
        row("nothing", QPointF(qQNaN(), 0), z, "\u2013|\u2013|");
        row("no level", QPointF(qQNaN(), 0), db, "\u2013|\u2013");
    }

    void readsPoints()
    {
        QFETCH(QPointF, gamma);
        QFETCH(int, format);
        Network one = network(1);
        one.parameters = {{{gamma.x()}, {gamma.y()}}};
        const auto read = [&](double index) {
            return readOnSmithChart({&one, &one.parameters.first(), index}, ReadoutFormat(format));
        };
        QCOMPARE(read(0.0).frequency, "1.000 GHz"_s);
        QTEST(read(0.0).values.join(QLatin1Char('|')), "values");
        // Half-way between two points.
        one.frequencies = {0.5e9, 1.5e9};
        one.parameters = {{{gamma.x() - 0.1, gamma.x() + 0.1}, {gamma.y() + 0.3, gamma.y() - 0.3}}};
        QTEST(read(0.5).values.join(QLatin1Char('|')), "values");
    }

    void readsDifferences()
    {
        Network one = network(1, {1e9, 1.5e9});
        one.parameters = {{{0.0, 0.2}, {0.0, 0.4}}};
        const auto at = [&one](double index) {
            return MarkedPoint{&one, &one.parameters.constFirst(), index};
        };
        const MarkerReading reading = readOnSmithChart(at(0.0), ReadoutFormat::Impedance, at(1.0));
        QCOMPARE(reading.frequency, "\u2212500.000 MHz"_s);
        QCOMPARE(reading.values, (QStringList{"0.000 \u03a9"_s, "\u2212j50.00 \u03a9"_s}));
        // 179 degrees and -179 degrees are 2 degrees apart.
        one.parameters = {{{-1.0, -1.0}, {std::tan(0.01), -std::tan(0.01)}}};
        QCOMPARE(readOnCartesian(at(1.0), TraceFormat::Phase, at(0.0)).values,
                 QStringList{"1.1\u00b0"_s});
    }

    void searches()
    {
        Parameter values;
        values.real = {0.1, 0.5, 0.1, 0.11, 0.1, qQNaN(), 0.9, 0.9, 0.1};
        values.imag.resize(values.real.size());
        const auto find = [&](Search search, double from) {
            return searchMarker(values, TraceFormat::Smith, search, from);
        };
        QCOMPARE(find(Search::Maximum, 0), 6);
        QCOMPARE(find(Search::Minimum, 0), 0);
        QCOMPARE(find(Search::PeakRight, 0), 1);
        QCOMPARE(find(Search::PeakRight, 1), 6); // not noise of 0.01
        QCOMPARE(find(Search::PeakLeft, 8), 7);
        QCOMPARE(find(Search::PeakLeft, 5), 1);
        QCOMPARE(find(Search::PeakRight, 7), -1);
        QCOMPARE(searchMarker({}, TraceFormat::Vswr, Search::Maximum, 0), -1);
        QCOMPARE(searchMarker(values, TraceFormat::LogMagnitude, Search::PeakRight, 0), 1);
    }

    void formatsAndMemory()
    {
        PanelModel model;
        Network filter = network(2);
        filter.parameters[1] = {{31.6}, {0.0}}; // S21 of 30 dB
        model.setNetworks({filter});
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
        QCOMPARE(scaleText(model.trace(3)->format, model.trace(3)->scale), "45\u00b0/"_s);
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
        model.setNetworks({network(1, {1e9, 2e9, 3e9}), network(1, {1.5e9, 2e9, 2.5e9})});
        model.addMarker(1, 0.25);
        model.setMarkersCoupled(true);
        QCOMPARE(model.marker(2, 1)->index, 0.25);
        QVERIFY(!model.marker(3, 1)); // 1.25 GHz lies outside
        model.moveMarker(1, 1, 0.75);
        QCOMPARE(model.marker(3, 1)->index, 0.5);
        model.moveMarker(4, 1, 1.5);
        QCOMPARE(model.marker(1, 1)->index, 1.25);
        model.setMarkersDiscrete(true);
        QCOMPARE(model.marker(1, 1)->index, 1.0);
        model.setReferenceMarker(4, 1);
        QCOMPARE(model.referenceMarker(4), model.marker(4, 1));
        model.removeMarker(2, 1);
        QVERIFY(model.markers().isEmpty() && !model.referenceMarker(4));
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
