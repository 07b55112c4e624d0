// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "progressivesweep.h"

#include <panel/ground/worker.h>
#include <panel/model/measurementsource.h>

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
class SweepSource : public MeasurementSource
{
    Q_OBJECT

public:
    /// Time between two frames in milliseconds, at the least.
    static constexpr int frameInterval = 16;
    /// Time that a point takes to measure, in microseconds.
    static constexpr int pointMicroseconds = 10;
    /// Points that a frame has in any case.
    static constexpr int minimumPoints = 1601;

    explicit SweepSource(QObject *parent = nullptr);

    void choose(Source source, const QString &) override { m_device = source; }
    void start(const MeasurementSettings &settings) override;
    /// Sweeps this device, tuned to so many Hz, from now on; averages so many sweeps.
    void start(Source source, const Sweep &sweep, double tuning, int averages = 1);
    void stop() override;
    bool isRunning() const { return m_worker.isBusy(); }

    /// Another sweep is a start; a tuning or averages alone begin the sweep in progress anew.
    void setSettings(const MeasurementSettings &settings) override;
    /// A sweep that is held in the middle goes on where it was.
    void setHeld(bool held) override;
    bool isHeld() const { return m_held; }
    void measureOnce() override;

    SourceLimits limits() const override { return sourceLimits(m_device); }
    SourceState state() const override;

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
    bool m_once = false; ///< a sweep is under way though held
    bool m_held = false;
    Source m_device = Source::Antenna;
    MeasurementSettings m_settings;
};

} // namespace Panel
