// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <widgets/switchbutton.h>

#include <pointer.h>
#include <vnatest.h>

using namespace VnaTest;

namespace
{

/// A switch in a window, and how often it told a change.
struct Scene {
    QWidget window;
    QPointer<SwitchButton> button = new SwitchButton(&window);
    QPushButton *on = button->findChild<QPushButton *>("btnOn"_s);
    QPushButton *off = button->findChild<QPushButton *>("btnOff"_s);
    QSignalSpy changed{button, &SwitchButton::statusChanged};

    Scene()
    {
        window.resize(400, 200);
        button->setGeometry(20, 20, 300, 60);
        button->setText("Sweep"_s);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
    }
};

} // namespace

class tst_SwitchButton : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void startsOffAndTellsEveryTap()
    {
        Scene f;
        QVERIFY(!f.button->status() && f.off->isChecked() && !f.on->isChecked());
        QCOMPARE(f.on->geometry().right() + 1, f.off->x());
        QCOMPARE(f.on->x(), 10);

        for (QPushButton *const tapped : {f.on, f.on, f.off}) {
            mouseClick(tapped);
            QCOMPARE(f.button->status(), tapped == f.on);
            QCOMPARE(f.changed.takeFirst().at(0).toBool(), tapped == f.on);
            QVERIFY(f.changed.isEmpty());
        }
        for (const bool on : {true, true, false, false, true}) {
            f.button->setStatus(on);
            QCOMPARE(f.button->status(), on);
            QCOMPARE(f.off->isChecked(), !on);
        }
        QVERIFY(f.changed.isEmpty());
    }

    void worksByKeyboardAndAssistiveTools()
    {
        Scene f;
        typeKey(&f.window, Qt::Key_Tab);
        QVERIFY(f.off->hasFocus());
        typeKey(&f.window, Qt::Key_Left);
        QVERIFY(f.on->hasFocus() && f.button->status());
        QCOMPARE(f.changed.count(), 1);
        typeKey(&f.window, Qt::Key_Right);
        QVERIFY(!f.button->status());

        auto *const accessible = QAccessible::queryAccessibleInterface(f.button);
        QCOMPARE(accessible->text(QAccessible::Name), "Sweep"_s);
        QCOMPARE(accessible->text(QAccessible::Value), "Off"_s);
        QVERIFY(!accessible->state().checked);
        accessible->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        QVERIFY(f.button->status() && accessible->state().checked);
        QCOMPARE(accessible->text(QAccessible::Value), "On"_s);
        QCOMPARE(f.changed.count(), 3);
        accessible->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        QVERIFY(!f.button->status());
        QCOMPARE(f.changed.count(), 4);
    }

    void inertSwitchStaysAsItIs()
    {
        Scene f;
        f.on->setFocus();
        f.button->setClickable(false);
        mouseClick(f.on);
        typeKey(&f.window, Qt::Key_Space, " "_s);
        QVERIFY(!f.button->status());
        QCOMPARE(f.changed.count(), 0);
        f.button->setClickable(true);
        connect(f.button, &SwitchButton::statusChanged, &f.window, [&f] { delete f.button; });
        mouseClick(f.on);
        QCOMPARE(f.changed.count(), 1);
        QVERIFY(!f.button);
    }
};

QTEST_MAIN(tst_SwitchButton)
#include "tst_switchbutton.moc"
