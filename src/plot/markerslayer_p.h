// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <plot/qcp.h>

namespace Plot
{

/// The name of the layer that holds all markers.
inline QString markersLayerName()
{
    return QStringLiteral("markers");
}

/// Makes sure that the markers' layer exists and is the topmost one of \a plot.
inline void raiseMarkersLayer(QCustomPlot *plot)
{
    QCPLayer *const top = plot->layer(plot->layerCount() - 1);
    QCPLayer *const markers = plot->layer(markersLayerName());
    if (!markers)
        plot->addLayer(markersLayerName(), top, QCustomPlot::limAbove);
    else if (markers != top)
        plot->moveLayer(markers, top, QCustomPlot::limAbove);
}

} // namespace Plot
