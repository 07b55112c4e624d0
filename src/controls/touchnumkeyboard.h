// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <vnawidgets_export.h>

#include <QDialog>
#include <QList>

#include <memory>

QT_BEGIN_NAMESPACE
class QLineEdit;
class QWheelEvent;
QT_END_NAMESPACE

namespace Controls
{

class TouchNumKeyboardPrivate;

/*! The on-screen keypad of numeric entry: digits, editing keys and a column of unit keys. It
    edits nothing itself: each key goes as a key event to the widget that has the focus, which the
    keypad never takes away. Hardware keys work at the same time.

    Not for text: it has no letters. It needs an editor, either a field of the host
    (EditableWidget, any line edit) or a KeypadEditor, which makes the keypad's own text area the
    editor:
    \code
    auto *keypad = new Controls::TouchNumKeyboard(mainWindow);
    auto *adapter = new FrequencyAdapter(keypad); // its commit closes the keypad
    new Controls::KeypadEditor(keypad, adapter);
    keypad->setWindowTitle(tr("Stop"));
    keypad->setPopupAnchorWidget(softKey);
    connect(adapter, &FrequencyAdapter::editingFinished, sweep, &Sweep::setStop);
    keypad->open();
    \endcode

    open() and exec() show it embedded in the host's main window, above an OverlayContainer, and
    so work on platforms with a single window; without a main window it is a dialog of its own,
    and then the editor must be inside it. showGlobal() is for editors in other windows. The title
    bar drags the keypad.

    Keys: digits, "." (Qt::Key_Period), "±" (Qt::Key_plusminus), Esc, Backspace, the four arrows
    and OK (Qt::Key_Return without a unit). Backspace and the arrows repeat while they are held. A
    unit key finishes the entry in its unit; above four units the column pages.

    Indicator: the text area "edit" stays hidden until setIndicatorText() fills it or a
    KeypadEditor takes it. Pointer gestures on it are told by the indicator signals, with the
    nearest cursor position in its text.

    Style sheets reach the keys by object name (btn0 to btn9, btnP, btnC, btnEsc, btnBack, btnUp,
    btnDown, btnLeft, btnRight, btnUnit1 to btnUnit4, btnOk) and by the dynamic property
    "keyRole": "digit", "point", "sign", "cancel", "erase", "cursor", "step", "unit", "page" or
    "enter". A key is at least 9 mm high and wide, and grows with the font. */
class VNAWIDGETS_EXPORT TouchNumKeyboard : public QDialog
{
    Q_OBJECT

    Q_PROPERTY(QString indicatorText READ indicatorText NOTIFY indicatorTextChanged)
    Q_PROPERTY(bool dimEnabled READ isDimEnabled WRITE setDimEnabled)
    Q_PROPERTY(
        PressOutsidePolicy pressOutsidePolicy READ pressOutsidePolicy WRITE setPressOutsidePolicy)

public:
    /// One key of the keypad.
    struct KeySpec {
        int key = Qt::Key_unknown; ///< what it sends; Qt::Key_unknown sends nothing
        QString label; ///< its caption
        QString text; ///< the text of its key events
    };

    /// What a press beside the keypad does to the entry. Any other value cancels too.
    enum PressOutsidePolicy : int {
        PressOutsideIgnored = 0,
        PressOutsideCommits = 1, ///< as Return would
        PressOutsideCancels = 2, ///< as Escape would; the default: a stray touch changes no setting
    };

    Q_ENUM(PressOutsidePolicy)

    /// A keypad for the main window of \a parent.
    explicit TouchNumKeyboard(QWidget *parent = nullptr);
    ~TouchNumKeyboard() override;

