// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sweepsource.h"

#include <atomic>

namespace Panel
{

namespace
{

/// Points computed between two looks at whether they are still wanted.
constexpr int s_portion = 4096;

} // namespace

/// A device on its way through the thread. The thread alone touches the device.
struct SweepSource::Job {
    Job(SimulatedDevice::Kind ofKind, const Sweep &over)
        : kind(ofKind)
        , sweep(over)
    {
    }

    const SimulatedDevice::Kind kind;
    const Sweep sweep;
    std::unique_ptr<SimulatedDevice> device;
    std::atomic_bool cancelled{false};
};

SweepSource::SweepSource(QObject *parent)
    : QObject(parent)
    , m_worker(new QObject)
{
    m_worker->moveToThread(&m_thread);
    connect(&m_thread, &QThread::finished, m_worker, &QObject::deleteLater);
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.setInterval(frameInterval);
    connect(&m_timer, &QTimer::timeout, this, &SweepSource::deliver);
    m_thread.setObjectName(QStringLiteral("sweep"));
    m_thread.start();
}

SweepSource::~SweepSource()
{
    stop();
    m_thread.quit();
    m_thread.wait();
}

void SweepSource::start(SimulatedDevice::Kind kind, const Sweep &sweep)
{
    stop();
    m_job = std::make_shared<Job>(kind, sweep);
    m_frameNumber = 0;
    requestFrame();
    m_timer.start();
}

void SweepSource::stop()
{
    m_timer.stop();
    m_frame.reset();
    if (m_job)
        m_job->cancelled = true;
    m_job.reset();
}

void SweepSource::setHeld(bool held)
{
    m_held = held;
}

void SweepSource::requestFrame()
{
    const auto work = [this, job = m_job, number = m_frameNumber++] {
        if (!job->device)
            job->device = std::make_unique<SimulatedDevice>(job->kind, job->sweep);
        while (!job->cancelled && !job->device->isPrepared())
            job->device->prepare(s_portion);
        if (job->cancelled)
            return;
        const auto receive = [this, job, frame = job->device->frame(number)] {
            if (job == m_job)
                m_frame = std::make_unique<Network>(frame);
        };
        QMetaObject::invokeMethod(this, receive, Qt::QueuedConnection);
    };
    QMetaObject::invokeMethod(m_worker, work, Qt::QueuedConnection);
}

void SweepSource::deliver()
{
    // Of a device just started, one frame is shown in any case.
    const bool first = m_frameNumber == 1;
    if (!m_frame || (m_held && !first))
        return;
    const Network frame = std::move(*m_frame);
    m_frame.reset();
    requestFrame();
    Q_EMIT swept(frame);
}

} // namespace Panel
