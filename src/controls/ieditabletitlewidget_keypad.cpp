// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
// What the editor of a field and its keypad have to do with each other.
#include <controls/ieditabletitlewidget.h>

#include "ieditabletitlewidget_p.h"

#include <controls/baseunitadapter.h>
#include <controls/touchnumkeyboard.h>

#include <QLineEdit>

#include <algorithm>

namespace Controls
{

void IEditableTitleWidget::overrideKeyboardFocusProxy(QWidget *widget)
{
    if (!widget || !keyboard())
        return;
    if (!d->focusProxyOverridden) {
        d->savedFocusProxy = keyboard()->focusProxy();
        d->focusProxyOverridden = true;
    }
    keyboard()->setFocusProxy(widget);
}

void IEditableTitleWidget::restoreKeyboardFocusProxy()
{
    if (!keyboard() || !d->focusProxyOverridden)
        return;
    keyboard()->setFocusProxy(d->savedFocusProxy);
    d->savedFocusProxy = nullptr;
    d->focusProxyOverridden = false;
}

void IEditableTitleWidget::setKeyboard(TouchNumKeyboard *keypad)
{
    if (keyboard() && keyboard() != keypad)
        keyboard()->disconnect(this);
    d->keyboard = keypad;
    if (!keypad)
        return;
    connect(keypad, &TouchNumKeyboard::indicatorPress, this, [this](int position) {
        if (!isMirrored())
            return;
        d->gestureStart = position;
        editor()->setCursorPosition(position);
    });
    connect(keypad, &TouchNumKeyboard::indicatorMove, this, [this](int position) {
        if (isMirrored())
            editor()->setSelection(d->gestureStart, position - d->gestureStart);
    });
    connect(keypad, &TouchNumKeyboard::indicatorDoubleClick, this, [this] {
        if (isMirrored())
            editor()->selectAll();
    });
}

TouchNumKeyboard *IEditableTitleWidget::keyboard() const
{
    return qobject_cast<TouchNumKeyboard *>(d->keyboard);
}

void IEditableTitleWidget::registerAtKeyboard()
{
    TouchNumKeyboard *const keypad = keyboard();
    if (!keypad)
        return;
    QStringList units = d->adapter ? d->adapter->availableUnits() : QStringList();
    if (units.isEmpty())
        units = d->dummyDisplayUnits;
    QList<TouchNumKeyboard::KeySpec> keys;
    for (const QString &unit : qAsConst(units))
        keys.append({Qt::Key_Return, unit, unit});
    keypad->setShortcutKeys(keys);
    keypad->setReceiver(d->adapter);
}

void IEditableTitleWidget::publishSelection()
{
    if (!d->adapter || !editor())
        return;
    d->adapter->setProperty("selectionStart", std::max(0, editor()->selectionStart()));
    d->adapter->setProperty("selectionLen", editor()->selectionLength());
}

/// Shows what is typed in the keypad's indicator, since the keypad may cover the editor.
void IEditableTitleWidget::mirror()
{
    if (!isMirrored())
        return;
    const int cursor = editor()->cursorPosition();
    const bool selected = editor()->hasSelectedText();
    keyboard()->setIndicatorText(editor()->text(), selected ? editor()->selectionStart() : cursor,
                                 editor()->selectionLength(), cursor);
}

bool IEditableTitleWidget::isMirrored() const
{
    return keyboard() && editor() && editor()->hasFocus() && !keyboard()->isAncestorOf(editor());
}

} // namespace Controls
