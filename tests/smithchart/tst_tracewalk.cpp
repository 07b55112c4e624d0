// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <smithchart/tracenoise_p.h>
#include <smithchart/tracepoint.h>
#include <smithchart/tracesummary.h>
#include <smithchart/tracewalk.h>
#include <smithchart/tracewords.h>

#include <vnatest.h>

#include <QSet>

#include <cmath>
#include <complex>
#include <random>

using namespace SmithChart;

namespace
{

struct Line {
    QVector<double> real;
    QVector<double> imag;

    void add(const std::complex<double> &gamma)
    {
        real << gamma.real();
        imag << gamma.imag();
    }
};

/// A series R, L and C in an impedance of 1, from half to one and a half of its resonance.
Line seriesCircuit(double resistance, double quality, int points)
{
    Line line;
    for (int i = 0; i < points; ++i) {
        const double f = 0.5 + double(i) / (points - 1);
        const std::complex<double> z(resistance, quality * resistance * (f - 1.0 / f));
        line.add((z - 1.0) / (z + 1.0));
    }
    return line;
}

QVector<int> kinds(const TraceWalk &walk, double from, int direction)
{
    QVector<int> found;
    while (const auto stop = walk.nextFeature(from, direction)) {
        if (direction * (stop->index - from) <= 0.0)
            return {-1}; // would go on for ever
        from = stop->index;
        found << int(stop->features);
    }
    return found;
}

} // namespace

class tst_TraceWalk : public VnaTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aSeriesCircuitResonatesWhereItsFormulaSays();
    void axisAndGaps();
    void bothDirectionsMeetTheSamePlaces();
    void noiseIsNoFeature();
    void noiseIsMeasuredBetweenGaps();
    void whatCountsMayChange();
    void keysThatWalk();
    void stepsByPointsAndByDistance();
    void stepsFromNowhere();
    void pointsBetweenPoints();
    void summaries();
};

void tst_TraceWalk::aSeriesCircuitResonatesWhereItsFormulaSays()
{
    const double quality = 20.0;
    const Line line = seriesCircuit(0.8, quality, 400); // resonates between two points
    TraceWalk walk;
    walk.setData(line.real, line.imag);
    const auto frequency = [](double index) { return 0.5 + index / 399.0; };

    const QVector<TraceStop> stops = walk.dataFeatures();
    QCOMPARE(stops.size(), 4);
    // |G| = 1/3: (r - 1)^2 + x^2 = ((r + 1)^2 + x^2) / 9, so x^2 = 0.36 for r = 0.8.
    const double slope = quality * 0.8;
    const auto at = [slope](double x) {
        return x / (2.0 * slope) + std::sqrt(x * x / (4.0 * slope * slope) + 1.0);
    };
    QCOMPARE(int(stops.first().features), int(VswrCircle));
    QVERIFY(std::abs(frequency(stops.first().index) - at(-0.6)) < 1e-4);
    QVERIFY(std::abs(frequency(stops.last().index) - at(0.6)) < 1e-4);
    QSet<int> middle{int(stops.at(1).features), int(stops.at(2).features)};
    QCOMPARE(middle, (QSet<int>{Resonance, Minimum}));
    for (const TraceStop &stop : stops) {
        if (stop.features.testFlag(Resonance))
            QVERIFY(std::abs(frequency(stop.index) - 1.0) < 1e-5);
    }

    const TraceSummary summary = summarise(line.real, line.imag);
    QVERIFY(std::abs(frequency(summary.bandHigh) - at(0.6)) < 1e-4);
    QVERIFY(std::abs(summary.vswr() - 1.25) < 0.02);
}

