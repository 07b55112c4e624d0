// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <smithchart/limitarea.h>

#include <vnatest.h>

#include <cmath>
#include <functional>
#include <random>

using namespace VnaTest;
using SmithChart::LimitArea;
using SmithChart::LimitResult;

namespace
{

class Random
{
public:
    double uniform(double low, double high)
    {
        return std::uniform_real_distribution<double>(low, high)(m_generator);
    }
    QPolygonF polygon()
    {
        QPolygonF polygon;
        const int corners = static_cast<int>(uniform(3.0, 40.0));
        for (int i = 0; i < corners; ++i)
            polygon << QPointF(uniform(-1.0, 1.0), uniform(-1.0, 1.0)); // crosses itself
        return polygon;
    }

private:
    std::mt19937 m_generator{4711};
};

bool inCircle(const QPointF &p, const QPointF &centre, double radius)
{
    return std::hypot(p.x() - centre.x(), p.y() - centre.y()) <= radius;
}

bool inSector(const QPointF &p, double low, double high, double from, double to)
{
    const double magnitude = std::hypot(p.x(), p.y());
    double phase = std::atan2(p.y(), p.x()) * 180.0 / 3.141592653589793;
    while (phase < from)
        phase += 360.0;
    while (phase - 360.0 >= from)
        phase -= 360.0;
    return magnitude >= low && magnitude <= high && phase <= to;
}

bool inPolygon(const QPointF &p, const QPolygonF &polygon)
{
    bool inside = false;
    for (int i = 0; i < polygon.size(); ++i) {
        const QPointF a = polygon.at(i);
        const QPointF b = polygon.at((i + 1) % polygon.size());
        if ((a.y() > p.y()) != (b.y() > p.y())
            && p.x() < a.x() + (b.x() - a.x()) * (p.y() - a.y()) / (b.y() - a.y()))
            inside = !inside;
    }
    return inside;
}

} // namespace

