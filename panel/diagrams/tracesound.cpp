// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tracesound.h"

#include "diagrams.h"

#include <smithchart/tracetone.h>

#include <utility>

namespace Panel
{

TraceSound::TraceSound(PanelModel *model, Diagrams *diagrams, QObject *parent)
    : QObject(parent)
    , m_model(model)
    , m_diagrams(diagrams)
{
    connect(diagrams, &Diagrams::pointed, this, &TraceSound::playPoint);
    connect(model->preferences(), &Preferences::changed, this, &TraceSound::follow);
    follow();
}

TraceSound::~TraceSound() = default;

bool TraceSound::isAvailable()
{
    if (m_makeOutput && !std::exchange(m_asked, true))
        m_output = m_makeOutput();
    return m_output != nullptr;
}

void TraceSound::toggleTrace()
{
    const Trace *trace = m_model->activeTrace();
    if (!trace || !isAvailable())
        return;
    if (m_output->isPlaying()) {
        m_output->stop();
        return;
    }
    const Parameter data = m_model->traceData(*trace).parameter;
    m_output->play(SmithChart::traceSamples(data.real, data.imag, traceTime, SoundOutput::rate));
}

void TraceSound::follow()
{
    m_diagrams->setTellsPointer(m_model->preferences()->soundFollows());
}

void TraceSound::playPoint(int trace, double index)
{
    const Trace *found = m_model->trace(trace);
    const bool isNew = trace != m_trace || index != m_index;
    if (!found || !isNew || !m_model->preferences()->soundFollows() || !isAvailable())
        return;
    m_trace = trace;
    m_index = index;
    m_output->play(SmithChart::toneSamples(SmithChart::toneOf(m_model->traceData(*found).at(index)),
                                           pointTime, SoundOutput::rate));
}

} // namespace Panel
