// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <controls/keypadeditor.h>

#include <controls/keypadedit_p.h>
#include <controls/touchnumkeyboard.h>

namespace Controls
{

struct KeypadEditor::Private {
    bool entryOpen = false;
};

KeypadEditor::KeypadEditor(TouchNumKeyboard *keyboard, BaseUnitAdapter *adapter)
    : IEditableTitleWidget(keyboard, adapter, keyboard)
    , d(std::make_unique<Private>())
{
    hide();
    QLineEdit *const edit = keyboard->lineEdit();
    edit->setReadOnly(false);
    edit->setFocusPolicy(Qt::StrongFocus);
    edit->setAccessibleName(tr("Value"));
    edit->show();
    attachEditor(edit);
    setKeepsEntryOpen(true);
    connect(keyboard, &QDialog::finished, this, [this] { d->entryOpen = false; });
}

KeypadEditor::~KeypadEditor() = default;

void KeypadEditor::setEditorText(QString text, int selectionStart, int selectionLength,
                                 int cursorPosition)
{
    if (editor())
        showText(editor(), text, selectionStart, selectionLength, cursorPosition);
}

/// The number is selected at once, for keys that arrive before the event loop is reached.
void KeypadEditor::beginEntry()
{
    IEditableTitleWidget::onFocus();
    selectNumber();
}

void KeypadEditor::onFocus()
{
    // Back from another field of the keypad, what was typed here still stands.
    if (d->entryOpen && !isCommitting())
        registerAtKeyboard();
    else
        beginEntry();
    d->entryOpen = true;
    overrideKeyboardFocusProxy(editor());
}

} // namespace Controls
