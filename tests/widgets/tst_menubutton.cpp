// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <widgets/menubutton.h>
#include <widgets/popupwidget.h>

#include <QAccessible>
#include <QListWidget>
#include <QPointer>
#include <QScreen>
#include <QSignalSpy>
#include <QtTest>

#include <pointer.h>
#include <vnatest.h>

class tst_MenuButton : public VnaTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void holdsItsItems();
    void opensOnPressAndReportsThePick();
    void theTapThatClosesDoesNotReopen();
    void comesUpWhenTheGuardRunsOut();
    void withoutItemsItIsACheckableButton();
    void opensByKeyAndByClick();
    void opensAboveWhenThereIsNoRoomBelow();
    void centredEntriesGetTheirPadding();
    void unknownTextsCountAsMinusOne();
    void slotsMayDeleteTheButton_data();
    void slotsMayDeleteTheButton();
};

namespace
{

/// A window with one button, and what the button told, in order.
struct Fixture {
    Fixture()
    {
        window.setGeometry(50, 50, 500, 400);
        button->setGeometry(20, 20, 120, 60);
        button->setMenuItems({{5, QStringLiteral("Maximum")}, {6, QStringLiteral("Minimum")}});
        QObject::connect(button, qOverload<int>(&MenuButton::menuItemClicked), &window,
                         [this](int value) { told << QString::number(value); });
        QObject::connect(button, qOverload<const QString &>(&MenuButton::menuItemClicked), &window,
                         [this](const QString &text) { told << text; });
        window.show();
    }
    bool expose() { return QTest::qWaitForWindowExposed(&window); }
    PopupWidget *popup() const { return button->findChild<PopupWidget *>(); }
    QListWidget *list() const { return button->findChild<QListWidget *>(); }
    void clickItem(int row) const { VnaTest::mouseClick(list()->viewport(), itemCentre(row)); }
    QPoint itemCentre(int row) const { return list()->visualItemRect(list()->item(row)).center(); }

    QWidget window;
    QPointer<MenuButton> button = new MenuButton(QStringLiteral("Search"), &window);
    QStringList told;
};

} // namespace

void tst_MenuButton::holdsItsItems()
{
    Fixture f;
    QVERIFY(f.button->isCheckable());
    QCOMPARE(f.button->text(), QStringLiteral("Search"));
    f.button->setItemEnabled(QStringLiteral("Maximum"), false);
    f.button->setMenuItems(f.button->menuItems()); // the same: nothing is rebuilt
    QVERIFY(!(f.list()->item(0)->flags() & Qt::ItemIsEnabled));
    f.button->addMenuItem(7, QStringLiteral("Maximum"));
    QCOMPARE(f.list()->count(), 3);
    QCOMPARE(f.button->menuItems().count(), 3);
    QCOMPARE(f.button->getValueByDisplayName(QStringLiteral("Maximum")), 5);
    QCOMPARE(f.button->getValueByDisplayName(QStringLiteral("Minimum")), 6);
    QCOMPARE(f.button->getValueByDisplayName(QStringLiteral("Peak")), -1);
    f.button->clearMenuItems();
    QVERIFY(f.button->menuItems().isEmpty());
    QCOMPARE(f.list()->count(), 0);
    QCOMPARE(f.button->getValueByDisplayName(QStringLiteral("Maximum")), -1);
}

void tst_MenuButton::opensOnPressAndReportsThePick()
{
    Fixture f;
    QVERIFY(f.expose());
    for (int round = 1; round <= 2; ++round) {
        VnaTest::mousePress(f.button);
        QVERIFY(f.popup()->isVisible());
        QVERIFY(f.button->isChecked());
        QCOMPARE(f.popup()->width(), 180);
        QVERIFY(!f.list()->currentItem()); // a menu remembers nothing
        VnaTest::mouseRelease(f.button);
        QVERIFY(f.popup()->isVisible());
        f.clickItem(1);
        QVERIFY(!f.popup()->isVisible());
        QVERIFY(!f.button->isChecked());
        QCOMPARE(f.told.count(), 2 * round);
        QCOMPARE(f.told.mid(2 * round - 2),
                 QStringList({QStringLiteral("6"), QStringLiteral("Minimum")}));
        QTest::qWait(250);
    }
}

void tst_MenuButton::theTapThatClosesDoesNotReopen()
{
    Fixture f;
    QVERIFY(f.expose());
    for (const int holdMs : {0, 300}) {
        VnaTest::mouseClick(f.button);
        QVERIFY(f.popup()->isVisible());
        VnaTest::mousePress(f.button);
        QTest::qWait(holdMs);
        VnaTest::mouseRelease(f.button);
        QVERIFY(!f.popup()->isVisible());
        QVERIFY(!f.button->isChecked());
        QVERIFY(f.told.isEmpty());
        QTest::qWait(250);
    }
    VnaTest::mousePress(f.button);
    QVERIFY(f.popup()->isVisible());
    VnaTest::mouseRelease(f.button);
}

