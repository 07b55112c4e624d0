// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <widgets/menubutton.h>

#include <base/fingersize_p.h>
#include <widgets/buttonaccessible_p.h>
#include <widgets/listbutton_p.h>
#include <widgets/popupwidget.h>

#include <QMouseEvent>
#include <QPointer>

namespace
{

class MenuButtonAccessible : public ButtonAccessible
{
public:
    using ButtonAccessible::ButtonAccessible;

    QAccessible::Role role() const override { return QAccessible::ButtonMenu; }
};

} // namespace

MenuButton::MenuButton(const QString &text, QWidget *parent)
    : MenuButton(parent)
{
    setText(text);
}

MenuButton::MenuButton(QWidget *parent)
    : QPushButton(parent)
    , m_list(std::make_unique<ListButton>(this))
{
    ButtonAccessible::install<MenuButton, MenuButtonAccessible>();
    setCheckable(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    connect(m_list->popup(), &PopupWidget::currentItemChanged, this,
            &MenuButton::onPopupWidgetItemChanged);
    connect(m_list->reopenGuard(), &QTimer::timeout, this, [this] {
        setChecked(false);
        setDown(false);
    });
    // A press opens the list by itself; this is for the keyboard and for click().
    connect(this, &MenuButton::clicked, this, [this] {
        if (m_list->reopenGuard()->isActive())
            setChecked(false);
        else
            openPopup();
    });
}

MenuButton::~MenuButton() = default;

void MenuButton::setMenuItems(const QList<MenuSpec> &items)
{
    if (m_menuItems == items)
        return;
    m_menuItems = items;
    m_list->setEntries(items);
}

void MenuButton::addMenuItem(int value, const QString &text)
{
    m_menuItems << MenuSpec{value, text};
    m_list->append(value, text);
}

void MenuButton::clearMenuItems()
{
    m_menuItems.clear();
    m_list->clear();
}

int MenuButton::getValueByDisplayName(const QString &text) const
{
    return m_list->valueAt(m_list->indexOf(text));
}

void MenuButton::setItemTextAlignment(Qt::Alignment alignment)
{
    m_itemTextAlignment = alignment;
    m_list->popup()->setItemTextAlignment(alignment);
    // Centred entries need the padding of both sides; others keep the theme's.
    m_list->popup()->setStyleSheet(alignment & Qt::AlignHCenter ? QStringLiteral(
                                       "QListWidget#ListModeView::item { padding-left: "
                                       "4px; padding-right: 4px; }")
                                                                : QString());
}

void MenuButton::setIconSize(int width, int height)
{
    m_list->popup()->setIconSize(width, height);
}

QSize MenuButton::iconSize() const
{
    return m_list->popup()->iconSize();
}

void MenuButton::setItemCountPerRow(int count)
{
    m_list->popup()->setItemCountPerRow(count);
}

int MenuButton::itemCountPerRow() const
{
    return m_list->popup()->itemCountPerRow();
}

void MenuButton::setItemEnabled(const QString &text, bool enabled)
{
    m_list->popup()->setItemEnabled(text, enabled);
}

void MenuButton::setItemEnabled(int index, bool enabled)
{
    m_list->popup()->setItemEnabled(index, enabled);
}

void MenuButton::setTitleText(const QString &text)
{
    m_list->popup()->setTitleText(text);
}

QString MenuButton::titleText() const
{
    return m_list->popup()->titleText();
}

void MenuButton::setTitleVisible(bool visible)
{
    m_list->popup()->setTitleVisible(visible);
}

bool MenuButton::titleVisible() const
{
    return m_list->popup()->titleVisible();
}

void MenuButton::setViewMode(QListView::ViewMode mode)
{
    m_list->popup()->setViewMode(mode);
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
    m_list->popup()->hide();
    setChecked(false);
}

void MenuButton::updatePopupPosition()
{
    if (m_list->popup()->isVisible())
        m_list->moveToButton(rect().bottomLeft());
}

bool MenuButton::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_list->popup()) {
        switch (event->type()) {
        case QEvent::FocusOut:
        case QEvent::Hide:
        case QEvent::Close:
        case QEvent::WindowDeactivate:
            m_list->reopenGuard()->start();
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
    if (m_list->reopenGuard()->isActive()) {
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
    if (!m_list->popup()->isVisible())
        m_list->open(text(), QString(), m_itemTextAlignment); // a menu has no current entry
}
