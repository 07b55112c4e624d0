// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QKeyEvent;
class QLineEdit;
class QTimer;

namespace Panel
{

class UnitAdapter;

/*! What a hardware keyboard does in a numeric entry beside digits: a unit, or its first letter, takes
    the number in that unit and finishes; a comma is a decimal point; Ctrl+A selects the number and
    leaves its unit; Return is refused while there is no value.

    A letter finishes after a moment, so that "80 GHz" may be typed as it is written; a Return that
    comes soon after that is taken for the end of the entry. */
class TypedEntry : public QObject
{
    Q_OBJECT

public:
    /// How long the rest of a unit and a Return are waited for, in milliseconds.
    static constexpr int patience = 800;

    /// Watches the editor of the adapter, which is both its parent's.
    TypedEntry(QLineEdit *editor, UnitAdapter *adapter, QObject *parent);

Q_SIGNALS:
    /// Return was pressed, and what the editor holds is no value.
    void refused();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool onKey(const QKeyEvent *event);
    bool onLetter(QChar letter);
    bool isValue(const QString &unitKey) const;
    void finish();
    void selectNumber();
    QString number() const;

    QLineEdit *m_editor;
    UnitAdapter *m_adapter;
    QTimer *m_finish;
    QString m_unit; ///< that was chosen by its letter, while the rest of it may come
    int m_typedOfUnit = 0; ///< letters of it
};

} // namespace Panel
