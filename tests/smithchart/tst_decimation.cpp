// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <smithchart/decimation.h>

#include <tracesamples.h>
#include <vnatest.h>

#include <functional>
#include <set>

using namespace VnaTest;
using namespace SmithRender;
using namespace TraceSamples;

namespace
{

using Points = QVector<QPointF>;

bool isFinite(const QPointF &p)
{
    return std::isfinite(p.x()) && std::isfinite(p.y());
}

double dot(const QPointF &a, const QPointF &b)
{
    return a.x() * b.x() + a.y() * b.y();
}

double squaredToSegment(const QPointF &p, const QPointF &a, const QPointF &b)
{
    const QPointF d = b - a;
    const double u = dot(d, d) > 0.0 ? qBound(0.0, dot(p - a, d) / dot(d, d), 1.0) : 0.0;
    const QPointF e = p - (a + u * d);
    return dot(e, e);
}

/// Textbook device pixels; points that are not finite stay so.
Points project(const Trace &trace, const Viewport &v)
{
    Points points;
    for (int i = 0; i < trace.real.size(); ++i) {
        points << QPointF(
            (trace.real[i] - v.xMin) / (v.xMax - v.xMin) * (v.width * v.devicePixelRatio),
            (v.yMax - trace.imag[i]) / (v.yMax - v.yMin) * (v.height * v.devicePixelRatio));
    }
    return points;
}

/// The method as the textbook has it: recursive, one run at a time.
QVector<int> referenceKept(const Points &points, double tolerance)
{
    std::set<int> kept;
    const std::function<void(int, int)> simplify = [&](int a, int b) {
        double farthest = -1.0;
        int split = -1;
        for (int i = a + 1; i < b; ++i) {
            const double distance = squaredToSegment(points[i], points[a], points[b]);
            if (distance > farthest) {
                farthest = distance;
                split = i;
            }
        }
        if (farthest > tolerance * tolerance) {
            kept.insert(split);
            simplify(a, split);
            simplify(split, b);
        }
    };
    for (int i = 0; i < points.size(); ++i) {
        if (!isFinite(points[i])) {
            kept.insert(i);
            continue;
        }
        int last = i;
        while (last + 1 < points.size() && isFinite(points[last + 1]))
            ++last;
        kept.insert({i, last});
        simplify(i, last);
        i = last;
    }
    return QVector<int>(kept.begin(), kept.end());
}

int referenceNearest(const Points &points, const QPointF &pointer, double *squaredDistance)
{
    int best = -1;
    *squaredDistance = infinity;
    const auto toPoint = [&](int i) { return dot(points[i] - pointer, points[i] - pointer); };
    for (int i = 0; i < points.size(); ++i) {
        if (isFinite(points[i]) && toPoint(i) < *squaredDistance) {
            *squaredDistance = toPoint(i);
            best = i;
        }
    }
    for (int i = 1; i < points.size(); ++i) {
        if (!isFinite(points[i - 1]) || !isFinite(points[i]))
            continue;
        const double distance = squaredToSegment(pointer, points[i - 1], points[i]);
        if (distance < *squaredDistance) {
            *squaredDistance = distance;
            best = toPoint(i - 1) <= toPoint(i) ? i - 1 : i;
        }
    }
    return best;
}

/// 100 device pixels a unit, the origin at (100, 100).
Viewport plainView()
{
    return squareViewport(0.0, 0.0, 1.0, 200, 200);
}

Trace line(int count)
{
    Trace trace;
    for (int i = 0; i < count; ++i) {
        trace.real << -0.5 + i / 1024.0;
        trace.imag << 0.25;
    }
    return trace;
}

} // namespace

