// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "vnatest.h"

#include <panel/model/cartesian.h>
#include <panel/model/panelmodel.h>
#include <panel/model/tracemath.h>

#include <cmath>

using namespace Panel;

namespace
{

/// A line of some delay in s and a slow ripple.
TraceData line(int points, double delay)
{
    TraceData data;
    for (int i = 0; i < points; ++i) {
        const double hertz = 1e9 + 1e6 * i;
        const auto s =
            std::polar(0.5 + 0.2 * std::sin(0.3 * i), -6.283185307179586 * hertz * delay);
        data.frequencies << hertz;
        data.parameter.real << s.real();
        data.parameter.imag << s.imag();
    }
    return data;
}

} // namespace

class TraceMathTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void combinesDataOfOtherFrequencies();
    void smoothsEveryFormat();
    void modelProcessesTraces();
};

void TraceMathTest::combinesDataOfOtherFrequencies()
{
    const TraceData data = line(11, 1e-9);
    TraceData memory;
    memory.frequencies = {1.002e9, 1.006e9};
    memory.parameter = {{2.0, 4.0}, {0.0, 0.0}};
    const TraceData quotient = combined(data, memory, TraceMath::Divided);
    QCOMPARE(quotient.frequencies, data.frequencies);
    QVERIFY(std::isnan(quotient.parameter.real.at(1)));
    QVERIFY(std::abs(quotient.at(4) - data.at(4) / 3.0) < 1e-15);
    QVERIFY(std::isnan(quotient.parameter.imag.at(7)));
    QCOMPARE(combined(data, memory, TraceMath::Memory).parameter.real.at(5), 3.5);
    QCOMPARE(combined(data, data, TraceMath::Subtracted).at(3), std::complex<double>());
    QCOMPARE(combined(data, data, TraceMath::Added).at(3), 2.0 * data.at(3));
    // Nothing by nothing is nothing.
    TraceData none = data;
    none.parameter = {QVector<double>(11), QVector<double>(11)};
    QVERIFY(std::isnan(combined(none, none, TraceMath::Divided).parameter.real.at(0)));
}

void TraceMathTest::smoothsEveryFormat()
{
    const QVector<double> averages = smoothed({1, 2, 6, qQNaN(), 9, 1, 1}, 5);
    QCOMPARE(averages.mid(0, 3), (QVector<double>{1.0, 3.0, 4.5}));
    QVERIFY(std::isnan(averages.at(3)));
    QCOMPARE(averages.mid(4), (QVector<double>{4.25, 11.0 / 3.0, 1.0}));
    TraceData data = line(101, 3e-9);
    const QVector<double> plain = formatValues(data, TraceFormat::LogMagnitude);
    data.averagedPoints = 7;
    double mean = 0.0;
    for (int i = 47; i <= 53; ++i)
        mean += plain.at(i) / 7.0;
    QCOMPARE(formatValueAt(data, 50.0, TraceFormat::LogMagnitude), mean);
    for (int format = int(TraceFormat::LogMagnitude); format < traceFormatCount; ++format) {
        const QVector<double> values = formatValues(data, TraceFormat(format));
        for (int i = 0; i < values.size(); ++i)
            QVERIFY2(std::abs(std::remainder(
                         formatValueAt(data, i, TraceFormat(format)) - values.at(i), 360.0))
                         < 1e-9 * (1.0 + std::abs(values.at(i))),
                     qPrintable(formatName(TraceFormat(format))));
    }
    // A straight phase stays straight, past its jumps too.
    const QVector<double> phase = formatValues(data, TraceFormat::Phase);
    for (int i = 1; i < phase.size(); ++i)
        QVERIFY(std::abs(std::remainder(phase.at(i) - phase.at(i - 1) + 1.08, 360.0)) < 1e-9);
}

void TraceMathTest::modelProcessesTraces()
{
    Network network;
    network.ports = 1;
    const TraceData data = line(201, 1e-9);
    network.frequencies = data.frequencies;
    network.parameters = {data.parameter};
    PanelModel model;
    model.openNetworks({network});
    const auto shown = [&model](int id) { return model.traceData(*model.trace(id)); };

    model.setTraceMath(2, TraceMath::Divided); // nothing is stored
    QCOMPARE(model.trace(2)->math, TraceMath::DataAndMemory);
    model.storeMemory(2);
    model.setTraceMath(2, TraceMath::Divided);
    QVERIFY(std::abs(shown(2).at(7) - 1.0) < 1e-12);
    QVERIFY(!model.drawnMemory(*model.trace(2)));
    QVERIFY(model.trace(2)->scale.top > 0.0); // 0 dB is in the middle
    // New data, and another part of them, are divided too.
    for (double &value : network.parameters[0].real)
        value *= 2.0;
    for (double &value : network.parameters[0].imag)
        value *= 2.0;
    model.updateNetwork(0, network);
    QVERIFY(std::abs(shown(2).at(7) - 2.0) < 1e-12);
    model.setStimulus(*model.trace(2), {1.05e9, 1.1e9});
    QCOMPARE(shown(2).points(), 51);
    QVERIFY(std::abs(shown(2).at(50) - 2.0) < 1e-12);
    model.clearMemory(2);
    QCOMPARE(shown(2).at(0), 2.0 * data.at(50));

    // A Smith chart averages the reflection, a line its values.
    model.setSmoothing(1, 10.0);
    QVERIFY(shown(1).parameter.real.at(25) != network.parameters.at(0).real.at(75));
    QCOMPARE(shown(1).averagedPoints, 0);
    model.setSmoothing(2, 1e9);
    QCOMPARE(model.trace(2)->smoothing, Trace::maximumSmoothing);
    QCOMPARE(shown(2).averagedPoints, 11);
    Correction correction;
    correction.setDelay(1, 0.5e-9);
    model.setSmoothing(1, 0.0);
    model.setCorrection(*model.trace(1), correction);
    QVERIFY(std::abs(shown(1).parameter.imag.at(3)) < 1e-9); // the line of 1 ns is gone
}

QTEST_GUILESS_MAIN(TraceMathTest)
#include "tst_tracemath.moc"
