// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <plot/marker.h>
#include <plot/markerselection.h>

#include <vnatest.h>

#include <memory>

using namespace VnaTest;
using Plot::Marker;

class tst_Marker : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        m_plot = std::make_unique<QCustomPlot>();
        m_curve = new QCPCurve(m_plot->xAxis, m_plot->yAxis);
        m_curve->setData(QVector<double>{0, 1, 2, 3}, QVector<double>{10, 20, 40, 80});
        m_graph = m_plot->addGraph();
        m_graph->setData(QVector<double>{0, 1, 2, 3}, QVector<double>{10, 20, 40, 80});
    }

    void cleanup()
    {
        m_plot.reset();
        TestCase::cleanup();
    }

    void look()
    {
        const Marker marker(m_plot.get(), 307, Plot::PointingDown);
        const auto *tracer = qobject_cast<Plot::QCPItemTracerMarker *>(marker.getTracer());
        QVERIFY(tracer && tracer->selectable() && !tracer->clipToAxisRect());
        QVERIFY(marker.isVisible() && marker.getLabel()->text().isEmpty());
        // The layer of the markers stays on top.
        m_plot->addLayer("host"_s);
        const Marker second(m_plot.get(), 2, Plot::PointingDown);
        QCOMPARE(second.getTracer()->layer()->name(), "markers"_s);
        QCOMPARE(m_plot->layer(m_plot->layerCount() - 1)->name(), "markers"_s);
    }

    void labelHangsOnTheTrianglesSide()
    {
        Marker marker(m_plot.get(), 1, Plot::PointingDown);
        const auto *tracer = qobject_cast<Plot::QCPItemTracerMarker *>(marker.getTracer());
        QCOMPARE(marker.getLabel()->position->coords(), QPointF(0, -20));
        QCOMPARE(marker.getLabel()->positionAlignment(), Qt::AlignHCenter | Qt::AlignBottom);
        marker.setType(Plot::PointingUp);
        QVERIFY(!tracer->isPointingDown());
        QCOMPARE(marker.getLabel()->position->coords(), QPointF(0, 20));
        QCOMPARE(marker.getLabel()->positionAlignment(), Qt::AlignHCenter | Qt::AlignTop);
        marker.setType(static_cast<Plot::MarkerType>(2));
        QVERIFY(tracer->isPointingDown());
        marker.setPosition(m_curve, 1.0);
        QCOMPARE(marker.getLabel()->position->pixelPosition() - tracer->position->pixelPosition(),
                 QPointF(0, -20));
    }

    void positionAtIndex()
    {
        Marker marker(m_plot.get(), 1, Plot::PointingDown);
        for (const auto &[index, point] : {std::pair(-5.0, QPointF(0, 10)),
                                           {99.0, QPointF(3, 80)},
                                           {1.5, QPointF(1.5, 30)},
                                           {2.0000005, QPointF(2, 40)}, // snaps
                                           {qQNaN(), QPointF(0, 10)}}) {
            QVERIFY(marker.setPosition(m_curve, index));
            QCOMPARE(marker.getTracer()->position->coords(), point);
            QVERIFY(marker.setPosition(m_graph, index));
            QCOMPARE(marker.getTracer()->position->coords(), point);
        }
    }

    void positionsThatFail()
    {
        Marker marker(m_plot.get(), 1, Plot::PointingDown);
        QVERIFY(marker.setPositionCoordinates(m_curve, 1.0, 2.0));
        QVERIFY(!marker.setPositionCoordinates(m_curve, qQNaN(), 2.0));
        QVERIFY(!marker.setPositionCoordinates(m_graph, 1.0, qInf()));
        QVERIFY(!marker.setPositionCoordinates(static_cast<QCPCurve *>(nullptr), 1.0, 1.0));
        QVERIFY(!marker.setPosition(static_cast<QCPGraph *>(nullptr), 1.0));
        QCOMPARE(marker.getTracer()->position->coords(), QPointF(1, 2));
        auto *const bare = new QCPCurve(m_plot->xAxis, m_plot->yAxis);
        bare->setData(QSharedPointer<QCPCurveDataContainer>());
        QVERIFY(!marker.setPosition(bare, 0.0));
        QVERIFY(m_plot->removePlottable(bare));
        Marker loose(nullptr, 2, Plot::PointingDown); // finds a curve's point, shows it nowhere
        QVERIFY(!loose.setPosition(m_graph, 1.0) && loose.setPosition(m_curve, 1.0));

        // An empty trace cannot place the marker but takes it to its axes.
        const auto *empty = new QCPCurve(m_plot->xAxis2, m_plot->yAxis2);
        QVERIFY(!marker.setPosition(const_cast<QCPCurve *>(empty), 0.0));
        QCOMPARE(marker.getTracer()->position->keyAxis(), m_plot->xAxis2);
    }

    void itemsGoWithTheMarker()
    {
        {
            Marker marker(m_plot.get(), 1, Plot::PointingDown);
            QCOMPARE(m_plot->itemCount(), 2);
            Marker moved(std::move(marker));
            QCOMPARE(moved.getId(), 1);
            QVERIFY(
                !marker.getTracer()); // NOLINT(bugprone-use-after-move): a moved marker is empty
            moved = Marker(m_plot.get(), 2, Plot::PointingUp);
            QCOMPARE(m_plot->itemCount(), 2);
            moved.setVisible(false);
            QVERIFY(!moved.isVisible());
        }
        QCOMPARE(m_plot->itemCount(), 0);
    }

    void survivesItsTracerOrLabel()
    {
        Marker label(m_plot.get(), 1, Plot::PointingDown);
        m_plot->removeItem(label.getTracer());
        QVERIFY(!label.isVisible());
        QVERIFY(!label.setPositionCoordinates(m_graph, 1.0, 2.0));
        label.setPosition(m_curve, 1.0);
        label.setType(Plot::PointingUp); // the label hangs on as it did
        QCOMPARE(label.getLabel()->positionAlignment(), Qt::AlignHCenter | Qt::AlignBottom);
        Marker tracer(m_plot.get(), 2, Plot::PointingDown);
        QVERIFY(tracer.setPosition(m_graph, 1.5));
        QCOMPARE(tracer.getTracer()->position->coords(), QPointF(1.5, 30));
        tracer.getLabel()->setVisible(false);
        QVERIFY(!tracer.isVisible());
        m_plot->removeItem(tracer.getLabel());
        QVERIFY(!tracer.isVisible());
        tracer.setPosition(m_graph, 7.0);
        QCOMPARE(tracer.getTracer()->position->coords(), QPointF(3, 80)); // the last point
        Marker &same = tracer;
        tracer = std::move(same);
        QVERIFY(tracer.getTracer());
        Plot::drawMarker(tracer, QPen(Qt::red), false);
        QCOMPARE(tracer.getTracer()->pen().color(), QColor(Qt::red));
    }

    void survivesItemsAndPlotGoneFirst()
    {
        Marker orphan(m_plot.get(), 1, Plot::PointingDown);
        Marker bare(m_plot.get(), 2, Plot::PointingDown);
        m_plot->removeItem(bare.getLabel());
        m_plot.reset();
        QVERIFY(!orphan.getLabel() && !orphan.getTracer());
        Marker withoutPlot(nullptr, 5, Plot::PointingUp);
        Marker empty;
        for (Marker *marker : {&orphan, &bare, &withoutPlot, &empty}) {
            marker->setColors(QPen(Qt::red), Qt::NoBrush);
            marker->setType(Plot::PointingUp);
            marker->setVisible(true);
            marker->setShape(Plot::Narrow);
            QVERIFY(!marker->isVisible());
            QVERIFY(!marker->setPositionCoordinates(static_cast<QCPCurve *>(nullptr), 0, 0));
            QVERIFY(!marker->setPosition(static_cast<QCPGraph *>(nullptr), 0));
            Plot::drawMarker(*marker, QPen(Qt::red), true);
            QCOMPARE(Plot::markerAt({marker}, {0.0, 0.0}, 1e9), -1);
            QCOMPARE(Plot::markerInReach({marker, nullptr}, {0.0, 0.0}, 1e9), -1);
        }
        QCOMPARE(withoutPlot.getId(), 5);
    }

private:
    std::unique_ptr<QCustomPlot> m_plot;
    QCPCurve *m_curve = nullptr;
    QCPGraph *m_graph = nullptr;
};

QTEST_MAIN(tst_Marker)
#include "tst_marker.moc"
