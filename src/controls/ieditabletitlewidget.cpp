// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <controls/ieditabletitlewidget.h>

#include "ieditabletitlewidget_p.h"

#include <controls/baseunitadapter.h>
#include <controls/touchnumkeyboard.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace Controls
{

namespace
{

bool endsEdit(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Escape;
}

/// Length of the adapter's text without its unit, and without a space in front of that.
int numberLength(const BaseUnitAdapter &adapter)
{
    const QString text = adapter.getInputText();
    int length = int(text.length() - adapter.getCurrentUnit().length());
    while (length > 0 && length < text.length() && text.at(length - 1).isSpace())
        --length;
    return length;
}

/// How a keypad ends that a key closes.
int resultOf(int key)
{
    return key == Qt::Key_Escape ? QDialog::Rejected : QDialog::Accepted;
}

/// Keys whose meaning is the adapter's business, besides those that end the edit.
bool isForwarded(int key)
{
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp
        || key == Qt::Key_PageDown || key == Qt::Key_Period || key == Qt::Key_plusminus;
}

} // namespace

IEditableTitleWidget::IEditableTitleWidget(TouchNumKeyboard *keyboard, BaseUnitAdapter *adapter,
                                           QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<IEditableTitleWidgetPrivate>())
{
    d->keyboard = keyboard;
    d->adapter = adapter;
    connectAdapter();
}

IEditableTitleWidget::~IEditableTitleWidget()
{
    // The editor goes after this class has ended, and what it says in going concerns nobody.
    if (d->editorWidget)
        d->editorWidget->disconnect(this);
    if (qApp)
        qApp->disconnect(this);
    restoreKeyboardFocusProxy();
}

BaseUnitAdapter *IEditableTitleWidget::adapter() const
{
    return d->adapter;
}

void IEditableTitleWidget::setAdapter(BaseUnitAdapter *adapter)
{
    if (d->adapter == adapter)
        return;
    if (d->adapter) {
        d->adapter->disconnect(this);
        d->adapter->removeEventFilter(this);
    }
    d->adapter = adapter;
    connectAdapter();
    if (adapter && editor()) {
        connect(adapter, &BaseUnitAdapter::editingFinished, this, &IEditableTitleWidget::showValue);
        showValue();
    }
    if (editor() && editor()->hasFocus())
        onFocus();
}

void IEditableTitleWidget::connectAdapter()
{
    if (!d->adapter)
        return;
    connect(d->adapter, &BaseUnitAdapter::cursorPosCrossUnit, this,
            &IEditableTitleWidget::setEditorText);
    connect(d->adapter, &BaseUnitAdapter::specialKeyHandled, this,
            &IEditableTitleWidget::setEditorText);
    // Whoever sends the adapter Return or Escape, also a press beside the keypad, ends this edit.
    d->adapter->installEventFilter(this);
}

bool IEditableTitleWidget::keepsEntryOpen() const
{
    return d->keepsEntryOpen;
}

void IEditableTitleWidget::setKeepsEntryOpen(bool keeps)
{
    d->keepsEntryOpen = keeps;
}

bool IEditableTitleWidget::closesKeyboard() const
{
    return d->closesKeyboard;
}

void IEditableTitleWidget::setClosesKeyboard(bool closes)
{
    d->closesKeyboard = closes;
}

bool IEditableTitleWidget::isCommitting() const
{
    return d->committing;
}

void IEditableTitleWidget::setDummyDisplayUnits(const QStringList &units)
{
    d->dummyDisplayUnits = units;
}

void IEditableTitleWidget::onFocus()
{
    d->committing = false;
    d->edited = false;
    registerAtKeyboard();
    // Later: the click that brought the focus still has its cursor to place. What was typed
    // meanwhile stays.
    QTimer::singleShot(0, this, [this] {
        if (!d->adapter || d->edited)
            return;
        const QString text = d->adapter->getInputText();
        const int numberEnd = numberLength(*d->adapter);
        const int start = text.startsWith(QLatin1Char('-')) ? 1 : 0;
        Q_EMIT d->adapter->specialKeyHandled(text, start, std::max(0, numberEnd - start),
                                             numberEnd);
    });
}

void IEditableTitleWidget::selectNumber()
{
    if (!d->adapter || !editor())
        return;
    const QString text = d->adapter->getInputText();
    const int numberEnd = numberLength(*d->adapter);
    const int start = text.startsWith(QLatin1Char('-')) ? 1 : 0;
    setEditorText(text, start, std::max(0, numberEnd - start), numberEnd);
}

void IEditableTitleWidget::attachEditor(QLineEdit *lineEdit)
{
    d->editorWidget = lineEdit;
    lineEdit->installEventFilter(this);
    connect(lineEdit, &QLineEdit::textChanged, this, [this](const QString &text) {
        mirror();
        if (d->adapter)
            d->adapter->setProperty("inputText", text);
    });
    connect(lineEdit, &QLineEdit::cursorPositionChanged, this, [this](int, int position) {
        mirror();
        if (d->adapter)
            d->adapter->setProperty("cursorPos", position);
    });
    connect(lineEdit, &QLineEdit::selectionChanged, this, [this] {
        mirror();
        publishSelection();
    });
    // Typing after Return begins a new edit, though the focus never left.
    connect(lineEdit, &QLineEdit::textEdited, this, [this] {
        d->committing = false;
        d->edited = true;
    });
    connect(qApp, &QApplication::focusChanged, this, &IEditableTitleWidget::handleFocusChange);
    if (d->adapter) {
        connect(d->adapter, &BaseUnitAdapter::editingFinished, this,
                &IEditableTitleWidget::showValue);
        showValue();
    }

    setKeyboard(keyboard());
}

QLineEdit *IEditableTitleWidget::editor() const
{
    return qobject_cast<QLineEdit *>(d->editorWidget);
}

bool IEditableTitleWidget::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        auto *keyEvent = static_cast<QKeyEvent *>(event);
        if (object == d->editorWidget && d->adapter)
            return forwardKey(keyEvent);
        if (object == d->adapter && endsEdit(keyEvent->key())) {
            d->committing = true;
            // A press beside the keypad; what the editor passes on, finishEdit() sees to.
            if (d->closesKeyboard && !d->isFinishing && keyboard()) {
                const int result = resultOf(keyEvent->key());
                QTimer::singleShot(0, keyboard(), [keypad = keyboard(), result] {
                    if (keypad->isVisible())
                        keypad->done(result);
                });
            }
        }
    }
    return QWidget::eventFilter(object, event);
}

