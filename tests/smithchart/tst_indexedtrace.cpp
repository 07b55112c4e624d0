// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <fuzz/tracejudge.h>

#include <tracesamples.h>
#include <vnatest.h>

#include <algorithm>

using namespace VnaTest;
using namespace SmithRender;
using namespace TraceSamples;
using TraceJudge::Judge;

namespace
{

struct Disagreement {
    int ties = 0;
    int faults = 0;
};

void compare(IndexedTrace &tree, const Trace &trace, const Viewport &viewport, Disagreement &count)
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

IndexedTrace treeOf(const Trace &trace)
{
    IndexedTrace tree;
    tree.setSource(trace.real, trace.imag);
    return tree;
}

/// The tree keeps the same points as the plain routine.
void compareAt(IndexedTrace &tree, const Trace &trace, const Viewport &viewport)
{
    QCOMPARE(tree.decimate(viewport).keptIndices,
             decimate(trace.real, trace.imag, viewport).keptIndices);
}

} // namespace

class tst_IndexedTrace : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void keepsWhatThePlainRoutineKeeps_data() { addKinds(); }

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
            IndexedTrace tree = treeOf(trace);
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

    // Stretches in which a few points come again exactly, with others before, between and behind.
    void keepsTheSameOfRepeatedPoints()
    {
        Random random(7);
        for (int round = 0; round < 60; ++round) {
            Trace trace;
            for (int part = uniformInt(random, 1, 4); part > 0; --part) {
                const int period = round % 3 == 0 ? 7 : uniformInt(random, 1, 80);
                const Trace few = randomTrace(random, Noisy, std::max(period, 2));
                for (int i = uniformInt(random, 1000, 7000); i > 0; --i) {
                    trace.real << few.real.at(i % period);
                    trace.imag << few.imag.at(i % period);
                }
                const Trace other = randomTrace(random, Smooth, uniformInt(random, 2, 3000));
                trace.real << other.real;
                trace.imag << other.imag;
            }
            IndexedTrace tree = treeOf(trace);
            compareAt(tree, trace, squareViewport(0.0, 0.0, 1.05, 800, 800));
            compareAt(tree, trace, squareViewport(0.2, -0.1, 0.02, 800, 800));
        }
    }

    void holdsLittleMemory()
    {
        const Viewport viewport = squareViewport(0.0, 0.0, 1.05, 800, 800);
        const auto bytesAPoint = [&](const Trace &trace, int kept) {
            IndexedTrace tree = treeOf(trace);
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
        const Viewport viewport = squareViewport(0.0, 0.0, 1.0, 100, 100);
        Trace owner = spiral(5000, 0.001);
        const double *data = owner.real.constData();
        IndexedTrace tree = treeOf(owner);
        (void)tree.decimate(viewport);
        QVERIFY(!owner.real.isDetached()); // somebody, the tree, still shares it
        QCOMPARE(owner.real.constData(), data);
        tree.setSource({}, {});
        QVERIFY(owner.real.isDetached());
        QVERIFY(tree.decimate(viewport).keptIndices.isEmpty());
        QCOMPARE(tree.nearestIndex(viewport, {1.0, 1.0}), -1);
    }

    void aCopyKeepsItsSource()
    {
        const Viewport viewport = squareViewport(0.0, 0.0, 1.05, 100, 100);
        const Trace first = spiral(3000, 0.002);
        const Trace second = spiral(4000, 0.01);
        IndexedTrace tree = treeOf(first);
        IndexedTrace copy = tree;
        tree.setSource(second.real, second.imag);
        compareAt(copy, first, viewport);
        compareAt(tree, second, viewport);
    }
};

QTEST_APPLESS_MAIN(tst_IndexedTrace)
#include "tst_indexedtrace.moc"
