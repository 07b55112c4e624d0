// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "viewstate.h"

#include "correctionstate.h"
#include "tracestate.h"
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

QJsonArray writtenNetworks(const PanelModel &model)
{
    QJsonArray networks;
    for (int i = 0; i < model.networks().size(); ++i) {
        QJsonArray traces;
        for (const Trace &trace : model.traces()) {
            if (trace.network == i)
                traces.append(traceState(model, trace));
        }
        const Stimulus shown = model.stimulus(i);
        const Correction &correction = model.correction(i);
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

/// What was saved of a trace, the network that it is of, and the id that it is to have.
struct SavedTrace {
    int id;
    int network;
    QJsonObject state;
};

/// What was saved of all traces of these networks; where no ids were, the present ones in their order.
QVector<SavedTrace> savedTraces(const PanelModel &model,
                                const QVector<std::pair<int, QJsonObject>> &networks)
{
    QVector<SavedTrace> saved;
    for (const auto &[network, state] : networks) {
        QVector<int> present;
        for (const Trace &trace : model.traces()) {
            if (trace.network == network)
                present.append(trace.id);
        }
        const QJsonArray traces = state["traces"_key].toArray();
        for (int i = 0; i < traces.size(); ++i) {
            const QJsonObject trace = traces.at(i).toObject();
            saved.append({trace["id"_key].toInt(present.value(i)), network, trace});
        }
    }
    return saved;
}

/// Gives networks the traces that were saved of them, with their ids where no other network's trace
/// has them. Returns them with the ids that they got.
QVector<SavedTrace> restoreTraces(PanelModel *model,
                                  const QVector<std::pair<int, QJsonObject>> &networks,
                                  const Memories *memories)
{
    const QVector<SavedTrace> saved = savedTraces(*model, networks);
    if (saved.isEmpty())
        return {};
    QVector<int> free; // traces of these networks that are to be used
    const QVector<Trace> present = model->traces();
    for (const Trace &trace : present) {
        const auto isOurs = [&](const auto &network) { return network.first == trace.network; };
        if (!std::any_of(networks.begin(), networks.end(), isOurs))
            continue;
        free.append(trace.id);
        const auto isWanted = [&](const SavedTrace &wanted) { return wanted.id == trace.id; };
        if (!std::any_of(saved.begin(), saved.end(), isWanted))
            model->removeTrace(trace.id); // the last one of all stays
        if (!model->trace(trace.id))
            free.removeLast();
    }
    QVector<SavedTrace> restored;
    for (const SavedTrace &wanted : saved) {
        int id = wanted.id;
        if (!free.removeOne(id))
            id = model->addTrace(model->traces().constFirst().id, id);
        if (id == 0)
            break;
        model->setTraceNetwork(id, wanted.network);
        restored.append({id, wanted.network, wanted.state});
    }
    for (const int id : qAsConst(free))
        model->removeTrace(id);
    for (const SavedTrace &trace : qAsConst(restored))
        restoreTraceState(model, trace.id, trace.state, memories);
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
            if (!isTraceState(trace.toObject()))
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
    }
    for (const auto &[network, shown] : qAsConst(known)) {
        const Stimulus stimulus{shown["start"_key].toDouble(), shown["stop"_key].toDouble()};
        // An instrument keeps the sweep that it is set to, and earlier states did not tell of a file
        // without traces.
        if (model->source() != Source::Instrument && stimulus.stop > 0.0)
            model->setStimulus(network, stimulus);
        model->setCorrection(network, restoredCorrection(shown));
    }
    const QVector<SavedTrace> restored = restoreTraces(model, known, memories);
    bool selected = false;
    for (const SavedTrace &trace : restored)
        selected = restoreChoices(model, trace.id, trace.state) || selected;
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
