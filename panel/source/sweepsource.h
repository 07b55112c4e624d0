// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "progressivesweep.h"

#include <QElapsedTimer>
#include <QObject>
#include <QThread>
#include <QTimer>

#include <memory>

namespace Panel
{

/*! Sweeps a simulated device over and over, and hands its measurements out at the rate of a
    display.

    A point takes as long as with an intermediate-frequency bandwidth of 100 kHz. So a frame has a
    whole sweep of up to 1601 points; of a longer one it has the points measured so far, and the
    former sweep beyond them. Frames are computed in a thread of their own, so that the interface
    waits for none.

    \code
    SweepSource source;
    connect(&source, &SweepSource::swept, this, [this](const Network &frame) { ... });
    source.start(SimulatedDevice::Antenna, sweep);
    \endcode */
class SweepSource : public QObject
{
    Q_OBJECT

public:
    /// Time between two frames in milliseconds, at the least.
    static constexpr int frameInterval = 16;
    /// Time that a point takes to measure, in microseconds.
    static constexpr int pointMicroseconds = 10;
    /// Points that a frame has in any case.
    static constexpr int leastPoints = 1601;

    explicit SweepSource(QObject *parent = nullptr);
    ~SweepSource() override;

    /// Sweeps this device from now on. Frames of what ran before do not come any more.
    void start(SimulatedDevice::Kind kind, const Sweep &sweep);
    void stop();
    bool isRunning() const { return m_job != nullptr; }

    /// Stays with the last frame while held, in the middle of a sweep too; a start while held gives
    /// one frame.
    void setHeld(bool held);
    bool isHeld() const { return m_held; }

    /// What the antenna is tuned to, in Hz. A sweep in progress begins anew.
    double tuning() const { return m_tuning; }
    void setTuning(double tuning);

Q_SIGNALS:
    /// Points have been measured; at a progress of 1 the sweep is complete.
    void swept(const Panel::Network &frame, double progress);

private:
    struct Job;
    struct Frame {
        Network network;
        double progress;
    };

    void requestFrame();
    void deliver();

    QThread m_thread;
    QObject *m_worker; ///< lives in the thread, and is deleted as it ends
    QTimer m_timer;
    QElapsedTimer m_clock; ///< since the last frame was asked for
    std::shared_ptr<Job> m_job; ///< null while stopped
    std::unique_ptr<Frame> m_frame; ///< computed and not yet handed out
    double m_tuning = SimulatedDevice::usualTuning;
    bool m_first = false; ///< nothing has been handed out since the start
    bool m_held = false;
};

} // namespace Panel
