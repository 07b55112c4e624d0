// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "panelcontroller.h"

#include "filedialog.h"
#include "helpdialog.h"
#include "instrumentdialog.h"
#include "messagebar.h"
#include "panelwindow.h"
#include "settingsdialog.h"
#include "setupdialog.h"
#include "sweepbar.h"
#include "timingline.h"

#include <panel/diagrams/diagrams.h>
#include <panel/diagrams/diagramview.h>
#include <panel/diagrams/markertable.h>
#include <panel/diagrams/tracesound.h>
#include <panel/entry/displaykeys.h>
#include <panel/entry/limitkeys.h>
#include <panel/entry/markercontroller.h>
#include <panel/entry/mathkeys.h>
#include <panel/entry/numerickeys.h>
#include <panel/entry/softkey.h>
#include <panel/entry/softkeymenu.h>
#include <panel/entry/sourcekeys.h>
#include <panel/entry/tracecontroller.h>
#include <panel/files/filecontroller.h>
#include <panel/files/history.h>
#include <panel/files/setups.h>
#include <panel/ground/dialogstage.h>
#include <panel/ground/highcontrast.h>
#include <panel/ground/languages.h>
#include <panel/ground/look.h>
#include <panel/link/linksource.h>
#include <panel/model/panelmodel.h>
#include <panel/serve/panelserver.h>
#include <panel/source/sweepcontroller.h>

#include <controls/thememanager.h>
#include <widgets/menubutton.h>
#include <widgets/switchbutton.h>

#include <QBuffer>
#include <QToolButton>

