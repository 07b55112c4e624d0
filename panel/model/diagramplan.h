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

/*! All diagrams that the traces make in a layout, in reading order.

    Traces share one by their kind: the Smith chart first and the Cartesian diagram last, with a polar
    one between them; in a layout of four, by parameter and format. Where the user has put traces into
    diagrams, those come first, by their numbers, and hold traces of one kind each. */
QVector<PlannedDiagram> allDiagrams(Graph::LayoutType layout, const QVector<Trace> &traces);

/*! Those of them that the layout shows: the one of the active trace, or up to four, of more the four
    with the active trace. */
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
