// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "readerscene.h"

#include <smithchart/accessibleplot.h>
#include <smithchart/smithlimit.h>

#include <QSignalSpy>

using namespace VnaTest;
using SmithChart::WalkUnit;

class tst_SmithReader : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void describesTheChart();
    void tableOfAnyLength();
    void aMarkerIsAskedForAndNotMoved();
    void oneAnnouncementASecondTheNewestWins();
    void twoChartsShareAPlot();
    void whateverAToolAsks();
    void markersThatAreRead();
    void limitsThatAreRead();
    void aChartMayGoWhenAskedForAMarker();
    void anyOrderOfDestruction();
};

void tst_SmithReader::describesTheChart()
{
    const ReaderScene scene;
    QCOMPARE(scene.tree()->role(), QAccessible::Chart);
    QCOMPARE(scene.tree()->text(QAccessible::Name), QStringLiteral("Smith chart"));
    QCOMPARE(
        scene.tree()->text(QAccessible::Description),
        QStringLiteral("S11 from 1 GHz to 5 GHz: best match at 2 GHz with a VSWR of 1.79; VSWR "
                       "below 2 from 1.880992 GHz to 3.119008 GHz, 1.238015 GHz wide; 0 loop(s)."));
    SmithLimit limit(scene.chart);
    SmithChart::LimitArea area;
    area.setCircle({0.0, 0.0}, 0.6, SmithChart::LimitArea::StayInside);
    limit.setArea(area);
    limit.test(1);
    scene.reader->addLimit(&limit, 1);
    QCOMPARE(scene.part(QAccessible::StaticText)->text(QAccessible::Name),
             QStringLiteral("S11 fails its limit from 1 GHz on."));
    // Parts find their way back, as tools go up and down the tree.
    for (int i = 0; i < scene.tree()->childCount(); ++i) {
        QCOMPARE(scene.tree()->indexOfChild(scene.tree()->child(i)), i);
        QCOMPARE(scene.tree()->child(i)->parent(), scene.tree());
    }
}

void tst_SmithReader::tableOfAnyLength()
{
    const ReaderScene scene;
    const int million = 1000000;
    QVector<double> real(million, 0.5);
    real[million - 1] = -1.0 / 3.0;
    scene.chart->setCurveData(1, {}, real, QVector<double>(million, 0.0));
    QAccessibleInterface *table = scene.part(QAccessible::Table);
    QCOMPARE(table->text(QAccessible::Name), QStringLiteral("S11"));
    QAccessibleTableInterface *cells = table->tableInterface();
    QCOMPARE(cells->rowCount(), million);
    QCOMPARE(cells->columnCount(), 6);
    QCOMPARE(cells->columnDescription(1), QStringLiteral("Resistance (\u03a9)"));
    QAccessibleInterface *last = cells->cellAt(million - 1, 1);
    QCOMPARE(last->text(QAccessible::Name), QStringLiteral("25"));
    QCOMPARE(table->indexOfChild(last), (million - 1) * 6 + 1);
    QCOMPARE(table->child((million - 1) * 6 + 1), last);
    QVERIFY(table->child(0) && table->child(0) == cells->cellAt(0, 0));
    // Thousands of cells may be asked for, and the first ones go.
    for (int row = 0; row < 5000; ++row)
        QCOMPARE(cells->cellAt(row, 5)->text(QAccessible::Name), QStringLiteral("3"));
    QCOMPARE(cells->cellAt(million, 0), nullptr);
    QAccessibleInterface *kept = cells->cellAt(4999, 5);
    scene.chart->setCurveData(1, {}, {0.0}, {0.0});
    QVERIFY(!kept->isValid());
    QVERIFY(kept->text(QAccessible::Name).isEmpty());
}

