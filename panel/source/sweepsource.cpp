// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sweepsource.h"

#include <QPointer>

#include <atomic>

namespace Panel
{

namespace
{

/// A frame that comes late has more points, but never so many that it takes long itself.
constexpr qint64 s_mostPoints = qint64(10) * SweepSource::leastPoints;

} // namespace

/// A device on its way through the thread. The thread alone touches the measurement.
struct SweepSource::Job {
    std::unique_ptr<ProgressiveSweep> measurement;
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
    m_job = std::make_shared<Job>();
    const auto work = [job = m_job, kind, sweep, tuning = m_tuning] {
        if (!job->cancelled)
            job->measurement = std::make_unique<ProgressiveSweep>(kind, sweep, tuning);
    };
    QMetaObject::invokeMethod(m_worker, work, Qt::QueuedConnection);
    m_first = true;
    m_clock.start();
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
    // The time of rest is no time of the sweep.
    m_clock.start();
    m_held = held;
}

void SweepSource::setTuning(double tuning)
{
    m_tuning = qBound(SimulatedDevice::lowestTuning, tuning, SimulatedDevice::highestTuning);
    if (!m_job)
        return;
    const auto work = [job = m_job, tuning = m_tuning] {
        if (!job->cancelled)
            job->measurement->setTuning(tuning);
    };
    QMetaObject::invokeMethod(m_worker, work, Qt::QueuedConnection);
}

void SweepSource::requestFrame()
{
    const qint64 due = 1000 * m_clock.restart() / pointMicroseconds;
    const int points = int(qBound<qint64>(leastPoints, due, s_mostPoints));
    const auto work = [this, job = m_job, points] {
        if (job->cancelled)
            return;
        job->measurement->advance(points);
        const Frame frame{job->measurement->frame(), job->measurement->progress()};
        const auto receive = [this, job, frame] {
            if (job == m_job)
                m_frame = std::make_unique<Frame>(frame);
        };
        QMetaObject::invokeMethod(this, receive, Qt::QueuedConnection);
    };
    QMetaObject::invokeMethod(m_worker, work, Qt::QueuedConnection);
}

void SweepSource::deliver()
{
    // Of a device just started, one frame is shown in any case.
    if (!m_frame || (m_held && !m_first))
        return;
    m_first = false;
    const QPointer<SweepSource> alive(this);
    const auto job = m_job;
    {
        const auto frame = std::move(m_frame);
        Q_EMIT swept(frame->network, frame->progress);
    }
    // Asked for only now that the receiver has let go of the frame before, which is written to.
    if (alive && job == m_job)
        requestFrame();
}

} // namespace Panel
