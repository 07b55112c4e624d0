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

/// What a button hands on to its list, of which the second item gets disabled.
template<typename Button>
void setListUp(const PopupScene<Button> &scene)
{
    Button *const button = scene.button;
    button->setViewMode(QListView::IconMode);
    button->setIconSize(80, 70);
    button->setItemCountPerRow(2);
    button->setTitleText(QStringLiteral("Format"));
    QVERIFY(button->titleVisible());
    button->setTitleVisible(false);
    button->setItemEnabled(1, false);
    QCOMPARE(scene.popup()->viewMode(), QListView::IconMode);
    QCOMPARE(button->iconSize(), QSize(80, 70));
    QCOMPARE(button->itemCountPerRow(), 2);
    QCOMPARE(button->titleText(), QStringLiteral("Format"));
    QVERIFY(!button->titleVisible() && !scene.popup()->titleVisible() && !scene.isEnabled(1));
}

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

/// The list opens under its button or above it, and on the screen: the button is a window of its
/// own in each corner.
template<typename Button>
void openInCorners(Button *button)
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    const auto *const popup = button->template findChild<PopupWidget *>();
    button->setWindowFlag(Qt::FramelessWindowHint);
    for (const QPoint corner : {QPoint(0, 0), QPoint(1, 0), QPoint(0, 1), QPoint(1, 1)}) {
        const Row row(QStringLiteral("corner %1, %2").arg(corner.x()).arg(corner.y()));
        button->setGeometry(screen.left() + corner.x() * (screen.width() - 100),
                            screen.top() + corner.y() * (screen.height() - 50), 100, 50);
        showExposed(button);
        for (int round = 0; round < 2; ++round) {
            button->click();
            const QRect shown = popup->geometry();
            QVERIFY(screen.adjusted(5, 5, -5, -5).contains(shown));
            QVERIFY(corner.y() ? shown.bottom() < button->y() : shown.top() >= button->y() + 49);
            typeKey(popup, Qt::Key_Escape);
            QVERIFY(!popup->isVisible());
            waitForGuard(button);
        }
    }
}

} // namespace VnaTest
