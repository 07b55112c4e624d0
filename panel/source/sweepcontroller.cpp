// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sweepcontroller.h"

#include <panel/diagrams/diagrams.h>
#include <panel/entry/softkey.h>
#include <panel/model/panelmodel.h>
#include <panel/window/panelwindow.h>

#include <widgets/switchbutton.h>

#include <QScopedValueRollback>

namespace Panel
{

SweepController::SweepController(PanelModel *model, PanelWindow *window, QObject *parent)
    : QObject(parent)
    , m_model(model)
    , m_window(window)
{
    connect(&m_source, &SweepSource::swept, this, &SweepController::onSwept);
    connect(m_model, &PanelModel::networksChanged, this, &SweepController::onNetworksChanged);
    connect(m_model, &PanelModel::sweepChanged, this, &SweepController::restart);
    connect(m_model, &PanelModel::sweepingChanged, this, [this] {
        m_source.setHeld(!m_model->isSweeping());
        showState();
    });
    connectKeys();
    showState();
}

void SweepController::connectKeys()
{
    const PanelKeys &keys = m_window->keys();
    using Device = SimulatedDevice;
    keys.source->setChoices({tr("File"), Device::name(Device::Antenna),
                             Device::name(Device::Filter), Device::name(Device::Cable)});
    connect(keys.source, &SoftKey::choicePicked, this, [this](int index) {
        if (index == 0)
            showFiles();
        else
            simulate(Device::Kind(index - 1));
    });
    connect(keys.sweep, &SwitchButton::statusChanged, m_model, &PanelModel::setSweeping);
}

void SweepController::simulate(SimulatedDevice::Kind kind)
{
    if (!isSimulating())
        m_files = m_model->networks();
    m_kind = kind;
    m_newDevice = true;
    // Whether or not the sweep changes by it, the source starts once more: that costs nothing.
    m_model->setSweep(SimulatedDevice::usualSweep(kind, m_model->sweep().points));
    m_source.start(kind, m_model->sweep());
    showState();
}

void SweepController::showFiles()
{
    if (m_files.isEmpty() || !isSimulating()) {
        Q_EMIT fileRequested();
        return;
    }
    m_source.stop();
    m_window->diagrams()->resetViews();
    m_model->setNetworks(m_files);
}

void SweepController::restart()
{
    if (isSimulating())
        m_source.start(m_kind, m_model->sweep());
    showState();
}

void SweepController::setTuning(double hertz)
{
    const double before = tuning();
    m_source.setTuning(hertz);
    if (tuning() != before)
        Q_EMIT tuningChanged();
}

void SweepController::onSwept(const Network &frame, double progress)
{
    show(frame);
    Q_EMIT progressed(progress);
    if (progress >= 1.0)
        Q_EMIT sweepCompleted();
}

void SweepController::show(const Network &frame)
{
    if (!m_newDevice) {
        m_model->updateNetwork(0, frame);
        return;
    }
    m_newDevice = false;
    const QScopedValueRollback<bool> handingOver(m_handingOver, true);
    m_window->diagrams()->resetViews();
    m_model->setNetworks({frame});
}

void SweepController::onNetworksChanged()
{
    if (m_handingOver)
        return;
    m_source.stop();
    showState();
}

void SweepController::showState()
{
    const PanelKeys &keys = m_window->keys();
    keys.source->setChoice(isSimulating() ? m_kind + 1 : 0);
    keys.sweep->setStatus(m_model->isSweeping());
    keys.sweep->setEnabled(isSimulating());
}

} // namespace Panel
