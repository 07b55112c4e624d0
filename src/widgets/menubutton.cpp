// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <widgets/menubutton.h>

#include <base/fingersize_p.h>
#include <controls/popupplacement_p.h>
#include <widgets/buttonaccessible_p.h>
#include <widgets/popupwidget.h>

#include <QMouseEvent>
#include <QPointer>
#include <QTimer>

namespace
{

constexpr int ReopenGuardMs = 200;

} // namespace

MenuButton::MenuButton(const QString &text, QWidget *parent)
    : MenuButton(parent)
{
    setText(text);
}

MenuButton::MenuButton(QWidget *parent)
    : QPushButton(parent)
    , m_popup(new PopupWidget(this))
    , m_reopenGuard(new QTimer(this))
{
    ButtonAccessible::install();
    setCheckable(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    m_popup->hide();
    m_popup->installEventFilter(this);
    m_reopenGuard->setSingleShot(true);
    m_reopenGuard->setInterval(ReopenGuardMs);

    connect(m_popup, &PopupWidget::currentItemChanged, this, &MenuButton::onPopupWidgetItemChanged);
    connect(m_popup, &PopupWidget::widgetClosed, this, [this] { setChecked(false); });
    connect(m_reopenGuard, &QTimer::timeout, this, [this] {
        setChecked(false);
        setDown(false);
    });
    // A press opens the list by itself; this is for the keyboard and for click().
    connect(this, &MenuButton::clicked, this, [this] {
        if (m_reopenGuard->isActive())
            setChecked(false);
        else
            openPopup();
    });
}

void MenuButton::setMenuItems(const QList<MenuSpec> &items)
{
    if (m_menuItems == items)
        return;
    clearMenuItems();
    m_menuItems = items;
    for (const MenuSpec &item : items) {
        m_values << item.value;
        m_texts << item.text;
    }
    m_popup->addItems(m_texts, 0);
}

void MenuButton::addMenuItem(int value, const QString &text)
{
    m_menuItems << MenuSpec{value, text};
    m_values << value;
    m_texts << text;
    m_popup->addItem(text);
    if (m_popup->isVisible())
        m_popup->popup();
}

void MenuButton::clearMenuItems()
{
    if (m_popup->isVisible())
        m_popup->close(); // what it offers is no longer true
    m_menuItems.clear();
    m_values.clear();
    m_texts.clear();
    m_popup->clear();
}

int MenuButton::getValueByDisplayName(const QString &text) const
{
    return m_values.value(m_texts.indexOf(text), -1);
}

void MenuButton::setItemTextAlignment(Qt::Alignment alignment)
{
    m_itemTextAlignment = alignment;
    m_popup->setItemTextAlignment(alignment);
    // Centred entries need the padding of both sides; others keep the theme's.
    m_popup->setStyleSheet(alignment & Qt::AlignHCenter
                               ? QStringLiteral("QListWidget#ListModeView::item { padding-left: "
                                                "4px; padding-right: 4px; }")
                               : QString());
}

void MenuButton::setIconSize(int width, int height)
{
    m_popup->setIconSize(width, height);
}

QSize MenuButton::iconSize() const
{
    return m_popup->iconSize();
}

void MenuButton::setItemCountPerRow(int count)
{
    m_popup->setItemCountPerRow(count);
}

int MenuButton::itemCountPerRow() const
{
    return m_popup->itemCountPerRow();
}

void MenuButton::setItemEnabled(const QString &text, bool enabled)
{
    m_popup->setItemEnabled(text, enabled);
}

void MenuButton::setItemEnabled(int index, bool enabled)
{
    m_popup->setItemEnabled(index, enabled);
}

void MenuButton::setTitleText(const QString &text)
{
    m_popup->setTitleText(text);
}

QString MenuButton::titleText() const
{
    return m_popup->titleText();
}

void MenuButton::setTitleVisible(bool visible)
{
    m_popup->setTitleVisible(visible);
}

bool MenuButton::titleVisible() const
{
    return m_popup->titleVisible();
}

void MenuButton::setViewMode(QListView::ViewMode mode)
{
    m_popup->setViewMode(mode);
}

QSize MenuButton::sizeHint() const
{
    const int finger = Utils::fingerSize(this);
    return QPushButton::sizeHint().expandedTo({finger, finger});
}

void MenuButton::onPopupWidgetItemChanged(const QString &text)
{
    const QPointer<MenuButton> alive(this);
    Q_EMIT menuItemClicked(getValueByDisplayName(text));
    if (alive)
        Q_EMIT menuItemClicked(text);
    if (!alive)
        return;
    m_popup->hide();
    setChecked(false);
}

void MenuButton::updatePopupPosition()
{
    if (!m_popup->isVisible())
        return;
    const QRect button(mapToGlobal(QPoint()), size());
    m_popup->move(Controls::popupTopLeft(button, m_popup->size(),
                                         Controls::availableGeometryAt(button.bottomLeft()), 0));
}

bool MenuButton::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_popup) {
        switch (event->type()) {
        case QEvent::FocusOut:
        case QEvent::Hide:
        case QEvent::Close:
        case QEvent::WindowDeactivate:
            m_reopenGuard->start();
            break;
        case QEvent::Show:
            updatePopupPosition();
            break;
        default:
            break;
        }
    }
    return QPushButton::eventFilter(watched, event);
}

void MenuButton::mousePressEvent(QMouseEvent *event)
{
    if (m_reopenGuard->isActive()) {
        setChecked(false);
        return;
    }
    if (event->button() == Qt::LeftButton)
        openPopup();
    QAbstractButton::mousePressEvent(event);
}

/// Opens the list, if there is anything to offer.
void MenuButton::openPopup()
{
    if (m_menuItems.isEmpty())
        return;
    setChecked(true);
    if (m_popup->isVisible())
        return;
    m_popup->setItemTextAlignment(m_itemTextAlignment);
    m_popup->setWidgetFixedWidth(width() * 3 / 2);
    m_popup->setCurrentItem(QString()); // a menu has no current entry
    m_popup->setWindowTitle(text()); // what assistive tools call it
    m_popup->popup();
    m_popup->show();
}
