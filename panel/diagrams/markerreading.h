// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
/*! \file
    What markers read of their points, as numbers and as text. */
#pragma once

#include <panel/model/panelmodel.h>

#include <QStringList>

namespace Panel
{

/// What a marker shows of its point, as text; values that do not exist are dashes.
struct MarkerReading {
    double hertz = 0.0;
    QString frequency; ///< "2.450 GHz"
    /// One to three: "48.21 Ω", "+j3.100 Ω", "204.5 pH".
    QStringList values;
    /// The same as numbers, to sort by; NaN for a dash.
    QVector<double> numbers;

    void add(double number, const QString &text);
};

/// Whether a trace has an impedance to read.
inline bool reflects(const Trace &trace)
{
    return trace.to == trace.from;
}

/*! Reads a point on the Smith chart or in a polar diagram.

    Impedance and admittance are those of impedanceOf() and admittanceOf(), and the standing wave
    ratio is (1 + |Γ|) / (1 - |Γ|).
    Automatic counts as Impedance. */
MarkerReading readOnSmithChart(const MarkedPoint &point, ReadoutFormat format);
/// The same as the difference from a reference point, part by part; elements are left out.
MarkerReading readOnSmithChart(const MarkedPoint &point, ReadoutFormat format,
                               const MarkedPoint &reference);

/// Reads a marker in the format of its trace, as the difference from the trace's reference marker if
/// there is another one. While one of them is parked there are dashes but for the frequency.
MarkerReading readMarker(const PanelModel &model, const Marker &marker);
/// What the values of a trace's markers are called: "R", "X", "L / C".
QStringList valueNames(const PanelModel &model, const Trace &trace);
/// The standing wave ratio at a marker, whatever it reads; NaN where its trace reflects nothing or shows
/// something made of its data, while it reads differences, and where it reads the ratio itself.
double vswrAt(const PanelModel &model, const Marker &marker);
/// "M2", or with a sign where it is fixed, a reference or read against one: "M1F", "M1R", "\u0394M2".
QString markerName(const PanelModel &model, const Marker &marker);
/// What is read of the band around the selected marker; empty while it is not asked for.
QString bandwidthText(const PanelModel &model);

/// Reads a point of a Cartesian diagram.
MarkerReading readOnCartesian(const MarkedPoint &point, TraceFormat format);
MarkerReading readOnCartesian(const MarkedPoint &point, TraceFormat format,
                              const MarkedPoint &reference);

} // namespace Panel
