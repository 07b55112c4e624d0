// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <controls/thememanager.h>
#include <platform/widgetmousemovetool.h>
#include <widgets/lockwidget.h>

#include <memory>

#include <pointer.h>
#include <vnatest.h>

using Controls::ThemeManager;
using namespace VnaTest;

namespace
{

constexpr int LockedIcon = 3;
constexpr int UnlockedIcon = 4;

/// Notes which type of event came through the application's filters last.
struct Sink : QObject {
    int last = QEvent::None;

    bool event(QEvent *event) override
    {
        last = event->type();
        return true;
    }
};

/// A window with a target, a button beside it, and the padlock between them.
struct Scene {
    QWidget window;
    QPointer<QWidget> target = new QWidget(&window);
    QPushButton button{"Preset"_s, &window};
    QSignalSpy clicked{&button, &QPushButton::clicked};
    std::unique_ptr<LockWidget> lock = std::make_unique<LockWidget>(&window, target);

    Scene()
    {
        window.resize(600, 400);
        target->setGeometry(20, 30, 401, 301);
        button.setGeometry(480, 50, 100, 50);
        window.show();
        lock->setScreenLockEnable(true);
        QCoreApplication::processEvents();
    }

    auto *blink() const { return lock->findChild<QSequentialAnimationGroup *>(); }
    bool blinks() const { return blink()->state() == QAbstractAnimation::Running; }
    double opacity() const { return lock->findChild<QGraphicsOpacityEffect *>()->opacity(); }
    bool showsIcon(int id) const
    {
        const QLabel *label = lock->findChild<QLabel *>();
        return label->pixmap(Qt::ReturnByValue).toImage()
            == QPixmap(ThemeManager::instance()->getIconPath(id)).toImage();
    }
    QPoint center() const { return lock->geometry().center(); }
    void tapLock() { mouseClick(lock.get()); }
    /// Clicks of the button so far, after one more press on it.
    int pressButton()
    {
        mouseClick(&button);
        return int(clicked.count());
    }
    void drag() { mouseDrag(window.windowHandle(), center(), {100, 100}); }
};

const QPoint Docked(420 - 70, 180 - 35);

} // namespace

