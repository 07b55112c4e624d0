// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <vnawidgets_export.h>

#include <QStringList>
#include <QWidget>

#include <memory>

QT_BEGIN_NAMESPACE
class QKeyEvent;
class QLineEdit;
QT_END_NAMESPACE

namespace Controls
{

class BaseUnitAdapter;
class IEditableTitleWidgetPrivate;
class TouchNumKeyboard;

/*! Wires one editor to one adapter and one keypad: what is typed reaches the adapter, the keys
    that are its business too, and its answers come back to the editor. The base of EditableWidget
    and KeypadEditor.

    Not an editor itself: a derived class brings a line edit and shows what setEditorText() says.
    \code
    class MyField : public Controls::IEditableTitleWidget
    {
    public:
        MyField(Controls::TouchNumKeyboard *keypad, Controls::BaseUnitAdapter *adapter)
            : IEditableTitleWidget(keypad, adapter)
        {
            attachEditor(new QLineEdit(this));
        }
    };
    \endcode

    An edit begins when the editor gets the focus and ends with Return or a unit key (commit),
    with Escape (cancel), or when the focus goes anywhere but into the keypad (commit). It commits
    once, whatever way it ends. While the editor has the focus and is not part of the keypad, the
    indicator of the keypad mirrors it, and gestures there move its cursor and selection. */
class VNAWIDGETS_EXPORT IEditableTitleWidget : public QWidget
{
    Q_OBJECT

public:
    /// Neither the keypad nor the adapter is owned; each may be null, and may go at any time.
    IEditableTitleWidget(TouchNumKeyboard *keyboard, BaseUnitAdapter *adapter,
                         QWidget *parent = nullptr);
    ~IEditableTitleWidget() override;

    /// The adapter whose value is edited, or null.
    BaseUnitAdapter *adapter() const;
    /// Edits the value of another adapter from now on; null edits none. Not owned.
    virtual void setAdapter(BaseUnitAdapter *adapter);

    /// Units for the keypad's unit keys when the adapter has none. None at first.
    void setDummyDisplayUnits(const QStringList &units);
    /// Sends the keypad's focus to \a widget, and remembers where it went before.
    void overrideKeyboardFocusProxy(QWidget *widget);
    /// Takes overrideKeyboardFocusProxy() back.
    void restoreKeyboardFocusProxy();

    /// Whether what is half typed stays open while another window has the focus, in place of being
    /// committed. Default: false; true for KeypadEditor and NumericField.
    bool keepsEntryOpen() const;
    /// Sets keepsEntryOpen().
    void setKeepsEntryOpen(bool keeps);
    /// Whether a commit or Escape closes the keypad, whatever the adapter's parent is. Default:
    /// false; true for NumericField.
    bool closesKeyboard() const;
    /// Sets closesKeyboard().
    void setClosesKeyboard(bool closes);

public Q_SLOTS:
    /// Begins an edit: the keypad gets the units and the adapter, the editor its text.
    virtual void onFocus();
    /// Shows a text with a selection and the cursor in the editor.
    virtual void setEditorText(QString text, int selectionStart, int selectionLength,
                               int cursorPosition) = 0;

Q_SIGNALS:
    /// The edit has ended because the focus went elsewhere.
    void focusedOut();

protected:
    /// Makes a line edit the editor. Derived classes call it once, in their constructor.
    void attachEditor(QLineEdit *lineEdit);
    /// Editor and keypad are null from the moment their destructors have run, which is before a
    /// guarded pointer notices.
    QLineEdit *editor() const;
    /// The keypad that the editor works with, or null.
    TouchNumKeyboard *keyboard() const;
    /// True once the edit has been committed or cancelled, until the next one begins.
    bool isCommitting() const;
    /// Makes a keypad the one that the editor works with.
    void setKeyboard(TouchNumKeyboard *keyboard);
    /// Gives the keypad the unit keys and the receiver of this editor.
    void registerAtKeyboard();
    /// Shows the adapter's text with its number selected, so that typing replaces it.
    void selectNumber();
    /// Shows the adapter's text as it stands after a commit or a step.
    void showValue();

    bool eventFilter(QObject *object, QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    void connectAdapter();
    void publishSelection();
    void mirror();
    bool isMirrored() const;
    bool forwardKey(QKeyEvent *event);
    void finishEdit(QKeyEvent *event);
    void handleFocusChange(QWidget *old, QWidget *now);

    const std::unique_ptr<IEditableTitleWidgetPrivate> d;
};

} // namespace Controls
