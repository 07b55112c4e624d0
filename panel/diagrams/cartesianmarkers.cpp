// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cartesianmarkers.h"

#include <panel/ground/look.h>
#include <panel/model/cartesian.h>

#include <plot/markerselection.h>

#include <cmath>

namespace Panel
{

namespace
{

/// Draws it above all others of its layer.
void bringToFront(QCPLayerable *item)
{
    if (item)
        item->setLayer(item->layer());
}

} // namespace

void showSign(Plot::Marker &drawn, const Marker &marker)
{
    drawn.setShape(marker.isFixed() ? Plot::Narrow : Plot::Equilateral);
    drawn.getLabel()->setText(QString::number(marker.number)
                              + QLatin1String(marker.isFixed() ? "F" : ""));
}

CartesianMarkers::CartesianMarkers(const PanelModel *model, QCustomPlot *plot)
    : m_model(model)
    , m_plot(plot)
{
}

const Plot::Marker *CartesianMarkers::drawn(int traceId, int number) const
{
    const auto found = m_markers.find({traceId, number});
    return found == m_markers.end() ? nullptr : &found->second;
}

bool CartesianMarkers::place(const Trace &trace, const Marker &placed, QCPGraph *line)
{
    const Key key(trace.id, placed.number);
    auto found = m_markers.find(key);
    const bool isNew = found == m_markers.end();
    if (isNew) {
        found =
            m_markers.emplace(key, Plot::Marker(m_plot, placed.number, Plot::PointingDown)).first;
    }
    Plot::Marker &marker = found->second;
    showSign(marker, placed);
    const MarkedPoint point = m_model->markedPoint(placed);
    const double hertz = m_model->hertzOf(placed);
    const double value = point.index < 0.0 ? qQNaN() : point.value(trace.format);
    const bool shown =
        line && trace.visible && std::isfinite(value) && line->keyAxis()->range().contains(hertz);
    if (shown) {
        // Beyond the scale it stands at the diagram's edge, of which the upper one lies a pixel
        // outside for the plot; what stands on that pixel's border must not be rounded out of it.
        const QCPRange scale = line->valueAxis()->range();
        const double pixel = 1.001 * scale.size() / qMax(2, m_plot->axisRect()->height());
        marker.setPositionCoordinates(line, hertz, qBound(scale.lower, value, scale.upper - pixel));
    }
    if (marker.isVisible() != shown)
        marker.setVisible(shown);
    return isNew;
}

void CartesianMarkers::showSelected(const Trace *active)
{
    const Look look = currentLook();
    const auto raise = [](const Plot::Marker &marker) {
        bringToFront(marker.getTracer());
        bringToFront(marker.getLabel());
    };
    const Plot::Marker *selected = nullptr;
    for (auto &[key, marker] : m_markers) {
        const Marker *const own = m_model->marker(key.first, key.second);
        const bool filled = own && m_model->isSelected(*own);
        Plot::drawMarker(marker, QPen(look.trace(key.first)), filled);
        if (filled)
            selected = &marker;
        else if (active && active->id == key.first)
            raise(marker);
    }
    if (selected)
        raise(*selected);
}

} // namespace Panel
