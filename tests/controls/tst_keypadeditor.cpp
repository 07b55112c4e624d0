// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <controls/stepcontroller.h>

#include "fieldscene.h"

#include <events.h>

using namespace VnaTest;

class tst_KeypadEditor : public TestCase, private FieldScene
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

    /// The text area goes with its keypad, which the host may keep the editor beyond.
    void outlivesItsKeypad()
    {
        auto *adapter = frequencyAdapter(m_window.get());
        auto *other = frequencyAdapter(m_window.get());
        KeypadEditor editor(m_keypad, adapter);
        editor.setParent(nullptr);
        m_keypad->open();
        delete m_keypad;
        adapter->setProperty("inputText", "3GHz"_s);
        sendKey(adapter, Qt::Key_Return);
        QCOMPARE(adapter->getRealValue(), 3e9);
        editor.setEditorText("4"_s, 0, 0, 0);
        editor.onFocus();
        editor.setAdapter(other);
        QCOMPARE(editor.adapter(), other);
        delete other;
        editor.onFocus();
        QCoreApplication::processEvents();
        QVERIFY(!editor.adapter());
    }

    /// One that ends itself where an edit begins.
    void endsWhenItGetsTheFocus()
    {
        class Once : public KeypadEditor
        {
        public:
            using KeypadEditor::KeypadEditor;
            void onFocus() override { delete this; }
        };
        const QPointer<KeypadEditor> editor = new Once(m_keypad, frequencyAdapter(m_window.get()));
        m_keypad->open();
        QVERIFY(!editor && m_keypad->isVisible());
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
};

QTEST_MAIN(tst_KeypadEditor)
#include "tst_keypadeditor.moc"
