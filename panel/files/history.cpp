// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "history.h"

#include "viewstate.h"

#include <panel/model/panelmodel.h>

namespace Panel
{

History::History(PanelModel *model, QObject *parent)
    : QObject(parent)
    , m_model(model)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(pause);
    connect(&m_timer, &QTimer::timeout, this, &History::record);
    followModel();
    begin();
}

void History::followModel()
{
    const auto note = [this] { noteChange(); };
    for (const auto signal : {&PanelModel::tracesChanged, &PanelModel::activeTraceChanged,
                              &PanelModel::selectedMarkerChanged, &PanelModel::markerModeChanged})
        connect(m_model, signal, this, note);
    for (const auto signal : {&PanelModel::stimulusChanged, &PanelModel::traceScaleChanged,
                              &PanelModel::limitsChanged, &PanelModel::referenceMarkerChanged})
        connect(m_model, signal, this, note);
    for (const auto signal :
         {&PanelModel::markerAdded, &PanelModel::markerMoved, &PanelModel::markerRemoved})
        connect(m_model, signal, this, note);
    connect(m_model, &PanelModel::traceVisibleChanged, this, note);
    connect(m_model, &PanelModel::zoomChanged, this, note);
    connect(m_model->viewSettings(), &ViewSettings::changed, this, note);
    // What follows from new networks belongs to them.
    connect(m_model, &PanelModel::networksChanged, this, [this] {
        m_states.clear();
        m_current = 0;
        noteChange();
    });
}

void History::noteChange()
{
    if (m_restoring)
        return;
    m_timer.start();
    Q_EMIT changed();
}

void History::begin()
{
    m_states = {viewState(*m_model)};
    m_current = 0;
}

/// Ends a step.
void History::record()
{
    m_timer.stop();
    const QJsonObject state = viewState(*m_model);
    if (m_states.isEmpty()) {
        begin();
    } else if (state != m_states.at(m_current)) {
        m_states.resize(m_current + 1);
        m_states.append(state);
        if (m_states.size() > longest + 1)
            m_states.removeFirst();
        m_current = int(m_states.size()) - 1;
    }
    Q_EMIT changed();
}

void History::undo()
{
    if (m_timer.isActive())
        record();
    goTo(m_current - 1);
}

void History::redo()
{
    if (m_timer.isActive())
        record();
    goTo(m_current + 1);
}

void History::goTo(int step)
{
    if (step < 0 || step >= m_states.size())
        return;
    m_current = step;
    m_restoring = true;
    restoreViewState(m_model, m_states.at(step));
    m_restoring = false;
    Q_EMIT changed();
}

} // namespace Panel
