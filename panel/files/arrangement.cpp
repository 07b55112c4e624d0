// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "arrangement.h"

#include "viewstate.h"

#include <panel/model/panelmodel.h>

#include <QJsonArray>

#include <algorithm>

namespace Panel
{

namespace
{

/// What is arranged of networks: not which trace is active.
QJsonArray arrangementOf(const PanelModel &model)
{
    QJsonArray networks = viewState(model)["networks"_key].toArray();
    for (QJsonValueRef value : networks) {
        QJsonObject network = value.toObject();
        QJsonArray traces = network["traces"_key].toArray();
        for (QJsonValueRef trace : traces) {
            QJsonObject object = trace.toObject();
            object.remove("active"_key);
            trace = object;
        }
        network["traces"_key] = traces;
        value = network;
    }
    return networks;
}

/// Whether anything differs from how networks are shown at first.
bool isArranged(const PanelModel &model)
{
    if (!model.memories().isEmpty() || !model.zooms().empty())
        return true;
    PanelModel fresh;
    fresh.openNetworks(model.networks());
    return arrangementOf(fresh) != arrangementOf(model);
}

/// Which of the networks before each of the new ones follows: the same one, or else that in its place;
/// -1 for none.
QVector<int> predecessors(const QVector<Network> &before, const QVector<Network> &networks)
{
    QVector<int> result;
    for (const Network &network : networks) {
        const auto found = std::find_if(before.begin(), before.end(), [&](const Network &old) {
            return networkIdentity(old) == networkIdentity(network);
        });
        const int index = found == before.end() ? -1 : int(found - before.begin());
        result.append(result.contains(index) ? -1 : index);
    }
    for (int i = 0; i < int(std::min(before.size(), networks.size())); ++i) {
        if (result.at(i) < 0 && !result.contains(i))
            result[i] = i;
    }
    return result;
}

int highestPort(const QJsonObject &trace)
{
    return std::max(trace["to"_key].toInt(), trace["from"_key].toInt());
}

/// The arrangement of a network for another one: its own traces as far as they exist there, and those
/// of the ports that are new.
QJsonObject arranged(QJsonObject saved, const Network &before, const QJsonObject &first,
                     const Network &network, QStringList &missing)
{
    QJsonArray traces;
    for (const QJsonValue value : saved["traces"_key].toArray()) {
        const QJsonObject trace = value.toObject();
        if (highestPort(trace) <= network.ports)
            traces.append(trace);
        else
            missing << parameterName(trace["to"_key].toInt(), trace["from"_key].toInt());
    }
    const bool nothingLeft = traces.isEmpty() && !saved["traces"_key].toArray().isEmpty();
    for (const QJsonValue value : first["traces"_key].toArray()) {
        QJsonObject trace = value.toObject();
        if (highestPort(trace) <= before.ports && !nothingLeft)
            continue;
        trace["id"_key] = 0; // any that is free: nothing is stored of this trace
        trace["active"_key] = nothingLeft && trace["active"_key].toBool();
        traces.append(trace);
    }
    saved["traces"_key] = traces;
    saved["identity"_key] = first["identity"_key];
    // A part that the new one has, too, stays on show.
    const double start = std::max(saved["start"_key].toDouble(), first["start"_key].toDouble());
    const double stop = std::min(saved["stop"_key].toDouble(), first["stop"_key].toDouble());
    const bool whole = before.frequencies.isEmpty()
        || (saved["start"_key].toDouble() == before.frequencies.constFirst()
            && saved["stop"_key].toDouble() == before.frequencies.constLast());
    const bool part = !whole && start < stop;
    saved["start"_key] = part ? QJsonValue(start) : first["start"_key];
    saved["stop"_key] = part ? QJsonValue(stop) : first["stop"_key];
    return saved;
}

} // namespace

QStringList openArranged(PanelModel *model, const QVector<Network> &networks)
{
    if (model->networks().isEmpty() || !isArranged(*model)) {
        model->openNetworks(networks);
        return {};
    }
    const QVector<Network> before = model->networks();
    const Memories memories = model->memories();
    QJsonObject state = viewState(*model);
    const QJsonArray saved = state["networks"_key].toArray();
    model->openNetworks(networks);

    const QJsonArray first = viewState(*model)["networks"_key].toArray();
    const QVector<int> sources = predecessors(before, networks);
    QStringList missing;
    QJsonArray wanted;
    for (int i = 0; i < networks.size(); ++i) {
        if (const int source = sources.at(i); source >= 0)
            wanted.append(arranged(saved.at(source).toObject(), before.at(source),
                                   first.at(i).toObject(), networks.at(i), missing));
    }
    state["networks"_key] = wanted;
    restoreNetworks(model, state, &memories);
    missing.removeDuplicates();
    missing.sort();
    return missing;
}

} // namespace Panel
