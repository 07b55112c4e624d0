// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The grid of a chart: presets, the one that follows the view, and the host's look.
#include "chartscene.h"

#include <controls/thememanager.h>

#include <smithchart/gridgeometry.h>

using namespace VnaTest;

namespace
{

template<typename T>
int countOnLayer(const QCustomPlot &plot, const QString &layer)
{
    int count = 0;
    for (const QCPLayerable *each : plot.layer(layer)->children())
        count += qobject_cast<const T *>(each) ? 1 : 0;
    return count;
}

} // namespace

class tst_SmithChartGrid : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void presets()
    {
        using Chart = SmithChartPlot;
        const std::tuple<int, int, int> rows[] = {{0, 3, 10}, {1, 5, 16}, {2, 7, 22}, {7, 0, 0}};
        for (const auto &[number, circles, labels] : rows) {
            const auto preset = static_cast<SmithChart::Preset>(number);
            for (const auto mode :
                 {Chart::Impedance, Chart::Admittance, Chart::ImpedanceAndAdmittance}) {
                const Row row("preset %1, mode %2"_s.arg(number).arg(mode));
                QCustomPlot plot;
                SmithChartPlot chart(&plot, preset);
                chart.setGridMode(mode);
                const int charts = mode == Chart::ImpedanceAndAdmittance ? 2 : 1;
                const QString grid = "smithGrid"_s;
                QCOMPARE(countOnLayer<QCPItemEllipse>(plot, grid), circles * charts);
                QCOMPARE(countOnLayer<QCPItemEllipse>(plot, "smithBoundary"_s), 1);
                QCOMPARE(countOnLayer<QCPItemText>(plot, grid), labels * charts);
                const auto values = SmithChart::gridValues(preset);
                const auto runs =
                    SmithChart::gridGeometry(values.resistances, values.reactances, 720)
                        .impedance.circles.x.size();
                QCOMPARE(countOnLayer<QCPCurve>(plot, grid),
                         int(runs - values.resistances.size()) * charts + 1);
                QCOMPARE(plot.legend->itemCount(), 0);
            }
        }
    }

    /// The grid that follows the view takes two items, which stay whatever the view; labels come in
    /// the host's unit, and everything is as before once it is off again.
    void gridThatFollowsTheView()
    {
        const ChartScene f({600, 500});
        f.chart->addCurve(1, QPen(Qt::red));
        const auto items = f.plot->itemCount();
        const auto plottables = f.plot->plottableCount();
        const auto picture = [&f] { return f.picture(600, 500); };
        const QImage presetLook = picture();

        f.chart->setGridFollowsView(true);
        QCOMPARE(f.plot->itemCount(), 2);
        QCOMPARE(f.plot->plottableCount(), 1);
        QCOMPARE(f.plot->layer("smithBoundary"_s)->children().size(), 1);
        const QPointer<QCPAbstractItem> grid = f.plot->item(0);
        const QImage whole = picture();
        QVERIFY(whole != presetLook);
        f.chart->zoomAt({0.4, 0.3}, 8.0);
        QVERIFY(inkOf(picture()) > 100000); // where the preset leaves next to nothing
        QVERIFY(grid);
        for (int y = 0; y < 500; y += 7)
            QVERIFY(!f.plot->itemAt(QPointF(y, y), false));
        const QImage normalised = picture();
        QVERIFY(f.chart->setGridReference(50.0));
        QVERIFY(picture() != normalised);
        for (const double bad : {0.0, -50.0, double(qQNaN()), double(qInf())})
            QVERIFY(!f.chart->setGridReference(bad));
        QCOMPARE(f.chart->gridReference().value(), 50.0);
        QVERIFY(f.chart->setGridReference(std::nullopt));
        QCOMPARE(picture(), normalised);
        SmithChart::GridLook look = f.chart->gridLook();
        const SmithChart::GridLook own = look;
        look.labelFont = QFont("DejaVu Sans"_s, 14);
        f.chart->setGridLook(look);
        QVERIFY(picture() != normalised);
        f.chart->setGridLook(own);
        QCOMPARE(picture(), normalised);
        (void)f.picture(900, 750); // of the same section, larger
        (void)f.picture(1, 1);
        QCOMPARE(picture(), normalised);

        f.chart->setCurveVisible(1, false);
        QCOMPARE(f.visibleItems(), 0);
        f.chart->setCurveVisible(1, true);
        f.chart->setGridMode(SmithChartPlot::Admittance);
        f.chart->resetView();
        // Turned by half a turn, but for the labels.
        QVERIFY(std::abs(inkOf(picture()) - inkOf(whole)) < inkOf(whole) / 50);
        f.chart->setGridMode(SmithChartPlot::Impedance);
        f.chart->setGridFollowsView(false);
        QCOMPARE(f.plot->itemCount(), items);
        QCOMPARE(f.plot->plottableCount(), plottables);
        QCOMPARE(picture(), presetLook);
    }

    void gridLookOfTheHost()
    {
        const ChartScene f;
        f.chart->addCurve(1, QPen(Qt::red));
        f.chart->setGridMode(SmithChartPlot::ImpedanceAndAdmittance);
        SmithChart::GridLook look;
        look.linePen = QPen(Qt::blue);
        look.admittancePen = QPen(Qt::green);
        look.boundaryPen = QPen(Qt::magenta);
        look.labelColor = Qt::cyan;
        look.labelFont = QFont("DejaVu Sans"_s, 11);
        look.background = QBrush(Qt::black);
        look.labelsApart = true;
        f.chart->setGridLook(look);
        QSet<QRgb> pens;
        for (int i = 0; i < f.plot->itemCount(); ++i) {
            if (const auto *text = qobject_cast<QCPItemText *>(f.plot->item(i))) {
                QCOMPARE(text->color(), QColor(Qt::cyan));
                QCOMPARE(text->font().pointSize(), 11);
            } else if (const auto *circle = qobject_cast<QCPItemEllipse *>(f.plot->item(i))) {
                pens.insert(circle->pen().color().rgb());
            }
        }
        QCOMPARE(pens.size(), 3);
        QCOMPARE(f.plot->toPixmap().toImage().pixelColor(1, 1), QColor(Qt::black));
        // Of both charts, no label lies over another.
        look.labelFont = {};
        f.chart->setGridLook(look);
        f.layOut({900, 900});
        QVector<QRectF> labels;
        for (int i = 0; i < f.plot->itemCount(); ++i) {
            const auto *text = qobject_cast<QCPItemText *>(f.plot->item(i));
            if (!text)
                continue;
            const QRectF rect(text->topLeft->pixelPosition(), text->bottomRight->pixelPosition());
            for (const QRectF &other : qAsConst(labels))
                QVERIFY2(!other.intersects(rect), qPrintable(text->text()));
            labels.append(rect);
        }
        QCOMPARE(labels.size(), 20);
    }

    /// Ground and rim of a picture in the colours of the theme, as soon as they change.
    void themeIsFollowedWhenAsked()
    {
        using Controls::ThemeManager;
        auto *theme = ThemeManager::instance();
        const ChartScene f;
        f.chart->addCurve(1, QPen());
        const auto ground = [&f] { return f.picture(200, 200).pixelColor(3, 3); };
        const QColor before = f.chart->gridLook().labelColor;
        theme->setTheme(ThemeManager::Light);
        QCOMPARE(ground(), QColor(Qt::white));
        QCOMPARE(f.chart->gridLook().labelColor, before);
        f.chart->setFollowsTheme(true);
        QCOMPARE(ground(), QColor(0xec, 0xe9, 0xe4));
        theme->setTheme(ThemeManager::Dark);
        QCOMPARE(ground(), QColor(Qt::black));
        QCOMPARE(f.chart->gridLook().boundaryPen.color(), theme->borderColor());
        QCOMPARE(f.chart->gridLook().linePen.style(), Qt::DashLine);
        SmithChart::GridLook look = f.chart->gridLook();
        look.admittancePen = QPen(Qt::green);
        look.background.reset();
        f.chart->setGridLook(look);
        QCOMPARE(ground(), QColor(Qt::black)); // without another one the plot keeps its own
        theme->setTheme(ThemeManager::Light);
        QCOMPARE(f.chart->gridLook().admittancePen->color(), theme->gridColor());
        theme->setTheme(ThemeManager::Dark);
        QSignalSpy replots(f.plot.get(), &QCustomPlot::beforeReplot);
        f.chart->setFollowsTheme(true); // as before
        QCoreApplication::processEvents();
        f.chart->setFollowsTheme(false);
        theme->setTheme(ThemeManager::Light);
        QCOMPARE(ground(), QColor(Qt::black));
        theme->setTheme(ThemeManager::Dark);
    }

    /// Two charts on one plot: neither takes the other's grid away, hides it, or leaves its own
    /// behind for ever.
    void twoChartsOnOnePlot()
    {
        const ChartScene f;
        auto other = std::make_unique<SmithChartPlot>(f.plot.get(), SmithChart::Basic);
        const auto both = f.plot->itemCount();
        other->setGridMode(SmithChartPlot::Admittance);
        QCOMPARE(f.plot->itemCount(), both);
        f.addTraceAndMarker();
        other->addCurve(1, QPen(Qt::blue));
        other->clearAllCurves();
        QCOMPARE(f.visibleItems(), both / 2 + 2);
        other = nullptr;
        other = std::make_unique<SmithChartPlot>(f.plot.get(), SmithChart::Basic);
        QCOMPARE(f.plot->itemCount(), both + 2);
        // What the host lays there itself is its own, and so is what lies nowhere.
        auto *const line = new QCPItemLine(f.plot.get());
        line->setLayer("smithGrid"_s);
        const QPointer<QCPItemLine> nowhere = new QCPItemLine(f.plot.get());
        nowhere->setLayer(static_cast<QCPLayer *>(nullptr));
        other = nullptr;
        other = std::make_unique<SmithChartPlot>(f.plot.get(), SmithChart::Basic);
        QVERIFY(f.plot->hasItem(line));
        QVERIFY(f.plot->removeItem(line));
        other->setGridMode(SmithChartPlot::Admittance);
        QVERIFY(nowhere && nowhere->visible());
        QVERIFY(f.plot->removeItem(nowhere));
        other = nullptr;
        delete f.chart.data();
        QCOMPARE(f.visibleItems(), 0);
        f.plot->replot();
    }
};

QTEST_MAIN(tst_SmithChartGrid)
#include "tst_smithchartgrid.moc"
