// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "worker.h"

namespace Panel
{

void Worker::Job::tell(const std::function<void()> &message) const
{
    const auto deliver = [state = m_state, message] {
        if (!state->cancelled)
            message();
    };
    QMetaObject::invokeMethod(m_state->receiver, deliver, Qt::QueuedConnection);
}

Worker::Worker(const QString &name)
    : m_inThread(new QObject)
{
    m_inThread->moveToThread(&m_thread);
    QObject::connect(&m_thread, &QThread::finished, m_inThread, &QObject::deleteLater);
    m_thread.setObjectName(name);
    m_thread.start();
}

Worker::~Worker()
{
    cancel();
    m_thread.quit();
    m_thread.wait();
}

void Worker::begin()
{
    cancel();
    m_job = std::make_shared<Job::State>();
    m_job->receiver = &m_receiver;
}

void Worker::post(const std::function<void(const Job &)> &step)
{
    if (!m_job)
        return;
    const auto run = [job = Job(m_job), step] {
        if (!job.isCancelled())
            step(job);
    };
    QMetaObject::invokeMethod(m_inThread, run, Qt::QueuedConnection);
}

void Worker::cancel()
{
    if (m_job)
        m_job->cancelled = true;
    m_job.reset();
}

} // namespace Panel
