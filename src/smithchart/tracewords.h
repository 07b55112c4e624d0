// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
/*! \file
    A trace in words, to be heard or felt in braille: what it is like, what is at a place on it, what a
    point's values are. In the language in force. */
#pragma once

#include <vnawidgets_export.h>

#include <smithchart/tracesummary.h>
#include <smithchart/tracewalk.h>

#include <QString>
#include <QStringList>

#include <complex>
#include <functional>
#include <optional>

namespace SmithChart
{

/// The columns of a trace as a table, as pointValue() gives them.
enum PointColumn {
    StimulusColumn,
    ResistanceColumn,
    ReactanceColumn,
    MagnitudeColumn, ///< of the reflection coefficient
    PhaseColumn, ///< of it, in degrees
    VswrColumn,
    PointColumnCount,
};

/// A point of a trace.
struct PointValues {
    double stimulus; ///< such as a frequency in Hz
    std::complex<double> reflection; ///< its reflection coefficient
    std::complex<double> impedance; ///< in \c unit
    QString unit; ///< of the impedance, such as "Ω"; empty if it is normalised
};

/// Turns a stimulus value into text with its unit.
using StimulusText = std::function<QString(double)>;

/// "2.45 GHz": a value in Hz, of up to so many digits.
[[nodiscard]] VNAWIDGETS_EXPORT QString hertzText(double hertz, int digits = 7);
/// The impedance of a reflection coefficient, in units of the reference; infinite for 1.
[[nodiscard]] VNAWIDGETS_EXPORT std::complex<double>
normalisedImpedance(const std::complex<double> &reflection);
/// The names of all columns, with units.
[[nodiscard]] VNAWIDGETS_EXPORT QStringList pointColumns(const QString &impedanceUnit);
/// A value of a point but for its stimulus, as a plain number of up to six digits.
[[nodiscard]] VNAWIDGETS_EXPORT QString pointValue(const PointValues &point, PointColumn column);

/// "Resonance, marker": what is at a place; empty where nothing is. \a vswr is that of the circle.
[[nodiscard]] VNAWIDGETS_EXPORT QString featureText(TraceFeatures features, double vswr);
/// "Resonance: 2.45 GHz, 48.2 + j0.1 Ω, VSWR 1.04", and by how much the reflection differs from the
/// place before, if there was one.
[[nodiscard]] VNAWIDGETS_EXPORT QString placeText(
    TraceFeatures features, double vswr, const PointValues &point, const StimulusText &stimulusText,
    const std::optional<std::complex<double>> &before = std::nullopt);
/// "S11 from 2.3 to 2.6 GHz: best match at 2.45 GHz with a VSWR of 1.04; VSWR below 2 from 2.4 to
/// 2.5 GHz, 100 MHz wide; 1 loop." \a stimulus is as long as the trace that was summarised with
/// \a vswr.
[[nodiscard]] VNAWIDGETS_EXPORT QString summaryText(const QString &name,
                                                    const TraceSummary &summary,
                                                    const QVector<double> &stimulus,
                                                    const StimulusText &stimulusText,
                                                    double vswr = 2.0);

} // namespace SmithChart
