// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <controls/thememanager.h>

#include "fieldscene.h"

using namespace VnaTest;

class tst_EditableWidget : public TestCase, private FieldScene
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        open();
    }

    void cleanup()
    {
        m_window.reset();
        TestCase::cleanup();
    }

    void entersValues_data()
    {
        // inputs: keypad buttons by name; other text is typed
        columns<QString, double, QString>("inputs", "value", "text");
        row("clicks", "btn2 btnP btn4 btn5 btnUnit1", 2.45e9, "2.45GHz");
        row("keys", "2 . 4 5 \r", 2.45e9, "2.45GHz");
        row("mixed", "btn2 . btn4 5 btnOk", 2.45e9, "2.45GHz");
        row("negative, by clicks", "btnC btn1 btn2 btnP btn5 btnUnit2", -12.5e6, "-12.5MHz");
        row("mixed, sign last", "1 btn2 btnP 5 btnC btnOk", -12.5e9, "-12.5GHz");
        row("unit by keys", "4 7 0 del del del k H z \r", 470e3, "470kHz");
        row("corrected", "4 btn7 btn9 btnBack 0 btnUnit4", 470.0, "470Hz");
        row("inserted in the middle", "2 5 btnLeft btnP 4 btnOk", 2.45e9, "2.45GHz");
    }

    void entersValues()
    {
        QFETCH(QString, inputs);
        QFETCH(double, value);
        QFETCH(QString, text);

        // In a field of the page, and in the text area of the keypad.
        for (const bool onPage : {true, false}) {
            auto *keypad = new TouchNumKeyboard(m_window.get());
            ScaledUnitAdapter *adapter = frequencyAdapter(keypad);
            QSignalSpy committed(adapter, &BaseUnitAdapter::editingFinished);
            QSignalSpy finished(keypad, &QDialog::finished);
            const std::unique_ptr<QWidget> field(openEditor(keypad, adapter, onPage));
            for (const QString &input : inputs.split(QLatin1Char(' ')))
                press(keypad, input);
            QCOMPARE(committed.count(), 1);
            QCOMPARE(committed.at(0).at(0).toDouble(), value);
            QCOMPARE(adapter->getInputText(), text);
            QCOMPARE(finished.count(), 1);
            QCOMPARE(finished.at(0).at(0).toInt(), int(QDialog::Accepted));
            // Leaving afterwards is not a second commit.
            m_other->setFocus();
            QCOMPARE(committed.count(), 1);
        }
    }

    void focusSelectsTheNumber()
    {
        auto *adapter = frequencyAdapter(m_keypad);
        adapter->setRealValue(-12.5e6);
        EditableWidget *field = addField(adapter);
        QLineEdit *edit = lineEdit(field);
        QCOMPARE(edit->text(), "-12.5MHz"_s);
        field->setFocus();
        QTRY_COMPARE(edit->selectedText(), "12.5"_s);
        QCOMPARE(edit->cursorPosition(), 5);
        QCOMPARE(m_keypad->receiver(), adapter);
        QCOMPARE(m_keypad->shortcutKeys().value(1).text, "MHz"_s);
        QCOMPARE(m_keypad->focusProxy(), edit);
        // Published for the adapter.
        QCOMPARE(adapter->property("inputText").toString(), "-12.5MHz"_s);
        QCOMPARE(adapter->property("selectionStart").toInt(), 1);
        QCOMPARE(adapter->property("selectionLen").toInt(), 4);

        // The cursor does not go into the unit.
        type("\b"_s);
        QCOMPARE(edit->text(), "-MHz"_s);
        edit->setCursorPosition(3);
        QCOMPARE(edit->cursorPosition(), 1);
        QCOMPARE(adapter->property("selectionLen").toInt(), 0);

        // Without units the keypad shows the field's own.
        auto *bare = addField(new BaseUnitAdapter(m_keypad));
        bare->setDummyDisplayUnits({"x"_s});
        bare->setFocus();
        QCOMPARE(m_keypad->shortcutKeys().size(), 1);
    }

    void commitsOnceWhateverWayItEnds_data()
    {
        columns<QString, int>("ending", "commits"); // keys and buttons, or what happens
        row("enter", "\r", 1);
        row("OK", "btnOk", 1);
        row("unit", "btnUnit1", 1);
        row("escape", "\x1b", 0);
        row("Esc", "btnEsc", 0);
        row("outside commits", "outside commits", 1);
        row("outside cancels", "outside", 0);
        row("closed", "closed", 0);
        row("deleted", "deleted", 0);
    }

    void commitsOnceWhateverWayItEnds()
    {
        QFETCH(QString, ending);
        QFETCH(int, commits);
        for (const bool onPage : {true, false}) {
            QPointer<TouchNumKeyboard> keypad = new TouchNumKeyboard(m_window.get());
            ScaledUnitAdapter *adapter = frequencyAdapter(keypad);
            QVector<double> entered;
            connect(adapter, &BaseUnitAdapter::editingFinished, this,
                    [&](double now) { entered << now; });
            const QPointer<Controls::IEditableTitleWidget> field =
                openEditor(keypad, adapter, onPage);
            type("7"_s);
            if (ending == "outside commits"_s)
                keypad->setPressOutsidePolicy(TouchNumKeyboard::PressOutsideCommits);
            if (ending == "closed"_s)
                keypad->close();
            else if (ending == "deleted"_s)
                delete keypad;
            else if (ending.startsWith("outside"_s))
                mouseClick(m_window.get(), QPoint(3, 3));
            else
                press(keypad, ending);
            // A field that outlives its keypad is left by the focus, which would commit what is
            // typed.
            const bool leftOpen = onPage && ending == "closed"_s;
            m_other->setFocus();
            QCoreApplication::processEvents();
            QCOMPARE(entered, QVector<double>(leftOpen ? 1 : commits, 7e9));
            delete field;
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
        type("3"_s);

        // Into the keypad, and back, the edit stays open.
        m_keypad->open();
        m_keypad->setFocusProxy(nullptr);
        m_keypad->setFocus();
        QVERIFY(m_keypad->hasFocus());
        QVERIFY(committed.isEmpty() && left.isEmpty());
        lineEdit(field)->setFocus();
        QCoreApplication::processEvents();
        type("3"_s);

        m_other->setFocus();
        QCOMPARE(committed.count(), 1);
        QCOMPARE(adapter->getRealValue(), 3e9);
        QCOMPARE(left.count(), 1);
        QVERIFY(m_other->hasFocus());

        // Return and then typing on is another edit, though the focus stayed.
        m_keypad->reject();
        auto *loose = new EditableWidget(nullptr, adapter, m_window->centralWidget());
        loose->show();
        loose->setFocus();
        QCoreApplication::processEvents();
        type("4"_s);
        type("\r"_s);
        QCOMPARE(committed.count(), 2);
        lineEdit(loose)->setCursorPosition(0);
        type("5"_s);
        m_other->setFocus();
        QCOMPARE(committed.count(), 3);
        QCOMPARE(adapter->getRealValue(), 54e9);
    }

    /// Whatever a commit, or the keypad that it closes, ends in the host.
    void commitsThatEndSomething()
    {
        enum What { Field, LineEdit, Keypad, FieldWithKeypad };
        for (const What what : {Field, LineEdit, Keypad, FieldWithKeypad}) {
            for (const bool byReturn : {true, false}) {
                const Row row("%1, %2"_s.arg(what).arg(byReturn));
                m_keypad = new TouchNumKeyboard(m_window.get());
                auto *adapter = frequencyAdapter(m_window.get());
                QPointer<EditableWidget> field = addField(adapter);
                field->setClosesKeyboard(true);
                m_keypad->open();
                field->setFocus();
                QCoreApplication::processEvents();
                type("3"_s);
                int commits = 0;
                const auto end = [&] {
                    if (what == LineEdit)
                        delete lineEdit(field);
                    else if (what == Keypad)
                        delete m_keypad;
                    else
                        delete field;
                };
                connect(adapter, &BaseUnitAdapter::editingFinished, this, [&] {
                    if (++commits == 1 && what != FieldWithKeypad)
                        end();
                });
                if (what == FieldWithKeypad)
                    connect(m_keypad, &QDialog::finished, this, end);
                if (byReturn)
                    type("\r"_s);
                else
                    m_other->setFocus();
                QCOMPARE(commits, 1);
                QCOMPARE(adapter->getRealValue(), 3e9);
                delete field;
                delete m_keypad;
            }
        }
    }

    void adaptersAndKeypadsChange()
    {
        class Field : public EditableWidget
        {
        public:
            using EditableWidget::EditableWidget;
            using IEditableTitleWidget::setKeyboard;
        };
        auto *first = frequencyAdapter(m_window.get());
        auto *second = frequencyAdapter(m_window.get());
        second->setRealValue(7e6);
        Field field(m_keypad, first, m_window->centralWidget());
        field.show();
        field.setFocus();
        QCoreApplication::processEvents();
        // Another adapter in the middle of an edit takes it over, and so does another keypad.
        field.setAdapter(second);
        QCOMPARE(m_keypad->receiver(), second);
        QTRY_COMPARE(lineEdit(&field)->selectedText(), "7"_s);
        auto *bare = new BaseUnitAdapter(m_window.get()); // without a unit to keep out of
        bare->setRealValue(42.0);
        field.setAdapter(bare);
        QTRY_COMPARE(lineEdit(&field)->selectedText(), "42"_s);
        lineEdit(&field)->deselect();
        Q_EMIT m_keypad->indicatorDoubleClick(0);
        QCOMPARE(lineEdit(&field)->selectedText(), "42"_s);
        TouchNumKeyboard other(m_window.get());
        field.setKeyboard(&other);
        lineEdit(&field)->setSelection(0, 1);
        Q_EMIT m_keypad->indicatorDoubleClick(0); // no longer its own
        QCOMPARE(lineEdit(&field)->selectedText(), "4"_s);
        QWidget *const proxy = other.focusProxy();
        field.overrideKeyboardFocusProxy(nullptr);
        QCOMPARE(other.focusProxy(), proxy);
        // One that goes before the edit has begun leaves nothing to select.
        m_other->setFocus();
        field.setFocus();
        delete bare;
        QCoreApplication::processEvents();
        QVERIFY(!field.adapter() && lineEdit(&field)->hasFocus());
    }

    void theIndicatorMirrorsTheField()
    {
        const auto *field = openEditor(m_keypad, frequencyAdapter(m_window.get()), true);
        type("2"_s);
        type("5"_s);
        QCOMPARE(m_keypad->indicatorText(), "25GHz"_s);
        Q_EMIT m_keypad->indicatorPress(0);
        Q_EMIT m_keypad->indicatorMove(1);
        QCOMPARE(lineEdit(field)->selectedText(), "2"_s);
        press(m_keypad, "btn9"_s);
        press(m_keypad, "btnC"_s);
        QCOMPARE(m_keypad->indicatorText(), "-95GHz"_s);
        auto *empty = new EditableWidget(m_keypad, nullptr, m_window->centralWidget());
        empty->show();
        empty->setFocus();
        QCOMPARE(m_keypad->indicatorText(), QString());
        m_keypad->reject();
    }

    void hasABorderOfTheTheme()
    {
        EditableWidget *field = addField(frequencyAdapter(m_keypad));
        auto *theme = Controls::ThemeManager::instance();
        for (const auto next : {Controls::ThemeManager::Light, Controls::ThemeManager::Dark}) {
            theme->setTheme(next);
            const QImage image = field->grab().toImage();
            for (const QPoint edge : {QPoint(0, 0), image.rect().bottomRight()})
                QCOMPARE(image.pixelColor(edge), theme->borderColor());
            QVERIFY(image.pixelColor(2, 2) != theme->borderColor());
        }
        // A press beside the line edit is one on it.
        mouseClick(field->findChild<QLabel *>());
        QVERIFY(lineEdit(field)->hasFocus());
    }
};

QTEST_MAIN(tst_EditableWidget)
#include "tst_editablewidget.moc"
