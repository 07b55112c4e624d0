// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QAbstractButton>
#include <QList>
#include <QStringList>
#include <QTimer>

#include <functional>

class PopupWidget;

/*! What a button has that opens a list: the entries, the list, and a guard by which the tap that
    closed the list does not open it again. The list and the guard are children of the button. The
    list comes to be with popup(): a button that wants it at once calls that when it is made. */
class ListButton
{
public:
    ListButton(const ListButton &) = delete;
    ListButton &operator=(const ListButton &) = delete;
    /// \a pick is called with the text of an entry that is picked and was not the current one.
    ListButton(QAbstractButton *button, std::function<void(const QString &)> pick);

    /// The list, made where there was none.
    PopupWidget *popup();
    bool isPopup(const QObject *object) const;
    /// Chooses the entry in the list, as open() would.
    void setCurrent(const QString &current);
    bool scrollsInside() const { return m_scrollsInside; }
    void setScrollsInside(bool scrolls);

    bool isEmpty() const { return m_texts.isEmpty(); }
    /// Replaces all entries, and closes the list: what it offers is no longer true.
    template<typename Spec>
    void setEntries(const QList<Spec> &specs)
    {
        clear();
        for (const Spec &spec : specs) {
            m_values << spec.value;
            m_texts << spec.text;
        }
        fill();
    }
    void append(int value, const QString &text);
    /// Enables or disables the entry at an index; new entries are enabled.
    void setEntryEnabled(int index, bool enabled);
    void clear();

    /// The place of the first entry of a value or a text, or -1.
    int indexOf(int value) const { return int(m_values.indexOf(value)); }
    int indexOf(const QString &text) const { return int(m_texts.indexOf(text)); }
    /// The value of an entry; -1 for one that does not exist.
    int valueAt(int index) const { return m_values.value(index, -1); }
    QString textAt(int index) const { return m_texts.value(index); }

    /// Opens the list, called \a title by assistive tools, with \a current chosen.
    void open(const QString &title, const QString &current, Qt::Alignment alignment);
    /// Half as wide again as the button.
    void fitWidth();
    /// Moves the list below the button, or above it, on the screen of a point of the button.
    void moveToButton(const QPoint &point);

    /// While it is active, a tap belongs to the list that it closed.
    QTimer *reopenGuard() const { return m_reopenGuard; }

private:
    void fill();

    QAbstractButton *m_button;
    std::function<void(const QString &)> m_pick;
    PopupWidget *m_popup = nullptr;
    bool m_scrollsInside = false;
    QTimer *m_reopenGuard;
    QList<int> m_values;
    QStringList m_texts;
    QList<int> m_disabled; ///< entries, for a list that does not exist yet
};
