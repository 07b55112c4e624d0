// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <controls/editablewidget.h>
#include <controls/keypadeditor.h>
#include <controls/scaledunitadapter.h>
#include <controls/stepcontroller.h>
#include <controls/thememanager.h>
#include <controls/touchnumkeyboard.h>

#include <memory>

#include <pointer.h>
#include <vnatest.h>

using namespace VnaTest;
using Controls::BaseUnitAdapter;
using Controls::EditableWidget;
using Controls::KeypadEditor;
using Controls::ScaledUnitAdapter;
using Controls::TouchNumKeyboard;

namespace
{

ScaledUnitAdapter *frequencyAdapter(QObject *parent)
{
    auto *adapter = new ScaledUnitAdapter(
        {{"GHz"_s, 1e9}, {"MHz"_s, 1e6}, {"kHz"_s, 1e3}, {"Hz"_s, 1.0}}, parent);
    adapter->setDecimals(9);
    adapter->setRealValue(1e9);
    return adapter;
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

class tst_EditableWidget : public TestCase
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
        m_other = new QPushButton("other"_s);
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

    void stepKeysShowTheSteppedValue()
    {
        auto *adapter = frequencyAdapter(m_keypad);
        adapter->setValidator(new QDoubleValidator(0, 1.2e9, 0, adapter));
        Controls::StepController stepper;
        stepper.setSingleStep(0.1e9);
        stepper.setAdapter(adapter);
        new KeypadEditor(m_keypad, adapter);
        m_keypad->open();
        auto *edit = m_keypad->findChild<QLineEdit *>("edit"_s);
        QCoreApplication::processEvents(); // lays the keys out
        QCOMPARE(edit->selectedText(), "1"_s);
        press(m_keypad, "btnUp"_s);
        QCOMPARE(edit->text(), "1.1GHz"_s);
        for (int i = 0; i < 3; ++i)
            type("up"_s);
        QCOMPARE(edit->text(), "1.2GHz"_s);
        type("\x1b"_s);
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
        auto *edit = m_keypad->findChild<QLineEdit *>("edit"_s);
        QTRY_VERIFY(edit->hasSelectedText());
        type("2"_s);

        // To the step and back with Enter: the value typed so far stands, and its unit keys return.
        mouseClick(lineEdit(field));
        QVERIFY(lineEdit(field)->hasFocus());
        QTRY_VERIFY(lineEdit(field)->hasSelectedText());
        QCOMPARE(m_keypad->receiver(), step);
        type("5"_s);
        press(m_keypad, "btnUnit2"_s);
        QCOMPARE(stepped.count(), 1);
        QCOMPARE(step->getRealValue(), 5e6);
        QVERIFY(m_keypad->isVisible());
        QVERIFY(edit->hasFocus());
        QCOMPARE(m_keypad->receiver(), adapter);
        QCOMPARE(edit->text(), "2GHz"_s);

        // And back with a tap on the text area, which commits the step.
        mouseClick(lineEdit(field));
        QTRY_VERIFY(lineEdit(field)->hasSelectedText());
        type("7"_s);
        mouseClick(edit);
        QCOMPARE(stepped.count(), 2);
        QCOMPARE(step->getRealValue(), 7e6);
        QVERIFY(committed.isEmpty());
        type("\r"_s);
        QCOMPARE(committed.count(), 1);
        QCOMPARE(adapter->getRealValue(), 2e9);
        QCOMPARE(stepped.count(), 2);
        QVERIFY(m_keypad->isHidden());
        QVERIFY(m_other->hasFocus());

        // The next time begins with the value again.
        m_keypad->open();
        QTRY_COMPARE(edit->selectedText(), "2"_s);
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

private:
    /// Begins an edit in a field of the page, or in the text area of the keypad.
    Controls::IEditableTitleWidget *openEditor(TouchNumKeyboard *keypad, BaseUnitAdapter *adapter,
                                               bool onPage)
    {
        Controls::IEditableTitleWidget *field = nullptr;
        if (onPage) {
            field = new PageField(keypad, adapter, m_window->centralWidget());
            field->setGeometry(10, 500, 200, 60);
            field->show();
            mouseClick(field);
        } else {
            field = new KeypadEditor(keypad, adapter);
            keypad->open();
        }
        QCoreApplication::processEvents(); // the number is selected
        return field;
    }

    /// Clicks a button of the keypad by its name; other text is typed.
    void press(const TouchNumKeyboard *keypad, const QString &input) const
    {
        if (const auto *button = keypad->findChild<QPushButton *>(input))
            mouseClick(button);
        else
            type(input);
    }

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
        return field->findChild<QLineEdit *>("stepEdit"_s);
    }

    /// A real key through the window.
    void type(const QString &text) const
    {
        const QMap<QString, Qt::Key> special{
            {"\r"_s, Qt::Key_Return}, {"\x1b"_s, Qt::Key_Escape}, {"\b"_s, Qt::Key_Backspace},
            {"."_s, Qt::Key_Period},  {"del"_s, Qt::Key_Delete},  {"up"_s, Qt::Key_Up}};
        typeKey(m_window.get(), special.value(text, Qt::Key(text.toUpper().at(0).unicode())),
                text.length() > 1 ? QString() : text);
    }

    std::unique_ptr<QMainWindow> m_window;
    QPointer<QPushButton> m_other;
    QPointer<TouchNumKeyboard> m_keypad;
};

QTEST_MAIN(tst_EditableWidget)
#include "tst_editablewidget.moc"
