// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Reference circles and limit areas on a chart.
#include <controls/thememanager.h>
#include <smithchart/smithchartplot.h>
#include <smithchart/smithcircle.h>
#include <smithchart/smithlimit.h>

#include <vnatest.h>

#include <QSignalSpy>

#include <cmath>
#include <memory>

using namespace VnaTest;
using SmithChart::LimitArea;

class tst_SmithLimit : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        m_plot = std::make_unique<QCustomPlot>();
        m_plot->plotLayout()->setMargins({});
        m_plot->axisRect()->setAutoMargins(QCP::msNone);
        m_plot->axisRect()->setMargins({});
        m_plot->setViewport(QRect(0, 0, 420, 420));
        m_plot->setBackground(QColor(120, 120, 160)); // neither theme's text colour
        m_plot->replot();
        m_chart = new SmithChartPlot(m_plot.get(), SmithChart::Basic);
        m_chart->addCurve(1, QPen(Qt::blue));
        QVector<double> real;
        QVector<double> imag;
        QVector<double> stimulus;
        for (int i = 0; i <= 1000; ++i) { // from the middle to the right
            real.append(i * 0.001);
            imag.append(0.0);
            stimulus.append(1e9 + i * 1e6);
        }
        m_chart->setCurveData(1, stimulus, real, imag);
    }

    void cleanup()
    {
        delete m_chart;
        m_plot.reset();
        TestCase::cleanup();
    }

    void circle()
    {
        auto *const circle = new SmithCircle(m_plot->xAxis, m_plot->yAxis);
        QVERIFY(m_plot->itemCount() > 0);
        const QImage without = picture();
        QVERIFY(!circle->setVswr(1.0) && !circle->setCircle({0.0, 0.0}, 0.0));
        QVERIFY(!circle->setQuality(-1.0) && !circle->setReactance(0.0));
        QCOMPARE(picture(), without);
        circle->setPen(QPen(Qt::red, 1.0));
        QVERIFY(circle->setVswr(3.0)); // a magnitude of 0.5
        QCOMPARE(reds(without), 0);
        QVERIFY(isRed({0.0, 0.5}) && isRed({-0.5, 0.0}) && !isRed({0.0, 0.6}));
        QVERIFY(circle->setCircle({0.3, 0.4}, 0.2));
        QVERIFY(isRed({0.3, 0.6}) && !isRed({-0.5, 0.0}));
        QVERIFY(circle->setResistance(1.0));
        QVERIFY(isRed({0.5, 0.5}));
        m_chart->zoomAt({0.5, 0.5}, 10.0);
        QVERIFY(isRed({0.5, 0.5}));

        // Over the grid, under the traces, and never in the way of a click.
        QVERIFY(circle->layer()->index() > m_plot->layer("smithGrid"_s)->index());
        QVERIFY(circle->layer()->index() < m_plot->layer("tracers"_s)->index());
        QCOMPARE(circle->selectTest(pixel({0.5, 0.5}), false), -1.0);
        m_chart->setGridMode(SmithChartPlot::Admittance); // which clears the grid's layers
        QVERIFY(isRed({0.5, 0.5}));

        // Without a pen it takes the theme's colour, and follows it.
        circle->setPen(std::nullopt);
        const QImage dark = picture();
        Controls::ThemeManager::instance()->setTheme(Controls::ThemeManager::Light);
        QVERIFY(picture() != dark);
        Controls::ThemeManager::instance()->setTheme(Controls::ThemeManager::Dark);
        circle->setVisible(false);
        const QImage hidden = picture();
        QVERIFY(hidden != dark);
        circle->setVisible(true);
        circle->setLabel("r = 1"_s);
        QVERIFY(picture() != dark);
        QVERIFY(m_plot->removeItem(circle));
    }

    void limit()
    {
        const auto items = m_plot->itemCount();
        auto *const limit = new SmithLimit(m_chart);
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
        QVERIFY(isRed({0.7, 0.0}));
        QVERIFY(!isRed({0.3, 0.0}));
        m_chart->zoomAt({0.6, 0.0}, 8.0);
        QVERIFY(isRed({0.6, 0.0}) && !isRed({0.495, 0.0}));
        limit->test(1);
        QCOMPARE(verdicts.size(), 1);

        limit->setStimulusRange(SmithChart::StimulusRange{1e9, 1.4e9});
        QVERIFY(limit->test(1).passed());
        QCOMPARE(limit->result().tested, 401);
        QCOMPARE(verdicts.size(), 2);
        QVERIFY(!isRed({0.6, 0.0}));
        limit->setStimulusRange(std::nullopt);
        limit->test(1);
        limit->setVisible(false);
        QVERIFY(!limit->isVisible() && !isRed({0.6, 0.0}));
        limit->setVisible(true);
        QVERIFY(isRed({0.6, 0.0}));
        QVERIFY(limit->test(7).passed()); // no such trace
        QVERIFY(!isRed({0.6, 0.0}));
        delete limit;
        QCOMPARE(m_plot->itemCount(), items);
    }

    void whoeverGoesFirst()
    {
        LimitArea area;
        area.setCircle({0.0, 0.0}, 0.5, LimitArea::KeepOut);
        auto *const limit = new SmithLimit(m_chart);
        limit->setArea(area);
        m_plot.reset();
        QVERIFY(!limit->test(1).passed()); // the data are still there
        limit->setVisible(false);
        delete m_chart; // and the limit with it
        m_chart = nullptr;
        SmithChartPlot chart(nullptr, SmithChart::Basic);
        SmithLimit none(&chart);
        QVERIFY(none.test(1).passed());
    }

private:
    QPointF pixel(const QPointF &g) const
    {
        return {m_plot->xAxis->coordToPixel(g.x()), m_plot->yAxis->coordToPixel(g.y())};
    }
    QImage picture() const { return m_plot->toPixmap(420, 420).toImage(); }
    static int reds(const QImage &image)
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
    bool isRed(const QPointF &g) const
    {
        const QPoint at = pixel(g).toPoint();
        return reds(picture().copy(at.x() - 2, at.y() - 2, 5, 5)) > 0;
    }

    std::unique_ptr<QCustomPlot> m_plot;
    SmithChartPlot *m_chart = nullptr;
};

QTEST_MAIN(tst_SmithLimit)
#include "tst_smithlimit.moc"
