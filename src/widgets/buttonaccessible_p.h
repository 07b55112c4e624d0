// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QAbstractButton>
#include <QAccessibleWidget>

/// Tells assistive tools the role, name, value, state and action of a button. Buttons that have more
/// to tell derive from it and install that class in place.
class ButtonAccessible : public QAccessibleWidget
{
public:
    explicit ButtonAccessible(QAbstractButton *button);

    /// Makes Qt ask \a Interface about objects of the class \a Button and of those derived from it
    /// that install nothing themselves; repeated calls do nothing.
    template<typename Button, typename Interface>
    static void install()
    {
        QAccessible::installFactory(
            [](const QString &className, QObject *object) -> QAccessibleInterface * {
                return className == QLatin1String(Button::staticMetaObject.className())
                    ? new Interface(static_cast<Button *>(object))
                    : nullptr;
            });
    }

    /// An open list comes after its other children: Qt leaves popups out of the tree.
    int childCount() const override;
    QAccessibleInterface *child(int index) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QAccessible::Role role() const override;
    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString &name) override;

protected:
    QAbstractButton *button() const { return static_cast<QAbstractButton *>(object()); }
    /// The name while the host has set none.
    virtual QString name() const;
    /// What the button shows beside its name.
    virtual QString value() const;
    /// What the main action does.
    virtual void activate();

private:
    QAccessibleInterface *list() const;
    QString mainAction() const;
};

/// For a button whose name is not the text of QAbstractButton.
template<typename Button>
class NamedButtonAccessible : public ButtonAccessible
{
public:
    using ButtonAccessible::ButtonAccessible;

protected:
    Button *button() const { return static_cast<Button *>(object()); }
    QString name() const override { return button()->text(); }
};
