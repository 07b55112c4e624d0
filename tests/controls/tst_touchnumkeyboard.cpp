// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "keypadscene.h"

#include <controls/overlaycontainer.h>

#include <events.h>

#include <functional>
#include <memory>
#include <utility>

using namespace VnaTest;
using Controls::TouchNumKeyboard;

class tst_TouchNumKeyboard : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void keysReachTheFocusedWidget()
    {
        KeypadScene f;
        f.keypad->open();
        QMap<QString, QString> keys{
            {"btnP"_s, "2e:."_s},        {"btnC"_s, "b1:\u00b1"_s},    {"btnEsc"_s, "1000000:"_s},
            {"btnBack"_s, "1000003:"_s}, {"btnUp"_s, "1000013:"_s},    {"btnDown"_s, "1000015:"_s},
            {"btnLeft"_s, "1000012:"_s}, {"btnRight"_s, "1000014:"_s}, {"btnOk"_s, "1000004:\n"_s}};
        for (int digit = 0; digit < 10; ++digit)
            keys.insert("btn%1"_s.arg(digit), "3%1:%1"_s.arg(digit));
        for (auto key = keys.cbegin(); key != keys.cend(); ++key) {
            f.editor->log.clear();
            f.click(key.key());
            QCOMPARE(f.editor->log, QStringList({"+"_s + key.value(), "-"_s + key.value()}));
            QVERIFY(f.editor->hasFocus());
            QVERIFY(f.keypad->isVisible());
        }
        // Without a focused widget nothing is sent.
        f.editor->clearFocus();
        f.click("btn1"_s);
        QCOMPARE(f.editor->log.size(), 2);
    }

    // With the focus on the keypad itself the keys that end an entry still end it, no others.
    void itsOwnKeysReachTheReceiver()
    {
        KeypadScene f;
        KeyRecorder receiver;
        f.keypad->setReceiver(&receiver);
        f.keypad->open();
        f.keypad->setFocusPolicy(Qt::StrongFocus);
        f.keypad->setFocus();
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_A, Qt::Key_Enter, Qt::Key_Escape}) {
            QVERIFY(f.keypad->hasFocus());
            typeKey(f.window.get(), key);
        }
        QCOMPARE(receiver.log, QStringList({"+1000004:"_s, "+1000005:"_s, "+1000000:"_s}));
        // One that makes nothing of them leaves them to the dialog.
        QObject indifferent;
        f.keypad->setReceiver(&indifferent);
        QVERIFY(f.keypad->isVisible());
        typeKey(f.window.get(), Qt::Key_Escape);
        QVERIFY(f.keypad->isHidden());
    }

    void everyKeyFitsAFinger()
    {
        KeypadScene f;
        f.keypad->setShortcutKeys(units(40));
        f.keypad->open();
        const int finger = 34; // 9 mm at 96 dpi
        const int width = f.keypad->width();
        const auto verifySizes = [&] {
            const auto keys = f.keypad->findChildren<QPushButton *>();
            for (const QPushButton *key : keys) {
                QVERIFY2(key->width() >= finger && key->height() >= finger,
                         qPrintable(key->objectName()));
                QVERIFY(key->focusPolicy() == Qt::NoFocus);
                QVERIFY(f.keypad->rect().contains(key->geometry()));
                QVERIFY2(!key->isVisible() || f.keypad->childAt(key->geometry().center()) == key,
                         qPrintable(key->objectName()));
                if (key->objectName().startsWith("btnUnit"_s))
                    QVERIFY(qAbs(key->height() - f.button("btnOk"_s)->height()) <= 1);
                QVERIFY(key->fontMetrics().horizontalAdvance(key->text()) < key->width());
            }
        };
        verifySizes();
        QVERIFY(f.button("btnOk"_s)->minimumHeight() < f.button("btn5"_s)->minimumHeight());
        QFont large = f.keypad->font();
        large.setPointSize(30);
        f.keypad->setFont(large);
        QTRY_VERIFY(f.keypad->width() > width);
        verifySizes();
    }

    /// Digits stand as on every keypad, also where people read to the left.
    void digitsAreNotMirrored()
    {
        QApplication::setLayoutDirection(Qt::RightToLeft);
        const auto restore =
            qScopeGuard([] { QApplication::setLayoutDirection(Qt::LayoutDirectionAuto); });
        Controls::TouchNumKeyboard pad;
        pad.show();
        const auto left = [&pad](const char *name) {
            return pad.findChild<QPushButton *>(QLatin1String(name))->geometry().left();
        };
        QVERIFY(left("btn7") < left("btn8") && left("btn8") < left("btn9"));
    }

    void heldKeysRepeat()
    {
        KeypadScene f;
        f.keypad->open();
        QPushButton *back = f.button("btnBack"_s);
        back->setAutoRepeatDelay(10);
        back->setAutoRepeatInterval(10);
        mousePress(f.window.get(), inWindow(back, back->rect().center()));
        QTRY_VERIFY(f.editor->log.size() >= 6);

        // Hidden while it is held, the key has come up when the keypad is shown again.
        f.keypad->reject();
        QVERIFY(!back->isDown());
        const int sent = int(f.editor->log.size());
        f.keypad->open();
        QTest::qWait(40);
        QCOMPARE(f.editor->log.size(), sent);
        mouseRelease(f.window.get(), QPoint(1, 1));
    }

    void pressOutside()
    {
        for (const auto &[policy, log] :
             {std::pair(int(TouchNumKeyboard::PressOutsideIgnored), ""),
              {TouchNumKeyboard::PressOutsideCommits, "+1000004:\n -1000004:\n"},
              {TouchNumKeyboard::PressOutsideCancels, "+1000000: -1000000:"},
              {17, "+1000000: -1000000:"}}) {
            KeypadScene f;
            f.keypad->setPressOutsidePolicy(TouchNumKeyboard::PressOutsidePolicy(policy));
            f.keypad->open();
            f.keypad->open(); // twice is not two answers
            KeyRecorder receiver;
            mouseClick(f.window.get(), QPoint(5, 5)); // nobody is told
            f.keypad->setReceiver(&receiver);
            mouseClick(f.window.get(), QPoint(5, 5));
            QCOMPARE(receiver.log.join(QLatin1Char(' ')), QLatin1String(log));
            QVERIFY(f.keypad->isVisible() && f.editor->hasFocus() && f.editor->log.isEmpty());
        }
    }

    void opensAboveTheHost()
    {
        KeypadScene f;
        auto *anchor = new QWidget(f.editor);
        anchor->setGeometry(700, 40, 80, 40);
        f.keypad->open();
        QVERIFY(!f.keypad->isWindow());
        QCOMPARE(f.keypad->window(), f.window.get());
        QVERIFY((f.keypad->geometry().center() - f.window->rect().center()).manhattanLength() <= 2);

        f.keypad->reject();
        QCOMPARE(f.keypad->parentWidget(), f.window.get());
        f.keypad->setPopupAnchorWidget(anchor);
        f.keypad->open();
        QCOMPARE(f.keypad->geometry().topRight() + QPoint(1, 0), QPoint(700, 40));

        // A host that shrinks below the keypad keeps its title in sight.
        f.window->resize(120, 90);
        QCOMPARE(f.keypad->pos(), QPoint(0, 0));
        f.keypad->accept();

        // Another window, when the host says so, and the first again when it no longer does.
        QWidget other;
        other.resize(700, 600);
        other.show();
        auto *const inside = new QWidget(&other);
        f.keypad->setHostWindow(inside);
        f.keypad->setDimEnabled(true);
        f.keypad->open();
        QCOMPARE(f.keypad->window(), &other);
        const auto *overlay = other.findChild<Controls::OverlayContainer *>();
        QVERIFY(overlay && overlay->isDimEnabled());
        f.keypad->setDimEnabled(false); // while it is shown
        QVERIFY(!overlay->isDimEnabled());
        f.keypad->setHostWindow(nullptr);
        f.keypad->open();
        QCOMPARE(f.keypad->window(), f.window.get());
        // Shown once more by the window system, it remembers who had the focus all the same.
        QShowEvent shown;
        QSpontaneKeyEvent::setSpontaneous(&shown);
        f.keypad->setFocusPolicy(Qt::StrongFocus);
        QWidget *const before = QApplication::focusWidget();
        f.keypad->setFocus();
        qApp->notify(f.keypad, &shown);
        f.keypad->accept();
        QCOMPARE(QApplication::focusWidget(), before);
    }

    void titleDragsInsideTheHost()
    {
        KeypadScene f;
        f.keypad->setWindowTitle("Stop"_s);
        const auto *name = f.keypad->findChild<QLabel *>("nameLabel"_s);
        QCOMPARE(name->text(), "Stop"_s);
        f.keypad->open();
        const QPoint start = f.keypad->pos();
        const QPoint grip = inWindow(name, name->rect().center());
        mousePress(f.window.get(), grip, Qt::RightButton);
        mouseMove(f.window.get(), grip + QPoint(30, -20));
        mouseRelease(f.window.get(), grip, Qt::RightButton);
        QCOMPARE(f.keypad->pos(), start);
        mousePress(f.window.get(), grip);
        mouseMove(f.window.get(), grip + QPoint(30, -20));
        QCOMPARE(f.keypad->pos(), start + QPoint(30, -20));
        mouseMove(f.window.get(), QPoint(799, 0));
        QCOMPARE(f.keypad->pos(), QPoint(f.window->width() - f.keypad->width(), 0));
        mouseRelease(f.window.get(), QPoint(799, 0));
        mouseMove(f.window.get(), grip);
        QCOMPARE(f.keypad->y(), 0);
        // The title ends where its layout does.
        const auto *title = f.keypad->findChild<QGridLayout *>("titleGridLayout"_s);
        for (const int below : {0, 1}) {
            const QPoint edge = f.keypad->pos() + QPoint(2, title->geometry().bottom() + below);
            mouseDrag(f.window->windowHandle(), edge, edge + QPoint(-10, 10));
            QCOMPARE(f.keypad->y(), 10);
        }
    }

    void execReturnsHowItEnded()
    {
        const std::function<void(KeypadScene &)> ends[] = {
            [](KeypadScene &f) { f.keypad->accept(); }, [](KeypadScene &f) { f.keypad->reject(); },
            [](KeypadScene &f) { f.keypad->hide(); }, [](KeypadScene &f) { delete f.keypad; },
            [](KeypadScene &f) { f.window.reset(); }};
        int expected = QDialog::Accepted;
        for (const auto &end : ends) {
            KeypadScene f;
            QTimer::singleShot(0, this, [&] {
                QVERIFY(f.keypad->isVisible());
                end(f);
            });
            f.keypad->setResult(QDialog::Accepted);
            QCOMPARE(f.keypad->exec(), std::exchange(expected, int(QDialog::Rejected)));
            if (f.keypad) { // hidden as soon as it is shown
                const OnEvent hides(f.keypad, QEvent::ShowToParent, [&] { f.keypad->hide(); });
                QCOMPARE(f.keypad->exec(), int(QDialog::Rejected));
            }
            const auto *overlay =
                f.window ? f.window->findChild<QWidget *>("overlayContainer"_s) : nullptr;
            QVERIFY(!overlay || !overlay->isVisible());
        }
    }

    void livesWithItsParentOnly()
    {
        KeypadScene f;
        // One whose parent is elsewhere goes back there when the window it was shown on goes.
        QWidget elsewhere;
        TouchNumKeyboard guest(&elsewhere);
        guest.open();
        TouchNumKeyboard keypad;
        keypad.open();
        QCOMPARE(keypad.window(), f.window.get());
        f.window.reset();
        QVERIFY(!keypad.parentWidget() && keypad.isHidden());
        QCOMPARE(guest.parentWidget(), &elsewhere);

        // Without any main window it is a dialog of its own.
        keypad.open();
        QVERIFY(keypad.isWindow() && keypad.isVisible());
        const QRect screen = keypad.screen()->availableGeometry();
        const QPoint title(5, 5);
        QTest::mousePress(&keypad, Qt::LeftButton, Qt::NoModifier, title);
        QMouseEvent far(QEvent::MouseMove, title, screen.bottomRight() * 2, Qt::NoButton,
                        Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&keypad, &far);
        QVERIFY(screen.contains(keypad.geometry()));
        QTest::mouseRelease(&keypad, Qt::LeftButton, Qt::NoModifier, title);
        keypad.reject();
        // Also after it was one of another kind, and nobody had the focus.
        keypad.showGlobal();
        QVERIFY(screen.contains(keypad.geometry()));
        keypad.hide();
        keypad.open();
        QVERIFY(keypad.isModal() && !(keypad.windowFlags() & Qt::WindowDoesNotAcceptFocus));
        keypad.reject();
    }

    void theIndicatorMirrorsAndTells()
    {
        KeypadScene f;
        auto *edit = f.keypad->findChild<QLineEdit *>("edit"_s, Qt::FindDirectChildrenOnly);
        QVERIFY(edit && edit->isHidden());
        f.keypad->setIndicatorText("12.5MHz"_s, 0, 4, 4);
        QVERIFY(!edit->isHidden());
        QCOMPARE(f.keypad->indicatorText(), "12.5MHz"_s);
        QCOMPARE(edit->selectedText(), "12.5"_s);
        f.keypad->setIndicatorText("12"_s, 900, -5, 900); // no warning
        QCOMPARE(edit->cursorPosition(), 2);
        f.keypad->setIndicatorTextAlignment(Qt::AlignLeft);
        f.keypad->setIndicatorText("0123456789"_s, 2, 0, 2);

        f.keypad->open();
        QStringList told;
        note(told, "press", f.keypad.data(), &TouchNumKeyboard::indicatorPress);
        note(told, "move", f.keypad.data(), &TouchNumKeyboard::indicatorMove);
        note(told, "release", f.keypad.data(), &TouchNumKeyboard::indicatorRelease);
        note(told, "double", f.keypad.data(), &TouchNumKeyboard::indicatorDoubleClick);
        const QPoint right(edit->width() - 2, edit->height() / 2);
        mouseMove(edit, right);
        mousePress(edit, {1, edit->height() / 2});
        mouseMove(edit, right);
        mouseRelease(edit, right);
        mouseDoubleClick(edit, right);
        QCOMPARE(told.mid(0, 3), QStringList({"press 0"_s, "move 10"_s, "release 10"_s}));
        QVERIFY(told.contains("double 10"_s));
        QVERIFY(!edit->hasSelectedText() && f.editor->hasFocus());
        told.clear();
        mouseClick(edit, right, Qt::MiddleButton);
        mouseDoubleClick(edit, right, Qt::MiddleButton);
        QCOMPARE(told, QStringList());

        QVERIFY(!turnWheel(edit, {3, 3}, 120)); // nobody turns anything
        int turns = 0;
        connect(f.keypad, &TouchNumKeyboard::indicatorWheel, this, [&](QWheelEvent *event) {
            turns += event->angleDelta().y();
            event->accept();
        });
        QVERIFY(turnWheel(edit, {3, 3}, 120));
        QCOMPARE(turns, 120);
        // Nor is it bothered by events of others that a host lets it see.
        f.editor->installEventFilter(f.keypad);
        mouseClick(f.editor, {5, 5});
        QCOMPARE(told, QStringList());
    }

    /// What a press or the wheel leads to may end the keypad.
    void goneByItsIndicator()
    {
        for (const bool wheel : {false, true}) {
            KeypadScene f;
            f.keypad->setIndicatorText("12"_s, 0, 0, 0);
            f.keypad->open();
            const auto end = [&f] { delete f.keypad; };
            connect(f.keypad, &TouchNumKeyboard::indicatorPress, this, end);
            connect(f.keypad, &TouchNumKeyboard::indicatorWheel, this, end);
            QLineEdit *const edit = f.keypad->lineEdit();
            if (wheel)
                (void)turnWheel(edit, {3, 3}, 120);
            else
                mousePress(f.window.get(), inWindow(edit, {3, 3}));
            QVERIFY(!f.keypad);
            mouseRelease(f.window.get(), {5, 5});
        }
    }

    void titleWidgetsAreOwned()
    {
        KeypadScene f;
        QPointer<QLabel> first = new QLabel("1 Hz ... 8.5 GHz"_s);
        QPointer<QLabel> second = new QLabel("2"_s);
        for (const auto side : {Qt::AlignRight, Qt::AlignLeft})
            f.keypad->setTitleWidget(first, side);
        f.keypad->open();
        QVERIFY(first->isVisible());
        f.keypad->setTitleWidget(second);
        QVERIFY(!first && second->isVisible());
        delete second;
        QVERIFY(!f.keypad->titleWidget());
        f.keypad->setTitleWidget(nullptr);

        // So is what stands below the text area.
        QPointer<QLabel> third = new QLabel("3"_s);
        QPointer<QLabel> fourth = new QLabel("4"_s);
        f.keypad->setExtraWidget(third);
        f.keypad->setExtraWidget(third);
        QTRY_VERIFY(third->isVisible());
        f.keypad->setExtraWidget(fourth);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!third && f.keypad->extraWidget() == fourth && f.keypad->isAncestorOf(fourth));
        f.keypad->setExtraWidget(nullptr);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!fourth && !f.keypad->extraWidget());
    }

    void showGlobalLeavesTheActiveWindowAlone()
    {
        KeypadScene f;
        f.keypad->open();
        f.keypad->showGlobal();
        QVERIFY(f.keypad->isWindow() && f.keypad->isVisible());
        QVERIFY(!f.keypad->isModal());
        QVERIFY(f.keypad->windowFlags() & Qt::WindowDoesNotAcceptFocus);
        f.keypad->open();
        QVERIFY(!f.keypad->isWindow() && f.keypad->isModal());
    }
};

QTEST_MAIN(tst_TouchNumKeyboard)
#include "tst_touchnumkeyboard.moc"
