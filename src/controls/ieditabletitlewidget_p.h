// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QPointer>
#include <QStringList>
#include <QWidget>

namespace Controls
{

class BaseUnitAdapter;

/// What an IEditableTitleWidget keeps.
class IEditableTitleWidgetPrivate
{
public:
    QPointer<QWidget> keyboard; ///< see IEditableTitleWidget::keyboard()
    QPointer<BaseUnitAdapter> adapter;
    bool committing = false;
    bool edited = false; ///< typed into since the edit began
    bool keepsEntryOpen = false;
    bool isKeptOpen = false; ///< the entry waits for the focus to come back
    bool closesKeyboard = false;
    bool isFinishing = false; ///< the editor passes on the key that ends the edit
    QPointer<QWidget> savedFocusProxy;
    bool focusProxyOverridden = false;
    QStringList dummyDisplayUnits;
    QPointer<QWidget> editorWidget; ///< see IEditableTitleWidget::editor()
    int gestureStart = 0;
};

} // namespace Controls
