// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "viewstate.h"

#include "correctionstate.h"
#include "zoomstate.h"

#include <panel/model/panelmodel.h>

#include <QJsonArray>

#include <algorithm>
#include <cmath>
#include <utility>

namespace Panel
{

namespace
{

/// A setting that is a number of a list.
struct Choice {
    const char *key;
    int count;
};

constexpr Choice s_choices[] = {
    {"layout", 4},
    {"grid", 3},
    {"density", gridDensityCount},
    {"readout", readoutFormatCount},
};

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
        && isChoice(trace["reference"_key], Markers::perTrace + 1)
        && isChoice(trace["id"_key].toInt(), Trace::maximumCount + 1);
}

/// What a fixed marker keeps; nothing of others.
QJsonObject writtenPoint(const Marker &marker)
{
    if (!marker.isFixed())
        return {};
    QJsonObject point{{"re"_key, marker.fixed.s.real()},
                      {"im"_key, marker.fixed.s.imag()},
                      {"ohms"_key, marker.fixed.reference.real()},
                      {"reactance"_key, marker.fixed.reference.imag()},
                      {"format"_key, int(marker.fixed.format)}};
    // A number that is none has no place in a file.
    if (std::isfinite(marker.fixed.value))
        point["value"_key] = marker.fixed.value;
    return point;
}

void restorePoint(PanelModel *model, int id, int number, const QJsonObject &point)
{
    const double ohms = point["ohms"_key].toDouble();
    if (!point["re"_key].isDouble() || !point["im"_key].isDouble() || !(ohms > 0.0)
        || !isChoice(point["format"_key], traceFormatCount))
        return;
    model->restoreFixedMarker(id, number,
                              {{point["re"_key].toDouble(), point["im"_key].toDouble()},
                               {ohms, point["reactance"_key].toDouble()},
                               TraceFormat(point["format"_key].toInt()),
                               point["value"_key].toDouble(qQNaN())});
}

QJsonObject written(const PanelModel &model, const Trace &trace)
{
    QJsonArray markers;
    for (const Marker &marker : model.markersOf(trace.id))
        markers.append(QJsonObject{{"number"_key, marker.number},
                                   {"hertz"_key, marker.place.hertz},
                                   {"repeat"_key, marker.place.repeat},
                                   {"tracking"_key, int(marker.tracking)},
                                   {"fixed"_key, writtenPoint(marker)},
                                   {"selected"_key, model.isSelected(marker)}});
    QJsonArray limits;
    for (const LimitLine &limit : trace.limits)
        limits.append(QJsonObject{{"format"_key, int(limit.format)},
                                  {"upper"_key, limit.upper},
                                  {"start"_key, limit.start},
                                  {"stop"_key, limit.stop},
                                  {"startValue"_key, limit.startValue},
                                  {"stopValue"_key, limit.stopValue}});
    const Marker *reference = model.referenceMarker(trace.id);
    const Trace *active = model.activeTrace();
    return {{"id"_key, trace.id},
            {"to"_key, trace.to},
            {"from"_key, trace.from},
            {"format"_key, int(trace.format)},
            {"scale"_key, trace.scale.perDivision},
            {"top"_key, trace.scale.top},
            {"position"_key, trace.scale.position},
            {"visible"_key, trace.visible},
            {"active"_key, active && active->id == trace.id},
            {"reference"_key, reference ? reference->number : 0},
            {"smoothing"_key, trace.smoothing},
            {"math"_key, int(trace.math)},
            {"limits"_key, limits},
            {"markers"_key, markers}};
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
        networks.append(QJsonObject{{"identity"_key, networkIdentity(model.networks().at(i))},
                                    {"start"_key, shown.start},
                                    {"stop"_key, shown.stop},
                                    {"delays"_key, delayState(correction)},
                                    {"referenceOhms"_key, correction.referenceOhms},
                                    {"traces"_key, traces}});
    }
    return networks;
}

QJsonObject written(const LimitCircle &circle)
{
    return {{"x"_key, circle.centre.x()},
            {"y"_key, circle.centre.y()},
            {"radius"_key, circle.radius},
            {"keepOut"_key, circle.keepOut}};
}

LimitCircle restoredCircle(const QJsonObject &saved)
{
    return {{saved["x"_key].toDouble(), saved["y"_key].toDouble()},
            saved["radius"_key].toDouble(),
            saved["keepOut"_key].toBool()};
}

/// What cannot be is left out.
QVector<LimitLine> restoredLimits(const QJsonArray &saved)
{
    QVector<LimitLine> limits;
    for (const QJsonValue value : saved) {
        const QJsonObject limit = value.toObject();
        if (isChoice(limit["format"_key], traceFormatCount))
            limits.append({TraceFormat(limit["format"_key].toInt()), limit["upper"_key].toBool(),
                           limit["start"_key].toDouble(), limit["stop"_key].toDouble(),
                           limit["startValue"_key].toDouble(), limit["stopValue"_key].toDouble()});
    }
    return limits;
}

