// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What is done to the panel in an hour.
#include "soakday.h"

#include <controls/thememanager.h>
#include <panel/diagrams/diagrams.h>
#include <panel/entry/softkey.h>
#include <panel/files/filecontroller.h>
#include <panel/files/history.h>
#include <panel/files/setups.h>
#include <panel/ground/languages.h>
#include <panel/touchstone/saving.h>
#include <panel/window/exports.h>
#include <panel/window/panellock.h>
#include <tests/panel/link/doubleprocess.h>

#include <QDir>
#include <QTcpSocket>
#include <QToolButton>

using namespace Panel;
using Monkey::Species;

namespace Soak
{

namespace
{

constexpr int s_touches = 60;
const QString s_setup = QStringLiteral("Soak");

} // namespace

/// Files are opened, change on disk, are read again, vanish and come back; then the sweep goes on.
void Day::openFiles()
{
    FileController *files = m_desk.controller()->fileController();
    QStringList changed, paths;
    const QObject guard;
    QObject::connect(files, &FileController::changesFound, &guard,
                     [&](const QString &, const QStringList &found) { changed << found; });
    bool isTold = false;
    QObject::connect(files, &FileController::reported, &guard,
                     [&](const QString &sentences) { isTold = !sentences.isEmpty(); });
    for (int i = 0; i < m_files.count(); ++i)
        paths << m_files.path(i);
    files->loadFiles(paths); // broken ones, too
    const auto isThere = [&] { return !files->isLoading(); };
    await(isThere, "the end of reading");
    files->loadFilesAfresh({m_files.path(1), m_files.path(2)});
    await([&] { return isThere() && model()->files().size() == 2; }, "two files");
    m_files.change(1, 3);
    await([&] { return changed.contains(m_files.path(1)); }, "a change that is noticed");
    files->reloadFiles(changed);
    await(isThere, "a file that is read again");
    isTold = false;
    m_files.change(1, 0);
    await([&] { return isTold; }, "a loss that is noticed");
    m_files.change(1, 1);
    makeStandard();
}

void Day::toggleTheme()
{
    m_desk.perform({Species::Theme});
}

/// What is on screen keeps its language, what is made anew has the other one.
void Day::speakAnother()
{
    const QVector<Language> all = languages();
    setLanguage(all.at(1 + m_hour % (int(all.size()) - 1)).code);
    m_desk.controller()->showHelp();
    expect(isOpen(), "the list of keys");
}

void Day::speakEnglish()
{
    pressEscape();
    setLanguage(languages().first().code);
}

void Day::keepSetup()
{
    auto *setups = m_desk.controller()->findChild<Setups *>();
    expect(setups->save(s_setup).isEmpty() && setups->exists(s_setup), "a set-up that is kept");
    model()->setTraceFormat(model()->traces().first().id, TraceFormat::Polar);
    m_desk.controller()->showSetups();
}

void Day::recallSetup()
{
    pressEscape();
    auto *setups = m_desk.controller()->findChild<Setups *>();
    setups->recall(s_setup);
    const auto isBack = [this] {
        return model()->traces().first().format != TraceFormat::Polar
            && model()->showsMeasurement();
    };
    await(isBack, "a set-up that comes back");
    expect(setups->remove(s_setup), "a set-up that goes");
    makeStandard();
}

/// The instrument ends in the middle of its sweeps, and comes back at the same address.
void Day::loseLink()
{
    if (!Double::isPossible())
        return;
    const auto answer = [this] {
        const QString port = m_address.section(QLatin1Char(':'), -1);
        m_instrument = std::make_unique<Double>(
            m_address.isEmpty() ? QStringLiteral("A") : QStringLiteral("A --port ") + port);
        m_address = m_instrument->address();
    };
    const auto isPhase = [this](SourceState::Phase phase) {
        return QTest::qWaitFor([=] { return model()->sourceState().phase == phase; }, patience);
    };
    answer();
    model()->setInstrument(m_address);
    model()->setSweeping(true);
    expect(isPhase(SourceState::Ready), "an instrument");
    expect(awaitSweeps(20), "its sweeps");
    m_instrument.reset();
    expect(isPhase(SourceState::Lost), "a loss");
    answer();
    expect(isPhase(SourceState::Ready), "the instrument again");
    expect(awaitSweeps(20), "its sweeps again");
    makeStandard();
    m_instrument.reset();
}

void Day::showSettings()
{
    m_desk.controller()->showSettings();
    expect(isOpen(), "the settings");
}

void Day::showFiles()
{
    m_desk.controller()->showFileDialog();
    expect(isOpen(), "the file dialog");
}

void Day::showInstruments()
{
    m_desk.controller()->showInstruments();
    expect(isOpen(), "the list of instruments");
}

void Day::pressEscape()
{
    press(Qt::Key_Escape);
    expect(!isOpen(), "the end of a dialog");
}

void Day::openKeypad()
{
    window()->keys().start->click();
    expect(isOpen(), "the keypad");
}

void Day::enterNumber()
{
    press(Qt::Key_2);
    press(Qt::Key_G);
    const auto isEntered = [this] { return !isOpen() && model()->sweep().start == 2e9; };
    await(isEntered, "the number entered");
    closeAll();
    makeStandard();
}

void Day::exportAll()
{
    const QString folder = m_files.pictures();
    QDir().mkpath(folder);
    const auto path = [&folder](const char *name) {
        return QDir(folder).filePath(QLatin1String(name));
    };
    m_desk.controller()->takeScreenshot();
    DiagramView *view = window()->diagrams()->activeView();
    expect(saveDiagram(view, path("diagram.pdf")).isEmpty(), "a PDF");
    expect(saveDiagram(view, path("diagram.svg")).isEmpty(), "an SVG");
    expect(saveNetwork(path("data.s1p"), model()->networks().first()).isEmpty(), "Touchstone");
    expect(saveNetwork(path("data.csv"), model()->networks().first()).isEmpty(), "CSV");
    expect(QDir(folder).entryList(QDir::Files).size() == 5, "five files");
    expect(QDir(folder).removeRecursively(), "their end");
}

void Day::shrink()
{
    m_desk.perform({Species::Resize, 800, 480});
}

void Day::restoreSize()
{
    m_desk.perform({Species::Resize, 1280, 800});
    m_desk.perform({Species::Resize, 1024, 600});
}

void Day::hide()
{
    m_desk.perform({Species::HideAndShow, 1});
    expect(!window()->isVisible(), "a hidden window");
}

void Day::minimise()
{
    m_desk.perform({Species::HideAndShow, 2});
}

void Day::show()
{
    m_desk.perform({Species::Show});
    expect(window()->isVisible() && !window()->isMinimized(), "a window");
}

void Day::lock()
{
    const bool locked = window()->lock()->isLocked();
    m_desk.perform({Species::Lock});
    expect(window()->lock()->isLocked() != locked, "the other state of the lock");
}

void Day::setMarkers()
{
    const int trace = model()->traces().last().id;
    for (int i = 0; i < 2; ++i) {
        const int number = model()->addMarker(trace, 50.0 + 100.0 * i);
        expect(number > 0, "a marker");
        model()->setMarkerTracking(trace, number, i % 2 ? Tracking::Maximum : Tracking::Minimum);
        QTest::qWait(History::pause + 50); // a step of its own
    }
}

void Day::undoMarkers()
{
    auto *history = m_desk.controller()->findChild<History *>();
    const int before = int(model()->markers().size());
    history->undo();
    expect(model()->markers().size() < before, "markers that go again");
    history->redo();
    for (const Marker &marker : QVector<Marker>(model()->markers()))
        model()->removeMarker(marker.trace, marker.number);
    makeStandard();
}

void Day::addTraces()
{
    for (int format = 0; format < traceFormatCount; ++format) {
        const int id = model()->addTrace(model()->traces().first().id);
        model()->setTraceFormat(id, TraceFormat(format));
        model()->storeMemory(id);
        model()->setTraceMath(id, TraceMath(format % traceMathCount));
        model()->setSmoothing(id, format);
    }
    expect(model()->traces().size() > traceFormatCount, "traces");
}

void Day::removeTraces()
{
    while (model()->traces().size() > 2)
        model()->removeTrace(model()->traces().last().id);
    makeStandard();
}

/// Some sweeps of the panel's own simulation, in its thread.
void Day::sweepByItself()
{
    model()->setSweeping(true);
    expect(awaitSweeps(30), "its own sweeps");
    model()->setSweeping(false);
}

void Day::askAsScript()
{
    QTcpSocket script;
    script.connectToHost(m_place.section(QLatin1Char(':'), 0, 0),
                         m_place.section(QLatin1Char(':'), 1).toUShort());
    for (const char *question : {"*IDN?\n", "SENS:SWE:POIN?\n"}) {
        const auto isConnected = [&] { return script.state() == QTcpSocket::ConnectedState; };
        await(isConnected, "a connection");
        script.write(question);
        await([&] { return script.canReadLine(); }, "an answer");
        script.readAll();
    }
}

/// Taps, drags, keys and fingers wherever they fall: the same in each hour, because a panel makes its
/// lists and read-outs when they are first wanted, and others would want others.
void Day::playAround()
{
    Monkey::Random random(m_seed);
    for (int i = 0; i < s_touches; ++i) {
        const Monkey::Event event = m_desk.draw(random);
        if (event.species <= Species::Key || event.species == Species::Show)
            m_desk.perform(event);
    }
    makeStandard();
}

} // namespace Soak
