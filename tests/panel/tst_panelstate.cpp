// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desk.h"

#include <controls/thememanager.h>
#include <panel/files/panelstate.h>

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
        desk.controller.openFiles({path("a.s2p")});
        ThemeManager::instance()->setTheme(ThemeManager::Light);
        ViewSettings *view = desk.model.viewSettings();
        view->layoutProfile()->setLayoutType(Graph::LayoutType::Quad);
        view->setGridMode(SmithChartPlot::Admittance);
        view->setDensity(SmithChart::Basic);
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
        desk.controller.setScreenshotFolder(path("pictures"));
        QVERIFY(PanelState(path("state.ini")).save(desk.model, desk.controller, "de"_s));
        m_saved = read(path("state.ini"));
        ThemeManager::instance()->setTheme(ThemeManager::Dark);
    }

    void cleanup()
    {
        ThemeManager::instance()->setTheme(ThemeManager::Dark);
        TestCase::cleanup();
    }

    void comesBack()
    {
        const PanelState state(path("state.ini"));
        QCOMPARE(state.note(), QString());
        QCOMPARE(state.language(), "de"_s);
        QCOMPARE(state.files(), QStringList{path("a.s2p")});

        PanelDesk desk;
        desk.controller.openFiles(state.files());
        state.restore(&desk.model, &desk.controller);
        QVERIFY(ThemeManager::instance()->isLightTheme());
        const ViewSettings *view = desk.model.viewSettings();
        QCOMPARE(view->diagramLayout(), Graph::LayoutType::Quad);
        QCOMPARE(view->gridMode(), SmithChartPlot::Admittance);
        QCOMPARE(view->density(), SmithChart::Basic);
        QCOMPARE(view->readoutFormat(), ReadoutFormat::Vswr);
        QVERIFY(view->onlyActiveTrace());
        const Trace *trace = desk.model.trace(2);
        QCOMPARE(PanelModel::parameterName(*trace), "S21"_s);
        QVERIFY(trace->format == TraceFormat::Phase && trace->scale == (Scale{30.0, 90.0}));
        QCOMPARE(desk.model.activeTrace(), trace);
        QVERIFY(!desk.model.trace(3)->visible);
        QCOMPARE(desk.model.markers().size(), 2);
        QVERIFY(qAbs(desk.model.marker(2, 2)->index - 20.0) < 1e-6);
        QCOMPARE(desk.model.referenceMarker(2), desk.model.marker(2, 2));
        QCOMPARE(desk.controller.screenshotFolder(), path("pictures"));

        // Other files: what belongs to the traces stays away, the rest comes.
        PanelDesk other;
        other.controller.openFiles({sampleFolder() + "/antenna.s1p"_s});
        state.restore(&other.model, &other.controller);
        QVERIFY(other.model.markers().isEmpty());
        QCOMPARE(other.model.viewSettings()->gridMode(), SmithChartPlot::Admittance);
    }

    void refusesWhatIsNoState()
    {
        for (const auto &[before, after] : {std::pair("version=1\n", "version=2\n"),
                                            {"version=1\n", "\n"},
                                            {"grid=1", "grid=3"},
                                            {"layout=3", "layout=-1"},
                                            {"language=de", "language=tlh"},
                                            {"1\\format=0", "1\\format=9"},
                                            {"1\\scale=1", "1\\scale=nan"},
                                            {"hertz=", "hertz=no"},
                                            {"1\\number=1", "1\\number=99"},
                                            {"size=4", "size=-4"}}) {
            const Row row(QString::fromLatin1(after));
            QVERIFY2(m_saved.contains(before), m_saved.constData());
            const PanelState state = damaged(QByteArray(m_saved).replace(before, after));
            const bool isOther = QLatin1String(after) == "version=2\n"_s;
            QVERIFY2(state.note().contains(isOther ? "version"_s : "damaged"_s),
                     qPrintable(state.note()));
            QVERIFY(state.files().isEmpty() && state.language().isEmpty());
        }
    }

    void survivesDamage()
    {
        PanelDesk desk;
        for (int size = 0; size < m_saved.size(); size += 17)
            damaged(m_saved.left(size)).restore(&desk.model, &desk.controller);
        for (int i = 0; i < m_saved.size(); i += 11) {
            QByteArray bytes = m_saved;
            bytes[i] = char(bytes.at(i) ^ (1 + i % 255));
            damaged(bytes).restore(&desk.model, &desk.controller);
        }
        for (const Trace &trace : desk.model.traces())
            QVERIFY(trace.scale.perDivision > 0.0);

        QVERIFY(!PanelState(m_folder.path()).note().isEmpty()); // a folder
        // What is saved later replaces it.
        for (const QByteArray &bad :
             {QByteArray(2 << 20, '#'), "[traces\nno line of ours\n" + m_saved}) {
            const PanelState refused = damaged(bad);
            QVERIFY(!refused.note().isEmpty());
            QVERIFY(refused.save(desk.model, desk.controller, "de"_s));
            QCOMPARE(PanelState(path("bad.ini")).language(), "de"_s);
        }
        QCOMPARE(read(path("bad.ini.damaged")), QByteArray(2 << 20, '#')); // the first one is kept
        QCOMPARE(PanelState(path("none.ini")).note(), QString());
        writeFile(path("file"), {});
        QVERIFY(!PanelState(path("file/state.ini")).save(desk.model, desk.controller, "en"_s));
    }

private:
    QString path(const char *name) const { return m_folder.filePath(QLatin1String(name)); }
    PanelState damaged(const QByteArray &bytes) const
    {
        return PanelState(writeFile(path("bad.ini"), bytes));
    }

    QTemporaryDir m_folder;
    QByteArray m_saved; ///< what init() has saved
};

QTEST_MAIN(PanelStateTest)
#include "tst_panelstate.moc"
