// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tracedata.h"

#include <QtNumeric>

#include <optional>

namespace Panel
{

/// What is called a band around a point of a trace.
enum class BandKind {
    Peak, ///< the magnitude falls to both edges
    Notch, ///< it rises to both
    Absorption, ///< the power that a reflection leaves to the device falls to both
};

/// A band around a point of a trace. An edge that is not in the data is NaN.
struct Bandwidth {
    BandKind kind = BandKind::Peak;
    double low = qQNaN(); ///< edges, in Hz
    double high = qQNaN();
    double decibels = 0.0; ///< of the magnitude at the point

    bool hasBothEdges() const { return high > low; }
    double width() const { return high - low; }
    double centre() const { return (low + high) / 2.0; }
    /// Of a resonance that is loaded by its ports, with edges at half of the power.
    double quality() const { return centre() / width(); }
};

/*! The band around a fractional index at whose edges the magnitude has first fallen, or first risen,
    by so many dB, interpolated in dB between the points. Nothing where it falls on one side and rises
    on the other, where neither edge is in the data, and for a point without a value.

    A dip of a \a reflection is a peak of the power 1 - |S|^2 that is not reflected, and its edges
    are where that has fallen. So 3 dB give half of the power and the loaded Q, however deep the dip is
    (Kajfez and Hwan, "Q-Factor Measurement with Network Analyzer", 1984). */
std::optional<Bandwidth> bandwidthAt(const TraceData &data, double index, double decibels,
                                     bool reflection = false);

} // namespace Panel
