// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tracedata.h"

#include <optional>

namespace Panel
{

/// A pass band or a notch around a point of a trace.
struct Bandwidth {
    double low = 0.0; ///< edges, in Hz
    double high = 0.0;
    double decibels = 0.0; ///< of the magnitude at the point
    bool notch = false; ///< the magnitude rises to both edges, instead of falling

    double width() const { return high - low; }
    double centre() const { return (low + high) / 2.0; }
    double quality() const { return centre() / width(); }
};

/*! The band around a fractional index at whose edges the magnitude has first fallen, or first risen,
    by so many dB on both sides, interpolated in dB between the points. Nothing where it falls on
    one side and rises on the other, where the data end before, and for a point without a value. */
std::optional<Bandwidth> bandwidthAt(const TraceData &data, double index, double decibels);

} // namespace Panel
