// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "touchstone.h"

#include <QObject>
#include <QStringList>
#include <QThread>

#include <memory>

namespace Panel
{

/// What came of reading some files.
struct ReadFiles {
    struct Refusal {
        QString path; ///< as it was given
        TouchstoneResult result;
    };

    QVector<Network> networks;
    QVector<Refusal> refusals;
};

/// Reads Touchstone files one after the other; progress counts over all of them.
ReadFiles readFiles(const QStringList &paths, const ReadProgress &progress = {});

/*! Reads Touchstone files in a thread of its own, so that the panel goes on meanwhile.

    \code
    FileLoader loader;
    connect(&loader, &FileLoader::finished, this, [this](const ReadFiles &files) { ... });
    loader.load({path});
    \endcode */
class FileLoader : public QObject
{
    Q_OBJECT

public:
    explicit FileLoader(QObject *parent = nullptr);
    ~FileLoader() override;

    /// Reads these files from now on; what was being read before is cancelled.
    void load(const QStringList &paths);
    /// Nothing more is told of what was being read.
    void cancel();
    bool isLoading() const { return m_job != nullptr; }

Q_SIGNALS:
    void progressed(int percent);
    /// All files have been read or refused.
    void finished(const Panel::ReadFiles &files);

private:
    struct Job;

    void work(const std::shared_ptr<Job> &job);

    QThread m_thread;
    QObject *m_worker; ///< lives in the thread, and is deleted as it ends
    std::shared_ptr<Job> m_job; ///< null while nothing is read
};

} // namespace Panel
