// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <controls/baseunitadapter.h>

#include <utils/formatting.h>
#include <utils/propertywatcher.h>

#include <QDialog>
#include <QDoubleValidator>
#include <QKeyEvent>
#include <QPointer>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace Controls
{

namespace
{

bool isAsciiLetter(QChar c)
{
    return (c >= QLatin1Char('a') && c <= QLatin1Char('z'))
        || (c >= QLatin1Char('A') && c <= QLatin1Char('Z'));
}

/// The longest "[A-Za-z]*[^[:ascii:]]*[A-Za-z]+" that ends the text. Read from the end, because a
/// regular expression takes quadratic time on a long text of letters that ends in something else.
QString unitSuffix(const QString &text)
{
    const auto skipBack = [&text](int end, auto belongs) {
        while (end > 0 && belongs(text.at(end - 1)))
            --end;
        return end;
    };
    const int letters = skipBack(int(text.length()), isAsciiLetter);
    if (letters == text.length())
        return {};
    const int others = skipBack(letters, [](QChar c) { return c.unicode() > 127; });
    return text.mid(others < letters ? skipBack(others, isAsciiLetter) : letters);
}

/// The text in front of a unit of the given length.
QString numberText(const QString &text, const QString &suffix)
{
    return suffix.isEmpty() ? text : text.left(text.length() - suffix.length()).trimmed();
}

/// The dialog that a commit or Escape closes.
QDialog *owningDialog(const BaseUnitAdapter *adapter)
{
    return qobject_cast<QDialog *>(adapter->parent());
}

} // namespace

struct BaseUnitAdapter::Private {
    QPointer<QValidator> validator;
    QMap<int, std::function<bool(QKeyEvent *)>> keyCallbacks;
    EscKeyPolicy escKeyPolicy = EscRejectsDialog;
};

BaseUnitAdapter::BaseUnitAdapter(QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Private>())
{
    auto *cursorWatcher = new Utils::PropertyWatcher(this);
    cursorWatcher->watchProperty(
        this, QStringLiteral("cursorPos"),
        [this](const QVariant &position) { keepCursorOutOfUnit(position.toInt()); });
}

BaseUnitAdapter::~BaseUnitAdapter() = default;

BaseUnitAdapter::EscKeyPolicy BaseUnitAdapter::escKeyPolicy() const
{
    return d->escKeyPolicy;
}

void BaseUnitAdapter::setEscKeyPolicy(EscKeyPolicy policy)
{
    d->escKeyPolicy = policy;
}

QString BaseUnitAdapter::adapterType()
{
    return QStringLiteral("Base");
}

QString BaseUnitAdapter::getCurrentUnit() const
{
    return unitSuffix(m_inputText);
}

QValidator *BaseUnitAdapter::validator() const
{
    return d->validator;
}

void BaseUnitAdapter::setValidator(QValidator *validator)
{
    d->validator = validator;
}

void BaseUnitAdapter::setKeyCallback(int key, const std::function<bool(QKeyEvent *)> &callback)
{
    if (callback)
        d->keyCallbacks.insert(key, callback);
    else
        d->keyCallbacks.remove(key);
}

void BaseUnitAdapter::resetSelectionToNumericPart(int &selectionStart, int &selectionLength,
                                                  int &cursorPosition) const
{
    selectionStart = cursorPosition = numericPartLength();
    selectionLength = 0;
}

double BaseUnitAdapter::convertInputTextToValue(const QString &text, QString &unit)
{
    const QString typed = text.trimmed();
    const QString typedUnit = unitSuffix(typed);
    if (unit.isEmpty() || !availableUnits().contains(unit, Qt::CaseInsensitive)) {
        unit = typedUnit;
        return convertToBase(typed);
    }
    if (typedUnit.compare(unit, Qt::CaseInsensitive) == 0)
        return convertToBase(typed);
    return convertToBase(numberText(typed, typedUnit) + unit);
}

void BaseUnitAdapter::setRealValue(double value)
{
    m_realValue = clamped(value);
    m_inputText = convertFromBaseValue(m_realValue, m_unit);
}

QString BaseUnitAdapter::convertFromBaseValue(double value, QString unit)
{
    return Utils::toString(value, m_decimals) + unit;
}

double BaseUnitAdapter::convertToBase(const QString &text)
{
    const double value = numberText(text, unitSuffix(text)).toDouble(); // 0 where it is no number
    return std::isfinite(value) ? value : 0.0;
}

QStringList BaseUnitAdapter::availableUnits()
{
    return {};
}

bool BaseUnitAdapter::event(QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QObject::event(event);

    // Whoever hears of a key may destroy this adapter; \a event belongs to the sender and outlives
    // it.
    auto *keyEvent = static_cast<QKeyEvent *>(event);
    const QPointer<BaseUnitAdapter> self(this);
    if (const auto callback = d->keyCallbacks.value(keyEvent->key())) {
        if (callback(keyEvent) || !self) {
            event->accept();
            return true;
        }
    }

    switch (keyEvent->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        event->accept();
        commit(keyEvent);
        return true;
    case Qt::Key_Delete:
        event->accept();
        return true;
    case Qt::Key_Up:
    case Qt::Key_PageUp:
        event->accept();
        Q_EMIT stepBy(m_realValue, 1);
        return true;
    case Qt::Key_Down:
    case Qt::Key_PageDown:
        event->accept();
        Q_EMIT stepBy(m_realValue, -1);
        return true;
    case Qt::Key_Escape:
        event->accept();
        cancel();
        return true;
    case Qt::Key_Period:
        event->accept();
        insertPoint();
        return self ? QObject::event(event) : true;
    case Qt::Key_plusminus:
        event->accept();
        toggleSign();
        return true;
    default:
        return QObject::event(event);
    }
}

/// The value inside the validator's range. NaN stays.
double BaseUnitAdapter::clamped(double value) const
{
    const auto *range = qobject_cast<const QDoubleValidator *>(d->validator.data());
    if (!range || std::isnan(value))
        return value;
    if (value > range->top())
        return range->top();
    return value < range->bottom() ? range->bottom() : value;
}

/// Length of the number in the text; all of it when there is none.
int BaseUnitAdapter::numericPartLength() const
{
    static const QRegularExpression number(QStringLiteral("[+-]?[0-9]*\\.?[0-9]+"));
    const QRegularExpressionMatch match = number.match(m_inputText);
    return int(match.hasMatch() ? match.capturedLength() : m_inputText.length());
}

void BaseUnitAdapter::keepCursorOutOfUnit(int position)
{
    const QString unit = getCurrentUnit();
    if (unit.isEmpty())
        return;
    const QString text = property("inputText").toString();
    const int unitStart = int(text.indexOf(unit));
    if (unitStart >= 0 && position > unitStart)
        Q_EMIT cursorPosCrossUnit(text, unitStart, 0, unitStart, position);
}

/// Takes over what was typed, tells it, and closes the owning dialog.
void BaseUnitAdapter::commit(QKeyEvent *event)
{
    const QPointer<QDialog> dialog(owningDialog(this));
    const QString typed = property("inputText").toString().trimmed();
    QString unit = event->text();
    const double entered = convertInputTextToValue(typed, unit);
    const double value = clamped(entered);
    const QPointer<BaseUnitAdapter> self(this);

    if (std::isnan(value)) {
        Q_EMIT specialKeyHandled(m_inputText, numericPartLength(), 0, 0);
        if (self)
            Q_EMIT entryRefused(typed);
    } else {
        m_lastAcceptedInputText = typed;
        if (value != m_realValue) {
            m_realValue = value;
            m_inputText = convertFromBaseValue(value, unit);
        }
        Q_EMIT editingFinished(m_realValue);
        // 0.1 in µF is a rounding error beyond 100 nF.
        if (self && std::abs(value - entered) > 1e-12 * std::abs(value))
            Q_EMIT entryClamped(entered, value);
    }

    if (!dialog)
        return;
    if (dialog->windowModality() == Qt::NonModal)
        dialog->close();
    else
        dialog->accept();
}

/// Brings back the last valid text, and rejects the owning dialog if the policy says so.
void BaseUnitAdapter::cancel()
{
    const QPointer<QDialog> dialog(d->escKeyPolicy == EscRejectsDialog ? owningDialog(this)
                                                                       : nullptr);
    Q_EMIT specialKeyHandled(m_inputText, numericPartLength(), 0, 0);
    if (dialog)
        dialog->reject();
}

/// Puts the point at the cursor, unless the number has one.
void BaseUnitAdapter::insertPoint()
{
    QString text = property("inputText").toString().trimmed();
    if (text.contains(QLatin1Char('.')))
        return;
    const int position = std::clamp(property("cursorPos").toInt(), 0, int(text.length()));
    text.insert(position, QLatin1Char('.'));
    Q_EMIT specialKeyHandled(text, position + 1, 0, position + 1);
}

/// Changes the sign of the number; over the whole number selected it starts a new negative one.
void BaseUnitAdapter::toggleSign()
{
    const QString minus = QStringLiteral("-");
    const QString text = property("inputText").toString().trimmed();
    const QString unit = getCurrentUnit();
    const int selectionStart = property("selectionStart").toInt();
    const int selectionLength = property("selectionLen").toInt();

    QString changed = minus + text;
    int cursor = 1;
    const bool isSpaced =
        text.length() > unit.length() && selectionLength == numberText(text, unit).length();
    if (selectionStart == 0 && (isSpaced || selectionLength == text.length() - unit.length())) {
        changed = minus + unit;
    } else if (text.startsWith(QLatin1Char('+'))) {
        changed = minus + text.mid(1);
    } else if (text.startsWith(minus)) {
        changed = text.mid(1);
        cursor = 0;
    }
    Q_EMIT specialKeyHandled(changed, cursor, 0, cursor);
}

} // namespace Controls
