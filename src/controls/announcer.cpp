// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "announcer.h"

#include <utility>

namespace Controls
{

namespace
{

/*! A status line, or a notification in one: neither is an object.

    Qt has no event for announcements before 6.8. Screen readers say a notification when it shows, and
    leave out what it is when it does so in a status line. A new name of whatever has the focus would
    not do: Qt sends it without the name. */
class LineAccessible : public QAccessibleInterface
{
public:
    LineAccessible(QWidget *place, QAccessible::Role role, const Announcer *announcer)
        : m_place(place)
        , m_role(role)
        , m_announcer(announcer)
    {
    }

    void setNote(LineAccessible *note)
    {
        m_note = note;
        note->m_line = this;
    }

    bool isValid() const override { return m_place; }
    QObject *object() const override { return nullptr; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    QAccessibleInterface *parent() const override
    {
        return m_line ? m_line : QAccessible::queryAccessibleInterface(m_place);
    }
    QAccessibleInterface *child(int index) const override { return index == 0 ? m_note : nullptr; }
    int childCount() const override { return m_note ? 1 : 0; }
    int indexOfChild(const QAccessibleInterface *child) const override
    {
        return child && child == m_note ? 0 : -1;
    }
    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name && !m_note ? m_announcer->text() : QString();
    }
    void setText(QAccessible::Text, const QString &) override { }
    QRect rect() const override
    {
        const QAccessibleInterface *const whole = QAccessible::queryAccessibleInterface(m_place);
        return whole ? whole->rect() : QRect();
    }
    QAccessible::Role role() const override { return m_role; }
    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.readOnly = true;
        return state;
    }

private:
    const QPointer<QWidget> m_place;
    const QAccessible::Role m_role;
    const Announcer *const m_announcer; ///< lives longer
    LineAccessible *m_line = nullptr;
    LineAccessible *m_note = nullptr;
};

} // namespace

Announcer::Announcer(QWidget *place)
    : QObject(place)
    , m_place(place)
{
    m_pause.setSingleShot(true);
    m_pause.setInterval(pause);
    connect(&m_pause, &QTimer::timeout, this, [this] {
        if (!m_waiting.isEmpty())
            say();
    });
}

Announcer::~Announcer()
{
    for (const QAccessible::Id id : {m_note, m_line}) {
        if (id != 0)
            QAccessible::deleteAccessibleInterface(id);
    }
}

void Announcer::announce(const QString &text)
{
    m_waiting = text;
    if (text.isEmpty())
        m_text.clear();
    else if (!m_pause.isActive())
        say();
}

QAccessibleInterface *Announcer::line() const
{
    if (m_line == 0) {
        auto *const line = new LineAccessible(m_place, QAccessible::StatusBar, this);
        auto *const note = new LineAccessible(m_place, QAccessible::Notification, this);
        line->setNote(note);
        m_line = QAccessible::registerAccessibleInterface(line);
        m_note = QAccessible::registerAccessibleInterface(note);
    }
    return QAccessible::accessibleInterface(m_line);
}

void Announcer::say()
{
    m_text = std::exchange(m_waiting, {});
    m_pause.start();
    if (m_place) {
        QAccessibleInterface *const note = line()->child(0);
        for (const auto type : {QAccessible::ObjectShow, QAccessible::Alert}) {
            QAccessibleEvent event(note, type);
            QAccessible::updateAccessibility(&event);
        }
    }
    Q_EMIT announced(m_text);
}

} // namespace Controls
