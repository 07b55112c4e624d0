// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sourcekeys.h"

#include "softkey.h"

#include <panel/model/panelmodel.h>

#include <widgets/switchbutton.h>

namespace Panel
{

SourceKeys::SourceKeys(PanelModel *model, const PanelKeys &keys, QObject *parent)
    : QObject(parent)
    , m_model(model)
    , m_keys(keys)
{
    QStringList names;
    for (int i = 0; i < sourceCount; ++i)
        names << sourceName(Source(i));
    keys.source->setChoices(names);
    connect(keys.source, &SoftKey::choicePicked, this, [this](int index) {
        pick(Source(index));
        showState();
    });
    connect(keys.instrument, &SoftKey::clicked, this, &SourceKeys::instrumentRequested);
    connect(keys.single, &SoftKey::clicked, model, &PanelModel::sweepOnce);
    connect(keys.sweep, &SwitchButton::statusChanged, model, &PanelModel::setSweeping);
    for (const auto signal : {&PanelModel::sourceChanged, &PanelModel::sourceStateChanged,
                              &PanelModel::sweepingChanged})
        connect(model, signal, this, &SourceKeys::showState);
    showState();
}

void SourceKeys::pick(Source source)
{
    const bool hasFiles = m_model->source() != Source::Files && !m_model->files().isEmpty();
    if (source == Source::Files && !hasFiles)
        Q_EMIT fileRequested();
    else if (source == Source::Instrument && m_model->instrument().isEmpty())
        Q_EMIT instrumentRequested();
    else
        m_model->setSource(source);
}

void SourceKeys::showState()
{
    const bool instrument = m_model->source() == Source::Instrument;
    const SourceState &state = m_model->sourceState();
    m_keys.instrument->setValue(!instrument ? tr("Choose\u2026")
                                    : state.phase == SourceState::Connecting
                                    ? tr("Connecting\u2026")
                                    : state.phase == SourceState::Ready ? state.identity
                                                                        : tr("Not there"));
    // What only an instrument has, and what only a simulation.
    for (SoftKey *key : {m_keys.ifBandwidth, m_keys.power})
        key->setVisible(instrument);
    m_keys.tune->setVisible(!instrument);
    m_keys.timing->setVisible(!instrument);
    m_keys.single->setEnabled(m_model->sourceLimits().measures());
    m_keys.source->setChoice(int(m_model->source()));
    m_keys.sweep->setStatus(m_model->isSweeping());
    m_keys.sweep->setEnabled(m_model->sourceLimits().measures());
}

} // namespace Panel
