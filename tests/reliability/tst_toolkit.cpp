// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What the toolkits do, or let a host do, that code like this library's has stumbled over.
#include <controls/scaledunitadapter.h>
#include <smithchart/smithchartplot.h>
#include <utils/formatting.h>

#include <QtTest>

#include <cmath>
#include <limits>

#include <tables.h>
#include <vnatest.h>

using namespace VnaTest;

class tst_Toolkit : public VnaTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void rangesThatAreNoneAreTakenBack_data()
    {
        columns<double>("value");
        row("not a number", std::nan(""));
        row("infinite", std::numeric_limits<double>::infinity());
        row("huge", 1e300);
        row("tiny", 5e-324);
    }

    /// Of an axis' setters only some check what they are given.
    void rangesThatAreNoneAreTakenBack()
    {
        QFETCH(double, value);
        QCustomPlot plot;
        SmithChartPlot chart(&plot, SmithChart::Basic);
        chart.addCurve(1, QPen());
        chart.setCurveData(1, {}, {0.1, 0.2}, {0.1, 0.2});
        plot.setViewport(QRect(0, 0, 200, 200));
        plot.replot();
        const QCPRange before = plot.xAxis->range();
        for (QCPAxis *const axis : {plot.xAxis, plot.yAxis}) {
            axis->setRangeLower(value);
            axis->setRangeUpper(value);
            axis->moveRange(value);
            axis->scaleRange(value);
            axis->setRange(value, -value);
        }
        plot.replot();
        QVERIFY(plot.xAxis->range() == before && plot.yAxis->range() == before);
    }

    /// A plot without a size is not drawn, and says nothing about it.
    void plotsWithoutASize()
    {
        QCustomPlot plot;
        QCoreApplication::processEvents(); // a new plot asks for its first replot by itself
        plot.resize(0, 0);
        plot.setViewport({});
        SmithChartPlot chart(&plot, SmithChart::Basic);
        chart.addCurve(1, QPen());
        chart.setCurveData(1, {}, {0.1, 0.2}, {0.1, 0.2});
        QCoreApplication::processEvents();
        chart.zoomAt({0.1, 0.1}, 2.0);
        QCoreApplication::processEvents();
        plot.resize(200, 200);
        plot.setViewport(plot.rect());
        QCOMPARE(chart.viewState().zoom, 2.0);
    }

    /// The plot may lose its axes to whoever clears its layout.
    void plotsWithoutAxes()
    {
        QCustomPlot plot;
        SmithChartPlot chart(&plot, SmithChart::Basic);
        chart.addCurve(1, QPen());
        plot.plotLayout()->clear();
        QVERIFY(!chart.addCurve(2, QPen()));
        chart.setCurveData(1, {}, {0.1}, {0.1});
        chart.setGridMode(SmithChartPlot::Admittance);
        chart.zoomAt({0.1, 0.1}, 2.0);
        chart.resetView();
        chart.setAxes(nullptr, nullptr);
        QVERIFY(!chart.handleDoubleClick({1, 1}, Qt::NoModifier));
        plot.replot();
    }

    void numbersDoNotFollowTheLocale_data()
    {
        columns<QLocale>("locale");
        for (const QLocale::Language language : {QLocale::German, QLocale::Arabic, QLocale::Hindi})
            row(QLocale::languageToString(language).toLatin1().constData(), QLocale(language));
    }

    void numbersDoNotFollowTheLocale()
    {
        QFETCH(QLocale, locale);
        QLocale::setDefault(locale);
        Controls::ScaledUnitAdapter adapter({{"GHz"_s, 1e9}, {"Hz"_s, 1.0}});
        adapter.setRealValue(1234.5e9);
        QCustomPlot plot;
        SmithChartPlot chart(&plot, SmithChart::Basic);
        QStringList labels;
        for (int i = 0; i < plot.itemCount(); ++i) {
            if (const auto *const label = qobject_cast<QCPItemText *>(plot.item(i)))
                labels << label->text();
        }
        QString unit;
        const double typed = adapter.convertInputTextToValue("2.5GHz"_s, unit);
        const double refused = adapter.convertInputTextToValue("2,5GHz"_s, unit);
        QLocale::setDefault(QLocale::c());
        QCOMPARE(adapter.getInputText(), "1234.5GHz"_s);
        QCOMPARE(typed, 2.5e9);
        QVERIFY(std::isnan(refused));
        QVERIFY2(labels.contains("0.5"_s), qPrintable(labels.join(QLatin1Char(' '))));
        // Halves are rounded away from zero, unlike by the C library.
        QCOMPARE(Utils::toString(0.125, 2), "0.13"_s);
    }
};

QTEST_MAIN(tst_Toolkit)
#include "tst_toolkit.moc"
