// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What a pointer means on a Cartesian diagram.
#include "cartesianview.h"

#include <algorithm>
#include <cmath>

namespace Panel
{

void CartesianView::dragTo(int traceId, int number, const QPointF &position)
{
    const double index = nearestIndex(traceId, position);
    if (index >= 0.0)
        Q_EMIT markerMoveRequested(traceId, number, index);
}

/// The index of a trace's point below or above a point of the plot widget; -1 without data.
double CartesianView::nearestIndex(int traceId, const QPointF &position) const
{
    const QVector<double> &frequencies = m_model->network(*m_model->trace(traceId)).frequencies;
    return frequencies.isEmpty()
        ? -1.0
        : indexOfFrequency(frequencies, plot()->xAxis->pixelToCoord(position.x()));
}

int CartesianView::pointsPerStep(int traceId) const
{
    const QVector<double> &frequencies = m_model->network(*m_model->trace(traceId)).frequencies;
    const QCPRange range = m_frequencies.range();
    const auto shown = std::upper_bound(frequencies.begin(), frequencies.end(), range.upper)
        - std::lower_bound(frequencies.begin(), frequencies.end(), range.lower);
    return qMax(1, int(shown) / qMax(1, m_laidOut.width()));
}

Zoom CartesianView::zoomedAt(const QPointF &position, double factor) const
{
    return m_frequencies.zoomedAt(coordinates(position).x(), m_model->zoom(id()), factor);
}

Zoom CartesianView::movedTo(const QPointF &coordinates, const QPointF &position) const
{
    return m_frequencies.shifted(coordinates.x(), this->coordinates(position).x(),
                                 m_model->zoom(id()));
}

Hit CartesianView::hitLine(const QPointF &position) const
{
    Hit nearest;
    double nearestDistance = reach;
    for (const Trace &trace : traces()) {
        const double distance =
            reaches(trace) ? m_lines.at(trace.id).graph->selectTest(position, false) : -1.0;
        if (distance < 0.0 || distance >= nearestDistance)
            continue;
        nearestDistance = distance;
        nearest = {Hit::Line, trace.id, 0, std::round(nearestIndex(trace.id, position))};
    }
    return nearest;
}

} // namespace Panel
