// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QWheelEvent>

#include <functional>
#include <utility>

/*! Events sent to an object itself, past the window and the focus; pointer.h has those that take the
    way through a window. */
namespace VnaTest
{

/// Press and release of a key; the press may destroy the receiver.
inline void sendKey(QObject *receiver, int key, const QString &text = QString(),
                    Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    const QPointer<QObject> alive(receiver);
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, modifiers, text);
        if (alive)
            QCoreApplication::sendEvent(alive, &event);
    }
}

/// Answers the first event of a type that an object is sent, after which the object may be gone.
class OnEvent : public QObject
{
public:
    OnEvent(QObject *object, QEvent::Type type, std::function<void()> answer)
        : m_type(type)
        , m_answer(std::move(answer))
    {
        object->installEventFilter(this);
    }
    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() != m_type || !m_answer)
            return QObject::eventFilter(object, event);
        const QPointer<QObject> alive(object);
        std::exchange(m_answer, nullptr)();
        return !alive;
    }

private:
    QEvent::Type m_type;
    std::function<void()> m_answer;
};

/// Sends an event that was refused so far; whether it is taken.
inline bool isTaken(QObject *receiver, QEvent &event)
{
    event.ignore();
    QCoreApplication::sendEvent(receiver, &event);
    return event.isAccepted();
}

/// Turns the wheel over a widget or a window by an angle in eighths of a degree, 120 for a notch.
template<typename Receiver>
bool turnWheel(Receiver *receiver, const QPoint &pos, int angle)
{
    QWheelEvent event(pos, receiver->mapToGlobal(pos), QPoint(), QPoint(0, angle), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    return isTaken(receiver, event);
}

} // namespace VnaTest
