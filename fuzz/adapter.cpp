// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Text and keys in any order, into an adapter alone and into a field with a keypad.
#include "input.h"

#include <controls/editablewidget.h>
#include <controls/keypadeditor.h>
#include <controls/scaledunitadapter.h>
#include <controls/step125controller.h>
#include <controls/touchnumkeyboard.h>
#include <tests/shared/events.h>

#include <QCoreApplication>
#include <QDoubleValidator>
#include <QLineEdit>
#include <QPushButton>

#include <cmath>
#include <memory>

using namespace Controls;

namespace
{

constexpr int keys[] = {
    Qt::Key_Return, Qt::Key_Enter,    Qt::Key_Delete, Qt::Key_Up,     Qt::Key_PageUp,
    Qt::Key_Down,   Qt::Key_PageDown, Qt::Key_Escape, Qt::Key_Period, Qt::Key_plusminus,
    Qt::Key_Left,   Qt::Key_Right,    Qt::Key_Home,   Qt::Key_End,    Qt::Key_Backspace,
    Qt::Key_0,      Qt::Key_unknown,  Qt::Key_Tab,    Qt::Key_A,      Qt::Key_Insert,
};

/// Texts that mean something, each by one byte.
const char *const words[] = {"0",   "1",   "-",   ".",   "e",    "+", "GHz", "mhz", "Hz",
                             "1e9", "inf", "nan", "µs",  "dBm",  " ", "\n",  "kHz", "1e400",
                             "9",   "٣",   ",",   "0x1", "1e-9", "Ω", "±",   "−5"};

QString text(Fuzz::Input &input)
{
    const int which = input.byte();
    return which < int(std::size(words)) ? QString::fromUtf8(words[which]) : input.text(24);
}

void sendKey(Fuzz::Input &input, QObject *receiver)
{
    const int key = keys[input.integer(0, int(std::size(keys)) - 1)];
    const QString typed = input.flag() ? text(input) : QString();
    VnaTest::sendKey(receiver, key, typed,
                     input.integer(0, 7) ? Qt::NoModifier : Qt::ShiftModifier);
}

std::unique_ptr<BaseUnitAdapter> makeAdapter(Fuzz::Input &input)
{
    switch (input.integer(0, 3)) {
    case 0:
        return std::make_unique<BaseUnitAdapter>();
    case 1:
        return std::make_unique<ScaledUnitAdapter>(
            QVector<ScaledUnitAdapter::Unit>{{QStringLiteral("s"), 1.0},
                                             {QStringLiteral("ms"), 1e-3},
                                             {QStringLiteral("µs"), 1e-6}});
    case 2:
        return std::make_unique<ScaledUnitAdapter>(
            QVector<ScaledUnitAdapter::Unit>{{text(input), input.real()}, {text(input), 1.0}});
    default:
        return std::make_unique<ScaledUnitAdapter>(
            QVector<ScaledUnitAdapter::Unit>{{QStringLiteral("GHz"), 1e9},
                                             {QStringLiteral("MHz"), 1e6},
                                             {QStringLiteral("Hz"), 1.0}});
    }
}

} // namespace

void Fuzz::run(Input &input)
{
    const std::unique_ptr<BaseUnitAdapter> adapter = makeAdapter(input);
    std::unique_ptr<QDoubleValidator> range;
    if (input.flag()) {
        range = std::make_unique<QDoubleValidator>(-1e6, 1e9, 3, nullptr);
        adapter->setValidator(range.get());
    }
    adapter->setDecimals(input.integer(-1, 12));
    adapter->setPreserveTrailingZeros(input.flag());
    adapter->setRealValue(0.0);
    const std::unique_ptr<StepController> stepper =
        input.flag() ? std::make_unique<StepController>() : std::make_unique<Step125Controller>();
    stepper->setAdapter(adapter.get());
    stepper->setSingleStep(input.integer(-1000, 1000) / 8.0);

    std::unique_ptr<TouchNumKeyboard> keypad;
    std::unique_ptr<EditableWidget> field;
    if (input.integer(0, 3) == 0) {
        if (input.flag())
            keypad = std::make_unique<TouchNumKeyboard>();
        field = std::make_unique<EditableWidget>(keypad.get(), adapter.get());
        if (keypad)
            field->onFocus();
    }
    QLineEdit *const editor = field ? field->findChild<QLineEdit *>() : nullptr;
    QObject *const receiver = editor ? static_cast<QObject *>(editor) : adapter.get();

    for (int step = 0; step < 200 && !input.atEnd(); ++step) {
        switch (input.integer(0, 9)) {
        case 0:
            adapter->setProperty("inputText", text(input));
            break;
        case 1:
            adapter->setProperty("cursorPos", input.integer(-3, 30));
            adapter->setProperty("selectionStart", input.integer(-3, 30));
            adapter->setProperty("selectionLen", input.integer(-3, 30));
            break;
        case 2:
            adapter->setInputText(text(input));
            break;
        case 3:
            adapter->setRealValue(input.integer(-32000, 32000) * 1e4);
            break;
        case 4: {
            QString unit = text(input);
            (void)adapter->convertInputTextToValue(text(input), unit);
            break;
        }
        case 5:
            if (editor)
                editor->setText(text(input));
            break;
        case 6:
            if (keypad) {
                const auto buttons = keypad->findChildren<QPushButton *>();
                buttons[input.byte() % buttons.size()]->click();
            }
            break;
        default:
            sendKey(input, receiver);
            break;
        }
        const double value = adapter->getRealValue();
        FUZZ_CHECK(!std::isnan(value));
        FUZZ_CHECK(!range || (value >= range->bottom() && value <= range->top()));
        FUZZ_CHECK(adapter->getInputText().size() < 1000);
        FUZZ_CHECK(adapter->getInputText().endsWith(adapter->getCurrentUnit()));
        int start = 0;
        int length = 0;
        int cursor = 0;
        adapter->resetSelectionToNumericPart(start, length, cursor);
        FUZZ_CHECK(start >= 0 && start <= adapter->getInputText().size());
    }
}
