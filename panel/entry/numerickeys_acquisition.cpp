// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The keys about how an instrument measures: bandwidth, power and averages.
#include "numerickeys.h"

#include "numericdialog.h"
#include "softkey.h"
#include "units.h"

#include <panel/ground/numbertext.h>

#include <cmath>

namespace Panel
{

void NumericKeys::editBandwidth()
{
    const NumberRange &range = m_model->sourceLimits().bandwidth;
    const Acquisition &before = m_model->acquisition();
    auto *adapter = new FrequencyAdapter;
    adapter->setRange(range.lowest, range.highest);
    adapter->setRealValue(std::isnan(before.bandwidth) ? range.highest : before.bandwidth);
    edit(m_keys.ifBandwidth, adapter, {NumericDialog::Step125}, [this](double value) {
        Acquisition acquisition = m_model->acquisition();
        acquisition.bandwidth = value;
        m_model->setAcquisition(acquisition);
    });
}

void NumericKeys::editPower()
{
    const NumberRange &range = m_model->sourceLimits().power;
    const Acquisition &before = m_model->acquisition();
    auto *adapter = new PowerAdapter;
    adapter->setRange(range.lowest, range.highest);
    adapter->setRealValue(std::isnan(before.power) ? range.lowest : before.power);
    edit(m_keys.power, adapter, {1.0, 0.1}, [this](double value) {
        Acquisition acquisition = m_model->acquisition();
        acquisition.power = value;
        m_model->setAcquisition(acquisition);
    });
}

void NumericKeys::editAverages()
{
    const NumberRange &range = m_model->sourceLimits().averages;
    auto *adapter = new NumberAdapter(0);
    adapter->setRange(range.lowest, range.highest);
    adapter->setRealValue(m_model->acquisition().averages);
    edit(m_keys.averages, adapter, {NumericDialog::Step125, 1.0}, [this](double value) {
        Acquisition acquisition = m_model->acquisition();
        acquisition.averages = qRound(value);
        m_model->setAcquisition(acquisition);
    });
}

void NumericKeys::showAcquisition()
{
    const SourceLimits &limits = m_model->sourceLimits();
    const Acquisition &acquisition = m_model->acquisition();
    const auto show = [](SoftKey *key, const NumberRange &range, const QString &value) {
        key->setEnabled(!range.isEmpty());
        key->setValue(range.isEmpty() ? nothingText() : value);
    };
    show(m_keys.ifBandwidth, limits.bandwidth,
         std::isnan(acquisition.bandwidth) ? nothingText()
                                           : shortFrequencyText(acquisition.bandwidth));
    show(m_keys.power, limits.power,
         std::isnan(acquisition.power)
             ? nothingText()
             : withMinusSigns(QStringLiteral("%1 dBm").arg(acquisition.power, 0, 'f', 1)));
    show(m_keys.averages, limits.averages,
         acquisition.averages > 1 ? QString::number(acquisition.averages) : tr("Off"));
}

} // namespace Panel
