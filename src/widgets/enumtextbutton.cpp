// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <widgets/enumtextbutton.h>

#include <platform/placement.h>
#include <widgets/buttonaccessible_p.h>
#include <widgets/listbutton_p.h>
#include <widgets/popupwidget.h>

namespace
{

class EnumTextButtonAccessible : public NamedButtonAccessible<EnumTextButton>
{
public:
    using NamedButtonAccessible::NamedButtonAccessible;

    QAccessible::Role role() const override { return QAccessible::ComboBox; }

protected:
    QString value() const override { return button()->labelText(); }
};

} // namespace

EnumTextButton::EnumTextButton(QWidget *parent)
    : LabelButton(parent)
    , m_list(std::make_unique<ListButton>(this))
{
    ButtonAccessible::install<EnumTextButton, EnumTextButtonAccessible>();
    connect(this, &EnumTextButton::clicked, this, &EnumTextButton::onClicked);
    connect(m_list->popup(), &PopupWidget::currentItemChanged, this,
            &EnumTextButton::onPopupWidgetItemChanged);
    connect(this, &EnumTextButton::currentItemToggled, this, &EnumTextButton::onCurrentItemToggled);
}

EnumTextButton::~EnumTextButton() = default;

void EnumTextButton::setEnums(const QList<EnumSpec> &enums)
{
    if (m_enums == enums)
        return;
    m_enums = enums;
    m_list->setEntries(enums);
}

bool EnumTextButton::setCurrentEnum(const EnumSpec &spec)
{
    if (spec == currentEnumSpec())
        return false;
    m_currentValue = spec.value;
    m_currentText = spec.text;
    setLabelText(spec.text);
    Q_EMIT currentItemToggled(spec.value);
    return true;
}

bool EnumTextButton::setCurrentEnum(int value)
{
    const int index = m_list->indexOf(value);
    if (index < 0)
        return false;
    m_currentValue = value;
    m_currentText = m_list->textAt(index);
    setLabelText(m_currentText);
    Q_EMIT currentItemToggled(value);
    return true;
}

void EnumTextButton::setIconSize(int width, int height)
{
    m_list->popup()->setIconSize(width, height);
}

QSize EnumTextButton::iconSize() const
{
    return m_list->popup()->iconSize();
}

void EnumTextButton::setItemCountPerRow(int count)
{
    m_list->popup()->setItemCountPerRow(count);
}

int EnumTextButton::itemCountPerRow() const
{
    return m_list->popup()->itemCountPerRow();
}

void EnumTextButton::setItemEnabled(const QString &text, bool enabled)
{
    m_list->popup()->setItemEnabled(text, enabled);
}

void EnumTextButton::setItemEnabled(int index, bool enabled)
{
    m_list->popup()->setItemEnabled(index, enabled);
}

void EnumTextButton::setTitleText(const QString &text)
{
    m_list->popup()->setTitleText(text);
}

QString EnumTextButton::titleText() const
{
    return m_list->popup()->titleText();
}

void EnumTextButton::setTitleVisible(bool visible)
{
    m_list->popup()->setTitleVisible(visible);
}

bool EnumTextButton::titleVisible() const
{
    return m_list->popup()->titleVisible();
}

void EnumTextButton::setViewMode(QListView::ViewMode mode)
{
    m_list->popup()->setViewMode(mode);
}

bool EnumTextButton::listScrollsInside() const
{
    return m_list->popup()->scrollsInside();
}

void EnumTextButton::setListScrollsInside(bool scrolls)
{
    m_list->popup()->setScrollsInside(scrolls);
}

void EnumTextButton::onClicked(bool)
{
    // The list closed at the press; a slow finger may lift long after the guard ran out.
    if (m_list->reopenGuard()->isActive() || m_closedByPress || m_list->isEmpty())
        setChecked(false);
    else
        m_list->open(text(), m_currentText, Qt::AlignLeft | Qt::AlignVCenter);
}

void EnumTextButton::onPopupWidgetItemChanged(const QString &text)
{
    const int index = m_list->indexOf(text);
    if (index < 0)
        return;
    const int value = m_list->valueAt(index);
    const QPointer<EnumTextButton> alive(this);
    setCurrentEnum(value);
    if (alive)
        Q_EMIT currentItemEdited(value);
}

void EnumTextButton::onCurrentItemToggled(int)
{
    m_list->popup()->setCurrentItem(m_currentText);
}

void EnumTextButton::updatePopupPosition()
{
    if (m_list->popup()->viewMode() == QListView::IconMode) {
        Utils::centerWidgetInHost(m_list->popup(), window());
        return;
    }
    m_list->fitWidth();
    m_list->moveToButton(rect().center());
}

bool EnumTextButton::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_list->popup()) {
        if (event->type() == QEvent::Close)
            m_list->reopenGuard()->start();
        else if (event->type() == QEvent::Show)
            updatePopupPosition();
    }
    return LabelButton::eventFilter(watched, event);
}

void EnumTextButton::mousePressEvent(QMouseEvent *event)
{
    m_closedByPress = m_list->reopenGuard()->isActive();
    LabelButton::mousePressEvent(event);
}

void EnumTextButton::mouseReleaseEvent(QMouseEvent *event)
{
    const QPointer<EnumTextButton> alive(this);
    LabelButton::mouseReleaseEvent(event);
    if (alive)
        m_closedByPress = false;
}
