// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagramplan.h"

#include <algorithm>
#include <cmath>

namespace Panel
{

QVector<PlannedDiagram> planDiagrams(Graph::LayoutType layout, const QVector<Trace> &traces,
                                     int activeTrace)
{
    /// What has to be the same for two traces to share a diagram.
    const auto shareDiagram = [layout](const Trace &a, const Trace &b) {
        if (layout != Graph::LayoutType::Quad)
            return a.onSmithChart() == b.onSmithChart();
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
            diagrams.append(PlannedDiagram{{trace.onSmithChart(), 0}, {}});
        }
        diagrams[diagram].traces.append(trace.id);
        if (trace.id == activeTrace)
            active = diagram;
    }
    if (layout == Graph::LayoutType::Single)
        diagrams = diagrams.mid(active, 1);
    else if (layout == Graph::LayoutType::Quad)
        diagrams = diagrams.mid(active / 4 * 4, 4);
    else if (diagrams.size() == 2 && !firsts.first().onSmithChart())
        std::swap(diagrams[0], diagrams[1]);
    int smiths = 0, cartesians = 0;
    for (PlannedDiagram &diagram : diagrams)
        diagram.id.place = diagram.id.smith ? smiths++ : cartesians++;
    return diagrams;
}

Zoom bounded(Zoom zoom, bool smith)
{
    if (!std::isfinite(zoom.factor) || !std::isfinite(zoom.x) || !std::isfinite(zoom.y)
        || zoom.factor <= 1.0)
        return {};
    zoom.factor = std::min(zoom.factor, Zoom::maximum);
    // A Smith chart bounds its centre by the shape of its widget.
    const double room = smith ? 1.0 : 1.0 - 1.0 / zoom.factor;
    zoom.x = std::clamp(zoom.x, -room, room);
    zoom.y = smith ? std::clamp(zoom.y, -room, room) : 0.0;
    return zoom;
}

} // namespace Panel