void tst_SmithReader::aMarkerIsAskedForAndNotMoved()
{
    const ReaderScene scene;
    QAccessibleInterface *marker = scene.part(QAccessible::Slider);
    QCOMPARE(marker->text(QAccessible::Name),
             QStringLiteral("Marker 1 on S11: 1 GHz, 50 \u2212 j100 \u03a9, VSWR 5.83"));
    QAccessibleValueInterface *value = marker->valueInterface();
    QCOMPARE(value->currentValue().toDouble(), 1e9);
    QCOMPARE(value->maximumValue().toDouble(), 5e9);
    QSignalSpy asked(scene.chart, &SmithChartPlot::markerPositionChanged);
    QSignalSpy finished(scene.chart, &SmithChartPlot::markerDragFinished);
    value->setCurrentValue(3.9e9);
    QCOMPARE(asked.takeFirst(), (QVariantList{1, 1, 3.0}));
    QCOMPARE(finished.takeFirst(), (QVariantList{1, 1, 0.0}));
    QCOMPARE(value->currentValue().toDouble(), 1e9);
    connect(scene.chart, &SmithChartPlot::markerPositionChanged, scene.chart,
            &SmithChartPlot::setMarkerIndex);
    value->setCurrentValue(9e9);
    QCOMPARE(value->currentValue().toDouble(), 5e9);
    value->setCurrentValue(qQNaN());
    QCOMPARE(value->currentValue().toDouble(), 5e9);
    scene.chart->removeMarkerVisual(1, 1);
    QVERIFY(!marker->isValid());
}

void tst_SmithReader::oneAnnouncementASecondTheNewestWins()
{
    const ReaderScene scene;
    AccessiblePlot *accessible = AccessiblePlot::on(scene.plot.get());
    QSignalSpy announced(accessible, &AccessiblePlot::announced);
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < 5; ++i)
        accessible->announce(QString::number(i));
    QCOMPARE(announced.size(), 1);
    QTRY_COMPARE_WITH_TIMEOUT(announced.size(), 2, 5000);
    QVERIFY(timer.elapsed() >= AccessiblePlot::pause * 9 / 10);
    QCOMPARE(announced.last().first().toString(), QStringLiteral("4"));
    // A notification in a status line, which is the plot's last part.
    const QAccessibleInterface *line = scene.tree()->child(scene.tree()->childCount() - 1);
    QCOMPARE(line->role(), QAccessible::StatusBar);
    QCOMPARE(scene.tree()->indexOfChild(line), scene.tree()->childCount() - 1);
    QCOMPARE(line->child(0)->role(), QAccessible::Notification);
    QCOMPARE(line->child(0)->text(QAccessible::Name), QStringLiteral("4"));
    QCOMPARE(line->child(0)->parent()->parent(), scene.tree());
    accessible->announce(QStringLiteral("never"));
    accessible->announce({}); // at once, and what waits is forgotten
    QCOMPARE(line->child(0)->text(QAccessible::Name), QString());
    QTest::qWait(AccessiblePlot::pause + 100);
    QCOMPARE(announced.size(), 2);
}

void tst_SmithReader::twoChartsShareAPlot()
{
    const ReaderScene scene;
    auto *second = new SmithChartPlot(scene.plot.get(), SmithChart::Basic);
    second->addCurve(1, QPen());
    second->setCurveData(1, {}, {0.1}, {0.1});
    auto *reader = new SmithReader(second);
    reader->setName(QStringLiteral("Output"));
    QCOMPARE(scene.tree()->text(QAccessible::Name), QStringLiteral("Smith chart Output"));
    QCOMPARE(scene.tree()->childCount(), 4); // with the status line
    QAccessibleInterface *gone = scene.tree()->child(2);
    const QAccessible::Id id = QAccessible::uniqueId(gone);
    delete second;
    QCOMPARE(QAccessible::accessibleInterface(id), nullptr);
    QCOMPARE(scene.tree()->childCount(), 3);
}

/// Tools go up and down the tree and ask each part for all that there may be.
void tst_SmithReader::whateverAToolAsks()
{
    const ReaderScene scene;
    scene.plot->show();
    AccessiblePlot::on(scene.plot.get())->announce(QStringLiteral("1"));
    QVector<QAccessibleInterface *> all{scene.tree()}, shown;
    for (int i = 0; i < all.size(); ++i) {
        QAccessibleInterface *part = all.at(i);
        for (int child = 0; child < qMin(part->childCount(), 8); ++child)
            all.append(part->child(child));
        QVERIFY(!part->child(-1) && !part->child(part->childCount()));
        QCOMPARE(part->indexOfChild(scene.tree()), -1);
        QVERIFY(part->isValid());
        for (const auto kind : {QAccessible::Value, QAccessible::Help, QAccessible::Accelerator})
            QCOMPARE(part->text(kind), QString());
        QVERIFY(scene.tree()->rect().contains(part->rect()));
        QVERIFY(!part->state().invisible);
        // What is announced is heard wherever it stands.
        if (part->role() != QAccessible::StatusBar && part->role() != QAccessible::Notification) {
            QCOMPARE(part->window(), scene.tree()->window());
            shown.append(part);
        }
        if (i > 0) {
            QVERIFY(part->parent());
            QCOMPARE(part->parent()->child(part->parent()->indexOfChild(part)), part);
        }
    }
    QVERIFY(all.size() > 10);
    QAccessibleTableInterface *cells = scene.part(QAccessible::Table)->tableInterface();
    QVERIFY(!cells->cellAt(-1, 0) && !cells->cellAt(0, -1) && !cells->cellAt(0, 6));
    scene.plot->hide();
    for (const QAccessibleInterface *part : qAsConst(shown))
        QVERIFY(part->state().invisible);
}