bool holdsMarker(const QJsonObject &trace, int number)
{
    const QJsonArray markers = trace["markers"_key].toArray();
    return std::any_of(markers.begin(), markers.end(), [number](const QJsonValue &marker) {
        return marker.toObject()["number"_key].toInt() == number;
    });
}

/// What was stored of the trace that has this id in a state comes back, and nothing else.
void restoreMemory(PanelModel *model, int id, const Memories &memories, int savedId)
{
    const auto found = memories.constFind(savedId);
    if (found == memories.constEnd())
        model->clearMemory(id);
    else if (!model->memory(id) || !sharesData(*model->memory(id), *found))
        model->restoreMemory(id, *found);
}

void restoreTrace(PanelModel *model, int id, const QJsonObject &saved, const Memories *memories)
{
    model->setTraceParameter(id, saved["to"_key].toInt(), saved["from"_key].toInt());
    if (memories)
        restoreMemory(model, id, *memories, saved["id"_key].toInt());
    model->setTraceFormat(id, TraceFormat(saved["format"_key].toInt()));
    // Before the scale, to which it fits the result.
    if (isChoice(saved["math"_key], traceMathCount))
        model->setTraceMath(id, TraceMath(saved["math"_key].toInt()));
    model->setTraceScale(id,
                         {saved["scale"_key].toDouble(), saved["top"_key].toDouble(),
                          saved["position"_key].toInt()});
    model->setSmoothing(id, saved["smoothing"_key].toDouble());
    model->setTraceVisible(id, saved["visible"_key].toBool());
    for (const QJsonValue value : saved["markers"_key].toArray()) {
        const QJsonObject marker = value.toObject();
        const int number = marker["number"_key].toInt();
        const auto tracking =
            Tracking(qBound(0, marker["tracking"_key].toInt(), trackingCount - 1));
        const bool fixed = tracking == Tracking::Fixed;
        model->setMarkerTracking(id, number, Tracking::Off); // or it would not go there
        model->restoreMarker(id, number,
                             {marker["hertz"_key].toDouble(), marker["repeat"_key].toInt()});
        if (fixed)
            restorePoint(model, id, number, marker["fixed"_key].toObject());
        else
            model->setMarkerTracking(id, number, tracking);
    }
    const QVector<Marker> markers = model->markersOf(id);
    for (const Marker &marker : markers) {
        if (!holdsMarker(saved, marker.number))
            model->removeMarker(id, marker.number);
    }
    model->setLimits(id, restoredLimits(saved["limits"_key].toArray()));
    model->setReferenceMarker(id, saved["reference"_key].toInt());
}

/// Makes active and selected what was; true if a marker was.
bool restoreChoices(PanelModel *model, int id, const QJsonObject &saved)
{
    if (saved["active"_key].toBool())
        model->setActiveTrace(id);
    for (const QJsonValue value : saved["markers"_key].toArray()) {
        if (value.toObject()["selected"_key].toBool()) {
            model->selectMarker(id, value.toObject()["number"_key].toInt());
            return true;
        }
    }
    return false;
}

/// A trace by its id and what was saved of it.
using SavedTrace = std::pair<int, QJsonObject>;

QVector<int> idsOfNetwork(const PanelModel &model, int network)
{
    QVector<int> ids;
    for (const Trace &trace : model.traces()) {
        if (trace.network == network)
            ids.append(trace.id);
    }
    return ids;
}

/// Removes all traces but one that were not saved of a network: another may have had their ids.
void freeIds(PanelModel *model, int network, const QJsonObject &saved)
{
    const QJsonArray traces = saved["traces"_key].toArray();
    QVector<int> others = idsOfNetwork(*model, network);
    const int count = int(others.size());
    for (const QJsonValue trace : traces)
        others.removeOne(trace.toObject()["id"_key].toInt());
    if (traces.isEmpty() || count == 0)
        return;
    if (others.size() == count)
        others.removeFirst();
    for (const int id : qAsConst(others))
        model->removeTrace(id);
}

/// Gives a network the traces that were saved of it, those with their ids where they have one.
QVector<SavedTrace> restoreTraces(PanelModel *model, int network, const QJsonObject &saved,
                                  const Memories *memories)
{
    const QJsonArray traces = saved["traces"_key].toArray();
    QVector<int> present = idsOfNetwork(*model, network);
    if (present.isEmpty() || traces.isEmpty())
        return {};
    const Trace first = *model->trace(present.constFirst());
    // An instrument keeps the sweep that it is set to.
    if (model->source() != Source::Instrument)
        model->setStimulus(first, {saved["start"_key].toDouble(), saved["stop"_key].toDouble()});
    model->setCorrection(first, restoredCorrection(saved));
    QVector<SavedTrace> restored;
    QVector<int> wanted;
    for (int i = 0; i < traces.size(); ++i) {
        const QJsonObject trace = traces.at(i).toObject();
        int id = trace["id"_key].toInt(present.value(i));
        if (!present.contains(id))
            id = model->addTrace(present.constFirst(), id);
        if (id == 0)
            break;
        wanted.append(id);
        restored.append({id, trace});
    }
    for (const int id : qAsConst(present)) {
        if (!wanted.contains(id))
            model->removeTrace(id);
    }
    for (const SavedTrace &trace : qAsConst(restored))
        restoreTrace(model, trace.first, trace.second, memories);
    return restored;
}

} // namespace

