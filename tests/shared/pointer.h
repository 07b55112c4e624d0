// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "events.h"

#include <QtTest>
#include <QtWidgets>

/*! Mouse, touch and keys on shown widgets, sent through their window as the platform would;
    positions are in the widget. */
namespace VnaTest
{

/// Shows a window and waits until it has its place on the screen, which positions depend on.
inline void showExposed(QWidget *window)
{
    window->show();
    if (!QTest::qWaitForWindowExposed(window))
        qWarning("the window was not shown");
}

inline QPoint inWindow(const QWidget *widget, const QPoint &pos)
{
    return widget->mapTo(widget->window(), pos);
}

inline void mousePress(const QWidget *widget, const QPoint &pos,
                       Qt::MouseButton button = Qt::LeftButton)
{
    QTest::mousePress(widget->window()->windowHandle(), button, Qt::NoModifier,
                      inWindow(widget, pos));
}

inline void mouseMove(const QWidget *widget, const QPoint &pos)
{
    QTest::mouseMove(widget->window()->windowHandle(), inWindow(widget, pos));
}

inline void mouseRelease(const QWidget *widget, const QPoint &pos,
                         Qt::MouseButton button = Qt::LeftButton)
{
    QTest::mouseRelease(widget->window()->windowHandle(), button, Qt::NoModifier,
                        inWindow(widget, pos));
}

inline void mousePress(const QWidget *widget)
{
    mousePress(widget, widget->rect().center());
}

inline void mouseRelease(const QWidget *widget)
{
    mouseRelease(widget, widget->rect().center());
}

/// The press may destroy the widget, and its window.
inline void mouseClick(const QWidget *widget, const QPoint &pos,
                       Qt::MouseButton button = Qt::LeftButton)
{
    const QPointer<QWindow> window = widget->window()->windowHandle();
    const QPoint point = inWindow(widget, pos);
    QTest::mousePress(window, button, Qt::NoModifier, point);
    if (window)
        QTest::mouseRelease(window, button, Qt::NoModifier, point);
}

inline void mouseClick(const QWidget *widget)
{
    mouseClick(widget, widget->rect().center());
}

inline void mouseDoubleClick(const QWidget *widget, const QPoint &pos,
                             Qt::MouseButton button = Qt::LeftButton)
{
    QTest::mouseDClick(widget->window()->windowHandle(), button, Qt::NoModifier,
                       inWindow(widget, pos));
}

/// Press and release of one key, with the text that a keyboard would send, to a widget's window.
inline void typeKey(const QWidget *widget, Qt::Key key, const QString &text = QString())
{
    const QPointer<QWindow> window = widget->window()->windowHandle();
    QTest::sendKeyEvent(QTest::Press, window, key, text, Qt::NoModifier);
    if (window)
        QTest::sendKeyEvent(QTest::Release, window, key, text, Qt::NoModifier);
}

/// Press at \a from, some moves, release at \a to, both in the window's coordinates.
inline void mouseDrag(QWindow *window, const QPoint &from, const QPoint &to, int steps = 3)
{
    QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, from);
    for (int step = 1; step <= steps; ++step)
        QTest::mouseMove(window, from + (to - from) * step / steps);
    QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, to);
}

/*! A touch screen under up to two fingers of one window; positions are in the window. The fingers
    stay where they are until something moves them, also where the window has gone meanwhile. */
class TouchScreen
{
    using Device = decltype(QTest::createTouchDevice());
    /// One for all, since Qt keeps it for ever; made when it is first touched.
    static Device device()
    {
        static const Device all = QTest::createTouchDevice();
        return all;
    }
    /// What is told of the fingers at once; sent at the end of the statement.
    auto report() { return QTest::touchEvent(m_window, device()); }

public:
    explicit TouchScreen(const QWidget *widget)
        : m_window(widget->window()->windowHandle())
    {
    }
    /// Without fingers; press() with a window begins.
    TouchScreen() = default;

    int fingers() const { return m_fingers; }

    void press(const QPoint &pos)
    {
        m_fingers = 1;
        m_pos[0] = pos;
        report().press(0, pos, m_window);
    }
    void press(QWindow *window, const QPoint &pos)
    {
        m_window = window;
        press(pos);
    }
    void move(const QPoint &pos)
    {
        m_pos[0] = pos;
        auto points = report();
        points.move(0, pos, m_window);
        if (m_fingers == 2)
            points.move(1, m_pos[1], m_window);
    }
    /// All fingers leave, the first one there.
    void release(const QPoint &pos)
    {
        m_pos[0] = pos;
        release();
    }
    /// All fingers leave in one report, where they are.
    void release()
    {
        auto points = report();
        points.release(0, m_pos[0], m_window);
        if (m_fingers == 2)
            points.release(1, m_pos[1], m_window);
        m_fingers = 0;
    }
    void tap(const QPoint &pos)
    {
        press(pos);
        release(pos);
    }

    /// A second finger comes, while the first rests.
    void pressSecond(const QPoint &pos)
    {
        m_fingers = 2;
        m_pos[1] = pos;
        report().move(0, m_pos[0], m_window).press(1, pos, m_window);
    }
    void moveBoth(const QPoint &first, const QPoint &second)
    {
        m_pos[0] = first;
        m_pos[1] = second;
        report().move(0, first, m_window).move(1, second, m_window);
    }
    /// The second finger leaves again.
    void releaseSecond(const QPoint &pos)
    {
        m_fingers = 1;
        report().move(0, m_pos[0], m_window).release(1, pos, m_window);
    }
    /// The first finger leaves, the second stays and then leaves at another place.
    void releaseBoth(const QPoint &first, const QPoint &second)
    {
        report().move(1, second, m_window).release(0, first, m_window);
        report().move(1, second, m_window);
        report().release(1, second, m_window);
        m_fingers = 0;
    }
    /// The window loses the fingers, which are still there for the application.
    void cancel()
    {
        QTouchEvent event(QEvent::TouchCancel, device());
        QCoreApplication::sendEvent(m_window, &event);
    }
    /// Goes on in another window where the fingers' own has gone; false if there is none either.
    bool stayIn(QWindow *other)
    {
        if (!m_window)
            m_window = other;
        return m_window;
    }

private:
    QPointer<QWindow> m_window;
    int m_fingers = 0;
    QPoint m_pos[2];
};

/// A touch event without points, as a driver sends it that lost the finger.
inline bool sendTouchWithoutPoints(QWidget *widget, QEvent::Type type)
{
    QTouchEvent event(type);
    return isTaken(widget, event);
}

} // namespace VnaTest
