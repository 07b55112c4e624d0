// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "chartscene.h"

#include <controls/thememanager.h>
#include <plot/tracegraph.h>

#include <tracesamples.h>
#include <vnatest.h>

#include <numeric>

using namespace VnaTest;
using namespace TraceSamples;
using Controls::ThemeManager;

namespace
{

bool isBeyondOneSide(const QRectF &area, const QPointF &a, const QPointF &b)
{
    return (a.x() < area.left() && b.x() < area.left())
        || (a.x() > area.right() && b.x() > area.right())
        || (a.y() < area.top() && b.y() < area.top())
        || (a.y() > area.bottom() && b.y() > area.bottom());
}

/// What a trace has to look like: QCPCurve's own line, drawn twice.
class TwoStrokes : public QCPCurve
{
public:
    using QCPCurve::QCPCurve;

    double offset = 0.0; ///< of the second one, in logical pixels

protected:
    void drawCurveLine(QCPPainter *painter, const QVector<QPointF> &lines) const override
    {
        // Less what leads around the view outside of it.
        // It is cut on the edge at the right and below, but for the last bits.
        const QRectF area = QRectF(keyAxis()->axisRect()->rect()).adjusted(0.0, 0.0, -1e-6, -1e-6);
        QVector<QPointF> visible;
        QPointF entry;
        for (int i = 0; i < lines.size(); ++i) {
            const bool isEntry = i == 0 || isBeyondOneSide(area, lines.at(i - 1), lines.at(i));
            if (isEntry && i > 0)
                visible.append({notANumber, notANumber});
            if (isEntry)
                entry = lines.at(i);
            visible.append(lines.at(i));
            // A painter leaves the caps out where a line ends at its beginning. One that leaves the
            // view where it has entered does so or not, as the last bits of both cuts come out.
            if (!isEntry && lines.at(i) == entry && !area.contains(entry))
                visible.last().ry() += 1e-9;
        }
        QCPCurve::drawCurveLine(painter, visible);
        painter->save();
        painter->translate(offset, offset);
        QCPCurve::drawCurveLine(painter, visible);
        painter->restore();
    }
};

struct Difference {
    double mean = 0.0; ///< over all colours of all pixels
    int largest = 0;
    double strong = 0.0; ///< the share of values that differ by more than 96
};

Difference differenceOf(const QImage &a, const QImage &b)
{
    Difference difference;
    double sum = 0.0;
    for (int y = 0; y < a.height(); ++y) {
        for (int i = 0; i < 4 * a.width(); ++i) {
            const int here = std::abs(a.constScanLine(y)[i] - b.constScanLine(y)[i]);
            difference.largest = std::max(difference.largest, here);
            sum += here;
            difference.strong += here > 96 ? 1.0 : 0.0;
        }
    }
    difference.mean = sum / (3.0 * a.width() * a.height());
    difference.strong /= 3.0 * a.width() * a.height();
    return difference;
}

/// A plot on a background of the theme's kind, as a screen of that pixel ratio shows it.
QImage pictureOf(QCustomPlot &plot, int ratio, bool light)
{
    constexpr int size = 300;
    QImage image(size * ratio, size * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(light ? Qt::white : Qt::black);
    QCPPainter painter(&image);
    plot.toPainter(&painter, size, size);
    return image;
}

} // namespace

class tst_TracePictures : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        ThemeManager::instance()->setTheme(ThemeManager::Dark);
        TestCase::cleanup();
    }

    void tracesLookLikeTwoStrokesOfACurve_data() { addKinds(); }
    /// With other seeds, one picture in a thousand or so has pixels that differ by more: where
    /// hundreds of segments of some hundredths of a pixel pile up, and along single segments that
    /// cross all of a view.
    void tracesLookLikeTwoStrokesOfACurve()
    {
        QFETCH(int, kind);
        Random random(static_cast<unsigned>(kind));
        for (int round = 0; round < 24; ++round) {
            const bool light = round % 2;
            const int ratio = 1 + round / 2 % 2;
            const int count = uniformInt(random, 2, round % 3 ? 3000 : 40);
            Trace trace = randomTrace(random, static_cast<Kind>(kind), count);
            // Both parts: QCPCurve draws into a gap that has one part outside the view.
            for (int gap = uniformInt(random, 0, 3); gap > 0; --gap) {
                const int i = uniformInt(random, 0, count - 1);
                trace.real[i] = trace.imag[i] = notANumber;
            }
            QVector<double> frequencies(count);
            std::iota(frequencies.begin(), frequencies.end(), 0.0);
            const QColor colors[] = {Qt::red, QColor(255, 128, 0, 200), QColor(40, 90, 200)};

            ThemeManager::instance()->setTheme(light ? ThemeManager::Light : ThemeManager::Dark);
            QCustomPlot plot;
            plot.setBackground(QBrush());
            plot.axisRect()->setBackground(QBrush());
            plot.resize(300, 300);
            SmithChartPlot chart(&plot, SmithChart::Standard);
            for (const int id : {1, 2}) // the second one, empty, keeps the grid
                chart.addCurve(id, colors[round % 3]);
            chart.setCurveData(1, frequencies, trace.real, trace.imag);
            plot.replot();
            if (round % 5 > 2 && kind != Lattice) // whose cut ends lie between two pixels
                chart.zoomAt({0.4, 0.3}, std::pow(10.0, uniform(random, 0.0, 2.0)));

            QCPCurve *const curve = chart.getCurve(1);
            const QImage picture = pictureOf(plot, ratio, light);
            chart.setCurveVisible(1, false);
            auto *const wanted = new TwoStrokes(plot.xAxis, plot.yAxis);
            wanted->offset = light ? 0.25 / ratio : 0.0;
            wanted->setData(curve->data());
            wanted->setPen(curve->pen());
            wanted->setAntialiased(true);
            wanted->setLayer(curve->layer());
            const Difference difference = differenceOf(picture, pictureOf(plot, ratio, light));
            QVERIFY2(difference.mean < 1.0 && difference.largest <= 48,
                     qPrintable(QStringLiteral("round %1: mean %2, largest %3")
                                    .arg(round)
                                    .arg(difference.mean)
                                    .arg(difference.largest)));
        }
    }

    void wideTracesLookLikeAPaintersLine_data()
    {
        QTest::addColumn<double>("width");
        QTest::addColumn<int>("ratio");
        for (const double width : {1.25, 2.0, 3.0}) {
            for (const int ratio : {1, 2})
                QTest::addRow("%g pixels at %d", width, ratio) << width << ratio;
        }
    }
    /// On the chart and in a graph; where a line bends sharply, masks leave out what a join adds.
    void wideTracesLookLikeAPaintersLine()
    {
        QFETCH(double, width);
        QFETCH(int, ratio);
        QVector<double> frequencies, real, imag;
        for (int i = 0; i < 400; ++i) {
            frequencies << i;
            real << (0.2 + i / 500.0) * std::cos(i / 20.0);
            imag << (0.2 + i / 500.0) * std::sin(i / 20.0);
        }
        QCustomPlot plot;
        plot.setBackground(QBrush());
        plot.axisRect()->setBackground(QBrush());
        plot.resize(300, 300);
        SmithChartPlot chart(&plot, SmithChart::Standard);
        chart.addCurve(1, QPen(Qt::red));
        chart.setTraceWidths(width, 0.0);
        chart.setCurveData(1, frequencies, real, imag);
        plot.replot();
        auto *const graph = new Plot::TraceGraph(plot.xAxis, plot.yAxis);
        auto *const wanted = new QCPGraph(plot.xAxis, plot.yAxis);
        for (QCPGraph *const line : {static_cast<QCPGraph *>(graph), wanted}) {
            line->setVisible(false);
            line->setPen(QPen(Qt::green, width));
            for (int i = 0; i < 300; ++i) // beyond the view at both sides, with a gap
                line->addData(-1.5 + i / 100.0,
                              i == 120 ? notANumber : 0.8 * std::sin(i / 20.0) * i / 200.0);
        }
        QCPCurve *const curve = chart.getCurve(1);
        auto *const spiral = new QCPCurve(plot.xAxis, plot.yAxis);
        spiral->setData(curve->data());
        spiral->setPen(QPen(Qt::red, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        spiral->setVisible(false);
        const auto compare = [&](QCPAbstractPlottable *ours, QCPAbstractPlottable *theirs) {
            ours->setVisible(false);
            const QImage without = pictureOf(plot, ratio, false);
            theirs->setVisible(true);
            const QImage expected = pictureOf(plot, ratio, false);
            theirs->setVisible(false);
            ours->setVisible(true);
            const QImage picture = pictureOf(plot, ratio, false);
            ours->setVisible(false);
            QVERIFY(differenceOf(without, expected).mean > 0.3);
            const Difference difference = differenceOf(picture, expected);
            // Painters round the ends.
            QVERIFY2(difference.mean < 0.2 && difference.strong < 3e-4,
                     qPrintable(QStringLiteral("mean %1, strong %2")
                                    .arg(difference.mean)
                                    .arg(difference.strong)));
        };
        compare(curve, spiral);
        compare(graph, wanted);
    }

    /// What a host makes of a trace's curve is drawn as by any other.
    void curvesWithALookOfTheirOwn()
    {
        using Change = std::function<void(QCPCurve *)>;
        const Change changes[] = {
            [](QCPCurve *curve) { curve->setBrush(Qt::red); },
            [](QCPCurve *curve) { curve->setScatterStyle(QCPScatterStyle::ssDisc); },
            [](QCPCurve *curve) { curve->setLineStyle(QCPCurve::lsNone); },
            [](QCPCurve *curve) {
                curve->setSelectable(QCP::stWhole);
                curve->setSelection(QCPDataSelection(QCPDataRange(0, 3)));
            },
            [](QCPCurve *curve) {
                curve->setKeyAxis(curve->parentPlot()->yAxis);
                curve->setValueAxis(curve->parentPlot()->xAxis);
            },
            [](QCPCurve *curve) { curve->setValueAxis(curve->parentPlot()->xAxis2); },
            [](QCPCurve *curve) { curve->keyAxis()->setScaleType(QCPAxis::stLogarithmic); },
            [](QCPCurve *curve) { curve->valueAxis()->setScaleType(QCPAxis::stLogarithmic); },
        };
        for (const Change &change : changes) {
            const ChartScene f({400, 400});
            f.chart->addCurve(1, QPen(Qt::black));
            f.chart->setTraceWidths(3.0, 3.0); // one stroke
            const QVector<double> real{0.1, 0.8, 0.4}, imag{0.2, 0.3, 0.7};
            f.chart->setCurveData(1, {}, real, imag);
            QCPCurve *const curve = f.chart->getCurve(1);
            auto *const plain = new QCPCurve(f.plot->xAxis, f.plot->yAxis);
            plain->setData(real, imag);
            plain->setPen(curve->pen());
            plain->setAntialiased(true);
            f.hideAll();
            const QImage empty = f.picture(400, 400);
            curve->setVisible(true);
            const QImage before = f.picture(400, 400);
            change(curve);
            const QImage drawn = f.picture(400, 400);
            curve->setVisible(false);
            change(plain);
            plain->setVisible(true);
            QCOMPARE(drawn, f.picture(400, 400));
            QVERIFY(drawn != before && before != empty);
        }
    }

    /// A picture larger than any mask, and a point at infinity.
    void graphThatNoMaskHolds()
    {
        QCustomPlot plot;
        plot.xAxis->setRange(0.0, 4.0);
        plot.yAxis->setRange(0.0, 4.0);
        auto *const graph = new Plot::TraceGraph(plot.xAxis, plot.yAxis);
        graph->setData(QVector<double>{0.5, 3.0}, QVector<double>{1.0, 3.5});
        graph->setPen(QPen(Qt::blue, 2.0));
        graph->setAntialiased(true);
        const QImage bounded = plot.toPixmap(300, 300).toImage();
        const QImage large = plot.toPixmap(4200, 60).toImage();
        graph->addData(std::numeric_limits<double>::infinity(), 2.0);
        QCOMPARE(plot.toPixmap(300, 300).toImage(), bounded);
        graph->setVisible(false);
        auto *const wanted = plot.addGraph();
        wanted->setData(QVector<double>{0.5, 3.0}, QVector<double>{1.0, 3.5});
        wanted->setPen(QPen(Qt::blue, 2.0));
        wanted->setAntialiased(true);
        QCOMPARE(large, plot.toPixmap(4200, 60).toImage());
        wanted->setVisible(false);
        QVERIFY(large != plot.toPixmap(4200, 60).toImage());
    }

    /// Noise goes all ways at once; what is drawn stays within the mask.
    void wideNoiseIsDrawn()
    {
        QVector<double> frequencies(20000), real(20000), imag(20000);
        Random random(7);
        for (int i = 0; i < frequencies.size(); ++i) {
            frequencies[i] = i;
            real[i] = uniform(random, -1.5, 1.5);
            imag[i] = uniform(random, -1.5, 1.5);
        }
        QCustomPlot plot;
        plot.resize(300, 300);
        SmithChartPlot chart(&plot, SmithChart::Standard);
        chart.addCurve(1, QPen(Qt::red));
        chart.setTraceWidths(8.0, 8.0);
        QCOMPARE(chart.traceWidth(), 8.0);
        chart.setCurveData(1, frequencies, real, imag);
        plot.replot();
        const QImage picture = plot.toPixmap(300, 300).toImage();
        QCOMPARE(picture.pixelColor(150, 150), QColor(Qt::red));
        chart.setTraceWidths(-1.0, qQNaN());
        QCOMPARE(chart.activeTraceWidth(), 8.0);
    }
};

QTEST_MAIN(tst_TracePictures)
#include "tst_tracepictures.moc"
