// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desk.h"

#include <controls/thememanager.h>
#include <panel/files/history.h>
#include <panel/files/panelstate.h>
#include <panel/files/statekeeper.h>

using namespace VnaTest;
using namespace Panel;
using Controls::ThemeManager;

namespace
{

QByteArray read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class PanelStateTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { setUpApplication(); }

    /// Saves a state in which nothing is as it is at the start.
    void init()
    {
        TestCase::init();
        PanelDesk desk;
        QFile::copy(sampleFolder() + "/amplifier.s2p"_s, path("a.s2p"));
        desk.open({path("a.s2p")});
        ThemeManager::instance()->setTheme(ThemeManager::Light);
        ViewSettings *view = desk.model.viewSettings();
        view->layoutProfile()->setLayoutType(Graph::LayoutType::Quad);
        view->setGridMode(SmithChartPlot::Admittance);
        view->setGridLabels(GridLabels::Normalised);
        view->setVswrCircle(3.0);
        view->setVswrLimit(1.5);
        view->setDensity(GridDensity::Basic);
        view->setReadoutFormat(ReadoutFormat::Vswr);
        view->setOnlyActiveTrace(true);
        desk.model.setTraceParameter(2, 2, 1);
        desk.model.setTraceFormat(2, TraceFormat::Phase);
        desk.model.setTraceScale(2, {30.0, 90.0});
        desk.model.setTraceVisible(3, false);
        desk.model.addMarker(3, 10.0);
        desk.model.addMarker(2, 10.5);
        desk.model.addMarker(2, 20.0);
        desk.model.removeMarker(2, 1);
        desk.model.setReferenceMarker(2, 2);
        m_place = desk.model.marker(2, 2)->place;
        desk.model.setZoom({DiagramKind::Smith, 1}, {3.0, 0.25, -0.5});
        desk.model.setStimulus(*desk.model.trace(2), {1e9, 5e9});
        desk.model.preferences()->setExportFolder(path("pictures"));
        desk.model.preferences()->setTraceDashes(true);
        desk.model.preferences()->setLanguage("de"_s);
        QVERIFY(PanelState::save(desk.model, path("state.json")));
        m_saved = read(path("state.json"));
        ThemeManager::instance()->setTheme(ThemeManager::Dark);
    }

    void cleanup()
    {
        ThemeManager::instance()->setTheme(ThemeManager::Dark);
        TestCase::cleanup();
    }

    void comesBack()
    {
        const PanelState state(path("state.json"));
        QCOMPARE(state.note(), QString());
        QCOMPARE(state.language(), "de"_s);
        QCOMPARE(state.files(), QStringList{path("a.s2p")});

        PanelDesk desk;
        desk.open(state.files());
        state.restore(&desk.model);
        QVERIFY(ThemeManager::instance()->isLightTheme());
        const ViewSettings *view = desk.model.viewSettings();
        QCOMPARE(view->diagramLayout(), Graph::LayoutType::Quad);
        QCOMPARE(view->gridMode(), SmithChartPlot::Admittance);
        QCOMPARE(view->density(), GridDensity::Basic);
        QCOMPARE(view->gridLabels(), GridLabels::Normalised);
        QCOMPARE(view->vswrCircle(), 3.0);
        QCOMPARE(view->vswrLimit(), 1.5);
        QCOMPARE(view->readoutFormat(), ReadoutFormat::Vswr);
        QVERIFY(view->onlyActiveTrace());
        const Trace *trace = desk.model.trace(2);
        QCOMPARE(PanelModel::parameterName(*trace), "S21"_s);
        QVERIFY(trace->format == TraceFormat::Phase && trace->scale == (Scale{30.0, 90.0}));
        QCOMPARE(desk.model.activeTrace(), trace);
        QVERIFY(!desk.model.trace(3)->visible);
        QCOMPARE(desk.model.markers().size(), 2);
        QCOMPARE(desk.model.marker(2, 2)->place, m_place);
        QCOMPARE(desk.model.selectedMarker(), desk.model.marker(2, 2));
        QCOMPARE(desk.model.zoom({DiagramKind::Smith, 1}), (Zoom{3.0, 0.25, -0.5}));
        QCOMPARE(desk.model.stimulus(*trace), (Stimulus{1e9, 5e9}));
        QCOMPARE(desk.model.referenceMarker(2), desk.model.marker(2, 2));
        QCOMPARE(desk.model.preferences()->exportFolder(), path("pictures"));
        QVERIFY(desk.model.preferences()->traceDashes());

        // Other files: what belongs to the traces stays away, the rest comes.
        PanelDesk other;
        other.openSamples({"antenna.s1p"_s});
        const Scale scale = other.model.trace(2)->scale;
        state.restore(&other.model);
        QVERIFY(other.model.markers().isEmpty() && other.model.zooms().empty());
        QCOMPARE(other.model.trace(2)->scale, scale);
        QCOMPARE(other.model.viewSettings()->gridMode(), SmithChartPlot::Admittance);
    }

