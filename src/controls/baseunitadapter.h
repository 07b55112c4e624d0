// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <vnawidgets_export.h>

#include <QMap>
#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>

QT_BEGIN_NAMESPACE
class QDialog;
class QKeyEvent;
class QValidator;
QT_END_NAMESPACE

namespace Controls
{

/*! The model behind a numeric entry field: a value in base units, the text shown for it, and the
    meaning of the keys that an editor or the on-screen keypad delivers. Parses, clamps and
    reformats what was typed.

    Not an editor: that is EditableWidget or KeypadEditor. It knows no units itself: use
    ScaledUnitAdapter where units differ by a factor, or derive, set m_unit and override the
    conversions and availableUnits():
    \code
    class LevelAdapter : public Controls::BaseUnitAdapter
    {
        QStringList availableUnits() override { return {QStringLiteral("dBm")}; }
        double convertToBase(const QString &text) override; // NaN for text to be refused
        QString convertFromBaseValue(double value, QString unit) override;
    };
    \endcode

    \code
    auto *level = new LevelAdapter(keypad); // a commit closes the parent, if it is a dialog
    level->setValidator(new QDoubleValidator(-40, 10, 2, level));
    level->setRealValue(-12.5);
    connect(level, &LevelAdapter::editingFinished, source, &Source::setLevel);
    \endcode

    The editor writes its state into the dynamic properties "inputText", "cursorPos",
    "selectionStart" and "selectionLen" of the adapter, and sends it the key presses of Return,
    Enter, Escape, the arrows up and down, Page Up and Down, the point and plus-minus. A unit key
    is Return with the unit's name as its text.

    Numbers are read and written with a point, whatever the locale of the process. Units are ASCII
    letters, with other characters allowed in front of the last ones: "MHz", "dBm", "µs". */
class VNAWIDGETS_EXPORT BaseUnitAdapter : public QObject
{
    Q_OBJECT

public:
    /// What Escape does besides bringing back the last valid text.
    enum EscKeyPolicy {
        EscKeepsDialog = 0, ///< nothing more
        EscRejectsDialog = 1, ///< rejects the dialog that is the adapter's parent; the default
    };
    Q_ENUM(EscKeyPolicy)

    /// The value 0 without a text; a dialog as parent is closed by a commit.
    explicit BaseUnitAdapter(QObject *parent = nullptr);
    ~BaseUnitAdapter() override;

    /// Names the kind of adapter: "Base". Derived classes hide it with their own.
    static QString adapterType();

    /// The value in base units; 0 at first.
    double getRealValue() const { return m_realValue; }
    /// The text of the value as editors show it, with its unit; empty at first.
    QString getInputText() const { return m_inputText; }
    /// What the user last entered with success, as typed and trimmed; empty at first.
    QString getLastAcceptedInputText() const { return m_lastAcceptedInputText; }
    /// The unit at the end of getInputText(), or an empty string.
    QString getCurrentUnit() const;
    /// What limits the value; null at first. Not owned.
    QValidator *validator() const;
    /// What Escape does; EscRejectsDialog at first.
    EscKeyPolicy escKeyPolicy() const;

    /// Replaces the text alone: the value stays, nothing is emitted.
    void setInputText(const QString &text) { m_inputText = text; }
    /// Digits after the point in the text; 3 by default. The text changes with the next value.
    void setDecimals(int decimals) { m_decimals = decimals; }
    /// For derived adapters; this class always trims zeros. False by default.
    void setPreserveTrailingZeros(bool preserve) { m_preserveTrailingZeros = preserve; }
    /// Values are clamped to the range of a QDoubleValidator; other validators have no effect. Not
    /// owned.
    void setValidator(QValidator *validator);
    /// Sets escKeyPolicy().
    void setEscKeyPolicy(EscKeyPolicy policy);
    /// Calls \a callback for the key before anything else; it returns true to end the handling
    /// there. An empty function removes the callback of that key.
    void setKeyCallback(int key, const std::function<bool(QKeyEvent *)> &callback);

    /// Selection and cursor for "cursor at the end of the number": its length, 0 and its length
    /// again.
    void resetSelectionToNumericPart(int &selectionStart, int &selectionLength,
                                     int &cursorPosition) const;
    /// The value that typed \a text stands for. \a unit replaces the typed unit if it is one of
    /// availableUnits() in any case of letters; otherwise it receives the typed one.
    double convertInputTextToValue(const QString &text, QString &unit);

    /// Clamps and stores a value in base units and rewrites the text, in silence.
    virtual void setRealValue(double value);
    /// The text of a value in base units: here the number with the unit behind it, without a space.
    virtual QString convertFromBaseValue(double value, QString unit);
    /// The value in base units of a number with a unit: here the number alone. Text that is none
    /// gives 0; derived adapters return NaN to refuse a text, which brings back the last valid one.
    virtual double convertToBase(const QString &text);
    /// The units to choose from, in the order of their keys; none here.
    virtual QStringList availableUnits();

    bool event(QEvent *event) override;

Q_SIGNALS:
    /// The user asks for \a step positions more, or less; a step controller answers.
    void stepBy(double value, int step);
    /// A value was entered, or stepped to; also when it is the old one.
    void editingFinished(double value);
    /// The editor is to show this text, selection and cursor.
    void specialKeyHandled(QString text, int selectionStart, int selectionLength,
                           int cursorPosition);
    /// The cursor went into the unit: the editor is to put it back in front of it.
    void cursorPosCrossUnit(QString inputText, int selecitonStart, int length, int newCursorPos,
                            int oldCursorPos);
    /// What was entered lay outside the validator's range: \a entered became \a value. Follows
    /// editingFinished().
    void entryClamped(double entered, double value);
    /// What was entered, trimmed, is no value; the last valid one stands.
    void entryRefused(const QString &text);

protected:
    /// See setDecimals().
    int m_decimals = 3;
    /// See setPreserveTrailingZeros().
    bool m_preserveTrailingZeros = false;
    /// See getInputText().
    QString m_inputText;
    /// See getLastAcceptedInputText().
    QString m_lastAcceptedInputText;
    /// See getRealValue().
    double m_realValue = 0.0;
    /// The unit of values set by setRealValue().
    QString m_unit;

    /// For derived adapters, not used here: base units per unit, and digits after the point per
    /// unit.
    QMap<QString, double> m_unitFactors;
    /// For derived adapters, too: digits after the point by unit.
    QMap<QString, int> m_unitDecimals;

private:
    double clamped(double value) const;
    int numericPartLength() const;
    void keepCursorOutOfUnit(int position);

    void commit(QKeyEvent *event);
    void cancel();
    void insertPoint();
    void toggleSign();

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace Controls
