// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <widgets/enumtextbutton.h>

#include <platform/placement.h>
#include <widgets/buttonaccessible_p.h>
#include <widgets/listbutton_p.h>
#include <widgets/popupwidget.h>

#include <QPointer>

namespace
{

class EnumTextButtonAccessible : public NamedButtonAccessible<EnumTextButton>
{
public:
    using NamedButtonAccessible::NamedButtonAccessible;

    /// Without a list it is a button like others.
    QAccessible::Role role() const override
    {
        return button()->enums().isEmpty() ? QAccessible::Button : QAccessible::ComboBox;
    }

protected:
    QString value() const override { return button()->labelText(); }
};

} // namespace

struct EnumTextButton::Private {
    explicit Private(EnumTextButton *button)
        : list(button, [button](const QString &text) { button->onPopupWidgetItemChanged(text); })
    {
    }

    ListButton list;
    QList<EnumSpec> enums;
    int currentValue = 0;
    QString currentText;
    bool closedByPress = false; ///< the finger now on the button closed the list
};

EnumTextButton::EnumTextButton(QWidget *parent)
    : EnumTextButton(ListCreation::AtOnce, parent)
{
}

EnumTextButton::EnumTextButton(ListCreation creation, QWidget *parent)
    : LabelButton(parent)
    , d(std::make_unique<Private>(this))
{
    ButtonAccessible::install<EnumTextButton, EnumTextButtonAccessible>();
    connect(this, &EnumTextButton::clicked, this, &EnumTextButton::onClicked);
    if (creation == ListCreation::AtOnce)
        d->list.popup();
    connect(this, &EnumTextButton::currentItemToggled, this, &EnumTextButton::onCurrentItemToggled);
}

EnumTextButton::~EnumTextButton() = default;

QList<EnumTextButton::EnumSpec> EnumTextButton::enums() const
{
    return d->enums;
}

EnumTextButton::EnumSpec EnumTextButton::currentEnumSpec() const
{
    return {d->currentValue, d->currentText};
}

int EnumTextButton::currentValue() const
{
    return d->currentValue;
}

void EnumTextButton::setEnums(const QList<EnumSpec> &enums)
{
    if (d->enums == enums)
        return;
    d->enums = enums;
    d->list.setEntries(enums);
}

bool EnumTextButton::setCurrentEnum(const EnumSpec &spec)
{
    if (spec == currentEnumSpec())
        return false;
    d->currentValue = spec.value;
    d->currentText = spec.text;
    setLabelText(spec.text);
    Q_EMIT currentItemToggled(spec.value);
    return true;
}

bool EnumTextButton::setCurrentEnum(int value)
{
    const int index = d->list.indexOf(value);
    if (index < 0)
        return false;
    d->currentValue = value;
    d->currentText = d->list.textAt(index);
    setLabelText(d->currentText);
    Q_EMIT currentItemToggled(value);
    return true;
}

void EnumTextButton::setIconSize(int width, int height)
{
    d->list.popup()->setIconSize(width, height);
}

QSize EnumTextButton::iconSize() const
{
    return d->list.popup()->iconSize();
}

void EnumTextButton::setItemCountPerRow(int count)
{
    d->list.popup()->setItemCountPerRow(count);
}

int EnumTextButton::itemCountPerRow() const
{
    return d->list.popup()->itemCountPerRow();
}

void EnumTextButton::setItemEnabled(const QString &text, bool enabled)
{
    d->list.setEntryEnabled(d->list.indexOf(text), enabled);
}

void EnumTextButton::setItemEnabled(int index, bool enabled)
{
    d->list.setEntryEnabled(index, enabled);
}

void EnumTextButton::setTitleText(const QString &text)
{
    d->list.popup()->setTitleText(text);
}

QString EnumTextButton::titleText() const
{
    return d->list.popup()->titleText();
}

void EnumTextButton::setTitleVisible(bool visible)
{
    d->list.popup()->setTitleVisible(visible);
}

bool EnumTextButton::titleVisible() const
{
    return d->list.popup()->titleVisible();
}

void EnumTextButton::setViewMode(QListView::ViewMode mode)
{
    d->list.popup()->setViewMode(mode);
}

bool EnumTextButton::listScrollsInside() const
{
    return d->list.scrollsInside();
}

void EnumTextButton::setListScrollsInside(bool scrolls)
{
    d->list.setScrollsInside(scrolls);
}

void EnumTextButton::onClicked(bool)
{
    // The list closed at the press; a slow finger may lift long after the guard ran out.
    if (d->list.reopenGuard()->isActive() || d->closedByPress || d->list.isEmpty())
        setChecked(false);
    else
        d->list.open(text(), d->currentText, Qt::AlignLeft | Qt::AlignVCenter);
}

void EnumTextButton::onPopupWidgetItemChanged(const QString &text)
{
    const int index = d->list.indexOf(text);
    if (index < 0)
        return;
    const int value = d->list.valueAt(index);
    const QPointer<EnumTextButton> alive(this);
    setCurrentEnum(value);
    if (alive)
        Q_EMIT currentItemEdited(value);
}

void EnumTextButton::onCurrentItemToggled(int)
{
    d->list.setCurrent(d->currentText);
}

void EnumTextButton::updatePopupPosition()
{
    if (d->list.popup()->viewMode() == QListView::IconMode) {
        Utils::centerWidgetInHost(d->list.popup(), window());
        return;
    }
    d->list.fitWidth();
    d->list.moveToButton(rect().center());
}

bool EnumTextButton::eventFilter(QObject *watched, QEvent *event)
{
    if (d->list.isPopup(watched)) {
        if (event->type() == QEvent::Close)
            d->list.reopenGuard()->start();
        else if (event->type() == QEvent::Show)
            updatePopupPosition();
    }
    return LabelButton::eventFilter(watched, event);
}

void EnumTextButton::mousePressEvent(QMouseEvent *event)
{
    d->closedByPress = d->list.reopenGuard()->isActive();
    LabelButton::mousePressEvent(event);
}

void EnumTextButton::mouseReleaseEvent(QMouseEvent *event)
{
    const QPointer<EnumTextButton> alive(this);
    LabelButton::mouseReleaseEvent(event);
    if (alive)
        d->closedByPress = false;
}
