// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

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

} // namespace SmithLayers
