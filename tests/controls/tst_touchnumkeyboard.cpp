// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <controls/touchnumkeyboard.h>

#include <functional>
#include <memory>
#include <utility>

#include <pointer.h>
#include <vnatest.h>

using namespace VnaTest;
using Controls::TouchNumKeyboard;

namespace
{

/// Notes the key events that it receives.
class KeyRecorder : public QWidget
{
public:
    using QWidget::QWidget;
    bool event(QEvent *event) override
    {
        if (event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease) {
            const auto *key = static_cast<QKeyEvent *>(event);
            log << (event->type() == QEvent::KeyPress ? "+"_s : "-"_s)
                    + QString::number(key->key(), 16) + ":"_s + key->text();
            return true;
        }
        return QWidget::event(event);
    }

    QStringList log;
};

QList<TouchNumKeyboard::KeySpec> units(int count)
{
    QList<TouchNumKeyboard::KeySpec> keys;
    for (int i = 0; i < count; ++i) {
        const QString name = "u"_s + QString::number(i);
        keys.append({Qt::Key_Return, name, name});
    }
    return keys;
}

} // namespace

class tst_TouchNumKeyboard : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        makeScene();
    }

    void cleanup()
    {
        m_window.reset();
        TestCase::cleanup();
    }

    void keysReachTheFocusedWidget()
    {
        m_keypad->open();
        QMap<QString, QString> keys{
            {"btnP"_s, "2e:."_s},        {"btnC"_s, "b1:\u00b1"_s},    {"btnEsc"_s, "1000000:"_s},
            {"btnBack"_s, "1000003:"_s}, {"btnUp"_s, "1000013:"_s},    {"btnDown"_s, "1000015:"_s},
            {"btnLeft"_s, "1000012:"_s}, {"btnRight"_s, "1000014:"_s}, {"btnOk"_s, "1000004:\n"_s}};
        for (int digit = 0; digit < 10; ++digit)
            keys.insert("btn%1"_s.arg(digit), "3%1:%1"_s.arg(digit));
        for (auto key = keys.cbegin(); key != keys.cend(); ++key) {
            m_editor->log.clear();
            click(key.key());
            QCOMPARE(m_editor->log, QStringList({"+"_s + key.value(), "-"_s + key.value()}));
            QVERIFY(m_editor->hasFocus());
            QVERIFY(m_keypad->isVisible());
        }
        // Without a focused widget nothing is sent.
        m_editor->clearFocus();
        click("btn1"_s);
        QCOMPARE(m_editor->log.size(), 2);
    }

    // With the focus on the keypad itself the keys that end an entry still end it, no others.
    void itsOwnKeysReachTheReceiver()
    {
        KeyRecorder receiver;
        m_keypad->setReceiver(&receiver);
        m_keypad->open();
        m_keypad->setFocusPolicy(Qt::StrongFocus);
        m_keypad->setFocus();
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_A, Qt::Key_Enter, Qt::Key_Escape}) {
            QVERIFY(m_keypad->hasFocus());
            typeKey(m_window.get(), key);
        }
        QCOMPARE(receiver.log, QStringList({"+1000004:"_s, "+1000005:"_s, "+1000000:"_s}));
    }

    void everyKeyFitsAFinger()
    {
        m_keypad->setShortcutKeys(units(40));
        m_keypad->open();
        const int finger = 34; // 9 mm at 96 dpi
        const int width = m_keypad->width();
        const auto verifySizes = [&] {
            const auto keys = m_keypad->findChildren<QPushButton *>();
            for (const QPushButton *key : keys) {
                QVERIFY2(key->width() >= finger && key->height() >= finger,
                         qPrintable(key->objectName()));
                QVERIFY(key->focusPolicy() == Qt::NoFocus);
                QVERIFY(m_keypad->rect().contains(key->geometry()));
                QVERIFY2(!key->isVisible() || m_keypad->childAt(key->geometry().center()) == key,
                         qPrintable(key->objectName()));
                if (key->objectName().startsWith("btnUnit"_s))
                    QVERIFY(qAbs(key->height() - button("btnOk"_s)->height()) <= 1);
                QVERIFY(key->fontMetrics().horizontalAdvance(key->text()) < key->width());
            }
        };
        verifySizes();
        QVERIFY(button("btnOk"_s)->minimumHeight() < button("btn5"_s)->minimumHeight());
        QFont large = m_keypad->font();
        large.setPointSize(30);
        m_keypad->setFont(large);
        QTRY_VERIFY(m_keypad->width() > width);
        verifySizes();
    }

    void heldKeysRepeat()
    {
        m_keypad->open();
        QPushButton *back = button("btnBack"_s);
        back->setAutoRepeatDelay(10);
        back->setAutoRepeatInterval(10);
        mousePress(m_window.get(), centre(back));
        QTRY_VERIFY(m_editor->log.size() >= 6);

        // Hidden while it is held, the key has come up when the keypad is shown again.
        m_keypad->reject();
        QVERIFY(!back->isDown());
        const int sent = int(m_editor->log.size());
        m_keypad->open();
        QTest::qWait(40);
        QCOMPARE(m_editor->log.size(), sent);
        mouseRelease(m_window.get(), QPoint(1, 1));
    }

    void pagesOfUnits_data()
    {
        columns<int, QString>("count", "columns"); // of each page; "-" for a hidden key
        row("0", 0, "- - - -");
        row("1", 1, "u0 - - -");
        row("4", 4, "u0 u1 u2 u3");
        row("5", 5, "u0 u1 u2 More|u3 u4 - More");
        row("6", 6, "u0 u1 u2 More|u3 u4 u5 More");
        row("7", 7, "u0 u1 u2 More|PgUp u3 u4 PgDn|u5 u6 - More");
        QString forty = "u0 u1 u2 More"_s;
        for (int unit = 3; unit < 37; unit += 2)
            forty += "|PgUp u%1 u%2 PgDn"_s.arg(unit).arg(unit + 1);
        row("40", 40, forty + "|u37 u38 u39 More"_s);
    }

    void pagesOfUnits()
    {
        QFETCH(int, count);
        QFETCH(QString, columns);
        const QStringList pages = columns.split(QLatin1Char('|'));
        QVERIFY(m_keypad->setShortcutKeys(units(count)));
        m_keypad->open();
        const QRect ok = button("btnOk"_s)->geometry();
        for (const QString &page : pages) {
            QCOMPARE(unitColumn(), page);
            QCOMPARE(button("btnOk"_s)->geometry(), ok);
            // Every unit on the page sends itself.
            const QStringList captions = page.split(QLatin1Char(' '));
            for (int i = 0; i < 4; ++i) {
                if (!captions.at(i).startsWith(QLatin1Char('u')))
                    continue;
                m_editor->log.clear();
                click("btnUnit%1"_s.arg(i + 1));
                QCOMPARE(m_editor->log.value(0), "+1000004:"_s + captions.at(i));
            }
            if (pages.size() > 1)
                click("btnUnit4"_s);
        }
        // The last page led back to the first, and the pages lead up again.
        for (int i = 1; i < pages.size() - 1; ++i)
            click("btnUnit4"_s);
        for (int i = int(pages.size()) - 2; i > 0; --i) {
            QCOMPARE(unitColumn(), pages.at(i));
            click("btnUnit1"_s);
        }
        QCOMPARE(unitColumn(), pages.first());
    }

    void newUnitsStartAtTheFirstPage()
    {
        m_keypad->setShortcutKeys(units(9));
        m_keypad->open();
        click("btnUnit4"_s);
        const QString second = unitColumn();
        QEvent language(QEvent::LanguageChange);
        QCoreApplication::sendEvent(m_keypad, &language);
        QCOMPARE(unitColumn(), second); // another language turns no page
        m_keypad->setShortcutKeys(units(9));
        QCOMPARE(unitColumn(), "u0 u1 u2 More"_s);

        // Without a key code it is shown, and sends nothing.
        auto silent = units(3);
        silent[1].key = Qt::Key_unknown;
        m_keypad->setShortcutKeys(silent);
        QCOMPARE(unitColumn(), "u0 u1 u2 -"_s);
        click("btnUnit2"_s);
        QVERIFY(m_editor->log.isEmpty());

        // A unit called like a page key is one, but only to pages that are.
        const TouchNumKeyboard::KeySpec up{Qt::Key_Return, "PgUp"_s, "x"_s};
        m_keypad->setShortcutKeys({up});
        click("btnUnit1"_s);
        QCOMPARE(m_editor->log.value(0), "+1000004:x"_s);
        auto pages = units(7);
        pages[0] = up;
        m_keypad->setShortcutKeys(pages);
        click("btnUnit1"_s);
        QCOMPARE(unitColumn(), "PgUp u1 u2 More"_s);
        QCOMPARE(m_editor->log.size(), 2);
    }

    void pressOutside()
    {
        for (const auto &[policy, log] :
             {std::pair(int(TouchNumKeyboard::PressOutsideIgnored), ""),
              {TouchNumKeyboard::PressOutsideCommits, "+1000004:\n -1000004:\n"},
              {TouchNumKeyboard::PressOutsideCancels, "+1000000: -1000000:"},
              {17, "+1000000: -1000000:"}}) {
            makeScene();
            m_keypad->setPressOutsidePolicy(TouchNumKeyboard::PressOutsidePolicy(policy));
            m_keypad->open();
            m_keypad->open(); // twice is not two answers
            KeyRecorder receiver;
            mouseClick(m_window.get(), QPoint(5, 5)); // nobody is told
            m_keypad->setReceiver(&receiver);
            mouseClick(m_window.get(), QPoint(5, 5));
            QCOMPARE(receiver.log.join(QLatin1Char(' ')), QLatin1String(log));
            QVERIFY(m_keypad->isVisible() && m_editor->hasFocus() && m_editor->log.isEmpty());
        }
    }

    void opensAboveTheHost()
    {
        auto *anchor = new QWidget(m_editor);
        anchor->setGeometry(700, 40, 80, 40);
        m_keypad->open();
        QVERIFY(!m_keypad->isWindow());
        QCOMPARE(m_keypad->window(), m_window.get());
        QVERIFY((m_keypad->geometry().center() - m_window->rect().center()).manhattanLength() <= 2);

        m_keypad->reject();
        QCOMPARE(m_keypad->parentWidget(), m_window.get());
        m_keypad->setPopupAnchorWidget(anchor);
        m_keypad->open();
        QCOMPARE(m_keypad->geometry().topRight() + QPoint(1, 0), QPoint(700, 40));

        // A host that shrinks below the keypad keeps its title in sight.
        m_window->resize(120, 90);
        QCOMPARE(m_keypad->pos(), QPoint(0, 0));
        m_keypad->accept();
    }

    void titleDragsInsideTheHost()
    {
        m_keypad->setWindowTitle("Stop"_s);
        const auto *name = m_keypad->findChild<QLabel *>("nameLabel"_s);
        QCOMPARE(name->text(), "Stop"_s);
        m_keypad->open();
        const QPoint start = m_keypad->pos();
        const QPoint grip = centre(name);
        mousePress(m_window.get(), grip);
        mouseMove(m_window.get(), grip + QPoint(30, -20));
        QCOMPARE(m_keypad->pos(), start + QPoint(30, -20));
        mouseMove(m_window.get(), QPoint(799, 0));
        QCOMPARE(m_keypad->pos(), QPoint(m_window->width() - m_keypad->width(), 0));
        mouseRelease(m_window.get(), QPoint(799, 0));
        mouseMove(m_window.get(), grip);
        QCOMPARE(m_keypad->y(), 0);
        // The title ends where its layout does.
        const auto *title = m_keypad->findChild<QGridLayout *>("titleGridLayout"_s);
        for (const int below : {0, 1}) {
            const QPoint edge = m_keypad->pos() + QPoint(2, title->geometry().bottom() + below);
            mouseDrag(m_window->windowHandle(), edge, edge + QPoint(-10, 10));
            QCOMPARE(m_keypad->y(), 10);
        }
    }

    void execReturnsHowItEnded()
    {
        const std::function<void()> ends[] = {
            [&] { m_keypad->accept(); }, [&] { m_keypad->reject(); }, [&] { m_keypad->hide(); },
            [&] { delete m_keypad; }, [&] { m_window.reset(); }};
        int expected = QDialog::Accepted;
        for (const auto &end : ends) {
            makeScene();
            QTimer::singleShot(0, this, [&] {
                QVERIFY(m_keypad->isVisible());
                end();
            });
            m_keypad->setResult(QDialog::Accepted);
            QCOMPARE(m_keypad->exec(), std::exchange(expected, int(QDialog::Rejected)));
            const auto *overlay =
                m_window ? m_window->findChild<QWidget *>("overlayContainer"_s) : nullptr;
            QVERIFY(!overlay || !overlay->isVisible());
        }
    }

    void livesWithItsParentOnly()
    {
        // One whose parent is elsewhere goes back there when the window it was shown on goes.
        QWidget elsewhere;
        TouchNumKeyboard guest(&elsewhere);
        guest.open();
        TouchNumKeyboard keypad;
        keypad.open();
        QCOMPARE(keypad.window(), m_window.get());
        m_window.reset();
        QVERIFY(!keypad.parentWidget() && keypad.isHidden());
        QCOMPARE(guest.parentWidget(), &elsewhere);

        // Without any main window it is a dialog of its own.
        keypad.open();
        QVERIFY(keypad.isWindow() && keypad.isVisible());
        keypad.reject();
    }

    void theIndicatorMirrorsAndTells()
    {
        auto *edit = m_keypad->findChild<QLineEdit *>("edit"_s, Qt::FindDirectChildrenOnly);
        QVERIFY(edit && edit->isHidden());
        m_keypad->setIndicatorText("12.5MHz"_s, 0, 4, 4);
        QVERIFY(!edit->isHidden());
        QCOMPARE(m_keypad->indicatorText(), "12.5MHz"_s);
        QCOMPARE(edit->selectedText(), "12.5"_s);
        m_keypad->setIndicatorText("12"_s, 900, -5, 900); // no warning
        QCOMPARE(edit->cursorPosition(), 2);
        m_keypad->setIndicatorTextAlignment(Qt::AlignLeft);
        m_keypad->setIndicatorText("0123456789"_s, 2, 0, 2);

        m_keypad->open();
        QStringList told;
        note(told, "press", m_keypad.data(), &TouchNumKeyboard::indicatorPress);
        note(told, "move", m_keypad.data(), &TouchNumKeyboard::indicatorMove);
        note(told, "release", m_keypad.data(), &TouchNumKeyboard::indicatorRelease);
        note(told, "double", m_keypad.data(), &TouchNumKeyboard::indicatorDoubleClick);
        const QPoint right(edit->width() - 2, edit->height() / 2);
        mouseMove(edit, right);
        mousePress(edit, {1, edit->height() / 2});
        mouseMove(edit, right);
        mouseRelease(edit, right);
        mouseDoubleClick(edit, right);
        QCOMPARE(told.mid(0, 3), QStringList({"press 0"_s, "move 10"_s, "release 10"_s}));
        QVERIFY(told.contains("double 10"_s));
        QVERIFY(!edit->hasSelectedText() && m_editor->hasFocus());

        int turns = 0;
        connect(m_keypad, &TouchNumKeyboard::indicatorWheel, this, [&](QWheelEvent *event) {
            turns += event->angleDelta().y();
            event->accept();
        });
        QVERIFY(turnWheel(edit, {3, 3}, 120));
        QCOMPARE(turns, 120);
    }

    void titleWidgetsAreOwned()
    {
        QPointer<QLabel> first = new QLabel("1 Hz ... 8.5 GHz"_s);
        QPointer<QLabel> second = new QLabel("2"_s);
        for (const auto side : {Qt::AlignRight, Qt::AlignLeft})
            m_keypad->setTitleWidget(first, side);
        m_keypad->open();
        QVERIFY(first->isVisible());
        m_keypad->setTitleWidget(second);
        QVERIFY(!first && second->isVisible());
        delete second;
        QVERIFY(!m_keypad->titleWidget());
        m_keypad->setTitleWidget(nullptr);
    }

    void showGlobalLeavesTheActiveWindowAlone()
    {
        m_keypad->open();
        m_keypad->showGlobal();
        QVERIFY(m_keypad->isWindow() && m_keypad->isVisible());
        QVERIFY(!m_keypad->isModal());
        QVERIFY(m_keypad->windowFlags() & Qt::WindowDoesNotAcceptFocus);
        m_keypad->open();
        QVERIFY(!m_keypad->isWindow() && m_keypad->isModal());
    }

