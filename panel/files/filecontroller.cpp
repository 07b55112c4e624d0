// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "filecontroller.h"

#include "filenotes.h"
#include <panel/diagrams/diagrams.h>
#include <panel/model/panelmodel.h>
#include <panel/window/filedialog.h>
#include <panel/window/messagebar.h>
#include <panel/window/panelwindow.h>

#include <QDir>
#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>

#include <algorithm>
#include <cstdio>

namespace Panel
{

namespace
{

/// What reads faster than this many milliseconds needs no progress bar.
constexpr int s_patience = 400;
/// More sentences than this would leave no room for the diagrams.
constexpr int s_mostSentences = 4;

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

FileController::FileController(PanelModel *model, PanelWindow *window, QObject *parent)
    : QObject(parent)
    , m_model(model)
    , m_window(window)
    , m_folder(QDir::currentPath())
{
    m_patience.setSingleShot(true);
    m_patience.setInterval(s_patience);
    connect(&m_patience, &QTimer::timeout, this, &FileController::showProgress);
    connect(&m_loader, &FileLoader::progressed, this, [this](int percent) {
        m_percent = percent;
        if (!m_patience.isActive())
            showProgress();
    });
    connect(&m_loader, &FileLoader::finished, this, &FileController::onFinished);
    connect(&m_watch, &FileWatch::changed, this, &FileController::onChanged);
    connect(&m_watch, &FileWatch::vanished, this, &FileController::onVanished);
    // A simulation may have hidden files that changed meanwhile.
    connect(m_model, &PanelModel::networksChanged, this, &FileController::showDiskState);
    m_window->setAcceptDrops(true);
    m_window->installEventFilter(this);
}

bool FileController::openFiles(const QStringList &paths)
{
    m_loader.cancel();
    m_patience.stop();
    startReading(paths);
    const ReadFiles files = readFiles(paths);
    open(files);
    return files.refusals.isEmpty();
}

void FileController::loadFiles(const QStringList &paths)
{
    load(paths, false);
}

void FileController::startReading(const QStringList &paths)
{
    // Watched from here on, so that what changes while it is read is noticed.
    m_watch.setPaths(m_files + absolute(paths));
    for (const QString &path : absolute(paths)) {
        m_changed.remove(path);
        m_gone.remove(path);
    }
}

void FileController::load(const QStringList &paths, bool again)
{
    if (paths.isEmpty())
        return;
    startReading(paths);
    m_again = again;
    m_percent = 0;
    m_reading = paths.size() == 1 ? tr("Reading %1").arg(fileName(paths.first()))
                                  : tr("Reading %n files", nullptr, int(paths.size()));
    m_patience.start();
    m_loader.load(paths);
}

void FileController::showProgress()
{
    m_window->messageBar()->showProgress(m_reading, m_percent, tr("Cancel"), this,
                                         [this] { cancel(); });
}

void FileController::cancel()
{
    m_loader.cancel();
    m_watch.setPaths(m_files);
}

void FileController::onFinished(const ReadFiles &files)
{
    m_patience.stop();
    if (m_again)
        update(files);
    else
        open(files);
}

void FileController::open(const ReadFiles &files)
{
    if (!files.networks.isEmpty()) {
        m_files = pathsOf(files.networks);
        m_folder = QFileInfo(m_files.last()).absolutePath();
        m_window->diagrams()->resetViews();
        m_model->setNetworks(files.networks);
    }
    report(files);
}

void FileController::update(const ReadFiles &files)
{
    QVector<Network> networks = m_model->networks();
    QVector<int> updated;
    bool samePorts = true;
    for (const Network &network : files.networks) {
        for (int i = 0; i < networks.size(); ++i) {
            if (networks.at(i).path != network.path)
                continue;
            samePorts = samePorts && networks.at(i).ports == network.ports;
            networks[i] = network;
            updated.append(i);
        }
        // A simulation took its place; the files that come back after it are the old ones.
        if (!isShown(network.path))
            m_changed.insert(network.path);
    }
    if (!samePorts)
        m_model->setNetworks(networks);
    for (const int i : samePorts ? updated : QVector<int>())
        m_model->updateNetwork(i, networks.at(i));
    report(files);
}

void FileController::report(const ReadFiles &files)
{
    m_watch.setPaths(m_files);
    QStringList sentences;
    for (const ReadFiles::Refusal &refusal : files.refusals) {
        sentences << refusal.result.sentence(fileName(refusal.path));
        std::fprintf(stderr, "vnapanel: %s\n",
                     qUtf8Printable(refusal.result.sentence(refusal.path)));
    }
    sentences << fileNotes(files.networks);
    const int more = int(sentences.size()) - s_mostSentences;
    if (more > 0) {
        sentences = sentences.mid(0, s_mostSentences);
        sentences.last() += QLatin1Char(' ') + tr("(%n more)", nullptr, more);
    }
    m_window->messageBar()->setMessage(sentences.join(QLatin1Char('\n')));
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

bool FileController::isShown(const QString &path) const
{
    return pathsOf(m_model->networks()).contains(path);
}

void FileController::showDiskState()
{
    QStringList gone, changed;
    for (const QString &path : qAsConst(m_files)) {
        if (!isShown(path))
            continue;
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
        m_window->messageBar()->setMessage(message);
    else
        m_window->messageBar()->offer(message, tr("Reload"), this,
                                      [this, changed] { load(changed, true); });
}

void FileController::showFileDialog()
{
    auto *dialog = new FileDialog(m_window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFolder(m_folder);
    const QSize room = m_window->size() - QSize(80, 40);
    dialog->resize(QSize(640, 560).boundedTo(room));
    connect(dialog, &QDialog::accepted, this, [this, dialog] { loadFiles(dialog->pickedFiles()); });
    connect(dialog, &QDialog::finished, this, [this, dialog] { m_folder = dialog->folder(); });
    dialog->open();
}

bool FileController::eventFilter(QObject *watched, QEvent *event)
{
    const bool drags = event->type() == QEvent::DragEnter || event->type() == QEvent::DragMove;
    if (!drags && event->type() != QEvent::Drop)
        return QObject::eventFilter(watched, event);
    auto *drop = static_cast<QDropEvent *>(event);
    if (!drop->mimeData()->hasUrls())
        return false;
    drop->acceptProposedAction();
    if (drags)
        return true;
    QStringList paths;
    for (const QUrl &url : drop->mimeData()->urls()) {
        if (url.isLocalFile())
            paths << url.toLocalFile();
    }
    if (paths.isEmpty())
        m_window->messageBar()->setMessage(tr("Only files of this computer can be opened."));
    load(paths, false);
    return true;
}

} // namespace Panel
