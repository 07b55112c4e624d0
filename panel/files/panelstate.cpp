// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "panelstate.h"

#include <panel/model/panelmodel.h>
#include <panel/window/languages.h>
#include <panel/window/panelcontroller.h>

#include <controls/thememanager.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

#include <cmath>

namespace Panel
{

namespace
{

constexpr int s_version = 1;
/// More would be no state of ours.
constexpr int s_mostEntries = 10000;
constexpr qint64 s_largestFile = 1 << 20;

/// A setting that is a number of a list.
struct Choice {
    const char *key;
    int count;
};

constexpr Choice s_choices[] = {
    {"look", 2},
    {"layout", 4},
    {"grid", 3},
    {"density", 3},
    {"readout", readoutFormatCount},
    {"onlyActiveTrace", 2},
    {"markersDiscrete", 2},
    {"markersCoupled", 2},
};

int number(const QSettings &settings, const char *key)
{
    return settings.value(QLatin1String(key)).toInt();
}

bool isChoice(const QSettings &settings, const char *key, int count)
{
    bool ok = false;
    const int value = settings.value(QLatin1String(key)).toInt(&ok);
    return ok && value >= 0 && value < count;
}

bool isNumber(const QSettings &settings, const char *key)
{
    bool ok = false;
    return std::isfinite(settings.value(QLatin1String(key)).toDouble(&ok)) && ok;
}

QString sentence(const char *text)
{
    return QCoreApplication::translate("Panel::PanelState", text);
}

} // namespace

QString PanelState::usualPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation)
        + QStringLiteral("/state.ini");
}

PanelState::PanelState(const QString &path)
    : m_path(path)
{
    const QFileInfo file(path);
    if (!file.exists())
        return;
    if (!file.isFile() || !file.isReadable()) {
        refuse(sentence(
            QT_TRANSLATE_NOOP("Panel::PanelState", "The state of the last time cannot be read.")));
        return;
    }
    if (file.size() > s_largestFile) {
        refuse(sentence(QT_TRANSLATE_NOOP("Panel::PanelState",
                                          "The state of the last time is damaged and not used.")));
        return;
    }
    QSettings settings(path, QSettings::IniFormat);
    const bool readable = settings.status() == QSettings::NoError;
    if (readable && settings.contains(QStringLiteral("version"))
        && number(settings, "version") != s_version)
        refuse(sentence(
            QT_TRANSLATE_NOOP("Panel::PanelState",
                              "The state of the last time is of another version and not used.")));
    else if (!readable || !isValid(settings))
        refuse(sentence(QT_TRANSLATE_NOOP("Panel::PanelState",
                                          "The state of the last time is damaged and not used.")));
    else
        m_usable = true;
    if (!m_usable)
        return;
    m_language = settings.value(QStringLiteral("language")).toString();
    m_files = settings.value(QStringLiteral("files")).toStringList();
}

void PanelState::refuse(const QString &note)
{
    m_note = note;
}

bool PanelState::isValid(QSettings &settings) const
{
    if (number(settings, "version") != s_version)
        return false;
    for (const Choice &choice : s_choices) {
        if (!isChoice(settings, choice.key, choice.count))
            return false;
    }
    if (!isLanguage(settings.value(QStringLiteral("language")).toString()))
        return false;
    const int traces = settings.beginReadArray(QStringLiteral("traces"));
    bool valid = traces >= 0 && traces < s_mostEntries;
    for (int i = 0; valid && i < traces; ++i) {
        settings.setArrayIndex(i);
        valid = isChoice(settings, "to", 3) && isChoice(settings, "from", 3)
            && isChoice(settings, "format", traceFormatCount) && isChoice(settings, "visible", 2)
            && isNumber(settings, "scale") && isNumber(settings, "top")
            && isChoice(settings, "reference", PanelModel::markersPerTrace + 1);
    }
    settings.endArray();
    const int markers = settings.beginReadArray(QStringLiteral("markers"));
    valid = valid && markers >= 0 && markers < s_mostEntries;
    for (int i = 0; valid && i < markers; ++i) {
        settings.setArrayIndex(i);
        valid = isChoice(settings, "trace", traces + 1)
            && isChoice(settings, "number", PanelModel::markersPerTrace + 1)
            && isNumber(settings, "hertz");
    }
    settings.endArray();
    return valid;
}