void tst_TraceWalk::axisAndGaps()
{
    TraceWalk walk;
    const auto found = [&](const QVector<double> &imag) {
        walk.setData(QVector<double>(imag.size(), 0.1), imag);
        QString text;
        for (const TraceStop &stop : walk.dataFeatures()) {
            if (const int kind = int(stop.features & (Resonance | RealAxis)))
                text += QStringLiteral("%1@%2 ").arg(kind).arg(stop.index);
        }
        return text.trimmed();
    };
    QCOMPARE(found({-0.1, 0.3, -0.1}), QStringLiteral("1@0.25 2@1.75"));
    QCOMPARE(found({-0.1, 0.0, 0.0, 0.1}), QStringLiteral("1@1")); // where it reaches the axis
    QCOMPARE(found({-0.1, 0.0, -0.1}), QString()); // touches it only
    QCOMPARE(found({0.0, 0.0, 0.0, 0.1}), QString()); // begins on it
    QCOMPARE(found({-0.1, qQNaN(), 0.1}), QString()); // nobody knows what is in a gap
    QCOMPARE(found({-0.1, 0.0, qQNaN(), 0.1}), QString());
    QCOMPARE(found({-0.1, 0.004, -0.004, 0.004, 0.1}), QStringLiteral("1@2.5")); // noise: once
    QCOMPARE(found({-0.004, 0.004}), QStringLiteral("1@0.5")); // small, but there is no more
    QCOMPARE(found({}), QString());
}

void tst_TraceWalk::bothDirectionsMeetTheSamePlaces()
{
    std::mt19937 random(7);
    std::uniform_real_distribution<double> noise(-0.2, 0.2);
    Line line;
    for (int i = 0; i < 5000; ++i) {
        const bool gap = i % 97 == 0;
        line.add(gap ? std::complex<double>(qQNaN(), 0.0)
                     : std::polar(0.5, i * 0.01)
                         + std::complex<double>(noise(random), noise(random)));
    }
    TraceWalk walk;
    walk.setData(line.real, line.imag);
    walk.setMarkers({2500.0, 10.0, walk.dataFeatures().at(40).index + 1e-9});
    walk.setLimitEdges({77.0, 10.0});
    QVector<int> forwards = kinds(walk, -1.0, 1);
    const QVector<int> backwards = kinds(walk, 5000.0, -1);
    std::reverse(forwards.begin(), forwards.end());
    QCOMPARE(forwards, backwards);
    QVERIFY(forwards.size() > 1000);
    QVERIFY(walk.featuresAt(10.0).testFlag(LimitEdge)
            && walk.featuresAt(10.0).testFlag(MarkedPoint));
    for (int i = 1; i < walk.dataFeatures().size(); ++i)
        QVERIFY(walk.dataFeatures().at(i - 1).index < walk.dataFeatures().at(i).index);
}

void tst_TraceWalk::noiseIsNoFeature()
{
    std::mt19937 random(3);
    std::normal_distribution<double> noise(0.0, 0.02);
    Line line;
    for (int i = 0; i < 50000; ++i)
        line.add(std::polar(0.8, -0.3 - i * 6.283185307179586 * 3.2 / 50000.0)
                 + std::complex<double>(noise(random), noise(random)));
    TraceWalk walk;
    walk.setData(line.real, line.imag);
    QCOMPARE(kinds(walk, -1.0, 1),
             (QVector<int>{Resonance, RealAxis, Resonance, RealAxis, Resonance, RealAxis}));
    QCOMPARE(summarise(line.real, line.imag).loops, 3);
}

void tst_TraceWalk::noiseIsMeasuredBetweenGaps()
{
    std::mt19937 random(5);
    std::normal_distribution<double> noise(0.0, 0.01);
    QVector<double> real(12000), imag(12000);
    for (int i = 0; i < real.size(); ++i) {
        real[i] = i % 7 < 3 ? qQNaN() : std::cos(i * 1e-4) + noise(random);
        imag[i] = std::sin(i * 1e-4) + noise(random);
    }
    QVERIFY(qAbs(noiseOf(real, imag, 12000) - 0.01) < 0.002);
    QCOMPARE(noiseOf(real, imag, 9999), 0.0); // too short to tell
    const QVector<double> gap(12000, qQNaN());
    QCOMPARE(noiseOf(gap, gap, 12000), 0.0);
}

