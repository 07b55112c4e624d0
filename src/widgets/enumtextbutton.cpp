// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <widgets/enumtextbutton.h>

#include <controls/popupplacement_p.h>
#include <widgets/popupwidget.h>

#include <QTimer>

namespace
{

constexpr int ReopenGuardMs = 200;

} // namespace

EnumTextButton::EnumTextButton(QWidget *parent)
    : LabelButton(parent)
    , m_popup(new PopupWidget(this))
    , m_reopenGuard(new QTimer(this))
{
    m_reopenGuard->setSingleShot(true);
    m_reopenGuard->setInterval(ReopenGuardMs);
    m_popup->installEventFilter(this);

    connect(this, &EnumTextButton::clicked, this, &EnumTextButton::onClicked);
    connect(m_popup, &PopupWidget::widgetClosed, this, [this] { setChecked(false); });
    connect(m_popup, &PopupWidget::currentItemChanged, this,
            &EnumTextButton::onPopupWidgetItemChanged);
    connect(this, &EnumTextButton::currentItemToggled, this, &EnumTextButton::onCurrentItemToggled);
}

void EnumTextButton::setEnums(const QList<EnumSpec> &enums)
{
    if (m_enums == enums)
        return;
    m_enums = enums;
    m_values.clear();
    m_texts.clear();
    for (const EnumSpec &spec : enums) {
        m_values << spec.value;
        m_texts << spec.text;
    }
    if (m_popup->isVisible())
        m_popup->close(); // what it offers is no longer true
    m_popup->clear();
    m_popup->addItems(m_texts, 0);
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
    const int index = int(m_values.indexOf(value));
    if (index < 0)
        return false;
    m_currentValue = value;
    m_currentText = m_texts.at(index);
    setLabelText(m_currentText);
    Q_EMIT currentItemToggled(value);
    return true;
}

void EnumTextButton::setIconSize(int width, int height)
{
    m_popup->setIconSize(width, height);
}

QSize EnumTextButton::iconSize() const
{
    return m_popup->iconSize();
}

void EnumTextButton::setItemCountPerRow(int count)
{
    m_popup->setItemCountPerRow(count);
}

int EnumTextButton::itemCountPerRow() const
{
    return m_popup->itemCountPerRow();
}

void EnumTextButton::setItemEnabled(const QString &text, bool enabled)
{
    m_popup->setItemEnabled(text, enabled);
}

void EnumTextButton::setItemEnabled(int index, bool enabled)
{
    m_popup->setItemEnabled(index, enabled);
}

void EnumTextButton::setTitleText(const QString &text)
{
    m_popup->setTitleText(text);
}

QString EnumTextButton::titleText() const
{
    return m_popup->titleText();
}

void EnumTextButton::setTitleVisible(bool visible)
{
    m_popup->setTitleVisible(visible);
}

bool EnumTextButton::titleVisible() const
{
    return m_popup->titleVisible();
}

void EnumTextButton::setViewMode(QListView::ViewMode mode)
{
    m_popup->setViewMode(mode);
}

void EnumTextButton::onClicked(bool)
{
    // The list closed at the press; a slow finger may lift long after the guard ran out.
    if (m_reopenGuard->isActive() || m_closedByPress || m_enums.isEmpty()) {
        setChecked(false);
        return;
    }
    m_popup->setWidgetFixedWidth(popupWidth());
    m_popup->setItemTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_popup->setCurrentItem(m_currentText);
    m_popup->setWindowTitle(text()); // what assistive tools call it
    m_popup->popup();
    m_popup->show();
}

void EnumTextButton::onPopupWidgetItemChanged(const QString &text)
{
    const int index = int(m_texts.indexOf(text));
    if (index < 0)
        return;
    const int value = m_values.at(index);
    const QPointer<EnumTextButton> alive(this);
    setCurrentEnum(value);
    if (alive)
        Q_EMIT currentItemEdited(value);
}

void EnumTextButton::onCurrentItemToggled(int)
{
    m_popup->setCurrentItem(m_currentText);
}

void EnumTextButton::updatePopupPosition()
{
    if (m_popup->viewMode() == QListView::IconMode) {
        Utils::centerWidgetInHost(m_popup, window());
        return;
    }
    m_popup->setWidgetFixedWidth(popupWidth());
    const QRect button(mapToGlobal(QPoint()), size());
    m_popup->move(Controls::popupTopLeft(button, m_popup->size(),
                                         Controls::availableGeometryAt(button.center()), 0));
}

bool EnumTextButton::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_popup) {
        if (event->type() == QEvent::Close)
            m_reopenGuard->start();
        else if (event->type() == QEvent::Show)
            updatePopupPosition();
    }
    return LabelButton::eventFilter(watched, event);
}

void EnumTextButton::mousePressEvent(QMouseEvent *event)
{
    m_closedByPress = m_reopenGuard->isActive();
    LabelButton::mousePressEvent(event);
}

void EnumTextButton::mouseReleaseEvent(QMouseEvent *event)
{
    const QPointer<EnumTextButton> alive(this);
    LabelButton::mouseReleaseEvent(event);
    if (alive)
        m_closedByPress = false;
}
