// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <widgets/buttonaccessible_p.h>

#include <widgets/popupwidget.h>

ButtonAccessible::ButtonAccessible(QAbstractButton *button)
    : QAccessibleWidget(button)
{
}

/// What it has opened, or null: a hidden list has a current entry too, which passes for the focus.
QAccessibleInterface *ButtonAccessible::list() const
{
    auto *const popup = button()->findChild<PopupWidget *>();
    return popup && popup->isVisible() ? QAccessible::queryAccessibleInterface(popup) : nullptr;
}

int ButtonAccessible::childCount() const
{
    return QAccessibleWidget::childCount() + (list() ? 1 : 0);
}

QAccessibleInterface *ButtonAccessible::child(int index) const
{
    return index == QAccessibleWidget::childCount() ? list() : QAccessibleWidget::child(index);
}

int ButtonAccessible::indexOfChild(const QAccessibleInterface *child) const
{
    return child && child == list() ? QAccessibleWidget::childCount()
                                    : QAccessibleWidget::indexOfChild(child);
}

QAccessible::Role ButtonAccessible::role() const
{
    return button()->isCheckable() ? QAccessible::CheckBox : QAccessible::Button;
}

QString ButtonAccessible::text(QAccessible::Text kind) const
{
    if (kind == QAccessible::Name && button()->accessibleName().isEmpty())
        return name();
    if (kind == QAccessible::Value)
        return value();
    return QAccessibleWidget::text(kind);
}

QAccessible::State ButtonAccessible::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.pressed = button()->isDown();
    state.checkable = button()->isCheckable();
    state.checked = button()->isChecked();
    const auto *const popup = button()->findChild<PopupWidget *>();
    if (popup && role() != QAccessible::Button) {
        state.hasPopup = true;
        state.expandable = true;
        state.expanded = popup->isVisible();
        state.collapsed = !popup->isVisible();
    }
    return state;
}

QStringList ButtonAccessible::actionNames() const
{
    return widget()->isEnabled() ? QStringList(mainAction()) + QAccessibleWidget::actionNames()
                                 : QAccessibleWidget::actionNames();
}

void ButtonAccessible::doAction(const QString &name)
{
    if (name == mainAction())
        activate();
    else
        QAccessibleWidget::doAction(name);
}

QString ButtonAccessible::name() const
{
    return button()->text().remove(QLatin1Char('&'));
}

QString ButtonAccessible::value() const
{
    return QAccessibleWidget::text(QAccessible::Value);
}

void ButtonAccessible::activate()
{
    button()->click();
}

QString ButtonAccessible::mainAction() const
{
    switch (role()) {
    case QAccessible::ComboBox:
    case QAccessible::ButtonMenu:
        return showMenuAction();
    case QAccessible::CheckBox:
        return toggleAction();
    default:
        return pressAction();
    }
}
