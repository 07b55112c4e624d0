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
    LinearMagnitude,
    RealPart,
    ImaginaryPart,
    UnwrappedPhase, ///< in degrees over the frequency, without jumps
    GroupDelay, ///< in ns
    Resistance, ///< in ohms
    Reactance, ///< in ohms
    Quality, ///< |X| / R
    Polar, ///< in the plane of the parameter: magnitude from the centre, angle around it
};
constexpr int traceFormatCount = 13;

/// What a diagram has for axes.
enum class DiagramKind {
    Smith, ///< the plane of the reflection coefficient
    Polar, ///< the same plane, of any parameter
    Cartesian, ///< values over the frequency
};

/// The kind of diagram that shows a format.
DiagramKind diagramKind(TraceFormat format);

/// What a marker reads of a point on the Smith chart or in a polar diagram.
enum class ReadoutFormat {
    /// What the grid shows: admittance on its grid, magnitude and phase on a polar one, impedance
    /// otherwise.
    Automatic,
    Impedance, ///< R + jX, with the inductance or capacitance in series
    Admittance, ///< G + jB, with the inductance or capacitance in parallel
    MagnitudePhase, ///< magnitude and phase of the reflection coefficient
    Decibels, ///< magnitude in dB, and phase
    Vswr,
};
constexpr int readoutFormatCount = 6;

/*! The part of a trace's values that a Cartesian diagram shows.
    A polar diagram has its lower end in the centre and its upper one on the outermost circle. */
struct Scale {
    double perDivision = 1.0;
    double top = 0.0; ///< the value at the diagram's upper edge
    int position = 0; ///< of the reference, in divisions below that edge

    /// The value that stays where it is when the division changes.
    double reference() const { return top - position * perDivision; }
    /// \name The same with one of them changed and the reference value at its position
    ///@{
    Scale withReference(double value) const
    {
        return {perDivision, value + position * perDivision, position};
    }
    Scale withDivision(double division) const
    {
        return {division, reference() + position * division, position};
    }
    Scale withPosition(int divisions) const
    {
        return {perDivision, reference() + divisions * perDivision, divisions};
    }
    ///@}

    friend bool operator==(const Scale &a, const Scale &b)
    {
        return a.perDivision == b.perDivision && a.top == b.top && a.position == b.position;
    }
    friend bool operator!=(const Scale &a, const Scale &b) { return !(a == b); }
};

/// What is fixed for a trace format; one row of a table.
struct FormatTraits {
    const char *unit; ///< "dB", "°" or nothing
    int decimals; ///< of a value in a read-out
    int divisions; ///< of a Cartesian diagram from top to bottom, of a polar one to its centre
    Scale defaultScale;
    double smallestDivision; ///< that can be set
    double largestDivision;
    bool beginsFitted; ///< to its data, because no scale suits all of them
    double peakExcursion; ///< that a peak rises above the points around it, more than noise does
};

const FormatTraits &traits(TraceFormat format);

/// The scale that a trace of this format begins with; for decibels its highest value decides.
Scale defaultScale(TraceFormat format, double highest);
/// A scale at which values from the lowest to the highest fill most of the diagram: divisions of 1,
/// 2 or 5, and 45 degrees. The default scale for values that are not finite. A polar diagram
/// goes from 0 to the highest value.
Scale fittingScale(TraceFormat format, double lowest, double highest);
/// The value at the diagram's lower edge.
double bottom(TraceFormat format, const Scale &scale);

/// "LogM": short enough for a list of traces.
QString formatName(TraceFormat format);
/// "R + jX".
QString formatName(ReadoutFormat format);
/// The unit of a Cartesian diagram's values.
QString formatUnit(TraceFormat format);
/// What stands between a number and that unit: nothing before a degree sign, or a space.
QString unitSpace(TraceFormat format);
/// "10 dB/": a division as the list of traces has it.
QString divisionText(TraceFormat format, double perDivision);
/// "1.00 U/": the division of a Smith chart at a magnification.
QString zoomText(double zoom);

} // namespace Panel