void restoreViewSettings(ViewSettings *view, const QJsonObject &state)
{
    view->layoutProfile()->setLayoutType(Graph::LayoutType(state["layout"_key].toInt()));
    view->setGridMode(SmithChartPlot::GridMode(state["grid"_key].toInt()));
    view->setDensity(GridDensity(state["density"_key].toInt()));
    if (isChoice(state["gridLabels"_key], gridLabelsCount))
        view->setGridLabels(GridLabels(state["gridLabels"_key].toInt()));
    view->setVswrCircle(state["vswrCircle"_key].toDouble());
    // A circle around the centre was all that there was before.
    if (state.contains("limitCircle"_key))
        view->setLimitCircle(restoredCircle(state["limitCircle"_key].toObject()));
    else
        view->setVswrLimit(state["vswrLimit"_key].toDouble());
    view->setFrequencyScale(state["logarithmic"_key].toBool() ? FrequencyScale::Logarithmic
                                                              : FrequencyScale::Linear);
    view->setMarkerTable(state["markerTable"_key].toBool());
    view->setBandwidthDecibels(state["bandwidth"_key].toDouble());
    view->setReadoutFormat(ReadoutFormat(state["readout"_key].toInt()));
    view->setOnlyActiveTrace(state["onlyActiveTrace"_key].toBool());
}

bool isChoice(const QJsonValue &value, int count)
{
    const double number = value.toDouble(-1.0);
    return value.isDouble() && number >= 0.0 && number < count && number == std::floor(number);
}

bool isViewState(const QJsonObject &state)
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
    if (!state["networks"_key].isArray())
        return false;
    for (const QJsonValue network : state["networks"_key].toArray()) {
        for (const QJsonValue trace : network.toObject()["traces"_key].toArray()) {
            if (!isTrace(trace.toObject()))
                return false;
        }
    }
    return true;
}

QJsonObject viewState(const PanelModel &model)
{
    const ViewSettings *view = model.viewSettings();
    return {
        {"layout"_key, int(view->diagramLayout())},
        {"grid"_key, int(view->gridMode())},
        {"density"_key, int(view->density())},
        {"gridLabels"_key, int(view->gridLabels())},
        {"vswrCircle"_key, view->vswrCircle()},
        {"limitCircle"_key, written(view->limitCircle())},
        {"logarithmic"_key, view->frequencyScale() == FrequencyScale::Logarithmic},
        {"markerTable"_key, view->markerTable()},
        {"bandwidth"_key, view->bandwidthDecibels()},
        {"readout"_key, int(view->readoutFormat())},
        {"onlyActiveTrace"_key, view->onlyActiveTrace()},
        {"markersDiscrete"_key, model.markersDiscrete()},
        {"markersCoupled"_key, model.markersCoupled()},
        {"networks"_key, writtenNetworks(model)},
        {"zooms"_key, zoomState(model)},
    };
}

void restoreNetworks(PanelModel *model, const QJsonObject &state, const Memories *memories)
{
    const QJsonArray saved = state["networks"_key].toArray();
    QVector<bool> used(saved.size(), false);
    bool same = saved.size() == model->networks().size();
    QVector<std::pair<int, QJsonObject>> known;
    for (int i = 0; i < model->networks().size(); ++i) {
        int found = 0;
        const auto isOurs = [&](int index) {
            return !used.at(index)
                && saved.at(index).toObject()["identity"_key].toString()
                == networkIdentity(model->networks().at(i));
        };
        while (found < saved.size() && !isOurs(found))
            ++found;
        same = same && found == i;
        if (found == saved.size())
            continue;
        used[found] = true;
        known.append({i, saved.at(found).toObject()});
        freeIds(model, i, known.constLast().second);
    }
    QVector<SavedTrace> restored;
    for (const auto &[network, traces] : qAsConst(known))
        restored += restoreTraces(model, network, traces, memories);
    bool selected = false;
    for (const auto &[id, trace] : qAsConst(restored))
        selected = restoreChoices(model, id, trace) || selected;
    if (!selected && !restored.isEmpty())
        model->selectMarker(0, 0);
    if (same)
        restoreZoomState(model, state["zooms"_key].toArray());
    // After the markers, or the first would bring the others along.
    model->setMarkersDiscrete(state["markersDiscrete"_key].toBool());
    model->setMarkersCoupled(state["markersCoupled"_key].toBool());
}

void restoreViewState(PanelModel *model, const QJsonObject &state)
{
    const TraceChanges changes(model);
    restoreViewSettings(model->viewSettings(), state);
    restoreNetworks(model, state);
}

} // namespace Panel