class tst_Decimation : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void viewportComparesExactly()
    {
        QVERIFY(Viewport() == Viewport());
        for (double Viewport::*const field :
             {&Viewport::xMin, &Viewport::xMax, &Viewport::yMin, &Viewport::yMax,
              &Viewport::devicePixelRatio, &Viewport::tolerancePx}) {
            Viewport other;
            other.*field = std::nextafter(other.*field, 0.0);
            QVERIFY(other != Viewport());
            other.*field = notANumber;
            QVERIFY(other != Viewport(other));
        }
        for (int Viewport::*const field : {&Viewport::width, &Viewport::height}) {
            Viewport other;
            ++(other.*field);
            QVERIFY(other != Viewport());
        }
    }

    void usableViewports()
    {
        using Change = std::function<void(Viewport &)>;
        const Trace trace = line(1000);
        const auto check = [&trace](bool usable, const Change &change) {
            Viewport viewport = plainView();
            change(viewport);
            QCOMPARE(viewport.isUsable(), usable);
            const DecimationResult result = decimate(trace.real, trace.imag, viewport);
            QCOMPARE(result.passedThrough, !usable);
            QCOMPARE(result.keptIndices.size() == 1000, !usable);
            QCOMPARE(nearestIndex(trace.real, trace.imag, viewport, {50.0, 75.0}), usable ? 0 : -1);
        };
        check(true, [](Viewport &v) { v.tolerancePx = 0.0; });
        for (const Change &change :
             {Change([](Viewport &v) { v.width = 0; }), // before the first layout
              Change([](Viewport &v) { v.height = 0; }),
              Change([](Viewport &v) { v.xMax = v.xMin; }),
              Change([](Viewport &v) { v.xMin = notANumber; }),
              Change([](Viewport &v) { v.yMax = infinity; }),
              Change([](Viewport &v) { v.yMax = v.yMin - 1.0; }), Change([](Viewport &v) {
                  v.xMin = -1.5e308, v.xMax = 1.5e308;
              }), // the span overflows
              Change([](Viewport &v) { v.yMin = -1.5e308, v.yMax = 1.5e308; }),
              Change([](Viewport &v) { v.devicePixelRatio = 0.99; }),
              Change([](Viewport &v) { v.devicePixelRatio = infinity; }),
              Change([](Viewport &v) { v.tolerancePx = -0.1; }),
              Change([](Viewport &v) { v.tolerancePx = notANumber; })})
            check(false, change);
    }

    void someTracesPassThrough()
    {
        const auto keptOf = [](int count, int width, double ratio) {
            const Trace of = line(count);
            return decimate(of.real, of.imag, squareViewport(0.0, 0.0, 1.0, width, 100, ratio));
        };
        QVERIFY(keptOf(256, 100, 1.0).passedThrough);
        QVERIFY(keptOf(257, 100, 1.0).decimated);
        QVERIFY(keptOf(400, 100, 2.0).passedThrough);
        const DecimationResult result = keptOf(401, 100, 2.0);
        QCOMPARE(result.keptIndices, (QVector<int>{0, 400}));
        QVERIFY(result.decimated && !result.passedThrough);
        QVERIFY(decimate({}, {1.0}, plainView()).keptIndices.isEmpty());

        // And what cannot be projected.
        Trace trace = line(1000);
        trace.real[500] = 1e308;
        const DecimationResult wild = decimate(trace.real, trace.imag, plainView());
        QVERIFY(wild.passedThrough && !wild.decimated);
        QCOMPARE(wild.keptIndices.size(), 1000);
    }

    void keepsWhatStandsOut()
    {
        Trace trace = line(1000);
        trace.imag[400] += 0.0051; // more than half a pixel, as seen from its neighbours too
        trace.imag[900] -= 0.0049;
        trace.imag[800] = infinity;
        trace.imag << 1.0; // beyond the shorter of both
        QCOMPARE(decimate(trace.real, trace.imag, plainView()).keptIndices,
                 (QVector<int>{0, 399, 400, 401, 799, 800, 801, 999}));
    }

    void aPointAtExactlyTheToleranceIsDropped()
    {
        Trace trace = line(1000);
        trace.imag[500] += 0.0078125;
        Viewport viewport = squareViewport(0.0, 0.0, 1.0, 128, 128);
        QCOMPARE(decimate(trace.real, trace.imag, viewport).keptIndices, (QVector<int>{0, 999}));
        viewport.tolerancePx = std::nextafter(0.5, 0.0);
        QCOMPARE(decimate(trace.real, trace.imag, viewport).keptIndices,
                 (QVector<int>{0, 500, 999}));
    }

    void agreesWithTheTextbook_data() { addKinds(); }

    void agreesWithTheTextbook()
    {
        QFETCH(int, kind);
        Random random(static_cast<unsigned>(kind));
        for (int round = 0; round < 40; ++round) {
            Trace trace =
                randomTrace(random, static_cast<Kind>(kind), uniformInt(random, 1000, 2000));
            if (round % 2)
                punchGaps(random, trace, round % 4 == 1 ? 0.002 : 0.4);
            const Viewport viewport = randomViewport(random);
            const Points points = project(trace, viewport);

            const DecimationResult result = decimate(trace.real, trace.imag, viewport);
            if (!result.passedThrough)
                QCOMPARE(result.keptIndices, referenceKept(points, viewport.tolerancePx));

            const QPointF pointer(uniform(random, 0.0, viewport.width),
                                  uniform(random, 0.0, viewport.height));
            double distance = 0.0;
            double wanted = 0.0;
            const int index = nearestIndex(trace.real, trace.imag, viewport, pointer, &distance);
            QCOMPARE(index, referenceNearest(points, pointer * viewport.devicePixelRatio, &wanted));
            QCOMPARE(distance, wanted / (viewport.devicePixelRatio * viewport.devicePixelRatio));
        }
    }

    void nearestTakesTheNearerEndOfALine()
    {
        const QVector<double> real{-0.5, 0.5, notANumber, 0.5};
        const QVector<double> imag{0.0, 0.0, 0.0, -0.5};
        const auto nearest = [&](double x, double y, double *distance) {
            return nearestIndex(real, imag, plainView(), {x, y}, distance);
        };
        double distance = 0.0;
        QCOMPARE(nearest(90.0, 103.0, &distance), 0);
        QCOMPARE(distance, 9.0);
        QCOMPARE(nearest(100.0, 103.0, &distance), 0); // the earlier end when both are as near
        QCOMPARE(nearest(110.0, 103.0, &distance), 1);
        QCOMPARE(nearest(150.0, 130.0, &distance), 3); // no line crosses the gap
        QCOMPARE(distance, 400.0);
        QCOMPARE(nearest(notANumber, 0.0, &distance), -1);
        QCOMPARE(distance, infinity);
        QCOMPARE(nearestIndex({}, {}, plainView(), {0.0, 0.0}, &distance), -1);
        QCOMPARE(distance, infinity);
        // What one vector has more than the other is not part of the trace.
        QVector<double> two = imag;
        two.resize(2); // the values behind are still in its memory
        QCOMPARE(nearestIndex(real, two, plainView(), {150.0, 150.0}, nullptr), 1);
        two = imag;
        two.resize(1);
        QCOMPARE(nearestIndex(two, imag, plainView(), {150.0, 150.0}, nullptr), 0);
    }

    void mergeIsASortedUnion()
    {
        const QVector<int> kept{0, 4, 9};
        QCOMPARE(mergeIndices(kept, {}, 10), kept);
        QCOMPARE(mergeIndices(kept, {12, -1, 10}, 10), kept);
        QCOMPARE(mergeIndices(kept, {7, 4, 9, 1, 7, 0, -3, 10}, 10), (QVector<int>{0, 1, 4, 7, 9}));
        QCOMPARE(mergeIndices({}, {3, 3}, 10), QVector<int>{3});
    }

    /// A trace that runs away from its start splits off one point at a time: as deep as it is long.
    void aDeepSplitNeedsNoStack()
    {
        Trace trace;
        for (int i = 0; i < 20000; ++i) {
            trace.real << std::ldexp(1.0, -(i / 40)) * (i % 2 ? 1.0 : -1.0);
            trace.imag << i * 1e-4;
        }
        QVERIFY(decimate(trace.real, trace.imag, plainView()).keptIndices.size() > 100);
    }
};

QTEST_APPLESS_MAIN(tst_Decimation)
#include "tst_decimation.moc"
