// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <controls/touchnumkeyboard.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>
#include <QWheelEvent>
#include <QWindow>
#include <QtTest>

#include <functional>
#include <memory>

#include <vnatest.h>

using Controls::TouchNumKeyboard;

namespace
{

/// Notes the key events that it receives; may take part in destroying things.
class KeyRecorder : public QWidget
{
public:
    using QWidget::QWidget;
    bool event(QEvent *event) override
    {
        if (event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease) {
            const auto *key = static_cast<QKeyEvent *>(event);
            log << QStringLiteral("%1%2:%3")
                       .arg(event->type() == QEvent::KeyPress ? QStringLiteral("+")
                                                              : QStringLiteral("-"))
                       .arg(key->key(), 0, 16)
                       .arg(key->text());
            if (onKey)
                onKey();
            return true;
        }
        return QWidget::event(event);
    }

    QStringList log;
    std::function<void()> onKey;
};

QList<TouchNumKeyboard::KeySpec> units(int count)
{
    QList<TouchNumKeyboard::KeySpec> keys;
    for (int i = 0; i < count; ++i) {
        const QString name = QStringLiteral("u") + QString::number(i);
        keys.append({Qt::Key_Return, name, name});
    }
    return keys;
}

} // namespace

class tst_TouchNumKeyboard : public VnaTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
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

    void cleanup()
    {
        m_window.reset();
        TestCase::cleanup();
    }

    void keysReachTheFocusedWidget_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("text");
        for (int digit = 0; digit < 10; ++digit)
            QTest::addRow("btn%d", digit) << QStringLiteral("btn%1").arg(digit) << Qt::Key_0 + digit
                                          << QString::number(digit);
        const auto row = [](const char *name, Qt::Key key, const char *text) {
            QTest::newRow(name) << QString::fromLatin1(name) << int(key) << QString::fromUtf8(text);
        };
        row("btnP", Qt::Key_Period, ".");
        row("btnC", Qt::Key_plusminus, "\u00b1");
        row("btnEsc", Qt::Key_Escape, "");
        row("btnBack", Qt::Key_Backspace, "");
        row("btnUp", Qt::Key_Up, "");
        row("btnDown", Qt::Key_Down, "");
        row("btnLeft", Qt::Key_Left, "");
        row("btnRight", Qt::Key_Right, "");
        row("btnOk", Qt::Key_Return, "\n");
    }

    void keysReachTheFocusedWidget()
    {
        QFETCH(QString, button);
        QFETCH(int, key);
        QFETCH(QString, text);
        m_keypad->open();
        click(button);
        const QString event = QString::number(key, 16) + QLatin1Char(':') + text;
        QCOMPARE(m_editor->log, QStringList({QLatin1Char('+') + event, QLatin1Char('-') + event}));
        QVERIFY(m_editor->hasFocus());
        QVERIFY(m_keypad->isVisible());

        // Without a focused widget nothing is sent.
        m_editor->clearFocus();
        click(button);
        QCOMPARE(m_editor->log.size(), 2);
    }

    void everyKeyFitsAFinger()
    {
        m_keypad->setShortcutKeys(units(40));
        m_keypad->open();
        const int finger = 34; // 9 mm at 96 dpi
        const int width = m_keypad->width();
        const auto verifySizes = [&] {
            const auto keys = m_keypad->findChildren<QPushButton *>();
            QCOMPARE(keys.size(), 23);
            for (const QPushButton *key : keys) {
                QVERIFY2(key->width() >= finger && key->height() >= finger,
                         qPrintable(key->objectName()));
                QVERIFY(key->focusPolicy() == Qt::NoFocus);
                QVERIFY(m_keypad->rect().contains(key->geometry()));
                QVERIFY2(!key->isVisible() || m_keypad->childAt(key->geometry().center()) == key,
                         qPrintable(key->objectName()));
                if (key->objectName().startsWith(QLatin1String("btnUnit")))
                    QVERIFY(qAbs(key->height() - button(QStringLiteral("btnOk"))->height()) <= 1);
                QVERIFY(key->fontMetrics().horizontalAdvance(key->text()) < key->width());
            }
        };
        verifySizes();
        QFont large = m_keypad->font();
        large.setPointSize(30);
        m_keypad->setFont(large);
        QTRY_VERIFY(m_keypad->width() > width);
        verifySizes();
    }

    void heldKeysRepeat()
    {
        m_keypad->open();
        QPushButton *back = button(QStringLiteral("btnBack"));
        back->setAutoRepeatDelay(10);
        back->setAutoRepeatInterval(10);
        QTest::mousePress(m_window->windowHandle(), Qt::LeftButton, Qt::NoModifier, centre(back));
        QTRY_VERIFY(m_editor->log.size() >= 6);

        // Hidden while it is held, the key has come up when the keypad is shown again.
        m_keypad->reject();
        QVERIFY(!back->isDown());
        const int sent = int(m_editor->log.size());
        m_keypad->open();
        QTest::qWait(40);
        QCOMPARE(m_editor->log.size(), sent);
        QTest::mouseRelease(m_window->windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(1, 1));
    }

    void pagesOfUnits_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<QStringList>("pages"); // from the first to the last, "-" for a hidden key
        const auto row = [](int count, std::initializer_list<const char *> pages) {
            QStringList texts;
            for (const char *page : pages)
                texts << QString::fromLatin1(page);
            QTest::addRow("%d units", count) << count << texts;
        };
        row(0, {"- - - -"});
        row(1, {"u0 - - -"});
        row(4, {"u0 u1 u2 u3"});
        row(5, {"u0 u1 u2 More", "u3 u4 - More"});
        row(6, {"u0 u1 u2 More", "u3 u4 u5 More"});
        row(7, {"u0 u1 u2 More", "PgUp u3 u4 PgDn", "u5 u6 - More"});
        row(9, {"u0 u1 u2 More", "PgUp u3 u4 PgDn", "PgUp u5 u6 PgDn", "u7 u8 - More"});

        QStringList forty{QStringLiteral("u0 u1 u2 More")};
        for (int unit = 3; unit < 37; unit += 2)
            forty << QStringLiteral("PgUp u%1 u%2 PgDn").arg(unit).arg(unit + 1);
        QTest::addRow("40 units") << 40 << (forty << QStringLiteral("u37 u38 u39 More"));
    }

    void pagesOfUnits()
    {
        QFETCH(int, count);
        QFETCH(QStringList, pages);
        QVERIFY(m_keypad->setShortcutKeys(units(count)));
        QCOMPARE(m_keypad->shortcutKeys().size(), count);
        m_keypad->open();
        const QRect ok = button(QStringLiteral("btnOk"))->geometry();

        for (const QString &page : pages) {
            QCOMPARE(unitColumn(), page);
            QCOMPARE(button(QStringLiteral("btnOk"))->geometry(), ok);
            // Every unit on the page sends itself.
            const QStringList captions = page.split(QLatin1Char(' '));
            for (int i = 0; i < 4; ++i) {
                if (!captions.at(i).startsWith(QLatin1Char('u')))
                    continue;
                m_editor->log.clear();
                click(QStringLiteral("btnUnit%1").arg(i + 1));
                QCOMPARE(m_editor->log.value(0), QStringLiteral("+1000004:") + captions.at(i));
                QCOMPARE(m_editor->log.size(), 2);
            }
            m_editor->log.clear();
            if (pages.size() > 1)
                click(QStringLiteral("btnUnit4"));
            QVERIFY(m_editor->log.isEmpty());
        }
        if (pages.size() < 2)
            return;
        // The last page led back to the first, and the pages lead up again.
        QCOMPARE(unitColumn(), pages.first());
        for (int i = 1; i < pages.size() - 1; ++i)
            click(QStringLiteral("btnUnit4"));
        for (int i = int(pages.size()) - 2; i > 0; --i) {
            QCOMPARE(unitColumn(), pages.at(i));
            click(QStringLiteral("btnUnit1"));
        }
        QCOMPARE(unitColumn(), pages.first());
    }

    void newUnitsStartAtTheFirstPage()
    {
        m_keypad->setShortcutKeys(units(9));
        m_keypad->open();
        click(QStringLiteral("btnUnit4"));
        m_keypad->setShortcutKeys(units(9));
        QCOMPARE(unitColumn(), QStringLiteral("u0 u1 u2 More"));
        click(QStringLiteral("btnUnit4"));
        m_keypad->setShortcutKeys(units(2));
        QCOMPARE(unitColumn(), QStringLiteral("u0 u1 - -"));

        auto broken = units(3);
        broken[1].key = Qt::Key_unknown;
        QVERIFY(!m_keypad->setShortcutKeys(broken));
        QCOMPARE(m_keypad->shortcutKeys().size(), 2);

        // A unit called like a page key is one, but only while there are pages, and only to pages
        // that are.
        const TouchNumKeyboard::KeySpec up{Qt::Key_Return, QStringLiteral("PgUp"),
                                           QStringLiteral("x")};
        m_keypad->setShortcutKeys({up});
        click(QStringLiteral("btnUnit1"));
        QCOMPARE(m_editor->log.value(0), QStringLiteral("+1000004:x"));
        auto pages = units(7);
        pages[0] = up;
        pages[5].label = QStringLiteral("PgDn");
        m_keypad->setShortcutKeys(pages);
        click(QStringLiteral("btnUnit1"));
        QCOMPARE(unitColumn(), QStringLiteral("PgUp u1 u2 More"));
        click(QStringLiteral("btnUnit4"));
        click(QStringLiteral("btnUnit4"));
        click(QStringLiteral("btnUnit1"));
        QCOMPARE(unitColumn(), QStringLiteral("PgDn u6 - More"));
        QCOMPARE(m_editor->log.size(), 2);
    }

    void pressOutside_data()
    {
        QTest::addColumn<int>("policy");
        QTest::addColumn<QStringList>("log");
        const QStringList escape{QStringLiteral("+1000000:"), QStringLiteral("-1000000:")};
        QTest::newRow("ignored") << int(TouchNumKeyboard::PressOutsideIgnored) << QStringList();
        QTest::newRow("commits") << int(TouchNumKeyboard::PressOutsideCommits)
                                 << QStringList({QStringLiteral("+1000004:\n"),
                                                 QStringLiteral("-1000004:\n")});
        QTest::newRow("cancels") << int(TouchNumKeyboard::PressOutsideCancels) << escape;
        QTest::newRow("any other") << 17 << escape;
    }

    void pressOutside()
    {
        QFETCH(int, policy);
        QFETCH(QStringList, log);
        QCOMPARE(m_keypad->pressOutsidePolicy(), TouchNumKeyboard::PressOutsideCancels);
        m_keypad->setPressOutsidePolicy(TouchNumKeyboard::PressOutsidePolicy(policy));
        m_keypad->open();
        m_keypad->open(); // twice is not two answers
        QTest::mouseClick(m_window->windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));

        KeyRecorder receiver;
        m_keypad->setReceiver(&receiver);
        QCOMPARE(m_keypad->receiver(), &receiver);
        QTest::mouseClick(m_window->windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
        QCOMPARE(receiver.log, log);
        QVERIFY(m_keypad->isVisible());
        QVERIFY(m_editor->log.isEmpty());
        QVERIFY(m_editor->hasFocus());
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
        QCOMPARE(m_window->findChildren<QWidget *>(QStringLiteral("overlayContainer")).size(), 1);

        // A host that shrinks below the keypad keeps its title in sight.
        m_window->resize(120, 90);
        QCOMPARE(m_keypad->pos(), QPoint(0, 0));
        m_keypad->accept();
    }

    void titleDragsInsideTheHost()
    {
        m_keypad->setWindowTitle(QStringLiteral("Stop"));
        auto *name = m_keypad->findChild<QLabel *>(QStringLiteral("nameLabel"));
        QCOMPARE(name->text(), QStringLiteral("Stop"));
        QCOMPARE(m_keypad->windowTitle(), QStringLiteral("Stop"));
        m_keypad->open();
        QWindow *handle = m_window->windowHandle();
        const QPoint start = m_keypad->pos();
        const QPoint grip = centre(name);
        QTest::mousePress(handle, Qt::LeftButton, Qt::NoModifier, grip);
        QTest::mouseMove(handle, grip + QPoint(30, -20));
        QCOMPARE(m_keypad->pos(), start + QPoint(30, -20));
        QTest::mouseMove(handle, QPoint(799, 0));
        QCOMPARE(m_keypad->pos(), QPoint(m_window->width() - m_keypad->width(), 0));
        QTest::mouseRelease(handle, Qt::LeftButton, Qt::NoModifier, QPoint(799, 0));
        QTest::mouseMove(handle, grip);
        QCOMPARE(m_keypad->y(), 0);
    }

    void execReturnsHowItEnded_data()
    {
        QTest::addColumn<QString>("how");
        QTest::addColumn<int>("result");
        QTest::newRow("accept") << QStringLiteral("accept") << 1;
        QTest::newRow("reject") << QStringLiteral("reject") << 0;
        QTest::newRow("hide") << QStringLiteral("hide") << 0;
        QTest::newRow("deleted") << QStringLiteral("delete") << 0;
        QTest::newRow("host deleted") << QStringLiteral("host") << 0;
    }

    void execReturnsHowItEnded()
    {
        QFETCH(QString, how);
        QTimer::singleShot(0, this, [&] {
            QVERIFY(m_keypad->isVisible());
            if (how == QLatin1String("accept"))
                m_keypad->accept();
            else if (how == QLatin1String("reject"))
                m_keypad->reject();
            else if (how == QLatin1String("hide"))
                m_keypad->hide();
            else if (how == QLatin1String("delete"))
                delete m_keypad;
            else
                m_window.reset();
        });
        m_keypad->setResult(QDialog::Accepted);
        QTEST(m_keypad->exec(), "result");
        if (m_window)
            QVERIFY(!m_window->findChild<QWidget *>(QStringLiteral("overlayContainer"))
                    || !m_window->findChild<QWidget *>(QStringLiteral("overlayContainer"))
                            ->isVisible());
    }

    void aParentlessKeypadOutlivesItsHost()
    {
        TouchNumKeyboard keypad;
        keypad.open();
        QCOMPARE(keypad.window(), m_window.get());
        m_window.reset();
        QVERIFY(!keypad.parentWidget());
        QVERIFY(keypad.isHidden());

        // Without any main window it is a dialog of its own.
        keypad.open();
        QVERIFY(keypad.isWindow() && keypad.isVisible());
        keypad.reject();
    }

    void goesWithItsParent()
    {
        auto *page = new QWidget(m_window.get());
        QPointer<TouchNumKeyboard> keypad = new TouchNumKeyboard(page);
        keypad->open();
        delete page;
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!keypad);
        QTest::mouseClick(m_window->windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
    }

    void survivesWhatAKeyDestroys_data()
    {
        QTest::addColumn<QString>("victim");
        for (const char *victim : {"editor", "keypad", "window"})
            QTest::newRow(victim) << QString::fromLatin1(victim);
    }

    void survivesWhatAKeyDestroys()
    {
        QFETCH(QString, victim);
        m_keypad->open();
        m_editor->onKey = [&] {
            if (victim == QLatin1String("editor"))
                delete m_editor;
            else if (victim == QLatin1String("keypad"))
                delete m_keypad;
            else if (m_window)
                m_window.release()->deleteLater();
        };
        const QPointer<QWindow> handle(m_window->windowHandle());
        const QPoint position = centre(button(QStringLiteral("btn5")));
        QTest::mousePress(handle, Qt::LeftButton, Qt::NoModifier, position);
        QTest::mouseRelease(handle, Qt::LeftButton, Qt::NoModifier, position);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(m_editor.isNull(), victim != QLatin1String("keypad"));
        QCOMPARE(m_keypad.isNull(), victim != QLatin1String("editor"));
    }

    void theIndicatorMirrorsAndTells()
    {
        auto *edit =
            m_keypad->findChild<QLineEdit *>(QStringLiteral("edit"), Qt::FindDirectChildrenOnly);
        QVERIFY(edit && edit->isHidden());
        m_keypad->setIndicatorText(QStringLiteral("12.5MHz"), 0, 4, 4);
        QVERIFY(!edit->isHidden());
        QCOMPARE(m_keypad->indicatorText(), QStringLiteral("12.5MHz"));
        QCOMPARE(edit->selectedText(), QStringLiteral("12.5"));
        m_keypad->setIndicatorText(QStringLiteral("12"), 900, -5, 900); // no warning
        QCOMPARE(edit->cursorPosition(), 2);
        m_keypad->setIndicatorTextAlignment(Qt::AlignLeft);
        QCOMPARE(m_keypad->indicatorTextAlignment(), Qt::AlignLeft);
        m_keypad->setIndicatorText(QStringLiteral("0123456789"), 2, 0, 2);

        m_keypad->open();
        QSignalSpy press(m_keypad, &TouchNumKeyboard::indicatorPress);
        QSignalSpy moved(m_keypad, &TouchNumKeyboard::indicatorMove);
        QSignalSpy release(m_keypad, &TouchNumKeyboard::indicatorRelease);
        QSignalSpy doubleClick(m_keypad, &TouchNumKeyboard::indicatorDoubleClick);
        QWindow *handle = m_window->windowHandle();
        const QPoint left = edit->mapTo(m_window.get(), QPoint(1, edit->height() / 2));
        const QPoint right =
            edit->mapTo(m_window.get(), QPoint(edit->width() - 2, edit->height() / 2));
        QTest::mouseMove(handle, right);
        QTest::mousePress(handle, Qt::LeftButton, Qt::NoModifier, left);
        QTest::mouseMove(handle, right);
        QTest::mouseRelease(handle, Qt::LeftButton, Qt::NoModifier, right);
        QTest::mouseDClick(handle, Qt::LeftButton, Qt::NoModifier, right);
        QCOMPARE(press.at(0).at(0).toInt(), 0);
        QCOMPARE(moved.count(), 1);
        QCOMPARE(moved.at(0).at(0).toInt(), 10);
        QCOMPARE(release.at(0).at(0).toInt(), 10);
        QCOMPARE(doubleClick.count(), 1);
        QVERIFY(!edit->hasSelectedText());
        QVERIFY(m_editor->hasFocus());

        int turns = 0;
        connect(m_keypad, &TouchNumKeyboard::indicatorWheel, this, [&](QWheelEvent *event) {
            turns += event->angleDelta().y();
            event->accept();
        });
        QWheelEvent wheel(QPointF(3, 3), edit->mapToGlobal(QPoint(3, 3)), QPoint(), QPoint(0, 120),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(edit, &wheel);
        QCOMPARE(turns, 120);
    }

    void titleWidgetsAreOwned()
    {
        QPointer<QLabel> first = new QLabel(QStringLiteral("1 Hz ... 8.5 GHz"));
        QPointer<QLabel> second = new QLabel(QStringLiteral("2"));
        m_keypad->setTitleWidget(first, Qt::AlignRight);
        m_keypad->setTitleWidget(first, Qt::AlignLeft);
        m_keypad->open();
        QVERIFY(first->isVisible());
        QCOMPARE(m_keypad->titleWidget(), first.data());
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
    QPushButton *button(const QString &name) const
    {
        return m_keypad->findChild<QPushButton *>(name);
    }

    QPoint centre(const QWidget *widget) const
    {
        return widget->mapTo(m_window.get(), widget->rect().center());
    }

    void click(const QString &name) const
    {
        QTest::mouseClick(m_window->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                          centre(button(name)));
    }

    /// Captions of the unit keys from top to bottom.
    QString unitColumn() const
    {
        QStringList captions;
        for (int i = 1; i <= 4; ++i) {
            const QPushButton *key = button(QStringLiteral("btnUnit%1").arg(i));
            captions << (key->isHidden() ? QStringLiteral("-") : key->text());
        }
        return captions.join(QLatin1Char(' '));
    }

    std::unique_ptr<QMainWindow> m_window;
    QPointer<KeyRecorder> m_editor;
    QPointer<TouchNumKeyboard> m_keypad;
};

QTEST_MAIN(tst_TouchNumKeyboard)
#include "tst_touchnumkeyboard.moc"
