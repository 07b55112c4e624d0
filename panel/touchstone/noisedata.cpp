// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "noisedata.h"

#include "text.h"
#include "words.h"

#include <array>
#include <cmath>

namespace Panel
{

QString takeNoise(std::string_view line, const Header &header, NoiseData &noise)
{
    const int given = countWords(line);
    if (given != s_noiseNumbers)
        return Text::tr("a line of noise data has %1 numbers, not %2")
            .arg(s_noiseNumbers)
            .arg(given);
    // In units of the reference the last bits of a double would not tell neighbours in ohms apart.
    std::array<double, s_noiseNumbers - 1> values = {};
    long double resistance = 0.0L;
    std::string_view word;
    for (double &value : values) {
        nextWord(line, word);
        if (!toNumber(word, value) || std::isnan(value))
            return notANumber(word);
    }
    nextWord(line, word);
    if (!toLongNumber(word, resistance))
        return notANumber(word);
    const double hertz = values[0] * header.unit();
    if (!(hertz >= 0.0) || std::isinf(hertz))
        return Text::tr("the frequency must not be below zero nor beyond all bounds");
    if (!noise.frequencies.isEmpty() && hertz < noise.frequencies.last())
        return Text::tr("the frequency falls back in the noise data");
    if (!header.isInOhms())
        resistance *= noise.referenceOhms;
    if (!std::isfinite(double(resistance)))
        return Text::tr("a value is beyond all bounds");
    noise.frequencies.append(hertz);
    noise.minimumFigure.append(values[1]);
    noise.optimumMagnitude.append(values[2]);
    noise.optimumDegrees.append(values[3]);
    noise.resistance.append(double(resistance));
    return QString();
}

} // namespace Panel
