// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <widgets/listbutton_p.h>

#include <controls/popupplacement_p.h>
#include <widgets/popupwidget.h>

namespace
{

constexpr int reopenGuardMs = 200;

} // namespace

ListButton::ListButton(QAbstractButton *button, std::function<void(const QString &)> pick)
    : m_button(button)
    , m_pick(std::move(pick))
    , m_reopenGuard(new QTimer(button))
{
    m_reopenGuard->setSingleShot(true);
    m_reopenGuard->setInterval(reopenGuardMs);
}

PopupWidget *ListButton::popup()
{
    if (m_popup)
        return m_popup;
    m_popup = new PopupWidget(m_button);
    m_popup->hide();
    m_popup->setScrollsInside(m_scrollsInside);
    m_popup->installEventFilter(m_button);
    QObject::connect(m_popup, &PopupWidget::widgetClosed, m_button,
                     [button = m_button] { button->setChecked(false); });
    QObject::connect(m_popup, &PopupWidget::currentItemChanged, m_button, m_pick);
    if (!isEmpty())
        fill();
    for (const int index : qAsConst(m_disabled))
        m_popup->setItemEnabled(index, false);
    return m_popup;
}

bool ListButton::isPopup(const QObject *object) const
{
    return m_popup && object == m_popup;
}

void ListButton::setCurrent(const QString &current)
{
    if (m_popup)
        m_popup->setCurrentItem(current);
}

void ListButton::setScrollsInside(bool scrolls)
{
    m_scrollsInside = scrolls;
    if (m_popup)
        m_popup->setScrollsInside(scrolls);
}

void ListButton::append(int value, const QString &text)
{
    m_values << value;
    m_texts << text;
    if (!m_popup)
        return;
    m_popup->addItem(text);
    if (m_popup->isVisible())
        m_popup->popup();
}

void ListButton::setEntryEnabled(int index, bool enabled)
{
    if (m_popup) {
        m_popup->setItemEnabled(index, enabled);
        return;
    }
    m_disabled.removeAll(index);
    if (!enabled && index >= 0 && index < m_texts.size())
        m_disabled << index;
}

void ListButton::clear()
{
    if (m_popup && m_popup->isVisible())
        m_popup->close();
    m_values.clear();
    m_texts.clear();
    m_disabled.clear();
    if (m_popup)
        m_popup->clear();
}

void ListButton::fill()
{
    if (m_popup)
        m_popup->addItems(m_texts, 0);
}

void ListButton::open(const QString &title, const QString &current, Qt::Alignment alignment)
{
    PopupWidget *const list = popup();
    fitWidth();
    list->setItemTextAlignment(alignment);
    list->setCurrentItem(current);
    list->setWindowTitle(title);
    list->popup();
    list->show();
}

void ListButton::fitWidth()
{
    popup()->setWidgetFixedWidth(m_button->width() * 3 / 2);
}

void ListButton::moveToButton(const QPoint &point)
{
    const QRect button(m_button->mapToGlobal(QPoint()), m_button->size());
    popup()->move(Controls::popupTopLeft(
        button, popup()->size(), Controls::availableGeometryAt(m_button->mapToGlobal(point)), 0));
}
