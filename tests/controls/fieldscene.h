// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
/*! \file
    A page with a button and a keypad, for tests of the fields that edit an adapter. */
#pragma once

#include <controls/editablewidget.h>
#include <controls/keypadeditor.h>
#include <controls/scaledunitadapter.h>
#include <controls/touchnumkeyboard.h>

#include <memory>

#include <pointer.h>
#include <vnatest.h>

namespace VnaTest
{

using Controls::BaseUnitAdapter;
using Controls::EditableWidget;
using Controls::KeypadEditor;
using Controls::ScaledUnitAdapter;
using Controls::TouchNumKeyboard;

inline ScaledUnitAdapter *frequencyAdapter(QObject *parent)
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

class FieldScene
{
protected:
    /// Shows the page, its button focused.
    void open()
    {
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

} // namespace VnaTest
