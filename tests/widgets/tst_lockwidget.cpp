// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <controls/thememanager.h>
#include <widgets/lockwidget.h>

#include <QAccessible>
#include <QGraphicsOpacityEffect>
#include <QLabel>
#include <QPushButton>
#include <QSequentialAnimationGroup>
#include <QSignalSpy>
#include <QtTest>

#include <memory>

#include <pointer.h>
#include <vnatest.h>

using Controls::ThemeManager;
using namespace VnaTest;

namespace
{

/// Notes which event types come through the application's filters.
class Sink : public QObject
{
public:
    QVector<int> types;

    bool event(QEvent *event) override
    {
        types << event->type();
        return true;
    }
};

/// A window with a target, a button beside it, and the padlock between them.
struct Scene {
    QWidget window;
    QPointer<QWidget> target;
    QPushButton *button;
    std::unique_ptr<LockWidget> lock;
    std::unique_ptr<QSignalSpy> clicked;

    Scene()
    {
        window.resize(600, 400);
        target = new QWidget(&window);
        target->setGeometry(20, 30, 401, 301);
        button = new QPushButton(QStringLiteral("Preset"), &window);
        button->setGeometry(480, 50, 100, 50);
        lock = std::make_unique<LockWidget>(&window, target);
        clicked = std::make_unique<QSignalSpy>(button, &QPushButton::clicked);
        window.show();
        lock->setScreenLockEnable(true);
        QCoreApplication::processEvents();
    }

    QSequentialAnimationGroup *blink() const
    {
        return lock->findChild<QSequentialAnimationGroup *>();
    }
    bool blinks() const { return blink()->state() == QAbstractAnimation::Running; }
    double opacity() const { return lock->findChild<QGraphicsOpacityEffect *>()->opacity(); }
    QPixmap pixmap() const { return lock->findChild<QLabel *>()->grab(); }
    bool showsIcon(int id) const
    {
        const QLabel *label = lock->findChild<QLabel *>();
        return label->pixmap(Qt::ReturnByValue).toImage()
            == QPixmap(ThemeManager::instance()->getIconPath(id)).toImage();
    }
    QPoint lockCenter() const { return lock->geometry().center(); }
    void tapLock() { mouseClick(lock.get()); }
};

const QPoint s_docked(420 - 70, 180 - 35);

} // namespace

