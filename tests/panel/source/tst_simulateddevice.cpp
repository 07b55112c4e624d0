// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "vnatest.h"

#include <panel/source/sweepsource.h>

#include <cmath>

using namespace VnaTest;
using namespace Panel;

namespace
{

Network measured(SimulatedDevice &device, quint64 moment)
{
    Network network = device.preview();
    device.measure(network, 0, device.points(), moment);
    return network;
}

double magnitude(const Parameter &parameter, int index)
{
    return std::hypot(parameter.real.at(index), parameter.imag.at(index));
}

} // namespace

class SimulatedDeviceTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void measuresPassively()
    {
        const double lowest = Sweep::limits.start;
        const std::tuple<Source, Sweep, int> rows[] = {
            {Source::Antenna, defaultSweep(Source::Antenna, 1001), 1},
            {Source::Antenna, defaultSweep(Source::Antenna, Sweep::maximumPoints), 1},
            {Source::Filter, defaultSweep(Source::Filter, 100001), 2},
            {Source::Filter, {lowest, Sweep::limits.stop, 201}, 2},
            {Source::Cable, {lowest, Sweep::limits.stop, 100001}, 1},
            {Source::Cable, {lowest, lowest + Sweep::smallestSpan, Sweep::minimumPoints}, 1},
        };
        for (const auto &[kind, sweep, ports] : rows) {
            QVERIFY(sweep.isValid());
            SimulatedDevice device(kind, sweep);
            // Both ends of the drift are among these.
            for (const quint64 number : {0ULL, 90ULL, 270ULL}) {
                const Network network = measured(device, number);
                QCOMPARE(network.ports, ports);
                QCOMPARE(network.frequencies.size(), sweep.points);
                QCOMPARE(network.frequencies.first(), sweep.start);
                QCOMPARE(network.frequencies.last(), sweep.stop);
                QVERIFY(std::is_sorted(network.frequencies.begin(), network.frequencies.end()));
                QCOMPARE(network.parameters.size(), ports * ports);
                for (const Parameter &parameter : network.parameters) {
                    QCOMPARE(parameter.real.size(), sweep.points);
                    QCOMPARE(parameter.imag.size(), sweep.points);
                    for (int i = 0; i < sweep.points; ++i)
                        QVERIFY(magnitude(parameter, i) <= 1.0); // as NaN is not
                }
            }
        }
    }

    void filterPassesItsBand()
    {
        SimulatedDevice device(Source::Filter, {2.3e9, 2.6e9, 301});
        const Network network = measured(device, 0);
        const int centre = 150, edge = 0;
        QVERIFY(magnitude(network.s(2, 1), centre) > 0.7);
        QVERIFY(magnitude(network.s(1, 1), centre) < 0.4);
        QVERIFY(magnitude(network.s(2, 1), edge) < 0.01);
        QVERIFY(magnitude(network.s(1, 1), edge) > 0.9);
        // Reciprocal but for the noise.
        QVERIFY(std::abs(network.s(2, 1).real.at(centre) - network.s(1, 2).real.at(centre)) < 1e-3);
    }

    void driftsAndRepeats()
    {
        SimulatedDevice device(Source::Cable, {10e6, 1e9, 2001});
        const auto real = [&device](quint64 moment) {
            return measured(device, moment).parameters.first().real;
        };
        const QVector<double> first = real(7);
        QCOMPARE(real(7), first);
        QVERIFY(real(8) != first);

        // The noise is there, has no bias to speak of and keeps its limit.
        const double limit = SimulatedDevice::noise(Source::Cable);
        const QVector<double> second = real(367); // one drift later
        double sum = 0.0, largest = 0.0;
        for (int i = 0; i < first.size(); ++i) {
            sum += second.at(i) - first.at(i);
            largest = qMax(largest, std::abs(second.at(i) - first.at(i)));
        }
        QVERIFY(largest > limit / 2.0 && largest <= 2.0 * limit);
        QVERIFY(std::abs(sum / double(first.size())) < limit / 10.0);
    }

    void checksSweeps()
    {
        QVERIFY((Sweep{1e6, 9e9, 1000001}).isValid());
        // Too few and too many points, reversed, empty, too high, and no number.
        for (const Sweep &sweep :
             {Sweep{1e9, 2e9, 1}, Sweep{1e9, 2e9, 1000002}, Sweep{2e9, 1e9, 201},
              Sweep{2e9, 2e9, 201}, Sweep{2e9, 1e10, 201}, Sweep{qQNaN(), 1e9, 201}})
            QVERIFY(!sweep.isValid());
    }

    void tunesTheAntenna()
    {
        for (const double tuning : {2.0e9, 2.45e9, 2.9e9}) {
            ProgressiveSweep sweep(Source::Antenna, {1.5e9, 4e9, 2501}, 2.3e9);
            sweep.setTuning(tuning);
            sweep.advance(2501);
            const Parameter &s = sweep.frame().parameters.first();
            int best = 0;
            for (int i = 0; i < 2501; ++i)
                best = magnitude(s, i) < magnitude(s, best) ? i : best;
            const double found = sweep.frame().frequencies.at(best);
            QVERIFY2(std::abs(found - tuning) < 0.1 * tuning, qPrintable(QString::number(found)));
        }
    }

    void sweepsPointByPoint()
    {
        constexpr int points = 10001;
        const Sweep range = defaultSweep(Source::Filter, points);
        ProgressiveSweep sweep(Source::Filter, range, defaultTuning);
        SimulatedDevice device(Source::Filter, range);
        // The preview shows what will be measured; then the sweep goes over it.
        const Network preview = sweep.frame();
        const QVector<double> expected = measured(device, 0).s(2, 1).real;
        for (int i = 0; i < points; ++i)
            QVERIFY(std::abs(preview.s(2, 1).real.at(i) - expected.at(i)) < 0.1);
        Network before = preview;
        for (int from = 0; from < points; from += 4000) {
            sweep.advance(4000);
            const int to = qMin(from + 4000, points);
            QCOMPARE(sweep.progress(), double(to) / points);
            for (int p = 0; p < 4; ++p) {
                const QVector<double> &now = sweep.frame().parameters.at(p).imag;
                const QVector<double> &then = before.parameters.at(p).imag;
                QCOMPARE(now.mid(0, from), then.mid(0, from));
                QVERIFY(now.mid(from, to - from) != then.mid(from, to - from));
                QCOMPARE(now.mid(to), then.mid(to));
            }
            before = sweep.frame();
        }
        // The next sweep begins; what was handed out is not written to.
        const QVector<double> complete = before.s(1, 2).imag.mid(0);
        sweep.advance(4000);
        sweep.advance(4000);
        QCOMPARE(sweep.progress(), 8000.0 / points);
        QCOMPARE(before.s(1, 2).imag, complete);
        QCOMPARE(sweep.frame().s(1, 2).imag.mid(8000), complete.mid(8000));
        // Once the receiver keeps but the last frame, the two take turns without a copy.
        before = sweep.frame();
        const double *place = before.s(1, 1).real.constData();
        for (int i = 0; i < 2; ++i) {
            sweep.advance(100);
            before = sweep.frame();
        }
        QCOMPARE(before.s(1, 1).real.constData(), place);
    }

    /// Noise goes with the square root; what changes fades in, and another number begins anew.
    void averagesSweeps()
    {
        constexpr int points = 40001,
                      averages = 16; // so many that neighbours differ by noise alone
        const auto noise = [](const ProgressiveSweep &sweep) {
            const QVector<double> &values = sweep.frame().parameters.first().real;
            double sum = 0.0;
            for (int i = 0; i + 2 < points; ++i)
                sum += std::pow(values.at(i) - 2.0 * values.at(i + 1) + values.at(i + 2), 2.0);
            return std::sqrt(sum / points);
        };
        ProgressiveSweep sweep(Source::Cable, defaultSweep(Source::Cable, points), defaultTuning);
        const auto advance = [&sweep](int sweeps) {
            for (int part = 0; part < 2 * sweeps; ++part)
                sweep.advance(part % 2 ? points : 12000);
        };
        advance(2);
        const double single = noise(sweep);
        sweep.setAverages(averages);
        advance(1);
        QVERIFY(qAbs(noise(sweep) / single - 1.0) < 0.1);
        advance(averages - 1);
        QVERIFY(noise(sweep) < single / 3.0 && noise(sweep) > single / 5.0);
        advance(3 * averages);
        QVERIFY(noise(sweep) < single / 3.0);
        sweep.setAverages(1);
        advance(1);
        QVERIFY(qAbs(noise(sweep) / single - 1.0) < 0.1);
    }

    void sourceSweepsOn()
    {
        SweepSource source;
        QVector<QVector<double>> frames;
        QVector<double> progress;
        connect(&source, &SweepSource::swept, this, [&](const Network &frame, double reached) {
            frames.append(frame.parameters.first().real);
            progress.append(reached);
        });
        const auto rests = [&frames] {
            const auto before = frames.size();
            QTest::qWait(5 * SweepSource::frameInterval);
            return frames.size() == before;
        };
        source.start(Source::Antenna, {1e9, 2e9, 201}, defaultTuning);
        QVERIFY(frames.isEmpty());
        QTRY_VERIFY(frames.size() >= 3);
        QVERIFY(frames.at(0) != frames.at(1) && frames.at(1) != frames.at(2));

        source.setHeld(true);
        const auto held = frames.size();
        QVERIFY(rests());
        // A new sweep is shown once even so.
        source.start(Source::Antenna, {1e9, 2e9, 301}, defaultTuning);
        QTRY_COMPARE(frames.size(), held + 1);
        QCOMPARE(frames.last().size(), 301);
        QVERIFY(rests());
        source.setHeld(false);
        QTRY_VERIFY(frames.size() > held + 1);

        QCOMPARE(progress, QVector<double>(progress.size(), 1.0));

        // A long sweep takes its time, held or not.
        progress.clear();
        source.start(Source::Antenna, {1e9, 2e9, 20001}, defaultTuning);
        QTRY_VERIFY(progress.contains(1.0) && progress.last() < 1.0);
        QVERIFY(progress.indexOf(1.0) > 0);
        QVERIFY(std::is_sorted(progress.begin(), progress.begin() + progress.indexOf(1.0)));
        source.setHeld(true);
        const double position = progress.last();
        QTest::qWait(20 * SweepSource::frameInterval);
        source.setHeld(false);
        const auto count = progress.size();
        QTRY_VERIFY(progress.size() > count);
        QVERIFY(progress.at(count) > position);

        source.stop();
        QVERIFY(rests());
    }

    void sourceDropsWhatRanBefore()
    {
        QVector<int> sizes;
        {
            SweepSource source;
            connect(&source, &SweepSource::swept, this, [&](const Network &frame) {
                sizes.append(int(frame.frequencies.size()));
                // A host may start anew in the answer.
                if (sizes.size() == 1)
                    source.start(Source::Cable, {1e9, 2e9, 301}, defaultTuning);
            });
            source.start(Source::Filter, {1e9, 2e9, Sweep::maximumPoints}, defaultTuning);
            source.start(Source::Antenna, {1e9, 2e9, 201}, defaultTuning);
            QTRY_VERIFY(sizes.size() >= 3);
            // Destroyed in the middle of a long computation.
            source.start(Source::Filter, {1e9, 2e9, Sweep::maximumPoints}, defaultTuning);
        }
        QCOMPARE(sizes.takeFirst(), 201);
        for (const int size : sizes)
            QCOMPARE(size, 301);
    }
};

QTEST_GUILESS_MAIN(SimulatedDeviceTest)
#include "tst_simulateddevice.moc"
