// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWindow>
#include <QtTest>

/*! What a user does to a shown widget, sent through its window as the platform would: pop-up grabs,
    modality and focus take part, which they do not when an event is sent to a widget. */
namespace Gestures
{

/// The window that shows \a widget, and where \a pos of the widget lies in it.
struct Spot {
    Spot(const QWidget *widget, const QPoint &pos)
        : window(widget->window()->windowHandle())
        , point(widget->mapTo(widget->window(), pos))
    {
    }
    explicit Spot(const QWidget *widget)
        : Spot(widget, widget->rect().center())
    {
    }

    QWindow *window;
    QPoint point;
};

inline void press(const Spot &spot)
{
    QTest::mousePress(spot.window, Qt::LeftButton, Qt::NoModifier, spot.point);
}

inline void release(const Spot &spot)
{
    QTest::mouseRelease(spot.window, Qt::LeftButton, Qt::NoModifier, spot.point);
}

inline void click(const Spot &spot)
{
    press(spot);
    release(spot);
}

inline void press(const QWidget *widget)
{
    press(Spot(widget));
}
inline void release(const QWidget *widget)
{
    release(Spot(widget));
}
inline void click(const QWidget *widget)
{
    click(Spot(widget));
}

/// A value for the message of QVERIFY2.
template<typename T>
QByteArray printed(const T &value)
{
    QString text;
    QDebug(&text) << value;
    return text.trimmed().toUtf8();
}

/// Press and release of one key, with the text that a keyboard would send.
inline void key(QWindow *window, Qt::Key code, const QString &text = QString())
{
    QTest::sendKeyEvent(QTest::Press, window, code, text, Qt::NoModifier);
    QTest::sendKeyEvent(QTest::Release, window, code, text, Qt::NoModifier);
}

} // namespace Gestures