private:
    void makeScene()
    {
        m_window = std::make_unique<QMainWindow>();
        m_window->setGeometry(0, 0, 800, 600);
        m_editor = new KeyRecorder;
        m_editor->setFocusPolicy(Qt::StrongFocus);
        m_window->setCentralWidget(m_editor);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        m_editor->setFocus();
        m_keypad = new TouchNumKeyboard(m_window.get());
    }

    QPushButton *button(const QString &name) const
    {
        return m_keypad->findChild<QPushButton *>(name);
    }

    QPoint centre(const QWidget *widget) const
    {
        return widget->mapTo(m_window.get(), widget->rect().center());
    }

    void click(const QString &name) const { mouseClick(button(name)); }

    /// Captions of the unit keys from top to bottom.
    QString unitColumn() const
    {
        QStringList captions;
        for (int i = 1; i <= 4; ++i) {
            const QPushButton *key = button("btnUnit%1"_s.arg(i));
            captions << (key->isHidden() ? "-"_s : key->text());
        }
        return captions.join(QLatin1Char(' '));
    }

    std::unique_ptr<QMainWindow> m_window;
    QPointer<KeyRecorder> m_editor;
    QPointer<TouchNumKeyboard> m_keypad;
};

QTEST_MAIN(tst_TouchNumKeyboard)
#include "tst_touchnumkeyboard.moc"
