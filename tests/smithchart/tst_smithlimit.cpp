// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Reference circles and limit areas on a chart.
#include "chartscene.h"

#include <controls/thememanager.h>
#include <smithchart/smithcircle.h>
#include <smithchart/smithlimit.h>

using namespace VnaTest;
using SmithChart::LimitArea;

namespace
{

int reds(const QImage &image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor color = image.pixelColor(x, y);
            count += color.red() > 180 && color.green() < 140 && color.blue() < 140 ? 1 : 0;
        }
    }
    return count;
}

/// A chart with a line from the middle to the right.
struct Scene : ChartScene {
    Scene()
        : ChartScene({420, 420})
    {
        plot->setBackground(QColor(120, 120, 160)); // neither theme's text colour
        chart->addCurve(1, QPen(Qt::blue));
        QVector<double> real, stimulus;
        for (int i = 0; i <= 1000; ++i) {
            real.append(i * 0.001);
            stimulus.append(1e9 + i * 1e6);
        }
        chart->setCurveData(1, stimulus, real, QVector<double>(1001, 0.0));
    }
    QPointF pixel(const QPointF &g) const
    {
        return {plot->xAxis->coordToPixel(g.x()), plot->yAxis->coordToPixel(g.y())};
    }
    QImage picture() const { return ChartScene::picture(420, 420); }
    bool isRed(const QPointF &g) const
    {
        const QPoint at = pixel(g).toPoint();
        return reds(picture().copy(at.x() - 2, at.y() - 2, 5, 5)) > 0;
    }
};

} // namespace

