// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <vnawidgets_export.h>
#include <widgets/popupwidget.h>

#include <QList>
#include <QListView>
#include <QPushButton>

#include <memory>

/*! A push button that offers a menu of commands in a list sized for fingers. A press, Space or
    click() opens the list; picking an entry reports it, and nothing is remembered.

    Not for a setting: EnumTextButton shows what is chosen.

    \code
    auto *search = new MenuButton(tr("Search"), this);
    search->addMenuItem(MaximumPeak, tr("Maximum"));
    search->addMenuItem(MinimumPeak, tr("Minimum"));
    search->addMenuItem(NextPeak, tr("Next peak"));
    connect(search, qOverload<int>(&MenuButton::menuItemClicked), this, &Panel::search);
    \endcode

    The button is checked while its list is open. Style hooks are those of QPushButton and
    PopupWidget. */
class VNAWIDGETS_EXPORT MenuButton : public QPushButton
{
    Q_OBJECT

public:
    /// One command: what it means to the host, and what the user reads.
    struct MenuSpec {
        int value; ///<what it means to the host
        QString text; ///<what the user reads

        friend bool operator==(const MenuSpec &a, const MenuSpec &b)
        {
            return a.value == b.value && a.text == b.text;
        }
        friend bool operator!=(const MenuSpec &a, const MenuSpec &b) { return !(a == b); }
    };

    /// A button without text and commands.
    explicit MenuButton(QWidget *parent = nullptr);
    /// A button without commands.
    explicit MenuButton(const QString &text, QWidget *parent = nullptr);
    ~MenuButton() override;

    /// The commands in display order.
    QList<MenuSpec> menuItems() const;
    /// Sets the commands.
    void setMenuItems(const QList<MenuSpec> &items);
    /// Appends one command.
    void addMenuItem(int value, const QString &text);
    /// Removes all commands.
    void clearMenuItems();

    /// Value of the first command of that text, or -1.
    int getValueByDisplayName(const QString &text) const;

    /// Horizontal alignment of the entries. Default: left.
    void setItemTextAlignment(Qt::Alignment alignment);

    /// \name The list, see PopupWidget
    ///@{

    /// Size of a tile in pixels. Default: 120 x 100.
    void setIconSize(int width, int height);
    /// See setIconSize().
    QSize iconSize() const;
    /// Columns of tiles. Default: 4.
    void setItemCountPerRow(int count);
    /// See setItemCountPerRow().
    int itemCountPerRow() const;
    /// Enables or disables the first command of this text.
    void setItemEnabled(const QString &text, bool enabled);
    /// Enables or disables the command at an index.
    void setItemEnabled(int index, bool enabled);
    /// Sets the title, and shows it.
    void setTitleText(const QString &text);
    /// The title of the list; empty at first.
    QString titleText() const;
    /// Sets titleVisible().
    void setTitleVisible(bool visible);
    /// Whether the title is shown. Default: false.
    bool titleVisible() const;
    /// Rows (QListView::ListMode, the default) or tiles.
    void setViewMode(QListView::ViewMode mode);
    ///@}

    QSize sizeHint() const override;

public Q_SLOTS:
    /// Reports what the user picked and puts the list away.
    void onPopupWidgetItemChanged(const QString &text);
    /// Moves the open list to its place below the button, or above it.
    void updatePopupPosition();

Q_SIGNALS:
    /// The user picked a command; -1 for a text that belongs to none.
    void menuItemClicked(int value);
    /// The same pick by its text; follows at once.
    void menuItemClicked(const QString &text);

protected:
    /// A button without entries whose list is made at \a creation.
    MenuButton(ListCreation creation, QWidget *parent);

    bool eventFilter(QObject *watched, QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    void openPopup();

    struct Private;
    const std::unique_ptr<Private> d;
};
