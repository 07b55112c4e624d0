// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sweepcontroller.h"

#include <panel/model/panelmodel.h>

namespace Panel
{

SweepController::SweepController(PanelModel *model, QObject *parent)
    : QObject(parent)
    , m_model(model)
{
    connect(&m_source, &SweepSource::swept, this, &SweepController::show);
    connect(m_model, &PanelModel::sourceChanged, this, [this] {
        m_newSource = true;
        start();
    });
    connect(m_model, &PanelModel::sweepChanged, this, &SweepController::start);
    connect(m_model, &PanelModel::sweepingChanged, this,
            [this] { m_source.setHeld(!m_model->isSweeping()); });
    connect(m_model, &PanelModel::tuningChanged, this,
            [this] { m_source.setTuning(m_model->tuning()); });
    m_source.setHeld(!m_model->isSweeping());
    start();
}

/// Sweeps what the model says, or nothing.
void SweepController::start()
{
    if (isSimulated(m_model->source()))
        m_source.start(m_model->source(), m_model->sweep(), m_model->tuning());
    else
        m_source.stop();
}

void SweepController::show(const Network &frame, double progress)
{
    if (std::exchange(m_newSource, false))
        m_model->beginMeasurement(frame);
    else
        m_model->updateNetwork(0, frame);
    Q_EMIT progressed(progress);
    if (progress >= 1.0)
        Q_EMIT sweepCompleted();
}

} // namespace Panel
