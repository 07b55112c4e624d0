// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <widgets/popupwidget.h>

#include "pointer.h"
#include "vnatest.h"

namespace VnaTest
{

/// Waits until a tap on a button whose list closed counts as a new one.
inline void waitForGuard(const QWidget *button)
{
    const auto *const guard = button->findChild<QTimer *>(QString(), Qt::FindDirectChildrenOnly);
    QTRY_VERIFY(!guard->isActive());
}

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

    /// Waits until a tap counts as a new one.
    void waitForGuard() const { VnaTest::waitForGuard(button); }

    QWidget window;
    QPointer<Button> button = new Button(&window);
    QStringList told;
};

/// The tap that closes the list does not open it again, by finger or mouse, short or long.
template<typename Scene>
void tapThatCloses()
{
    for (const auto &[byTouch, holdMs] :
         {std::pair(false, 0), {false, 300}, {true, 0}, {true, 300}}) {
        const Row row(QStringLiteral("touch: %1, %2 ms").arg(byTouch).arg(holdMs));
        Scene f;
        TouchScreen screen(&f.window);
        const auto tap = [&f, &screen, touches = byTouch](int hold) {
            const QPoint centre = f.button->geometry().center();
            touches ? screen.press(centre) : mousePress(&f.window, centre);
            QTest::qWait(hold);
            touches ? screen.release(centre) : mouseRelease(&f.window, centre);
        };
        tap(0);
        QVERIFY(f.isOpen());
        QSignalSpy closed(f.popup(), &PopupWidget::widgetClosed);
        tap(holdMs);
        QVERIFY(!f.isOpen() && !f.button->isChecked());
        QCOMPARE(closed.count(), 1);
        f.waitForGuard();
        tap(0);
        QVERIFY(f.isOpen());
        f.popup()->close(); // as a press does that reaches the button as well
        tap(holdMs);
        QVERIFY(!f.isOpen());
        QVERIFY(f.told.isEmpty());
    }
}

} // namespace VnaTest
