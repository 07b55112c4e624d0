// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <vnawidgets_export.h>

#include <QVector>

#include <complex>

namespace SmithChart
{

/// What a point sounds like.
struct Tone {
    double hertz; ///< its pitch
    double pan; ///< from -1, left, to 1, right
    double overtone; ///< share of the octave above, from 0 to 1
    double volume; ///< from 0, silent, to 1
};

/*! The tone of a reflection coefficient: the pitch tells the magnitude, and where it comes from the
    angle.

    220 Hz * 8^|r|: a match hums at 220 Hz, total reflection is three octaves higher, and nothing is
    higher than four. It comes from where the point is on the chart, cos(angle): an open circuit from
    the right, a short circuit from the left, a match from the middle. Below the real axis, where the
    reactance is capacitive, the octave sounds too. What is not finite is silent. */
[[nodiscard]] VNAWIDGETS_EXPORT Tone toneOf(const std::complex<double> &reflection);

/*! Makes samples of tones, which follow each other without a click. */
class VNAWIDGETS_EXPORT ToneSynth
{
public:
    /// Samples have two channels, left before right.
    static constexpr int channels = 2;

    /// Begins in silence; \a rate is in frames per second, a frame being a sample of each channel.
    explicit ToneSynth(int rate = 44100);

    /// Glides to another tone, within some milliseconds.
    void setTone(const Tone &tone);
    /// Appends so many frames.
    void append(QVector<qint16> &samples, int frames);

private:
    int m_rate;
    double m_glide; ///< share of the way to the tone that a frame goes
    double m_phase = 0.0;
    Tone m_tone; ///< where it glides to
    Tone m_now;
};

/// A tone of its own, with a beginning and an end; \a seconds up to 60.
[[nodiscard]] VNAWIDGETS_EXPORT QVector<qint16> toneSamples(const Tone &tone, double seconds,
                                                            int rate = 44100);

/*! A trace from its first point to its last, in so many seconds up to 60.

    Where several points share a moment, the one is heard whose magnitude differs most from what was
    heard before: a dip of one point in a million is not lost. Empty unless there are as many real as
    imaginary parts. */
[[nodiscard]] VNAWIDGETS_EXPORT QVector<qint16> traceSamples(const QVector<double> &real,
                                                             const QVector<double> &imag,
                                                             double seconds, int rate = 44100);

} // namespace SmithChart
