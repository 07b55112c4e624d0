// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "history.h"

#include "viewstate.h"

#include <panel/model/panelmodel.h>

#include <QGuiApplication>
#include <QSet>

#include <algorithm>

namespace Panel
{

bool History::Step::operator==(const Step &other) const
{
    if (view != other.view || opening != other.opening || memories.size() != other.memories.size())
        return false;
    for (auto memory = memories.begin(); memory != memories.end(); ++memory) {
        const auto found = other.memories.constFind(memory.key());
        if (found == other.memories.constEnd() || !sharesData(*memory, *found))
            return false;
    }
    return true;
}

History::History(PanelModel *model, QObject *parent)
    : QObject(parent)
    , m_model(model)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(pause);
    connect(&m_timer, &QTimer::timeout, this, [this] {
        // A finger that rests goes on with its drag.
        if (QGuiApplication::mouseButtons() == Qt::NoButton)
            record();
        else
            m_timer.start();
    });
    followModel();
    m_openings = {shownFiles()};
    m_steps = {shownStep()};
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
    for (const auto signal : {&PanelModel::markerAdded, &PanelModel::markerRemoved})
        connect(m_model, signal, this, note);
    connect(m_model, &PanelModel::markerTrackingChanged, this, note);
    // Where sweeps take a marker that tracks something is nothing that the user did.
    connect(m_model, &PanelModel::markerMoved, this, [this] {
        if (!m_model->isTracking())
            noteChange();
    });
    connect(m_model, &PanelModel::traceVisibleChanged, this, note);
    connect(m_model, &PanelModel::zoomChanged, this, note);
    connect(m_model->viewSettings(), &ViewSettings::changed, this, note);
    connect(m_model, &PanelModel::memoryChanged, this, note);
    connect(m_model, &PanelModel::networksChanged, this, &History::onNetworksChanged);
    connect(m_model, &PanelModel::networkUpdated, this, [this] {
        if (!shownFiles().isEmpty())
            m_openings[m_opening] = shownFiles();
    });
}

QVector<Network> History::shownFiles() const
{
    return m_model->source() == Source::Files ? m_model->networks() : QVector<Network>();
}

/// Files in the place of others are a step; what is shown of another source belongs to it.
void History::onNetworksChanged()
{
    if (m_restoring)
        return;
    const QVector<Network> files = shownFiles();
    if (files.isEmpty() || m_openings.at(m_opening).isEmpty()) {
        m_steps.clear();
        m_openings.clear();
        m_current = 0;
    }
    m_opening = int(m_openings.size());
    m_openings.append(files);
    noteChange();
}

void History::noteChange()
{
    if (m_restoring)
        return;
    m_timer.start();
    Q_EMIT changed();
}

History::Step History::shownStep() const
{
    return {viewState(*m_model), m_model->memories(), m_opening};
}

/// Ends a step.
void History::record()
{
    m_timer.stop();
    const Step step = shownStep();
    if (m_steps.isEmpty()) {
        m_steps = {step};
    } else if (!(step == m_steps.at(m_current))) {
        m_steps.resize(m_current + 1);
        m_steps.append(step);
        m_current = int(m_steps.size()) - 1;
        trim();
    }
    Q_EMIT changed();
}

/// Forgets the oldest steps where there are too many, or their data are too large.
void History::trim()
{
    int previous = m_current;
    while (previous > 0 && m_steps.at(previous).opening == m_opening)
        --previous;
    QSet<int> openings{m_opening, m_steps.at(previous).opening};
    QSet<const double *> memories;
    qint64 numbers = 0;
    int first = m_current;
    for (; first > 0 && m_current - first < longest; --first) {
        const Step &step = m_steps.at(first - 1);
        if (!openings.contains(step.opening)) {
            for (const Network &network : m_openings.at(step.opening))
                numbers += qint64(network.points()) * (1 + 2 * network.parameters.size());
        }
        openings.insert(step.opening);
        for (const TraceData &memory : step.memories) {
            if (!memories.contains(memory.parameter.real.constData()))
                numbers += 2 * qint64(memory.points());
            memories.insert(memory.parameter.real.constData());
        }
        if (numbers > largest)
            break;
    }
    m_steps.remove(0, first);
    m_current -= first;
    for (int i = 0; i < m_openings.size(); ++i) {
        const bool needed = std::any_of(m_steps.constBegin(), m_steps.constEnd(),
                                        [i](const Step &step) { return step.opening == i; });
        if (!needed)
            m_openings[i].clear();
    }
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

void History::goTo(int index)
{
    if (index < 0 || index >= m_steps.size())
        return;
    m_current = index;
    m_restoring = true;
    const Step step = m_steps.at(index);
    if (step.opening != m_opening) {
        m_opening = step.opening;
        m_model->openNetworks(QVector<Network>(m_openings.at(m_opening)));
    }
    restoreViewSettings(m_model->viewSettings(), step.view);
    restoreNetworks(m_model, step.view, &step.memories);
    m_restoring = false;
    Q_EMIT changed();
}

} // namespace Panel
