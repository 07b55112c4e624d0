// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "readerscene.h"

#include <smithchart/accessibleplot.h>
#include <smithchart/smithlimit.h>

#include <QLabel>
#include <QSignalSpy>

using SmithChart::WalkStep;
using SmithChart::WalkUnit;
using VnaTest::ReaderScene;

namespace
{

/// A limit that the trace of a scene fails, and its verdict.
struct FailedLimit {
    explicit FailedLimit(const ReaderScene &scene, double radius = 0.6)
        : limit(new SmithLimit(scene.chart))
    {
        SmithChart::LimitArea area;
        area.setCircle({0.0, 0.0}, radius, SmithChart::LimitArea::StayInside);
        limit->setArea(area);
        limit->test(1);
        scene.reader->addLimit(limit, 1);
    }
    QPointer<SmithLimit> limit;
};

} // namespace

/// The parts of a chart as screen readers keep them.
class tst_ReaderParts : public VnaTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    /// What a tool still holds of what has gone, or has never been.
    void partsThatHaveGone()
    {
        const ReaderScene scene;
        const FailedLimit failed(scene);
        QAccessibleInterface *const marker = scene.part(QAccessible::Slider);
        QAccessibleInterface *const table = scene.part(QAccessible::Table);
        QAccessibleInterface *const verdict = scene.part(QAccessible::StaticText);
        QAccessibleTableInterface *const cells = table->tableInterface();
        QAccessibleInterface *const cell = cells->cellAt(0, 1);
        QCOMPARE(cell->text(QAccessible::Description), cells->columnDescription(1));
        QCOMPARE(cell->text(QAccessible::Value), QString());
        QVERIFY(!cell->valueInterface() && !marker->tableInterface() && !table->valueInterface());
        QCOMPARE(table->indexOfChild(marker), -1);
        QCOMPARE(cells->columnDescription(99), QString());

        scene.chart->setCurveVisible(1, false);
        delete failed.limit;
        QSignalSpy asked(scene.chart, &SmithChartPlot::markerDragStarted);
        for (QAccessibleInterface *const part : {marker, table, verdict, cell}) {
            QVERIFY(!part->isValid());
            QCOMPARE(part->text(QAccessible::Name), QString());
            QCOMPARE(part->text(QAccessible::Description), QString());
        }
        marker->valueInterface()->setCurrentValue(2e9);
        marker->valueInterface()->setCurrentValue(QStringLiteral("none"));
        QVERIFY(asked.isEmpty());
        QCOMPARE(marker->valueInterface()->currentValue().toDouble(), 0.0);
        QCOMPARE(cells->rowCount(), 0);
        QCOMPARE(cells->columnCount(), 0);
        QCOMPARE(table->child(0), nullptr);
        QCOMPARE(cells->columnDescription(0), QString());
        QCOMPARE(scene.reader->summary(), QStringLiteral("No traces."));
        QCOMPARE(scene.tree()->childCount(), 1); // the line for announcements
    }

    void partsAreToldApart()
    {
        const ReaderScene scene;
        scene.chart->addMarkerVisual(1, 2, 1.0, Plot::PointingDown);
        QAccessibleInterface *first = nullptr, *second = nullptr;
        for (int i = 0; i < scene.tree()->childCount(); ++i) {
            QAccessibleInterface *const part = scene.tree()->child(i);
            if (part->role() == QAccessible::Slider)
                (first ? second : first) = part;
        }
        QVERIFY(first && second && first != second);
        auto *const label = new QLabel(QStringLiteral("a widget"), scene.plot.get());
        const int place = scene.tree()->childCount() - 2; // before the line for announcements
        QAccessibleInterface *const widget = scene.tree()->child(place);
        QCOMPARE(widget->object(), label);
        QCOMPARE(scene.tree()->indexOfChild(widget), place);
        QCOMPARE(scene.tree()->indexOfChild(nullptr), -1);
        QCOMPARE(scene.tree()->text(QAccessible::Help), QString());
        scene.chart->removeMarkerVisual(1, 2);
        QVERIFY(first->isValid() && !second->isValid());
        QCOMPARE(AccessiblePlot::on(nullptr), nullptr);
        // A second chart of the same plot takes its own parts along when it goes.
        auto *const chart = new SmithChartPlot(scene.plot.get(), SmithChart::Basic);
        chart->addCurve(1, QPen());
        chart->setCurveData(1, {}, {0.1}, {0.1});
        new SmithReader(chart);
        QCOMPARE(scene.tree()->childCount(), 5);
        QVERIFY(scene.tree()->child(2)->isValid());
        delete chart;
        QVERIFY(first->isValid() && scene.tree()->childCount() == 4);
    }

    void verdictsAndTheirEdges()
    {
        const ReaderScene scene;
        const FailedLimit kept(scene, 2.0);
        const FailedLimit failed(scene, 0.6);
        const FailedLimit other(scene, 0.1);
        scene.reader->addLimit(other.limit, 2); // of a trace that there is not
        QStringList texts;
        for (int i = 0; i < scene.tree()->childCount(); ++i) {
            if (scene.tree()->child(i)->role() == QAccessible::StaticText)
                texts << scene.tree()->child(i)->text(QAccessible::Name);
        }
        QVERIFY(texts.contains(QStringLiteral("S11 keeps within its limit.")));
        QVERIFY(texts.contains(QStringLiteral("S11 fails its limit from 1 GHz on.")));
        QSignalSpy said(scene.reader, &SmithReader::said);
        bool atEdge = false;
        for (int i = 0; i < 8 && !atEdge; ++i) {
            scene.press(Qt::Key_Right, Qt::ControlModifier);
            atEdge = !said.isEmpty()
                && said.last().first().toString().contains(QLatin1String("limit"),
                                                           Qt::CaseInsensitive);
        }
        QVERIFY(atEdge);
    }

    void keysOfAReaderThatRests()
    {
        const ReaderScene scene;
        for (const double wrong : {1.0, qInf(), qQNaN()})
            QVERIFY(!scene.reader->setVswr(wrong));
        QVERIFY(scene.reader->setVswr(3.0));
        QVERIFY(scene.reader->summary().contains(QLatin1String("VSWR below 3")));
        scene.reader->setTakesKeys(false);
        scene.press(Qt::Key_Home);
        QCOMPARE(scene.reader->walkedTrace(), -1);
        scene.reader->setTakesKeys(true);
        scene.press(Qt::Key_Home);
        QCOMPARE(scene.reader->walkedTrace(), 1);
        QSignalSpy clicked(scene.chart, &SmithChartPlot::activeTraceDoubleClicked);
        QSignalSpy any(scene.chart, &SmithChartPlot::pointDoubleClicked);
        scene.chart->setOnlyHandleActiveTrace(false);
        scene.press(Qt::Key_Enter);
        QCOMPARE(clicked.size() + any.size(), 1);
        // Its walk ends with the trace that it is on, and goes on with another one.
        scene.chart->addCurve(2, QPen());
        scene.chart->setCurveData(2, {}, {0.4, 0.5}, {0.4, 0.5});
        scene.chart->setActiveTrace(2);
        scene.chart->setCurveVisible(2, false);
        QVERIFY(scene.reader->walk({WalkUnit::Point, 1}));
        QCOMPARE(scene.reader->walkedTrace(), 1);
        scene.chart->setCurveData(1, {}, {}, {});
        QVERIFY(!scene.reader->walk({WalkUnit::Point, 1}));
    }

    /// The host may destroy what it is told of.
    void chartGoesWhenAStepIsAnnounced()
    {
        ReaderScene scene;
        connect(AccessiblePlot::on(scene.plot.get()), &AccessiblePlot::announced, this,
                [&] { delete scene.chart; });
        QVERIFY(scene.reader->walk({WalkUnit::Point, 1}));
        QVERIFY(!scene.reader && !scene.chart);
    }
};

QTEST_MAIN(tst_ReaderParts)
#include "tst_readerparts.moc"
