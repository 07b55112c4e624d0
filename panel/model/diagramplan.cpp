// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagramplan.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace Panel
{

QVector<PlannedDiagram> planDiagrams(Graph::LayoutType layout, const QVector<Trace> &traces,
                                     int activeTrace)
{
    /// What has to be the same for two traces to share a diagram.
    const auto shareDiagram = [layout](const Trace &a, const Trace &b) {
        if (layout != Graph::LayoutType::Quad)
            return a.kind() == b.kind();
        return a.format == b.format && a.to == b.to && a.from == b.from;
    };
    QVector<Trace> firsts; // of each diagram
    QVector<PlannedDiagram> diagrams;
    int active = 0;
    for (const Trace &trace : traces) {
        int diagram = 0;
        while (diagram < firsts.size() && !shareDiagram(firsts.at(diagram), trace))
            ++diagram;
        if (diagram == firsts.size()) {
            firsts.append(trace);
            diagrams.append(PlannedDiagram{{trace.kind(), 0}, {}});
        }
        diagrams[diagram].traces.append(trace.id);
        if (trace.id == activeTrace)
            active = diagram;
    }
    if (layout == Graph::LayoutType::Single)
        diagrams = diagrams.mid(active, 1);
    else if (layout == Graph::LayoutType::Quad)
        diagrams = diagrams.mid(active / 4 * 4, 4);
    else
        std::sort(diagrams.begin(), diagrams.end(),
                  [](const PlannedDiagram &a, const PlannedDiagram &b) { return a.id < b.id; });
    std::map<DiagramKind, int> places;
    for (PlannedDiagram &diagram : diagrams)
        diagram.id.place = places[diagram.id.kind]++;
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
