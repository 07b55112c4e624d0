// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <widgets/listbutton_p.h>

#include <controls/popupplacement_p.h>
#include <widgets/popupwidget.h>

namespace
{

constexpr int reopenGuardMs = 200;

} // namespace

ListButton::ListButton(QAbstractButton *button)
    : m_button(button)
    , m_popup(new PopupWidget(button))
    , m_reopenGuard(new QTimer(button))
{
    m_popup->hide();
    m_popup->installEventFilter(button);
    m_reopenGuard->setSingleShot(true);
    m_reopenGuard->setInterval(reopenGuardMs);
    QObject::connect(m_popup, &PopupWidget::widgetClosed, button,
                     [button] { button->setChecked(false); });
}

void ListButton::append(int value, const QString &text)
{
    m_values << value;
    m_texts << text;
    m_popup->addItem(text);
    if (m_popup->isVisible())
        m_popup->popup();
}

void ListButton::clear()
{
    if (m_popup->isVisible())
        m_popup->close();
    m_values.clear();
    m_texts.clear();
    m_popup->clear();
}

void ListButton::fill()
{
    m_popup->addItems(m_texts, 0);
}

void ListButton::open(const QString &title, const QString &current, Qt::Alignment alignment)
{
    fitWidth();
    m_popup->setItemTextAlignment(alignment);
    m_popup->setCurrentItem(current);
    m_popup->setWindowTitle(title);
    m_popup->popup();
    m_popup->show();
}

void ListButton::fitWidth()
{
    m_popup->setWidgetFixedWidth(m_button->width() * 3 / 2);
}

void ListButton::moveToButton(const QPoint &point)
{
    const QRect button(m_button->mapToGlobal(QPoint()), m_button->size());
    m_popup->move(Controls::popupTopLeft(
        button, m_popup->size(), Controls::availableGeometryAt(m_button->mapToGlobal(point)), 0));
}
