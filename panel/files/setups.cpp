// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "setups.h"

#include "filecontroller.h"
#include "filename.h"
#include "panelstate.h"
#include "viewstate.h"

#include <panel/ground/languages.h>
#include <panel/model/panelmodel.h>

#include <QCollator>
#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace Panel
{

namespace
{

constexpr char s_suffix[] = ".json";

QString fileNameOf(const QString &name)
{
    return toFileName(name, Setups::longestName);
}

} // namespace

QString Setups::defaultFolder()
{
    return folderBeside(PanelState::defaultPath());
}

QString Setups::folderBeside(const QString &stateFile)
{
    return QFileInfo(stateFile).absolutePath() + QStringLiteral("/setups");
}

Setups::Setups(PanelModel *model, FileController *files, const QString &folder, QObject *parent)
    : QObject(parent)
    , m_model(model)
    , m_files(files)
    , m_folder(folder)
{
}

QString Setups::path(const QString &name) const
{
    return QDir(m_folder).filePath(fileNameOf(name) + QLatin1String(s_suffix));
}

QStringList Setups::names() const
{
    QStringList names;
    const QStringList files = QDir(m_folder).entryList(
        {QStringLiteral("*%1").arg(QLatin1String(s_suffix))}, QDir::Files | QDir::Readable);
    for (const QString &file : files)
        names << file.chopped(int(sizeof(s_suffix)) - 1);
    // That of the system may be the plain one, which knows no numbers.
    QCollator order{QLocale(currentLanguage())};
    order.setNumericMode(true);
    std::sort(names.begin(), names.end(), order);
    return names;
}

QString Setups::freeName() const
{
    for (int number = 1;; ++number) {
        QString name = tr("Set-up %1").arg(number);
        if (!exists(name))
            return name;
    }
}

bool Setups::exists(const QString &name) const
{
    return QFileInfo::exists(path(name));
}

QString Setups::save(const QString &name)
{
    if (fileNameOf(name).isEmpty())
        return tr("A set-up needs a name.");
    if (!PanelState::save(*m_model, path(name)))
        return tr("The set-up cannot be written to %1.").arg(QDir::toNativeSeparators(m_folder));
    Q_EMIT namesChanged();
    Q_EMIT told(tr("Saved the set-up %1").arg(fileNameOf(name)));
    return QString();
}

bool Setups::remove(const QString &name)
{
    if (QFile::remove(path(name))) {
        Q_EMIT namesChanged();
        return true;
    }
    Q_EMIT failed(tr("The set-up %1 cannot be removed.").arg(name));
    return false;
}

void Setups::recall(const QString &name)
{
    if (!exists(name)) {
        Q_EMIT failed(tr("There is no set-up %1.").arg(name));
        return;
    }
    const PanelState state(path(name));
    if (state.fault() != PanelState::NoFault) {
        Q_EMIT failed(state.fault() == PanelState::OtherVersion
                          ? tr("The set-up %1 is of another version and not used.").arg(name)
                          : tr("The set-up %1 is damaged and not used.").arg(name));
        return;
    }
    const auto restore = [this, state, name] {
        state.restore(m_model);
        Q_EMIT told(tr("Recalled %1").arg(name));
    };
    QStringList shown;
    for (const Network &network : m_model->files())
        shown << network.path;
    if (state.files().isEmpty() || state.files() == shown) {
        restore();
        return;
    }
    for (const QString &file : state.files()) {
        if (!QFileInfo(file).isReadable()) {
            Q_EMIT failed(
                tr("%1 needs %2, which cannot be read.").arg(name, QDir::toNativeSeparators(file)));
            return;
        }
    }
    // The first networks that come are those of the set-up, or of whatever else is opened first.
    auto *once = new QObject(this);
    connect(m_model, &PanelModel::networksChanged, once, [this, once, restore, state] {
        once->deleteLater();
        QStringList opened;
        for (const Network &network : m_model->files())
            opened << network.path;
        if (opened == state.files())
            QMetaObject::invokeMethod(this, restore, Qt::QueuedConnection);
    });
    m_files->loadFilesAfresh(state.files());
}

void Setups::preset()
{
    // As a panel shows them that has just opened them, so that it can be undone like any change.
    PanelModel fresh;
    fresh.openNetworks(m_model->networks());
    restoreViewState(m_model, viewState(fresh));
}

} // namespace Panel
