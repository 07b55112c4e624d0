// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "tracetone.h"

#include "arcstretch_p.h"

#include <cmath>
#include <limits>

namespace SmithChart
{

namespace
{

constexpr double lowestPitch = 220.0;
/// Above total reflection, as of what amplifies; a further octave.
constexpr double greatestMagnitude = 4.0 / 3.0;
/// Around a match the angle is noise.
constexpr double smallestMagnitude = 0.01;
constexpr double overtoneShare = 0.5;
/// Of full scale, so that two voices and a screen reader have room.
constexpr double loudness = 0.3 * 32767.0;
/// In seconds: how long a glide takes, and for how long a moment has one tone.
constexpr double glideTime = 0.005;
constexpr double moment = 0.0015;
constexpr double fadeTime = 0.03;
constexpr double longest = 60.0;

int framesOf(double seconds, int rate)
{
    return std::isfinite(seconds) ? static_cast<int>(qBound(0.0, seconds, longest) * rate) : 0;
}

void fadeOut(ToneSynth &synth, Tone tone, QVector<qint16> &samples, int rate)
{
    tone.volume = 0.0;
    synth.setTone(tone);
    synth.append(samples, framesOf(fadeTime, rate));
}

} // namespace

Tone toneOf(const std::complex<double> &reflection)
{
    const double magnitude = std::abs(reflection);
    if (!std::isfinite(magnitude))
        return {lowestPitch, 0.0, 0.0, 0.0};
    const double pan = reflection.real() / qMax(magnitude, smallestMagnitude);
    const bool capacitive = reflection.imag() < -smallestMagnitude * magnitude;
    return {lowestPitch * std::pow(8.0, qMin(magnitude, greatestMagnitude)), pan,
            capacitive ? overtoneShare : 0.0, 1.0};
}

ToneSynth::ToneSynth(int rate)
    : m_rate(qMax(8000, rate))
    , m_glide(1.0 - std::exp(-1.0 / (glideTime * m_rate)))
    , m_tone{lowestPitch, 0.0, 0.0, 0.0}
    , m_now(m_tone)
{
}

void ToneSynth::setTone(const Tone &tone)
{
    // What is silent takes the new pitch at once.
    if (m_now.volume < 1e-3) {
        m_now = tone;
        m_now.volume = 0.0;
    }
    m_tone = tone;
}

void ToneSynth::append(QVector<qint16> &samples, int frames)
{
    for (int i = 0; i < frames; ++i) {
        for (double Tone::*const part : {&Tone::hertz, &Tone::pan, &Tone::overtone, &Tone::volume})
            m_now.*part += m_glide * (m_tone.*part - m_now.*part);
        m_phase = std::fmod(m_phase + 2.0 * pi * m_now.hertz / m_rate, 2.0 * pi);
        const double wave =
            (std::sin(m_phase) + m_now.overtone * std::sin(2.0 * m_phase)) / (1.0 + m_now.overtone);
        // The same power wherever it comes from.
        const double angle = (m_now.pan + 1.0) * pi / 4.0;
        const double level = loudness * m_now.volume * wave;
        samples.append(static_cast<qint16>(std::lround(level * std::cos(angle))));
        samples.append(static_cast<qint16>(std::lround(level * std::sin(angle))));
    }
}

QVector<qint16> toneSamples(const Tone &tone, double seconds, int rate)
{
    ToneSynth synth(rate);
    QVector<qint16> samples;
    synth.setTone(tone);
    synth.append(samples, framesOf(seconds, rate));
    fadeOut(synth, tone, samples, rate);
    return samples;
}

QVector<qint16> traceSamples(const QVector<double> &real, const QVector<double> &imag,
                             double seconds, int rate)
{
    QVector<qint16> samples;
    const int points = static_cast<int>(real.size());
    if (points == 0 || real.size() != imag.size())
        return samples;
    ToneSynth synth(rate);
    const int frames = framesOf(seconds, rate);
    samples.reserve(ToneSynth::channels * (frames + framesOf(fadeTime, rate)));
    const int block = qMax(1, framesOf(moment, rate));
    const int moments = qMax(1, frames / block);
    double before = std::numeric_limits<double>::quiet_NaN();
    Tone tone = toneOf({before, before});
    for (int i = 0; i < moments; ++i) {
        const auto pointAt = [&](int at) {
            return static_cast<int>(static_cast<qint64>(points) * at / moments);
        };
        const int first = pointAt(i);
        int heard = first;
        double farthest = -1.0;
        for (int p = first; p < qMax(first + 1, pointAt(i + 1)); ++p) {
            const double away = std::abs(std::hypot(real.at(p), imag.at(p)) - before);
            if (away > farthest) {
                farthest = away;
                heard = p;
            }
        }
        tone = toneOf({real.at(heard), imag.at(heard)});
        before = std::hypot(real.at(heard), imag.at(heard));
        synth.setTone(tone);
        synth.append(samples, qMin(block, frames - i * block));
    }
    fadeOut(synth, tone, samples, rate);
    return samples;
}

} // namespace SmithChart
