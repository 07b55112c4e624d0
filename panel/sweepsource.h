// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "simulateddevice.h"

#include <QObject>
#include <QThread>
#include <QTimer>

#include <memory>

namespace Panel
{

/*! Sweeps a simulated device over and over, and hands its measurements out at the rate of a
    display.

    The next frame is computed in a thread of its own while the present one is shown, so the
   interface waits for neither; a sweep of very many points comes less often.

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

    explicit SweepSource(QObject *parent = nullptr);
    ~SweepSource() override;

    /// Sweeps this device from now on. Frames of what ran before do not come any more.
    void start(SimulatedDevice::Kind kind, const Sweep &sweep);
    void stop();
    bool isRunning() const { return m_job != nullptr; }

    /// Stays with the last frame while held; a start while held gives one frame.
    void setHeld(bool held);
    bool isHeld() const { return m_held; }

Q_SIGNALS:
    void swept(const Panel::Network &frame);

private:
    struct Job;

    void requestFrame();
    void deliver();

    QThread m_thread;
    QObject *m_worker; ///< lives in the thread, and is deleted as it ends
    QTimer m_timer;
    std::shared_ptr<Job> m_job; ///< null while stopped
    std::unique_ptr<Network> m_frame; ///< computed and not yet handed out
    quint64 m_frameNumber = 0;
    bool m_held = false;
};

} // namespace Panel
