// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <plot/qcp.h>

#include <QString>

/// The names of the plot's layers that a Smith chart uses; that of the markers is
/// Plot::markersLayerName().
namespace SmithLayers
{

/// The host's own content, above the chart; a plot without it has "main" in its place.
inline QString base()
{
    return QStringLiteral("rect_traces");
}

inline QString grid()
{
    return QStringLiteral("smithGrid");
}

inline QString tracers()
{
    return QStringLiteral("tracers");
}

inline QString activeTracers()
{
    return QStringLiteral("tracers_active");
}

inline QString boundary()
{
    return QStringLiteral("smithBoundary");
}

/// Reference circles and limit areas, over the grid and under the traces.
inline QString references()
{
    return QStringLiteral("smithReferences");
}

/// What fails a limit, over the traces.
inline QString failures()
{
    return QStringLiteral("smithFailures");
}

/// The name of a layer, made above another if need be; of the plot's main layer where that other
/// is missing.
inline QString ensure(QCustomPlot *plot, const QString &name, const QString &below)
{
    if (plot->layer(name))
        return name;
    QCPLayer *const neighbour = plot->layer(below);
    if (!neighbour)
        return QStringLiteral("main");
    plot->addLayer(name, neighbour, QCustomPlot::limAbove);
    return name;
}

} // namespace SmithLayers
