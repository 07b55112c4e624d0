// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <plot/tracegraph.h>

#include "linemask_p.h"

#include <algorithm>
#include <cmath>

namespace Plot
{

TraceGraph::TraceGraph(QCPAxis *keyAxis, QCPAxis *valueAxis)
    : QCPGraph(keyAxis, valueAxis)
{
}

TraceGraph::~TraceGraph() = default;

void TraceGraph::drawLinePlot(QCPPainter *painter, const QVector<QPointF> &lines) const
{
    applyDefaultAntialiasingHint(painter);
    const QPen pen = painter->pen();
    const double width = LineMask::deviceWidth(painter, pen);
    LineMask line(painter, pen);
    const QRectF seen = clipRect();
    // Cut so far outside that neither the width nor the end of a line is seen.
    const double outside = width + 1.0;
    if (!LineMask::suits(painter, pen)
        || !line.begin(seen.adjusted(-outside, -outside, outside, outside),
                       seen.adjusted(-width, -width, width, width), 1)) {
        QCPGraph::drawLinePlot(painter, lines);
        return;
    }
    const auto isGap = [](const QPointF &point) {
        return !std::isfinite(point.x()) || !std::isfinite(point.y());
    };
    const auto end = lines.constEnd();
    for (auto first = lines.constBegin(); first != end;) {
        const auto gap = std::find_if(first, end, isGap);
        line.mask().addLine(
            [&](int i) {
                return SmithRender::StrokeMask::Point{line.toMaskX(first[i].x()),
                                                      line.toMaskY(first[i].y())};
            },
            int(gap - first));
        first = gap == end ? gap : gap + 1;
    }
    line.paint();
}

} // namespace Plot
