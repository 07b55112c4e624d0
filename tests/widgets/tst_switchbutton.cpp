// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <widgets/switchbutton.h>

#include <memory>

#include <pointer.h>
#include <vnatest.h>

using namespace VnaTest;

class tst_SwitchButton : public TestCase
{
    Q_OBJECT

    std::unique_ptr<QWidget> m_window;
    QPointer<SwitchButton> m_switch;
    std::unique_ptr<QSignalSpy> m_changed;
    QPushButton *m_on = nullptr;
    QPushButton *m_off = nullptr;

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        m_window = std::make_unique<QWidget>();
        m_window->resize(400, 200);
        m_switch = new SwitchButton(m_window.get());
        m_switch->setGeometry(20, 20, 300, 60);
        m_switch->setText("Sweep"_s);
        m_changed = std::make_unique<QSignalSpy>(m_switch, &SwitchButton::statusChanged);
        m_on = m_switch->findChild<QPushButton *>("btnOn"_s);
        m_off = m_switch->findChild<QPushButton *>("btnOff"_s);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }

    void cleanup()
    {
        m_changed.reset();
        m_window.reset();
        TestCase::cleanup();
    }

    void startsOffAndTellsEveryTap()
    {
        QVERIFY(!m_switch->status() && m_off->isChecked() && !m_on->isChecked());
        QCOMPARE(m_on->geometry().right() + 1, m_off->x());
        QCOMPARE(m_on->x(), 10);

        for (QPushButton *const tapped : {m_on, m_on, m_off}) {
            mouseClick(tapped);
            QCOMPARE(m_switch->status(), tapped == m_on);
            QCOMPARE(m_changed->takeFirst().at(0).toBool(), tapped == m_on);
            QVERIFY(m_changed->isEmpty());
        }
        for (const bool on : {true, true, false, false, true}) {
            m_switch->setStatus(on);
            QCOMPARE(m_switch->status(), on);
            QCOMPARE(m_off->isChecked(), !on);
        }
        QVERIFY(m_changed->isEmpty());
    }

    void worksByKeyboardAndAssistiveTools()
    {
        typeKey(m_window.get(), Qt::Key_Tab);
        QVERIFY(m_off->hasFocus());
        typeKey(m_window.get(), Qt::Key_Left);
        QVERIFY(m_on->hasFocus() && m_switch->status());
        QCOMPARE(m_changed->count(), 1);
        typeKey(m_window.get(), Qt::Key_Right);
        QVERIFY(!m_switch->status());

        QAccessibleInterface *const accessible = QAccessible::queryAccessibleInterface(m_switch);
        QCOMPARE(accessible->text(QAccessible::Name), "Sweep"_s);
        QCOMPARE(accessible->text(QAccessible::Value), "Off"_s);
        QVERIFY(!accessible->state().checked);
        accessible->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        QVERIFY(m_switch->status() && accessible->state().checked);
        QCOMPARE(m_changed->count(), 3);
    }

    void inertSwitchStaysAsItIs()
    {
        m_on->setFocus();
        m_switch->setClickable(false);
        mouseClick(m_on);
        typeKey(m_window.get(), Qt::Key_Space, " "_s);
        QVERIFY(!m_switch->status());
        QCOMPARE(m_changed->count(), 0);
        m_switch->setClickable(true);
        connect(m_switch, &SwitchButton::statusChanged, m_window.get(),
                [this] { delete m_switch; });
        mouseClick(m_on);
        QCOMPARE(m_changed->count(), 1);
        QVERIFY(!m_switch);
    }
};

QTEST_MAIN(tst_SwitchButton)
#include "tst_switchbutton.moc"
