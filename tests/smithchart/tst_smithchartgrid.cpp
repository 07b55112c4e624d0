// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What the chart's grid and view offer beyond the presets.
#include <smithchart/smithchartplot.h>

#include <vnatest.h>

#include <memory>

using namespace VnaTest;

namespace
{

bool gridIsVisible(QCustomPlot &plot)
{
    bool any = false;
    bool all = true;
    for (int i = 0; i < plot.itemCount(); ++i) {
        any |= plot.item(i)->visible();
        all &= plot.item(i)->visible();
    }
    Q_ASSERT(any == all);
    return any;
}

/// Lays the plot out at a size, as a resize of a shown plot does.
void layOut(QCustomPlot &plot, QSize size)
{
    plot.setViewport(QRect({}, size));
    plot.replot();
}

/// A plot whose axis rectangle has the given size, without being shown.
std::unique_ptr<QCustomPlot> makePlot()
{
    auto plot = std::make_unique<QCustomPlot>();
    plot->plotLayout()->setMargins({});
    plot->axisRect()->setAutoMargins(QCP::msNone);
    plot->axisRect()->setMargins({});
    layOut(*plot, {400, 200});
    return plot;
}

/// The colours along a line of an image, as a number for each pixel: how far it is from the
/// background.
int inkOf(const QImage &image)
{
    int ink = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            ink += 255 - qGray(image.pixel(x, y));
    }
    return ink;
}

} // namespace

