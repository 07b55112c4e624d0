// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sweepsource.h"

#include <QPointer>

#include <algorithm>

namespace Panel
{

namespace
{

/// A frame that comes late has more points, but never so many that it takes long itself.
constexpr qint64 s_maximumPoints = qint64(10) * SweepSource::minimumPoints;

} // namespace

SweepSource::SweepSource(QObject *parent)
    : MeasurementSource(parent)
    , m_worker(QStringLiteral("sweep"))
{
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.setInterval(frameInterval);
    connect(&m_timer, &QTimer::timeout, this, &SweepSource::deliver);
}

void SweepSource::start(const MeasurementSettings &settings)
{
    start(m_device, settings.sweep, settings.tuning, settings.acquisition.averages);
}

void SweepSource::start(Source source, const Sweep &sweep, double tuning, int averages)
{
    stop();
    m_device = source;
    m_settings = {sweep, {}, tuning};
    m_settings.acquisition.averages = averages;
    ++m_start;
    m_worker.begin();
    m_measurement = std::make_shared<std::unique_ptr<ProgressiveSweep>>();
    m_worker.post(
        [measurement = m_measurement, source, sweep, tuning, averages](const Worker::Job &) {
            *measurement = std::make_unique<ProgressiveSweep>(source, sweep, tuning);
            (*measurement)->setAverages(averages);
        });
    m_first = true;
    m_once = false;
    m_clock.start();
    requestFrame();
    m_timer.start();
}

void SweepSource::stop()
{
    m_timer.stop();
    m_frame.reset();
    m_worker.cancel();
    m_measurement.reset();
}

void SweepSource::setHeld(bool held)
{
    // The time of rest is no time of the sweep.
    m_clock.start();
    m_held = held;
}

void SweepSource::measureOnce()
{
    m_clock.start();
    m_once = true;
}

SourceState SweepSource::state() const
{
    SourceState state;
    state.phase = isRunning() ? SourceState::Ready : SourceState::Idle;
    return state;
}

void SweepSource::setSettings(const MeasurementSettings &settings)
{
    if (settings.sweep != m_settings.sweep) {
        start(settings);
        return;
    }
    const bool tuned = settings.tuning != m_settings.tuning;
    const bool averaged = settings.acquisition.averages != m_settings.acquisition.averages;
    m_settings = settings;
    if (!tuned && !averaged)
        return;
    m_worker.post([measurement = m_measurement, settings, tuned, averaged](const Worker::Job &) {
        if (tuned)
            (*measurement)->setTuning(settings.tuning);
        if (averaged)
            (*measurement)->setAverages(settings.acquisition.averages);
    });
}

void SweepSource::requestFrame()
{
    const qint64 due = 1000 * m_clock.restart() / pointMicroseconds;
    const int points = int(std::clamp<qint64>(due, minimumPoints, s_maximumPoints));
    m_worker.post([this, measurement = m_measurement, points](const Worker::Job &job) {
        ProgressiveSweep &sweep = **measurement;
        sweep.advance(points);
        const Frame frame{sweep.frame(), sweep.progress()};
        job.tell([this, frame] { m_frame = std::make_unique<Frame>(frame); });
    });
}

void SweepSource::deliver()
{
    // Of a device just started, one frame is shown in any case.
    if (!m_frame || (m_held && !m_first && !m_once))
        return;
    m_first = false;
    const bool complete = m_frame->progress >= 1.0;
    m_once = m_once && !complete;
    const QPointer<SweepSource> alive(this);
    const quint64 start = m_start;
    {
        const auto frame = std::move(m_frame);
        Q_EMIT swept(frame->network, frame->progress, complete ? 1 : 0);
    }
    // Asked for only now that the receiver has let go of the frame before, which is written to.
    if (alive && start == m_start && isRunning())
        requestFrame();
}

} // namespace Panel
