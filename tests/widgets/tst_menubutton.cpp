// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <widgets/menubutton.h>

#include <popupscene.h>

using namespace VnaTest;

namespace
{

struct Scene : PopupScene<MenuButton> {
    Scene()
    {
        button->setText("Search"_s);
        button->setMenuItems({{5, "Maximum"_s}, {6, "Minimum"_s}});
        note(told, "value", button.data(), qOverload<int>(&MenuButton::menuItemClicked));
        note(told, "text", button.data(), qOverload<const QString &>(&MenuButton::menuItemClicked));
    }
};

} // namespace

class tst_MenuButton : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void holdsItsItems()
    {
        Scene f;
        f.button->setItemEnabled("Maximum"_s, false);
        f.button->setMenuItems(
            {{5, "Maximum"_s}, {6, "Minimum"_s}}); // the same: nothing is rebuilt
        QVERIFY(!f.isEnabled(0));
        for (const QString &second : {"Minimum"_s, "Lowest"_s}) { // another value, another text
            f.button->setMenuItems({{5, "Maximum"_s}, {7, second}});
            QCOMPARE(f.list()->item(1)->text(), second);
            QCOMPARE(f.button->getValueByDisplayName(second), 7);
        }
        f.button->addMenuItem(7, "Maximum"_s);
        QCOMPARE(f.list()->count(), 3);
        QCOMPARE(f.button->getValueByDisplayName("Maximum"_s), 5);
        f.button->onPopupWidgetItemChanged("Peak"_s);
        QCOMPARE(f.told, QStringList({"value -1"_s, "text Peak"_s}));
        f.button->click();
        f.button->addMenuItem(8, "Peak"_s); // while it is open
        QCOMPARE(f.list()->count(), 4);
        f.button->clearMenuItems();
        QVERIFY(!f.isOpen() && f.button->menuItems().isEmpty() && f.list()->count() == 0);

        // Without items it is a checkable button.
        f.waitForGuard();
        for (const bool checked : {true, false}) {
            mouseClick(f.button);
            QVERIFY(!f.isOpen());
            QCOMPARE(f.button->isChecked(), checked);
        }

        f.button->setMenuItems({{5, "Maximum"_s}});
        f.button->setItemTextAlignment(Qt::AlignHCenter);
        QCOMPARE(f.popup()->styleSheet(),
                 "QListWidget#ListModeView::item { padding-left: 4px; padding-right: 4px; }"_s);
        QCOMPARE(f.list()->item(0)->textAlignment(), int(Qt::AlignHCenter | Qt::AlignVCenter));
        f.button->setItemTextAlignment(Qt::AlignRight);
        QVERIFY(f.popup()->styleSheet().isEmpty());
    }

    void opensOnPressAndReportsThePick()
    {
        Scene f;
        for (int round = 1; round <= 2; ++round) {
            mousePress(f.button);
            QVERIFY(f.isOpen() && f.button->isChecked());
            QCOMPARE(f.popup()->width(), 180);
            QVERIFY(!f.list()->currentItem()); // a menu remembers nothing
            mouseRelease(f.button);
            QVERIFY(f.isOpen());
            f.clickItem(1);
            QVERIFY(!f.isOpen() && !f.button->isChecked());
            QCOMPARE(f.told, QStringList({"value 6"_s, "text Minimum"_s}));
            f.told.clear();
            f.waitForGuard();
        }
    }

    void theTapThatClosesDoesNotReopen()
    {
        tapThatCloses<Scene>();
        Scene f;
        mouseClick(f.button); // the list takes the release
        f.popup()->close();
        QVERIFY(f.button->isDown());
        QTRY_VERIFY_WITH_TIMEOUT(!f.button->isDown(), 2000);
        QVERIFY(!f.button->isChecked());
    }

    void listThatLosesTheFocusCountsAsClosed()
    {
        Scene f;
        f.window.installEventFilter(f.button); // what others lose does not count
        for (const QEvent::Type type : {QEvent::FocusOut, QEvent::WindowDeactivate}) {
            const Row row(QString::number(type));
            QEvent event(type);
            QCoreApplication::sendEvent(f.popup(), &event);
            f.button->click();
            QVERIFY(!f.isOpen() && !f.button->isChecked());
            f.waitForGuard();
            QCoreApplication::sendEvent(&f.window, &event);
            f.button->click();
            QVERIFY(f.isOpen());
            f.popup()->close();
            f.waitForGuard();
        }
    }

    void listToComeKnowsWhatIsDisabled()
    {
        struct LateButton : MenuButton {
            LateButton()
                : MenuButton(ListCreation::WhenOpened, nullptr)
            {
            }
        } button;
        button.setMenuItems({{5, "Maximum"_s}, {6, "Minimum"_s}, {7, "Peak"_s}});
        for (const int index : {-1, 0, 1, 3})
            button.setItemEnabled(index, false);
        button.setItemEnabled(1, true);
        QVERIFY(!button.findChild<PopupWidget *>());
        button.click();
        const auto *const list = button.findChild<QListWidget *>();
        QString enabled;
        for (int row = 0; row < list->count(); ++row)
            enabled += list->item(row)->flags() & Qt::ItemIsEnabled ? u'+' : u'-';
        QCOMPARE(enabled, "-++"_s);
    }

    void opensByKeyAndByClick()
    {
        Scene f;
        f.button->setFocus();
        QVERIFY(QTest::qWaitForWindowActive(&f.window));
        typeKey(&f.window, Qt::Key_Space, " "_s);
        QVERIFY(f.isOpen() && f.button->isChecked());
        typeKey(f.popup(), Qt::Key_Escape);
        QVERIFY(!f.isOpen() && !f.button->isChecked());
        f.waitForGuard();

        auto *const accessible = QAccessible::queryAccessibleInterface(f.button);
        QCOMPARE(accessible->role(), QAccessible::ButtonMenu);
        QCOMPARE(accessible->text(QAccessible::Name), "Search"_s);
        accessible->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
        QVERIFY(f.isOpen() && accessible->state().expanded);
    }
};

QTEST_MAIN(tst_MenuButton)
#include "tst_menubutton.moc"
