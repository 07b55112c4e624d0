// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "panelcontroller.h"

#include "messagebar.h"
#include "panelwindow.h"
#include "timingline.h"

#include <panel/diagrams/diagrams.h>
#include <panel/diagrams/tracesound.h>
#include <panel/entry/softkey.h>
#include <panel/entry/softkeymenu.h>
#include <panel/files/history.h>
#include <panel/ground/dialogstage.h>
#include <panel/model/panelmodel.h>

#include <controls/thememanager.h>

#include <QShortcut>
#include <QToolButton>

namespace Panel
{

void PanelController::addShortcuts()
{
    const auto add = [this](const QKeySequence &keys, auto action) {
        connect(new QShortcut(keys, m_window), &QShortcut::activated, this, [this, action] {
            if (!DialogStage::isOccupied(m_window))
                action();
        });
    };
    const auto tell = [](QWidget *button, const QKeySequence &keys) {
        const QString text = keys.toString(QKeySequence::NativeText);
        if (auto *key = qobject_cast<SoftKey *>(button))
            key->setShortcutText(text);
        else
            button->setToolTip(QStringLiteral("%1 (%2)").arg(button->accessibleName(), text));
    };
    const auto ctrl = [](Qt::Key key) { return QKeySequence(int(Qt::CTRL) | int(key)); };
    add(QKeySequence::Undo, [this] { m_history->undo(); });
    add(QKeySequence::Redo, [this] { m_history->redo(); });
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
    add(Qt::Key_F4, [this] {
        Diagrams *diagrams = m_window->diagrams();
        diagrams->setLargeReading(!diagrams->largeReading());
        if (diagrams->largeReading() && !m_model->selectedMarker())
            m_window->messageBar()->notify(tr("Select a marker to read it large."));
    });
    add(Qt::Key_F5, [this] { m_sound->toggleTrace(); });
    add(Qt::Key_F11,
        [this] { m_window->setWindowState(m_window->windowState() ^ Qt::WindowFullScreen); });

    const PanelKeys &keys = m_window->keys();
    tell(keys.undo, QKeySequence::Undo);
    tell(keys.redo, QKeySequence::Redo);
    tell(keys.file, QKeySequence::Open);
    tell(keys.settings, ctrl(Qt::Key_Comma));
    tell(keys.help, Qt::Key_F1);
    tell(m_window->themeButton(), ctrl(Qt::Key_T));
    tell(m_window->lockButton(), ctrl(Qt::Key_L));
    for (QWidget *button : {static_cast<QWidget *>(keys.screenshot),
                            static_cast<QWidget *>(m_window->screenshotButton())})
        tell(button, ctrl(Qt::Key_P));
}

} // namespace Panel
