// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <controls/ieditabletitlewidget.h>

#include <memory>

namespace Controls
{

/*! Makes the text area of a keypad the editor of an adapter: for values that are entered from a
    soft key and have no field of their own on the page.

    Not for more than one adapter a keypad: the keypad is made anew for each value, or kept with
    it.
    \code
    auto *keypad = new Controls::TouchNumKeyboard(mainWindow);
    keypad->setAttribute(Qt::WA_DeleteOnClose);
    auto *adapter = new FrequencyAdapter(keypad);
    new Controls::KeypadEditor(keypad, adapter);
    adapter->setRealValue(2.9e9);
    connect(adapter, &FrequencyAdapter::editingFinished, sweep, &Sweep::setStop);
    keypad->open(); // shows the value, its number selected
    \endcode

    Other fields in the keypad may take the focus meanwhile: what was typed here stands when it
    comes back. Closing the keypad without a commit leaves the value as it was. */
class VNAWIDGETS_EXPORT KeypadEditor : public IEditableTitleWidget
{
    Q_OBJECT

public:
    /// Becomes a hidden child of the keypad, which owns it. The keypad must not be null.
    KeypadEditor(TouchNumKeyboard *keyboard, BaseUnitAdapter *adapter);
    ~KeypadEditor() override;

public Q_SLOTS:
    /// Shows a text, a selection and the cursor in the keypad's text area.
    void setEditorText(QString text, int selectionStart, int selectionLength,
                       int cursorPosition) override;
    /// Begins an edit, or goes on with one that waited for the focus.
    void onFocus() override;

private:
    void beginEntry();

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace Controls
