// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desk.h"
#include "vnatest.h"

#include <controls/thememanager.h>
#include <panel/look.h>
#include <panel/panelstate.h>

#include <QTemporaryDir>

using namespace Panel;

namespace
{

QByteArray read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

} // namespace

class PanelStateTest : public VnaTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { setUpApplication(); }
    void init();
    void comesBack();
    void refusesWhatIsNoState_data();
    void refusesWhatIsNoState();
    void survivesDamage();

private:
    QString path(const char *name) const { return m_folder.filePath(QLatin1String(name)); }

    QTemporaryDir m_folder;
};

/// Saves a state in which nothing is as it is at the start.
void PanelStateTest::init()
{
    TestCase::init();
    using Controls::ThemeManager;
    PanelDesk desk;
    QFile::copy(sampleFolder() + QStringLiteral("/amplifier.s2p"), path("a.s2p"));
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
    QVERIFY(PanelState(path("state.ini")).save(desk.model, desk.controller, QStringLiteral("de")));
    ThemeManager::instance()->setTheme(ThemeManager::Dark);
}

void PanelStateTest::comesBack()
{
    const PanelState state(path("state.ini"));
    QCOMPARE(state.note(), QString());
    QCOMPARE(state.language(), QStringLiteral("de"));
    QCOMPARE(state.files(), QStringList{path("a.s2p")});

    PanelDesk desk;
    desk.controller.openFiles(state.files());
    state.restore(&desk.model, &desk.controller);
    QVERIFY(Controls::ThemeManager::instance()->isLightTheme());
    Controls::ThemeManager::instance()->setTheme(Controls::ThemeManager::Dark);
    const ViewSettings *view = desk.model.viewSettings();
    QCOMPARE(view->diagramLayout(), Graph::LayoutType::Quad);
    QCOMPARE(view->gridMode(), SmithChartPlot::Admittance);
    QCOMPARE(view->density(), SmithChart::Basic);
    QCOMPARE(view->readoutFormat(), ReadoutFormat::Vswr);
    QVERIFY(view->onlyActiveTrace());
    const Trace *trace = desk.model.trace(2);
    QCOMPARE(PanelModel::parameterName(*trace), QStringLiteral("S21"));
    QVERIFY(trace->format == TraceFormat::Phase && trace->scale == (Scale{30.0, 90.0}));
    QCOMPARE(desk.model.activeTrace(), trace);
    QVERIFY(!desk.model.trace(3)->visible);
    QCOMPARE(desk.model.markers().size(), 2);
    QVERIFY(qAbs(desk.model.marker(2, 2)->index - 20.0) < 1e-6);
    QCOMPARE(desk.model.referenceMarker(2), desk.model.marker(2, 2));
    QCOMPARE(desk.controller.screenshotFolder(), path("pictures"));

    // Other files: what belongs to the traces stays away, the rest comes.
    PanelDesk other;
    other.controller.openFiles({sampleFolder() + QStringLiteral("/antenna.s1p")});
    state.restore(&other.model, &other.controller);
    Controls::ThemeManager::instance()->setTheme(Controls::ThemeManager::Dark);
    QVERIFY(other.model.markers().isEmpty());
    QCOMPARE(other.model.viewSettings()->gridMode(), SmithChartPlot::Admittance);
}

void PanelStateTest::refusesWhatIsNoState_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<QString>("word");
    QTest::newRow("other version")
        << QByteArray("version=1") << QByteArray("version=2") << "version";
    for (const auto &[before, after] : {std::pair("version=1\n", "\n"),
                                        {"grid=1", "grid=3"},
                                        {"layout=3", "layout=-1"},
                                        {"language=de", "language=tlh"},
                                        {"1\\format=0", "1\\format=9"},
                                        {"1\\scale=1", "1\\scale=nan"},
                                        {"hertz=", "hertz=no"},
                                        {"1\\number=1", "1\\number=99"},
                                        {"size=4", "size=-4"}})
        QTest::newRow(after) << QByteArray(before) << QByteArray(after) << "damaged";
}

void PanelStateTest::refusesWhatIsNoState()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    QFETCH(QString, word);
    QByteArray bytes = read(path("state.ini"));
    QVERIFY2(bytes.contains(before), bytes.constData());
    write(path("bad.ini"), bytes.replace(before, after));
    const PanelState state(path("bad.ini"));
    QVERIFY2(state.note().contains(word), qPrintable(state.note()));
    QVERIFY(state.files().isEmpty() && state.language().isEmpty());
}

void PanelStateTest::survivesDamage()
{
    const QByteArray whole = read(path("state.ini"));
    PanelDesk desk;
    const auto tryBytes = [&](const QByteArray &bytes) {
        write(path("bad.ini"), bytes);
        const PanelState state(path("bad.ini"));
        state.restore(&desk.model, &desk.controller);
    };
    for (int size = 0; size < whole.size(); size += 17)
        tryBytes(whole.left(size));
    QByteArray bytes = whole;
    for (int i = 0; i < whole.size(); i += 11) {
        bytes[i] = char(whole.at(i) ^ (1 + i % 255));
        tryBytes(bytes);
        bytes[i] = whole.at(i);
    }
    Controls::ThemeManager::instance()->setTheme(Controls::ThemeManager::Dark);
    for (const Trace &trace : desk.model.traces())
        QVERIFY(trace.scale.perDivision > 0.0);

    QVERIFY(!PanelState(m_folder.path()).note().isEmpty()); // a folder
    write(path("bad.ini"), QByteArray(2 << 20, '#'));
    QVERIFY(!PanelState(path("bad.ini")).note().isEmpty());
    // What is saved later replaces it.
    for (const QByteArray &bad : {QByteArray(2 << 20, '#'), "[traces\nno line of ours\n" + whole}) {
        write(path("bad.ini"), bad);
        const PanelState refused(path("bad.ini"));
        QVERIFY(!refused.note().isEmpty());
        QVERIFY(refused.save(desk.model, desk.controller, QStringLiteral("de")));
        QCOMPARE(PanelState(path("bad.ini")).language(), QStringLiteral("de"));
    }
    QCOMPARE(PanelState(path("none.ini")).note(), QString());
    write(path("file"), {});
    QVERIFY(!PanelState(path("file/state.ini"))
                 .save(desk.model, desk.controller, QStringLiteral("en")));
}

QTEST_MAIN(PanelStateTest)
#include "tst_panelstate.moc"
