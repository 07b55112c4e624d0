// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <controls/editablewidget.h>
#include <controls/keypadeditor.h>
#include <controls/scaledunitadapter.h>
#include <controls/stepcontroller.h>
#include <controls/thememanager.h>
#include <controls/touchnumkeyboard.h>

#include <QApplication>
#include <QDoubleValidator>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>
#include <QtTest>

#include <memory>

#include <vnatest.h>

using Controls::BaseUnitAdapter;
using Controls::EditableWidget;
using Controls::KeypadEditor;
using Controls::ScaledUnitAdapter;
using Controls::TouchNumKeyboard;

namespace
{

ScaledUnitAdapter *frequencyAdapter(QObject *parent)
{
    auto *adapter = new ScaledUnitAdapter({{QStringLiteral("GHz"), 1e9},
                                           {QStringLiteral("MHz"), 1e6},
                                           {QStringLiteral("kHz"), 1e3},
                                           {QStringLiteral("Hz"), 1.0}},
                                          parent);
    adapter->setDecimals(9);
    adapter->setRealValue(1e9);
    return adapter;
}

ScaledUnitAdapter *levelAdapter(QObject *parent)
{
    return new ScaledUnitAdapter({{QStringLiteral("dBm"), 1.0}}, parent);
}

ScaledUnitAdapter *timeAdapter(QObject *parent)
{
    return new ScaledUnitAdapter({{QStringLiteral("s"), 1.0},
                                  {QStringLiteral("ms"), 1e-3},
                                  {QStringLiteral("\u00b5s"), 1e-6},
                                  {QStringLiteral("ns"), 1e-9},
                                  {QStringLiteral("ps"), 1e-12}},
                                 parent);
}

/// A field of a page: opens the keypad when it gets the focus.
class PageField : public EditableWidget
{
public:
    using EditableWidget::EditableWidget;
    void onFocus() override
    {
        EditableWidget::onFocus();
        keyboard()->open();
    }
};

} // namespace

