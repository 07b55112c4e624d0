// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "filewatch.h"

#include <QFileInfo>
#include <QPointer>

namespace Panel
{

FileWatch::FileWatch(QObject *parent)
    : QObject(parent)
{
    m_rest.setSingleShot(true);
    m_rest.setInterval(restInterval);
    connect(&m_rest, &QTimer::timeout, this, &FileWatch::tell);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &FileWatch::look);
    // A file that is replaced by renaming another is seen in its folder only.
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &FileWatch::look);
}

FileWatch::State FileWatch::stateOf(const QString &path)
{
    const QFileInfo info(path);
    State state;
    if (info.exists()) {
        state.modified = info.lastModified();
        state.size = info.size();
    }
    return state;
}

void FileWatch::setPaths(const QStringList &paths)
{
    QMap<QString, File> files;
    for (const QString &path : paths) {
        if (path.isEmpty() || path.startsWith(QLatin1Char(':')))
            continue;
        const auto known = m_files.constFind(path);
        const State now = stateOf(path);
        files.insert(path, known == m_files.constEnd() ? File{now, now} : *known);
    }
    m_files = files;
    watchAgain();
    // What happened before the watcher knew of a file is found here.
    look();
}

void FileWatch::watchAgain()
{
    QStringList wanted;
    for (const QString &path : m_files.keys()) {
        const QFileInfo info(path);
        if (info.exists())
            wanted << path;
        if (!wanted.contains(info.absolutePath()) && QFileInfo::exists(info.absolutePath()))
            wanted << info.absolutePath();
    }
    const QStringList watched = m_watcher.files() + m_watcher.directories();
    for (const QString &path : watched) {
        if (!wanted.removeOne(path))
            m_watcher.removePath(path);
    }
    if (!wanted.isEmpty())
        m_watcher.addPaths(wanted);
}

void FileWatch::look()
{
    for (auto file = m_files.begin(); file != m_files.end(); ++file) {
        const State now = stateOf(file.key());
        if (now == file->seen)
            continue;
        file->seen = now;
        m_rest.start();
    }
}

void FileWatch::tell()
{
    // A watcher loses a file that was replaced, and sees slow writing late.
    watchAgain();
    look();
    if (m_rest.isActive())
        return;
    const QPointer<FileWatch> alive(this);
    for (const QString &path : paths()) {
        const auto file = m_files.find(path);
        if (file == m_files.end() || file->seen == file->told)
            continue;
        const bool exists = file->seen.modified.isValid();
        file->told = file->seen;
        if (exists)
            Q_EMIT changed(path);
        else
            Q_EMIT vanished(path);
        if (!alive)
            return;
    }
}

} // namespace Panel