void tst_TraceWalk::whatCountsMayChange()
{
    TraceWalk walk;
    const QVector<double> real{0.5, 0.2, 0.32, 0.2, 0.5};
    walk.setData(real, QVector<double>(5, 0.0));
    const auto found = [&walk] {
        QString text;
        for (const TraceStop &stop : walk.dataFeatures()) {
            const QString kind = featureText(stop.features, 2.0).left(2);
            text += QStringLiteral("%1@%2 ").arg(kind).arg(stop.index, 0, 'g', 3);
        }
        return text.trimmed();
    };
    walk.setFeatures(VswrCircle);
    QCOMPARE(found(), QStringLiteral("VS@0.556 VS@3.44"));
    walk.setFeatures(VswrCircle); // as they were
    QVERIFY(walk.setVswr(2.0) && walk.setExcursion(0.01) && walk.setExcursion(0.01));
    QCOMPARE(found(), QStringLiteral("VS@0.556 VS@3.44"));
    QVERIFY(walk.setVswr(1.6));
    QCOMPARE(found(), QStringLiteral("VS@0.897 VS@1.26 VS@2.74 VS@3.1"));
    walk.setFeatures(Minimum | Maximum);
    QCOMPARE(found(), QStringLiteral("Mi@1 Ma@2 Mi@3"));
    QVERIFY(walk.setExcursion(0.2));
    QCOMPARE(found(), QStringLiteral("Mi@1"));
    walk.setData(real, {0.0, 0.5, 0.0, 0.5, 0.0}); // one of the two is new
    QCOMPARE(found(), QStringLiteral("Mi@2"));
}

void tst_TraceWalk::keysThatWalk()
{
    const struct {
        int key;
        WalkUnit unit;
        int direction;
    } rows[] = {
        {Qt::Key_Left, WalkUnit::Point, -1},  {Qt::Key_Right, WalkUnit::Point, 1},
        {Qt::Key_PageUp, WalkUnit::View, -1}, {Qt::Key_PageDown, WalkUnit::View, 1},
        {Qt::Key_Home, WalkUnit::End, -1},    {Qt::Key_End, WalkUnit::End, 1},
    };
    for (const auto &row : rows) {
        for (const Qt::KeyboardModifier pad : {Qt::NoModifier, Qt::KeypadModifier}) {
            const auto plain = walkStepOf(row.key, pad);
            QVERIFY(plain && plain->unit == row.unit && plain->direction == row.direction);
            const auto byControl = walkStepOf(row.key, Qt::ControlModifier | pad);
            QCOMPARE(bool(byControl), row.unit == WalkUnit::Point);
            if (byControl)
                QVERIFY(byControl->unit == WalkUnit::Feature
                        && byControl->direction == row.direction);
            QVERIFY(!walkStepOf(row.key, Qt::ShiftModifier | pad));
        }
    }
    QVERIFY(!walkStepOf(Qt::Key_Up, Qt::NoModifier));
}

void tst_TraceWalk::stepsByPointsAndByDistance()
{
    TraceWalk walk;
    QVERIFY(!walk.setVswr(1.0) && !walk.setVswr(qInf()) && walk.setVswr(1.5));
    QVERIFY(!walk.setExcursion(0.0) && !walk.setExcursion(qQNaN()) && walk.setExcursion(0.1));
    QCOMPARE(walk.byPoints(0.0, 1), -1.0);
    QCOMPARE(walk.byDistance(0.0, 1, 0.1), -1.0);
    walk.setData({qQNaN(), 0.0, 0.1, qQNaN(), 0.3, 0.35, qInf()}, QVector<double>(7, 0.0));
    QCOMPARE(walk.start(), 1.0);
    QCOMPARE(walk.end(), 5.0);
    QCOMPARE(walk.byPoints(-1.0, 1), 1.0);
    QCOMPARE(walk.byPoints(99.0, -1), 5.0);
    QCOMPARE(walk.byPoints(2.0, 1), 4.0); // over the gap
    QCOMPARE(walk.byPoints(4.0, -1), 2.0);
    QCOMPARE(walk.byPoints(4.5, -1), 4.0);
    QCOMPARE(walk.byPoints(5.0, 1), 5.0);
    QCOMPARE(walk.byPoints(1.0, -3), 1.0);
    QCOMPARE(walk.byDistance(1.0, 1, 0.25), 4.0);
    QCOMPARE(walk.byDistance(5.0, -1, 0.04), 4.0);
    QCOMPARE(walk.byDistance(1.0, 1, 9.0), 5.0);
    QCOMPARE(walk.byDistance(5.0, -1, 9.0), 1.0);
    QCOMPARE(walk.byDistance(0.4, 1, 9.0), 1.0); // out of a gap, to the first point
}

