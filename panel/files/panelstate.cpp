// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "panelstate.h"

#include "viewstate.h"

#include <panel/ground/languages.h>
#include <panel/model/panelmodel.h>

#include <controls/thememanager.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSaveFile>
#include <QStandardPaths>

namespace Panel
{

namespace
{

constexpr int s_version = 2;
constexpr qint64 s_largestFile = 1 << 20;

struct Text {
    Q_DECLARE_TR_FUNCTIONS(Panel::PanelState)
};

bool isValid(const QJsonObject &state)
{
    return isChoice(state["look"_key], 2) && isChoice(state["source"_key], sourceCount)
        && isLanguage(state["language"_key].toString()) && isViewState(state);
}

/// A state as it stands in a file; empty where it cannot be used.
QJsonObject readState(const QString &path, PanelState::Fault &fault)
{
    QFile file(path);
    if (!file.exists())
        return {};
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        fault = PanelState::Unreadable;
        return {};
    }
    const QJsonObject state = file.size() > s_largestFile
        ? QJsonObject()
        : QJsonDocument::fromJson(file.read(s_largestFile)).object();
    if (state["version"_key].isDouble() && state["version"_key].toInt() != s_version)
        fault = PanelState::OtherVersion;
    else if (state["version"_key].toInt() != s_version || !isValid(state))
        fault = PanelState::Damaged;
    return fault == PanelState::NoFault ? state : QJsonObject();
}

} // namespace

QString PanelState::defaultPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation)
        + QStringLiteral("/state.json");
}

PanelState::PanelState(const QString &path)
    : m_path(path)
    , m_saved(readState(path, m_fault))
{
}

QString PanelState::note() const
{
    switch (m_fault) {
    case NoFault:
        break;
    case Unreadable:
        return Text::tr("The state of the last time cannot be read.");
    case OtherVersion:
        return Text::tr("The state of the last time is of another version and not used.");
    case Damaged:
        return Text::tr("The state of the last time is damaged and not used.");
    }
    return QString();
}

QString PanelState::language() const
{
    return m_saved["language"_key].toString();
}

QStringList PanelState::files() const
{
    QStringList files;
    for (const QJsonValue path : m_saved["files"_key].toArray())
        files << path.toString();
    return files;
}

void PanelState::restoreLook() const
{
    using Controls::ThemeManager;
    const auto look =
        ThemeManager::Theme(m_saved["look"_key].toInt(ThemeManager::instance()->currentTheme()));
    if (look != ThemeManager::instance()->currentTheme())
        ThemeManager::instance()->setTheme(look);
}

void PanelState::restore(PanelModel *model, bool withSource) const
{
    if (m_saved.isEmpty())
        return;
    restoreLook();
    model->preferences()->setExportFolder(m_saved["screenshots"_key].toString());
    model->preferences()->setHighContrast(m_saved["highContrast"_key].toBool());
    model->preferences()->setSoundFollows(m_saved["soundFollows"_key].toBool());
    model->preferences()->setTraceDashes(m_saved["traceDashes"_key].toBool());
    QStringList instruments;
    for (const QJsonValue address : m_saved["instruments"_key].toArray())
        instruments << address.toString();
    model->preferences()->setInstruments(instruments);
    model->setTuning(m_saved["tuning"_key].toDouble(defaultTuning));

    const QJsonObject sweep = m_saved["sweep"_key].toObject();
    const auto source = Source(m_saved["source"_key].toInt());
    if (withSource && source != Source::Files) {
        restoreViewSettings(model->viewSettings(), m_saved);
        // Its first data come later.
        QObject *once = new QObject(model);
        QObject::connect(model, &PanelModel::networksChanged, once, [=, saved = m_saved] {
            once->deleteLater();
            QMetaObject::invokeMethod(
                model, [=] { restoreNetworks(model, saved); }, Qt::QueuedConnection);
        });
        if (source == Source::Instrument)
            model->setInstrument(m_saved["instrument"_key].toString());
        else
            model->setSource(source);
    } else {
        restoreViewState(model, m_saved);
    }
    model->setSweep(
        {sweep["start"_key].toDouble(), sweep["stop"_key].toDouble(), sweep["points"_key].toInt()});
}

bool PanelState::save(const PanelModel &model, const QString &path)
{
    const Preferences *preferences = model.preferences();
    QJsonArray files;
    for (const Network &network : model.files()) {
        // Samples are part of the program.
        if (!network.path.isEmpty() && !network.path.startsWith(QLatin1Char(':')))
            files.append(network.path);
    }
    const Sweep &sweep = model.sweep();
    QJsonObject state = viewState(model);
    state["version"_key] = s_version;
    state["language"_key] =
        preferences->language().isEmpty() ? currentLanguage() : preferences->language();
    state["look"_key] = int(Controls::ThemeManager::instance()->currentTheme());
    state["screenshots"_key] = preferences->exportFolder();
    state["highContrast"_key] = preferences->highContrast();
    state["soundFollows"_key] = preferences->soundFollows();
    state["traceDashes"_key] = preferences->traceDashes();
    state["source"_key] = int(model.source());
    state["sweep"_key] = QJsonObject{
        {"start"_key, sweep.start}, {"stop"_key, sweep.stop}, {"points"_key, sweep.points}};
    state["tuning"_key] = model.tuning();
    state["instrument"_key] = model.instrument();
    state["instruments"_key] = QJsonArray::fromStringList(preferences->instruments());
    state["files"_key] = files;
    if (!QDir().mkpath(QFileInfo(path).absolutePath()))
        return false;
    // What is no state of ours may be somebody's after all; the first such file is kept.
    Fault fault = NoFault;
    readState(path, fault);
    if (fault != NoFault && QFileInfo(path).isFile())
        QFile::copy(path, path + QStringLiteral(".damaged"));
    // A full disk takes a part, and what only commit() writes may be lost untold.
    const QByteArray text = QJsonDocument(state).toJson();
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.flush()
        && file.commit();
}

} // namespace Panel
