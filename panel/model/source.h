// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
/*! \file
    Where the panel's networks come from, and what can be set there. */
#pragma once

#include "stimulus.h"

#include <QString>

namespace Panel
{

/// The stimulus of a measurement: evenly spaced frequencies in Hz, both ends included.
struct Sweep {
    static constexpr Stimulus limits{1e6, 9e9};
    static constexpr double smallestSpan = 1e3;
    static constexpr int fewestPoints = 2;
    static constexpr int mostPoints = 1000001;

    double start = 1.8e9;
    double stop = 6.6e9;
    int points = 1001;

    Stimulus stimulus() const { return {start, stop}; }
    /// Whether it keeps the limits; false for a number that is not finite.
    bool isValid() const
    {
        return start >= limits.start && stop <= limits.stop && stop - start >= smallestSpan
            && points >= fewestPoints && points <= mostPoints;
    }

    friend bool operator==(const Sweep &a, const Sweep &b)
    {
        return a.start == b.start && a.stop == b.stop && a.points == b.points;
    }
    friend bool operator!=(const Sweep &a, const Sweep &b) { return !(a == b); }
};

/// Where networks come from.
enum class Source {
    Files,
    Antenna, ///< simulated, with one port; can be tuned
    Filter, ///< simulated, with two ports
    Cable, ///< simulated, with one port; open at the far end, with much noise
};
constexpr int sourceCount = 4;

constexpr bool isSimulated(Source source)
{
    return source != Source::Files;
}

constexpr bool isTunable(Source source)
{
    return source == Source::Antenna;
}

/// What the antenna's lower resonance can be tuned to, in Hz: both stay in its default sweep.
constexpr Stimulus tuningLimits{2.0e9, 2.9e9};
constexpr double defaultTuning = 2.45e9;

/// The frequencies at which a simulated source has something to show, with so many points.
constexpr Sweep defaultSweep(Source source, int points)
{
    return source == Source::Antenna ? Sweep{1.8e9, 6.6e9, points}
        : source == Source::Filter   ? Sweep{2.3e9, 2.6e9, points}
                                     : Sweep{10e6, 1.5e9, points};
}

/// What the panel calls a source: "File", "Antenna".
QString sourceName(Source source);

} // namespace Panel
