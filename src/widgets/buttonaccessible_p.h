// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAccessibleWidget>

class QAbstractButton;

/// Tells assistive tools the role, name, value, state and action of this library's buttons.
class ButtonAccessible : public QAccessibleWidget
{
public:
    explicit ButtonAccessible(QAbstractButton *button);

    /// Makes Qt ask this class about the buttons; repeated calls do nothing.
    static void install();

    QAccessible::Role role() const override;
    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString &name) override;

private:
    QAbstractButton *button() const;
    QString mainAction() const;
};