void tst_MenuButton::comesUpWhenTheGuardRunsOut()
{
    Fixture f;
    QVERIFY(f.expose());
    VnaTest::mouseClick(f.button); // the list takes the release
    QVERIFY(f.button->isDown());
    f.popup()->close();
    QVERIFY(f.button->isDown());
    QTRY_VERIFY_WITH_TIMEOUT(!f.button->isDown(), 2000);
    QVERIFY(!f.button->isChecked());
}

void tst_MenuButton::withoutItemsItIsACheckableButton()
{
    Fixture f;
    f.button->clearMenuItems();
    QVERIFY(f.expose());
    VnaTest::mouseClick(f.button);
    QVERIFY(!f.popup()->isVisible());
    QVERIFY(f.button->isChecked());
    VnaTest::mouseClick(f.button);
    QVERIFY(!f.button->isChecked());
}

void tst_MenuButton::opensByKeyAndByClick()
{
    Fixture f;
    f.button->setFocus();
    QVERIFY(QTest::qWaitForWindowActive(&f.window));
    VnaTest::typeKey(&f.window, Qt::Key_Space, QStringLiteral(" "));
    QVERIFY(f.popup()->isVisible());
    QVERIFY(f.button->isChecked());
    VnaTest::typeKey(f.popup(), Qt::Key_Escape);
    QVERIFY(!f.popup()->isVisible());
    QVERIFY(!f.button->isChecked());
    QTest::qWait(250);

    QAccessibleInterface *const accessible = QAccessible::queryAccessibleInterface(f.button);
    QCOMPARE(accessible->role(), QAccessible::ButtonMenu);
    QCOMPARE(accessible->text(QAccessible::Name), QStringLiteral("Search"));
    accessible->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
    QVERIFY(f.popup()->isVisible());
    QVERIFY(accessible->state().expanded);
}

void tst_MenuButton::opensAboveWhenThereIsNoRoomBelow()
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    MenuButton button;
    button.setWindowFlag(Qt::FramelessWindowHint);
    button.addMenuItem(1, QStringLiteral("one"));
    button.setGeometry(screen.right() - 99, screen.bottom() - 49, 100, 50);
    button.show();
    QVERIFY(QTest::qWaitForWindowExposed(&button));
    button.click();
    const QRect shown = button.findChild<PopupWidget *>()->geometry();
    QVERIFY(shown.bottom() < button.y());
    QVERIFY(shown.right() <= screen.right() - 5);
}

void tst_MenuButton::centredEntriesGetTheirPadding()
{
    Fixture f;
    f.button->setItemTextAlignment(Qt::AlignHCenter);
    QCOMPARE(f.popup()->styleSheet(),
             QStringLiteral("QListWidget#ListModeView::item { "
                            "padding-left: 4px; padding-right: 4px; }"));
    QCOMPARE(f.list()->item(0)->textAlignment(), int(Qt::AlignHCenter | Qt::AlignVCenter));
    f.button->setItemTextAlignment(Qt::AlignRight);
    QVERIFY(f.popup()->styleSheet().isEmpty());
}

void tst_MenuButton::unknownTextsCountAsMinusOne()
{
    Fixture f;
    f.button->onPopupWidgetItemChanged(QStringLiteral("Peak"));
    QCOMPARE(f.told, QStringList({QStringLiteral("-1"), QStringLiteral("Peak")}));
}

void tst_MenuButton::slotsMayDeleteTheButton_data()
{
    QTest::addColumn<bool>("first");
    QTest::newRow("by value") << true;
    QTest::newRow("by text") << false;
}

void tst_MenuButton::slotsMayDeleteTheButton()
{
    QFETCH(bool, first);
    Fixture f;
    QVERIFY(f.expose());
    const auto deleteButton = [&f] { delete f.button.data(); };
    if (first)
        connect(f.button, qOverload<int>(&MenuButton::menuItemClicked), &f.window, deleteButton);
    else
        connect(f.button, qOverload<const QString &>(&MenuButton::menuItemClicked), &f.window,
                deleteButton);
    VnaTest::mouseClick(f.button);
    f.clickItem(0);
    QVERIFY(!f.button);
    QCOMPARE(f.told.count(), first ? 1 : 2);
}

QTEST_MAIN(tst_MenuButton)
#include "tst_menubutton.moc"
