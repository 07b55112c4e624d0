// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <vnawidgets_export.h>

#include <QObject>

#include <memory>

namespace Controls
{

class BaseUnitAdapter;

/*! Answers the arrow keys of a numeric entry field: steps the value of one adapter by a fixed
    amount. Not for sequences: Step125Controller walks 1-2-5, and a derived class overrides
    stepBy() for others.

    \code
    auto *stepper = new Controls::StepController(adapter);
    stepper->setSingleStep(0.1);
    stepper->setAdapter(adapter); // from now on Up adds 0.1, within the adapter's limits
    \endcode

    The adapter is not owned and may go at any time. */
class VNAWIDGETS_EXPORT StepController : public QObject
{
    Q_OBJECT

public:
    /// Serves no adapter at first.
    explicit StepController(QObject *parent = nullptr);
    ~StepController() override;

    /// The adapter whose requests are answered; null at first.
    BaseUnitAdapter *adapter() const;
    /// The amount of one step in base units; 1 by default.
    double singleStep() const;

    /// Leaves the former adapter and serves this one; null serves none.
    void setAdapter(BaseUnitAdapter *adapter);
    /// Any number is taken: a negative step turns the direction around.
    void setSingleStep(double step);

public Q_SLOTS:
    /// Computes the value \a step positions from \a value and emits stepped(); works without an
    /// adapter.
    virtual void stepBy(double value, int step);

Q_SIGNALS:
    /// The new value, before the adapter has limited it. The adapter then has it and has told
    /// editingFinished().
    void stepped(double newValue);

private:
    void writeBack(double newValue);

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace Controls
