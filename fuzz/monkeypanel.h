// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "monkeyevents.h"
#include "monkeyfiles.h"

#include <panel/files/panelstate.h>
#include <panel/model/panelmodel.h>
#include <panel/window/panelcontroller.h>
#include <panel/window/panelwindow.h>
#include <tests/shared/pointer.h>

#include <memory>

namespace Monkey
{

/*! A panel and the hand on it: makes happen what an event says, through the window, as the platform
    would. An event that has no sense where things stand does nothing, so that every part of a log
    can be replayed alone. */
class Desk
{
public:
    explicit Desk(Files *files);
    ~Desk();

    void perform(const Event &event);
    /// The next event, which fits what is on the screen.
    Event draw(Random &random) const;

    Panel::PanelWindow *window() const { return m_window.get(); }
    const Panel::PanelModel *model() const { return m_model.get(); }
    Panel::PanelModel *model() { return m_model.get(); }
    Panel::PanelController *controller() const { return m_controller.get(); }
    bool isPointerDown() const { return m_pressed || m_touchScreen.fingers() > 0; }
    /// What has gone wrong since this was last asked and cannot be seen in the panel.
    QStringList takeBroken();
    /// Takes the panel away, and says what outlived it.
    QStringList dropAndCount();

private:
    /// Like the start of the program, with what it has kept or without.
    void makePanel(const Panel::PanelState *state = nullptr);
    void dropPanel(const Event &event);
    void restart(const Event &event);
    void destroyPanel(bool withModel);
    /// The widget that input goes to: a pop-up's or a dialog's window before the panel's.
    QWidget *front(bool behind) const;
    QWindow *windowOf(bool behind) const;
    void mouse(const Event &event);
    void touch(const Event &event);
    void releasePointer();
    void wheel(const Event &event);
    void key(const Event &event);
    void host(const Event &event);
    void keepBounds();
    void countChanges();
    QPoint drawPosition(Random &random, bool behind) const;
    bool drawPointOfTrace(Random &random, QPoint &position) const;

    Files *m_files;
    std::unique_ptr<Panel::PanelModel> m_model;
    std::unique_ptr<Panel::PanelWindow> m_window;
    std::unique_ptr<Panel::PanelController> m_controller;

    bool m_pressed = false;
    QPointer<QWindow> m_pressedWindow;
    QPoint m_at; ///< the mouse, in its window
    VnaTest::TouchScreen m_touchScreen;
    int m_changes = 0; ///< of what only a hand changes, or new networks
    const char *m_lastChange = "";
    int m_loads = 0; ///< of new networks
    QStringList m_broken;
};

} // namespace Monkey
