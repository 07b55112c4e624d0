// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "panelcontroller.h"

#include "helpdialog.h"
#include "languages.h"
#include "messagebar.h"
#include "panelwindow.h"
#include "screenshot.h"
#include "settingsdialog.h"
#include "sweepbar.h"
#include "timingline.h"
#include <panel/entry/diagramcontroller.h>
#include <panel/entry/markercontroller.h>
#include <panel/entry/numerickeys.h>
#include <panel/entry/softkey.h>
#include <panel/entry/softkeymenu.h>
#include <panel/entry/tracecontroller.h>
#include <panel/files/filecontroller.h>
#include <panel/model/panelmodel.h>
#include <panel/source/sweepcontroller.h>

#include <controls/thememanager.h>
#include <widgets/lockwidget.h>
#include <widgets/switchbutton.h>

#include <QDir>
#include <QShortcut>
#include <QToolButton>

namespace Panel
{

PanelController::PanelController(PanelModel *model, PanelWindow *window, QObject *parent)
    : QObject(parent)
    , m_model(model)
    , m_window(window)
    , m_sweeps(new SweepController(model, window, this))
    , m_files(new FileController(model, window, this))
    , m_screenshotFolder(Panel::screenshotFolder())
    , m_language(currentLanguage())
{
    auto *numbers = new NumericKeys(model, window, m_sweeps, this);
    new DiagramController(model, window, this);
    new TraceController(model, window, numbers, this);
    new MarkerController(model, window, numbers, this);
    connectKeys();
    connectSweep();
    addShortcuts();
}

void PanelController::connectKeys()
{
    const PanelKeys &keys = m_window->keys();
    connect(keys.file, &SoftKey::clicked, this, &PanelController::showFileDialog);
    connect(m_window->emptyPageButton(), &QAbstractButton::clicked, this,
            &PanelController::showFileDialog);
    connect(keys.settings, &SoftKey::clicked, this, &PanelController::showSettings);
    connect(keys.help, &SoftKey::clicked, this, &PanelController::showHelp);
    connect(keys.screenshot, &SoftKey::clicked, this, &PanelController::takeScreenshot);
    connect(keys.timing, &SwitchButton::statusChanged, this, &PanelController::setTimingShown);
    keys.help->setValue(QStringLiteral("F1"));
    keys.screenshot->setValue(QStringLiteral("PNG"));
    keys.settings->setValue(QStringLiteral("\u2026"));

    connect(m_window->themeButton(), &QAbstractButton::clicked, Controls::ThemeManager::instance(),
            &Controls::ThemeManager::toggleTheme);
    connect(m_window->screenshotButton(), &QAbstractButton::clicked, this,
            &PanelController::takeScreenshot);
    connect(m_window->lockButton(), &QAbstractButton::toggled, this,
            &PanelController::setLockShown);
}

void PanelController::connectSweep()
{
    connect(m_sweeps, &SweepController::fileRequested, this, &PanelController::showFileDialog);
    connect(m_sweeps, &SweepController::progressed, m_window->sweepBar(), &SweepBar::setProgress);
    connect(m_sweeps, &SweepController::sweepCompleted, m_window->sweepBar(),
            &SweepBar::countSweep);
}

void PanelController::addShortcuts()
{
    const auto add = [this](const QKeySequence &keys, auto action) {
        connect(new QShortcut(keys, m_window), &QShortcut::activated, this, action);
    };
    const auto ctrl = [](Qt::Key key) { return QKeySequence(int(Qt::CTRL) | int(key)); };
    add(QKeySequence::Open, [this] { showFileDialog(); });
    add(QKeySequence::Quit, [this] { m_window->close(); });
    add(ctrl(Qt::Key_T), [] { Controls::ThemeManager::instance()->toggleTheme(); });
    add(ctrl(Qt::Key_L), [this] { m_window->lockButton()->toggle(); });
    add(ctrl(Qt::Key_P), [this] { takeScreenshot(); });
    add(ctrl(Qt::Key_Comma), [this] { showSettings(); });
    add(ctrl(Qt::Key_PageDown), [this] { m_window->softKeys()->turnPage(1); });
    add(ctrl(Qt::Key_PageUp), [this] { m_window->softKeys()->turnPage(-1); });
    add(Qt::Key_F1, [this] { showHelp(); });
    add(Qt::Key_F3, [this] { setTimingShown(m_window->timingLine()->isHidden()); });
    add(Qt::Key_F11,
        [this] { m_window->setWindowState(m_window->windowState() ^ Qt::WindowFullScreen); });
}

bool PanelController::openFiles(const QStringList &paths)
{
    return m_files->openFiles(paths);
}

void PanelController::showFileDialog()
{
    m_files->showFileDialog();
}

void PanelController::showSettings()
{
    auto *dialog = new SettingsDialog(m_model, m_window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setLanguage(m_language);
    connect(dialog, &SettingsDialog::languagePicked, this, [this](const QString &code) {
        m_language = code;
        if (code != currentLanguage())
            m_window->messageBar()->setMessage(
                tr("The language changes with the next start of the panel."));
    });
    dialog->setScreenshotFolder(m_screenshotFolder);
    connect(dialog, &SettingsDialog::screenshotFolderPicked, this,
            &PanelController::setScreenshotFolder);
    dialog->open();
}

void PanelController::showHelp()
{
    auto *dialog = new HelpDialog(m_window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

void PanelController::takeScreenshot()
{
    const Screenshot screenshot = saveScreenshot(m_window, m_screenshotFolder);
    m_window->messageBar()->setMessage(
        screenshot.error.isEmpty()
            ? tr("The screenshot is %1.").arg(QDir::toNativeSeparators(screenshot.path))
            : screenshot.error);
}

void PanelController::setLockShown(bool shown)
{
    m_window->lockButton()->setChecked(shown);
    m_window->lock()->setScreenLockEnable(shown);
}

void PanelController::setTimingShown(bool shown)
{
    m_window->timingLine()->setVisible(shown);
    m_window->keys().timing->setStatus(shown);
}

} // namespace Panel
