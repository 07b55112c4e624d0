// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "panelstate.h"

#include <panel/ground/languages.h>
#include <panel/model/panelmodel.h>

#include <controls/thememanager.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QPointer>
#include <QSaveFile>
#include <QStandardPaths>

#include <cmath>

namespace Panel
{

namespace
{

constexpr int s_version = 2;
constexpr qint64 s_largestFile = 1 << 20;

struct Text {
    Q_DECLARE_TR_FUNCTIONS(Panel::PanelState)
};

QLatin1String operator""_key(const char *text, std::size_t size)
{
    return QLatin1String(text, int(size));
}

/// A setting that is a number of a list.
struct Choice {
    const char *key;
    int count;
};

constexpr Choice s_choices[] = {
    {"look", 2},
    {"layout", 4},
    {"grid", 3},
    {"density", gridDensityCount},
    {"source", sourceCount},
    {"readout", readoutFormatCount},
};

bool isChoice(const QJsonValue &value, int count)
{
    const double number = value.toDouble(-1.0);
    return value.isDouble() && number >= 0.0 && number < count && number == std::floor(number);
}

bool isTrace(const QJsonObject &trace)
{
    for (const QJsonValue value : trace["markers"_key].toArray()) {
        const QJsonObject marker = value.toObject();
        if (!isChoice(marker["number"_key], Markers::perTrace + 1)
            || !marker["hertz"_key].isDouble() || !isChoice(marker["repeat"_key], 1 << 30))
            return false;
    }
    return isChoice(trace["to"_key], 1000) && isChoice(trace["from"_key], 1000)
        && isChoice(trace["format"_key], traceFormatCount) && trace["scale"_key].isDouble()
        && trace["top"_key].isDouble() && trace["visible"_key].isBool()
        && isChoice(trace["reference"_key], Markers::perTrace + 1);
}

bool isValid(const QJsonObject &state)
{
    for (const Choice &choice : s_choices) {
        if (!isChoice(state[QLatin1String(choice.key)], choice.count))
            return false;
    }
    for (const QLatin1String flag :
         {"onlyActiveTrace"_key, "markersDiscrete"_key, "markersCoupled"_key}) {
        if (!state[flag].isBool())
            return false;
    }
    if (!isLanguage(state["language"_key].toString()) || !state["networks"_key].isArray())
        return false;
    for (const QJsonValue network : state["networks"_key].toArray()) {
        for (const QJsonValue trace : network.toObject()["traces"_key].toArray()) {
            if (!isTrace(trace.toObject()))
                return false;
        }
    }
    return true;
}

/// What tells a network apart: its file, or what was simulated.
QString identity(const Network &network)
{
    return network.path.isEmpty() ? network.name : network.path;
}

QJsonObject written(const PanelModel &model, const Trace &trace)
{
    QJsonArray markers;
    for (const Marker &marker : model.markersOf(trace.id))
        markers.append(QJsonObject{{"number"_key, marker.number},
                                   {"hertz"_key, marker.place.hertz},
                                   {"repeat"_key, marker.place.repeat},
                                   {"selected"_key, model.isSelected(marker)}});
    const Marker *reference = model.referenceMarker(trace.id);
    const Trace *active = model.activeTrace();
    return {{"to"_key, trace.to},
            {"from"_key, trace.from},
            {"format"_key, int(trace.format)},
            {"scale"_key, trace.scale.perDivision},
            {"top"_key, trace.scale.top},
            {"visible"_key, trace.visible},
            {"active"_key, active && active->id == trace.id},
            {"reference"_key, reference ? reference->number : 0},
            {"smoothing"_key, trace.smoothing},
            {"markers"_key, markers}};
}

QJsonArray writtenDelays(const Correction &correction)
{
    QJsonArray delays;
    for (const double delay : correction.delays)
        delays.append(delay);
    return delays;
}

/// What cannot be is left out.
Correction restoredCorrection(const QJsonObject &network)
{
    Correction correction;
    int port = 0;
    for (const QJsonValue delay : network["delays"_key].toArray())
        correction.setDelay(++port, delay.toDouble());
    const double ohms = network["referenceOhms"_key].toDouble();
    if (ohms >= Correction::smallestReference && ohms <= Correction::largestReference)
        correction.referenceOhms = ohms;
    return correction;
}

QJsonArray writtenNetworks(const PanelModel &model)
{
    QJsonArray networks;
    for (int i = 0; i < model.networks().size(); ++i) {
        QJsonArray traces;
        Stimulus shown;
        Correction correction;
        for (const Trace &trace : model.traces()) {
            if (trace.network != i)
                continue;
            shown = model.stimulus(trace);
            correction = model.correction(trace);
            traces.append(written(model, trace));
        }
        networks.append(QJsonObject{{"identity"_key, identity(model.networks().at(i))},
                                    {"start"_key, shown.start},
                                    {"stop"_key, shown.stop},
                                    {"delays"_key, writtenDelays(correction)},
                                    {"referenceOhms"_key, correction.referenceOhms},
                                    {"traces"_key, traces}});
    }
    return networks;
}

QJsonArray writtenZooms(const PanelModel &model)
{
    QJsonArray zooms;
    for (const auto &[id, zoom] : model.zooms())
        zooms.append(QJsonObject{{"smith"_key, id.smith},
                                 {"place"_key, id.place},
                                 {"factor"_key, zoom.factor},
                                 {"x"_key, zoom.x},
                                 {"y"_key, zoom.y}});
    return zooms;
}

void restoreTrace(PanelModel *model, int id, const QJsonObject &saved)
{
    model->setTraceParameter(id, saved["to"_key].toInt(), saved["from"_key].toInt());
    model->setTraceFormat(id, TraceFormat(saved["format"_key].toInt()));
    model->setTraceScale(id, {saved["scale"_key].toDouble(), saved["top"_key].toDouble()});
    model->setSmoothing(id, saved["smoothing"_key].toDouble());
    model->setTraceVisible(id, saved["visible"_key].toBool());
    for (const QJsonValue value : saved["markers"_key].toArray()) {
        const QJsonObject marker = value.toObject();
        model->restoreMarker(id, marker["number"_key].toInt(),
                             {marker["hertz"_key].toDouble(), marker["repeat"_key].toInt()});
    }
    model->setReferenceMarker(id, saved["reference"_key].toInt());
}

/// Makes active and selected what was.
void restoreChoices(PanelModel *model, int id, const QJsonObject &saved)
{
    if (saved["active"_key].toBool())
        model->setActiveTrace(id);
    for (const QJsonValue value : saved["markers"_key].toArray()) {
        if (value.toObject()["selected"_key].toBool())
            model->selectMarker(id, value.toObject()["number"_key].toInt());
    }
}

/// Gives each network what was saved of it; the zooms come back where all are the same.
void restoreNetworks(PanelModel *model, const QJsonObject &state)
{
    const QJsonArray saved = state["networks"_key].toArray();
    QVector<bool> used(saved.size(), false);
    bool same = saved.size() == model->networks().size();
    QVector<std::pair<int, QJsonObject>> restored; // traces
    for (int i = 0; i < model->networks().size(); ++i) {
        int found = 0;
        const auto isOurs = [&](int index) {
            return !used.at(index)
                && saved.at(index).toObject()["identity"_key].toString()
                == identity(model->networks().at(i));
        };
        while (found < saved.size() && !isOurs(found))
            ++found;
        same = same && found == i;
        if (found == saved.size())
            continue;
        used[found] = true;
        const QJsonObject network = saved.at(found).toObject();
        const QJsonArray traces = network["traces"_key].toArray();
        int next = 0;
        const QVector<Trace> all = model->traces();
        for (const Trace &trace : all) {
            if (trace.network != i || next == traces.size())
                continue;
            if (next == 0) {
                model->setStimulus(
                    trace, {network["start"_key].toDouble(), network["stop"_key].toDouble()});
                model->setCorrection(trace, restoredCorrection(network));
            }
            restored.append({trace.id, traces.at(next).toObject()});
            restoreTrace(model, trace.id, restored.last().second);
            ++next;
        }
    }
    for (const auto &[id, trace] : qAsConst(restored))
        restoreChoices(model, id, trace);
    for (const QJsonValue value : same ? state["zooms"_key].toArray() : QJsonArray()) {
        const QJsonObject zoom = value.toObject();
        model->setZoom(
            {zoom["smith"_key].toBool(), zoom["place"_key].toInt()},
            {zoom["factor"_key].toDouble(), zoom["x"_key].toDouble(), zoom["y"_key].toDouble()});
    }
    // After the markers, or the first would bring the others along.
    model->setMarkersDiscrete(state["markersDiscrete"_key].toBool());
    model->setMarkersCoupled(state["markersCoupled"_key].toBool());
}

/// A state as it stands in a file; the note says why it cannot be used.
QJsonObject readState(const QString &path, QString &note)
{
    QFile file(path);
    if (!file.exists())
        return {};
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        note = Text::tr("The state of the last time cannot be read.");
        return {};
    }
    const QJsonObject state = file.size() > s_largestFile
        ? QJsonObject()
        : QJsonDocument::fromJson(file.read(s_largestFile)).object();
    if (state["version"_key].isDouble() && state["version"_key].toInt() != s_version)
        note = Text::tr("The state of the last time is of another version and not used.");
    else if (state["version"_key].toInt() != s_version || !isValid(state))
        note = Text::tr("The state of the last time is damaged and not used.");
    return note.isEmpty() ? state : QJsonObject();
}

} // namespace