class tst_LockWidget : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void docksAtTheRightEdge()
    {
        Scene scene;
        QVERIFY(scene.lock->getScreenLockEnable());
        QCOMPARE(scene.lock->geometry(), QRect(Docked, QSize(70, 70)));
        scene.tapLock();
        scene.drag(); // locked, it stays in its place
        QCOMPARE(scene.lock->pos(), Docked);
        QVERIFY(scene.showsIcon(LockedIcon));
        scene.tapLock();
        scene.drag();
        QVERIFY(scene.lock->pos() != Docked);
        // A new size docks again, also after a drag; so does a move.
        scene.target->resize(301, 201);
        QTRY_COMPARE(scene.lock->pos(), QPoint(320 - 70, 130 - 35));
        scene.target->move(0, 0);
        QTRY_COMPARE(scene.lock->pos(), QPoint(300 - 70, 100 - 35));
    }

    void lockedBlocksPressesElsewhere()
    {
        Scene scene;
        QPushButton other("other window"_s);
        const QSignalSpy otherClicked(&other, &QPushButton::clicked);
        other.setGeometry(900, 100, 200, 100);
        showExposed(&other);

        mouseClick(&scene.button);
        mouseClick(&other);
        QCOMPARE(scene.clicked.count() + otherClicked.count(), 2);
        scene.tapLock();
        QVERIFY(scene.showsIcon(LockedIcon) && !scene.blinks());

        mouseClick(&scene.button);
        QVERIFY(scene.blinks());
        mouseDoubleClick(&scene.button, {10, 10});
        mouseClick(&other);
        TouchScreen touch(&scene.window);
        touch.tap(inWindow(&scene.button, {10, 10}));
        QVERIFY(!scene.button.isDown());
        QCOMPARE(scene.clicked.count() + otherClicked.count(), 2);

        // A made-up press need not know where on the screen the padlock is.
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            QMouseEvent event(type, {5, 5}, {5, 5}, {9999, 9999}, Qt::LeftButton, Qt::LeftButton,
                              Qt::NoModifier);
            QCoreApplication::sendEvent(scene.lock.get(), &event);
        }
        QVERIFY(!scene.blinks());
        QCOMPARE(scene.opacity(), 1.0);
        QVERIFY(scene.showsIcon(UnlockedIcon));
        mouseClick(&scene.button);
        touch.tap(inWindow(&scene.button, {10, 10}));
        QCOMPARE(scene.clicked.count(), 3);
    }

    void blinksFourTimesFromTheLastPress()
    {
        Scene scene;
        scene.tapLock();
        QCOMPARE(scene.blink()->loopCount(), 4);
        QCOMPARE(scene.blink()->totalDuration(), 800);
        mouseClick(&scene.button);
        QTRY_VERIFY(scene.blink()->currentTime() > 150);
        QVERIFY(scene.opacity() < 1.0);
        mouseClick(&scene.button);
        QVERIFY(scene.blink()->currentTime() < 150);
        QTRY_VERIFY(!scene.blinks());
        QCOMPARE(scene.opacity(), 1.0);
        // Unlocked in the middle of a dip it is not left faded.
        mouseClick(&scene.button);
        QTRY_VERIFY(scene.opacity() < 1.0);
        scene.tapLock();
        QCOMPARE(scene.opacity(), 1.0);
    }

    void onlyPressesAreBlocked()
    {
        Scene scene;
        scene.tapLock();
        scene.button.setFocus();
        QTest::keyClick(scene.window.windowHandle(), Qt::Key_Space);
        QCOMPARE(scene.clicked.count(), 1);

        Sink sink;
        const QVector<int> blocked{QEvent::MouseButtonPress, QEvent::MouseButtonDblClick,
                                   QEvent::TouchBegin};
        for (int type = QEvent::Timer; type <= QEvent::TabletTrackingChange; ++type) {
            if (blocked.contains(type))
                continue;
            QEvent event{QEvent::Type(type)};
            QCoreApplication::sendEvent(&sink, &event);
            QCOMPARE(sink.last, type);
        }
        // A touch that tells no place passes as well.
        QTouchEvent empty(QEvent::TouchBegin);
        QCoreApplication::sendEvent(&sink, &empty);
        QCOMPARE(sink.last, int(QEvent::TouchBegin));
        QVERIFY(!scene.blinks());
    }

    void fingerAndKeyboardLockAndUnlock()
    {
        Scene scene;
        TouchScreen touch(&scene.window);
        for (const int icon : {LockedIcon, UnlockedIcon}) {
            touch.tap(scene.center());
            QVERIFY(scene.showsIcon(icon));
        }
        // A cancelled touch is no tap.
        touch.press(scene.center());
        sendTouchWithoutPoints(scene.lock.get(), QEvent::TouchCancel);
        touch.release(scene.center());
        QVERIFY(scene.showsIcon(UnlockedIcon));

        auto *const accessible = QAccessible::queryAccessibleInterface(scene.lock.get());
        QCOMPARE(accessible->role(), QAccessible::CheckBox);
        QCOMPARE(accessible->text(QAccessible::Name), "Screen lock"_s);
        QVERIFY(!accessible->state().checked);
        scene.button.setFocus();
        QTest::keyClick(scene.window.windowHandle(), Qt::Key_Tab);
        QVERIFY(scene.lock->hasFocus());
        QTest::keyClick(scene.window.windowHandle(), Qt::Key_Space);
        QVERIFY(scene.showsIcon(LockedIcon) && accessible->state().checked);
        accessible->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        QVERIFY(scene.showsIcon(UnlockedIcon) && !accessible->state().checked);
        scene.button.setFocus();
        accessible->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
        QVERIFY(scene.lock->hasFocus() && !accessible->state().checked);

        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Select, Qt::Key_Space}) {
            QKeyEvent held(QEvent::KeyPress, key, Qt::NoModifier, QString(), true);
            const bool locked = scene.lock->isLocked();
            sendKey(scene.lock.get(), key);
            QCoreApplication::sendEvent(scene.lock.get(), &held); // held down it counts once
            QCOMPARE(scene.lock->isLocked(), !locked);
        }
        QVERIFY(!scene.lock->isLocked());
        QKeyEvent other(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier);
        QVERIFY(!isTaken(scene.lock.get(), other) && !scene.lock->isLocked());
    }

    void keyIsReachedWhileItIsSeen()
    {
        Scene scene;
        scene.lock->setKey(&scene.button);
        scene.tapLock();
        QCOMPARE(scene.pressButton(), 1);
        QVERIFY(!scene.blinks());
        scene.button.hide();
        mouseClick(&scene.window, scene.button.geometry().center());
        QVERIFY(scene.blinks());
    }

    void secondFingerLeavesTheFirstItsRelease()
    {
        Scene scene;
        TouchScreen touch(&scene.window);
        const QPoint onButton = inWindow(&scene.button, {10, 10});
        // The first finger is a mouse press of the button, which wants its release.
        touch.press(onButton);
        QVERIFY(scene.button.isDown());
        touch.pressSecond(scene.center());
        touch.release();
        QVERIFY(!scene.button.isDown());
        QCOMPARE(scene.clicked.count(), 1);
        QVERIFY(scene.showsIcon(UnlockedIcon));

        // Locked in between, by the keyboard: the second finger does nothing, the first comes up.
        Utils::WidgetMouseMoveTool takesTouches(scene.target);
        touch.press(onButton);
        QTest::keyClick(scene.lock.get(), Qt::Key_Space);
        touch.pressSecond({100, 100});
        QVERIFY(scene.blinks());
        touch.release();
        QVERIFY(!scene.button.isDown());
        QVERIFY(scene.showsIcon(LockedIcon));
    }

    void disablingUnlocks()
    {
        Scene scene;
        scene.tapLock();
        mouseClick(&scene.button);
        QVERIFY(scene.blinks());
        scene.lock->setScreenLockEnable(false);
        QVERIFY(!scene.lock->getScreenLockEnable() && !scene.blinks());
        QCOMPARE(scene.pressButton(), 1);
        scene.lock->setScreenLockEnable(true);
        QVERIFY(scene.showsIcon(UnlockedIcon));
        ThemeManager::instance()->setTheme(ThemeManager::Light);
        QVERIFY(scene.showsIcon(UnlockedIcon));
        ThemeManager::instance()->setTheme(ThemeManager::Dark);
        scene.drag();
        QVERIFY(scene.lock->pos() != Docked);
    }

    void aLockedOneThatGoesTakesTheLockWithIt()
    {
        Scene scene;
        scene.tapLock();
        delete scene.target;
        QCoreApplication::processEvents();
        QCOMPARE(scene.pressButton(), 0);
        scene.lock.reset();
        QCOMPARE(scene.pressButton(), 1);
    }
};

QTEST_MAIN(tst_LockWidget)
#include "tst_lockwidget.moc"
