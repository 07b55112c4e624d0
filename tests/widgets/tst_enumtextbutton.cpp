// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <widgets/enumtextbutton.h>

#include <popupscene.h>

#include <functional>

using namespace VnaTest;

namespace
{

const QList<EnumTextButton::EnumSpec> Formats = {
    {10, "Log mag"_s}, {20, "Phase"_s}, {30, "R + jX"_s}};

struct Scene : PopupScene<EnumTextButton> {
    Scene()
    {
        button->setText("Format"_s);
        button->setEnums(Formats);
        note(told, "toggled", button.data(), &EnumTextButton::currentItemToggled);
        note(told, "edited", button.data(), &EnumTextButton::currentItemEdited);
    }
};

} // namespace

class tst_EnumTextButton : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void setsTheCurrentChoice()
    {
        Scene f;
        QVERIFY(!f.button->setCurrentEnum(7));
        QCOMPARE(f.button->labelText(), QString());
        QVERIFY(f.button->setCurrentEnum(20));
        QCOMPARE(f.button->labelText(), "Phase"_s);
        QVERIFY(f.button->setCurrentEnum(20)); // tells every time
        QVERIFY(!f.button->setCurrentEnum({20, "Phase"_s})); // tells changes only
        const EnumTextButton::EnumSpec argument{20, "Argument"_s};
        QVERIFY(f.button->setCurrentEnum(argument)); // need not be listed
        QCOMPARE(f.button->label()->text(), "Argument"_s);
        QVERIFY(!f.button->setCurrentEnum(7));
        QVERIFY(f.button->currentEnumSpec() == argument);
        QCOMPARE(f.told, QStringList({"toggled 20"_s, "toggled 20"_s, "toggled 20"_s}));

        const auto *const accessible = QAccessible::queryAccessibleInterface(f.button);
        QCOMPARE(accessible->role(), QAccessible::ComboBox);
        QCOMPARE(accessible->text(QAccessible::Value), "Argument"_s);
        QVERIFY(accessible->state().hasPopup);
        f.button->onPopupWidgetItemChanged("none of them"_s);
        QCOMPARE(f.told.count(), 3);
    }

    void assistiveToolsReadTheOpenList()
    {
        Scene f;
        auto *const tree = QAccessible::queryAccessibleInterface(f.button);
        const int closed = tree->childCount();
        tree->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
        QVERIFY(f.isOpen());
        QCOMPARE(tree->childCount(), closed + 1);
        QCOMPARE(tree->child(closed)->object(), f.popup());
        for (int i = 0; i <= closed; ++i)
            QCOMPARE(tree->indexOfChild(tree->child(i)), i);
        f.popup()->close();
        QCOMPARE(tree->childCount(), closed);
        QCOMPARE(tree->indexOfChild(nullptr), -1);
        f.button->setEnabled(false);
        QVERIFY(tree->actionInterface()->actionNames().isEmpty());
    }

    void buttonMayGoWhenClicked()
    {
        Scene f;
        connect(f.button, &EnumTextButton::clicked, &f.window, [&f] { delete f.button; });
        mouseClick(f.button);
        QVERIFY(!f.button && !QApplication::activePopupWidget());
    }

    void replacesTheChoices()
    {
        Scene f;
        f.button->setCurrentEnum(20);
        f.button->setItemEnabled("Log mag"_s, false);
        f.button->setEnums(Formats); // the same: nothing is rebuilt
        QVERIFY(!f.isEnabled(0));
        f.button->setEnums({{1, "SWR"_s}, {1, QString()}, {2, "SWR"_s}});
        QCOMPARE(f.list()->count(), 3);
        QCOMPARE(f.button->labelText(), "Phase"_s);
        QCOMPARE(f.told.count(), 1);
        f.button->setEnums({});
        mouseClick(f.button);
        QVERIFY(!f.isOpen()); // there is nothing to choose
    }

    void picksFromTheList()
    {
        Scene f;
        f.button->setCurrentEnum(10);
        f.told.clear();
        mouseClick(f.button);
        QVERIFY(f.isOpen());
        QCOMPARE(f.popup()->width(), 180);
        QCOMPARE(f.list()->currentRow(), 0);
        f.clickItem(2);
        QVERIFY(!f.isOpen());
        QCOMPARE(f.told, QStringList({"toggled 30"_s, "edited 30"_s}));
        QCOMPARE(f.button->labelText(), "R + jX"_s);
        f.button->click();
        QVERIFY(!f.isOpen()); // too soon after the closing

        f.waitForGuard();
        mouseClick(f.button);
        QCOMPARE(f.list()->currentRow(), 2);
        f.clickItem(2); // the same again: closes without a word
        QVERIFY(!f.isOpen());
        QCOMPARE(f.told.count(), 2);

        f.waitForGuard();
        f.button->setFocus();
        QVERIFY(QTest::qWaitForWindowActive(&f.window));
        typeKey(&f.window, Qt::Key_Space, " "_s);
        QVERIFY(f.isOpen());
        typeKey(f.popup(), Qt::Key_Up);
        typeKey(f.popup(), Qt::Key_Up);
        typeKey(f.popup(), Qt::Key_Return, "\r"_s);
        QVERIFY(!f.isOpen());
        QCOMPARE(f.told.last(), "edited 10"_s);
        QVERIFY(f.button->hasFocus());
    }

    void theTapThatClosesDoesNotReopen() { tapThatCloses<Scene>(); }

    void tilesOpenInTheMiddleOfTheWindow()
    {
        Scene f;
        f.button->setViewMode(QListView::IconMode);
        f.button->setIconSize(80, 70);
        f.button->setItemCountPerRow(2);
        f.button->setListScrollsInside(true); // also of a list that is there already
        QVERIFY(f.popup()->scrollsInside());
        mouseClick(f.button);
        QCOMPARE(f.popup()->width(), 161);
        const QPoint middle = f.window.mapToGlobal(f.window.rect().center());
        QVERIFY((f.popup()->geometry().center() - middle).manhattanLength() <= 4);
    }

    void listLeavesWithItsButton()
    {
        Scene f;
        const std::function<void()> leaves[] = {[&f] { f.button->setEnabled(false); },
                                                [&f] {
                                                    f.button->setEnums({{1, "SWR"_s}});
                                                },
                                                [&f] { f.window.hide(); }};
        for (const auto &leave : leaves) {
            f.waitForGuard();
            mouseClick(f.button);
            QVERIFY(f.isOpen());
            leave();
            QTRY_VERIFY(!f.isOpen());
            f.button->setEnabled(true);
            f.window.show();
        }
        // A button that is back at once keeps it, and one that is closed already stays closed.
        f.waitForGuard();
        f.button->setEnums(Formats);
        mouseClick(f.button);
        f.button->setEnabled(false);
        f.button->setEnabled(true);
        QTest::qWait(50);
        QVERIFY(f.isOpen());
        QSignalSpy closed(f.popup(), &PopupWidget::widgetClosed);
        f.button->setEnabled(false);
        f.popup()->close();
        QTest::qWait(50);
        QCOMPARE(closed.count(), 1);
    }
};

QTEST_MAIN(tst_EnumTextButton)
#include "tst_enumtextbutton.moc"
