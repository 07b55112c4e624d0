// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sweepcontroller.h"

#include "panelmodel.h"
#include "panelwindow.h"
#include "smithview.h"
#include "softkey.h"
#include "sweepkeys.h"
#include "timingline.h"

#include <QScopedValueRollback>
#include <QShortcut>

#include <algorithm>

namespace Panel
{

namespace
{

/// The choices of the points key.
constexpr int s_points[] = {1001, 100001, 1000001};

} // namespace

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
    const SweepKeys *keys = m_window->sweepKeys();
    using Device = SimulatedDevice;
    keys->sourceKey()->setChoices({tr("File"), Device::name(Device::Antenna),
                                   Device::name(Device::Filter), Device::name(Device::Cable)});
    connect(keys->sourceKey(), &SoftKey::choicePicked, this, [this](int index) {
        if (index == 0)
            showFiles();
        else
            simulate(Device::Kind(index - 1));
    });
    keys->pointsKey()->setChoices({tr("1 k"), tr("100 k"), tr("1 M")});
    connect(keys->pointsKey(), &SoftKey::choicePicked, this, [this](int index) {
        Sweep sweep = m_model->sweep();
        sweep.points = s_points[index];
        m_model->setSweep(sweep);
    });
    connect(keys->sweepKey(), &SoftKey::clicked, this,
            [this] { m_model->setSweeping(!m_model->isSweeping()); });

    const auto toggleTiming = [this] {
        m_window->timingLine()->setVisible(m_window->timingLine()->isHidden());
        showState();
    };
    connect(keys->timingKey(), &SoftKey::clicked, this, toggleTiming);
    connect(new QShortcut(Qt::Key_F3, m_window), &QShortcut::activated, this, toggleTiming);
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
    m_window->smithView()->resetView();
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
    m_window->smithView()->resetView();
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
    const SweepKeys *keys = m_window->sweepKeys();
    keys->sourceKey()->setChoice(isSimulating() ? m_kind + 1 : 0);
    const int points = m_model->sweep().points;
    const auto *found = std::find(std::begin(s_points), std::end(s_points), points);
    if (found != std::end(s_points)) {
        keys->pointsKey()->setChoice(int(found - s_points));
    } else {
        keys->pointsKey()->setChoice(-1);
        keys->pointsKey()->setValue(QString::number(points));
    }
    keys->sweepKey()->setValue(m_model->isSweeping() ? tr("On") : tr("Off"));
    keys->timingKey()->setValue(m_window->timingLine()->isHidden() ? tr("Hidden") : tr("Shown"));
    for (SoftKey *key : {keys->pointsKey(), keys->sweepKey()})
        key->setEnabled(isSimulating());
}

} // namespace Panel