class tst_SmithChartGrid : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        m_plot = makePlot();
        m_chart = new SmithChartPlot(m_plot.get(), SmithChart::Basic);
    }

    void cleanup()
    {
        delete m_chart;
        m_plot.reset();
        TestCase::cleanup();
    }

    /// The grid that follows the view takes two items, which stay whatever the view; labels come in
    /// the host's unit, and everything is as before once it is off again.
    void gridThatFollowsTheView()
    {
        layOut(*m_plot, {600, 500});
        m_chart->addCurve(1, QPen(Qt::red));
        const auto items = m_plot->itemCount();
        const auto plottables = m_plot->plottableCount();
        const auto picture = [this] { return m_plot->toPixmap(600, 500).toImage(); };
        const QImage presetLook = picture();

        m_chart->setGridFollowsView(true);
        QVERIFY(m_chart->gridFollowsView());
        QCOMPARE(m_plot->itemCount(), 2);
        QCOMPARE(m_plot->plottableCount(), 1);
        QCOMPARE(m_plot->layer("smithBoundary"_s)->children().size(), 1);
        const QPointer<QCPAbstractItem> grid = m_plot->item(0);
        const QImage whole = picture();
        QVERIFY(whole != presetLook);
        m_chart->zoomAt({0.4, 0.3}, 8.0);
        QVERIFY(inkOf(picture()) > 100000); // where the preset leaves next to nothing
        QVERIFY(grid);
        for (int y = 0; y < 500; y += 7)
            QVERIFY(!m_plot->itemAt(QPointF(y, y), false));
        const QImage normalised = picture();
        QVERIFY(m_chart->setGridReference(50.0));
        QVERIFY(picture() != normalised);
        for (const double bad : {0.0, -50.0, double(qQNaN()), double(qInf())})
            QVERIFY(!m_chart->setGridReference(bad));
        QCOMPARE(m_chart->gridReference().value(), 50.0);
        QVERIFY(m_chart->setGridReference(std::nullopt));
        QCOMPARE(picture(), normalised);

        m_chart->setCurveVisible(1, false);
        QVERIFY(!gridIsVisible(*m_plot));
        m_chart->setCurveVisible(1, true);
        m_chart->setGridMode(SmithChartPlot::Admittance);
        m_chart->resetView();
        // Turned by half a turn, but for the labels.
        const QImage turned = picture();
        QVERIFY(std::abs(inkOf(turned) - inkOf(whole)) < inkOf(whole) / 50);
        m_chart->setGridMode(SmithChartPlot::Impedance);
        m_chart->setGridFollowsView(false);
        QCOMPARE(m_plot->itemCount(), items);
        QCOMPARE(m_plot->plottableCount(), plottables);
        QCOMPARE(picture(), presetLook);
    }

    void gridLookOfTheHost()
    {
        m_chart->addCurve(1, QPen(Qt::red));
        m_chart->setGridMode(SmithChartPlot::ImpedanceAndAdmittance);
        SmithChart::GridLook look;
        look.linePen = QPen(Qt::blue);
        look.admittancePen = QPen(Qt::green);
        look.boundaryPen = QPen(Qt::magenta);
        look.labelColor = Qt::cyan;
        look.labelFont = QFont("DejaVu Sans"_s, 11);
        look.background = QBrush(Qt::black);
        look.labelsApart = true;
        m_chart->setGridLook(look);
        QVector<QRectF> labels;
        QSet<QRgb> pens;
        for (int i = 0; i < m_plot->itemCount(); ++i) {
            if (const auto *text = qobject_cast<QCPItemText *>(m_plot->item(i))) {
                QCOMPARE(text->color(), QColor(Qt::cyan));
                QCOMPARE(text->font().pointSize(), 11);
            } else if (const auto *circle = qobject_cast<QCPItemEllipse *>(m_plot->item(i))) {
                pens.insert(circle->pen().color().rgb());
            }
        }
        QCOMPARE(pens.size(), 3);
        QCOMPARE(m_plot->toPixmap().toImage().pixelColor(1, 1), QColor(Qt::black));
        // Of both charts, no label lies over another.
        layOut(*m_plot, {900, 900});
        look.labelFont = {};
        m_chart->setGridLook(look);
        m_plot->replot();
        for (int i = 0; i < m_plot->itemCount(); ++i) {
            const auto *text = qobject_cast<QCPItemText *>(m_plot->item(i));
            if (!text)
                continue;
            const QRectF rect(text->topLeft->pixelPosition(), text->bottomRight->pixelPosition());
            for (const QRectF &other : qAsConst(labels))
                QVERIFY2(!other.intersects(rect), qPrintable(text->text()));
            labels.append(rect);
        }
        QCOMPARE(labels.size(), 20);
    }

    /// Two charts on one plot: neither takes the other's grid away, hides it, or leaves its own
    /// behind for ever.
    void twoChartsOnOnePlot()
    {
        auto *const other = new SmithChartPlot(m_plot.get(), SmithChart::Basic);
        const auto both = m_plot->itemCount();
        other->setGridMode(SmithChartPlot::Admittance);
        QCOMPARE(m_plot->itemCount(), both);
        m_chart->addCurve(1, QPen(Qt::red));
        other->addCurve(1, QPen(Qt::blue));
        other->clearAllCurves();
        int visible = 0;
        for (int i = 0; i < m_plot->itemCount(); ++i)
            visible += m_plot->item(i)->visible() ? 1 : 0;
        QCOMPARE(visible, both / 2);
        delete other;
        const std::unique_ptr<SmithChartPlot> next =
            std::make_unique<SmithChartPlot>(m_plot.get(), SmithChart::Basic);
        QCOMPARE(m_plot->itemCount(), both);
    }

    /// A view that changes asks for a replot, and one that does not asks for none.
    void viewChangesAskForAReplot()
    {
        int requests = 0;
        m_chart->setQueuedReplotHandler([&requests] { ++requests; });
        m_chart->resetView();
        m_chart->zoomAt({0.0, 0.0}, 0.5);
        m_chart->zoomAt({0.0, 0.0}, qQNaN());
        QCOMPARE(requests, 0);
        m_chart->zoomAt({0.0, 0.0}, 2.0);
        QCOMPARE(requests, 1);
        m_chart->setViewFromRequestedRanges({0.0, 0.2}, {0.0, 0.2});
        QCOMPARE(requests, 2);
        m_chart->resetView();
        QCOMPARE(requests, 3);
        m_chart->setQueuedReplotHandler({});
    }

    void magnificationBeyondTheDefault()
    {
        QCOMPARE(m_chart->maximumZoom(), 20.0);
        m_chart->zoomAt({0.5, 0.5}, 500.0);
        QCOMPARE(m_chart->viewState().zoom, 20.0);
        for (const double bad : {0.5, 1e7, double(qQNaN()), double(qInf())})
            QVERIFY(!m_chart->setMaximumZoom(bad));
        QVERIFY(m_chart->setMaximumZoom(200.0));
        m_chart->zoomAt({0.5, 0.5}, 500.0);
        QCOMPARE(m_chart->viewState().zoom, 200.0);
        m_chart->setViewFromRequestedRanges({0.5, 0.50001}, {0.5, 0.50001});
        QCOMPARE(m_chart->viewState().zoom, 200.0);
        QVERIFY(m_chart->setMaximumZoom(20.0));
        QCOMPARE(m_chart->viewState().zoom, 20.0);
    }

private:
    std::unique_ptr<QCustomPlot> m_plot;
    SmithChartPlot *m_chart = nullptr;
};

QTEST_MAIN(tst_SmithChartGrid)
#include "tst_smithchartgrid.moc"
