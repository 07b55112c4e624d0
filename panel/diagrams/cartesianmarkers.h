// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <panel/model/panelmodel.h>

#include <plot/marker.h>

#include <map>
#include <utility>

namespace Panel
{

/// Gives a marker its number, and one that is fixed a sign of its own.
void showSign(Plot::Marker &drawn, const Marker &marker);

/// The markers that a Cartesian diagram draws: one for each of the model's on its traces.
class CartesianMarkers
{
public:
    CartesianMarkers(const PanelModel *model, QCustomPlot *plot);

    /// As it is drawn, or null.
    const Plot::Marker *drawn(int traceId, int number) const;
    /// Draws a marker on its trace's line, within the frequencies and values of the line's axes;
    /// without a line, or where its trace has no value, it is hidden. Returns whether it is new.
    bool place(const Trace &trace, const Marker &marker, QCPGraph *line);
    void remove(int traceId, int number) { m_markers.erase({traceId, number}); }
    void clear() { m_markers.clear(); }
    /// Fills the selected marker, and draws it over all others, and those of the active trace over
    /// the rest.
    void showSelected(const Trace *active);

private:
    using Key = std::pair<int, int>; ///< trace and number

    const PanelModel *m_model;
    QCustomPlot *m_plot;
    std::map<Key, Plot::Marker> m_markers;
};

} // namespace Panel
