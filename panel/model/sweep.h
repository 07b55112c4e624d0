// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace Panel
{

/// The stimulus of a measurement: evenly spaced frequencies in Hz, both ends included.
struct Sweep {
    static constexpr double lowest = 1e6;
    static constexpr double highest = 9e9;
    static constexpr double leastSpan = 1e3;
    static constexpr int fewestPoints = 201;
    static constexpr int mostPoints = 1000001;

    double start = 1.8e9;
    double stop = 6.6e9;
    int points = 1001;

    /// Whether it keeps the limits; false for a number that is not finite.
    bool isValid() const
    {
        return start >= lowest && stop <= highest && stop - start >= leastSpan
            && points >= fewestPoints && points <= mostPoints;
    }

    bool operator==(const Sweep &other) const
    {
        return start == other.start && stop == other.stop && points == other.points;
    }
    bool operator!=(const Sweep &other) const { return !(*this == other); }
};

} // namespace Panel
