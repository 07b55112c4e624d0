// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What a pointer does to the panel of a game: mouse, fingers and wheel.
#include "monkeypanel.h"

#include <panel/window/panelwindow.h>

#include <QApplication>

namespace Monkey
{

void Desk::mouse(const Event &event)
{
    const QPoint position(event.a, event.b);
    if (event.species == Species::Move || event.species == Species::Release) {
        // A window that took the press gets all that follows; without it another one does.
        QWindow *window = m_pressedWindow ? m_pressedWindow.data() : windowOf(false);
        if (!m_pressed || !window)
            return;
        m_at = position;
        if (event.species == Species::Move) {
            QTest::mouseMove(window, position);
            return;
        }
        m_pressed = false;
        QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, position);
        return;
    }
    const QPointer<QWindow> window = windowOf(event.behind);
    if (isPointerDown() || !window || !window->isVisible())
        return;
    const Qt::MouseButton button =
        event.species == Species::Tap && event.c ? Qt::RightButton : Qt::LeftButton;
    if (event.species == Species::DoubleTap) {
        QTest::mouseDClick(window, button, Qt::NoModifier, position);
        return;
    }
    m_pressed = true;
    m_at = position;
    m_pressedWindow = window;
    QTest::mousePress(window, button, Qt::NoModifier, position);
    if (event.species == Species::Press)
        return;
    m_pressed = false;
    QWindow *under = window ? window.data() : windowOf(false);
    QTest::mouseRelease(under, button, Qt::NoModifier, position);
}

void Desk::touch(const Event &event)
{
    const QPoint first(event.a, event.b);
    if (event.species == Species::TouchPress) {
        QWindow *window = windowOf(event.behind);
        if (!isPointerDown() && window && window->isVisible())
            m_touchScreen.press(window, first);
        return;
    }
    const int fingers = m_touchScreen.fingers();
    if (fingers == 0 || !m_touchScreen.stayIn(windowOf(false)))
        return;
    switch (event.species) {
    case Species::TouchMove:
        m_touchScreen.move(first);
        break;
    case Species::TouchSecond:
        if (fingers == 1)
            m_touchScreen.pressSecond(first);
        break;
    case Species::TouchSpread:
        if (fingers == 2)
            m_touchScreen.moveBoth(first, {event.c, event.d});
        break;
    case Species::TouchCancel:
        m_touchScreen.cancel();
        releasePointer();
        break;
    default:
        releasePointer();
        break;
    }
}

void Desk::releasePointer()
{
    if (m_pressed) {
        m_pressed = false;
        if (QWindow *window = m_pressedWindow ? m_pressedWindow.data() : windowOf(false))
            QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, m_at);
    }
    if (m_touchScreen.fingers() > 0 && m_touchScreen.stayIn(windowOf(false)))
        m_touchScreen.release();
}

void Desk::wheel(const Event &event)
{
    QWindow *window = windowOf(false);
    if (window && window->isVisible())
        VnaTest::turnWheel(window, {event.a, event.b}, 120 * event.c);
}

} // namespace Monkey
