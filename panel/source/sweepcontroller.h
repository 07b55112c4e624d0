// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sweepsource.h"
#include <panel/model/stimulus.h>

namespace Panel
{

class PanelModel;
class PanelWindow;

/*! Feeds the model with the sweeps of a simulated device, and answers the keys that choose the
    device, the points and whether to sweep.

    Files opened meanwhile end the simulation; files shown before it are kept and come back when
   they are picked as the source. */
class SweepController : public QObject
{
    Q_OBJECT

public:
    SweepController(PanelModel *model, PanelWindow *window, QObject *parent = nullptr);

    bool isSimulating() const { return m_source.isRunning(); }
    /// Sweeps a device from now on, over its usual frequencies and with the points of the model.
    void simulate(SimulatedDevice::Kind kind);
    /// Shows the files that were on show before the simulation, or asks for one.
    void showFiles();

    /// What the simulated antenna is tuned to, in Hz; a value outside the limits moves to the
    /// limit.
    double tuning() const { return m_source.tuning(); }
    void setTuning(double hertz);
    static Stimulus tuningLimits()
    {
        return {SimulatedDevice::lowestTuning, SimulatedDevice::highestTuning};
    }
    /// Whether the device that is swept can be tuned.
    bool isTunable() const { return isSimulating() && m_kind == SimulatedDevice::Antenna; }

Q_SIGNALS:
    void tuningChanged();
    /// The sweep has got so far; the model has its points.
    void progressed(double progress);
    void sweepCompleted();
    /// The user wants a file, and none is at hand.
    void fileRequested();

private:
    void connectKeys();
    void restart();
    void onSwept(const Network &frame, double progress);
    void show(const Network &frame);
    void onNetworksChanged();
    void showState();

    PanelModel *m_model;
    PanelWindow *m_window;
    SweepSource m_source;
    SimulatedDevice::Kind m_kind = SimulatedDevice::Filter;
    QVector<Network> m_files;
    /// The next frame is the first of another device.
    bool m_newDevice = false;
    bool m_handingOver = false;
};

} // namespace Panel