namespace Panel
{

namespace
{

constexpr int s_remembered = 8;

/// A list with an entry at its head, where else it was, and no longer than what is remembered.
QStringList withFirst(const QStringList &list, const QString &first)
{
    QStringList result = list;
    result.removeAll(first);
    result.prepend(first);
    return result.mid(0, s_remembered);
}

} // namespace

PanelController::PanelController(PanelModel *model, PanelWindow *window, QObject *parent)
    : QObject(parent)
    , m_model(model)
    , m_window(window)
    , m_files(new FileController(model, this))
    , m_history(new History(model, this))
    , m_setups(new Setups(model, m_files, Setups::defaultFolder(), this))
    , m_link(new LinkSource(this))
    , m_sound(new TraceSound(model, window->diagrams(), this))
{
    makeEntry();
    connectKeys();
    connectFiles();
    connectSweep();
    connectHistory();
    addShortcuts();
}

void PanelController::makeEntry()
{
    const PanelKeys &keys = m_window->keys();
    MessageBar *bar = m_window->messageBar();
    auto *numbers = new NumericKeys(m_model, keys, this);
    connect(numbers, &NumericKeys::said, bar, &MessageBar::notify);
    new DisplayKeys(m_model, keys, this);
    new TraceController(m_model, keys, m_window->traceBar(), numbers, m_window, this);
    auto *limits = new LimitKeys(m_model, keys, numbers, this);
    connect(limits, &LimitKeys::said, bar, &MessageBar::notify);
    new MathKeys(m_model, keys, numbers, this);
    auto *markers = new MarkerController(m_model, keys, numbers, this);
    connect(markers, &MarkerController::said, bar, &MessageBar::notify);
    auto *sources = new SourceKeys(m_model, keys, this);
    connect(sources, &SourceKeys::fileRequested, this, &PanelController::showFileDialog);
    connect(sources, &SourceKeys::instrumentRequested, this, &PanelController::showInstruments);
}

void PanelController::connectKeys()
{
    const PanelKeys &keys = m_window->keys();
    connect(keys.file, &SoftKey::clicked, this, &PanelController::showFileDialog);
    connect(m_window->openButton(), &QAbstractButton::clicked, this,
            &PanelController::showFileDialog);
    connect(m_window, &PanelWindow::openRequested, this, &PanelController::showFileDialog);
    connect(keys.settings, &SoftKey::clicked, this, &PanelController::showSettings);
    connect(keys.help, &SoftKey::clicked, this, &PanelController::showHelp);
    connect(keys.screenshot, &SoftKey::clicked, this, &PanelController::takeScreenshot);
    connect(keys.timing, &SwitchButton::statusChanged, this, &PanelController::setTimingShown);
    keys.help->setValue(QStringLiteral("F1"));
    keys.screenshot->setValue(QStringLiteral("PNG"));
    addSaving();
    connect(m_window->diagrams(), &Diagrams::said, m_window->messageBar(),
            &MessageBar::showCaption);
    keys.settings->setValue(QStringLiteral("\u2026"));

    connect(m_window->markerTable(), &MarkerTable::selectionRequested, m_model,
            &PanelModel::selectMarker);
    connect(m_window->themeButton(), &QAbstractButton::clicked, Controls::ThemeManager::instance(),
            &Controls::ThemeManager::toggleTheme);
    connect(m_window->screenshotButton(), &QAbstractButton::clicked, this,
            &PanelController::takeScreenshot);
    connect(m_model->preferences(), &Preferences::changed, this, [this] {
        setHighContrast(m_model->preferences()->highContrast());
        setTraceDashes(m_model->preferences()->traceDashes());
        const QString wanted = m_model->preferences()->language();
        if (!wanted.isEmpty() && wanted != currentLanguage())
            m_window->messageBar()->notify(
                tr("The language changes with the next start of the panel."));
    });
}

void PanelController::connectFiles()
{
    MessageBar *bar = m_window->messageBar();
    connect(m_window, &PanelWindow::filesDropped, m_files, &FileController::loadFiles);
    connect(m_files, &FileController::reported, bar, &MessageBar::setMessage);
    connect(m_files, &FileController::noted, bar, &MessageBar::notify);
    connect(m_files, &FileController::changesFound, this,
            [this, bar](const QString &sentences, const QStringList &paths) {
                bar->offer(sentences, tr("Reload"), m_files,
                           [this, paths] { m_files->reloadFiles(paths); });
            });
    connect(m_files, &FileController::progressed, this,
            [this, bar](const QString &sentence, int percent) {
                bar->showProgress(sentence, percent, tr("Cancel"), m_files,
                                  [this] { m_files->cancel(); });
            });
}

void PanelController::connectSweep()
{
    auto *sweeps = new SweepController(m_model, m_link, this);
    connect(m_link, &LinkSource::said, m_window->messageBar(), &MessageBar::notify);
    connect(m_model, &PanelModel::sourceStateChanged, this, &PanelController::tellState);
    connect(sweeps, &SweepController::progressed, m_window->sweepBar(), &SweepBar::setProgress);
    connect(sweeps, &SweepController::sweepsCompleted, m_window->sweepBar(),
            &SweepBar::countSweeps);
    connect(sweeps, &SweepController::sweepsCompleted, this, &PanelController::sweepCompleted);
}

void PanelController::connectHistory()
{
    const PanelKeys &keys = m_window->keys();
    MessageBar *bar = m_window->messageBar();
    connect(m_setups, &Setups::told, bar, &MessageBar::notify);
    connect(m_setups, &Setups::failed, bar, &MessageBar::setMessage);
    connect(keys.setups, &SoftKey::clicked, this, [this] {
        if (m_listedSetups.isEmpty())
            showSetups();
    });
    connect(keys.setups, &SoftKey::choicePicked, this, [this](int index) {
        if (index == 0)
            showSetups();
        else
            m_setups->recall(m_listedSetups.value(index - 1));
    });
    connect(m_setups, &Setups::namesChanged, this, &PanelController::listSetups);
    listSetups();
    connect(keys.undo, &SoftKey::clicked, m_history, &History::undo);
    connect(keys.redo, &SoftKey::clicked, m_history, &History::redo);
    keys.undo->setValue(QStringLiteral("\u21b6"));
    keys.redo->setValue(QStringLiteral("\u21b7"));
    const auto showHistory = [this] {
        m_window->keys().undo->setEnabled(m_history->canUndo());
        m_window->keys().redo->setEnabled(m_history->canRedo());
    };
    connect(m_history, &History::changed, this, showHistory);
    showHistory();
}

void PanelController::setSoundOutput(const SoundOutputMaker &makeOutput)
{
    m_sound->setOutput(makeOutput);
}

bool PanelController::setLinkLog(const QString &path)
{
    return m_link->setLog(path);
}

QString PanelController::serve(const QString &place, QString &error)
{
    const auto screenshot = [this] {
        QByteArray bytes;
        QBuffer buffer(&bytes);
        m_window->grab().save(&buffer, "PNG");
        return bytes;
    };
    auto *server = new PanelServer(m_model, screenshot, this);
    connect(this, &PanelController::sweepCompleted, server, &PanelServer::sweepCompleted);
    QHostAddress address;
    int port = 0;
    if (parseServePlace(place, address, port) && server->listen(address, port))
        return server->place();
    error = server->errorString();
    return {};
}

/// Says what is wrong with the instrument, once, and remembers those that were there.
void PanelController::tellState()
{
    const SourceState &state = m_model->sourceState();
    MessageBar *bar = m_window->messageBar();
    if (!state.trouble.isEmpty() && state.trouble != m_trouble)
        bar->setMessage(state.phase == SourceState::Lost
                            ? tr("%1 It is tried again.").arg(state.trouble)
                            : state.trouble);
    else if (state.trouble.isEmpty() && !m_trouble.isEmpty())
        bar->setMessage({});
    m_trouble = state.trouble;
    if (state.phase == SourceState::Ready && m_model->source() == Source::Instrument) {
        Preferences *preferences = m_model->preferences();
        preferences->setInstruments(withFirst(preferences->instruments(), m_model->instrument()));
    }
}

void PanelController::showFileDialog()
{
    auto *dialog = new FileDialog(m_window);
    dialog->setFolder(m_dialogFolder.isEmpty() ? m_files->folder() : m_dialogFolder);
    dialog->resize(640, 560);
    if (m_model->source() == Source::Files && !m_model->files().isEmpty())
        dialog->offerToAdd();
    connect(dialog, &QDialog::accepted, m_files, [this, dialog] {
        if (dialog->wasAdded())
            m_files->addFiles(dialog->pickedFiles());
        else
            m_files->loadFiles(dialog->pickedFiles());
    });
    connect(dialog, &QDialog::finished, this,
            [this, dialog] { m_dialogFolder = dialog->folder(); });
    DialogStage::show(dialog, m_window);
}

void PanelController::showSettings()
{
    auto *dialog = new SettingsDialog(m_model, m_sound->isAvailable(), m_window);
    DialogStage::show(dialog, m_window);
}

void PanelController::keepSetupsBeside(const QString &stateFile)
{
    m_setups->setFolder(Setups::folderBeside(stateFile));
    listSetups();
}

void PanelController::showSetups()
{
    auto *dialog = new SetupDialog(m_setups, m_window);
    DialogStage::show(dialog, m_window);
}

/// Lists what can be recalled on the key, below what else is done with set-ups.
void PanelController::listSetups()
{
    m_listedSetups = m_setups->names();
    QStringList choices = m_listedSetups;
    if (!choices.isEmpty())
        choices.prepend(tr("Save, remove\u2026"));
    SoftKey *key = m_window->keys().setups;
    key->setChoices(choices);
    key->setChoice(-1, QStringLiteral("\u2026"));
}

void PanelController::showHelp()
{
    auto *dialog = new HelpDialog(m_sound->isAvailable(), m_window);
    DialogStage::show(dialog, m_window);
}

void PanelController::showInstruments()
{
    auto *dialog = new InstrumentDialog(m_model, m_window->sweepBar(), m_window);
    connect(dialog, &InstrumentDialog::picked, m_model, &PanelModel::setInstrument);
    dialog->resize(620, 560);
    DialogStage::show(dialog, m_window);
}

void PanelController::setTimingShown(bool shown)
{
    m_window->timingLine()->setVisible(shown);
    m_window->keys().timing->setStatus(shown);
}

} // namespace Panel
