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
        const auto picked = Source(index);
        if (picked != Source::Files
            || (m_model->source() != Source::Files && !m_model->files().isEmpty()))
            m_model->setSource(picked);
        else
            Q_EMIT fileRequested();
        showState();
    });
    connect(keys.sweep, &SwitchButton::statusChanged, model, &PanelModel::setSweeping);
    for (const auto signal : {&PanelModel::sourceChanged, &PanelModel::sourceStateChanged,
                              &PanelModel::sweepingChanged})
        connect(model, signal, this, &SourceKeys::showState);
    showState();
}

void SourceKeys::showState()
{
    m_keys.source->setChoice(int(m_model->source()));
    m_keys.sweep->setStatus(m_model->isSweeping());
    m_keys.sweep->setEnabled(m_model->sourceLimits().measures());
}

} // namespace Panel
