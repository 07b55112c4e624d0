// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <smithchart/circle_p.h>
#include <smithchart/polylines_p.h>

#include <vnatest.h>

#include <cmath>
#include <complex>
#include <functional>

using namespace VnaTest;
using namespace SmithChart;

namespace
{

using Complex = std::complex<double>;

const QRectF wholePlane(-10.0, -10.0, 20.0, 20.0);

Complex impedanceAt(const QPointF &g)
{
    const Complex reflection(g.x(), g.y());
    return (1.0 + reflection) / (1.0 - reflection);
}

double lengthOf(const QVector<QPolygonF> &lines)
{
    double length = 0.0;
    for (const QPolygonF &line : lines) {
        for (int i = 1; i < line.size(); ++i)
            length += std::hypot(line.at(i).x() - line.at(i - 1).x(),
                                 line.at(i).y() - line.at(i - 1).y());
    }
    return length;
}

} // namespace

class tst_Circle : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    /// Each point of a circle, but the open or short circuit, has the quantity that it stands for.
    void circlesHoldTheirQuantity()
    {
        const auto check = [](const std::optional<Circle> &circle, double expected,
                              const std::function<double(const QPointF &, Complex)> &quantity) {
            QVERIFY(circle.has_value());
            int tested = 0;
            for (const QPolygonF &line : circleLines(*circle, wholePlane, true, 1e-4)) {
                for (const QPointF &g : line) {
                    if (std::hypot(1.0 - std::abs(g.x()), g.y()) < 0.05)
                        continue;
                    const double found = quantity(g, impedanceAt(g));
                    QVERIFY2(std::abs(found - expected) < 1e-6 * (1.0 + std::abs(expected)),
                             qPrintable(QString::number(found)));
                    ++tested;
                }
            }
            QVERIFY(tested > 20);
        };
        check(vswrCircle(2.0), 2.0, [](const QPointF &g, Complex) {
            const double magnitude = std::hypot(g.x(), g.y());
            return (1.0 + magnitude) / (1.0 - magnitude);
        });
        check(reflectionCircle(0.7), 0.7,
              [](const QPointF &g, Complex) { return std::hypot(g.x(), g.y()); });
        check(resistanceCircle(0.5), 0.5, [](const QPointF &, Complex z) { return z.real(); });
        check(reactanceCircle(-2.0), -2.0, [](const QPointF &, Complex z) { return z.imag(); });
        check(conductanceCircle(3.0), 3.0,
              [](const QPointF &, Complex z) { return (1.0 / z).real(); });
        check(susceptanceCircle(0.4), 0.4,
              [](const QPointF &, Complex z) { return (1.0 / z).imag(); });
        const QVector<Circle> q = qualityCircles(1.5);
        QCOMPARE(q.size(), 2);
        for (const auto &[circle, sign] : {std::pair(q.at(0), 1.0), std::pair(q.at(1), -1.0)}) {
            check(circle, 1.5 * sign,
                  [](const QPointF &, Complex z) { return z.imag() / z.real(); });
        }
    }

    void valuesWithoutCircle()
    {
        for (const double bad : {double(qQNaN()), double(qInf()), -1.0, 0.0}) {
            QVERIFY(!vswrCircle(bad) && !reflectionCircle(bad));
            QVERIFY(qualityCircles(bad).isEmpty());
            if (bad != 0.0)
                QVERIFY(!resistanceCircle(bad) && !conductanceCircle(bad));
            if (bad != -1.0)
                QVERIFY(!reactanceCircle(bad) && !susceptanceCircle(bad));
        }
        QVERIFY(!vswrCircle(1.0));
        QVERIFY(circleLines({{0.0, 0.0}, 0.0}, wholePlane, false, 0.1).isEmpty());
        QVERIFY(circleLines({{0.0, 0.0}, 1.0}, wholePlane, false, 0.0).isEmpty());
        QVERIFY(qualityCircles(1e-320).isEmpty());
    }

    void linesAreCut()
    {
        constexpr double pi = 3.141592653589793;
        const Circle unit{{0.0, 0.0}, 1.0};
        QVERIFY(std::abs(lengthOf(circleLines(unit, wholePlane, false, 1e-6)) - 2.0 * pi) < 1e-4);
        const QRectF quarter(0.0, 0.0, 2.0, 2.0);
        QVERIFY(std::abs(lengthOf(circleLines(unit, quarter, false, 1e-6)) - pi / 2.0) < 1e-4);
        QVERIFY(circleLines(unit, QRectF(3.0, 3.0, 1.0, 1.0), false, 1e-6).isEmpty());

        // A stability circle that reaches into the chart: the part within.
        const Circle outside{{1.2, 0.0}, 0.8};
        const double half = std::acos((1.44 + 0.64 - 1.0) / (2.0 * 1.2 * 0.8));
        const double inChart = lengthOf(circleLines(outside, wholePlane, true, 1e-6));
        QVERIFY(std::abs(inChart - 2.0 * half * 0.8) < 1e-4);
        QVERIFY(circleLines({{5.0, 0.0}, 1.0}, wholePlane, true, 1e-6).isEmpty());

        // So large that it is straight: no more points than its length calls for.
        const Circle large{{0.5 + 1e7, 0.0}, 1e7};
        const QVector<QPolygonF> straight =
            circleLines(large, QRectF(0.0, -1.0, 1.0, 2.0), false, 1e-4);
        QVERIFY(std::abs(lengthOf(straight) - 2.0) < 1e-3);
        QVERIFY(straight.first().size() < 5);
    }

    void linesStopBeforeHoles()
    {
        const QVector<QPolygonF> lines{QPolygonF({{0.0, 0.0}, {10.0, 0.0}, {10.0, 10.0}})};
        const auto rest = [&lines](const QRectF &hole) { return linesOutside(lines, {hole}); };
        QCOMPARE(rest(QRectF(20.0, 20.0, 1.0, 1.0)), lines);
        const QVector<QPolygonF> split = rest(QRectF(4.0, -1.0, 2.0, 2.0));
        QCOMPARE(split.size(), 2);
        QCOMPARE(split.at(0).last(), QPointF(4.0, 0.0));
        QCOMPARE(split.at(1).first(), QPointF(6.0, 0.0));
        QCOMPARE(lengthOf(rest(QRectF(-1.0, -1.0, 3.0, 3.0))), 18.0); // the start
        QCOMPARE(lengthOf(rest(QRectF(8.0, -1.0, 4.0, 4.0))), 8.0 + 7.0); // round the corner
        QCOMPARE(lengthOf(linesOutside(lines, {QRectF(1, -1, 1, 2), QRectF(3, -1, 1, 2)})), 18.0);
        QVERIFY(rest(QRectF(-1.0, -1.0, 20.0, 20.0)).isEmpty());
    }
};

QTEST_APPLESS_MAIN(tst_Circle)
#include "tst_circle.moc"
