// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <smithchart/tracetone.h>

#include <vnatest.h>

#include <cmath>

using namespace SmithChart;

namespace
{

constexpr int rate = 44100;

/// A channel of samples, from one moment in seconds to another.
QVector<double> channel(const QVector<qint16> &samples, int which, double from, double to)
{
    QVector<double> values;
    for (int frame = int(from * rate); frame < int(to * rate); ++frame)
        values << samples.value(2 * frame + which);
    return values;
}

double power(const QVector<double> &values)
{
    double sum = 0.0;
    for (const double value : values)
        sum += value * value;
    return sum / qMax(1, int(values.size()));
}

/// The share of the power that is at a frequency (Goertzel 1958).
double shareAt(const QVector<double> &values, double hertz)
{
    const double step = 2.0 * M_PI * hertz / rate;
    double last = 0.0, beforeLast = 0.0;
    for (const double value : values) {
        const double next = value + 2.0 * std::cos(step) * last - beforeLast;
        beforeLast = std::exchange(last, next);
    }
    const double found =
        last * last + beforeLast * beforeLast - 2.0 * std::cos(step) * last * beforeLast;
    return 2.0 * found / double(values.size()) / double(values.size()) / power(values);
}

/// By its zero crossings upwards.
double pitch(const QVector<double> &values)
{
    int crossings = 0;
    for (int i = 1; i < values.size(); ++i)
        crossings += values.at(i - 1) < 0.0 && values.at(i) >= 0.0 ? 1 : 0;
    return crossings * double(rate) / double(values.size());
}

} // namespace

class tst_TraceTone : public VnaTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void pitchIsMagnitudeAndPlaceIsAngle();
    void theTraceIsHeardFromEndToEnd();
    void nothingIsLostOrHurts();
};

void tst_TraceTone::pitchIsMagnitudeAndPlaceIsAngle()
{
    const struct {
        std::complex<double> reflection;
        double hertz;
        double rightShare; ///< of the power
        bool overtone;
    } rows[] = {
        {{0.0, 0.0}, 220.0, 0.5, false}, // match
        {{1.0, 0.0}, 1760.0, 1.0, false}, // open
        {{-1.0, 0.0}, 1760.0, 0.0, false}, // short
        {{0.0, 0.5}, 622.254, 0.5, false}, // inductive
        {{0.0, -0.5}, 622.254, 0.5, true}, // capacitive
        {{5.0, 0.0}, 3520.0, 1.0, false}, // amplifies
    };
    for (const auto &row : rows) {
        const QVector<qint16> samples = toneSamples(toneOf(row.reflection), 0.5);
        const QVector<double> left = channel(samples, 0, 0.1, 0.5);
        const QVector<double> right = channel(samples, 1, 0.1, 0.5);
        const QVector<double> loud = power(left) > power(right) ? left : right;
        QVERIFY(qAbs(pitch(loud) - row.hertz) < 4.0);
        const double share = power(right) / (power(left) + power(right));
        QVERIFY2(qAbs(share - row.rightShare) < 0.01, qPrintable(QString::number(share)));
        const double octave = shareAt(loud, 2.0 * row.hertz);
        QVERIFY2(row.overtone ? qAbs(octave - 0.2) < 0.02 : octave < 1e-3,
                 qPrintable(QString::number(octave)));
    }
}

void tst_TraceTone::theTraceIsHeardFromEndToEnd()
{
    // From a match to an open circuit.
    QVector<double> real, imag;
    for (int i = 0; i < 2001; ++i) {
        real << i / 2000.0;
        imag << 0.0;
    }
    const QVector<qint16> samples = traceSamples(real, imag, 2.0);
    QVERIFY(qAbs(double(samples.size()) / 2.0 / rate - 2.0) < 0.1);
    for (const double at : {0.5, 1.0, 1.5}) {
        const QVector<double> heard = channel(samples, 1, at - 0.05, at + 0.05);
        QVERIFY(qAbs(std::log2(pitch(heard) / 220.0) - 3.0 * at / 2.0) < 0.06);
    }
}

void tst_TraceTone::nothingIsLostOrHurts()
{
    // One matched point in a million of total reflection, and a gap.
    QVector<double> real(1000000, 1.0), imag(1000000, 0.0);
    real[500123] = 0.0;
    for (int i = 800000; i < 900000; ++i)
        real[i] = qQNaN();
    const QVector<qint16> samples = traceSamples(real, imag, 3.0);
    const double dip = 3.0 * 500123 / 1e6;
    QVERIFY(pitch(channel(samples, 1, dip, dip + 0.004))
            < 0.9 * pitch(channel(samples, 1, 1.0, 1.004)));
    QCOMPARE(power(channel(samples, 1, 2.45, 2.65)), 0.0);
    QVERIFY(power(channel(samples, 1, 2.75, 2.95)) > 1e6);
    // No click: from one sample to the next no more than the highest tone has at full level.
    int farthest = 0;
    for (int i = 2; i < samples.size(); ++i)
        farthest = qMax(farthest, qAbs(samples.at(i) - samples.at(i - 2)));
    QVERIFY2(farthest < 0.3 * 32767 * 2.0 * M_PI * 1760.0 / rate * 1.1,
             qPrintable(QString::number(farthest)));
    QVERIFY(qAbs(int(samples.last())) < 100);

    QVERIFY(traceSamples({1.0}, {}, 1.0).isEmpty() && traceSamples({}, {}, 1.0).isEmpty());
    QVERIFY(traceSamples({0.5}, {0.5}, qQNaN()).size() < rate);
    QVERIFY(traceSamples({0.5}, {0.5}, 1e9).size() <= 2 * 61 * rate);
}

QTEST_APPLESS_MAIN(tst_TraceTone)
#include "tst_tracetone.moc"
