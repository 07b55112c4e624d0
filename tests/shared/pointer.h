// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

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

/// A touch screen under the fingers of one window; positions are in the window.
class TouchScreen
{
public:
    explicit TouchScreen(const QWidget *widget)
        : m_window(widget->window()->windowHandle())
    {
    }

    void press(const QPoint &pos)
    {
        m_first = pos;
        QTest::touchEvent(m_window, m_device).press(0, pos, m_window);
    }
    void move(const QPoint &pos)
    {
        m_first = pos;
        QTest::touchEvent(m_window, m_device).move(0, pos, m_window);
    }
    void release(const QPoint &pos)
    {
        QTest::touchEvent(m_window, m_device).release(0, pos, m_window);
    }
    void tap(const QPoint &pos)
    {
        press(pos);
        release(pos);
    }

    /// A second finger comes, while the first rests.
    void pressSecond(const QPoint &pos)
    {
        QTest::touchEvent(m_window, m_device).move(0, m_first, m_window).press(1, pos, m_window);
    }
    void moveBoth(const QPoint &first, const QPoint &second)
    {
        m_first = first;
        QTest::touchEvent(m_window, m_device).move(0, first, m_window).move(1, second, m_window);
    }
    /// The second finger leaves again.
    void releaseSecond(const QPoint &pos)
    {
        QTest::touchEvent(m_window, m_device).move(0, m_first, m_window).release(1, pos, m_window);
    }
    /// The first finger leaves, the second stays and then leaves at another place.
    void releaseBoth(const QPoint &first, const QPoint &second)
    {
        QTest::touchEvent(m_window, m_device).move(1, second, m_window).release(0, first, m_window);
        QTest::touchEvent(m_window, m_device).move(1, second, m_window);
        QTest::touchEvent(m_window, m_device).release(1, second, m_window);
    }
    /// Both fingers leave in the same report of the screen, where they were.
    void releaseTogether(const QPoint &second)
    {
        QTest::touchEvent(m_window, m_device)
            .release(0, m_first, m_window)
            .release(1, second, m_window);
    }

private:
    QWindow *m_window;
    QPoint m_first; ///< where the first finger is
    decltype(QTest::createTouchDevice()) m_device = QTest::createTouchDevice();
};

/// A touch event without points, as a driver sends it that lost the finger.
inline bool sendTouchWithoutPoints(QWidget *widget, QEvent::Type type)
{
    QTouchEvent event(type);
    event.ignore();
    QCoreApplication::sendEvent(widget, &event);
    return event.isAccepted();
}

} // namespace VnaTest
