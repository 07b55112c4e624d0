// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "vnatest.h"

#include <panel/format.h>
#include <panel/markerreading.h>
#include <panel/panelmodel.h>

#include <QSignalSpy>
#include <QtTest>

using namespace Panel;

namespace
{

Network network(int ports)
{
    Network result;
    result.ports = ports;
    result.frequencies = {1e9};
    for (int i = 0; i < ports * ports; ++i)
        result.parameters.append({{double(i)}, {0.0}});
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

class PanelModelTest : public VnaTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void makesATraceOfEachParameter();
    void tellsWhatChanged();
    void numbersMarkers();
    void selectsMarkers();
    void readsImpedances_data();
    void readsImpedances();
    void writesEngineeringNumbers_data();
    void writesEngineeringNumbers();
    void writesFrequencies_data();
    void writesFrequencies();
};

void PanelModelTest::makesATraceOfEachParameter()
{
    PanelModel model;
    QVERIFY(!model.activeTrace());
    model.setNetworks({network(1), network(2)});
    QCOMPARE(names(model),
             (QStringList{QStringLiteral("1 S11"), QStringLiteral("2 S11"), QStringLiteral("3 S22"),
                          QStringLiteral("4 S21"), QStringLiteral("5 S12")}));
    QCOMPARE(model.data(*model.trace(4)).real, QVector<double>{1.0});
    QCOMPARE(model.activeTrace(Trace::Transmission), model.trace(4));
    QCOMPARE(model.data(*model.trace(3)).real, QVector<double>{3.0});
    QCOMPARE(model.network(*model.trace(3)).ports, 2);
    QCOMPARE(model.activeTrace(), model.trace(1));

    model.setActiveTrace(5);
    model.setActiveTrace(3);
    QCOMPARE(model.activeTrace(Trace::Transmission), model.trace(5));
    QCOMPARE(model.activeTrace(Trace::Reflection), model.trace(3));
    model.setTraceVisible(3, false);
    model.setNetworks({network(1)});
    QCOMPARE(names(model), QStringList{QStringLiteral("1 S11")});
    QCOMPARE(model.activeTrace()->id, 1);
    QVERIFY(model.activeTrace()->visible);
    QVERIFY(!model.activeTrace(Trace::Transmission));

    model.setNetworks({});
    QVERIFY(!model.activeTrace());
    QVERIFY(!model.trace(0));
}

void PanelModelTest::tellsWhatChanged()
{
    PanelModel model;
    model.setNetworks({network(2)});
    const QSignalSpy active(&model, &PanelModel::activeTraceChanged);
    const QSignalSpy visible(&model, &PanelModel::traceVisibleChanged);

    for (const int id : {1, 0, -1, 5, 2, 2})
        model.setActiveTrace(id);
    QCOMPARE(active.count(), 1);
    QCOMPARE(model.activeTrace()->id, 2);

    model.setTraceVisible(1, true);
    model.setTraceVisible(7, false);
    QCOMPARE(visible.count(), 0);
    model.setTraceVisible(1, false);
    QCOMPARE(visible.value(0), (QList<QVariant>{1, false}));
    QCOMPARE(visible.count(), 1);
}

void PanelModelTest::numbersMarkers()
{
    PanelModel model;
    Network long1 = network(1);
    long1.frequencies = {1e9, 2e9, 3e9};
    long1.parameters = {{{0.0, 0.1, 0.2}, {0.0, 0.0, 0.0}}};
    model.setNetworks({long1});
    const QSignalSpy exhausted(&model, &PanelModel::markersExhausted);

    for (const double outside : {-0.1, 2.1, qQNaN()})
        QCOMPARE(model.addMarker(1, outside), 0);
    QCOMPARE(model.addMarker(2, 0.0), 0);
    for (int number = 1; number <= PanelModel::markersPerTrace; ++number)
        QCOMPARE(model.addMarker(1, 2.0), number);
    QCOMPARE(exhausted.count(), 0);
    QCOMPARE(model.addMarker(1, 0.0), 0);
    QCOMPARE(exhausted.count(), 1);
    model.removeMarker(1, 2);
    model.removeMarker(1, 2);
    QCOMPARE(model.addMarker(1, 0.5), 2);
    QCOMPARE(model.activeMarkers().at(1).index, 0.5);

    const QSignalSpy moved(&model, &PanelModel::markerMoved);
    for (const double index : {0.5, -1.0, 3.0, 1.0})
        model.moveMarker(1, 2, index);
    QCOMPARE(moved.count(), 1);
    QCOMPARE(model.marker(1, 2)->index, 1.0);

    model.setNetworks({long1});
    QVERIFY(model.markers().isEmpty());
}

void PanelModelTest::selectsMarkers()
{
    PanelModel model;
    model.setNetworks({network(2)});
    const QSignalSpy selected(&model, &PanelModel::selectedMarkerChanged);
    model.addMarker(2, 0.0);
    QCOMPARE(model.activeTrace()->id, 2);
    QCOMPARE(model.selectedMarker(), model.marker(2, 1));
    QCOMPARE(selected.count(), 1);
    model.setActiveTrace(1);
    QVERIFY(!model.selectedMarker());
    QCOMPARE(selected.count(), 2);
    model.selectMarker(2, 1);
    QCOMPARE(model.activeTrace()->id, 2);
    model.removeMarker(2, 1);
    QVERIFY(!model.selectedMarker());
    QCOMPARE(selected.count(), 4);
    model.selectMarker(2, 1);
    QCOMPARE(selected.count(), 4);
}

void PanelModelTest::readsImpedances_data()
{
    QTest::addColumn<double>("real");
    QTest::addColumn<double>("imag");
    QTest::addColumn<QString>("resistance");
    QTest::addColumn<QString>("reactance");
    QTest::addColumn<QString>("element");
    QTest::newRow("match") << 0.0 << 0.0 << "50.00 \u03a9"
                           << "+j0.000 \u03a9"
                           << "";
    QTest::newRow("short") << -1.0 << 0.0 << "0.000 \u03a9"
                           << "+j0.000 \u03a9"
                           << "";
    QTest::newRow("open") << 1.0 << 0.0 << "\u221e \u03a9"
                          << ""
                          << "";
    // 50 Ohm and j50 Ohm: the inductor has 50 / (2 pi 1 GHz), the capacitor 1 / (2 pi 1 GHz 50).
    QTest::newRow("inductive") << 0.2 << 0.4 << "50.00 \u03a9"
                               << "+j50.00 \u03a9"
                               << "7.958 nH";
    QTest::newRow("capacitive") << 0.2 << -0.4 << "50.00 \u03a9"
                                << "\u2212j50.00 \u03a9"
                                << "3.183 pF";
    QTest::newRow("active") << -2.0 << 0.0 << "\u221216.67 \u03a9"
                            << "+j0.000 \u03a9"
                            << "";
}

void PanelModelTest::readsImpedances()
{
    QFETCH(double, real);
    QFETCH(double, imag);
    Network one = network(1);
    one.parameters = {{{real}, {imag}}};
    const MarkerReading reading = readMarker(one, one.s(1, 1), 0.0);
    QCOMPARE(reading.frequency, QStringLiteral("1.000 GHz"));
    QTEST(reading.resistance, "resistance");
    QTEST(reading.reactance, "reactance");
    QTEST(reading.element, "element");

    // Half-way between two points.
    one.frequencies = {0.5e9, 1.5e9};
    one.parameters = {{{real - 0.1, real + 0.1}, {imag + 0.3, imag - 0.3}}};
    QTEST(readMarker(one, one.s(1, 1), 0.5).resistance, "resistance");
}

void PanelModelTest::writesEngineeringNumbers_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("zero") << 0.0 << "0.000 H";
    QTest::newRow("one digit before the point") << 1.0 << "1.000 H";
    QTest::newRow("rounds up to the next prefix") << 999.96 << "1.000 kH";
    QTest::newRow("three digits") << 999.94 << "999.9 H";
    QTest::newRow("below one") << 0.01234 << "12.34 mH";
    QTest::newRow("negative") << -4.7e-6 << "\u22124.700 \u00b5H";
    QTest::newRow("smallest prefix") << 1e-18 << "0.001 fH";
    QTest::newRow("largest prefix") << 1.5e16 << "15000 TH";
}

void PanelModelTest::writesEngineeringNumbers()
{
    QFETCH(double, value);
    QTEST(engineeringText(value, QStringLiteral("H")), "text");
}

void PanelModelTest::writesFrequencies_data()
{
    QTest::addColumn<double>("hertz");
    QTest::addColumn<QString>("text");
    QTest::newRow("zero") << 0.0 << "0.000 Hz";
    QTest::newRow("below a unit") << 999.0 << "999.000 Hz";
    QTest::newRow("a unit") << 1e3 << "1.000 kHz";
    QTest::newRow("all digits needed") << 2450000001.0 << "2.450000001 GHz";
    QTest::newRow("rounding noise") << 75.175 * 1e9 << "75.175 GHz";
}

void PanelModelTest::writesFrequencies()
{
    QFETCH(double, hertz);
    QFETCH(QString, text);
    QCOMPARE(frequencyText(hertz), text);
}

QTEST_GUILESS_MAIN(PanelModelTest)
#include "tst_panelmodel.moc"
