// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
/*! \file
    Which diagrams there are, which trace is in which, and what part of each is seen. */
#pragma once

#include "traces.h"

#include <platform/layoutmanagerprofile.h>

namespace Panel
{

/// A diagram by its kind and its place among those of its kind, from 0.
struct DiagramId {
    DiagramKind kind = DiagramKind::Smith;
    int place = 0;

    friend bool operator==(const DiagramId &a, const DiagramId &b)
    {
        return a.kind == b.kind && a.place == b.place;
    }
    friend bool operator!=(const DiagramId &a, const DiagramId &b) { return !(a == b); }
    friend bool operator<(const DiagramId &a, const DiagramId &b)
    {
        return a.kind != b.kind ? a.kind < b.kind : a.place < b.place;
    }
};

/// A diagram and the ids of its traces, of which it has at least one.
struct PlannedDiagram {
    DiagramId id;
    QVector<int> traces;
};

/*! The diagrams of a layout in reading order.

    One diagram shows all traces of the active one's kind; two have the Smith chart first and the
    Cartesian diagram second, with a polar one between them where there are such traces; four are for
    a parameter and format each, and of more the four with the active trace. A diagram without traces
    is left out. */
QVector<PlannedDiagram> planDiagrams(Graph::LayoutType layout, const QVector<Trace> &traces,
                                     int activeTrace);

/// The part of a diagram that is seen.
struct Zoom {
    static constexpr double maximum = 200.0;

    double factor = 1.0; ///< 1 shows the whole diagram; up to maximum
    /// The centre of what is seen: in a plane in units of its outermost circle's radius, over
    /// the frequency as a share of half the span, from -1 at the left edge to 1 at the right one.
    double x = 0.0;
    double y = 0.0;

    bool isWhole() const { return !(factor > 1.0); }
    friend bool operator==(const Zoom &a, const Zoom &b)
    {
        return a.factor == b.factor && a.x == b.x && a.y == b.y;
    }
    friend bool operator!=(const Zoom &a, const Zoom &b) { return !(a == b); }
};

/// The zoom brought inside its limits: finite, a factor from 1 to the maximum, and over the
/// frequency nothing beyond the edges.
Zoom bounded(Zoom zoom, DiagramKind kind);

} // namespace Panel
