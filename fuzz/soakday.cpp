// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The course of an hour; what is done in it stands in soakdeeds.cpp.
#include "soakday.h"

#include "process.h"
#include "soakfigures.h"

#include <panel/diagrams/diagrams.h>
#include <panel/diagrams/diagramview.h>
#include <panel/entry/numericdialog.h>
#include <panel/files/filecontroller.h>
#include <panel/ground/dialogstage.h>
#include <panel/ground/languages.h>
#include <panel/window/panellock.h>
#include <plot/qcp.h>
#include <tests/panel/link/doubleprocess.h>

#include <QApplication>
#include <QDialog>
#include <QDir>

#include <cstdio>
#include <utility>

using namespace Panel;
using Monkey::Species;

namespace Soak
{

const Day::Deed Day::deeds[] = {
    {"sweeping", &Day::none, &Day::none},
    {"files", &Day::openFiles, &Day::none},
    {"theme", &Day::toggleTheme, &Day::toggleTheme},
    {"language", &Day::speakAnother, &Day::speakEnglish},
    {"set-up", &Day::keepSetup, &Day::recallSetup},
    {"link", &Day::loseLink, &Day::none},
    {"settings", &Day::showSettings, &Day::pressEscape},
    {"file dialog", &Day::showFiles, &Day::pressEscape},
    {"instruments", &Day::showInstruments, &Day::pressEscape},
    {"keypad", &Day::openKeypad, &Day::enterNumber},
    {"export", &Day::exportAll, &Day::none},
    {"small window", &Day::shrink, &Day::restoreSize},
    {"hidden", &Day::hide, &Day::show},
    {"minimised", &Day::minimise, &Day::show},
    {"lock", &Day::lock, &Day::lock},
    {"markers", &Day::setMarkers, &Day::undoMarkers},
    {"traces", &Day::addTraces, &Day::removeTraces},
    {"own sweeps", &Day::sweepByItself, &Day::none},
    {"script", &Day::askAsScript, &Day::none},
    {"hand", &Day::playAround, &Day::none},
};

Day::Day(std::uint64_t seed, int frames)
    : m_desk(&m_files)
    , m_seed(seed)
    , m_standard(m_files.state() + QStringLiteral(".usual"))
    , m_frames(frames)
{
    adopt();
    m_desk.controller()->fileController()->openFiles({m_files.path(0), m_files.path(2)});
    model()->setSweeping(false);
    model()->setSource(Source::Antenna);
    await([this] { return model()->showsMeasurement(); }, "the first measurement");
    for (int i = 0; i < 3; ++i)
        model()->addMarker(model()->traces().first().id, 100.0 + 250.0 * i);
    expect(PanelState::save(*model(), m_standard), "the state is kept");
    m_costs.reserve(frames);
    measure();
}

Day::~Day()
{
    m_keeper.reset(); // before the model that it follows
}

void Day::expect(bool holds, const char *what)
{
    if (holds)
        return;
    const SourceState &state = model()->sourceState();
    m_broken << QStringLiteral("hour %1, %2: missing: %3 (source in phase %4, %5)")
                    .arg(m_hour)
                    .arg(QLatin1String(m_deed), QLatin1String(what))
                    .arg(state.phase)
                    .arg(state.trouble.isEmpty() ? m_address : state.trouble);
    std::fprintf(stderr, "soak: %s\n", qUtf8Printable(m_broken.last()));
}

QStringList Day::takeBroken()
{
    QStringList broken = m_desk.takeBroken() + std::exchange(m_broken, {});
    for (const QString &warning : Fuzz::takeWarnings())
        broken << QStringLiteral("hour %1: %2").arg(m_hour).arg(warning);
    return broken;
}

/// What the program does for a new panel beside showing it.
void Day::adopt()
{
    m_desk.controller()->keepSetupsBeside(m_files.state());
    QString error;
    m_place = m_desk.controller()->serve(QStringLiteral("127.0.0.1:0"), error);
    expect(!m_place.isEmpty(), "a port for scripts");
    QObject::connect(m_desk.controller(), &PanelController::sweepCompleted, m_desk.controller(),
                     [this] { ++m_delivered; });
    m_keeper = std::make_unique<StateKeeper>(model(), m_files.state());
}

void Day::restart()
{
    m_deed = "restart";
    const QVector<Language> all = languages();
    for (int i = 1; i <= all.size(); ++i) {
        const QString code = all.at(i % int(all.size())).code;
        model()->preferences()->setLanguage(code);
        m_keeper.reset();
        m_desk.perform({Species::Restart});
        adopt();
        expect(currentLanguage() == code, "its language");
        await([this] { return model()->showsMeasurement(); }, "a measurement");
        model()->setSweeping(false);
        measure();
        playFrames(20);
    }
    makeStandard();
}

void Day::playHour()
{
    ++m_hour;
    m_costs.clear();
    m_drawn = m_delivered = 0;
    const int count = int(std::size(deeds));
    int played = 0;
    for (const Deed &deed : deeds) {
        m_deed = deed.name;
        (this->*deed.begin)();
        playFrames(m_frames / count + (played < m_frames % count ? 1 : 0));
        (this->*deed.end)();
        ++played;
    }
    m_deed = "end of the hour";
    makeStandard();
    // The history and the keeper of the state wait for quiet.
    QTest::qWait(StateKeeper::interval + 200);
}

/// Measures from now on what the model has for a sweep.
void Day::measure()
{
    m_sweep =
        std::make_unique<ProgressiveSweep>(Source::Antenna, model()->sweep(), model()->tuning());
    for (DiagramView *view : window()->diagrams()->allViews()) {
        QObject::disconnect(view->plot(), &QCustomPlot::afterReplot, window(), nullptr);
        QObject::connect(view->plot(), &QCustomPlot::afterReplot, window(), [this] { ++m_drawn; });
    }
}

/*! Sweeps of an antenna, as the panel's own simulation measures them and as SweepController hands
    them to the model, but one after the other: the simulation itself waits for a display. */
void Day::playFrames(int count)
{
    for (int i = 0; i < count; ++i) {
        m_sweep->advance(model()->sweep().points);
        const double start = Fuzz::cpuMilliseconds();
        const bool taken = model()->updateNetwork(0, m_sweep->frame());
        for (int round = 0; round < 2; ++round)
            QCoreApplication::processEvents();
        m_costs << Fuzz::cpuMilliseconds() - start;
        if (!taken) {
            expect(false, "a frame that is taken");
            return;
        }
    }
}

bool Day::awaitSweeps(int count)
{
    const int wanted = m_delivered + count;
    return QTest::qWaitFor([&] { return m_delivered >= wanted; }, patience);
}

bool Day::isOpen() const
{
    return QApplication::activePopupWidget() || QApplication::activeModalWidget()
        || DialogStage::isOccupied(window()) || window()->findChild<NumericDialog *>();
}

void Day::press(Qt::Key key)
{
    m_desk.perform({Species::Key, key});
}

void Day::closeAll()
{
    if (m_desk.isPointerDown()) {
        m_desk.perform({Species::Release});
        m_desk.perform({Species::TouchRelease});
    }
    m_desk.perform({Species::Show});
    for (int i = 0; i < 8 && isOpen(); ++i) {
        if (QWidget *popup = QApplication::activePopupWidget())
            popup->close();
        else if (i < 4)
            press(Qt::Key_Escape);
        else // the keyboard may be elsewhere
            for (QDialog *dialog : window()->findChildren<QDialog *>())
                dialog->reject();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    expect(!isOpen(), "the end of all dialogs");
}

/// The same files, state and window each time, so that hours can be compared.
void Day::makeStandard()
{
    closeAll();
    if (window()->lock()->isLocked())
        m_desk.perform({Species::Lock});
    m_desk.perform({Species::Resize, 1024, 600});
    QDir(m_files.pictures()).removeRecursively();
    setLanguage(languages().first().code);
    model()->setSweeping(false);
    model()->setSource(Source::Files);
    FileController *files = m_desk.controller()->fileController();
    files->cancel();
    files->loadFilesAfresh({m_files.path(0), m_files.path(2)});
    await([&] { return !files->isLoading() && model()->files().size() == 2; }, "the usual files");
    const PanelState state(m_standard);
    expect(state.fault() == PanelState::NoFault, "the kept state");
    state.restore(model());
    await([this] { return model()->source() == Source::Antenna && model()->showsMeasurement(); },
          "the usual measurement");
    model()->setSweeping(false);
    model()->preferences()->setInstruments({});
    model()->preferences()->setLanguage(languages().first().code);
    model()->preferences()->setExportFolder(m_files.pictures());
    for (int i = 0; i < 4; ++i)
        QCoreApplication::processEvents();
    measure();
}

} // namespace Soak
