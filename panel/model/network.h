// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QVector>

namespace Panel
{

/// One scattering parameter over the sweep, in the form that SmithChartPlot::setCurveData() takes.
struct Parameter {
    QVector<double> real;
    QVector<double> imag;
};

/*! The scattering parameters of a one- or two-port over one sweep.
    All vectors have the length of frequencies; copies share them until one is written to. */
struct Network {
    /// What the network is called on the panel: its file's name.
    QString name;
    /// Full path of the file that it was read from; empty for a measurement.
    QString path;
    int ports = 0;
    double referenceOhms = 50.0;
    /// Stimulus in Hz, never falling.
    QVector<double> frequencies;
    /// S11 of a one-port; S11, S21, S12, S22 of a two-port.
    QVector<Parameter> parameters;

    int points() const { return int(frequencies.size()); }
    /// The wave leaving port `to` over the wave entering port `from`; ports count from 1.
    const Parameter &s(int to, int from) const
    {
        return parameters.at((from - 1) * ports + to - 1);
    }
};

/// A value of a sweep at a fractional index, interpolated linearly; an index outside counts as the
/// end next to it. The values must not be empty.
double valueAt(const QVector<double> &values, double index);

/// The fractional index of a frequency, or the end of the sweep next to it. The frequencies must
/// not be empty.
double indexOfFrequency(const QVector<double> &frequencies, double hertz);

} // namespace Panel
