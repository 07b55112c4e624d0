// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
/*! \file
    Where the panel's networks come from, and what can be set there. */
#pragma once

#include "stimulus.h"

#include <QString>

#include <cmath>

namespace Panel
{

/// The stimulus of a measurement: evenly spaced frequencies in Hz, both ends included.
struct Sweep {
    static constexpr Stimulus limits{1e6, 9e9};
    static constexpr double smallestSpan = 1e3;
    static constexpr int minimumPoints = 2;
    static constexpr int maximumPoints = 1000001;

    double start = 1.8e9;
    double stop = 6.6e9;
    int points = 1001;

    Stimulus stimulus() const { return {start, stop}; }
    /// Whether it keeps the limits; false for a number that is not finite.
    bool isValid() const
    {
        return start >= limits.start && stop <= limits.stop && stop - start >= smallestSpan
            && points >= minimumPoints && points <= maximumPoints;
    }

    friend bool operator==(const Sweep &a, const Sweep &b)
    {
        return a.start == b.start && a.stop == b.stop && a.points == b.points;
    }
    friend bool operator!=(const Sweep &a, const Sweep &b) { return !(a == b); }
};

/// Where networks come from. The numbers stand in saved states.
enum class Source {
    Files,
    Antenna, ///< simulated, with one port; can be tuned
    Filter, ///< simulated, with two ports
    Cable, ///< simulated, with one port; open at the far end, with much noise
    Instrument, ///< a real analyser at the other end of a cable
};
constexpr int sourceCount = 5;

constexpr bool isSimulated(Source source)
{
    return source != Source::Files && source != Source::Instrument;
}

/// What a number can be set to, both ends included; empty for what cannot be set.
struct NumberRange {
    double lowest = 0.0;
    double highest = -1.0;

    bool isEmpty() const { return !(lowest <= highest); }
    bool holds(double value) const { return value >= lowest && value <= highest; }
    /// The value, or the end next to it. The range must not be empty.
    double bounded(double value) const { return std::fmin(std::fmax(value, lowest), highest); }
};

/// How a point is measured, beside its frequency.
struct Acquisition {
    /// Intermediate-frequency bandwidth in Hz; NaN where it is not known.
    double bandwidth = std::nan("");
    /// Level at the port in dBm; NaN where it is not known.
    double power = std::nan("");
    /// Sweeps that are averaged; 1 for none.
    int averages = 1;

    friend bool operator==(const Acquisition &a, const Acquisition &b)
    {
        const auto same = [](double x, double y) {
            return x == y || (std::isnan(x) && std::isnan(y));
        };
        return same(a.bandwidth, b.bandwidth) && same(a.power, b.power) && a.averages == b.averages;
    }
    friend bool operator!=(const Acquisition &a, const Acquisition &b) { return !(a == b); }
};

/// What a source can be set to. By default nothing: a file has what it has.
struct SourceLimits {
    NumberRange frequency; ///< in Hz
    double smallestSpan = 0.0; ///< in Hz
    NumberRange points;
    NumberRange bandwidth; ///< in Hz
    NumberRange power; ///< in dBm
    NumberRange averages;
    NumberRange tuning; ///< of the device under test, in Hz

    /// Whether the source measures at all, over and over.
    bool measures() const { return !points.isEmpty(); }
    /// Whether the sweep keeps the limits; false for a number that is not finite.
    bool allow(const Sweep &sweep) const;
    /// The acquisition with each number that can be set moved into its range.
    Acquisition bounded(const Acquisition &acquisition) const;
};

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

/// The limits of a simulated source; those of files, which cannot be set, for the others.
SourceLimits sourceLimits(Source source);

/// What the panel calls a source: "File", "Antenna".
QString sourceName(Source source);

} // namespace Panel
