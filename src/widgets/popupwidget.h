// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <vnawidgets_export.h>

#include <QListView>
#include <QWidget>

#include <memory>

class PopupWidgetPrivate;

/// When the list of a button comes to be, which costs more than the button: for classes of a host
/// that derive from MenuButton or EnumTextButton.
enum class ListCreation {
    AtOnce, ///< with the button, as for every button made with a public constructor
    WhenOpened, ///< or when one of its settings is asked for: for a screen of many buttons
};

/*! The list of choices that opens from a button: one column (list mode) or a grid of tiles (icon
    mode), with an optional title by which it can be dragged. A tap on an enabled item reports its
    text and closes the list; a tap on a disabled one changes nothing. Return, Enter and Space pick
    the current item, Escape and a tap outside close. A list taller than its screen follows the
    finger, the wheel and the arrow keys, since it never scrolls inside itself.

    It is not a menu: it holds neither separators nor submenus, and its owner places and shows it.

    \code
    auto *popup = new PopupWidget(button);
    popup->addItems({tr("LogM"), tr("Phase"), tr("Smith")}, 0);
    popup->setCurrentItem(tr("Smith"));
    connect(popup, &PopupWidget::currentItemChanged, this, &Panel::setFormatName);
    popup->popup(); // takes its size from the items
    popup->move(button->mapToGlobal(button->rect().bottomLeft()));
    popup->show();
    \endcode

    Style sheets address the list as "ListModeView" or "IconModeView" and the title as
    "IconModeViewTitle". In icon mode the list must not have a frame, or a column falls off. */
class VNAWIDGETS_EXPORT PopupWidget : public QWidget
{
    Q_OBJECT

public:
    /// An empty list in list mode; the window flags are Qt::Popup.
    explicit PopupWidget(QWidget *parent = nullptr);
    ~PopupWidget() override;

    /// Appends one item.
    void addItem(const QString &text);
    /// Appends items and highlights row \a currentRow, which does not count as a choice.
    void addItems(const QList<QString> &texts, int currentRow);
    /// Removes all items; what was chosen last is still remembered.
    void clear();

    /// Makes the first item of exactly this text the chosen one, or none; emits nothing.
    void setCurrentItem(const QString &text);
    /// Enables or disables the first item of exactly this text.
    void setItemEnabled(const QString &text, bool enabled);
    /// Enables or disables an item by its row; other rows are ignored.
    void setItemEnabled(int index, bool enabled);

    /// Horizontal alignment of the rows, which are always centred vertically. Default: left. Tiles
    /// have their text in the middle.
    Qt::Alignment itemTextAlignment() const;
    /// Sets itemTextAlignment().
    void setItemTextAlignment(Qt::Alignment alignment);

    /// The title; empty at first.
    QString titleText() const;
    /// Sets the title and shows it, when the text differs.
    void setTitleText(const QString &text);
    /// Whether the title takes part in the pop-up, shown or not yet. Default: false.
    bool titleVisible() const;
    /// Sets titleVisible().
    void setTitleVisible(bool visible);

    /// Rows (QListView::ListMode, the default) or tiles (QListView::IconMode).
    QListView::ViewMode viewMode() const;
    /// Sets viewMode().
    void setViewMode(QListView::ViewMode mode);

    /// Width of the list in list mode, in pixels, from the next popup(). Default: 100.
    int widgetFixedWidth() const;
    /// Sets widgetFixedWidth().
    void setWidgetFixedWidth(int width);

    /// Size of a tile in icon mode, in pixels, from the next popup(). Default: 120 x 100.
    QSize iconSize() const;
    /// Sets iconSize().
    void setIconSize(int width, int height);

    /// Number of columns in icon mode, from the next popup(). Default: 4; less than 1 counts as 1.
    int itemCountPerRow() const;
    /// Sets itemCountPerRow().
    void setItemCountPerRow(int count);

    /// Fits the size to the items, without scroll bars; the caller moves and shows the pop-up.
    void popup();

    /// Whether a list taller than its screen is made to fit, from the next popup(), and scrolls
    /// inside: for platforms where a window cannot move itself. Default: false.
    bool scrollsInside() const;
    /// Sets scrollsInside().
    void setScrollsInside(bool scrolls);

Q_SIGNALS:
    /// The user picked an item whose text is not the chosen one's.
    void currentItemChanged(const QString &text);
    /// The pop-up closed, whoever closed it.
    void widgetClosed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    const std::unique_ptr<PopupWidgetPrivate> d;
};