    void refusesWhatIsNoState()
    {
        for (const auto &[before, after] : {std::pair("\"version\": 2", "\"version\": 3"),
                                            {"\"version\": 2", "\"version\": \"2\""},
                                            {"\"grid\": 1", "\"grid\": 3"},
                                            {"\"layout\": 3", "\"layout\": -1"},
                                            {"\"density\": 0", "\"density\": 0.5"},
                                            {"\"language\": \"de\"", "\"language\": \"tlh\""},
                                            {"\"format\": 2", "\"format\": 99"},
                                            {"\"scale\": 30", "\"scale\": null"},
                                            {"\"hertz\": ", "\"hertz\": \"no\", \"was\": "},
                                            {"\"number\": 2", "\"number\": 99"},
                                            {"\"networks\": [", "\"networks\": 1, \"were\": ["}}) {
            const Row row(QString::fromLatin1(after));
            QVERIFY2(m_saved.contains(before), m_saved.constData());
            const PanelState state = damaged(QByteArray(m_saved).replace(before, after));
            const bool isOther = qstrcmp(after, "\"version\": 3") == 0;
            QVERIFY2(state.note().contains(isOther ? "version"_s : "damaged"_s),
                     qPrintable(state.note()));
            QVERIFY(state.files().isEmpty() && state.language().isEmpty());
        }
    }

    void survivesDamage()
    {
        PanelDesk desk;
        for (int size = 0; size < m_saved.size(); size += 61)
            damaged(m_saved.left(size)).restore(&desk.model);
        for (int i = 0; i < m_saved.size(); i += 31) {
            QByteArray bytes = m_saved;
            bytes[i] = char(bytes.at(i) ^ (1 + i % 255));
            damaged(bytes).restore(&desk.model);
        }
        for (const Trace &trace : desk.model.traces())
            QVERIFY(trace.scale.perDivision > 0.0);

        QVERIFY(!PanelState(m_folder.path()).note().isEmpty()); // a folder
        // What is saved later replaces it.
        for (const QByteArray &bad : {QByteArray(2 << 20, '#'), "no line of ours\n" + m_saved}) {
            const PanelState refused = damaged(bad);
            QVERIFY(!refused.note().isEmpty());
            QVERIFY(PanelState::save(desk.model, path("bad.json")));
            QCOMPARE(PanelState(path("bad.json")).note(), QString());
        }
        QCOMPARE(read(path("bad.json.damaged")), QByteArray(2 << 20, '#')); // the first one is kept
        QCOMPARE(PanelState(path("none.json")).note(), QString());
        writeFile(path("file"), {});
        QVERIFY(!PanelState::save(desk.model, path("file/state.json")));
    }

    /// However the program ends, what was changed is there a moment later.
    void keepsWhatChanges()
    {
        PanelDesk desk;
        const QString kept = path("kept.json");
        StateKeeper keeper(&desk.model, kept);
        QTest::qWait(2 * StateKeeper::interval);
        QVERIFY(keeper.save());
        QVERIFY(!QFile::exists(kept));
        const auto saves = [&kept](const auto &change) {
            change();
            const QByteArray before = read(kept);
            QTRY_VERIFY_WITH_TIMEOUT(read(kept) != before, 4 * StateKeeper::interval);
            QCOMPARE(PanelState(kept).note(), QString());
        };
        saves([&] { desk.model.addMarker(1, 3.0); });
        saves([&] { desk.model.setZoom({DiagramKind::Smith, 0}, {2.0, 0.0, 0.0}); });
        saves([&] { desk.model.viewSettings()->setDensity(GridDensity::Basic); });
        saves([&] { desk.model.preferences()->setLanguage("de"_s); });
        saves([&] { desk.model.setStimulus(*desk.model.trace(1), {2.4e9, 2.5e9}); });
        // At once when asked; another program's sound state is no damage.
        PanelDesk other;
        StateKeeper second(&other.model, kept);
        other.model.setActiveTrace(2);
        QVERIFY(second.save());
        desk.model.setActiveTrace(3);
        QVERIFY(keeper.save());
        QVERIFY(!QFile::exists(kept + ".damaged"_s));

        writeFile(path("file"), {});
        StateKeeper homeless(&desk.model, path("file/state.json"));
        const QSignalSpy failed(&homeless, &StateKeeper::failed);
        for (const int trace : {1, 2}) {
            desk.model.setActiveTrace(trace);
            QVERIFY(!homeless.save());
        }
        QCOMPARE(failed.count(), 1);
    }

    /// A marker that goes where sweeps have their maximum is nothing to be written, nor undone.
    void leavesOutWhatMarkersTrack()
    {
        PanelDesk desk;
        PanelModel &model = desk.model;
        const QString kept = path("tracked.json");
        History history(&model);
        StateKeeper keeper(&model, kept);
        const auto isWritten = [&kept] {
            return QTest::qWaitFor([&] { return QFile::exists(kept); }, 2 * StateKeeper::interval);
        };
        const int number = model.addMarker(1, 20.0);
        model.setMarkerTracking(1, number, Tracking::Maximum);
        QVERIFY(isWritten());
        QVERIFY(QFile::remove(kept));

        Network swept = model.networks().first();
        swept.parameters[0].real.fill(0.1);
        swept.parameters[0].imag.fill(0.1);
        swept.parameters[0].real[7] = 0.9;
        QVERIFY(model.updateNetwork(0, swept));
        QCOMPARE(model.indexOf(*model.marker(1, number)), 7.0);
        QVERIFY(!isWritten());
        history.undo();
        QVERIFY(!model.marker(1, number));

        history.redo();
        QVERIFY(isWritten());
        QVERIFY(QFile::remove(kept));
        model.setMarkerTracking(1, number, Tracking::Off);
        QVERIFY(isWritten());
    }

private:
    QString path(const char *name) const { return m_folder.filePath(QLatin1String(name)); }
    PanelState damaged(const QByteArray &bytes) const
    {
        return PanelState(writeFile(path("bad.json"), bytes));
    }

    QTemporaryDir m_folder;
    QByteArray m_saved; ///< what init() has saved
    StimulusPlace m_place; ///< of M2 in it
};

QTEST_MAIN(PanelStateTest)
#include "tst_panelstate.moc"
