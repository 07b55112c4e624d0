// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <controls/touchnumkeyboard.h>

#include <QList>
#include <QMap>

#include <algorithm>

QT_BEGIN_NAMESPACE
class QGridLayout;
class QPushButton;
QT_END_NAMESPACE

namespace Controls
{

using KeySpec = TouchNumKeyboard::KeySpec;

/// Gives a key its role, and with it the look that a style sheet has for it.
void setKeyRole(QPushButton *key, const QString &role);

/*! The column of unit keys of a keypad. It shows up to four units; more of them in pages, three
    units on the first page, two on each that follows, up to three on the last. */
class UnitColumn
{
public:
    /// The buttons from top to bottom, in a grid that has a row between the third and the fourth.
    void setUp(const QList<QPushButton *> &buttons, QGridLayout *grid);

    const QList<QPushButton *> &buttons() const { return m_buttons; }
    const QList<KeySpec> &units() const { return m_units; }
    /// Shows other units, from the first page on.
    void setUnits(const QList<KeySpec> &units);

    bool isPaging() const { return m_units.size() > m_buttons.size(); }
    /// Captions of the current page, as after a change of language.
    void showPage();
    /// What a tap on a button sends; one that turns the page sends nothing.
    KeySpec press(QPushButton *button);

private:
    int page() const { return (m_start - 1) / 2; }
    int lastPage() const { return std::max(1, (int(m_units.size()) - 5) / 2 + 1); }
    void showUnit(QPushButton *button, const KeySpec &unit);

    QList<QPushButton *> m_buttons;
    QGridLayout *m_grid = nullptr;
    QList<KeySpec> m_units;
    QMap<QPushButton *, KeySpec> m_shown; ///< the units of the current page
    int m_start = 0; ///< the first of them
};

} // namespace Controls