void tst_TraceWalk::stepsFromNowhere()
{
    TraceWalk walk;
    walk.setFeatures(Minimum);
    walk.setData({0.1, 0.1, 0.1}, QVector<double>(3, 0.0));
    for (const double nowhere : {-1.0, 7.0}) {
        for (const WalkUnit unit : {WalkUnit::Point, WalkUnit::View, WalkUnit::Feature})
            QCOMPARE(walk.walked(nowhere, {unit, 1}, 0.1), std::optional(0.0));
    }
    QCOMPARE(walk.walked(1.0, {WalkUnit::Feature, 1}, 0.1), std::optional(1.0)); // there is none
    walk.setMarkers({0.5, 1.5});
    QCOMPARE(walk.walked(-1.0, {WalkUnit::Feature, 1}, 0.1), std::optional(0.5));
    QCOMPARE(walk.walked(-1.0, {WalkUnit::Feature, -1}, 0.1), std::optional(1.5));
}

void tst_TraceWalk::pointsBetweenPoints()
{
    const QVector<double> real{0.0, 1.0, qQNaN(), 1.0}, imag{0.0, 0.5, 0.0, qInf(), 9.0};
    QCOMPARE(tracePoint(real, imag, 0.5), std::optional(QPointF(0.5, 0.25)));
    QCOMPARE(tracePoint(real, imag, 1.0), std::optional(QPointF(1.0, 0.5)));
    for (const double index : {-0.1, 1.5, 2.0, 2.5, 3.0, 3.5, double(qQNaN())})
        QVERIFY2(!tracePoint(real, imag, index), qPrintable(QString::number(index)));
    QVERIFY(!tracePoint({}, imag, 0.0));
    // From one end of all numbers to the other.
    const double most = std::numeric_limits<double>::max();
    QCOMPARE(tracePoint({-most, most}, {most, most}, 0.75),
             std::optional(QPointF(most / 2.0, most)));
}

void tst_TraceWalk::summaries()
{
    QCOMPARE(summarise({qQNaN()}, {0.0}).best, -1);
    const auto spiral = [](double turns) {
        Line line;
        for (int i = 0; i <= 2000; ++i)
            line.add(std::polar(0.9 - i * 0.0002, -6.283185307179586 * turns * i / 2000.0));
        return summarise(line.real, line.imag);
    };
    QCOMPARE(spiral(3.0).loops, 3);
    QCOMPARE(spiral(0.6).loops, 0);
    QCOMPARE(spiral(0.6).best, 2000);
    QVERIFY(!spiral(0.6).hasBand()); // 0.5 is a ratio of 3
    // A band ends at a gap and at the end of the data.
    const TraceSummary cut = summarise({0.9, qQNaN(), 0.1, 0.0, 0.1}, QVector<double>(5, 0.0));
    QCOMPARE(cut.bandLow, 2.0);
    QCOMPARE(cut.bandHigh, 4.0);
    QCOMPARE(summarise({0.1, 0.0, 0.1}, QVector<double>(3, 0.0)).bandLow, 0.0);
    QVERIFY(std::isinf(summarise({1.5}, {0.0}).vswr()));
}

QTEST_APPLESS_MAIN(tst_TraceWalk)
#include "tst_tracewalk.moc"