class tst_LockWidget : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void docksAtTheRightEdge()
    {
        Scene scene;
        QVERIFY(scene.lock->getScreenLockEnable());
        QCOMPARE(scene.lock->geometry(), QRect(s_docked, QSize(70, 70)));
        mouseDrag(scene.window.windowHandle(), scene.lockCenter(), {100, 100});
        QVERIFY(scene.lock->pos() != s_docked);
        // A new size docks again, also after a drag; so does a move.
        scene.target->resize(301, 201);
        QTRY_COMPARE(scene.lock->pos(), QPoint(320 - 70, 130 - 35));
        scene.target->move(0, 0);
        QTRY_COMPARE(scene.lock->pos(), QPoint(300 - 70, 100 - 35));
    }

    void lockedBlocksPressesElsewhere()
    {
        Scene scene;
        QWidget other;
        QPushButton inOther(QStringLiteral("other window"), &other);
        QSignalSpy otherClicked(&inOther, &QPushButton::clicked);
        other.setGeometry(900, 100, 200, 100);
        other.show();
        QVERIFY(QTest::qWaitForWindowExposed(&other));

        mouseClick(scene.button);
        mouseClick(&inOther);
        QCOMPARE(scene.clicked->count() + otherClicked.count(), 2);
        scene.tapLock();
        QVERIFY(scene.showsIcon(3));
        QVERIFY(!scene.blinks());

        mouseClick(scene.button);
        QVERIFY(scene.blinks());
        QTest::mouseDClick(scene.button->window()->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                           inWindow(scene.button, {10, 10}));
        mouseClick(&inOther);
        TouchScreen touch(&scene.window);
        touch.tap(inWindow(scene.button, {10, 10}));
        QVERIFY(!scene.button->isDown());
        QCOMPARE(scene.clicked->count() + otherClicked.count(), 2);

        scene.tapLock();
        QVERIFY(!scene.blinks());
        QCOMPARE(scene.opacity(), 1.0);
        QVERIFY(scene.showsIcon(4));
        mouseClick(scene.button);
        touch.tap(inWindow(scene.button, {10, 10}));
        QCOMPARE(scene.clicked->count(), 3);
    }

    void blinksFourTimesFromTheLastPress()
    {
        Scene scene;
        scene.tapLock();
        QCOMPARE(scene.blink()->loopCount(), 4);
        QCOMPARE(scene.blink()->totalDuration(), 800);
        mouseClick(scene.button);
        QTRY_VERIFY(scene.blink()->currentTime() > 150);
        QVERIFY(scene.opacity() < 1.0);
        mouseClick(scene.button);
        QVERIFY(scene.blink()->currentTime() < 150);
        QTRY_VERIFY(!scene.blinks());
        QCOMPARE(scene.opacity(), 1.0);
    }

    void touchLocksAndUnlocks()
    {
        Scene scene;
        TouchScreen touch(&scene.window);
        touch.tap(scene.lockCenter());
        QVERIFY(scene.showsIcon(3));
        touch.tap(scene.lockCenter());
        QVERIFY(scene.showsIcon(4));
        // A cancelled touch is no tap.
        touch.press(scene.lockCenter());
        sendTouchWithoutPoints(scene.lock.get(), QEvent::TouchCancel);
        touch.release(scene.lockCenter());
        QVERIFY(scene.showsIcon(4));
    }

    void lockedStaysInPlace()
    {
        Scene scene;
        scene.tapLock();
        mouseDrag(scene.window.windowHandle(), scene.lockCenter(), {100, 100});
        QCOMPARE(scene.lock->pos(), s_docked);
        QVERIFY(scene.showsIcon(3));
    }

    void onlyPressesAreBlocked()
    {
        Scene scene;
        scene.tapLock();
        scene.button->setFocus();
        QTest::keyClick(scene.window.windowHandle(), Qt::Key_Space);
        QCOMPARE(scene.clicked->count(), 1);

        Sink sink;
        QVector<int> expected;
        const QVector<int> blocked{QEvent::MouseButtonPress, QEvent::MouseButtonDblClick,
                                   QEvent::TouchBegin};
        for (int type = QEvent::Timer; type <= QEvent::TabletTrackingChange; ++type) {
            if (blocked.contains(type))
                continue;
            expected << type;
            QEvent event{QEvent::Type(type)};
            QCoreApplication::sendEvent(&sink, &event);
        }
        QCOMPARE(sink.types, expected);

        // A touch that tells no place passes as well.
        QTouchEvent empty(QEvent::TouchBegin);
        QCoreApplication::sendEvent(&sink, &empty);
        QCOMPARE(sink.types.last(), int(QEvent::TouchBegin));
        QVERIFY(!scene.blinks());
    }

    void keyboardLocksAndUnlocks()
    {
        Scene scene;
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(scene.lock.get());
        QVERIFY(accessible);
        QCOMPARE(accessible->role(), QAccessible::CheckBox);
        QCOMPARE(accessible->text(QAccessible::Name), QStringLiteral("Screen lock"));
        QVERIFY(!accessible->state().checked);
        scene.button->setFocus();
        QTest::keyClick(scene.window.windowHandle(), Qt::Key_Tab);
        QVERIFY(scene.lock->hasFocus());
        QTest::keyClick(scene.window.windowHandle(), Qt::Key_Space);
        QVERIFY(scene.showsIcon(3));
        QVERIFY(accessible->state().checked);
        accessible->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        QVERIFY(scene.showsIcon(4));
        QVERIFY(!accessible->state().checked);
    }

    void disablingUnlocks()
    {
        Scene scene;
        scene.tapLock();
        mouseClick(scene.button);
        QVERIFY(scene.blinks());
        scene.lock->setScreenLockEnable(false);
        QVERIFY(!scene.lock->getScreenLockEnable());
        QVERIFY(!scene.blinks());
        mouseClick(scene.button);
        QCOMPARE(scene.clicked->count(), 1);
        scene.lock->setScreenLockEnable(true);
        QVERIFY(scene.showsIcon(4));
        mouseDrag(scene.window.windowHandle(), scene.lockCenter(), {100, 100});
        QVERIFY(scene.lock->pos() != s_docked);
    }

    void themeSwapsPicturesOnly()
    {
        Scene scene;
        scene.tapLock();
        const QImage dark = scene.pixmap().toImage();
        ThemeManager::instance()->setTheme(ThemeManager::Light);
        QVERIFY(scene.showsIcon(3));
        QVERIFY(scene.pixmap().toImage() != dark);
        mouseClick(scene.button);
        QCOMPARE(scene.clicked->count(), 0);
        scene.tapLock();
        QVERIFY(scene.showsIcon(4));
        ThemeManager::instance()->setTheme(ThemeManager::Dark);
        QVERIFY(scene.showsIcon(4));
    }

    void survivesWhatGoesBeforeIt()
    {
        Scene scene;
        scene.tapLock();
        scene.target->resize(100, 100);
        delete scene.target;
        QCoreApplication::processEvents();
        mouseClick(scene.button);
        QCOMPARE(scene.clicked->count(), 0);
        // A padlock that goes while it is locked takes the lock with it.
        scene.lock.reset();
        mouseClick(scene.button);
        QCOMPARE(scene.clicked->count(), 1);

        LockWidget withoutTarget(&scene.window, nullptr);
        withoutTarget.setScreenLockEnable(true);
        QCoreApplication::processEvents();
        QCOMPARE(withoutTarget.pos(), QPoint(0, 0));
    }
};

QTEST_MAIN(tst_LockWidget)
#include "tst_lockwidget.moc"
