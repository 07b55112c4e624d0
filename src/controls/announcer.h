// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <vnawidgets_export.h>

#include <QAccessible>
#include <QPointer>
#include <QTimer>
#include <QWidget>

namespace Controls
{

/*! Has screen readers say a text at once, wherever the keyboard is: that something was saved, that a
    limit fails, what a key has found. Sparing: one a second, and of those that wait the newest.

    Not for what a widget shows all the time: its accessible name and description are read on the way.

    \code
    auto *announcer = new Controls::Announcer(diagramArea);
    announcer->announce(tr("Saved antenna.s1p"));
    \endcode */
class VNAWIDGETS_EXPORT Announcer : public QObject
{
    Q_OBJECT

public:
    /// Milliseconds between two announcements.
    static constexpr int pause = 1000;

    /// Speaks from \a place, which becomes the parent.
    explicit Announcer(QWidget *place);
    ~Announcer() override;

    /// Has a text said: at once, or when the pause after the one before is over. The newest of those
    /// that wait is said, the others never are. Nothing, the empty text, forgets what waits.
    void announce(const QString &text);
    /// What was said last.
    QString text() const { return m_text; }
    /// What assistive tools see: a status line with a notification in it.
    QAccessibleInterface *line() const;

Q_SIGNALS:
    /// A text is handed to the assistive tools.
    void announced(const QString &text);

private:
    void say();

    QPointer<QWidget> m_place;
    QString m_text;
    QString m_waiting; ///< to be said after the pause
    QTimer m_pause;
    mutable QAccessible::Id m_line = 0; ///< made when it is first asked for
    mutable QAccessible::Id m_note = 0; ///< within the line
};

} // namespace Controls
