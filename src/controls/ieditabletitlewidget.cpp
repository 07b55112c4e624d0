// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <controls/ieditabletitlewidget.h>

#include <controls/baseunitadapter.h>
#include <controls/touchnumkeyboard.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTimer>

#include <algorithm>

namespace Controls
{

namespace
{

bool endsEdit(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Escape;
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
    , m_keyboard(keyboard)
    , m_adapter(adapter)
{
    if (!adapter)
        return;
    connect(adapter, &BaseUnitAdapter::cursorPosCrossUnit, this,
            &IEditableTitleWidget::setEditorText);
    connect(adapter, &BaseUnitAdapter::specialKeyHandled, this,
            &IEditableTitleWidget::setEditorText);
    // Whoever sends the adapter Return or Escape, also a press beside the keypad, ends this edit.
    adapter->installEventFilter(this);
}

IEditableTitleWidget::~IEditableTitleWidget()
{
    // The editor goes after this class has ended, and what it says in going concerns nobody.
    if (m_editorWidget)
        m_editorWidget->disconnect(this);
    if (qApp)
        qApp->disconnect(this);
    restoreKeyboardFocusProxy();
}

void IEditableTitleWidget::setDummyDisplayUnits(const QStringList &units)
{
    m_dummyDisplayUnits = units;
}

void IEditableTitleWidget::overrideKeyboardFocusProxy(QWidget *widget)
{
    if (!widget || !keyboard())
        return;
    if (!m_focusProxyOverridden) {
        m_savedFocusProxy = keyboard()->focusProxy();
        m_focusProxyOverridden = true;
    }
    keyboard()->setFocusProxy(widget);
}

void IEditableTitleWidget::restoreKeyboardFocusProxy()
{
    if (!keyboard() || !m_focusProxyOverridden)
        return;
    keyboard()->setFocusProxy(m_savedFocusProxy);
    m_savedFocusProxy = nullptr;
    m_focusProxyOverridden = false;
}

void IEditableTitleWidget::onFocus()
{
    m_committing = false;
    registerAtKeyboard();
    // Later: the click that brought the focus still has its cursor to place.
    QTimer::singleShot(0, this, [this] {
        if (!m_adapter)
            return;
        const QString text = m_adapter->getInputText();
        const int numberEnd = int(text.length() - m_adapter->getCurrentUnit().length());
        const int start = text.startsWith(QLatin1Char('-')) ? 1 : 0;
        Q_EMIT m_adapter->specialKeyHandled(text, start, std::max(0, numberEnd - start), numberEnd);
    });
}

void IEditableTitleWidget::attachEditor(QLineEdit *lineEdit)
{
    m_editorWidget = lineEdit;
    lineEdit->installEventFilter(this);
    connect(lineEdit, &QLineEdit::textChanged, this, [this](const QString &text) {
        mirror();
        if (m_adapter)
            m_adapter->setProperty("inputText", text);
    });
    connect(lineEdit, &QLineEdit::cursorPositionChanged, this, [this](int, int position) {
        mirror();
        if (m_adapter)
            m_adapter->setProperty("cursorPos", position);
    });
    connect(lineEdit, &QLineEdit::selectionChanged, this, [this] {
        mirror();
        publishSelection();
    });
    // Typing after Return begins a new edit, though the focus never left.
    connect(lineEdit, &QLineEdit::textEdited, this, [this] { m_committing = false; });
    connect(qApp, &QApplication::focusChanged, this, &IEditableTitleWidget::handleFocusChange);
    if (m_adapter) {
        connect(m_adapter, &BaseUnitAdapter::editingFinished, this,
                &IEditableTitleWidget::showValue);
        showValue();
    }

    if (!keyboard())
        return;
    connect(keyboard(), &TouchNumKeyboard::indicatorPress, this, [this](int position) {
        if (!isMirrored())
            return;
        m_gestureStart = position;
        editor()->setCursorPosition(position);
    });
    connect(keyboard(), &TouchNumKeyboard::indicatorMove, this, [this](int position) {
        if (isMirrored())
            editor()->setSelection(m_gestureStart, position - m_gestureStart);
    });
    connect(keyboard(), &TouchNumKeyboard::indicatorDoubleClick, this, [this] {
        if (isMirrored())
            editor()->selectAll();
    });
}

QLineEdit *IEditableTitleWidget::editor() const
{
    return qobject_cast<QLineEdit *>(m_editorWidget);
}

TouchNumKeyboard *IEditableTitleWidget::keyboard() const
{
    return qobject_cast<TouchNumKeyboard *>(m_keyboard);
}

void IEditableTitleWidget::registerAtKeyboard()
{
    TouchNumKeyboard *const keypad = keyboard();
    if (!keypad)
        return;
    QStringList units = m_adapter ? m_adapter->availableUnits() : QStringList();
    if (units.isEmpty())
        units = m_dummyDisplayUnits;
    QList<TouchNumKeyboard::KeySpec> keys;
    for (const QString &unit : qAsConst(units))
        keys.append({Qt::Key_Return, unit, unit});
    keypad->setShortcutKeys(keys);
    keypad->setReceiver(m_adapter);
}

bool IEditableTitleWidget::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        auto *keyEvent = static_cast<QKeyEvent *>(event);
        if (object == m_editorWidget && m_adapter)
            return forwardKey(keyEvent);
        if (object == m_adapter && endsEdit(keyEvent->key()))
            m_committing = true;
    }
    return QWidget::eventFilter(object, event);
}

void IEditableTitleWidget::mousePressEvent(QMouseEvent *event)
{
    QWidget::mousePressEvent(event);
}

void IEditableTitleWidget::publishSelection()
{
    if (!m_adapter || !editor())
        return;
    m_adapter->setProperty("selectionStart", std::max(0, editor()->selectionStart()));
    m_adapter->setProperty("selectionLen", editor()->selectionLength());
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

/// Shows the adapter's text as it stands after a commit or a step.
void IEditableTitleWidget::showValue()
{
    if (!m_adapter || !editor())
        return;
    const QString text = m_adapter->getInputText();
    const int numberEnd = int(text.length() - m_adapter->getCurrentUnit().length());
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
    QCoreApplication::sendEvent(m_adapter, event);
    return true;
}

/// Lets the adapter commit or cancel, and passes the focus on.
void IEditableTitleWidget::finishEdit(QKeyEvent *event)
{
    // Set first: the adapter may close the keypad, and with that take the focus away.
    m_committing = true;
    const QPointer<IEditableTitleWidget> self(this);
    QCoreApplication::sendEvent(m_adapter, event);
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
    if (now && now == m_editorWidget) {
        onFocus();
        if (!self)
            return;
        mirror();
    }
    // One that loses the focus in its destructor is not the editor any more.
    if (!old || old != editor())
        return;

    const QWidget *keypad = m_keyboard;
    if (keypad && keypad->isAncestorOf(now)) {
        const bool isTextArea =
            now->parentWidget() == keypad && now->objectName() == QLatin1String("edit");
        if (!isTextArea)
            return;
    }
    // An editor that disappears with its keypad was closed without a commit.
    const bool closed = keypad && keypad->isHidden() && keypad->isAncestorOf(old);
    if (!m_committing && !closed) {
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\n"));
            if (self && editor())
                QCoreApplication::sendEvent(editor(), &event);
        }
    }
    if (!self)
        return;
    m_committing = true;
    restoreKeyboardFocusProxy();
    Q_EMIT focusedOut();
}

} // namespace Controls
