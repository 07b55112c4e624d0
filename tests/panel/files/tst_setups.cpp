// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desk.h"

#include <panel/entry/letterkeys.h>
#include <panel/files/history.h>
#include <panel/files/setups.h>
#include <panel/files/viewstate.h>
#include <panel/model/limitline.h>

#include <QLineEdit>
#include <QTemporaryDir>

using namespace Panel;
using namespace VnaTest;

namespace
{

/// A model with a two-port of 101 points, and what takes its changes back.
struct Scene {
    PanelModel model;

    Scene()
    {
        Network network;
        network.ports = 2;
        network.name = "filter.s2p"_s;
        for (int i = 0; i < 101; ++i)
            network.frequencies << 2e9 + 1e6 * i;
        network.parameters.fill({QVector<double>(101, 0.5), QVector<double>(101, 0.0)}, 4);
        model.openNetworks({network});
    }
};

LimitLine limit(double value, double start = 0.0, double stop = 1e12)
{
    return {TraceFormat::LogMagnitude, true, start, stop, value, value};
}

} // namespace

class SetupsTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { setUpApplication(); }

    void undoesStepByStep()
    {
        Scene scene;
        PanelModel &model = scene.model;
        History history(&model);
        QVERIFY(!history.canUndo());
        QVector<QJsonObject> states{viewState(model)};
        const auto settle = [&] {
            QVERIFY(history.canUndo());
            QTest::qWait(History::pause + 50);
            states << viewState(model);
        };
        model.addMarker(3, 20.0);
        model.setMarkersCoupled(true);
        settle();
        const int added = model.addTrace(3);
        model.setTraceFormat(added, TraceFormat::Phase);
        model.setLimits(3, {limit(-3.0)});
        model.viewSettings()->setVswrLimit(2.0);
        model.setTraceMath(4, TraceMath::Divided);
        model.setTraceScale(4, {3.0, 6.0});
        settle();
        model.removeTrace(2);
        model.removeMarker(3, 1);
        Correction correction;
        correction.setDelay(2, 1e-10);
        model.setCorrection(*model.trace(1), correction);
        settle();
        // A drag is one step, and undone while it still goes on.
        for (int i = 0; i < 5; ++i)
            model.setZoom({DiagramKind::Smith, 0}, {2.0 + i, 0.1, 0.1});
        for (int step = 3; step >= 0; --step) {
            QVERIFY(history.canUndo());
            history.undo();
            QCOMPARE(viewState(model), states.at(step));
        }
        QVERIFY(!history.canUndo());
        history.undo();
        QCOMPARE(viewState(model), states.first());
        for (int step = 1; step <= 3; ++step) {
            history.redo();
            QCOMPARE(viewState(model), states.at(step));
        }
        history.redo();
        QCOMPARE(model.zoom({DiagramKind::Smith, 0}).factor, 6.0);
        // After another change there is nothing to do again.
        history.undo();
        model.selectMarker(0, 0);
        model.setActiveTrace(1);
        QTest::qWait(History::pause + 50);
        QVERIFY(!history.canRedo());
        // Another source begins a new history.
        model.setSource(Source::Antenna);
        model.beginMeasurement(scene.model.networks().first());
        QTest::qWait(History::pause + 50);
        QVERIFY(!history.canUndo());
    }

    /// Today's file is divided by yesterday's, also where it has other points; and back.
    void otherFilesKeepTheArrangement()
    {
        const QTemporaryDir folder;
        const auto write = [&folder](const char *name, int ports, int points, double value) {
            QByteArray text("# GHz S RI\n");
            for (int i = 0; i < points; ++i) {
                text += QByteArray::number(1.0 + double(i) / (points - 1));
                text +=
                    (' ' + QByteArray::number(value * (1.0 + i)) + " 0").repeated(ports * ports);
                text += '\n';
            }
            return writeFile(folder.filePath(QLatin1String(name)), text);
        };
        const auto wait = [] { QTest::qWait(History::pause + 50); };
        const QString yesterday = write("yesterday.s2p", 2, 11, 0.1);
        const QString today = write("today.s2p", 2, 21, 0.1);
        PanelDesk desk;
        PanelModel &model = desk.model;
        // Nothing was arranged: all is as at first, and can be gone back from.
        wait();
        desk.open({yesterday});
        QCOMPARE(model.traces().size(), 4);
        wait();
        const QJsonObject opened = viewState(model);
        model.setTraceFormat(3, TraceFormat::LinearMagnitude);
        const int added = model.addTrace(3);
        model.setActiveTrace(3);
        model.storeMemory(3);
        model.setTraceMath(3, TraceMath::Divided);
        model.addMarker(3, 4.0); // 1.4 GHz
        model.setStimulus(*model.trace(3), {1.2e9, 1.8e9});
        wait();
        const QJsonObject arranged = viewState(model);
        desk.open({today});
        QVERIFY(desk.bar()->isHidden());
        QVERIFY(model.trace(3)->math == TraceMath::Divided && model.trace(added));
        QVERIFY(model.trace(3)->format == TraceFormat::LinearMagnitude);
        QCOMPARE(model.network(*model.trace(3)).points(), 13);
        // Of 0.1 (1 + i) at double the points, divided by the same at single ones.
        const TraceData quotient = model.traceData(*model.trace(3));
        QCOMPARE(quotient.parameter.real.at(1), (1.0 + 5.0) / (1.0 + 2.5));
        QCOMPARE(desk.index(3, 1), 4.0);
        wait();
        // What is not there goes, with a sentence; what is new comes.
        desk.open({today, write("one.s1p", 1, 3, 0.5)});
        QCOMPARE(desk.bar()->message(), QString()); // today's stays what it was
        desk.open({today});
        desk.open({folder.filePath("one.s1p"_s)});
        QCOMPARE(desk.bar()->message(), "S12, S21, S22 are not in one.s1p."_s);
        QVERIFY(desk.bar()->isNotice());
        QCOMPARE(model.traces().size(), 1);
        model.setTraceFormat(1, TraceFormat::Phase);
        desk.open({today});
        QCOMPARE(model.traces().size(), 4);
        QVERIFY(model.trace(1)->format == TraceFormat::Phase);
        wait();
        desk.click(desk.keys().undo);
        desk.click(desk.keys().undo);
        QCOMPARE(model.files().first().path, yesterday);
        QVERIFY(desk.bar()->isHidden());
        QCOMPARE(viewState(model), arranged);
        QVERIFY(model.memory(3)
                && qFuzzyCompare(model.traceData(*model.trace(3)).at(0).real(), 1.0));
        desk.click(desk.keys().undo);
        QCOMPARE(viewState(model), opened);
        QVERIFY(!model.memory(3));
        desk.click(desk.keys().undo);
        QVERIFY(isSample(model.files().first()));
        desk.click(desk.keys().redo);
        QCOMPARE(viewState(model), opened);
        // A step back shows what was read, and says what has become of it.
        desk.click(desk.keys().redo);
        desk.click(desk.keys().redo);
        QCOMPARE(model.files().first().path, today);
        QVERIFY(QFile::remove(yesterday));
        desk.click(desk.keys().undo);
        QVERIFY(desk.bar()->message().startsWith("yesterday.s2p is gone"_s));
    }

    void keepsUnderNames()
    {
        const QTemporaryDir folder;
        PanelDesk desk;
        Setups setups(&desk.model, desk.controller.fileController(), folder.filePath("sets"_s));
        const QString failure = setups.save(" .. "_s);
        QVERIFY(!failure.isEmpty());
        QVERIFY(setups.names().isEmpty());

        QFile::copy(sampleFolder() + "/amplifier.s2p"_s, folder.filePath("a.s2p"_s));
        desk.open({folder.filePath("a.s2p"_s)});
        desk.model.setTraceFormat(3, TraceFormat::GroupDelay);
        desk.model.addMarker(3, 7.0);
        QCOMPARE(setups.save("10 gain/delay"_s), QString());
        QCOMPARE(setups.save("9 other"_s), QString());
        QCOMPARE(setups.names(), (QStringList{"9 other"_s, "10 gaindelay"_s}));
        const QJsonObject kept = viewState(desk.model);

        // Its files are opened again, and all is as it was.
        desk.open({startSample()});
        QSignalSpy told(&setups, &Setups::told), failed(&setups, &Setups::failed);
        setups.recall("10 gaindelay"_s);
        QTRY_COMPARE(told.size(), 1);
        QCOMPARE(viewState(desk.model), kept);
        // The default view of the same files can be gone back from by recalling.
        setups.preset();
        QVERIFY(desk.model.markers().isEmpty());
        QVERIFY(desk.model.trace(3)->format == TraceFormat::LogMagnitude);
        setups.recall("10 gaindelay"_s);
        QCOMPARE(viewState(desk.model), kept);

        // What cannot be used changes nothing.
        const auto refuses = [&](const QString &name) {
            const QJsonObject before = viewState(desk.model);
            failed.clear();
            setups.recall(name);
            PanelDesk::settle();
            return failed.size() == 1 && viewState(desk.model) == before;
        };
        desk.open({startSample()});
        QFile::remove(folder.filePath("a.s2p"_s));
        QVERIFY(refuses("10 gaindelay"_s));
        QVERIFY(refuses("nobody"_s));
        QFile file(folder.filePath("sets/9 other.json"_s));
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write("{\"version\": 1}");
        file.close();
        QVERIFY(refuses("9 other"_s));
        QVERIFY(setups.remove("9 other"_s));
        QVERIFY(!setups.remove("9 other"_s));
    }

    /// On the smallest screen, without a keyboard.
    void aFingerTypesAName()
    {
        PanelDesk desk(QSize(800, 480));
        desk.click(desk.keys().setups);
        auto *name = desk.window.findChild<QLineEdit *>();
        auto *letters = desk.window.findChild<LetterKeys *>();
        QVERIFY(name && letters && !letters->isVisible());
        name->setFocus();
        QVERIFY(!letters->isVisible()); // there is a keyboard then
        desk.click(name);
        QVERIFY(letters->isVisible());
        QTRY_COMPARE(name->selectedText(), name->text());
        for (const QString &text : {"\u21e7"_s, "A"_s, "b"_s, "\u2423"_s, "1"_s, "\u21e7"_s, "."_s,
                                    "5"_s, "2"_s, "\u232b"_s, "\u21e7"_s, "_"_s}) {
            const auto keys = letters->findChildren<QAbstractButton *>();
            const auto key = std::find_if(keys.begin(), keys.end(),
                                          [&](const auto *each) { return each->text() == text; });
            QVERIFY2(key != keys.end(), qPrintable(text));
            const QRect place((*key)->mapTo(&desk.window, QPoint()), (*key)->size());
            QVERIFY2(desk.window.rect().contains(place) && place.height() >= 44, qPrintable(text));
            desk.click(*key);
        }
        QCOMPARE(name->text(), "Ab 1.5_"_s);
        QVERIFY(name->hasFocus());
        desk.press(Qt::Key_Tab);
        QVERIFY(!letters->isVisible());
        desk.press(Qt::Key_Escape);
    }

    void addsAndRemovesTraces()
    {
        Scene scene;
        PanelModel &model = scene.model;
        model.addMarker(3, 20.0);
        model.setReferenceMarker(3, 1);
        const int added = model.addTrace(3);
        QCOMPARE(added, 5);
        QCOMPARE(model.activeTrace()->id, added);
        QVERIFY(model.markersOf(added).isEmpty());
        model.setMarkersCoupled(true);
        QCOMPARE(model.markersOf(added).size(), 1);
        model.removeTrace(3);
        QVERIFY(!model.trace(3));
        QVERIFY(!model.selectedMarker() || model.trace(model.selectedMarker()->trace));
        QCOMPARE(model.addTrace(added), 3); // the lowest number that is free
        QCOMPARE(model.markersOf(3).size(), 1);
        for (const int id : {1, 2, 3, 4, 5})
            model.removeTrace(id);
        QCOMPARE(model.traces().size(), 1);
        while (model.addTrace(model.activeTrace()->id) > 0) { }
        QCOMPARE(model.traces().size(), Trace::maximumCount);
    }

    /// What a user arranges by hand comes back with Undo, with a set-up, and with another start.
    void arrangesTracesByHand()
    {
        PanelModel model;
        Network first = Scene().model.networks().first();
        Network second = first;
        second.name = "load.s1p"_s;
        second.ports = 1;
        second.parameters.resize(1);
        model.openNetworks({first, second}); // 1 to 4, and 5 and 6
        const QJsonObject untouched = viewState(model);
        History history(&model);
        const auto settle = [] { QTest::qWait(History::pause + 50); };

        // All diagrams keep their numbers when one trace leaves for a new one.
        model.setTraceDiagram(4, 3);
        QCOMPARE(model.diagrams().size(), 3);
        QCOMPARE(model.diagrams().at(0).traces, QVector<int>({1, 2, 5}));
        QCOMPARE(model.diagrams().at(1).traces, QVector<int>({3, 6}));
        QCOMPARE(model.diagrams().at(2).traces, QVector<int>{4});
        model.setTraceFormat(4, TraceFormat::Phase);
        model.setTraceDiagram(4, 2);
        QCOMPARE(model.diagrams().at(1).traces, QVector<int>({3, 4, 6}));
        // A number holds one diagram of each kind.
        model.setTraceFormat(4, TraceFormat::Smith);
        QCOMPARE(model.diagrams().size(), 3);
        settle();

        model.setTraceName(3, "  a\tlong name that does not end "_s);
        QCOMPARE(model.trace(3)->name, "a long name that does no"_s);
        QCOMPARE(model.trace(3)->label(), model.trace(3)->name);
        QCOMPARE(model.trace(4)->label(), "Tr4"_s);
        QVERIFY(model.trace(model.addTrace(3))->name.isEmpty());
        // What is stored stays, to compare another file with.
        model.storeMemory(3);
        model.setTraceNetwork(3, 1);
        QCOMPARE(PanelModel::parameterName(*model.trace(3)), "S11"_s);
        QVERIFY(model.memory(3));
        model.setTraceNetwork(3, 2);
        QCOMPARE(model.trace(3)->network, 1);
        settle();

        // A file can be without a trace.
        for (const int id : {1, 2, 4, 7})
            model.removeTrace(id);
        QCOMPARE(model.traces().size(), 3);
        settle();
        const QJsonObject arranged = viewState(model);
        PanelModel another;
        another.openNetworks({first, second});
        restoreViewState(&another, arranged);
        QCOMPARE(viewState(another), arranged);

        history.undo();
        QCOMPARE(model.traces().size(), 7);
        QCOMPARE(model.trace(3)->network, 1);
        history.undo();
        QVERIFY(model.trace(3)->name.isEmpty());
        QCOMPARE(model.trace(3)->network, 0);
        QCOMPARE(PanelModel::parameterName(*model.trace(3)), "S21"_s);
        QVERIFY(!model.memory(3));
        QCOMPARE(model.diagrams().size(), 3);
        history.redo();
        history.redo();
        QCOMPARE(viewState(model), arranged);
        history.undo();
        history.undo();
        model.setDiagramsAutomatic();
        QCOMPARE(model.diagrams().size(), 2);
        history.undo();
        history.undo();
        QCOMPARE(viewState(model), untouched);
    }

    void testsAgainstLines()
    {
        Scene scene;
        TraceData data = scene.model.traceData(*scene.model.trace(3)); // -6.02 dB
        const auto test = [&](const QVector<LimitLine> &limits) {
            return testLimits(data, TraceFormat::LogMagnitude, limits);
        };
        QVERIFY(test({limit(-6.0)}).passed());
        QCOMPARE(test({limit(-6.0)}).tested, 101);
        QCOMPARE(test({limit(-7.0, 2.01e9, 2.02e9)}).failing.size(), 11);
        QCOMPARE(test({limit(-7.0, 2.01e9, 2.02e9), limit(-7.0, 2.015e9, 2.021e9)}).failing.size(),
                 12);
        LimitLine above = limit(-7.0);
        above.upper = false;
        QVERIFY(test({above}).passed());
        // A slope from -10 to 0 dB is passed at 40 % of its way.
        LimitLine slope = limit(-10.0, 2e9, 2.1e9);
        slope.stopValue = 0.0;
        QCOMPARE(test({slope}).failing.constLast(), 39);
        // Lines of another format are not held, and points without a value not tested.
        slope.format = TraceFormat::Vswr;
        QCOMPARE(test({slope}).tested, 0);
        data.parameter.real[0] = qQNaN();
        QCOMPARE(test({limit(-7.0)}).tested, 100);
        // What is no line is refused.
        for (const LimitLine &bad : {limit(qQNaN()), limit(0.0, 2.0, 1.0), limit(0.0, -1.0),
                                     LimitLine{TraceFormat::Smith, true, 0.0, 1.0, 0.0, 0.0}})
            QVERIFY(!bad.isValid());
        scene.model.setLimits(3, {limit(qInf())});
        QVERIFY(scene.model.trace(3)->limits.isEmpty());
    }
};

QTEST_MAIN(SetupsTest)
#include "tst_setups.moc"
