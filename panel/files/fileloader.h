// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <panel/touchstone/touchstone.h>

#include <panel/ground/worker.h>

#include <QStringList>

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

    /// Reads these files from now on; what was being read before is cancelled.
    void load(const QStringList &paths);
    /// Nothing more is told of what was being read.
    void cancel() { m_worker.cancel(); }
    bool isLoading() const { return m_worker.isBusy(); }

Q_SIGNALS:
    void progressed(int percent);
    /// All files have been read or refused.
    void finished(const Panel::ReadFiles &files);

private:
    Worker m_worker;
};

} // namespace Panel
