// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "vnatest.h"

#include <panel/model/correction.h>

#include <cmath>

using namespace Panel;
using Complex = std::complex<double>;

namespace
{

constexpr double pi = 3.14159265358979323846;

Network network(int ports, const QVector<double> &frequencies)
{
    Network result;
    result.ports = ports;
    result.frequencies = frequencies;
    result.parameters.fill(
        {QVector<double>(frequencies.size()), QVector<double>(frequencies.size())}, ports * ports);
    return result;
}

void set(Network &network, int to, int from, int point, const Complex &value)
{
    Parameter &s = network.parameters[(from - 1) * network.ports + to - 1];
    s.real[point] = value.real();
    s.imag[point] = value.imag();
}

Complex get(const Network &network, int to, int from, int point)
{
    return {network.s(to, from).real.at(point), network.s(to, from).imag.at(point)};
}

bool isNear(const Complex &a, const Complex &b)
{
    return std::abs(a - b) < 1e-12;
}

/// A series impedance between ports of these references, by their voltages and currents.
void setSeries(Network &network, const Complex &z, double first, double second)
{
    const Complex whole = z + first + second;
    set(network, 1, 1, 0, (z + second - first) / whole);
    set(network, 2, 2, 0, (z + first - second) / whole);
    const Complex through = 2.0 * std::sqrt(first * second) / whole;
    set(network, 1, 2, 0, through);
    set(network, 2, 1, 0, through);
}

} // namespace

class CorrectionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesLinesOff();
    void refersToAnotherImpedance();
    void leavesNaNWhereThereIsNone();
};

void CorrectionTest::takesLinesOff()
{
    // A short at the end of a line of 105 ps, and the way through it and one of 20 ps.
    Network measured = network(2, {1e9, 2.4e9});
    const auto wave = [](double seconds, double hertz) {
        return std::polar(1.0, -2.0 * pi * hertz * seconds);
    };
    for (int i = 0; i < 2; ++i) {
        const double hertz = measured.frequencies.at(i);
        set(measured, 1, 1, i, -wave(210e-12, hertz));
        set(measured, 2, 1, i, 0.5 * wave(125e-12, hertz));
        set(measured, 2, 2, i, wave(40e-12, hertz));
    }
    Correction correction;
    correction.setDelay(1, 105e-12);
    Network result = corrected(measured, correction);
    QVERIFY(isNear(get(result, 1, 1, 1), -1.0));
    QVERIFY(isNear(get(result, 2, 1, 1), 0.5 * wave(20e-12, 2.4e9)));
    QVERIFY(isNear(get(result, 2, 2, 1), get(measured, 2, 2, 1)));
    correction.setDelay(2, 20e-12);
    result = corrected(measured, correction);
    QVERIFY(isNear(get(result, 2, 1, 0), 0.5));
    QVERIFY(isNear(get(result, 2, 2, 0), 1.0));

    correction.setDelay(2, 0.0);
    correction.setDelay(1, 0.0);
    QVERIFY(correction.isNone());
    correction.setDelay(1, 1.0);
    QCOMPARE(correction.delay(1), Correction::longestDelay);
}

void CorrectionTest::refersToAnotherImpedance()
{
    Correction to75;
    to75.referenceOhms = 75.0;

    const Complex load(30.0, 20.0);
    Network onePort = network(1, {1e9});
    set(onePort, 1, 1, 0, (load - 50.0) / (load + 50.0));
    QVERIFY(isNear(get(corrected(onePort, to75), 1, 1, 0), (load - 75.0) / (load + 75.0)));
    QCOMPARE(corrected(onePort, to75).reference(1), Complex(75.0));

    const Complex own(40.0, 15.0);
    onePort.setReferences({own});
    set(onePort, 1, 1, 0, (load - std::conj(own)) / (load + own));
    QVERIFY(isNear(get(corrected(onePort, to75), 1, 1, 0), (load - 75.0) / (load + 75.0)));

    // Both ports had references of their own.
    Network twoPort = network(2, {1e9}), expected = twoPort;
    setSeries(twoPort, {10.0, 35.0}, 50.0, 25.0);
    twoPort.setReferences({50.0, 25.0});
    setSeries(expected, {10.0, 35.0}, 75.0, 75.0);
    const Network result = corrected(twoPort, to75);
    for (const int port : {1, 2}) {
        QVERIFY(isNear(get(result, port, port, 0), get(expected, port, port, 0)));
        QVERIFY(isNear(get(result, port, 3 - port, 0), get(expected, port, 3 - port, 0)));
    }
}

void CorrectionTest::leavesNaNWhereThereIsNone()
{
    Correction correction;
    correction.referenceOhms = 100.0;
    Network measured = network(1, {1e9, 2e9, 3e9});
    set(measured, 1, 1, 0, {qQNaN(), qQNaN()});
    set(measured, 1, 1, 1, 3.0); // the reflection that 1 - Γ S is zero for
    set(measured, 1, 1, 2, 1.0);
    const Network result = corrected(measured, correction);
    QVERIFY(std::isnan(result.s(1, 1).real.at(0)));
    QVERIFY(std::isnan(result.s(1, 1).real.at(1)));
    QVERIFY(isNear(get(result, 1, 1, 2), 1.0)); // an open circuit is one at any reference
}

QTEST_GUILESS_MAIN(CorrectionTest)
#include "tst_correction.moc"
