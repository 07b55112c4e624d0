// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "readerscene.h"

#include <smithchart/accessibleplot.h>

#include <QSignalSpy>

using namespace VnaTest;
using SmithChart::WalkUnit;

/// How a reader walks, by keys and by calls.
class tst_SmithReaderWalk : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void keysWalkTheTrace();
    void walksWhatIsThere();
    void keysThatDoNotWalk();
};

void tst_SmithReaderWalk::keysWalkTheTrace()
{
    const ReaderScene scene;
    QSignalSpy said(scene.reader, &SmithReader::said);
    const auto last = [&] { return said.isEmpty() ? QString() : said.last().first().toString(); };
    scene.press(Qt::Key_Right, Qt::ControlModifier);
    QVERIFY2(last().startsWith(QLatin1String("Marker: 1 GHz")), qPrintable(last()));
    scene.press(Qt::Key_Right, Qt::ControlModifier);
    QVERIFY2(last().startsWith(QLatin1String("VSWR of 2: 1.880992 GHz")), qPrintable(last()));
    scene.press(Qt::Key_Right, Qt::ControlModifier);
    QVERIFY2(last().startsWith(QLatin1String("Minimum: 2 GHz")), qPrintable(last()));
    scene.press(Qt::Key_Right, Qt::ControlModifier);
    QCOMPARE(
        last(),
        QStringLiteral("Resonance: 2.5 GHz, 75 + j0 \u03a9, VSWR 1.5, 3.0 dB less reflection"));
    QCOMPARE(scene.reader->walkedIndex(), 1.5);
    scene.press(Qt::Key_Left);
    QVERIFY2(last().startsWith(QLatin1String("Minimum: 2 GHz, ")), qPrintable(last()));
    scene.press(Qt::Key_End);
    QCOMPARE(scene.reader->walkedIndex(), 4.0);
    const int steps = int(said.size());
    scene.press(Qt::Key_End); // nothing new
    scene.press(Qt::Key_Right);
    QCOMPARE(said.size(), steps);
    scene.press(Qt::Key_PageUp);
    QCOMPARE(scene.reader->walkedIndex(), 3.0);

    QSignalSpy clicked(scene.chart, &SmithChartPlot::activeTraceDoubleClicked);
    scene.press(Qt::Key_Return);
    QCOMPARE(clicked.takeFirst().at(1).toDouble(), 4e9);
    scene.press(Qt::Key_Escape);
    QCOMPARE(scene.reader->walkedTrace(), -1);
    scene.press(Qt::Key_Return);
    QVERIFY(clicked.isEmpty());

    scene.chart->setCurveVisible(1, false);
    QVERIFY(!scene.reader->walk({WalkUnit::Point, 1}));
}

void tst_SmithReaderWalk::walksWhatIsThere()
{
    const ReaderScene scene;
    QSignalSpy said(scene.reader, &SmithReader::said);
    scene.chart->addCurve(2, QPen());
    scene.chart->setCurveData(2, {}, QVector<double>(5, 0.1), QVector<double>(5, 0.1));
    scene.chart->addMarkerVisual(2, 1, 4.0, Plot::PointingDown);
    scene.chart->setActiveTrace(-1);
    const int items = scene.plot->itemCount();
    scene.reader->endWalk(); // nothing to end, nothing to hide
    QCOMPARE(scene.plot->itemCount(), items);
    QVERIFY(scene.reader->walk({WalkUnit::Feature, -1}));
    QCOMPARE(scene.reader->walkedTrace(), 1); // the first that is shown
    QVERIFY(scene.reader->walkedIndex() < 4.0); // the marker of another is no stop
    scene.chart->setActiveTrace(2);
    QVERIFY(scene.reader->walk({WalkUnit::End, 1}));
    QCOMPARE(scene.reader->walkedTrace(), 2);
    QVERIFY(said.last().first().toString().startsWith(QLatin1String("Marker: 4 Hz")));

    // Without axes there is no ring, and without the plot's description nobody else to tell.
    scene.reader->endWalk();
    delete AccessiblePlot::on(scene.plot.get());
    const int before = int(said.size());
    for (const auto side : {QCPAxis::atLeft, QCPAxis::atBottom}) {
        scene.plot->axisRect()->removeAxis(scene.plot->axisRect()->axis(side));
        QVERIFY(scene.reader->walk({WalkUnit::End, side == QCPAxis::atLeft ? -1 : 1}));
    }
    QCOMPARE(said.size(), before + 2);
    scene.reader->endWalk();
    QCOMPARE(scene.reader->walkedTrace(), -1);
}

void tst_SmithReaderWalk::keysThatDoNotWalk()
{
    const ReaderScene scene;
    scene.reader->setTakesKeys(false);
    scene.press(Qt::Key_Home);
    QCOMPARE(scene.reader->walkedIndex(), -1.0);
    scene.reader->setTakesKeys(true);
    scene.press(Qt::Key_End);
    scene.press(Qt::Key_A);
    QCOMPARE(scene.reader->walkedIndex(), 4.0);
    // Enter is a double click there, of a point where all traces are to be clicked.
    QSignalSpy active(scene.chart, &SmithChartPlot::activeTraceDoubleClicked);
    QSignalSpy point(scene.chart, &SmithChartPlot::pointDoubleClicked);
    for (const bool onlyActive : {true, false}) {
        scene.chart->setOnlyHandleActiveTrace(onlyActive);
        scene.press(Qt::Key_Enter);
    }
    QCOMPARE(active.count() + point.count(), 2);
    QCOMPARE(active.first().at(1).toDouble(), 5e9);
    QCOMPARE(point.first().at(1).toInt(), 4);
    scene.chart->setCurveData(1, {1e9}, {0.5}, {0.5});
    scene.press(Qt::Key_Return); // where nothing is any more
    QCOMPARE(active.count() + point.count(), 2);
}

QTEST_MAIN(tst_SmithReaderWalk)
#include "tst_smithreaderwalk.moc"
