// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <controls/stepcontroller.h>

#include <controls/baseunitadapter.h>

namespace Controls
{

StepController::StepController(QObject *parent)
    : QObject(parent)
{
    connect(this, &StepController::stepped, this, &StepController::writeBack);
}

StepController::~StepController() = default;

BaseUnitAdapter *StepController::adapter() const
{
    return m_adapter;
}

void StepController::setAdapter(BaseUnitAdapter *adapter)
{
    if (m_adapter == adapter)
        return;
    if (m_adapter)
        disconnect(m_adapter, &BaseUnitAdapter::stepBy, this, &StepController::stepBy);
    m_adapter = adapter;
    if (m_adapter)
        connect(m_adapter, &BaseUnitAdapter::stepBy, this, &StepController::stepBy);
}

void StepController::stepBy(double value, int step)
{
    Q_EMIT stepped(double(step) * m_singleStep + value);
}

void StepController::writeBack(double newValue)
{
    // The adapter's own setRealValue() may do anything, its slots too.
    const QPointer<BaseUnitAdapter> adapter = m_adapter;
    if (adapter)
        adapter->setRealValue(newValue);
    if (adapter)
        Q_EMIT adapter->editingFinished(adapter->getRealValue());
}

} // namespace Controls
