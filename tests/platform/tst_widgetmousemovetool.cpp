// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/widgetmousemovetool.h>

#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QtTest>

#include <memory>

#include <pointer.h>
#include <vnatest.h>

using Utils::WidgetMouseMoveTool;
using namespace VnaTest;

class tst_WidgetMouseMoveTool : public TestCase
{
    Q_OBJECT

    std::unique_ptr<QWidget> m_host;
    QWidget *m_handle = nullptr;
    WidgetMouseMoveTool *m_tool = nullptr;
    std::unique_ptr<QSignalSpy> m_clicked;

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        m_host = std::make_unique<QWidget>();
        m_host->resize(400, 300);
        m_handle = new QWidget(m_host.get());
        m_handle->setGeometry(100, 100, 50, 50);
        m_tool = new WidgetMouseMoveTool(m_handle);
        m_clicked = std::make_unique<QSignalSpy>(m_tool, &WidgetMouseMoveTool::clicked);
        m_host->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_host.get()));
    }

    void cleanup()
    {
        m_clicked.reset();
        m_host.reset();
        TestCase::cleanup();
    }

    void mouseDragsInsideTheParent_data()
    {
        QTest::addColumn<QPoint>("to");
        QTest::addColumn<QPoint>("position");
        QTest::newRow("freely") << QPoint(165, 145) << QPoint(140, 120);
        QTest::newRow("past the right bottom") << QPoint(900, 900) << QPoint(350, 250);
        QTest::newRow("past the left top") << QPoint(-900, -900) << QPoint(0, 0);
        QTest::newRow("less than a drag") << QPoint(128, 127) << QPoint(100, 100);
    }

    void mouseDragsInsideTheParent()
    {
        QFETCH(QPoint, to);
        QFETCH(QPoint, position);
        mouseDrag(m_host->windowHandle(), {125, 125}, to);
        QCOMPARE(m_handle->pos(), position);
        QCOMPARE(m_clicked->count(), position == QPoint(100, 100) ? 1 : 0);
    }

    void fourQuickTapsAreFourTaps()
    {
        // Qt makes every other press of a fast series a double click.
        QTest::mouseDClick(m_host->windowHandle(), Qt::LeftButton, Qt::NoModifier, {125, 125});
        QTest::mouseDClick(m_host->windowHandle(), Qt::LeftButton, Qt::NoModifier, {125, 125});
        QCOMPARE(m_clicked->count(), 4);
    }

    void otherButtonsDoNothing()
    {
        mousePress(m_handle, {25, 25}, Qt::RightButton);
        mouseMove(m_handle, {75, 75});
        mouseRelease(m_handle, {75, 75}, Qt::RightButton);
        QCOMPARE(m_handle->pos(), QPoint(100, 100));
        QCOMPARE(m_clicked->count(), 0);
    }

    void fixedWidgetStaysButTellsTaps()
    {
        m_tool->setMovable(false);
        mouseDrag(m_host->windowHandle(), {125, 125}, {165, 145});
        QCOMPARE(m_handle->pos(), QPoint(100, 100));
        QCOMPARE(m_clicked->count(), 0);
        mouseClick(m_handle);
        QCOMPARE(m_clicked->count(), 1);
    }

    void fingerDragsAndTaps()
    {
        TouchScreen screen(m_host.get());
        screen.press(QPoint(125, 125));
        screen.move(QPoint(150, 125));
        screen.move(QPoint(165, 145));
        screen.release(QPoint(165, 145));
        QCOMPARE(m_handle->pos(), QPoint(140, 120));
        QCOMPARE(m_clicked->count(), 0);

        screen.press(QPoint(160, 140));
        screen.release(QPoint(161, 140));
        QCOMPARE(m_handle->pos(), QPoint(140, 120));
        QCOMPARE(m_clicked->count(), 1);
    }

    void secondFingerEndsDragAndTap()
    {
        TouchScreen screen(m_host.get());
        screen.press(QPoint(125, 125));
        screen.pressSecond({140, 140});
        screen.releaseBoth({125, 125}, {200, 200});
        QCOMPARE(m_handle->pos(), QPoint(100, 100));
        QCOMPARE(m_clicked->count(), 0);
    }

    void interruptedGestureIsForgotten_data()
    {
        QTest::addColumn<int>("type");
        QTest::newRow("cancelled") << int(QEvent::TouchCancel);
        QTest::newRow("update without points") << int(QEvent::TouchUpdate);
        QTest::newRow("end without points") << int(QEvent::TouchEnd);
        QTest::newRow("hidden") << int(QEvent::Hide);
        QTest::newRow("dialog opened") << int(QEvent::WindowBlocked);
    }

    void interruptedGestureIsForgotten()
    {
        QFETCH(int, type);
        TouchScreen screen(m_host.get());
        screen.press(QPoint(125, 125));
        if (type == QEvent::Hide) {
            m_handle->hide();
            m_handle->show();
        } else if (type == QEvent::WindowBlocked) {
            QEvent blocked(QEvent::WindowBlocked);
            QCoreApplication::sendEvent(m_handle, &blocked);
        } else {
            QVERIFY(sendTouchWithoutPoints(m_handle, QEvent::Type(type)));
        }
        screen.release(QPoint(125, 125));
        QCOMPARE(m_clicked->count(), 0);
        mouseMove(m_handle, {60, 60});
        QCOMPARE(m_handle->pos(), QPoint(100, 100));
    }

    void windowStaysOnItsScreen()
    {
        QWidget window(nullptr, Qt::FramelessWindowHint);
        window.setGeometry(100, 100, 60, 40);
        const auto *tool = new WidgetMouseMoveTool(&window);
        QVERIFY(tool->isMovable());
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const QRect screen = window.screen()->availableGeometry();
        QTest::mousePress(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, {30, 20});
        QTest::mouseMove(window.windowHandle(), {9000, 9000});
        QCOMPARE(window.frameGeometry().bottomRight(), screen.bottomRight());
        QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, {-9000, -9000});
        QCOMPARE(window.pos(), screen.topLeft());
    }

    void slotMayDeleteTheWidget_data()
    {
        QTest::addColumn<bool>("touch");
        QTest::newRow("mouse") << false;
        QTest::newRow("touch") << true;
    }

    void slotMayDeleteTheWidget()
    {
        QFETCH(bool, touch);
        const QPointer<QWidget> handle(m_handle);
        connect(m_tool, &WidgetMouseMoveTool::clicked, m_host.get(), [this] { delete m_handle; });
        if (touch) {
            TouchScreen screen(m_host.get());
            screen.press(QPoint(125, 125));
            screen.release(QPoint(125, 125));
        } else {
            mouseDrag(m_host->windowHandle(), {125, 125}, {125, 125});
        }
        QVERIFY(!handle);
        QCOMPARE(m_clicked->count(), 1);
    }
};

QTEST_MAIN(tst_WidgetMouseMoveTool)
#include "tst_widgetmousemovetool.moc"
