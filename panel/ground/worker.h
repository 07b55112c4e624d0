// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QThread>

#include <atomic>
#include <functional>
#include <memory>

namespace Panel
{

/*! A thread with one job at a time: steps of it run there in the order they were posted, and what
    they tell arrives in the thread that the worker lives in, as long as the job is the present one.

    \code
    Worker worker(QStringLiteral("files"));
    worker.begin(); // what ran before is cancelled and tells nothing any more
    worker.post([this](const Worker::Job &job) {
        const auto result = compute([&job] { return job.isCancelled(); });
        job.tell([this, result] { show(result); });
    });
    \endcode */
class Worker
{
public:
    /// The job as one of its steps sees it.
    class Job
    {
    public:
        /// Whether nobody wants the result any more.
        bool isCancelled() const { return m_state->cancelled; }
        /// Calls in the worker's own thread, unless the job has been cancelled by then.
        void tell(const std::function<void()> &message) const;

    private:
        friend class Worker;
        struct State {
            QObject *receiver = nullptr; ///< outlives the thread
            std::atomic_bool cancelled{false};
        };
        explicit Job(std::shared_ptr<State> state)
            : m_state(std::move(state))
        {
        }
        std::shared_ptr<State> m_state;
    };

    /// The name is the thread's, for debuggers.
    explicit Worker(const QString &name);
    /// Cancels the job and waits for the step that is running.
    ~Worker();

    /// Starts a job without steps; the one before is cancelled.
    void begin();
    /// Runs a step of the present job in the thread; nothing happens without a job.
    void post(const std::function<void(const Job &)> &step);
    /// The job's steps that have not begun are left out.
    void cancel();
    /// Whether a job was begun and not cancelled.
    bool isBusy() const { return m_job != nullptr; }

private:
    Q_DISABLE_COPY(Worker)

    QObject m_receiver;
    QThread m_thread;
    QObject *m_inThread; ///< lives in the thread, and is deleted as it ends
    std::shared_ptr<Job::State> m_job; ///< null between jobs
};

} // namespace Panel
