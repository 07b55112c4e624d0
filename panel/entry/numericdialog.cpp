// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "numericdialog.h"

#include "typedentry.h"
#include "units.h"
#include <panel/ground/look.h>

#include <controls/keypadeditor.h>
#include <controls/step125controller.h>
#include <widgets/labelbutton.h>

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QTimer>

#include <cmath>

namespace Panel
{

namespace
{

/// In pixels.
constexpr int s_finger = 44;

} // namespace

NumericDialog::NumericDialog(const QString &title, UnitAdapter *adapter, QWidget *parent)
    : TouchNumKeyboard(parent)
    , m_adapter(adapter)
    , m_range(new QLabel)
    , m_stepKey(new LabelButton)
    , m_flashEnd(new QTimer(this))
    , m_fixedStepper(new Controls::StepController(this))
    , m_125Stepper(new Controls::Step125Controller(this))
    , m_openedWith(adapter->getRealValue())
    , m_wanted(qQNaN())
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(title);
    // The dialog is the adapter's parent: a commit or Escape closes it.
    m_adapter->setParent(this);
    m_editor = new Controls::KeypadEditor(this, m_adapter);
    connect(new TypedEntry(lineEdit(), m_adapter, this), &TypedEntry::refused, this,
            [this] { flash(tr("Not a value")); });
    setDimEnabled(true);

    m_range->setObjectName(QStringLiteral("range"));
    setTitleWidget(m_range, Qt::AlignRight | Qt::AlignVCenter);
    m_flashEnd->setSingleShot(true);
    m_flashEnd->setInterval(2000);
    connect(m_flashEnd, &QTimer::timeout, this, &NumericDialog::showRange);
    showRange();

    m_stepKey->setObjectName(QStringLiteral("stepKey"));
    m_stepKey->setText(tr("Step"));
    m_stepKey->setLayoutType(InfoButton::LeftRight);
    m_stepKey->setFocusPolicy(Qt::TabFocus); // a tap leaves the cursor in the editor
    m_stepKey->setAccessibleName(tr("Step"));
    m_stepKey->setMinimumHeight(s_finger);
    m_stepKey->hide();
    setExtraWidget(m_stepKey);
    connect(m_stepKey, &LabelButton::clicked, this,
            [this] { setStep((m_step + 1) % int(m_steps.size())); });

    for (const int key : {Qt::Key_Return, Qt::Key_Enter}) {
        m_adapter->setKeyCallback(key, [this](QKeyEvent *event) {
            if (isUntouched(event->text())) {
                accept(); // the text may be rounded, the value is not
                return true;
            }
            m_wanted = typedValue(event->text());
            return false;
        });
    }
    for (const int key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown}) {
        m_adapter->setKeyCallback(key, [this](QKeyEvent *) {
            // Steps go from what is on show, also when it was typed and not entered yet.
            const double typed = typedValue();
            if (!isUntouched() && std::isfinite(typed))
                m_adapter->setRealValue(typed);
            return m_steps.isEmpty();
        });
    }
    connect(m_adapter, &UnitAdapter::editingFinished, this, &NumericDialog::onEditingFinished);
    for (Controls::StepController *stepper : {m_fixedStepper, m_125Stepper})
        connect(stepper, &Controls::StepController::stepped, this, &NumericDialog::onStepped);
    connect(this, &QDialog::finished, this, &NumericDialog::onFinished);
}

NumericDialog::~NumericDialog() = default;

void NumericDialog::setSteps(const QVector<double> &steps)
{
    m_steps = steps;
    m_stepKey->setVisible(m_steps.size() > 1);
    setStep(0);
}

void NumericDialog::setStep(int index)
{
    m_step = index;
    const bool sequence = step() == Step125;
    m_fixedStepper->setAdapter(m_steps.isEmpty() || sequence ? nullptr : m_adapter);
    m_125Stepper->setAdapter(!m_steps.isEmpty() && sequence ? m_adapter : nullptr);
    m_fixedStepper->setSingleStep(step());
    m_stepKey->setLabelText(sequence ? tr("1-2-5") : m_adapter->valueText(step()));
}

void NumericDialog::open()
{
    TouchNumKeyboard::open();
    // In a window that is not active yet, the focus comes later than the user's eye.
    m_editor->onFocus();
}

bool NumericDialog::isUntouched(const QString &unitKey) const
{
    const bool changesUnit =
        m_adapter->availableUnits().contains(unitKey) && unitKey != m_adapter->getCurrentUnit();
    return !changesUnit && lineEdit()->text() == m_adapter->getInputText();
}

double NumericDialog::typedValue(const QString &unitKey) const
{
    const bool changesUnit = m_adapter->availableUnits().contains(unitKey);
    QString unit = unitKey;
    return changesUnit ? m_adapter->convertInputTextToValue(lineEdit()->text(), unit)
                       : m_adapter->typedValue(lineEdit()->text());
}

void NumericDialog::onEditingFinished(double value)
{
    const QPointer<NumericDialog> self(this);
    const double wanted = m_wanted;
    m_wanted = qQNaN();
    Q_EMIT valueChanged(value);
    if (self && std::isfinite(wanted) && wanted != value)
        Q_EMIT limited(
            tr("%1: %2 is out of range, limited to %3.")
                .arg(windowTitle(), m_adapter->valueText(wanted), m_adapter->valueText(value)));
}

void NumericDialog::onStepped(double wanted)
{
    const double value = m_adapter->getRealValue();
    if (wanted > value)
        flash(tr("Highest value: %1").arg(m_adapter->valueText(value)));
    else if (wanted < value)
        flash(tr("Lowest value: %1").arg(m_adapter->valueText(value)));
    else
        showRange();
}

void NumericDialog::onFinished(int result)
{
    if (result == Rejected && m_adapter->getRealValue() != m_openedWith)
        Q_EMIT valueChanged(m_openedWith);
}

void NumericDialog::flash(const QString &sentence)
{
    m_range->setText(sentence);
    m_range->setProperty("warning", true);
    repolish(m_range);
    m_flashEnd->start();
}

void NumericDialog::showRange()
{
    m_flashEnd->stop();
    m_range->setText(m_adapter->rangeText());
    m_range->setProperty("warning", false);
    repolish(m_range);
}

} // namespace Panel