class tst_LimitArea : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    /// A million random points, against what the shapes are by definition. Points that lie on a
    /// border to within rounding do not occur.
    void agreesWithBruteForce()
    {
        Random random;
        for (int shape = 0; shape < 2000; ++shape) {
            LimitArea area;
            std::function<bool(const QPointF &)> inside;
            if (shape % 4 == 0) {
                const QPointF centre(random.uniform(-1, 1), random.uniform(-1, 1));
                const double radius = random.uniform(0.01, 1.5);
                QVERIFY(area.setCircle(centre, radius, LimitArea::StayInside));
                inside = [=](const QPointF &p) { return inCircle(p, centre, radius); };
            } else if (shape % 4 == 1) {
                const double low = random.uniform(0.0, 0.8);
                const double high = low + random.uniform(0.05, 0.6);
                const double from = random.uniform(-400.0, 400.0);
                const double to = from + random.uniform(1.0, 420.0);
                QVERIFY(area.setSector(low, high, from, to, LimitArea::StayInside));
                inside = [=](const QPointF &p) { return inSector(p, low, high, from, to); };
            } else {
                const QPolygonF polygon = random.polygon();
                QVERIFY(area.setPolygon(polygon, LimitArea::StayInside));
                inside = [=](const QPointF &p) { return inPolygon(p, polygon); };
            }
            for (int i = 0; i < 500; ++i) {
                const QPointF p(random.uniform(-1.2, 1.2), random.uniform(-1.2, 1.2));
                QVERIFY2(area.contains(p) == inside(p),
                         qPrintable(
                             QStringLiteral("shape %1: %2, %3").arg(shape).arg(p.x()).arg(p.y())));
            }
        }
    }

    void stretches()
    {
        const double nan = qQNaN();
        const QVector<double> real{0.9, 0.1, 0.2, 0.8, 0.9, nan, 0.9, 0.1, 0.7};
        const QVector<double> imag(9, 0.0);
        LimitArea area;
        QVERIFY(area.test(real, imag).passed());
        QCOMPARE(area.test(real, imag).tested, 8);
        QVERIFY(area.setCircle({0.0, 0.0}, 0.5, LimitArea::StayInside));
        const LimitResult result = area.test(real, imag);
        QVERIFY(!result.passed());
        QCOMPARE(result.firstFailing, 0);
        QCOMPARE(result.tested, 8);
        QVector<QPair<int, int>> found;
        for (const auto &stretch : result.failing)
            found.append({stretch.first, stretch.last});
        const QVector<QPair<int, int>> expected{{0, 0}, {3, 4}, {6, 6}, {8, 8}};
        QCOMPARE(found, expected);

        QVERIFY(area.setCircle({0.0, 0.0}, 0.5, LimitArea::KeepOut));
        QCOMPARE(area.test(real, imag).firstFailing, 1);
        QCOMPARE(area.test(real, {0.0}).tested, 1);
        QVERIFY(area.test({}, {}).passed());

        // A part of the range; stimulus values may come in any order.
        const QVector<double> stimulus{8, 7, 6, 5, 4, 3, 2, 1, nan};
        const LimitResult part = area.test(real, imag, stimulus, {2.0, 6.0});
        QCOMPARE(part.firstFailing, 2);
        QCOMPARE(part.tested, 4);
        QCOMPARE(part.failing.size(), 1);
    }

    void refusesWhatHasNoArea()
    {
        LimitArea area;
        QVERIFY(area.setCircle({0.1, 0.2}, 0.3, LimitArea::KeepOut));
        const auto inside = LimitArea::StayInside;
        const double nan = qQNaN();
        for (const double bad : {0.0, -1.0, nan, double(qInf())})
            QVERIFY(!area.setCircle({0.0, 0.0}, bad, inside));
        QVERIFY(!area.setCircle({nan, 0.0}, 1.0, inside));
        for (const QVector<QPointF> &corners : {QVector<QPointF>{},
                                                {{0, 0}, {1, 1}},
                                                {{0, 0}, {1, 0}, {2, 0}},
                                                {{0, 0}, {0, 1}, {0, 2}},
                                                {{-1e308, 0}, {1e308, 0}, {0, 1}},
                                                {{0, -1e308}, {0, 1e308}, {1, 0}},
                                                {{0, 0}, {1, nan}, {2, 0}}})
            QVERIFY(!area.setPolygon(QPolygonF(corners), inside));
        for (const auto &[low, high, from, to] : {std::tuple(0.5, 0.5, 0.0, 90.0),
                                                  {-0.1, 0.5, 0, 90},
                                                  {0.1, 0.5, 90, 90},
                                                  {0.1, 0.5, 0, nan},
                                                  {0.1, nan, 0, 90}})
            QVERIFY(!area.setSector(low, high, from, to, inside));
        QCOMPARE(area.rule(), LimitArea::KeepOut);
        QVERIFY(area.contains({0.1, 0.49}) && !area.contains({0.1, 0.51}));
    }

    /// A border belongs to its area, whether it is level, upright or between.
    void permitsByItsRule()
    {
        LimitArea area;
        const QPointF anywhere(0.3, 0.4);
        QVERIFY(!area.contains(anywhere) && area.permits(anywhere));
        QVERIFY(area.test({0.3}, {0.4}, {1e9}, {0.0, 2e9}).passed());
        const QPolygonF polygon({{0.0, 0.0}, {1.0, 0.0}, {1.0, 1.0}, {0.5, 0.5}, {0.0, 1.0}});
        for (const auto rule : {LimitArea::StayInside, LimitArea::KeepOut}) {
            QVERIFY(area.setPolygon(polygon, rule));
            for (const QPointF &inside :
                 {QPointF(0.5, 0.25), {0.5, 0.0}, {1.0, 0.25}, {0.0, 0.25}, {0.75, 0.75}, {1, 1}})
                QCOMPARE(area.permits(inside), rule == LimitArea::StayInside);
            for (const QPointF &outside :
                 {QPointF(0.5, 0.75), {0.5, 1.0}, {1.25, 0.0}, {-1.0, 0.0}})
                QCOMPARE(area.permits(outside), rule == LimitArea::KeepOut);
        }
        // Beside a level edge, and at the height where an upright one ends.
        QVector<QPointF> notched{{0, 4}, {1, 4}, {1, 2}, {2, 2}, {2, 4}, {4, 4}, {4, 0}, {0, 0}};
        for (int turn = 0; turn < 2; ++turn) {
            QVERIFY(area.setPolygon(QPolygonF(notched), LimitArea::StayInside));
            QVERIFY(area.contains({0.0, 2.0}) && area.contains({4.0, 2.0}));
            QVERIFY(!area.contains({1.99, 4.0}) && !area.contains({1.01, 4.0}));
            std::reverse(notched.begin(), notched.end());
        }
    }

    /// What is drawn is what is tested.
    void outlines()
    {
        Random random;
        const QPolygonF triangle({{-0.5, -0.5}, {0.6, -0.3}, {0.1, 0.7}});
        for (int kind = 0; kind < 4; ++kind) {
            LimitArea area;
            QVERIFY(area.outline().isEmpty());
            if (kind == 0)
                area.setCircle({0.2, 0.1}, 0.6, LimitArea::StayInside);
            else if (kind == 1)
                area.setSector(0.3, 0.9, 30.0, 250.0, LimitArea::StayInside);
            else if (kind == 2)
                area.setSector(0.3, 0.9, -20.0, 400.0, LimitArea::StayInside);
            else
                area.setPolygon(triangle, LimitArea::StayInside);
            int different = 0;
            for (int i = 0; i < 5000; ++i) {
                const QPointF p(random.uniform(-1, 1), random.uniform(-1, 1));
                different += area.outline().contains(p) != area.contains(p) ? 1 : 0;
            }
            QVERIFY2(different < 10, qPrintable(QString::number(different))); // Bezier curves
        }
    }
};

QTEST_APPLESS_MAIN(tst_LimitArea)
#include "tst_limitarea.moc"
