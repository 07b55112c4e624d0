// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tracesamples.h"

#include <smithchart/vectorkernels_p.h>

#include <fuzz/tracejudge.h>

#include <QtTest>

#include <vnatest.h>

#include <algorithm>
#include <vector>

using namespace SmithRender;
using namespace TraceSamples;
using TraceJudge::Judge;

namespace
{

struct Disagreement {
    int ties = 0;
    int faults = 0;
};

void compare(TraceTree &tree, const Trace &trace, const Viewport &viewport, Disagreement &count)
{
    const DecimationResult plain = decimate(trace.real, trace.imag, viewport);
    const DecimationResult fast = tree.decimate(viewport);
    if (fast.passedThrough != plain.passedThrough
        || fast.decimated != (fast.keptIndices.size() < trace.real.size())) {
        ++count.faults;
    } else if (fast.keptIndices != plain.keptIndices) {
        if (Judge(trace, viewport, fast.keptIndices).accepts())
            ++count.ties;
        else
            ++count.faults;
    }
}

} // namespace

class tst_TraceTree : public VnaTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void allWidthsGiveTheSameBits()
    {
        Random random(7);
        const VectorKernels &plain = *allVectorKernels()[0];
        for (int round = 0; round < 2000; ++round) {
            const int count = uniformInt(random, 1, 200);
            Trace trace = randomTrace(random, static_cast<Kind>(round % KindCount), count);
            // Exactly as much memory as may be read, so that reading on is found out.
            std::vector<double> x(trace.real.begin(), trace.real.end());
            std::vector<double> y(trace.imag.begin(), trace.imag.end());
            const int first = uniformInt(random, 0, count - 1);
            const int end = uniformInt(random, first, count);
            const Segment segment(x[0], y[0], x.back(), round % 3 ? y.back() : y[0]);

            Farthest wanted;
            plain.farthest(x.data(), y.data(), first, end, count, segment, wanted);
            Farthest oneByOne;
            for (int i = first; i < end; ++i)
                plain.farthest(x.data(), y.data(), i, i + 1, count, segment, oneByOne);
            QCOMPARE(wanted.index, oneByOne.index);
            Polygon polygon;
            const double stray = plain.strayFrom(x.data(), y.data(), first, end, segment);
            const bool finite = first < end && std::isfinite(stray);
            double bound = 0.0;
            if (finite) {
                plain.enclose(x.data(), y.data(), first, end, polygon);
                bound = plain.farthestOf(polygon, segment);
                QVERIFY(bound >= wanted.squaredDistance * (1.0 - 1e-9));
                QVERIFY(std::fabs(std::sqrt(stray) - std::sqrt(wanted.squaredDistance))
                        <= 1e-13 * (std::fabs(x[0]) + std::fabs(y[0]) + std::sqrt(bound)));
            }

            for (const VectorKernels *kernels : allVectorKernels()) {
                if (!kernels)
                    continue;
                Farthest farthest;
                kernels->farthest(x.data(), y.data(), first, end, count, segment, farthest);
                QCOMPARE(farthest.index, wanted.index);
                QVERIFY(farthest.squaredDistance == wanted.squaredDistance);

                const int whole = count / VectorKernels::widest * VectorKernels::widest;
                std::vector<double> distances(x.size());
                kernels->squaredDistances(x.data(), y.data(), whole, segment, distances.data());
                for (int i = 0; i < whole; ++i) {
                    Farthest one;
                    plain.farthest(x.data(), y.data(), i, i + 1, count, segment, one);
                    QVERIFY(distances[static_cast<size_t>(i)] == one.squaredDistance);
                }

                QVERIFY(kernels->strayFrom(x.data(), y.data(), first, end, segment) == stray);
                if (finite) {
                    Polygon other;
                    kernels->enclose(x.data(), y.data(), first, end, other);
                    QVERIFY(std::equal(polygon.reach.begin(), polygon.reach.end(),
                                       other.reach.begin()));
                    QVERIFY(kernels->farthestOf(other, segment) == bound);
                }
            }
        }
    }

    void everyWidthSeesWhatIsNotFinite()
    {
        for (const VectorKernels *kernels : allVectorKernels()) {
            for (int hole = 0; kernels && hole < 40; ++hole) {
                std::vector<double> x(40, 1.0);
                std::vector<double> y(40, -1.0);
                const auto stray = [&] {
                    const Segment segment(x[0], y[0], x[39], y[39]);
                    return kernels->strayFrom(x.data(), y.data(), 0, 40, segment);
                };
                QCOMPARE(stray(), 0.0);
                (hole % 2 ? x : y)[static_cast<size_t>(hole)] = hole % 3 ? notANumber : -infinity;
                QCOMPARE(stray(), infinity);
            }
        }
    }

    void keepsWhatThePlainRoutineKeeps_data()
    {
        QTest::addColumn<int>("kind");
        const char *names[] = {"smooth",   "noisy",   "aliased", "steps", "repeated",
                               "straight", "lattice", "huge",    "tiny",  "offset"};
        for (int kind = 0; kind < KindCount; ++kind)
            QTest::newRow(names[kind]) << kind;
    }

    void theJudgeFindsFaults()
    {
        const Trace trace = spiral(600, 0.01, 0.01);
        const Viewport viewport = squareViewport(0.0, 0.0, 1.05, 100, 100);
        const QVector<int> kept = decimate(trace.real, trace.imag, viewport).keptIndices;
        QVERIFY(Judge(trace, viewport, kept).accepts());
        for (int i = 0; i < kept.size(); ++i) {
            QVector<int> without = kept;
            without.remove(i);
            QVERIFY(!Judge(trace, viewport, without).accepts());
        }
        for (int extra = 0; extra < 600; ++extra) {
            if (!kept.contains(extra))
                QVERIFY(!Judge(trace, viewport, mergeIndices(kept, {extra}, 600)).accepts());
        }
    }

    /// Ten thousand traces in all, each at several views, as a user pans and zooms.
    void keepsWhatThePlainRoutineKeeps()
    {
        QFETCH(int, kind);
        Random random(static_cast<unsigned>(100 + kind));
        Disagreement disagreement;
        int views = 0;
        for (int round = 0; round < 1000; ++round) {
            const bool isLong = round % 100 == 50;
            // The plain routine takes a while on points in no order.
            const int longest = kind == Aliased || kind == Lattice ? 7000 : 40000;
            Trace trace = randomTrace(random, static_cast<Kind>(kind),
                                      isLong ? uniformInt(random, 5000, longest)
                                             : uniformInt(random, 260, 600));
            if (round % 3 == 0)
                punchGaps(random, trace, round % 2 ? 0.3 : 0.002);
            TraceTree tree;
            tree.setSource(trace.real, trace.imag);
            for (int view = 0; view < 3; ++view) {
                Viewport viewport = randomViewport(random);
                viewport.width = std::min(viewport.width, 128);
                viewport.xMax = viewport.xMin
                    + (viewport.yMax - viewport.yMin) * viewport.width / viewport.height;
                if (kind == Huge || kind == Tiny) { // look at where the trace is
                    const double scale = std::fabs(trace.real[trace.real.size() / 2]);
                    if (std::isfinite(scale) && scale > 0.0 && view > 0) {
                        for (double *end :
                             {&viewport.xMin, &viewport.xMax, &viewport.yMin, &viewport.yMax})
                            *end *= scale;
                    }
                }
                compare(tree, trace, viewport, disagreement);
                ++views;

                const QPointF pointer(uniform(random, -20.0, viewport.width + 20.0),
                                      uniform(random, -20.0, viewport.height + 20.0));
                double wanted = 0.0;
                double distance = 0.0;
                const int index = nearestIndex(trace.real, trace.imag, viewport, pointer, &wanted);
                QCOMPARE(tree.nearestIndex(viewport, pointer, &distance), index);
                QVERIFY(distance == wanted);
            }
        }
        qInfo("%d views, %d of them with another of equal points", views, disagreement.ties);
        QCOMPARE(disagreement.faults, 0);
        // Traces without equal distances by construction leave nothing to choose.
        if (kind == Noisy)
            QCOMPARE(disagreement.ties, 0);
    }

    void gapsMayLieAnywhere()
    {
        const Viewport viewport = squareViewport(0.0, 0.0, 1.05, 100, 100);
        for (const int count : {300, 512, 513, 514, 1024, 1025, 1026}) {
            for (const int hole : {0, 1, 63, 64, 65, 511, 512, 513, count - 2, count - 1}) {
                if (hole >= count)
                    continue;
                Trace trace = spiral(count, 0.01, 0.005);
                trace.imag[hole] = notANumber;
                TraceTree tree;
                tree.setSource(trace.real, trace.imag);
                QCOMPARE(tree.decimate(viewport).keptIndices,
                         decimate(trace.real, trace.imag, viewport).keptIndices);
                for (int x = 0; x < 100; x += 7) {
                    QCOMPARE(tree.nearestIndex(viewport, {x + 0.5, 40.0}),
                             nearestIndex(trace.real, trace.imag, viewport, {x + 0.5, 40.0}));
                }
            }
        }
    }

    /// The same view asked again, before and after others, has the same answer.
    void answersDoNotDependOnWhatWasAskedBefore()
    {
        Random random(3);
        const Trace trace = spiral(50000, 0.001, 1e-3);
        TraceTree wandering;
        wandering.setSource(trace.real, trace.imag);
        for (int round = 0; round < 30; ++round) {
            const Viewport viewport = randomViewport(random);
            TraceTree fresh;
            fresh.setSource(trace.real, trace.imag);
            if (round % 2)
                QCOMPARE(fresh.nearestIndex(viewport, {10.0, 10.0}),
                         wandering.nearestIndex(viewport, {10.0, 10.0}));
            QCOMPARE(wandering.decimate(viewport).keptIndices,
                     fresh.decimate(viewport).keptIndices);
        }
    }

    void leavesOddViewsToThePlainRoutine_data()
    {
        QTest::addColumn<Viewport>("viewport");
        const Viewport square = squareViewport(0.1, 0.0, 1.05, 100, 80);
        const auto row = [&](const char *name, const std::function<void(Viewport &)> &change) {
            Viewport viewport = square;
            change(viewport);
            QTest::newRow(name) << viewport;
        };
        row("square", [](Viewport &) {});
        row("not square", [](Viewport &v) { v.xMax += 0.5; });
        row("not square by a little", [](Viewport &v) { v.xMax += 1e-6; });
        row("no tolerance", [](Viewport &v) { v.tolerancePx = 0.0; });
        row("hardly any tolerance", [](Viewport &v) { v.tolerancePx = 1e-12; });
        row("endless tolerance", [](Viewport &v) { v.tolerancePx = 1e300; });
        row("minute view",
            [](Viewport &v) { v.xMin = 0.0, v.xMax = 1e-150, v.yMin = 0.0, v.yMax = 0.8e-150; });
        row("not usable", [](Viewport &v) { v.width = 0; });
    }

    void leavesOddViewsToThePlainRoutine()
    {
        QFETCH(Viewport, viewport);
        const Trace trace = spiral(2000, 0.01, 0.01);
        TraceTree tree;
        tree.setSource(trace.real, trace.imag);
        const DecimationResult fast = tree.decimate(viewport);
        const DecimationResult plain = decimate(trace.real, trace.imag, viewport);
        QCOMPARE(fast.keptIndices, plain.keptIndices);
        QCOMPARE(fast.passedThrough, plain.passedThrough);
        QCOMPARE(fast.decimated, plain.decimated);
        for (const QPointF &pointer : {QPointF(40.0, 40.0), QPointF(notANumber, 0.0)}) {
            QCOMPARE(tree.nearestIndex(viewport, pointer),
                     nearestIndex(trace.real, trace.imag, viewport, pointer));
        }
    }

    /// A point so far out that pixel coordinates lose their fractions.
    void wildPoints()
    {
        const Viewport viewport = squareViewport(0.1, 0.0, 1.05, 100, 100);
        for (double far = 1e3; far < 1e17; far *= 10.0) {
            Trace trace = spiral(2000, 0.01, 0.01);
            trace.real[700] = far;
            trace.imag[1300] = -far / 3.0;
            TraceTree tree;
            tree.setSource(trace.real, trace.imag);
            QCOMPARE(tree.decimate(viewport).keptIndices,
                     decimate(trace.real, trace.imag, viewport).keptIndices);
            QCOMPARE(tree.nearestIndex(viewport, {30.0, 40.0}),
                     nearestIndex(trace.real, trace.imag, viewport, {30.0, 40.0}));
        }
    }

    /// A distance of exactly the tolerance does not split, whatever the rounding in other units.
    void aPointAtExactlyTheToleranceIsDropped()
    {
        Trace trace;
        for (int i = 0; i < 1000; ++i) {
            trace.real << -0.9 + i * 0.0018;
            trace.imag << (i == 500 ? 0.01 : 0.0);
        }
        Viewport viewport = squareViewport(0.0, 0.0, 1.0, 100, 100);
        TraceTree tree;
        tree.setSource(trace.real, trace.imag);
        for (int step = -3; step <= 3; ++step) {
            viewport.tolerancePx = 0.5;
            for (int ulp = 0; ulp < std::abs(step); ++ulp)
                viewport.tolerancePx = std::nextafter(viewport.tolerancePx, step > 0 ? 1.0 : 0.0);
            QCOMPARE(tree.decimate(viewport).keptIndices,
                     decimate(trace.real, trace.imag, viewport).keptIndices);
        }
    }

    void holdsLittleMemory()
    {
        const Viewport viewport = squareViewport(0.0, 0.0, 1.05, 800, 800);
        const auto bytesAPoint = [&](const Trace &trace, int kept) {
            TraceTree tree;
            tree.setSource(trace.real, trace.imag);
            if (tree.decimate(viewport).keptIndices.size() < kept)
                return infinity;
            (void)tree.nearestIndex(viewport, {100.0, 100.0});
            return static_cast<double>(tree.memoryUsed()) / static_cast<double>(trace.real.size());
        };
        QVERIFY(bytesAPoint(spiral(200000, 20.0 / 200000), 1000) <= 2.0);
        QVERIFY(bytesAPoint(spiral(20000, 0.7), 20000) <= 48.0);
        QVERIFY(bytesAPoint(spiral(20000, 0.25), 20000) <= 48.0);
        Random random(1);
        Trace gaps = spiral(20000, 0.25);
        for (int i = 0; i < 20000; i += 2)
            gaps.real[i] = notANumber;
        QVERIFY(bytesAPoint(gaps, 20000) <= 48.0);
    }

    void sharesTheSource()
    {
        const Trace trace = spiral(5000, 0.001);
        const double *data = trace.real.constData();
        Trace owner = trace;
        owner.real.detach();
        data = owner.real.constData();
        TraceTree tree;
        tree.setSource(owner.real, owner.imag);
        (void)tree.decimate(squareViewport(0.0, 0.0, 1.0, 100, 100));
        QVERIFY(!owner.real.isDetached()); // somebody, the tree, still shares it
        QCOMPARE(owner.real.constData(), data);
        tree.setSource({}, {});
        QVERIFY(owner.real.isDetached());
        QVERIFY(tree.decimate(squareViewport(0.0, 0.0, 1.0, 100, 100)).keptIndices.isEmpty());
        QCOMPARE(tree.nearestIndex(squareViewport(0.0, 0.0, 1.0, 100, 100), {1.0, 1.0}), -1);
    }

    void aCopyKeepsItsSource()
    {
        const Viewport viewport = squareViewport(0.0, 0.0, 1.05, 100, 100);
        const Trace first = spiral(3000, 0.002);
        const Trace second = spiral(4000, 0.01);
        TraceTree tree;
        tree.setSource(first.real, first.imag);
        TraceTree copy = tree;
        tree.setSource(second.real, second.imag);
        QCOMPARE(copy.decimate(viewport).keptIndices,
                 decimate(first.real, first.imag, viewport).keptIndices);
        QCOMPARE(tree.decimate(viewport).keptIndices,
                 decimate(second.real, second.imag, viewport).keptIndices);
    }
};

Q_DECLARE_METATYPE(SmithRender::Viewport)

QTEST_APPLESS_MAIN(tst_TraceTree)
#include "tst_tracetree.moc"
