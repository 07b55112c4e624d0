// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tracestate.h"

#include <panel/model/panelmodel.h>

#include <QJsonArray>

#include <algorithm>
#include <cmath>

namespace Panel
{

namespace
{

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

} // namespace

bool isTraceState(const QJsonObject &trace)
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

QJsonObject traceState(const PanelModel &model, const Trace &trace)
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
            {"name"_key, trace.name},
            {"diagram"_key, trace.diagram},
            {"active"_key, active && active->id == trace.id},
            {"reference"_key, reference ? reference->number : 0},
            {"smoothing"_key, trace.smoothing},
            {"math"_key, int(trace.math)},
            {"limits"_key, limits},
            {"markers"_key, markers}};
}

void restoreTraceState(PanelModel *model, int id, const QJsonObject &saved,
                       const Memories *memories)
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
    model->setTraceName(id, saved["name"_key].toString());
    model->restoreTraceDiagram(id, saved["diagram"_key].toInt());
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

} // namespace Panel
