// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "typedentry.h"

#include "units.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTimer>

#include <cmath>

namespace Panel
{

namespace
{

/// Takes the Return that somebody presses when the entry has just finished by itself: it would
/// press the key that has the keyboard now, and open the entry anew.
class LateReturn : public QObject
{
public:
    LateReturn()
        : QObject(QCoreApplication::instance())
    {
        QCoreApplication::instance()->installEventFilter(this);
        QTimer::singleShot(2 * TypedEntry::patience, this, &QObject::deleteLater);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::KeyPress || watched->isWindowType())
            return false;
        deleteLater();
        const int key = static_cast<QKeyEvent *>(event)->key();
        return key == Qt::Key_Return || key == Qt::Key_Enter;
    }
};

} // namespace

TypedEntry::TypedEntry(QLineEdit *editor, UnitAdapter *adapter, QObject *parent)
    : QObject(parent)
    , m_editor(editor)
    , m_adapter(adapter)
    , m_finish(new QTimer(this))
{
    m_finish->setSingleShot(true);
    m_finish->setInterval(patience);
    connect(m_finish, &QTimer::timeout, this, [this] {
        finish();
        new LateReturn;
    });
    m_editor->installEventFilter(this);
}

bool TypedEntry::eventFilter(QObject *watched, QEvent *event)
{
    return event->type() == QEvent::KeyPress && onKey(static_cast<QKeyEvent *>(event))
        ? true
        : QObject::eventFilter(watched, event);
}

/// Answers a key press; false leaves it to the editor.
bool TypedEntry::onKey(const QKeyEvent *event)
{
    const bool enters = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enters && !m_unit.isEmpty()) {
        finish();
        return true;
    }
    if (enters) {
        if (!isValue(event->text())) {
            Q_EMIT refused();
            return true;
        }
        const QString typed = m_adapter->normalized(m_editor->text());
        if (!typed.isEmpty() && typed != m_editor->text())
            m_editor->setText(typed);
        return false;
    }
    if (event->matches(QKeySequence::SelectAll)) {
        selectNumber();
        return true;
    }
    const QString text = event->text();
    if (text.size() != 1 || event->modifiers().testFlag(Qt::ControlModifier))
        return false;
    if (text.front().isLetter())
        return onLetter(text.front());
    if (text.front() == QLatin1Char(' '))
        return true;
    // Over a number that is selected as it opens, without its sign, another one begins.
    if (m_editor->selectionStart() == 1 && m_editor->selectedText().size() + 1 == number().size()
        && (text.front().isDigit() || QStringLiteral("-.,").contains(text.front())))
        selectNumber();
    // Whatever else is typed goes on with the number.
    m_unit.clear();
    m_finish->stop();
    return false;
}

/// The first letter picks a unit, further ones have to spell it.
bool TypedEntry::onLetter(QChar letter)
{
    const bool continues = !m_unit.isEmpty() && m_typedOfUnit < m_unit.size()
        && m_unit.at(m_typedOfUnit).toLower() == letter.toLower();
    const QString unit = continues ? m_unit : m_adapter->unitOfLetter(letter);
    if (unit.isEmpty() || !isValue(unit))
        return true; // nothing else has letters
    m_typedOfUnit = continues ? m_typedOfUnit + 1 : 1;
    m_unit = unit;
    const QString typed = number();
    m_editor->setText(typed + unit);
    m_editor->setCursorPosition(int(typed.size()));
    m_finish->start();
    return true;
}

/// What the editor holds in front of a unit.
QString TypedEntry::number() const
{
    const QString text = m_editor->text();
    int end = int(text.size());
    while (end > 0 && !text.at(end - 1).isDigit())
        --end;
    return text.left(end);
}

/// Whether the editor holds a number, in the unit of a unit key if there is one.
bool TypedEntry::isValue(const QString &unitKey) const
{
    const bool changesUnit = m_adapter->availableUnits().contains(unitKey);
    return std::isfinite(
        m_adapter->typedValue(changesUnit ? number() + unitKey : m_editor->text()));
}

/// Presses the key of the unit that was typed.
void TypedEntry::finish()
{
    m_finish->stop();
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, m_unit);
    m_unit.clear();
    QCoreApplication::sendEvent(m_editor, &press);
}

void TypedEntry::selectNumber()
{
    m_editor->setSelection(0, int(number().size()));
}

} // namespace Panel
