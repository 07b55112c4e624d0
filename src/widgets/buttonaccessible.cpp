// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <widgets/buttonaccessible_p.h>

#include <widgets/enumtextbutton.h>
#include <widgets/menubutton.h>
#include <widgets/popupwidget.h>
#include <widgets/switchbutton.h>

namespace
{

QAccessibleInterface *createInterface(const QString &, QObject *object)
{
    if (qobject_cast<AbstractButton *>(object) || qobject_cast<MenuButton *>(object))
        return new ButtonAccessible(static_cast<QAbstractButton *>(object));
    return nullptr;
}

} // namespace

ButtonAccessible::ButtonAccessible(QAbstractButton *button)
    : QAccessibleWidget(button)
{
}

void ButtonAccessible::install()
{
    QAccessible::installFactory(createInterface);
}

QAccessible::Role ButtonAccessible::role() const
{
    if (qobject_cast<EnumTextButton *>(object()))
        return QAccessible::ComboBox;
    if (qobject_cast<MenuButton *>(object()))
        return QAccessible::ButtonMenu;
    if (qobject_cast<SwitchButton *>(object()) || button()->isCheckable())
        return QAccessible::CheckBox;
    return QAccessible::Button;
}

QString ButtonAccessible::text(QAccessible::Text kind) const
{
    const auto *const info = qobject_cast<InfoButton *>(object());
    if (kind == QAccessible::Name && info && info->accessibleName().isEmpty())
        return info->text();
    if (kind == QAccessible::Name && !info && button()->accessibleName().isEmpty())
        return button()->text().remove(QLatin1Char('&'));
    if (kind == QAccessible::Value) {
        if (const auto *const label = qobject_cast<LabelButton *>(object()))
            return label->labelText();
        if (const auto *const toggle = qobject_cast<SwitchButton *>(object()))
            return toggle->status() ? SwitchButton::tr("On") : SwitchButton::tr("Off");
    }
    return QAccessibleWidget::text(kind);
}

QAccessible::State ButtonAccessible::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    const auto *const toggle = qobject_cast<SwitchButton *>(object());
    state.pressed = button()->isDown();
    state.checkable = toggle || button()->isCheckable();
    state.checked = toggle ? toggle->status() : button()->isChecked();
    if (const auto *const popup = object()->findChild<PopupWidget *>()) {
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
    if (name != mainAction()) {
        QAccessibleWidget::doAction(name);
    } else if (auto *const toggle = qobject_cast<SwitchButton *>(object())) {
        toggle
            ->findChild<QAbstractButton *>(toggle->status() ? QStringLiteral("btnOff")
                                                            : QStringLiteral("btnOn"))
            ->click();
    } else {
        button()->click();
    }
}

QAbstractButton *ButtonAccessible::button() const
{
    return static_cast<QAbstractButton *>(object());
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
