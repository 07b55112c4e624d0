// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The state of a panel as JSON: a sound one with values of its own exchanged, and any bytes as a file.
// What counts as a state is restored, limits and markers included, and is written again as it was.
#include "input.h"

#include <panel/files/panelstate.h>
#include <panel/files/viewstate.h>
#include <panel/model/panelmodel.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <cmath>

using namespace Panel;
using Fuzz::Input;

namespace
{

Network network()
{
    Network made;
    made.name = QStringLiteral("fuzz");
    made.ports = 2;
    made.parameters.resize(4);
    for (int i = 0; i < 5; ++i) {
        made.frequencies << 1e9 + 1e8 * i;
        for (Parameter &parameter : made.parameters) {
            parameter.real << 0.1 * i;
            parameter.imag << -0.2;
        }
    }
    return made;
}

/// Something of everything that a state holds.
QJsonObject soundState()
{
    PanelModel model;
    model.openNetworks({network()});
    const int first = model.traces().first().id;
    (void)model.addTrace(first);
    (void)model.addMarker(first, 1.0);
    (void)model.addMarker(first, 2.5);
    model.setLimits(first, {{TraceFormat::LogMagnitude, true, 1e9, 1.2e9, -3.0, -6.0}});
    model.setZoom({DiagramKind::Smith, 0}, {2.0, 0.1, 0.1});
    const QString name = QDir::temp().filePath(
        QStringLiteral("vna-fuzz-%1.json").arg(QCoreApplication::applicationPid()));
    FUZZ_CHECK(PanelState::save(model, name));
    QFile file(name);
    FUZZ_CHECK(file.open(QIODevice::ReadOnly));
    const QJsonObject state = QJsonDocument::fromJson(file.readAll()).object();
    file.remove();
    FUZZ_CHECK(isViewState(viewState(model)));
    return state;
}

QJsonValue anyValue(Input &input)
{
    switch (input.integer(0, 7)) {
    case 0:
        return QJsonValue();
    case 1:
        return input.flag();
    case 2:
        return input.text(6);
    case 3:
        return QJsonArray{input.real(), input.integer(0, 9)};
    case 4:
        return QJsonObject{{QStringLiteral("id"), input.integer(0, 9)}};
    case 5:
        return input.integer(-2, 20);
    default: {
        const double value = input.real();
        return std::isfinite(value) ? QJsonValue(value) : QJsonValue(1e308);
    }
    }
}

/// Goes down to some value, and exchanges, removes or repeats it.
QJsonValue changed(const QJsonValue &value, Input &input)
{
    const bool further = input.integer(0, 5) > 0;
    if (further && value.isObject() && !value.toObject().isEmpty()) {
        QJsonObject object = value.toObject();
        const QString key = object.keys().at(input.integer(0, int(object.size()) - 1));
        if (input.integer(0, 15) == 0)
            object.remove(key);
        else
            object[key] = changed(object[key], input);
        return object;
    }
    if (further && value.isArray() && !value.toArray().isEmpty()) {
        QJsonArray array = value.toArray();
        const int at = input.integer(0, int(array.size()) - 1);
        const int what = input.integer(0, 15);
        if (what == 0)
            array.removeAt(at);
        else if (what == 1)
            array.append(array.at(at));
        else
            array[at] = changed(array.at(at), input);
        return array;
    }
    return anyValue(input);
}

void checkModel(const PanelModel &model)
{
    for (const Trace &trace : model.traces()) {
        FUZZ_CHECK(std::isfinite(trace.scale.top) && trace.scale.perDivision > 0.0);
        for (const LimitLine &limit : trace.limits)
            FUZZ_CHECK(limit.isValid());
        for (const Marker &marker : model.markersOf(trace.id))
            FUZZ_CHECK(model.indexOf(marker) < double(model.network(trace).points()));
    }
    for (const auto &[id, zoom] : model.zooms())
        FUZZ_CHECK(zoom.factor >= 1.0 && zoom.factor <= Zoom::maximum);
}

} // namespace

void Fuzz::run(Input &input)
{
    static const QJsonObject sound = soundState();
    QByteArray bytes;
    if (input.flag()) {
        bytes = input.rest();
    } else {
        QJsonValue state = sound;
        // More of them leave nothing sound.
        for (int changes = input.integer(0, 3); changes > 0; --changes)
            state = changed(state, input);
        bytes = QJsonDocument(state.toObject()).toJson();
    }
    const QString name = QDir::temp().filePath(
        QStringLiteral("vna-fuzz-%1.json").arg(QCoreApplication::applicationPid()));
    QFile file(name);
    FUZZ_CHECK(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    file.close();
    const PanelState state(name);
    FUZZ_CHECK((state.fault() == PanelState::NoFault) == state.note().isEmpty());
    PanelModel model;
    model.openNetworks({network()});
    if (state.fault() == PanelState::NoFault) {
        state.restore(&model, false);
        checkModel(model);
        // What has been taken over is whole: it is a state, and comes back as it is.
        const QJsonObject taken = viewState(model);
        FUZZ_CHECK(isViewState(taken));
        restoreViewState(&model, taken);
        FUZZ_CHECK(viewState(model) == taken);
    }
    file.remove();
}