QString PanelState::defaultPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation)
        + QStringLiteral("/state.json");
}

PanelState::PanelState(const QString &path)
    : m_path(path)
    , m_saved(readState(path, m_note))
{
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
    ViewSettings *view = model->viewSettings();
    view->layoutProfile()->setLayoutType(Graph::LayoutType(m_saved["layout"_key].toInt()));
    view->setGridMode(SmithChartPlot::GridMode(m_saved["grid"_key].toInt()));
    view->setDensity(GridDensity(m_saved["density"_key].toInt()));
    if (isChoice(m_saved["gridLabels"_key], gridLabelsCount))
        view->setGridLabels(GridLabels(m_saved["gridLabels"_key].toInt()));
    view->setVswrCircle(m_saved["vswrCircle"_key].toDouble());
    view->setVswrLimit(m_saved["vswrLimit"_key].toDouble());
    view->setBandwidthDecibels(m_saved["bandwidth"_key].toDouble());
    view->setReadoutFormat(ReadoutFormat(m_saved["readout"_key].toInt()));
    view->setOnlyActiveTrace(m_saved["onlyActiveTrace"_key].toBool());
    model->preferences()->setExportFolder(m_saved["screenshots"_key].toString());
    model->setTuning(m_saved["tuning"_key].toDouble(defaultTuning));

    const QJsonObject sweep = m_saved["sweep"_key].toObject();
    const auto source = Source(m_saved["source"_key].toInt());
    if (withSource && isSimulated(source)) {
        // Its first data come later.
        QObject *once = new QObject(model);
        QObject::connect(model, &PanelModel::networksChanged, once, [=, saved = m_saved] {
            once->deleteLater();
            QMetaObject::invokeMethod(
                model, [=] { restoreNetworks(model, saved); }, Qt::QueuedConnection);
        });
        model->setSource(source);
    } else {
        restoreNetworks(model, m_saved);
    }
    model->setSweep(
        {sweep["start"_key].toDouble(), sweep["stop"_key].toDouble(), sweep["points"_key].toInt()});
}

