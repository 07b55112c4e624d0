// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QFileSystemWatcher>
#include <QMap>
#include <QTimer>

namespace Panel
{

/*! Tells when files change on disk or vanish.

    Changes are told once they have come to rest, so that a file that is being written, or replaced
    by another of its name, counts once. Files of the program's resources never change.

    \code
    FileWatch watch;
    connect(&watch, &FileWatch::changed, this, [](const QString &path) { ... });
    watch.setPaths({path});
    \endcode */
class FileWatch : public QObject
{
    Q_OBJECT

public:
    /// How long a file must have been left alone, in milliseconds.
    static constexpr int restInterval = 300;

    explicit FileWatch(QObject *parent = nullptr);

    /// Watches these files and no others. For one that is watched already, changes not yet told
    /// still are.
    void setPaths(const QStringList &paths);
    QStringList paths() const { return m_files.keys(); }

Q_SIGNALS:
    /// The file has other content, or is back.
    void changed(const QString &path);
    void vanished(const QString &path);

private:
    /// What tells two states of a file apart.
    struct State {
        QDateTime modified; ///< invalid where there is no file
        qint64 size = -1;

        bool operator==(const State &other) const
        {
            return modified == other.modified && size == other.size;
        }
    };
    struct File {
        State told;
        State seen;
    };

    static State stateOf(const QString &path);
    void look();
    void tell();
    void watchAgain();

    QFileSystemWatcher m_watcher;
    QTimer m_rest;
    QMap<QString, File> m_files;
};

} // namespace Panel
