// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <controls/touchnumkeyboard.h>

#include <QVector>

class LabelButton;
class QLabel;
class QTimer;

namespace Controls
{
class KeypadEditor;
class StepController;
} // namespace Controls

namespace Panel
{

class UnitAdapter;

/*! Asks for one number: title and range, the value to edit, and the keypad, above the dimmed
    window. It needs a QMainWindow as its host, and deletes itself when it closes.

    The value is told as it changes, so that a step shows at once. What is typed beyond the range
   becomes the limit, and limited() says so; what is no number keeps the dialog open. Escape, or a
   press beside it, ends the entry without it: steps are taken back too, unless
   setPressOutsidePolicy() asks to commit.

    \code
    auto *stop = new FrequencyAdapter;
    stop->setRange(100e3, 8.5e9);
    stop->setRealValue(sweep->stop());
    auto *dialog = new NumericDialog(tr("Stop"), stop, mainWindow);
    dialog->setSteps({10e6, NumericDialog::Step125});
    dialog->setPopupAnchorWidget(softKey);
    connect(dialog, &NumericDialog::valueChanged, sweep, &Sweep::setStop);
    connect(dialog, &NumericDialog::limited, messageBar, &MessageBar::setMessage);
    dialog->open();
    \endcode */
class NumericDialog : public Controls::TouchNumKeyboard
{
    Q_OBJECT

public:
    /// Stands among the steps for the sequence 1, 2, 5, 10, 20, 50 ...
    static constexpr double Step125 = 0.0;

    /// Takes over the adapter, whose range and value are set already.
    NumericDialog(const QString &title, UnitAdapter *adapter, QWidget *parent);
    ~NumericDialog() override;

    UnitAdapter *adapter() const { return m_adapter; }
    /// What the step key offers, in base units; the first is in force. One alone needs no key, and
    /// none leaves the arrows without effect.
    void setSteps(const QVector<double> &steps);
    double step() const { return m_steps.value(m_step, Step125); }

    void open() override;

Q_SIGNALS:
    /// The value was entered, stepped to, or taken back.
    void valueChanged(double value);
    /// A value was beyond the range; a sentence that names the limit.
    void limited(const QString &sentence);

private:
    void setStep(int index);
    void onEditingFinished(double value);
    void onStepped(double wanted);
    void onFinished(int result);
    /// Whether the editor holds the value as it was shown, and a unit key leaves it so.
    bool isUntouched(const QString &unitKey = {}) const;
    /// What the editor holds, in the unit of a unit key if there is one; NaN if it is no number.
    double typedValue(const QString &unitKey = {}) const;
    /// Shows a sentence in place of the range for a moment.
    void flash(const QString &sentence);
    void showRange();

    UnitAdapter *m_adapter;
    Controls::KeypadEditor *m_editor;
    QLabel *m_range;
    LabelButton *m_stepKey;
    QTimer *m_flashEnd;
    Controls::StepController *m_fixedStepper;
    Controls::StepController *m_125Stepper;
    QVector<double> m_steps;
    int m_step = 0;
    double m_openedWith = 0.0;
    double m_wanted; ///< what was typed, before the range; NaN while nothing was
};

} // namespace Panel
