// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <smithchart/viewstate.h>

#include <vnatest.h>

#include <cmath>
#include <limits>

using namespace VnaTest;
using namespace SmithChart;

namespace
{

bool isWholeChart(const ViewState &s)
{
    return s.centerX == 0.0 && s.centerY == 0.0 && s.zoom == 1.0;
}

} // namespace

class tst_ViewState : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void unitsAreSquare()
    {
        struct Expected {
            int width, height;
            double halfX, halfY;
        };
        for (const auto &[width, height, halfX, halfY] :
             {Expected{400, 200, 2.1, 1.05},
              {200, 400, 1.05, 2.1},
              {300, 300, 1.05, 1.05},
              {0, 0, 1.05, 1.05},
              {-5, 2, 1.05, 2.1}}) { // not laid out yet, and negative
            const HalfRanges base = baseHalfRanges(width, height);
            QCOMPARE(base.x, halfX);
            QCOMPARE(base.y, halfY);
        }
    }

    void limits()
    {
        const HalfRanges square = baseHalfRanges(100, 100);
        QVERIFY(isWholeChart(clampViewState({0.7, 0.7, 0.2}, square)));
        QVERIFY(isWholeChart(clampViewState({0.7, 0.7, magnifiedThreshold}, square)));
        QVERIFY(!isWholeChart(clampViewState({0.7, 0.7, 1.000000002}, square)));
        QVERIFY(isWholeChart(clampViewState({0.1, 0.1, qQNaN()}, square)));
        QVERIFY(isWholeChart(clampViewState({0.1, 0.1, qInf()}, square)));
        QCOMPARE(clampViewState({0, 0, 50}, square).zoom, 20.0);

        const ViewState edge = clampViewState({5.0, -5.0, 2.0}, square);
        QCOMPARE(edge.centerX, 0.525);
        QCOMPARE(edge.centerY, -0.525);
        const ViewState repaired = clampViewState({qQNaN(), -qInf(), 2.0}, square);
        QCOMPARE(repaired.centerX, 0.0);
        QCOMPARE(repaired.centerY, 0.0);
        QCOMPARE(repaired.zoom, 2.0);
    }

    void zoomKeepsTheAnchor()
    {
        const HalfRanges base = baseHalfRanges(640, 400);
        const ViewState start{0.05, -0.1, 3.0};
        const double anchorX = 0.2;
        const double anchorY = 0.15;
        const ViewState zoomed = zoomedViewState(start, anchorX, anchorY, 1.5, base);
        QCOMPARE(zoomed.zoom, 4.5);
        const auto pixel = [base](const ViewState &s, double x) {
            const ViewRanges r = viewRanges(s, base);
            return (x - r.xLower) / (r.xUpper - r.xLower);
        };
        QVERIFY(std::abs(pixel(start, anchorX) - pixel(zoomed, anchorX)) < 1e-12);
    }

    void zoomSteps()
    {
        const HalfRanges base = baseHalfRanges(400, 400);
        ViewState s;
        for (int i = 0; i < 5; ++i)
            s = zoomedViewState(s, 0.3, 0.3, 2.0, base);
        QCOMPARE(s.zoom, 20.0);
        QVERIFY(isWholeChart(zoomedViewState(s, 0.9, 0.9, 0.001, base)));

        const ViewState kept{0.1, 0.2, 4.0};
        const double rejectedFactors[] = {0.0, -2.0, qQNaN(), qInf()};
        for (const double factor : rejectedFactors) {
            const ViewState same = zoomedViewState(kept, 0.0, 0.0, factor, base);
            QCOMPARE(same.zoom, 4.0);
            QCOMPARE(same.centerX, 0.1);
        }
        QCOMPARE(zoomedViewState(kept, qQNaN(), 0.0, 2.0, base).zoom, 4.0);
        QCOMPARE(zoomedViewState({9.0, 0.0, 2.0}, qQNaN(), 0.0, 2.0, base).centerX, 0.525);
    }

    void statesAndRangesAreInverse()
    {
        const HalfRanges base = baseHalfRanges(1113, 721);
        const ViewState s = clampViewState({0.31, -0.12, 7.3}, base);
        const ViewState back = viewStateFromRanges(viewRanges(s, base), base);
        QVERIFY(std::abs(back.centerX - s.centerX) < 1e-14);
        QVERIFY(std::abs(back.centerY - s.centerY) < 1e-14);
        QVERIFY(std::abs(back.zoom - s.zoom) < 1e-12);
    }

    void requestedRanges()
    {
        const HalfRanges base = baseHalfRanges(200, 200);
        // The wider request decides, and a reversed range counts by its length.
        const ViewState s = viewStateFromRanges({0.2, 0.4, 0.5, -0.5}, base);
        QCOMPARE(s.zoom, 2.1);
        QCOMPARE(s.centerX, 0.3);
        QCOMPARE(s.centerY, 0.0);
        QVERIFY(isWholeChart(viewStateFromRanges({0.2, 0.2, 0.0, 1.0}, base)));
        QVERIFY(isWholeChart(viewStateFromRanges({0.0, 1.0, 0.2, 0.2}, base)));
        QVERIFY(isWholeChart(viewStateFromRanges({0.0, qInf(), 0.0, 1.0}, base)));
        QVERIFY(isWholeChart(viewStateFromRanges({0.0, 1.0, qQNaN(), 1.0}, base)));
    }
};

QTEST_APPLESS_MAIN(tst_ViewState)
#include "tst_viewstate.moc"
