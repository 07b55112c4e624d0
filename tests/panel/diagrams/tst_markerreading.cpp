// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What markers read, and what they find: points, differences, bandwidths and searches.
#include "vnatest.h"

#include <panel/diagrams/markerreading.h>
#include <panel/model/bandwidth.h>
#include <panel/model/markersearch.h>

#include <cmath>

using namespace VnaTest;
using namespace Panel;

namespace
{

/// A one-port without data at these frequencies.
Network network(const QVector<double> &frequencies)
{
    Network result;
    result.ports = 1;
    result.frequencies = frequencies;
    return result;
}

} // namespace

class MarkerReadingTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
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
        row("standing wave", QPointF(0, -0.5), vswr, "VSWR 3.00");
        row("no standing wave", QPointF(1, 0), vswr, "\u2013");
        row("nothing", QPointF(qQNaN(), 0), z, "\u2013|\u2013|");
        row("no level", QPointF(qQNaN(), 0), db, "\u2013|\u2013");
    }

    void readsPoints()
    {
        QFETCH(QPointF, gamma);
        QFETCH(int, format);
        Network one = network({1e9});
        one.parameters = {{{gamma.x()}, {gamma.y()}}};
        const auto read = [&](double index) {
            return readOnSmithChart({traceData(one, 1, 1), index}, ReadoutFormat(format));
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
        Network one = network({1e9, 1.5e9});
        one.parameters = {{{0.0, 0.2}, {0.0, 0.4}}};
        const auto at = [&one](double index) { return MarkedPoint{traceData(one, 1, 1), index}; };
        const MarkerReading reading = readOnSmithChart(at(0.0), ReadoutFormat::Impedance, at(1.0));
        QCOMPARE(reading.frequency, "\u2212500.000 MHz"_s);
        QCOMPARE(reading.values, (QStringList{"0.000 \u03a9"_s, "\u2212j50.00 \u03a9"_s}));
        // 179 degrees and -179 degrees are 2 degrees apart.
        one.parameters = {{{-1.0, -1.0}, {std::tan(0.01), -std::tan(0.01)}}};
        QCOMPARE(readOnCartesian(at(1.0), TraceFormat::Phase, at(0.0)).values,
                 QStringList{"1.1\u00b0"_s});
    }

    /// A resonance of known Q, as a peak and as a notch, read between coarse points.
    void readsBandwidths()
    {
        constexpr double centre = 2.45e9, quality = 25.0;
        for (const bool notch : {false, true}) {
            TraceData data;
            for (double hertz = 2e9; hertz < 3e9; hertz += 1e6) {
                // H = 1 / (1 + jQ (f / f0 - f0 / f)), or 1.01 - H.
                const std::complex<double> peak =
                    1.0 / std::complex<double>(1.0, quality * (hertz / centre - centre / hertz));
                const std::complex<double> value = notch ? 1.01 - peak : peak;
                data.frequencies << hertz;
                data.parameter.real << value.real();
                data.parameter.imag << value.imag();
            }
            const auto band = bandwidthAt(data, 450.0, notch ? 37.0 : 10.0 * std::log10(2.0));
            QVERIFY(band && band->kind == (notch ? BandKind::Notch : BandKind::Peak));
            QVERIFY(std::abs(band->decibels - (notch ? -40.0 : 0.0)) < 1e-6);
            QVERIFY(std::abs(band->width() * quality / centre - 1.0) < (notch ? 0.02 : 1e-3));
            QVERIFY(std::abs(band->centre() / centre - 1.0) < 1e-3);
            // The flank falls on one side only; the data end.
            QVERIFY(!bandwidthAt(data, 400.0, 0.5) && !bandwidthAt(data, 450.0, 50.0));
            TraceData half = data;
            half.frequencies = data.frequencies.mid(440);
            half.parameter = {data.parameter.real.mid(440), data.parameter.imag.mid(440)};
            const auto open = bandwidthAt(half, 10.0, notch ? 37.0 : 10.0 * std::log10(2.0));
            QVERIFY(open && !open->hasBothEdges() && std::isnan(open->low));
            QCOMPARE(open->high, band->high);
        }
        QVERIFY(!bandwidthAt({}, 0.0, 3.0));
    }

    /// A resonator behind a coupling: 1 - S = 2k / (1 + k) / (1 + jQ (f / f0 - f0 / f)) with the
    /// loaded Q, at whatever depth of its dip.
    void readsTheLoadedQOfReflections()
    {
        constexpr double centre = 2.45e9, quality = 25.0;
        for (const double coupling : {0.1, 0.5, 0.99, 3.0}) {
            TraceData data;
            for (double hertz = 2e9; hertz < 3e9; hertz += 1e6) {
                const std::complex<double> value = 1.0
                    - 2.0 * coupling / (1.0 + coupling)
                        / std::complex<double>(1.0, quality * (hertz / centre - centre / hertz));
                data.frequencies << hertz;
                data.parameter.real << value.real();
                data.parameter.imag << value.imag();
            }
            const auto band = bandwidthAt(data, 450.0, 10.0 * std::log10(2.0), true);
            QVERIFY(band && band->kind == BandKind::Absorption);
            QVERIFY(std::abs(band->width() * quality / centre - 1.0) < 1e-3);
            // What is more than reflected is a peak of its magnitude.
            for (int i = 0; i < data.points(); ++i) {
                const std::complex<double> value = 2.0 - data.at(i);
                data.parameter.real[i] = value.real();
                data.parameter.imag[i] = value.imag();
            }
            const auto gain = bandwidthAt(data, 450.0, 0.5, true);
            QVERIFY(gain && gain->kind == BandKind::Peak);
        }
    }

    void searchesForValues()
    {
        TraceData data;
        for (int i = 0; i < 101; ++i) {
            data.frequencies << 1e9 + 1e6 * i;
            data.parameter.real << std::abs(i - 50) / 50.0; // 1 to 0 and back
            data.parameter.imag << 0.0;
        }
        const auto find = [&](double target, double from, int direction) {
            return searchTarget(data, TraceFormat::LinearMagnitude, target, from, direction);
        };
        QVERIFY(std::abs(find(0.55, 0.0, 1) - 22.5) < 1e-9);
        QVERIFY(std::abs(find(0.55, 22.5, 1) - 77.5) < 1e-9); // goes on from what was found
        QVERIFY(std::abs(find(0.55, 77.5, -1) - 22.5) < 1e-9);
        QCOMPARE(find(0.5, 25.0, 1), 75.0);
        QCOMPARE(find(0.55, 77.5, 1), -1.0);
        QCOMPARE(find(2.0, 0.0, 1), -1.0);
        data.parameter.real[60] = qQNaN(); // nothing is passed where nothing is
        QCOMPARE(find(0.2, 55.0, 1), -1.0);
        // A phase that begins anew at 180 degrees does not pass 0.
        data.parameter = {{0.0, -1.0, -1.0, 0.0}, {1.0, 0.1, -0.1, -1.0}};
        data.frequencies.resize(4);
        QCOMPARE(searchTarget(data, TraceFormat::Phase, 0.0, 0.0, 1), -1.0);
        QCOMPARE(searchTarget({}, TraceFormat::Phase, 0.0, 0.0, 1), -1.0);
    }

    void searches()
    {
        TraceData values;
        values.parameter.real = {0.1, 0.5, 0.1, 0.11, 0.1, qQNaN(), 0.9, 0.9, 0.1};
        values.parameter.imag.resize(9);
        values.frequencies.resize(9);
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
        QCOMPARE(highestPeaks(values, TraceFormat::Smith, 6), (QVector<int>{6, 1}));
        QCOMPARE(highestPeaks(values, TraceFormat::Smith, 1), (QVector<int>{6}));
        QVERIFY(highestPeaks({}, TraceFormat::Smith, 6).isEmpty());
        QCOMPARE(searchMarker(values, TraceFormat::LogMagnitude, Search::PeakRight, 0), 1);
    }
};

QTEST_GUILESS_MAIN(MarkerReadingTest)
#include "tst_markerreading.moc"
