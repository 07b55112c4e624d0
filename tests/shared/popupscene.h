// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <widgets/popupwidget.h>

#include "pointer.h"

namespace VnaTest
{

/// Taps row \a row of a list.
inline void clickItem(const QListWidget *list, int row)
{
    mouseClick(list->viewport(), list->visualItemRect(list->item(row)).center());
}

/// A window with one button that opens a list, and what the button told, in order.
template<typename Button>
struct PopupScene {
    PopupScene()
    {
        window.setGeometry(50, 50, 500, 400);
        button->setGeometry(20, 20, 120, 60);
        showExposed(&window);
    }
    PopupWidget *popup() const { return button->template findChild<PopupWidget *>(); }
    QListWidget *list() const { return button->template findChild<QListWidget *>(); }
    bool isOpen() const { return popup()->isVisible(); }
    bool isEnabled(int row) const { return list()->item(row)->flags() & Qt::ItemIsEnabled; }
    void clickItem(int row) const { VnaTest::clickItem(list(), row); }

    /// Time enough for a tap to count as a new one.
    static constexpr int GuardMs = 250;

    QWidget window;
    QPointer<Button> button = new Button(&window);
    QStringList told;
};

/// A button as a window of its own in a corner of its screen, 0 or 1 each way.
inline void showInCorner(QWidget *button, const QRect &screen, const QPoint &corner)
{
    button->setWindowFlag(Qt::FramelessWindowHint);
    button->setGeometry(screen.left() + corner.x() * (screen.width() - 100),
                        screen.top() + corner.y() * (screen.height() - 50), 100, 50);
    showExposed(button);
}

} // namespace VnaTest
