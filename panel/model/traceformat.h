// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
/*! \file
    What can be drawn of a scattering parameter, and what can be read of a point of it. */
#pragma once

#include <QString>

namespace Panel
{

/// How a trace is drawn.
enum class TraceFormat {
    Smith, ///< on the Smith chart
    LogMagnitude, ///< in dB over the frequency
    Phase, ///< in degrees over the frequency, from -180 to 180
    Vswr, ///< the voltage standing wave ratio over the frequency
};
constexpr int traceFormatCount = 4;

/// What a marker reads of a point on the Smith chart.
enum class ReadoutFormat {
    Automatic, ///< what the grid shows: admittance on its grid, impedance otherwise
    Impedance, ///< R + jX, with the inductance or capacitance in series
    Admittance, ///< G + jB, with the inductance or capacitance in parallel
    MagnitudePhase, ///< magnitude and phase of the reflection coefficient
    Decibels, ///< magnitude in dB, and phase
    Vswr,
};
constexpr int readoutFormatCount = 6;

/// The part of a trace's values that a Cartesian diagram shows.
struct Scale {
    double perDivision = 1.0;
    double top = 0.0; ///< the value at the diagram's upper edge, its reference

    friend bool operator==(const Scale &a, const Scale &b)
    {
        return a.perDivision == b.perDivision && a.top == b.top;
    }
    friend bool operator!=(const Scale &a, const Scale &b) { return !(a == b); }
};

/// How many divisions a Cartesian diagram has from top to bottom.
int divisions(TraceFormat format);
/// The scale that a trace of this format begins with; its highest value is needed for decibels.
Scale usualScale(TraceFormat format, double highest);

/// "LogM": short enough for a list of traces.
QString formatName(TraceFormat format);
/// "R + jX".
QString formatName(ReadoutFormat format);
/// "dB", "°", "U" of the Smith chart, or nothing.
QString formatUnit(TraceFormat format);
/// "10 dB/", "1.00 U/": a scale as the list of traces has it.
QString scaleText(TraceFormat format, const Scale &scale);

} // namespace Panel