    /// What a press beside the keypad does; PressOutsideCancels at first.
    PressOutsidePolicy pressOutsidePolicy() const;
    /// Who commits or cancels on a press outside, normally the adapter; null at first. Not owned.
    QObject *receiver() const;
    /// The unit keys, in order; none at first.
    QList<KeySpec> shortcutKeys() const;
    /// The widget behind the title, or null.
    QWidget *titleWidget() const;
    /// The title; empty at first.
    QString windowTitle() const;
    /// Alignment of the title.
    Qt::Alignment windowTitleAlignment() const;
    /// What the text area shows.
    QString indicatorText() const;
    /// Alignment of the text area.
    Qt::Alignment indicatorTextAlignment() const;

    /// Shows the keypad left of this widget instead of centred; null centres. Not owned.
    void setPopupAnchorWidget(QWidget *anchor);
    /// Sets pressOutsidePolicy().
    void setPressOutsidePolicy(PressOutsidePolicy policy);
    /// Sets receiver().
    void setReceiver(QObject *receiver);
    /// The unit keys in order, shown from the first. Returns true: any list is taken, and a key
    /// without a key code is shown and sends nothing.
    bool setShortcutKeys(const QList<KeySpec> &keys);
    /// Puts a widget behind the title and owns it; the one before is deleted. Null leaves the place
    /// empty.
    void setTitleWidget(QWidget *widget, Qt::Alignment alignment = {});
    /// The title left of the title widget, and of the window where there is one.
    void setWindowTitle(const QString &title);
    /// Left and vertically centred by default.
    void setWindowTitleAlignment(Qt::Alignment alignment);
    /// Fills the indicator; the order is that of every hand-over of a selection.
    void setIndicatorText(const QString &text, int selectionStart, int selectionLength,
                          int cursorPosition);
    /// Right and vertically centred by default.
    void setIndicatorTextAlignment(Qt::Alignment alignment);

    /// Shows the keypad above the host window and returns at once.
    void open() override;
    /// Like open(), but returns when the entry has ended: QDialog::Accepted or QDialog::Rejected.
    int exec() override;
    /// Shows the keypad as a tool window at the bottom of the screen. It blocks nothing and leaves
    /// the active window alone, so that its keys reach the focused editor of any window.
    void showGlobal();

    /// The window that open() and exec() cover; null, the default, for the main window of the parent
    /// or else the first one there is. Where that is not visible, the anchor's window is.
    QWidget *hostWindow() const;
    /// Sets hostWindow() to the window of this widget, which need not be a main window. Not owned.
    void setHostWindow(QWidget *widget);
    /// Dims what lies behind the keypad while it is embedded in a main window. Default: false.
    bool isDimEnabled() const;
    /// Sets isDimEnabled(), at once.
    void setDimEnabled(bool dim);
    /// Puts a widget below the text area, in full width, and owns it; the one before is deleted.
    void setExtraWidget(QWidget *widget);
    /// The widget below the text area, or null.
    QWidget *extraWidget() const;
    /// The text area, which is the editor of a KeypadEditor; an event filter installed here sees keys
    /// before the editor does. Never null.
    QLineEdit *lineEdit() const;

Q_SIGNALS:
    /// Gestures on the indicator: the cursor position in its text that is nearest to the pointer.
    /// Moves are told between press and release.
    void indicatorDoubleClick(int position);
    /// A press on it.
    void indicatorPress(int position);
    /// A move over it while pressed.
    void indicatorMove(int position);
    /// The release after a press.
    void indicatorRelease(int position);
    /// A wheel turn over the indicator; accept the event to use it up.
    void indicatorWheel(QWheelEvent *event);
    /// The text of the text area has changed, by whomever.
    void indicatorTextChanged(const QString &text);

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *object, QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

    void changeEvent(QEvent *event) override;

private Q_SLOTS:
    void clickedKey();
    void shortCutsKeyClicked();
    void updateButtons();
    void onFinished(int result);
    bool sendEvent(QEvent *event);

private:
    Q_DECLARE_PRIVATE(TouchNumKeyboard)

    std::unique_ptr<TouchNumKeyboardPrivate> d_ptr;
};

} // namespace Controls
