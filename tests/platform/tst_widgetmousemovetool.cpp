// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/widgetmousemovetool.h>

#include <pointer.h>
#include <vnatest.h>

using Utils::WidgetMouseMoveTool;
using namespace VnaTest;

namespace
{

const QPoint Start(100, 100);
const QPoint Center(125, 125); // of the handle, in the host

/// A handle in the middle of its host.
struct Scene {
    QWidget host;
    QPointer<QWidget> handle = new QWidget(&host);
    WidgetMouseMoveTool *tool = new WidgetMouseMoveTool(handle);
    QSignalSpy clicked{tool, &WidgetMouseMoveTool::clicked};

    Scene()
    {
        host.resize(400, 300);
        handle->setGeometry(QRect(Start, QSize(50, 50)));
        showExposed(&host);
    }
    QWindow *window() const { return host.windowHandle(); }
};

} // namespace

class tst_WidgetMouseMoveTool : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void mouseDragsInsideTheParent()
    {
        const std::tuple<QPoint, QPoint, int> rows[] = {
            {{165, 145}, {140, 120}, 0},
            {{900, 900}, {350, 250}, 0},
            {{-900, -900}, {0, 0}, 0},
            {{128, 127}, Start, 1}, // less than a drag
        };
        for (const auto &[to, position, taps] : rows) {
            const Row row("to %1, %2"_s.arg(to.x()).arg(to.y()));
            Scene f;
            mouseDrag(f.window(), Center, to);
            QCOMPARE(f.handle->pos(), position);
            QCOMPARE(f.clicked.count(), taps);
        }
    }

    void tapsAndOtherButtons()
    {
        Scene f;
        // Qt makes every other press of a fast series a double click.
        mouseDoubleClick(&f.host, Center);
        mouseDoubleClick(&f.host, Center);
        QCOMPARE(f.clicked.count(), 4);
        mousePress(f.handle, {25, 25}, Qt::RightButton);
        mouseMove(f.handle, {75, 75});
        mouseRelease(f.handle, {75, 75}, Qt::RightButton);
        QVERIFY(f.tool->isMovable());
        f.tool->setMovable(false); // a tap still counts
        mouseDrag(f.window(), Center, {165, 145});
        QCOMPARE(f.handle->pos(), Start);
        QCOMPARE(f.clicked.count(), 4);
        mouseClick(f.handle);
        QCOMPARE(f.clicked.count(), 5);
    }

    void fingerDragsAndTaps()
    {
        Scene f;
        TouchScreen screen(&f.host);
        screen.press(Center);
        screen.pressSecond({140, 140}); // ends drag and tap
        screen.releaseBoth(Center, {200, 200});
        QCOMPARE(f.handle->pos(), Start);
        QCOMPARE(f.clicked.count(), 0);

        screen.press(Center);
        screen.move({150, 125});
        screen.move({165, 145});
        screen.release({165, 145});
        QCOMPARE(f.handle->pos(), QPoint(140, 120));
        QCOMPARE(f.clicked.count(), 0);
        screen.press({160, 140});
        screen.release({161, 140});
        QCOMPARE(f.handle->pos(), QPoint(140, 120));
        QCOMPARE(f.clicked.count(), 1);
    }

    void interruptedGestureIsForgotten()
    {
        for (const QEvent::Type type : {QEvent::TouchCancel, QEvent::TouchUpdate, QEvent::TouchEnd,
                                        QEvent::Hide, QEvent::WindowBlocked}) {
            const Row row(QString::number(type));
            Scene f;
            TouchScreen screen(&f.host);
            screen.press(Center);
            QEvent event(type);
            if (type == QEvent::Hide || type == QEvent::WindowBlocked)
                QCoreApplication::sendEvent(f.handle, &event);
            else
                QVERIFY(sendTouchWithoutPoints(f.handle, type));
            screen.release(Center);
            QCOMPARE(f.clicked.count(), 0);
            mouseMove(f.handle, {60, 60});
            QCOMPARE(f.handle->pos(), Start);
        }
        Scene f; // disabled, it neither moves nor is tapped by what is left of the press
        mousePress(f.handle);
        f.handle->setEnabled(false);
        f.handle->setEnabled(true);
        mouseMove(f.handle, {60, 60});
        mouseRelease(f.handle);
        QCOMPARE(f.handle->pos(), Start);
        QCOMPARE(f.clicked.count(), 0);
    }

    void windowStaysOnItsScreen()
    {
        QWidget window(nullptr, Qt::FramelessWindowHint);
        window.setGeometry(100, 100, 60, 40);
        WidgetMouseMoveTool tool(&window);
        showExposed(&window);
        const QRect screen = window.screen()->availableGeometry();
        mousePress(&window, {30, 20});
        mouseMove(&window, {9000, 9000});
        QCOMPARE(window.frameGeometry().bottomRight(), screen.bottomRight());
        mouseRelease(&window, {-9000, -9000});
        QCOMPARE(window.pos(), screen.topLeft());
    }

    void slotMayDeleteTheWidget()
    {
        for (const bool byTouch : {false, true}) {
            Scene f;
            connect(f.tool, &WidgetMouseMoveTool::clicked, &f.host, [&f] { delete f.handle; });
            if (byTouch)
                TouchScreen(&f.host).tap(Center);
            else
                mouseDrag(f.window(), Center, Center);
            QVERIFY(!f.handle);
            QCOMPARE(f.clicked.count(), 1);
        }
    }
};

QTEST_MAIN(tst_WidgetMouseMoveTool)
#include "tst_widgetmousemovetool.moc"
