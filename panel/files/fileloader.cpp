// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fileloader.h"

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

FileLoader::FileLoader(QObject *parent)
    : QObject(parent)
    , m_worker(QStringLiteral("files"))
{
}

void FileLoader::load(const QStringList &paths)
{
    m_worker.begin();
    m_worker.post([this, paths](const Worker::Job &job) {
        int told = -1;
        const ReadFiles files = readFiles(paths, [&](int percent) {
            if (percent != told) {
                told = percent;
                job.tell([this, percent] { Q_EMIT progressed(percent); });
            }
            return !job.isCancelled();
        });
        job.tell([this, files] {
            m_worker.cancel();
            Q_EMIT finished(files);
        });
    });
}

} // namespace Panel
