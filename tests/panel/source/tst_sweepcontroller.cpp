// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desk.h"

#include <panel/source/sweepcontroller.h>
#include <panel/window/filedialog.h>
#include <panel/window/sweepbar.h>
#include <panel/window/timingline.h>

using namespace VnaTest;
using namespace Panel;

namespace
{

struct Desk : PanelDesk {
    const Network &network() const { return model.networks().first(); }
    QString shown() const { return network().name; }
    int points() const { return network().points(); }
    void sweepPoints(int points)
    {
        Sweep sweep = model.sweep();
        sweep.points = points;
        model.setSweep(sweep);
    }

    void pick(SoftKey *key, int index) { Q_EMIT key->choicePicked(index); }
};

} // namespace

class SweepControllerTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { setUpApplication(); }

    void switchesBetweenFilesAndDevices()
    {
        Desk desk;
        QCOMPARE(desk.keys().source->choice(), 0);
        QVERIFY(!desk.keys().points->isEnabled());

        desk.pick(desk.keys().source, 1);
        QTRY_COMPARE(desk.shown(), sourceName(Source::Antenna));
        QCOMPARE(desk.keys().source->choice(), 1);
        QVERIFY(desk.keys().points->isEnabled());
        QCOMPARE(desk.points(), 1001);
        desk.sweepPoints(100001);
        QTRY_COMPARE(desk.points(), 100001);
        QCOMPARE(desk.keys().points->value(), "100001"_s);

        // The points stay, the frequencies become those of the device.
        desk.pick(desk.keys().source, 3);
        QTRY_COMPARE(desk.shown(), sourceName(Source::Cable));
        QCOMPARE(desk.points(), 100001);
        QCOMPARE(desk.network().frequencies.first(), defaultSweep(Source::Cable, 1001).start);
        desk.model.setSweep({1e8, 2e8, 501});
        QTRY_COMPARE(desk.points(), 501);
        QCOMPARE(desk.keys().points->value(), "501"_s);

        desk.pick(desk.keys().source, 0);
        QCOMPARE(desk.shown(), "band-pass.s2p"_s);
        QVERIFY(!isSimulated(desk.model.source()));
        QCOMPARE(desk.keys().source->choice(), 0);
    }

    void answersClicksWhileSweeping()
    {
        Desk desk;
        desk.sweepPoints(Sweep::maximumPoints);
        const QSignalSpy updated(&desk.model, &PanelModel::networkUpdated);
        desk.model.setSource(Source::Antenna);
        QTRY_VERIFY_WITH_TIMEOUT(updated.count() >= 2, 60000);
        QCOMPARE(desk.points(), Sweep::maximumPoints);

        // Drawn are the points of the picture, not those of the data.
        QVERIFY(desk.window.smithView()->drawnPoints() > 100);
        QVERIFY(desk.window.smithView()->drawnPoints() < 20000);

        desk.click(desk.keys().visible->findChild<QPushButton *>("btnOff"_s));
        QVERIFY(!desk.model.activeTrace()->visible);
        const auto before = updated.count();
        QTRY_VERIFY_WITH_TIMEOUT(updated.count() > before, 60000);
        QVERIFY(!desk.model.activeTrace()->visible);
        for (const bool on : {false, true}) {
            desk.click(desk.keys().sweep->findChild<QPushButton *>(on ? "btnOn"_s : "btnOff"_s));
            QCOMPARE(desk.model.isSweeping(), on);
        }
    }

    void drawsNothingWhileMinimised()
    {
        Desk desk;
        desk.model.setSource(Source::Antenna);
        const QSignalSpy updated(&desk.model, &PanelModel::networkUpdated);
        const QSignalSpy drawn(desk.window.smithView()->plot(), &QCustomPlot::afterReplot);
        QTRY_VERIFY(updated.count() >= 3);
        desk.window.showMinimized();
        desk.settle();
        const auto before = drawn.count();
        const auto heard = updated.count();
        QTRY_VERIFY(updated.count() >= heard + 5);
        QCOMPARE(drawn.count(), before);
        desk.window.showNormal();
        QTRY_VERIFY(drawn.count() > before);
    }

    void markersStayOverNewData()
    {
        Desk desk;
        desk.model.setSource(Source::Antenna);
        const QSignalSpy updated(&desk.model, &PanelModel::networkUpdated);
        QTRY_VERIFY(updated.count() >= 2);
        desk.model.setSweeping(false);
        desk.model.addMarker(1, 800.0);
        const double hertz = desk.network().frequencies.at(800);
        const auto held = updated.count();
        QTest::qWait(5 * SweepSource::frameInterval);
        QCOMPARE(updated.count(), held);

        desk.model.setSweeping(true);
        QTRY_VERIFY(updated.count() >= held + 3);
        QCOMPARE(desk.index(1, 1), 800.0);
        const auto isOnTheTrace = [&desk] {
            const double index = desk.index(1, 1);
            const QPointF position =
                desk.view()->drawnMarker(1, 1)->getTracer()->position->coords();
            return desk.view()->drawnMarker(1, 1)->isVisible()
                && qAbs(position.x() - valueAt(desk.network().s(1, 1).real, index)) < 1e-9
                && qAbs(position.y() - valueAt(desk.network().s(1, 1).imag, index)) < 1e-9;
        };
        QVERIFY(isOnTheTrace());

        // With other points it keeps its frequency, shorter data or longer.
        for (const int points : {Sweep::minimumPoints, 100001}) {
            desk.sweepPoints(points);
            QTRY_COMPARE(desk.points(), points);
            const Marker *marker = desk.model.marker(1, 1);
            QVERIFY(qAbs(valueAt(desk.network().frequencies, desk.index(1, 1)) - hertz) < 1.0);
            QVERIFY(isOnTheTrace());
            int trace = 0, number = 0;
            QVERIFY(desk.chart()->getSelectedMarker(trace, number));
            QCOMPARE(desk.model.selectedMarker(), marker);
        }
    }

    void tunesAndTellsProgress()
    {
        Desk desk;
        const auto *sweeps = desk.controller.findChild<SweepController *>();
        const QSignalSpy progressed(sweeps, &SweepController::progressed);
        const QSignalSpy completed(sweeps, &SweepController::sweepsCompleted);
        desk.model.setSweep({1e9, 2e9, 20001});
        desk.model.setSource(Source::Antenna);
        QTRY_VERIFY(progressed.count() >= 1);
        QCOMPARE(completed.count(), 0);
        const QVector<double> before = desk.network().s(1, 1).real;
        desk.model.setTuning(2.9e9);
        QTRY_VERIFY(completed.count() >= 1); // on a busy machine the next sweep is under way by now
        QVERIFY(desk.network().s(1, 1).real != before);
        QVERIFY(progressed.contains(QVariantList{1.0}));
    }

    void filesAndSimulationTakeTurns()
    {
        Desk desk;
        desk.model.setSource(Source::Filter);
        QTRY_COMPARE(desk.shown(), sourceName(Source::Filter));
        QVERIFY(desk.openSamples({"antenna.s1p"_s}));
        QVERIFY(!isSimulated(desk.model.source()));
        QTest::qWait(5 * SweepSource::frameInterval);
        QCOMPARE(desk.shown(), "antenna.s1p"_s);
        // Also one that was opened while the first frame was on its way.
        desk.model.setSource(Source::Filter);
        QVERIFY(desk.open({startSample()}));
        QTest::qWait(5 * SweepSource::frameInterval);
        QCOMPARE(desk.shown(), "band-pass.s2p"_s);

        // Without files the panel asks for one.
        desk.show({});
        desk.model.setSource(Source::Antenna);
        QTRY_VERIFY(!desk.model.networks().isEmpty());
        desk.pick(desk.keys().source, 0);
        QVERIFY(desk.window.findChild<FileDialog *>());
        QVERIFY(isSimulated(desk.model.source()));
    }

    void tellsWhatIsMeasuredAndHowFast()
    {
        Desk desk;
        const auto labels = [](const QWidget *parent) {
            QStringList texts;
            const auto found = parent->findChildren<QLabel *>();
            for (const QLabel *label : found)
                texts << label->text();
            return texts.join(QLatin1Char('|'));
        };
        QVERIFY(labels(&desk.window).contains("Sample: band-pass.s2p"_s));
        desk.model.setSource(Source::Antenna);
        QTRY_VERIFY(labels(&desk.window).contains("Simulated: Antenna"_s));
        const QWidget *bar = desk.window.sweepBar();
        QTRY_VERIFY(labels(bar).contains("sweeps/s"_s));
        desk.sweepPoints(20001); // another sweep, of which nothing is known yet
        QVERIFY(!labels(bar).contains("sweeps/s"_s));
        // Few points are a sweep, too.
        desk.sweepPoints(2);
        QTRY_COMPARE(desk.points(), 2);
    }

    void tellsTheTimingOnRequest()
    {
        Desk desk;
        QVERIFY(!desk.window.timingLine()->isVisible());
        desk.press(Qt::Key_F3);
        QVERIFY(desk.window.timingLine()->isVisible());
        // The line takes room from the diagrams, which draw others then.
        const auto points = [&desk] {
            return QString::number(desk.window.smithView()->drawnPoints()
                                   + desk.window.cartesianView()->drawnPoints());
        };
        QTRY_VERIFY(desk.window.timingLine()->text().startsWith(points() + QLatin1Char(' ')));
        desk.click(desk.keys().timing->findChild<QPushButton *>("btnOff"_s));
        QVERIFY(!desk.window.timingLine()->isVisible());
    }
};

QTEST_MAIN(SweepControllerTest)
#include "tst_sweepcontroller.moc"
