// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
/*! \file
    Writes the Touchstone files that vnapanel ships as samples: four networks computed from circuit
   models, each in another number format. Usage: vnapanel-samples DIR */
#include "circuits.h"

#include <cmath>
#include <cstdio>
#include <fstream>
#include <functional>
#include <iostream>
#include <string>
#include <vector>

namespace
{

using namespace Circuits;

enum class Format { RealImaginary, MagnitudeAngle, DecibelAngle };

/// A number with a fixed count of decimals; never "-0".
std::string fixed(double value, int decimals)
{
    char text[64];
    const double half = 0.5 * std::pow(10.0, -decimals);
    std::snprintf(text, sizeof text, "%.*f", decimals, std::abs(value) < half ? 0.0 : value);
    return text;
}

std::string written(Complex value, Format format)
{
    const double degrees = std::arg(value) * 180.0 / std::acos(-1.0);
    switch (format) {
    case Format::MagnitudeAngle:
        return fixed(std::abs(value), 6) + ' ' + fixed(degrees, 4);
    case Format::DecibelAngle:
        return fixed(20.0 * std::log10(std::abs(value)), 5) + ' ' + fixed(degrees, 4);
    case Format::RealImaginary:
        break;
    }
    return fixed(value.real(), 7) + ' ' + fixed(value.imag(), 7);
}

struct Sample {
    std::string name;
    std::string title;
    std::string options;
    double unit;
    Format format;
    double start;
    double stop;
    int points;
    /// The S parameters at an angular frequency in the order of the file.
    std::function<std::vector<Complex>(double)> network;
};

std::string touchstone(const Sample &sample)
{
    std::string text = "! " + sample.title
        + "\n! Computed from a circuit model by samples/generate.cpp\n" + sample.options + '\n';
    for (int i = 0; i < sample.points; ++i) {
        const double hertz = sample.start + (sample.stop - sample.start) * i / (sample.points - 1);
        text += fixed(hertz / sample.unit, 6);
        for (const Complex value : sample.network(2.0 * std::acos(-1.0) * hertz))
            text += ' ' + written(value, sample.format);
        text += '\n';
    }
    return text;
}

/// Touchstone lists a two-port by columns: S11 S21 S12 S22.
std::vector<Complex> byColumns(const Matrix &s)
{
    return {s.a, s.c, s.b, s.d};
}

std::vector<Sample> samples()
{
    return {
        {"matched-load.s1p", "50 Ohm load at the end of 0.6 m of cable", "# MHz S RI R 50", 1e6,
         Format::RealImaginary, 10e6, 6010e6, 601,
         [](double w) { return std::vector<Complex>{matchedLoad(w)}; }},
        {"antenna.s1p", "Antenna for 2.45 GHz and 5.5 GHz", "# GHz S MA R 50", 1e9,
         Format::MagnitudeAngle, 1.8e9, 6.6e9, 481,
         [](double w) { return std::vector<Complex>{antenna(w)}; }},
        {"band-pass.s2p", "Band-pass filter, 2.4 GHz to 2.5 GHz", "# GHz S DB R 50", 1e9,
         Format::DecibelAngle, 2.3e9, 2.6e9, 1201, [](double w) { return byColumns(bandPass(w)); }},
        {"amplifier.s2p", "Amplifier stage with shunt feedback", "# MHz S MA R 50", 1e6,
         Format::MagnitudeAngle, 100e6, 8100e6, 401,
         [](double w) { return byColumns(amplifier(w)); }},
    };
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::cerr << "Usage: vnapanel-samples DIR\n";
        return 2;
    }
    for (const Sample &sample : samples()) {
        const std::string path = std::string(argv[1]) + '/' + sample.name;
        std::ofstream file(path, std::ios::binary);
        file << touchstone(sample);
        file.close();
        if (!file) {
            std::cerr << "vnapanel-samples: cannot write " << path << '\n';
            return 1;
        }
    }
    return 0;
}