class tst_EditableWidget : public VnaTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        m_window = std::make_unique<QMainWindow>();
        m_window->setGeometry(0, 0, 800, 600);
        auto *page = new QWidget;
        auto *layout = new QVBoxLayout(page);
        m_other = new QPushButton(QStringLiteral("other"));
        m_other->setFocusPolicy(Qt::StrongFocus);
        layout->addWidget(m_other);
        layout->addStretch();
        m_window->setCentralWidget(page);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        m_other->setFocus();
        m_keypad = new TouchNumKeyboard(m_window.get());
    }

    void cleanup()
    {
        m_window.reset();
        TestCase::cleanup();
    }

    void entersValues_data()
    {
        QTest::addColumn<QString>("quantity");
        QTest::addColumn<QStringList>("inputs"); // keypad buttons by name; other text is typed
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("text");
        const auto row = [](const char *name, const char *quantity, const char *inputs,
                            double value, const char *text) {
            QTest::newRow(name) << QString::fromLatin1(quantity)
                                << QString::fromLatin1(inputs).split(QLatin1Char(' ')) << value
                                << QString::fromUtf8(text);
        };
        row("2.45 GHz by clicks", "f", "btn2 btnP btn4 btn5 btnUnit1", 2.45e9, "2.45GHz");
        row("2.45 GHz by keys", "f", "2 . 4 5 \r", 2.45e9, "2.45GHz");
        row("2.45 GHz mixed", "f", "btn2 . btn4 5 btnOk", 2.45e9, "2.45GHz");
        row("2450 MHz by clicks", "f", "btn2 btn4 btn5 btn0 btnUnit2", 2.45e9, "2450MHz");
        row("-12.5 dBm by clicks", "p", "btnC btn1 btn2 btnP btn5 btnUnit1", -12.5, "-12.5dBm");
        row("-12.5 dBm by keys", "p", "- 1 2 . 5 \r", -12.5, "-12.5dBm");
        row("-12.5 dBm mixed, sign last", "p", "1 btn2 btnP 5 btnC btnOk", -12.5, "-12.5dBm");
        row("470 ns by clicks", "t", "btn4 btn7 btn0 btnUnit4 btnUnit1", 470e-9, "470ns");
        row("470 ns by keys", "t", "4 7 0 del del n s \r", 470e-9, "470ns");
        row("470 ns mixed", "t", "4 btn7 btn9 btnBack 0 btnUnit4 btnUnit1", 470e-9, "470ns");
        row("inserted in the middle", "f", "2 5 btnLeft btnP 4 btnOk", 2.45e9, "2.45GHz");
    }

    void entersValues()
    {
        QFETCH(QString, quantity);
        QFETCH(QStringList, inputs);
        QFETCH(double, value);
        QFETCH(QString, text);

        // In a field of the page, and in the text area of the keypad.
        for (const bool onPage : {true, false}) {
            auto *keypad = new TouchNumKeyboard(m_window.get());
            ScaledUnitAdapter *adapter = quantity == QLatin1String("f") ? frequencyAdapter(keypad)
                : quantity == QLatin1String("p")                        ? levelAdapter(keypad)
                                                                        : timeAdapter(keypad);
            QSignalSpy committed(adapter, &BaseUnitAdapter::editingFinished);
            QSignalSpy finished(keypad, &QDialog::finished);
            std::unique_ptr<PageField> field;
            if (onPage) {
                field = std::make_unique<PageField>(keypad, adapter, m_window->centralWidget());
                field->setGeometry(10, 500, 200, 60);
                field->show();
                clickAt(field.get());
            } else {
                new KeypadEditor(keypad, adapter);
                keypad->open();
            }
            QTRY_VERIFY(keypad->isVisible());
            QCoreApplication::processEvents(); // the number is selected

            for (const QString &input : inputs) {
                auto *button = keypad->findChild<QPushButton *>(input);
                if (button)
                    clickAt(button);
                else
                    type(input);
            }
            QCOMPARE(committed.count(), 1);
            QCOMPARE(committed.at(0).at(0).toDouble(), value);
            QCOMPARE(adapter->getInputText(), text);
            QCOMPARE(finished.count(), 1);
            QCOMPARE(finished.at(0).at(0).toInt(), int(QDialog::Accepted));
            // Leaving afterwards is not a second commit.
            m_other->setFocus();
            QCOMPARE(committed.count(), 1);
            delete keypad;
        }
    }

    void focusSelectsTheNumber()
    {
        auto *adapter = frequencyAdapter(m_keypad);
        adapter->setRealValue(-12.5e6);
        EditableWidget *field = addField(adapter);
        QLineEdit *edit = lineEdit(field);
        QCOMPARE(edit->text(), QStringLiteral("-12.5MHz"));
        field->setFocus();
        QTRY_COMPARE(edit->selectedText(), QStringLiteral("12.5"));
        QCOMPARE(edit->selectionStart(), 1);
        QCOMPARE(edit->cursorPosition(), 5);
        QCOMPARE(m_keypad->receiver(), adapter);
        QCOMPARE(m_keypad->shortcutKeys().size(), 4);
        QCOMPARE(m_keypad->shortcutKeys().at(1).text, QStringLiteral("MHz"));
        QCOMPARE(m_keypad->focusProxy(), edit);
        // Published for the adapter.
        QCOMPARE(adapter->property("inputText").toString(), QStringLiteral("-12.5MHz"));
        QCOMPARE(adapter->property("selectionStart").toInt(), 1);
        QCOMPARE(adapter->property("selectionLen").toInt(), 4);
        QCOMPARE(adapter->property("cursorPos").toInt(), 5);

        // The cursor does not go into the unit.
        type(QStringLiteral("\b"));
        QCOMPARE(edit->text(), QStringLiteral("-MHz"));
        edit->setCursorPosition(3);
        QCOMPARE(edit->cursorPosition(), 1);
        QCOMPARE(adapter->property("selectionLen").toInt(), 0);
    }

    void adaptersWithoutUnitsShowTheDummies()
    {
        auto *adapter = new BaseUnitAdapter(m_keypad);
        EditableWidget *field = addField(adapter);
        field->setFocus();
        QVERIFY(m_keypad->shortcutKeys().isEmpty());
        m_other->setFocus();
        field->setDummyDisplayUnits({QStringLiteral("x")});
        field->setFocus();
        QCOMPARE(m_keypad->shortcutKeys().size(), 1);
    }

    void commitsOnceWhateverWayItEnds_data()
    {
        QTest::addColumn<QString>("ending");
        QTest::addColumn<int>("commits");
        QTest::addColumn<double>("value");
        const auto row = [](const char *ending, int commits) {
            QTest::newRow(ending) << QString::fromLatin1(ending) << commits
                                  << (commits ? 7e9 : 1e9);
        };
        row("enter", 1);
        row("OK", 1);
        row("unit", 1);
        row("escape", 0);
        row("Esc", 0);
        row("outside commits", 1);
        row("outside cancels", 0);
        row("closed", 0);
        row("deleted", 0);
    }

    void commitsOnceWhateverWayItEnds()
    {
        QFETCH(QString, ending);
        QFETCH(int, commits);
        QFETCH(double, value);
        for (const bool onPage : {true, false}) {
            auto *keypad = new TouchNumKeyboard(m_window.get());
            ScaledUnitAdapter *adapter = frequencyAdapter(keypad);
            double last = adapter->getRealValue();
            int finished = 0;
            connect(adapter, &BaseUnitAdapter::editingFinished, this, [&](double now) {
                last = now;
                ++finished;
            });
            QPointer<EditableWidget> field;
            if (onPage) {
                field = new PageField(keypad, adapter, m_window->centralWidget());
                field->show();
                field->setFocus();
            } else {
                new KeypadEditor(keypad, adapter);
                keypad->open();
            }
            QCoreApplication::processEvents();
            type(QStringLiteral("7"));
            if (ending == QLatin1String("enter"))
                type(QStringLiteral("\r"));
            else if (ending == QLatin1String("OK"))
                clickAt(keypad->findChild<QPushButton *>(QStringLiteral("btnOk")));
            else if (ending == QLatin1String("unit"))
                clickAt(keypad->findChild<QPushButton *>(QStringLiteral("btnUnit1")));
            else if (ending == QLatin1String("escape"))
                type(QStringLiteral("\x1b"));
            else if (ending == QLatin1String("Esc"))
                clickAt(keypad->findChild<QPushButton *>(QStringLiteral("btnEsc")));
            else if (ending == QLatin1String("closed"))
                keypad->close();
            else if (ending == QLatin1String("deleted"))
                delete keypad;
            else {
                if (ending == QLatin1String("outside commits"))
                    keypad->setPressOutsidePolicy(TouchNumKeyboard::PressOutsideCommits);
                QTest::mouseClick(m_window->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                                  QPoint(3, 3));
            }
            // A field that outlives its keypad is left by the focus, which would commit what is
            // typed.
            const bool leftOpen = onPage && ending == QLatin1String("closed");
            m_other->setFocus();
            QCoreApplication::processEvents();
            QCOMPARE(finished, leftOpen ? 1 : commits);
            QCOMPARE(last, leftOpen ? 7e9 : value);
            delete field;
            if (ending != QLatin1String("deleted"))
                delete keypad;
        }
    }

    void leavingCommitsAndTells()
    {
        auto *adapter = frequencyAdapter(m_window.get());
        EditableWidget *field = addField(adapter);
        QSignalSpy committed(adapter, &BaseUnitAdapter::editingFinished);
        QSignalSpy left(field, &EditableWidget::focusedOut);
        field->setFocus();
        QCoreApplication::processEvents();
        type(QStringLiteral("3"));

        // Into the keypad, and back, the edit stays open.
        m_keypad->open();
        m_keypad->setFocusProxy(nullptr);
        m_keypad->setFocus();
        QVERIFY(m_keypad->hasFocus());
        QVERIFY(committed.isEmpty() && left.isEmpty());
        lineEdit(field)->setFocus();
        QCoreApplication::processEvents();
        type(QStringLiteral("3"));

        m_other->setFocus();
        QCOMPARE(committed.count(), 1);
        QCOMPARE(adapter->getRealValue(), 3e9);
        QCOMPARE(left.count(), 1);
        QVERIFY(m_other->hasFocus());
        QVERIFY(!m_keypad->focusProxy());

        // Return and then typing on is another edit, though the focus stayed.
        m_keypad->reject();
        auto *loose = new EditableWidget(nullptr, adapter, m_window->centralWidget());
        loose->show();
        loose->setFocus();
        QCoreApplication::processEvents();
        type(QStringLiteral("4"));
        type(QStringLiteral("\r"));
        QCOMPARE(committed.count(), 2);
        lineEdit(loose)->setCursorPosition(0);
        type(QStringLiteral("5"));
        m_other->setFocus();
        QCOMPARE(committed.count(), 3);
        QCOMPARE(adapter->getRealValue(), 54e9);
    }

    void theIndicatorMirrorsTheField()
    {
        auto *adapter = frequencyAdapter(m_window.get());
        auto *field = new PageField(m_keypad, adapter, m_window->centralWidget());
        field->show();
        field->setFocus();
        QCoreApplication::processEvents();
        type(QStringLiteral("2"));
        type(QStringLiteral("5"));
        QCOMPARE(m_keypad->indicatorText(), QStringLiteral("25GHz"));
        Q_EMIT m_keypad->indicatorPress(0);
        Q_EMIT m_keypad->indicatorMove(1);
        QCOMPARE(lineEdit(field)->selectedText(), QStringLiteral("2"));
        clickAt(m_keypad->findChild<QPushButton *>(QStringLiteral("btn9")));
        QCOMPARE(m_keypad->indicatorText(), QStringLiteral("95GHz"));
        clickAt(m_keypad->findChild<QPushButton *>(QStringLiteral("btnC")));
        QCOMPARE(m_keypad->indicatorText(), QStringLiteral("-95GHz"));
        m_keypad->reject();
    }

    void stepKeysShowTheSteppedValue()
    {
        auto *adapter = frequencyAdapter(m_keypad);
        adapter->setValidator(new QDoubleValidator(0, 1.2e9, 0, adapter));
        Controls::StepController stepper;
        stepper.setSingleStep(0.1e9);
        stepper.setAdapter(adapter);
        new KeypadEditor(m_keypad, adapter);
        m_keypad->open();
        auto *edit = m_keypad->findChild<QLineEdit *>(QStringLiteral("edit"));
        QTRY_COMPARE(edit->selectedText(), QStringLiteral("1"));
        clickAt(m_keypad->findChild<QPushButton *>(QStringLiteral("btnUp")));
        QCOMPARE(edit->text(), QStringLiteral("1.1GHz"));
        for (int i = 0; i < 3; ++i)
            type(QStringLiteral("up"));
        QCOMPARE(edit->text(), QStringLiteral("1.2GHz"));
        type(QStringLiteral("\x1b"));
        QCOMPARE(adapter->getRealValue(), 1.2e9);
    }

    void aSecondFieldInTheKeypad()
    {
        auto *adapter = frequencyAdapter(m_keypad);
        auto *step = frequencyAdapter(m_window.get());
        new KeypadEditor(m_keypad, adapter);
        auto *field = new EditableWidget(m_keypad, step);
        m_keypad->setTitleWidget(field);
        QSignalSpy stepped(step, &BaseUnitAdapter::editingFinished);
        QSignalSpy committed(adapter, &BaseUnitAdapter::editingFinished);
        m_keypad->open();
        auto *edit = m_keypad->findChild<QLineEdit *>(QStringLiteral("edit"));
        QTRY_VERIFY(edit->hasSelectedText());
        type(QStringLiteral("2"));

        // To the step and back with Enter: the value typed so far stands, and its unit keys return.
        clickAt(lineEdit(field));
        QVERIFY(lineEdit(field)->hasFocus());
        QTRY_VERIFY(lineEdit(field)->hasSelectedText());
        QCOMPARE(m_keypad->receiver(), step);
        type(QStringLiteral("5"));
        clickAt(m_keypad->findChild<QPushButton *>(QStringLiteral("btnUnit2")));
        QCOMPARE(stepped.count(), 1);
        QCOMPARE(step->getRealValue(), 5e6);
        QVERIFY(m_keypad->isVisible());
        QVERIFY(edit->hasFocus());
        QCOMPARE(m_keypad->receiver(), adapter);
        QCOMPARE(edit->text(), QStringLiteral("2GHz"));

        // And back with a tap on the text area, which commits the step.
        clickAt(lineEdit(field));
        QTRY_VERIFY(lineEdit(field)->hasSelectedText());
        type(QStringLiteral("7"));
        clickAt(edit);
        QCOMPARE(stepped.count(), 2);
        QCOMPARE(step->getRealValue(), 7e6);
        QVERIFY(committed.isEmpty());
        type(QStringLiteral("\r"));
        QCOMPARE(committed.count(), 1);
        QCOMPARE(adapter->getRealValue(), 2e9);
        QCOMPARE(stepped.count(), 2);
        QVERIFY(m_keypad->isHidden());
        QVERIFY(m_other->hasFocus());

        // The next time begins with the value again.
        m_keypad->open();
        QTRY_COMPARE(edit->selectedText(), QStringLiteral("2"));
        type(QStringLiteral("8"));
        clickAt(lineEdit(field));
        m_keypad->reject();
        m_keypad->open();
        QTRY_COMPARE(edit->text(), QStringLiteral("2GHz"));
        QCOMPARE(committed.count(), 1);
    }

    void workWithoutKeypadOrAdapter()
    {
        auto *bare = new EditableWidget(nullptr, nullptr, m_window->centralWidget());
        bare->show();
        bare->overrideKeyboardFocusProxy(m_other);
        bare->restoreKeyboardFocusProxy();
        bare->setFocus();
        for (const char *key : {"5", ".", "\r", "\x1b", "up"})
            type(QString::fromLatin1(key));
        QCOMPARE(lineEdit(bare)->text(), QStringLiteral("5."));
        bare->setEditorText(QStringLiteral("12"), 99, 99, -4);
        QCOMPARE(lineEdit(bare)->cursorPosition(), 2);
    }

    void survivesAnyOrderOfDestruction_data()
    {
        QTest::addColumn<QString>("victim");
        QTest::addColumn<QString>("moment");
        QTest::addColumn<bool>("onPage");
        const QStringList moments{QStringLiteral("typing"), QStringLiteral("editingFinished"),
                                  QStringLiteral("accepted"), QStringLiteral("finished"),
                                  QStringLiteral("focusedOut")};
        for (const char *victim : {"adapter", "keypad", "field", "window"}) {
            for (const QString &moment : moments) {
                for (const bool onPage : {true, false}) {
                    // The text area loses the focus while Qt hides the keypad: no time to delete
                    // it.
                    if (qstrcmp(victim, "keypad") == 0 && moment == moments.last() && !onPage)
                        continue;
                    QTest::addRow("%s in %s, %s", victim, qPrintable(moment),
                                  onPage ? "page" : "keypad")
                        << QString::fromLatin1(victim) << moment << onPage;
                }
            }
        }
    }

    void survivesAnyOrderOfDestruction()
    {
        QFETCH(QString, victim);
        QFETCH(QString, moment);
        QFETCH(bool, onPage);
        QPointer<ScaledUnitAdapter> adapter = frequencyAdapter(m_keypad);
        QPointer<Controls::IEditableTitleWidget> field;
        if (onPage)
            field = new PageField(m_keypad, adapter, m_window->centralWidget());
        else
            field = new KeypadEditor(m_keypad, adapter);
        const auto end = [&] {
            if (victim == QLatin1String("adapter"))
                delete adapter;
            else if (victim == QLatin1String("keypad"))
                delete m_keypad;
            else if (victim == QLatin1String("field"))
                delete field;
            else if (m_window)
                m_window.release()->deleteLater(); // a window is not deleted in its own event
        };
        if (moment == QLatin1String("editingFinished"))
            connect(adapter, &BaseUnitAdapter::editingFinished, this, end);
        else if (moment == QLatin1String("accepted"))
            connect(m_keypad, &QDialog::accepted, this, end);
        else if (moment == QLatin1String("finished"))
            connect(m_keypad, &QDialog::finished, this, end);
        else if (moment == QLatin1String("focusedOut"))
            connect(field, &EditableWidget::focusedOut, this, end);
        if (onPage) {
            field->show();
            field->setFocus();
        } else {
            m_keypad->open();
        }
        QCoreApplication::processEvents();
        type(QStringLiteral("5"));
        if (moment == QLatin1String("typing"))
            end();
        const QPointer<QWidget> window(m_window.get());
        if (m_window && m_keypad && m_keypad->isVisible())
            clickAt(m_keypad->findChild<QPushButton *>(QStringLiteral("btnOk")));
        if (m_window)
            m_other->setFocus();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
        QVERIFY(!adapter || !m_keypad || !field || !window);
    }

    void showsItsFormAndBorder()
    {
        auto *adapter = frequencyAdapter(m_keypad);
        EditableWidget *field = addField(adapter);
        QCOMPARE(field->objectName(), QStringLiteral("StepEditWidget"));
        QCOMPARE(field->labelText(), QStringLiteral("Step"));
        QVERIFY(field->findChild<QLabel *>(QStringLiteral("stepLabel")));
        auto *theme = Controls::ThemeManager::instance();
        for (const auto next : {Controls::ThemeManager::Light, Controls::ThemeManager::Dark}) {
            theme->setTheme(next);
            const QImage image = field->grab().toImage();
            const QColor border = theme->borderColor();
            for (const QPoint corner :
                 {QPoint(0, 0), QPoint(image.width() - 1, image.height() - 1)})
                QCOMPARE(image.pixelColor(corner), border);
            QVERIFY(image.pixelColor(2, 2) != border);
        }
        // A press beside the line edit is one on it.
        clickAt(field->findChild<QLabel *>());
        QVERIFY(lineEdit(field)->hasFocus());
    }

