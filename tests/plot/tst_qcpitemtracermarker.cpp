// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <plot/qcpitemtracermarker.h>

#include <vnatest.h>

using namespace VnaTest;
using Plot::QCPItemTracerMarker;

class tst_QCPItemTracerMarker : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        m_plot = std::make_unique<QCustomPlot>();
        m_plot->axisRect()->setAutoMargins(QCP::msNone);
        m_plot->axisRect()->setMargins(QMargins(20, 20, 20, 20));
        m_plot->setViewport(QRect(0, 0, 240, 240));
        m_plot->xAxis->setRange(0, 200); // one unit a pixel
        m_plot->yAxis->setRange(0, 200);
        m_plot->replot();
        m_tracer = new QCPItemTracerMarker(m_plot.get());
        m_tracer->position->setType(QCPItemPosition::ptPlotCoords);
        m_tracer->position->setAxes(m_plot->xAxis, m_plot->yAxis);
        m_tracer->setClipToAxisRect(false);
        m_tracer->setSize(15);
        m_tracer->position->setCoords(100, 100);
    }

    void cleanup()
    {
        m_plot.reset();
        TestCase::cleanup();
    }

    void hitDistance()
    {
        const double halfBase = 15 * 0.57735;
        const struct {
            int shape;
            bool down;
            double size;
            QPointF offset; ///< from the apex, in pixels
            double distance;
        } rows[] = {
            {1, true, 15.0, {0, 0}, 0.0},
            {1, true, 15.0, {halfBase - 1e-9, -15}, 0.0}, // on the corner
            {1, true, 15.0, {8, 0}, 8.0},
            {1, true, 15.0, {8.01, 0}, -1.0},
            {1, true, 15.0, {0, 5}, 5.0},
            {1, true, 15.0, {0, -15.5}, -1.0},
            {1, false, 15.0, {0, 14}, 0.0},
            {1, false, 15.0, {0, -14}, -1.0},
            {0, true, 15.0, {6, -14}, -1.0},
            {2, true, 15.0, {6, -14}, -1.0}, // an unknown shape is narrow
            {0, true, 15.0, {3, -14}, 0.0},
            {1, true, 0.0, {0, -0.9}, 0.0}, // no size counts as 1
            {1, true, -9.0, {0, -8}, 8.0},
        };
        for (const auto &[shape, down, size, offset, distance] : rows) {
            const Row row("%1 px at %2, %3"_s.arg(size).arg(offset.x()).arg(offset.y()));
            m_tracer->setShape(static_cast<Plot::TracerShape>(shape));
            m_tracer->setPointingDown(down);
            m_tracer->setSize(size);
            QCOMPARE(m_tracer->selectTest(apex() + offset, false), distance);
        }
    }

    void unselectableIsMissedOnlyWhenAsked()
    {
        QCOMPARE(m_tracer->style(), QCPItemTracer::tsNone); // draws itself
        m_tracer->setSelectable(false);
        QCOMPARE(m_tracer->selectTest(apex(), true), -1.0);
        QCOMPARE(m_tracer->selectTest(apex(), false), 0.0);
        m_tracer->position->setAxisRect(nullptr);
        QCOMPARE(m_tracer->selectTest(apex(), false), -1.0);
    }

    void pannedOutIsNeitherHitNorDrawn()
    {
        m_tracer->setPen(QPen(Qt::red, 3));
        m_tracer->setBrush(Qt::red);
        const auto redPixels = [this] {
            const QImage image = m_plot->toPixmap(240, 240).toImage();
            int count = 0;
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x)
                    count += image.pixelColor(x, y) == QColor(Qt::red);
            }
            return count;
        };
        QVERIFY(redPixels() > 50);
        m_tracer->position->setCoords(100, 199); // on the edge: still to be seen
        QVERIFY(m_tracer->anchorInsideAxisRect());
        QVERIFY(redPixels() > 50);
        m_tracer->position->setCoords(100, 201);
        QCOMPARE(m_tracer->selectTest(m_tracer->position->pixelPosition(), false), -1.0);
        QCOMPARE(redPixels(), 0);
        for (const QPointF &nowhere : {QPointF(qQNaN(), 100), QPointF(100, qQNaN())}) {
            m_tracer->position->setCoords(nowhere);
            QCOMPARE(m_tracer->selectTest(QPointF(120, 120), false), -1.0);
            QCOMPARE(redPixels(), 0);
        }
    }

private:
    QPointF apex() const { return m_tracer->position->pixelPosition(); }

    std::unique_ptr<QCustomPlot> m_plot;
    QCPItemTracerMarker *m_tracer = nullptr;
};

QTEST_MAIN(tst_QCPItemTracerMarker)
#include "tst_qcpitemtracermarker.moc"
