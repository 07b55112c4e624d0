// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <controls/stepcontroller.h>

#include <controls/baseunitadapter.h>

#include <QPointer>

namespace Controls
{

struct StepController::Private {
    QPointer<BaseUnitAdapter> adapter;
    double singleStep = 1.0;
};

StepController::StepController(QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Private>())
{
    connect(this, &StepController::stepped, this, &StepController::writeBack);
}

StepController::~StepController() = default;

double StepController::singleStep() const
{
    return d->singleStep;
}

void StepController::setSingleStep(double step)
{
    d->singleStep = step;
}

BaseUnitAdapter *StepController::adapter() const
{
    return d->adapter;
}

void StepController::setAdapter(BaseUnitAdapter *adapter)
{
    if (d->adapter == adapter)
        return;
    if (d->adapter)
        disconnect(d->adapter, &BaseUnitAdapter::stepBy, this, &StepController::stepBy);
    d->adapter = adapter;
    if (d->adapter)
        connect(d->adapter, &BaseUnitAdapter::stepBy, this, &StepController::stepBy);
}

void StepController::stepBy(double value, int step)
{
    Q_EMIT stepped(double(step) * d->singleStep + value);
}

void StepController::writeBack(double newValue)
{
    // The adapter's own setRealValue() may do anything, its slots too.
    const QPointer<BaseUnitAdapter> adapter = d->adapter;
    if (adapter)
        adapter->setRealValue(newValue);
    if (adapter)
        Q_EMIT adapter->editingFinished(adapter->getRealValue());
}

} // namespace Controls
