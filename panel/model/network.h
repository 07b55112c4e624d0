// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>
#include <QVector>

#include <complex>

namespace Panel
{

/// One scattering parameter over the sweep, in the form that SmithChartPlot::setCurveData() takes.
struct Parameter {
    QVector<double> real;
    QVector<double> imag;
};

/*! The noise of a two-port at frequencies of its own. All vectors have the same length; empty for a
    network of which no noise is known. */
struct NoiseData {
    /// In Hz, never falling.
    QVector<double> frequencies;
    /// Smallest noise figure, in dB.
    QVector<double> minimumFigure;
    /// The source reflection that gives it: magnitude, and angle in degrees, at referenceOhms.
    QVector<double> optimumMagnitude;
    QVector<double> optimumDegrees;
    /// Equivalent noise resistance in ohms.
    QVector<double> resistance;
    double referenceOhms = 50.0;
};

/// What somebody wrote into a file for people to read.
struct Comment {
    /// After so many points of the sweep; 0 stands before all of them.
    int points = 0;
    /// One line, without the mark that makes it a comment.
    QString text;
};

/*! The scattering parameters of a network of any number of ports over one sweep.
    All vectors have the length of frequencies; copies share them until one is written to. */
struct Network {
    /// What the network is called on the panel: its file's name.
    QString name;
    /// Full path of the file that it was read from; empty for a measurement.
    QString path;
    /// When that file was last changed, as of the reading; invalid for a measurement.
    QDateTime fileTime;
    int ports = 0;
    /// Reference impedance of every port in ohms, above zero; where references differ or are
    /// complex, the real part of that of port 1.
    double referenceOhms = 50.0;
    /// Reference impedance of each port in ohms, real part above zero; empty where all of them are
    /// referenceOhms.
    QVector<std::complex<double>> references;
    /// Stimulus in Hz, never falling.
    QVector<double> frequencies;
    /// By columns: S11, S21, ... of port 1, S12, S22, ... of port 2, and so on.
    QVector<Parameter> parameters;
    NoiseData noise;
    /// In the order of their places.
    QVector<Comment> comments;
    /// What a reader had to assume, each a whole sentence.
    QStringList remarks;

    int points() const { return int(frequencies.size()); }
    /// The wave leaving port `to` over the wave entering port `from`; ports count from 1.
    const Parameter &s(int to, int from) const
    {
        return parameters.at((from - 1) * ports + to - 1);
    }
    /// Reference impedance of a port in ohms; ports count from 1.
    std::complex<double> reference(int port) const
    {
        return references.isEmpty() ? referenceOhms : references.at(port - 1);
    }
    /// Sets the reference impedance of each port.
    void setReferences(const QVector<std::complex<double>> &ohms);
};

/// A value of a sweep at a fractional index, interpolated linearly; an index outside counts as the
/// end next to it. The values must not be empty.
double valueAt(const QVector<double> &values, double index);

/// The fractional index of a frequency, or the end of the sweep next to it. The frequencies must
/// not be empty.
double indexOfFrequency(const QVector<double> &frequencies, double hertz);

/// A stimulus of a sweep, whatever part of it is at hand.
struct StimulusPlace {
    double hertz = 0.0;
    int repeat = 0; ///< how many points of this very frequency lie before; a sweep may stand still

    friend bool operator==(const StimulusPlace &a, const StimulusPlace &b)
    {
        return a.hertz == b.hertz && a.repeat == b.repeat;
    }
    friend bool operator!=(const StimulusPlace &a, const StimulusPlace &b) { return !(a == b); }
};

/// The stimulus at a fractional index. The frequencies must not be empty.
StimulusPlace placeAt(const QVector<double> &frequencies, double index);

/// The fractional index of a stimulus, or -1 outside the frequencies.
double indexOfPlace(const QVector<double> &frequencies, const StimulusPlace &place);

/// "S21"; from ten ports on "S2,11".
QString parameterName(int to, int from);

} // namespace Panel
