// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "progressivesweep.h"

#include <panel/ground/worker.h>

#include <QElapsedTimer>
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
    source.start(Source::Antenna, sweep, defaultTuning);
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
    static constexpr int fewestPoints = 1601;

    explicit SweepSource(QObject *parent = nullptr);

    /// Sweeps this device, tuned to so many Hz, from now on. Frames of what ran before do not come
    /// any more.
    void start(Source source, const Sweep &sweep, double tuning);
    void stop();
    bool isRunning() const { return m_worker.isBusy(); }

    /// Stays with the last frame while held, in the middle of a sweep too; a start while held gives
    /// one frame.
    void setHeld(bool held);
    bool isHeld() const { return m_held; }

    /// Tunes the antenna to so many Hz; a sweep in progress begins anew.
    void setTuning(double tuning);

Q_SIGNALS:
    /// Points have been measured; at a progress of 1 the sweep is complete.
    void swept(const Panel::Network &frame, double progress);

private:
    struct Frame {
        Network network;
        double progress;
    };

    void requestFrame();
    void deliver();

    Worker m_worker;
    QTimer m_timer;
    QElapsedTimer m_clock; ///< since the last frame was asked for
    /// Of the present job; the thread alone touches it once it runs.
    std::shared_ptr<std::unique_ptr<ProgressiveSweep>> m_measurement;
    std::unique_ptr<Frame> m_frame; ///< computed and not yet handed out
    quint64 m_start = 0; ///< counts the starts
    bool m_first = false; ///< nothing has been handed out since the start
    bool m_held = false;
};

} // namespace Panel