class tst_SmithLimit : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void circle()
    {
        Scene f;
        auto *const circle = new SmithCircle(f.plot->xAxis, f.plot->yAxis);
        QVERIFY(f.plot->itemCount() > 0);
        const QImage without = f.picture();
        QVERIFY(!circle->setVswr(1.0) && !circle->setCircle({0.0, 0.0}, 0.0));
        QVERIFY(!circle->setCircle({qQNaN(), 0.0}, 0.5));
        QVERIFY(!circle->setQuality(-1.0) && !circle->setReactance(0.0));
        QCOMPARE(f.picture(), without);
        circle->setPen(QPen(Qt::red, 1.0));
        QVERIFY(circle->setVswr(3.0)); // a magnitude of 0.5
        QCOMPARE(reds(without), 0);
        QVERIFY(f.isRed({0.0, 0.5}) && f.isRed({-0.5, 0.0}) && !f.isRed({0.0, 0.6}));
        QVERIFY(circle->setCircle({0.3, 0.4}, 0.2));
        QVERIFY(f.isRed({0.3, 0.6}) && !f.isRed({-0.5, 0.0}));
        QVERIFY(circle->setResistance(1.0));
        QVERIFY(f.isRed({0.5, 0.5}));
        f.chart->zoomAt({0.5, 0.5}, 10.0);
        QVERIFY(f.isRed({0.5, 0.5}));

        // Another one is drawn without being asked to, and none is not.
        QCoreApplication::processEvents();
        QSignalSpy replots(f.plot.get(), &QCustomPlot::afterReplot);
        QVERIFY(!circle->setResistance(-1.0));
        QCoreApplication::processEvents();
        QCOMPARE(replots.size(), 0);
        QVERIFY(circle->setResistance(2.0) && circle->setResistance(1.0));
        QTRY_COMPARE(replots.size(), 1);

        // Over the grid, under the traces, and never in the way of a click.
        QVERIFY(circle->layer()->index() > f.plot->layer("smithGrid"_s)->index());
        QVERIFY(circle->layer()->index() < f.plot->layer("tracers"_s)->index());
        QCOMPARE(circle->selectTest(f.pixel({0.5, 0.5}), false), -1.0);
        f.chart->setGridMode(SmithChartPlot::Admittance); // which clears the grid's layers
        QVERIFY(f.isRed({0.5, 0.5}));

        // Without a pen it takes the theme's colour, and follows it.
        circle->setPen(std::nullopt);
        const QImage dark = f.picture();
        Controls::ThemeManager::instance()->setTheme(Controls::ThemeManager::Light);
        QVERIFY(f.picture() != dark);
        Controls::ThemeManager::instance()->setTheme(Controls::ThemeManager::Dark);
        circle->setVisible(false);
        const QImage hidden = f.picture();
        QVERIFY(hidden != dark);
        circle->setVisible(true);
        circle->setLabel("r = 1"_s);
        QVERIFY(f.picture() != dark);
        QVERIFY(f.plot->removeItem(circle));
    }

    void limit()
    {
        Scene f;
        const auto items = f.plot->itemCount();
        auto *const limit = new SmithLimit(f.chart);
        limit->setColors(Qt::darkGray, Qt::red);
        QSignalSpy verdicts(limit, &SmithLimit::verdictChanged);
        LimitArea area;
        area.setCircle({0.0, 0.0}, 0.5005, LimitArea::StayInside);
        limit->setArea(area);
        QVERIFY(verdicts.isEmpty());

        const SmithChart::LimitResult result = limit->test(1);
        QCOMPARE(result.firstFailing, 501);
        QCOMPARE(result.failing.size(), 1);
        QCOMPARE(limit->result().tested, 1001);
        QCOMPARE(verdicts.size(), 1);
        QCOMPARE(verdicts.last().first().toBool(), false);
        QVERIFY(f.isRed({0.7, 0.0}));
        QVERIFY(!f.isRed({0.3, 0.0}));
        f.chart->zoomAt({0.6, 0.0}, 8.0);
        QVERIFY(f.isRed({0.6, 0.0}) && !f.isRed({0.495, 0.0}));
        limit->test(1);
        QCOMPARE(verdicts.size(), 1);

        limit->setStimulusRange(SmithChart::StimulusRange{1e9, 1.4e9});
        QVERIFY(limit->test(1).passed());
        QCOMPARE(limit->result().tested, 401);
        QCOMPARE(verdicts.size(), 2);
        QVERIFY(!f.isRed({0.6, 0.0}));
        limit->setStimulusRange(std::nullopt);
        limit->test(1);
        limit->setVisible(false);
        QVERIFY(!limit->isVisible() && !f.isRed({0.6, 0.0}));
        limit->setVisible(true);
        QVERIFY(f.isRed({0.6, 0.0}));
        QVERIFY(limit->test(7).passed()); // no such trace
        QVERIFY(!f.isRed({0.6, 0.0}));
        delete limit;
        QCOMPARE(f.plot->itemCount(), items);
    }

    /// A single point that fails is seen as well as a stretch, and without a range nothing is drawn.
    void aPointThatFails()
    {
        Scene f;
        f.chart->setCurveData(1, {}, {0.1, 0.6, 0.1}, {0.0, 0.0, 0.1});
        auto *const limit = new SmithLimit(f.chart);
        LimitArea area;
        area.setCircle({0.0, 0.0}, 0.5, LimitArea::StayInside);
        limit->setArea(area);
        QCOMPARE(limit->test(1).failing.size(), 1);
        QVERIFY(f.isRed({0.6, 0.0}));
        QVERIFY(!f.isRed({0.5, 0.0}) && !f.isRed({0.1, 0.0}));
        // Without the chart's layers it goes to the plot's own.
        f.plot->removeLayer(f.plot->layer("smithFailures"_s));
        f.plot->removeLayer(f.plot->layer("tracers_active"_s));
        const SmithLimit late(f.chart);
        QCOMPARE(f.plot->item(f.plot->itemCount() - 1)->layer()->name(), "main"_s);
        // A plot that has no size yet is not asked to draw.
        QCustomPlot plot;
        plot.resize(0, 0);
        QCoreApplication::processEvents(); // it draws itself once
        SmithChartPlot chart(&plot, SmithChart::Basic);
        QVERIFY(chart.addCurve(1, QPen()));
        auto *const circle = new SmithCircle(plot.xAxis, plot.yAxis);
        QVERIFY(circle->setVswr(2.0));
        QSignalSpy replots(&plot, &QCustomPlot::beforeReplot);
        QCoreApplication::processEvents();
        QVERIFY(replots.isEmpty());
    }

    void whoeverGoesFirst()
    {
        Scene f;
        LimitArea area;
        area.setCircle({0.0, 0.0}, 0.5, LimitArea::KeepOut);
        auto *const limit = new SmithLimit(f.chart);
        limit->setArea(area);
        f.plot.reset();
        QVERIFY(!limit->test(1).passed()); // the data are still there
        limit->setVisible(false);
        limit->setColors(Qt::black, Qt::red);
        limit->setParent(nullptr);
        delete f.chart; // and the limit with it, unless the host keeps that
        QVERIFY(limit->test(1).passed() && limit->result().tested == 0);
        limit->setArea(area);
        limit->setVisible(true);
        delete limit;
        SmithLimit loose(nullptr);
        loose.setArea(area);
        QVERIFY(loose.test(1).passed() && loose.area().contains({0.1, 0.1}));
        SmithChartPlot chart(nullptr, SmithChart::Basic);
        QVERIFY(!chart.addCurve(1, QPen()) && !chart.beginMarkerDragAt({}) && !chart.getPlot());
        SmithLimit none(&chart);
        QVERIFY(none.test(1).passed());
    }
};

QTEST_MAIN(tst_SmithLimit)
#include "tst_smithlimit.moc"
