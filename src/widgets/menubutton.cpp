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

struct MenuButton::Private {
    explicit Private(MenuButton *button)
        : list(button, [button](const QString &text) { button->onPopupWidgetItemChanged(text); })
    {
    }

    ListButton list;
    QList<MenuSpec> menuItems;
    Qt::Alignment itemTextAlignment = Qt::AlignLeft;
};

MenuButton::MenuButton(const QString &text, QWidget *parent)
    : MenuButton(parent)
{
    setText(text);
}

MenuButton::MenuButton(QWidget *parent)
    : MenuButton(ListCreation::AtOnce, parent)
{
}

MenuButton::MenuButton(ListCreation creation, QWidget *parent)
    : QPushButton(parent)
    , d(std::make_unique<Private>(this))
{
    ButtonAccessible::install<MenuButton, MenuButtonAccessible>();
    setCheckable(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    if (creation == ListCreation::AtOnce)
        d->list.popup();
    connect(d->list.reopenGuard(), &QTimer::timeout, this, [this] {
        setChecked(false);
        setDown(false);
    });
    // A press opens the list by itself; this is for the keyboard and for click().
    connect(this, &MenuButton::clicked, this, [this] {
        if (d->list.reopenGuard()->isActive())
            setChecked(false);
        else
            openPopup();
    });
}

MenuButton::~MenuButton() = default;

QList<MenuButton::MenuSpec> MenuButton::menuItems() const
{
    return d->menuItems;
}

void MenuButton::setMenuItems(const QList<MenuSpec> &items)
{
    if (d->menuItems == items)
        return;
    d->menuItems = items;
    d->list.setEntries(items);
}

void MenuButton::addMenuItem(int value, const QString &text)
{
    d->menuItems << MenuSpec{value, text};
    d->list.append(value, text);
}

void MenuButton::clearMenuItems()
{
    d->menuItems.clear();
    d->list.clear();
}

int MenuButton::getValueByDisplayName(const QString &text) const
{
    return d->list.valueAt(d->list.indexOf(text));
}

void MenuButton::setItemTextAlignment(Qt::Alignment alignment)
{
    d->itemTextAlignment = alignment;
    d->list.popup()->setItemTextAlignment(alignment);
    // Centred entries need the padding of both sides; others keep the theme's.
    d->list.popup()->setStyleSheet(alignment & Qt::AlignHCenter ? QStringLiteral(
                                       "QListWidget#ListModeView::item { padding-left: "
                                       "4px; padding-right: 4px; }")
                                                                : QString());
}

void MenuButton::setIconSize(int width, int height)
{
    d->list.popup()->setIconSize(width, height);
}

QSize MenuButton::iconSize() const
{
    return d->list.popup()->iconSize();
}

void MenuButton::setItemCountPerRow(int count)
{
    d->list.popup()->setItemCountPerRow(count);
}

int MenuButton::itemCountPerRow() const
{
    return d->list.popup()->itemCountPerRow();
}

void MenuButton::setItemEnabled(const QString &text, bool enabled)
{
    d->list.setEntryEnabled(d->list.indexOf(text), enabled);
}

void MenuButton::setItemEnabled(int index, bool enabled)
{
    d->list.setEntryEnabled(index, enabled);
}

void MenuButton::setTitleText(const QString &text)
{
    d->list.popup()->setTitleText(text);
}

QString MenuButton::titleText() const
{
    return d->list.popup()->titleText();
}

void MenuButton::setTitleVisible(bool visible)
{
    d->list.popup()->setTitleVisible(visible);
}

bool MenuButton::titleVisible() const
{
    return d->list.popup()->titleVisible();
}

void MenuButton::setViewMode(QListView::ViewMode mode)
{
    d->list.popup()->setViewMode(mode);
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
    d->list.popup()->hide();
    setChecked(false);
}

void MenuButton::updatePopupPosition()
{
    if (d->list.popup()->isVisible())
        d->list.moveToButton(rect().bottomLeft());
}

bool MenuButton::eventFilter(QObject *watched, QEvent *event)
{
    if (d->list.isPopup(watched)) {
        switch (event->type()) {
        case QEvent::FocusOut:
        case QEvent::Hide:
        case QEvent::Close:
        case QEvent::WindowDeactivate:
            d->list.reopenGuard()->start();
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
    if (d->list.reopenGuard()->isActive()) {
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
    if (d->menuItems.isEmpty())
        return;
    setChecked(true);
    if (!d->list.popup()->isVisible())
        d->list.open(text(), QString(), d->itemTextAlignment); // a menu has no current entry
}
