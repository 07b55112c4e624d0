// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QLineEdit>
#include <QPainter>

#include <algorithm>

namespace Controls
{

/// Shows a text, then the cursor, then the selection; without one the cursor is at its start.
/// Positions beyond the text mean its end.
inline void showText(QLineEdit *edit, const QString &text, int selectionStart, int selectionLength,
                     int cursorPosition)
{
    if (edit->text() != text)
        edit->setText(text);
    const int length = int(edit->text().length());
    const int start = std::clamp(selectionStart, 0, length);
    edit->setCursorPosition(std::clamp(cursorPosition, 0, length));
    edit->deselect();
    edit->setSelection(start, std::clamp(selectionLength, 0, length - start));
}

/*! The text area of the keypad. While it is read-only it mirrors an editor elsewhere, and so
    shows the cursor that a line edit only draws with the focus. Has no meta-object: style sheets
    know it as a QLineEdit. */
class KeypadEdit : public QLineEdit
{
public:
    using QLineEdit::QLineEdit;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        QLineEdit::paintEvent(event);
        if (!isReadOnly() || hasSelectedText())
            return;
        QPainter painter(this);
        const QRect cursor = cursorRect();
        painter.fillRect(QRect(cursor.center().x(), cursor.y(), 1, cursor.height()),
                         palette().color(QPalette::Text));
    }
};

} // namespace Controls
