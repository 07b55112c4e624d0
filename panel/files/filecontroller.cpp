// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "filecontroller.h"

#include "arrangement.h"
#include "filenotes.h"
#include "samples.h"

#include <panel/model/panelmodel.h>

#include <QDir>
#include <QFileInfo>

#include <cstdio>

namespace Panel
{

namespace
{

/// What reads faster than this many milliseconds needs no progress bar.
constexpr int s_patience = 400;
/// More sentences than this would cover the diagrams.
constexpr int s_maximumSentences = 4;

QString fileName(const QString &path)
{
    return QFileInfo(path).fileName();
}

QStringList absolute(const QStringList &paths)
{
    QStringList result;
    for (const QString &path : paths)
        result << QFileInfo(path).absoluteFilePath();
    return result;
}

QStringList pathsOf(const QVector<Network> &networks)
{
    QStringList paths;
    for (const Network &network : networks)
        paths << network.path;
    return paths;
}

} // namespace

FileController::FileController(PanelModel *model, QObject *parent)
    : QObject(parent)
    , m_model(model)
    , m_folder(QDir::currentPath())
{
    m_patience.setSingleShot(true);
    m_patience.setInterval(s_patience);
    connect(&m_patience, &QTimer::timeout, this,
            [this] { Q_EMIT progressed(m_reading, m_percent); });
    connect(&m_loader, &FileLoader::progressed, this, [this](int percent) {
        m_percent = percent;
        if (!m_patience.isActive())
            Q_EMIT progressed(m_reading, m_percent);
    });
    connect(&m_loader, &FileLoader::finished, this, &FileController::onFinished);
    connect(&m_watch, &FileWatch::changed, this, &FileController::onChanged);
    connect(&m_watch, &FileWatch::vanished, this, &FileController::onVanished);
    connect(m_model, &PanelModel::networksChanged, this, &FileController::followNetworks);
}

bool FileController::openFiles(const QStringList &paths)
{
    m_loader.cancel();
    m_patience.stop();
    startReading(paths);
    const ReadFiles files = readFiles(paths);
    open(files, Open);
    return files.refusals.isEmpty();
}

void FileController::loadFiles(const QStringList &paths)
{
    load(paths, Open);
}

void FileController::addFiles(const QStringList &paths)
{
    QStringList all = pathsOf(m_model->files());
    all.removeAll(QString());
    for (const QString &path : paths) {
        if (!all.contains(path))
            all << path;
    }
    load(all, Open);
}

void FileController::loadFilesAfresh(const QStringList &paths)
{
    load(paths, OpenAfresh);
}

void FileController::reloadFiles(const QStringList &paths)
{
    load(paths, Reload);
}

void FileController::startReading(const QStringList &paths)
{
    // Watched from here on, so that what changes while it is read is noticed.
    m_watch.setPaths(pathsOf(m_model->files()) + absolute(paths));
    for (const QString &path : absolute(paths)) {
        m_changed.remove(path);
        m_gone.remove(path);
    }
}

void FileController::load(const QStringList &paths, Purpose purpose)
{
    if (paths.isEmpty())
        return;
    startReading(paths);
    m_purpose = purpose;
    m_percent = 0;
    m_reading = paths.size() == 1 ? tr("Reading %1").arg(fileName(paths.first()))
                                  : tr("Reading %n files", nullptr, int(paths.size()));
    m_patience.start();
    m_loader.load(paths);
}

void FileController::cancel()
{
    m_loader.cancel();
    m_patience.stop();
    m_watch.setPaths(pathsOf(m_model->files()));
    // What was to be read again has still changed.
    showDiskState();
}

void FileController::onFinished(const ReadFiles &files)
{
    m_patience.stop();
    if (m_purpose == Reload)
        update(files);
    else
        open(files, m_purpose);
}

void FileController::open(const ReadFiles &files, Purpose purpose)
{
    QString note;
    if (!files.networks.isEmpty()) {
        m_folder = QFileInfo(files.networks.last().path).absolutePath();
        if (purpose == Open)
            note = missingNote(openArranged(m_model, files.networks), files.networks);
        else
            m_model->openNetworks(files.networks);
    }
    report(files, note);
}

void FileController::update(const ReadFiles &files)
{
    QString note;
    for (const Network &network : files.networks) {
        QVector<Network> all = m_model->files();
        const int index = int(pathsOf(all).indexOf(network.path));
        // A file with other ports than before needs other traces.
        const bool fits = index < 0 || all.at(index).ports == network.ports;
        if (fits || m_model->source() != Source::Files) {
            m_model->updateFile(index, network);
        } else {
            all[index] = network;
            note = missingNote(openArranged(m_model, all), {network});
        }
    }
    report(files, note);
}

void FileController::report(const ReadFiles &files, const QString &note)
{
    m_watch.setPaths(pathsOf(m_model->files()));
    QStringList sentences;
    for (const ReadFiles::Refusal &refusal : files.refusals) {
        sentences << refusal.result.sentence(fileName(refusal.path));
        std::fprintf(stderr, "vnapanel: %s\n",
                     qUtf8Printable(refusal.result.sentence(refusal.path)));
    }
    sentences << fileNotes(files.networks);
    if (!note.isEmpty())
        sentences << note;
    const int more = int(sentences.size()) - s_maximumSentences;
    if (more > 0) {
        sentences = sentences.mid(0, s_maximumSentences);
        sentences.last() += QLatin1Char(' ') + tr("(%n more)", nullptr, more);
    }
    const QString text = sentences.join(QLatin1Char('\n'));
    // What was refused is told until somebody has seen it.
    const bool refused = !files.refusals.isEmpty();
    Q_EMIT reported(refused ? text : QString());
    if (!refused && !text.isEmpty())
        Q_EMIT noted(text);
    showDiskState();
}

/// What is on show may not be what was opened last: a simulation has hidden files that changed
/// meanwhile, or a step back has brought others.
void FileController::followNetworks()
{
    Q_EMIT noted(QString()); // of files before
    if (!m_loader.isLoading()) {
        m_watch.setPaths(pathsOf(m_model->files()));
        for (const Network &file : m_model->files()) {
            const QFileInfo info(file.path);
            if (!file.fileTime.isValid() || isSample(file))
                continue;
            if (!info.exists())
                m_gone.insert(file.path);
            else if (info.lastModified() != file.fileTime)
                m_changed.insert(file.path);
        }
    }
    showDiskState();
}

void FileController::onChanged(const QString &path)
{
    m_gone.remove(path);
    m_changed.insert(path);
    showDiskState();
}

void FileController::onVanished(const QString &path)
{
    m_changed.remove(path);
    m_gone.insert(path);
    showDiskState();
}

/// The paths of the files on show; none while a measurement is.
QStringList FileController::shownPaths() const
{
    return m_model->source() == Source::Files ? pathsOf(m_model->files()) : QStringList();
}

void FileController::showDiskState()
{
    QStringList gone, changed;
    for (const QString &path : shownPaths()) {
        if (m_gone.contains(path))
            gone << path;
        if (m_changed.contains(path))
            changed << path;
    }
    // While files are read there is more to come.
    if (m_loader.isLoading() || (gone.isEmpty() && changed.isEmpty()))
        return;
    QStringList sentences;
    if (gone.size() == 1)
        sentences << tr("%1 is gone; the panel keeps what it read.").arg(fileName(gone.first()));
    else if (!gone.isEmpty())
        sentences << tr("%n files are gone; the panel keeps what it read.", nullptr,
                        int(gone.size()));
    if (changed.size() == 1)
        sentences << tr("%1 has changed on disk.").arg(fileName(changed.first()));
    else if (!changed.isEmpty())
        sentences << tr("%n files have changed on disk.", nullptr, int(changed.size()));
    const QString message = sentences.join(QLatin1Char('\n'));
    if (changed.isEmpty())
        Q_EMIT reported(message);
    else
        Q_EMIT changesFound(message, changed);
}

} // namespace Panel
