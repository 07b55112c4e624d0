// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "monkeypanel.h"

#include "census.h"

#include <controls/thememanager.h>
#include <panel/files/filecontroller.h>
#include <panel/files/samples.h>
#include <panel/ground/dialogstage.h>
#include <panel/ground/languages.h>
#include <panel/window/filedialog.h>
#include <panel/window/panellock.h>

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QTimer>
#include <QToolButton>

#include <utility>

namespace Monkey
{

namespace
{

constexpr int maximumPoints = 20001;

/// Also what the panel's own thread of a file or a sweep has handed over.
void settle()
{
    for (int i = 0; i < 2; ++i)
        QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace

Desk::Desk(Files *files)
    : m_files(files)
{
    makePanel();
}

Desk::~Desk() = default;

void Desk::makePanel(const Panel::PanelState *state)
{
    if (!m_model) {
        m_model = std::make_unique<Panel::PanelModel>();
        countChanges();
    }
    m_window = std::make_unique<Panel::PanelWindow>(m_model.get());
    m_controller = std::make_unique<Panel::PanelController>(m_model.get(), m_window.get());
    m_model->preferences()->setExportFolder(m_files->pictures());
    m_window->resize(1024, 600);
    if (state && !state->files().isEmpty())
        m_controller->fileController()->openFiles(state->files());
    if (m_model->networks().isEmpty())
        m_controller->fileController()->openFiles({Panel::startSample()});
    if (state)
        state->restore(m_model.get());
    m_window->show();
    m_window->activateWindow();
    settle();
}

void Desk::destroyPanel(bool withModel)
{
    m_controller.reset();
    m_window.reset();
    if (withModel)
        m_model.reset();
}

void Desk::dropPanel(const Event &event)
{
    // At once, from the event loop, or from the event loop in the middle of a tap.
    const QPointer<QWindow> window = windowOf(event.behind);
    if (event.a == 0)
        destroyPanel(event.b);
    else
        QTimer::singleShot(0, qApp, [this, event] { destroyPanel(event.b); });
    if (event.a == 2 && window && !isPointerDown()) {
        const QPoint middle(window->width() / 2, window->height() / 2);
        QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, middle);
        m_pressed = true;
    }
    settle();
    if (m_window) // the timer may still be on its way
        destroyPanel(event.b);
    makePanel();
    QDir(m_files->pictures()).removeRecursively();
}

void Desk::restart(const Event &event)
{
    const bool saved = Panel::PanelState::save(*m_model, m_files->state());
    destroyPanel(true);
    settle();
    if (event.a > 0)
        m_files->damageState(event.a, event.b);
    const Panel::PanelState state(m_files->state());
    if (!saved)
        m_broken << QStringLiteral("the state could not be saved");
    else if (event.a == 0 && !state.note().isEmpty())
        m_broken << QStringLiteral("what was saved is refused: ") + state.note();
    if (!state.language().isEmpty())
        Panel::setLanguage(state.language());
    makePanel(&state);
}

QStringList Desk::takeBroken()
{
    return std::exchange(m_broken, {});
}

QStringList Desk::dropAndCount()
{
    static const Fuzz::Census census = [this] {
        destroyPanel(true);
        settle();
        return Fuzz::Census();
    }();
    releasePointer();
    destroyPanel(true);
    // What a thread of its own deletes may need a moment.
    QElapsedTimer timer;
    timer.start();
    QStringList left;
    do {
        settle();
        left = census.grown();
    } while (!left.isEmpty() && timer.elapsed() < 2000);
    makePanel();
    return left;
}

QWidget *Desk::front(bool behind) const
{
    if (QWidget *popup = QApplication::activePopupWidget())
        return popup;
    QWidget *modal = QApplication::activeModalWidget();
    return modal && !behind ? modal : m_window.get();
}

QWindow *Desk::windowOf(bool behind) const
{
    const QWidget *widget = front(behind);
    return widget ? widget->windowHandle() : nullptr;
}

void Desk::key(const Event &event)
{
    QPointer<QWindow> window = QGuiApplication::focusWindow();
    if (!window)
        window = windowOf(false);
    const auto modifiers = Qt::KeyboardModifiers(QFlag(event.b));
    const QString text =
        event.a >= Qt::Key_Space && event.a <= Qt::Key_AsciiTilde && modifiers == Qt::NoModifier
        ? QString(QChar(event.a)).toLower()
        : QString();
    if (window)
        QTest::sendKeyEvent(QTest::Press, window, Qt::Key(event.a), text, modifiers);
    if (!window) // a key comes up where the focus has gone
        window = windowOf(false);
    if (window)
        QTest::sendKeyEvent(QTest::Release, window, Qt::Key(event.a), text, modifiers);
}

/// What happens around the panel, and not by a hand on it.
void Desk::host(const Event &event)
{
    switch (event.species) {
    case Species::Resize:
        m_window->resize(event.a, event.b);
        break;
    case Species::HideAndShow:
        if (event.a == 2)
            m_window->showMinimized();
        else
            m_window->hide();
        if (event.a == 0) {
            settle();
            m_window->show();
        }
        break;
    case Species::Show:
        m_window->showNormal();
        m_window->activateWindow();
        break;
    case Species::Theme:
        Controls::ThemeManager::instance()->toggleTheme();
        break;
    case Species::Language:
        Panel::setLanguage(Panel::languages().at(event.a).code);
        settle();
        // What widgets do not say anew by themselves is of the language of the panel's start.
        destroyPanel(false);
        makePanel();
        break;
    case Species::Lock:
        m_window->lockButton()->toggle();
        break;
    case Species::Load: {
        QStringList paths;
        for (int i = 0; i < m_files->count(); ++i) {
            if (event.a & (1 << i))
                paths << m_files->path(i);
        }
        m_controller->fileController()->loadFiles(paths);
        break;
    }
    case Species::ChangeFile:
        m_files->change(event.a, event.b);
        break;
    case Species::Sweep: {
        Panel::Sweep sweep = m_model->sweep();
        sweep.points = event.b;
        m_model->setSweep(sweep);
        m_model->setSource(Panel::Source(event.a + 1));
        break;
    }
    case Species::DropPanel:
        dropPanel(event);
        break;
    case Species::Restart:
        restart(event);
        break;
    case Species::Wait:
        QTest::qWait(event.a);
        break;
    default:
        break;
    }
}

/// More than this would test the machine's patience, or its other files.
void Desk::keepBounds()
{
    Panel::Sweep sweep = m_model->sweep();
    if (sweep.points > maximumPoints) {
        sweep.points = maximumPoints;
        m_model->setSweep(sweep);
    }
    auto *dialog = m_window->findChild<Panel::FileDialog *>();
    if (dialog && !dialog->folder().startsWith(m_files->folder())
        && dialog->folder() != Panel::sampleFolder())
        dialog->setFolder(m_files->folder());
}

void Desk::countChanges()
{
    using Panel::PanelModel;
    const PanelModel *model = m_model.get();
    const auto count = [this](const char *what) {
        return [this, what] {
            ++m_changes;
            m_lastChange = what;
        };
    };
    QObject::connect(model, &PanelModel::networksChanged, model, [this] { ++m_loads; });
    for (const auto signal : {&PanelModel::markerAdded, &PanelModel::markerRemoved})
        QObject::connect(model, signal, model, count("a marker"));
    QObject::connect(model, &PanelModel::markerMoved, model,
                     [model, moved = count("a marker")](int trace, int number) {
                         // One that tracks a maximum goes where the next sweep has it.
                         const Panel::Marker *marker = model->marker(trace, number);
                         if (marker && marker->tracking == Panel::Tracking::Off)
                             moved();
                     });
    QObject::connect(model, &PanelModel::zoomChanged, model, count("a zoom"));
    QObject::connect(model, &PanelModel::traceScaleChanged, model, count("a scale"));
    QObject::connect(model, &PanelModel::traceVisibleChanged, model, count("a visible trace"));
    QObject::connect(model, &PanelModel::memoryChanged, model, count("a memory"));
    QObject::connect(model->viewSettings(), &Panel::ViewSettings::changed, model,
                     count("the view"));
    QObject::connect(model->preferences(), &Panel::Preferences::changed, model,
                     count("the preferences"));
    QObject::connect(Controls::ThemeManager::instance(), &Controls::ThemeManager::themeChanged,
                     model, count("the theme"));
}

void Desk::perform(const Event &event)
{
    const auto isLocked = [this] { return m_window->lock()->isLocked(); };
    const bool byHand = event.species <= Species::Key && !isPointerDown();
    // A dialog or a list that was open before the host locked is left to the hand.
    const bool locked = byHand && isLocked() && !QApplication::activeModalWidget()
        && !QApplication::activePopupWidget() && !Panel::DialogStage::isOccupied(m_window.get());
    const int changes = m_changes, loads = m_loads;
    switch (event.species) {
    case Species::Tap:
    case Species::DoubleTap:
    case Species::Press:
    case Species::Move:
    case Species::Release:
        mouse(event);
        break;
    case Species::TouchPress:
    case Species::TouchMove:
    case Species::TouchSecond:
    case Species::TouchSpread:
    case Species::TouchRelease:
    case Species::TouchCancel:
        touch(event);
        break;
    case Species::Wheel:
        wheel(event);
        break;
    case Species::Key:
        key(event);
        break;
    default:
        host(event);
        break;
    }
    settle();
    // A file whose reading ends meanwhile takes zooms and scales of its own along.
    if (locked && isLocked() && m_changes != changes && m_loads == loads)
        m_broken
            << QStringLiteral("a locked panel has changed: %1").arg(QLatin1String(m_lastChange));
    keepBounds();
}

} // namespace Monkey
