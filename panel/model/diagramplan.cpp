// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagramplan.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <utility>
#include <vector>

namespace Panel
{

namespace
{

/// How many diagrams a layout of several shows.
constexpr int s_shownDiagrams = 4;

void countPlaces(QVector<PlannedDiagram> &diagrams)
{
    std::map<DiagramKind, int> places;
    for (PlannedDiagram &diagram : diagrams)
        diagram.id.place = places[diagram.id.kind]++;
}

} // namespace

QVector<PlannedDiagram> allDiagrams(Graph::LayoutType layout, const QVector<Trace> &traces)
{
    const bool byParameter = layout == Graph::LayoutType::Quad;
    /// What has to be the same for two traces to share a diagram.
    const auto shareDiagram = [byParameter](const Trace &a, const Trace &b) {
        if (a.diagram != b.diagram || a.kind() != b.kind())
            return false;
        return a.diagram > 0 || !byParameter
            || (a.format == b.format && a.to == b.to && a.from == b.from);
    };
    struct Group {
        Trace first;
        PlannedDiagram diagram;
    };
    std::vector<Group> groups;
    for (const Trace &trace : traces) {
        const auto found = std::find_if(groups.begin(), groups.end(), [&](const Group &group) {
            return shareDiagram(group.first, trace);
        });
        if (found == groups.end())
            groups.push_back({trace, {{trace.kind(), 0}, {trace.id}}});
        else
            found->diagram.traces.append(trace.id);
    }
    const auto order = [byParameter](const Trace &trace) {
        const bool placed = trace.diagram > 0;
        const int number = placed ? trace.diagram : std::numeric_limits<int>::max();
        return std::pair(number, placed || !byParameter ? int(trace.kind()) : 0);
    };
    std::stable_sort(groups.begin(), groups.end(), [&](const Group &a, const Group &b) {
        return order(a.first) < order(b.first);
    });
    QVector<PlannedDiagram> diagrams;
    for (const Group &group : groups)
        diagrams.append(group.diagram);
    countPlaces(diagrams);
    return diagrams;
}

QVector<PlannedDiagram> planDiagrams(Graph::LayoutType layout, const QVector<Trace> &traces,
                                     int activeTrace)
{
    QVector<PlannedDiagram> diagrams = allDiagrams(layout, traces);
    const auto active =
        std::find_if(diagrams.begin(), diagrams.end(), [&](const PlannedDiagram &diagram) {
            return diagram.traces.contains(activeTrace);
        });
    const int index = active == diagrams.end() ? 0 : int(active - diagrams.begin());
    const int count = layout == Graph::LayoutType::Single ? 1 : s_shownDiagrams;
    diagrams = diagrams.mid(index / count * count, count);
    countPlaces(diagrams);
    return diagrams;
}

Zoom bounded(Zoom zoom, DiagramKind kind)
{
    if (!std::isfinite(zoom.factor) || !std::isfinite(zoom.x) || !std::isfinite(zoom.y)
        || zoom.factor <= 1.0)
        return {};
    zoom.factor = std::min(zoom.factor, Zoom::maximum);
    // A plane bounds its centre by the shape of its widget.
    const bool plane = kind != DiagramKind::Cartesian;
    const double room = plane ? 1.0 : 1.0 - 1.0 / zoom.factor;
    zoom.x = std::clamp(zoom.x, -room, room);
    zoom.y = plane ? std::clamp(zoom.y, -room, room) : 0.0;
    return zoom;
}

} // namespace Panel
