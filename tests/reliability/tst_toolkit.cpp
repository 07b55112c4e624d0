// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What the toolkits do, or let a host do, that code like this library's has stumbled over.
#include <smithchart/smithchartplot.h>
#include <utils/formatting.h>

#include <vnatest.h>

using namespace VnaTest;

class tst_Toolkit : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    /// Of an axis' setters only some check what they are given.
    void rangesThatAreNoneAreTakenBack()
    {
        QCustomPlot plot;
        SmithChartPlot chart(&plot, SmithChart::Basic);
        chart.addCurve(1, QPen());
        chart.setCurveData(1, {}, {0.1, 0.2}, {0.1, 0.2});
        plot.setViewport(QRect(0, 0, 200, 200));
        plot.replot();
        const QCPRange before = plot.xAxis->range();
        for (const double value : {qQNaN(), qInf(), 1e300, 5e-324}) {
            const Row row(QString::number(value));
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

    void numbersDoNotFollowTheLocale()
    {
        QLocale::setDefault(QLocale(QLocale::Hindi));
        QCustomPlot plot;
        SmithChartPlot chart(&plot, SmithChart::Basic);
        QLocale::setDefault(QLocale::c());
        QStringList labels;
        for (int i = 0; i < plot.itemCount(); ++i) {
            if (const auto *const label = qobject_cast<QCPItemText *>(plot.item(i)))
                labels << label->text();
        }
        QVERIFY2(labels.contains("0.5"_s), qPrintable(labels.join(QLatin1Char(' '))));
        // Halves are rounded away from zero, unlike by the C library.
        QCOMPARE(Utils::toString(0.125, 2), "0.13"_s);
    }
};

QTEST_MAIN(tst_Toolkit)
#include "tst_toolkit.moc"
