// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sweepcontroller.h"

#include <panel/model/panelmodel.h>

namespace Panel
{

SweepController::SweepController(PanelModel *model, MeasurementSource *instrument, QObject *parent)
    : QObject(parent)
    , m_model(model)
    , m_instrument(instrument)
{
    follow(&m_simulation);
    if (m_instrument)
        follow(m_instrument);
    connect(m_model, &PanelModel::sourceChanged, this, [this] {
        m_newSource = true;
        start();
    });
    for (const auto signal :
         {&PanelModel::sweepChanged, &PanelModel::acquisitionChanged, &PanelModel::tuningChanged})
        connect(m_model, signal, this, [this] {
            if (m_source)
                m_source->setSettings(settings());
        });
    connect(m_model, &PanelModel::sweepingChanged, this, [this] {
        if (m_source)
            m_source->setHeld(!m_model->isSweeping());
    });
    connect(m_model, &PanelModel::singleRequested, this, [this] {
        if (m_source)
            m_source->measureOnce();
    });
    start();
}

/// What the panel is told by another source than the one it shows, it does not hear.
void SweepController::follow(MeasurementSource *source)
{
    connect(source, &MeasurementSource::swept, this,
            [this, source](const Network &frame, double progress, int sweeps) {
                if (source == m_source)
                    show(frame, progress, sweeps);
            });
    connect(source, &MeasurementSource::stateChanged, this, [this, source] {
        if (source == m_source)
            m_model->setSourceState(source->state(), source->limits());
    });
    connect(source, &MeasurementSource::settled, this,
            [this, source](const MeasurementSettings &settings) {
                if (source == m_source)
                    m_model->takeSettings(settings);
            });
}

MeasurementSettings SweepController::settings() const
{
    return {m_model->sweep(), m_model->acquisition(), m_model->tuning()};
}

/// Measures what the model names, or nothing.
void SweepController::start()
{
    const Source source = m_model->source();
    MeasurementSource *wanted = isSimulated(source) ? &m_simulation
        : source == Source::Instrument              ? m_instrument
                                                    : nullptr;
    if (m_source && m_source != wanted)
        m_source->stop();
    m_source = wanted;
    if (!m_source)
        return;
    m_source->choose(source, m_model->instrument());
    m_source->setHeld(!m_model->isSweeping());
    m_source->start(settings());
    m_model->setSourceState(m_source->state(), m_source->limits());
}

void SweepController::show(const Network &frame, double progress, int sweeps)
{
    if (std::exchange(m_newSource, false) || !m_model->updateNetwork(0, frame))
        m_model->beginMeasurement(frame);
    Q_EMIT progressed(progress);
    if (sweeps > 0)
        Q_EMIT sweepsCompleted(sweeps);
}

} // namespace Panel