void IEditableTitleWidget::mousePressEvent(QMouseEvent *event)
{
    QWidget::mousePressEvent(event);
}

/// Shows the adapter's text as it stands after a commit or a step.
void IEditableTitleWidget::showValue()
{
    if (!d->adapter || !editor())
        return;
    const QString text = d->adapter->getInputText();
    const int numberEnd = numberLength(*d->adapter);
    setEditorText(text, numberEnd, 0, numberEnd);
}

/// Gives the adapter the keys that are its business; true for those.
bool IEditableTitleWidget::forwardKey(QKeyEvent *event)
{
    if (endsEdit(event->key())) {
        finishEdit(event);
        return true;
    }
    if (!isForwarded(event->key()))
        return false;
    QCoreApplication::sendEvent(d->adapter, event);
    return true;
}

/// Lets the adapter commit or cancel, and passes the focus on.
void IEditableTitleWidget::finishEdit(QKeyEvent *event)
{
    // Set first: the adapter may close the keypad, and with that take the focus away.
    d->committing = true;
    d->isFinishing = true;
    const int result = resultOf(event->key());
    const QPointer<IEditableTitleWidget> self(this);
    QCoreApplication::sendEvent(d->adapter, event);
    if (!self)
        return;
    d->isFinishing = false;
    if (d->closesKeyboard && keyboard() && keyboard()->isVisible())
        keyboard()->done(result);
    // cppcheck-suppress identicalConditionAfterEarlyExit // done() may have ended it
    if (!self)
        return;
    restoreKeyboardFocusProxy();
    if (!keyboard() || !editor() || !editor()->hasFocus())
        return;
    // With the keypad gone the window gets it, so that the next tap on the editor begins a new
    // edit. The editor may be destroyed when it loses the focus, and so must not be the one to act.
    QWidget *next = keyboard()->isVisible() ? keyboard() : editor()->window();
    next->setFocus(Qt::OtherFocusReason);
}

/// Begins an edit when the editor gets the focus, and ends it when the focus goes anywhere but into
/// the keypad.
void IEditableTitleWidget::handleFocusChange(QWidget *old, QWidget *now)
{
    const QPointer<IEditableTitleWidget> self(this);
    if (now && now == d->editorWidget) {
        if (std::exchange(d->isKeptOpen, false))
            registerAtKeyboard();
        else
            onFocus();
        if (!self)
            return;
        mirror();
    }
    // One that loses the focus in its destructor is not the editor any more.
    if (!old || old != editor())
        return;

    const QWidget *keypad = d->keyboard;
    if (keypad && keypad->isAncestorOf(now)) {
        const bool isTextArea =
            now->parentWidget() == keypad && now->objectName() == QLatin1String("edit");
        if (!isTextArea)
            return;
    }
    const bool isElsewhere =
        now ? now->window() != old->window() : !old->window()->isActiveWindow();
    if (d->keepsEntryOpen && isElsewhere && !d->committing && old->isVisible()) {
        d->isKeptOpen = true;
        return;
    }
    // An editor that disappears with its keypad was closed without a commit.
    const bool closed = keypad && keypad->isHidden() && keypad->isAncestorOf(old);
    if (!d->committing && !closed) {
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\n"));
            if (self && editor())
                QCoreApplication::sendEvent(editor(), &event);
        }
    }
    if (!self)
        return;
    d->committing = true;
    restoreKeyboardFocusProxy();
    Q_EMIT focusedOut();
}

} // namespace Controls