void tst_SmithReader::markersThatAreRead()
{
    const ReaderScene scene;
    SmithChartPlot *chart = scene.chart;
    const auto texts = [&] {
        return scene.names(QAccessible::Slider).replaceInStrings(QRegularExpression(": .*"_s), {});
    };
    chart->addCurve(2, QPen());
    chart->setCurveData(2, {1.0, 2.0, 3.0}, {1.0, 0.0, qQNaN()}, {0.0, 0.0, 0.0});
    chart->addMarkerVisual(2, 3, 1.0, Plot::PointingDown);
    QCOMPARE(texts(), QStringList({"Marker 1 on S11"_s, "Marker 3 on Trace 2"_s}));
    chart->setMarkerVisible(1, 1, false);
    QCOMPARE(texts(), QStringList("Marker 3 on Trace 2"_s));

    // One that stands nowhere has a name, but neither a value nor a place.
    QAccessibleInterface *marker = scene.part(QAccessible::Slider);
    QSignalSpy asked(chart, &SmithChartPlot::markerPositionChanged);
    marker->valueInterface()->setCurrentValue(0.25);
    QCOMPARE(asked.takeFirst(), (QVariantList{2, 3, 0.0}));
    chart->setCurveData(2, {1.0}, {1.0}, {0.0});
    chart->setMarkerVisible(2, 3, true);
    QCOMPARE(marker->text(QAccessible::Name), QStringLiteral("Marker 3 on Trace 2"));
    QVERIFY(qIsNaN(marker->valueInterface()->currentValue().toDouble()));
    chart->setCurveData(2, {}, {}, {});
    chart->setMarkerVisible(2, 3, true);
    marker->valueInterface()->setCurrentValue(0.25);
    QVERIFY(asked.isEmpty());

    // An open end, a gap, and a chart without a reference.
    chart->setCurveData(2, {1.0, 2.0, 3.0}, {1.0, 0.0, qQNaN()}, {0.0, 0.0, 0.0});
    chart->setGridReference({});
    QAccessibleTableInterface *table = scene.tree()->child(1)->tableInterface();
    QCOMPARE(table->columnDescription(1), QStringLiteral("Resistance"));
    QStringList cells;
    for (int row = 0; row < 3; ++row)
        cells << table->cellAt(row, 0)->text(QAccessible::Name)
              << table->cellAt(row, 1)->text(QAccessible::Name);
    QCOMPARE(cells.join(QLatin1Char(' ')), QStringLiteral("1 Hz infinite 2 Hz 1 3 Hz \u2013"));
    scene.reader->setStimulusText([](double value) { return QString::number(value) + u's'; });
    QCOMPARE(table->cellAt(1, 0)->text(QAccessible::Name), QStringLiteral("2s"));
    scene.reader->setStimulusText({});
    QCOMPARE(table->cellAt(1, 0)->text(QAccessible::Name), QStringLiteral("2 Hz"));

    // As many as a user can tell apart.
    for (int number = 1; number <= 60; ++number) {
        for (const int trace : {1, 2}) {
            chart->addMarkerVisual(trace, number, 0.0, Plot::PointingDown);
            chart->setMarkerVisible(trace, number, true);
        }
    }
    QCOMPARE(texts().size(), 99);
}

