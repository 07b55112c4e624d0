// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fileloader.h"

#include <atomic>

namespace Panel
{

ReadFiles readFiles(const QStringList &paths, const ReadProgress &progress)
{
    ReadFiles files;
    for (int i = 0; i < paths.size(); ++i) {
        const auto overAll = [&progress, i, count = int(paths.size())](int percent) {
            return !progress || progress((100 * i + percent) / count);
        };
        const TouchstoneResult result = readTouchstone(paths.at(i), overAll);
        if (result.ok())
            files.networks.append(result.network);
        else
            files.refusals.append({paths.at(i), result});
        if (!overAll(100))
            break;
    }
    return files;
}

/// Files on their way through the thread.
struct FileLoader::Job {
    explicit Job(const QStringList &ofPaths)
        : paths(ofPaths)
    {
    }

    const QStringList paths;
    std::atomic_bool cancelled{false};
};

FileLoader::FileLoader(QObject *parent)
    : QObject(parent)
    , m_worker(new QObject)
{
    m_worker->moveToThread(&m_thread);
    connect(&m_thread, &QThread::finished, m_worker, &QObject::deleteLater);
    m_thread.setObjectName(QStringLiteral("files"));
    m_thread.start();
}

FileLoader::~FileLoader()
{
    cancel();
    m_thread.quit();
    m_thread.wait();
}

void FileLoader::load(const QStringList &paths)
{
    cancel();
    m_job = std::make_shared<Job>(paths);
    QMetaObject::invokeMethod(
        m_worker, [this, job = m_job] { work(job); }, Qt::QueuedConnection);
}

void FileLoader::cancel()
{
    if (m_job)
        m_job->cancelled = true;
    m_job.reset();
}

void FileLoader::work(const std::shared_ptr<Job> &job)
{
    // Runs in the thread: what it finds goes back as a message, and counts if still asked for.
    const auto tell = [this, &job](auto message) {
        const auto receive = [this, job, message] {
            if (job == m_job)
                message();
        };
        QMetaObject::invokeMethod(this, receive, Qt::QueuedConnection);
    };
    int told = -1;
    const ReadFiles files = readFiles(job->paths, [&](int percent) {
        if (percent != told) {
            told = percent;
            tell([this, percent] { Q_EMIT progressed(percent); });
        }
        return !job->cancelled;
    });
    tell([this, files] {
        m_job.reset();
        Q_EMIT finished(files);
    });
}

} // namespace Panel
