// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "statekeeper.h"

#include "panelstate.h"

#include <panel/model/panelmodel.h>

#include <controls/thememanager.h>

namespace Panel
{

StateKeeper::StateKeeper(const PanelModel *model, const QString &path, QObject *parent)
    : QObject(parent)
    , m_model(model)
    , m_path(path)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(interval);
    connect(&m_timer, &QTimer::timeout, this, &StateKeeper::write);
    followModel();
}

void StateKeeper::followModel()
{
    const auto changed = [this] { noteChange(); };
    for (const auto signal :
         {&PanelModel::networksChanged, &PanelModel::sourceChanged, &PanelModel::sweepChanged,
          &PanelModel::tuningChanged, &PanelModel::tracesChanged, &PanelModel::activeTraceChanged,
          &PanelModel::selectedMarkerChanged, &PanelModel::markerModeChanged})
        connect(m_model, signal, this, changed);
    for (const auto signal : {&PanelModel::stimulusChanged, &PanelModel::traceScaleChanged,
                              &PanelModel::limitsChanged, &PanelModel::referenceMarkerChanged})
        connect(m_model, signal, this, changed);
    for (const auto signal : {&PanelModel::markerAdded, &PanelModel::markerRemoved})
        connect(m_model, signal, this, changed);
    connect(m_model, &PanelModel::markerTrackingChanged, this, changed);
    // Where sweeps take a marker that tracks something is nothing that the user did.
    connect(m_model, &PanelModel::markerMoved, this, [this] {
        if (!m_model->isTracking())
            noteChange();
    });
    connect(m_model, &PanelModel::traceVisibleChanged, this, changed);
    connect(m_model, &PanelModel::zoomChanged, this, changed);
    connect(m_model->viewSettings(), &ViewSettings::changed, this, changed);
    connect(m_model->preferences(), &Preferences::changed, this, changed);
    connect(Controls::ThemeManager::instance(), &Controls::ThemeManager::themeChanged, this,
            changed);
}

void StateKeeper::noteChange()
{
    if (!m_timer.isActive())
        m_timer.start();
}

bool StateKeeper::save()
{
    if (m_timer.isActive() || m_failed)
        write();
    return !m_failed;
}

void StateKeeper::write()
{
    m_timer.stop();
    const bool failedBefore = m_failed;
    m_failed = !PanelState::save(*m_model, m_path);
    if (m_failed && !failedBefore)
        Q_EMIT failed(m_path);
}

} // namespace Panel