private:
    EditableWidget *addField(BaseUnitAdapter *adapter)
    {
        auto *field = new EditableWidget(m_keypad, adapter, m_window->centralWidget());
        m_window->centralWidget()->layout()->addWidget(field);
        field->show();
        QCoreApplication::processEvents();
        return field;
    }

    static QLineEdit *lineEdit(const QWidget *field)
    {
        return field->findChild<QLineEdit *>(QStringLiteral("stepEdit"));
    }

    /// A real click at the middle of a widget, through the window.
    void clickAt(const QWidget *widget) const
    {
        const QPointer<QWindow> handle(m_window->windowHandle());
        const QPoint middle = widget->mapTo(m_window.get(), widget->rect().center());
        QTest::mousePress(handle, Qt::LeftButton, Qt::NoModifier, middle);
        if (handle)
            QTest::mouseRelease(handle, Qt::LeftButton, Qt::NoModifier, middle);
    }

    /// A real key through the window.
    void type(const QString &text) const
    {
        const QMap<QString, Qt::Key> special{
            {QStringLiteral("\r"), Qt::Key_Return},    {QStringLiteral("\x1b"), Qt::Key_Escape},
            {QStringLiteral("\b"), Qt::Key_Backspace}, {QStringLiteral("."), Qt::Key_Period},
            {QStringLiteral("del"), Qt::Key_Delete},   {QStringLiteral("up"), Qt::Key_Up}};
        const Qt::Key key = special.value(text, Qt::Key(text.toUpper().at(0).unicode()));
        const QString typed = text.length() > 1 ? QString() : text;
        for (const auto action : {QTest::Press, QTest::Release})
            QTest::sendKeyEvent(action, m_window->windowHandle(), key, typed, Qt::NoModifier);
    }

    std::unique_ptr<QMainWindow> m_window;
    QPointer<QPushButton> m_other;
    QPointer<TouchNumKeyboard> m_keypad;
};

QTEST_MAIN(tst_EditableWidget)
#include "tst_editablewidget.moc"