void PanelState::restore(PanelModel *model, PanelController *controller) const
{
    if (!m_usable)
        return;
    using Controls::ThemeManager;
    QSettings settings(m_path, QSettings::IniFormat);
    const auto look = ThemeManager::Theme(number(settings, "look"));
    if (look != ThemeManager::instance()->currentTheme())
        ThemeManager::instance()->setTheme(look);
    ViewSettings *view = model->viewSettings();
    view->layoutProfile()->setLayoutType(Graph::LayoutType(number(settings, "layout")));
    view->setGridMode(SmithChartPlot::GridMode(number(settings, "grid")));
    view->setDensity(SmithChart::Preset(number(settings, "density")));
    view->setReadoutFormat(ReadoutFormat(number(settings, "readout")));
    view->setOnlyActiveTrace(number(settings, "onlyActiveTrace"));
    const QString folder = settings.value(QStringLiteral("screenshots")).toString();
    if (!folder.isEmpty())
        controller->setScreenshotFolder(folder);

    const int traces = settings.beginReadArray(QStringLiteral("traces"));
    settings.endArray();
    if (traces == model->traces().size())
        restoreTraces(settings, model);
    // After the markers, or the first would bring the others along.
    model->setMarkersDiscrete(number(settings, "markersDiscrete"));
    model->setMarkersCoupled(number(settings, "markersCoupled"));
}

void PanelState::restoreTraces(const QSettings &saved, PanelModel *model) const
{
    QSettings settings(saved.fileName(), QSettings::IniFormat);
    const QVector<Trace> traces = model->traces();
    settings.beginReadArray(QStringLiteral("traces"));
    for (int i = 0; i < traces.size(); ++i) {
        settings.setArrayIndex(i);
        const int id = traces.at(i).id;
        model->setTraceParameter(id, number(settings, "to"), number(settings, "from"));
        model->setTraceFormat(id, TraceFormat(number(settings, "format")));
        model->setTraceScale(id,
                             {settings.value(QStringLiteral("scale")).toDouble(),
                              settings.value(QStringLiteral("top")).toDouble()});
        model->setTraceVisible(id, number(settings, "visible"));
    }
    settings.endArray();
    const int markers = settings.beginReadArray(QStringLiteral("markers"));
    for (int i = 0; i < markers; ++i) {
        settings.setArrayIndex(i);
        if (const Trace *trace = model->trace(number(settings, "trace")))
            model->restoreMarker(trace->id, number(settings, "number"),
                                 settings.value(QStringLiteral("hertz")).toDouble());
    }
    settings.endArray();
    settings.beginReadArray(QStringLiteral("traces"));
    for (int i = 0; i < traces.size(); ++i) {
        settings.setArrayIndex(i);
        model->setReferenceMarker(traces.at(i).id, number(settings, "reference"));
    }
    settings.endArray();
    model->setActiveTrace(number(settings, "activeTrace"));
}

bool PanelState::save(const PanelModel &model, const PanelController &controller,
                      const QString &language) const
{
    if (!QDir().mkpath(QFileInfo(m_path).absolutePath()))
        return false;
    // QSettings reads what is there before it writes, and would not forget that it was damaged. The
    // first such file is kept: it may be somebody's after all.
    if (!m_usable && QFileInfo(m_path).isFile()
        && !QFile::rename(m_path, m_path + QStringLiteral(".damaged")))
        QFile::remove(m_path);
    QSettings settings(m_path, QSettings::IniFormat);
    settings.clear();
    const auto set = [&settings](const char *key, const QVariant &value) {
        settings.setValue(QLatin1String(key), value);
    };
    const ViewSettings *view = model.viewSettings();
    set("version", s_version);
    set("language", language);
    set("look", int(Controls::ThemeManager::instance()->currentTheme()));
    set("layout", int(view->diagramLayout()));
    set("grid", int(view->gridMode()));
    set("density", int(view->density()));
    set("readout", int(view->readoutFormat()));
    set("onlyActiveTrace", int(view->onlyActiveTrace()));
    set("markersDiscrete", int(model.markersDiscrete()));
    set("markersCoupled", int(model.markersCoupled()));
    set("screenshots", controller.screenshotFolder());
    QStringList files;
    for (const Network &network : model.networks()) {
        // Samples and simulated devices are part of the program.
        if (!network.path.isEmpty() && !network.path.startsWith(QLatin1Char(':')))
            files << network.path;
    }
    set("files", files);
    set("activeTrace", model.activeTrace() ? model.activeTrace()->id : 0);
    settings.beginWriteArray(QStringLiteral("traces"), int(model.traces().size()));
    for (int i = 0; i < model.traces().size(); ++i) {
        settings.setArrayIndex(i);
        const Trace &trace = model.traces().at(i);
        const Marker *reference = model.referenceMarker(trace.id);
        set("to", trace.to);
        set("from", trace.from);
        set("format", int(trace.format));
        set("scale", trace.scale.perDivision);
        set("top", trace.scale.top);
        set("visible", int(trace.visible));
        set("reference", reference ? reference->number : 0);
    }
    settings.endArray();
    settings.beginWriteArray(QStringLiteral("markers"), int(model.markers().size()));
    for (int i = 0; i < model.markers().size(); ++i) {
        settings.setArrayIndex(i);
        const Marker &marker = model.markers().at(i);
        const Network &network = model.network(*model.trace(marker.trace));
        set("trace", marker.trace);
        set("number", marker.number);
        set("hertz", valueAt(network.frequencies, marker.index));
    }
    settings.endArray();
    settings.sync();
    return settings.status() == QSettings::NoError;
}

} // namespace Panel
