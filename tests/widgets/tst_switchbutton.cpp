// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <widgets/switchbutton.h>

#include <QAccessible>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

#include <pointer.h>
#include <vnatest.h>

class tst_SwitchButton : public VnaTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void startsOff();
    void tellsEveryTap();
    void setterKeepsSilent();
    void worksByKeyboard();
    void inertSwitchStaysAsItIs();
    void readsOutItsStatus();
    void slotMayDeleteTheSwitch();
};

namespace
{

struct Fixture {
    Fixture()
    {
        window.resize(400, 200);
        button->setGeometry(20, 20, 300, 60);
        button->setText(QStringLiteral("Sweep"));
        window.show();
    }
    bool activate() { return QTest::qWaitForWindowActive(&window); }
    QPushButton *on() const { return button->findChild<QPushButton *>(QStringLiteral("btnOn")); }
    QPushButton *off() const { return button->findChild<QPushButton *>(QStringLiteral("btnOff")); }

    QWidget window;
    QPointer<SwitchButton> button = new SwitchButton(&window);
    QSignalSpy changed{button, &SwitchButton::statusChanged};
};

} // namespace

void tst_SwitchButton::startsOff()
{
    Fixture f;
    QVERIFY(!f.button->status());
    QVERIFY(f.off()->isChecked());
    QVERIFY(!f.on()->isChecked());
    QCOMPARE(f.button->layoutType(), InfoButton::LeftRight);
    QCOMPARE(f.button->infoWidget(), f.on()->parentWidget());
    QVERIFY(f.activate());
    QCOMPARE(f.on()->geometry().right() + 1, f.off()->x());
    QCOMPARE(f.on()->x(), 10);
}

void tst_SwitchButton::tellsEveryTap()
{
    Fixture f;
    QVERIFY(f.activate());
    VnaTest::mouseClick(f.on());
    VnaTest::mouseClick(f.on());
    QVERIFY(f.button->status());
    VnaTest::mouseClick(f.off());
    QVERIFY(!f.button->status());
    QCOMPARE(f.changed.count(), 3);
    QCOMPARE(f.changed.at(1).at(0).toBool(), true);
    QCOMPARE(f.changed.at(2).at(0).toBool(), false);
}

void tst_SwitchButton::setterKeepsSilent()
{
    Fixture f;
    for (const bool on : {true, true, false, false, true}) {
        f.button->setStatus(on);
        QCOMPARE(f.button->status(), on);
        QCOMPARE(f.off()->isChecked(), !on);
    }
    QCOMPARE(f.changed.count(), 0);
}

void tst_SwitchButton::worksByKeyboard()
{
    Fixture f;
    QVERIFY(f.activate());
    VnaTest::typeKey(&f.window, Qt::Key_Tab);
    QVERIFY(f.off()->hasFocus());
    VnaTest::typeKey(&f.window, Qt::Key_Left);
    QVERIFY(f.on()->hasFocus());
    QVERIFY(f.button->status());
    QCOMPARE(f.changed.count(), 1);
    VnaTest::typeKey(&f.window, Qt::Key_Right);
    QVERIFY(!f.button->status());
}

void tst_SwitchButton::inertSwitchStaysAsItIs()
{
    Fixture f;
    QVERIFY(f.activate());
    f.on()->setFocus();
    f.button->setClickable(false);
    VnaTest::mouseClick(f.on());
    VnaTest::typeKey(&f.window, Qt::Key_Space, QStringLiteral(" "));
    QVERIFY(!f.button->status());
    QCOMPARE(f.changed.count(), 0);
    f.button->setClickable(true);
    VnaTest::mouseClick(f.on());
    QCOMPARE(f.changed.count(), 1);
}

void tst_SwitchButton::readsOutItsStatus()
{
    Fixture f;
    QAccessibleInterface *const accessible = QAccessible::queryAccessibleInterface(f.button);
    QCOMPARE(accessible->text(QAccessible::Name), QStringLiteral("Sweep"));
    QCOMPARE(accessible->text(QAccessible::Value), QStringLiteral("Off"));
    QVERIFY(!accessible->state().checked);
    accessible->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    QVERIFY(f.button->status());
    QVERIFY(accessible->state().checked);
    QCOMPARE(f.changed.count(), 1);
}

void tst_SwitchButton::slotMayDeleteTheSwitch()
{
    Fixture f;
    QVERIFY(f.activate());
    connect(f.button, &SwitchButton::statusChanged, &f.window, [&f] { delete f.button.data(); });
    VnaTest::mouseClick(f.on());
    QVERIFY(!f.button);
}

QTEST_MAIN(tst_SwitchButton)
#include "tst_switchbutton.moc"