bool PanelState::save(const PanelModel &model, const QString &path)
{
    const ViewSettings *view = model.viewSettings();
    const Preferences *preferences = model.preferences();
    QJsonArray files;
    for (const Network &network : model.files()) {
        // Samples are part of the program.
        if (!network.path.isEmpty() && !network.path.startsWith(QLatin1Char(':')))
            files.append(network.path);
    }
    const Sweep &sweep = model.sweep();
    const QJsonObject state{
        {"version"_key, s_version},
        {"language"_key,
         preferences->language().isEmpty() ? currentLanguage() : preferences->language()},
        {"look"_key, int(Controls::ThemeManager::instance()->currentTheme())},
        {"layout"_key, int(view->diagramLayout())},
        {"grid"_key, int(view->gridMode())},
        {"density"_key, int(view->density())},
        {"gridLabels"_key, int(view->gridLabels())},
        {"vswrCircle"_key, view->vswrCircle()},
        {"vswrLimit"_key, view->vswrLimit()},
        {"bandwidth"_key, view->bandwidthDecibels()},
        {"readout"_key, int(view->readoutFormat())},
        {"onlyActiveTrace"_key, view->onlyActiveTrace()},
        {"markersDiscrete"_key, model.markersDiscrete()},
        {"markersCoupled"_key, model.markersCoupled()},
        {"screenshots"_key, preferences->exportFolder()},
        {"source"_key, int(model.source())},
        {"sweep"_key,
         QJsonObject{
             {"start"_key, sweep.start}, {"stop"_key, sweep.stop}, {"points"_key, sweep.points}}},
        {"tuning"_key, model.tuning()},
        {"files"_key, files},
        {"networks"_key, writtenNetworks(model)},
        {"zooms"_key, writtenZooms(model)},
    };
    if (!QDir().mkpath(QFileInfo(path).absolutePath()))
        return false;
    // What is no state of ours may be somebody's after all; the first such file is kept.
    QString note;
    readState(path, note);
    if (!note.isEmpty() && QFileInfo(path).isFile())
        QFile::copy(path, path + QStringLiteral(".damaged"));
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(QJsonDocument(state).toJson()) > 0
        && file.commit();
}

} // namespace Panel