void tst_SmithReader::limitsThatAreRead()
{
    const ReaderScene scene;
    scene.chart->addCurve(2, QPen());
    scene.chart->setCurveData(2, {1.0, 2.0}, {0.0, 0.9}, {0.0, 0.0});
    QPointer<SmithLimit> limits[] = {new SmithLimit(scene.chart), new SmithLimit(scene.chart)};
    SmithChart::LimitArea area;
    area.setCircle({0.0, 0.0}, 0.6, SmithChart::LimitArea::StayInside);
    for (const int trace : {1, 2}) {
        limits[trace - 1]->setArea(area);
        limits[trace - 1]->test(trace);
        scene.reader->addLimit(limits[trace - 1], trace);
    }
    const auto texts = [&] { return scene.names(QAccessible::StaticText); };
    const QString first = QStringLiteral("S11 fails its limit from 1 GHz on.");
    QCOMPARE(texts(), QStringList({first, "Trace 2 fails its limit from 2 Hz on."_s}));
    // A walk stops at the edges of its own trace's limit: 0 and 0, and 3 to 4.
    QVector<double> stops;
    QSignalSpy said(scene.reader, &SmithReader::said);
    while (scene.reader->walk({WalkUnit::Feature, 1})) {
        if (said.last().first().toString().contains(QLatin1String("dge of the limit")))
            stops << scene.reader->walkedIndex();
    }
    QCOMPARE(stops, (QVector<double>{0.0, 3.0, 4.0}));

    // Nothing is said of what failed and is gone, nor by a limit that is.
    scene.chart->setCurveData(2, {1.0}, {0.0}, {0.0});
    QCOMPARE(texts(), QStringList(first));
    limits[1]->test(2);
    QCOMPARE(texts(), QStringList({first, "Trace 2 keeps within its limit."_s}));
    delete limits[0];
    QCOMPARE(texts(), QStringList("Trace 2 keeps within its limit."_s));
    scene.reader->endWalk();
    scene.reader->walk({WalkUnit::Feature, 1});
    QVERIFY(!said.last().first().toString().contains(QLatin1String("limit")));
}

void tst_SmithReader::aChartMayGoWhenAskedForAMarker()
{
    for (const bool atOnce : {true, false}) {
        const ReaderScene scene;
        QStringList told;
        note(told, "started", scene.chart.data(), &SmithChartPlot::markerDragStarted);
        note(told, "moved", scene.chart.data(), &SmithChartPlot::markerPositionChanged);
        note(told, "finished", scene.chart.data(), &SmithChartPlot::markerDragFinished);
        const auto go = [&scene] { delete scene.chart; };
        if (atOnce)
            connect(scene.chart, &SmithChartPlot::markerDragStarted, this, go);
        else
            connect(scene.chart, &SmithChartPlot::markerPositionChanged, this, go);
        scene.part(QAccessible::Slider)->valueInterface()->setCurrentValue(3e9);
        QCOMPARE(told, QStringList({"started 1 1"_s, "moved 1 1 2"_s}).mid(0, atOnce ? 1 : 2));
        QCOMPARE(scene.names(QAccessible::Slider), QStringList());
    }
}

void tst_SmithReader::anyOrderOfDestruction()
{
    SmithReader ofNothing(nullptr);
    QCOMPARE(ofNothing.summary(), QStringLiteral("No traces."));
    QVERIFY(!ofNothing.walk({WalkUnit::End, 1}));
    ofNothing.endWalk();
    for (int order = 0; order < 3; ++order) {
        ReaderScene scene;
        scene.press(Qt::Key_Home); // with a ring
        for (int i = 0; i < scene.tree()->childCount(); ++i)
            QVERIFY(scene.tree()->child(i)->isValid());
        scene.part(QAccessible::Table)->tableInterface()->cellAt(0, 0);
        scene.reader->addLimit(new SmithLimit(scene.chart), 1);
        // Whoever hears of the chart's end finds no more than the limit, and the line that is last.
        connect(scene.chart, &QObject::destroyed, this, [&scene] {
            if (scene.reader && scene.plot)
                QCOMPARE(scene.tree()->childCount(), 2);
        });
        if (order == 0)
            delete scene.reader;
        else if (order == 1)
            delete scene.chart;
        else
            scene.plot.reset();
        if (scene.reader)
            QVERIFY(!scene.reader->walk({WalkUnit::End, 1}));
        if (order < 2)
            QCOMPARE(scene.tree()->childCount(), 1);
    }
}

QTEST_MAIN(tst_SmithReader)
#include "tst_smithreader.moc"
