// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <smithchart/viewport.h>

#include <fuzz/tracejudge.h>

#include <QtTest>

#include <cmath>
#include <limits>
#include <random>

namespace TraceSamples
{

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double pi = 3.14159265358979323846;

using TraceJudge::Trace;

/// What traces can be like; each is a random member of its kind.
enum Kind {
    Smooth,
    Noisy,
    Aliased,
    Steps,
    Repeated,
    Straight,
    Lattice,
    Huge,
    Tiny,
    Offset,
    KindCount
};

/// A row for each kind, in a column "kind".
inline void addKinds()
{
    QTest::addColumn<int>("kind");
    const char *names[] = {"smooth",   "noisy",   "aliased", "steps", "repeated",
                           "straight", "lattice", "huge",    "tiny",  "offset"};
    for (int kind = 0; kind < KindCount; ++kind)
        QTest::newRow(names[kind]) << kind;
}

using Random = std::mt19937;

inline double uniform(Random &random, double low, double high)
{
    return std::uniform_real_distribution<double>(low, high)(random);
}

inline int uniformInt(Random &random, int low, int high)
{
    return std::uniform_int_distribution<int>(low, high)(random);
}

/// A spiral from the rim inwards, \a turnsPerPoint of a turn from one point to the next.
inline Trace spiral(int count, double turnsPerPoint, double noise = 0.0, unsigned seed = 1)
{
    Random random(seed);
    std::normal_distribution<double> normal(0.0, 1.0);
    Trace trace;
    trace.real.reserve(count);
    trace.imag.reserve(count);
    for (int i = 0; i < count; ++i) {
        const double radius = 0.95 - 0.8 * i / count;
        const double angle = 2.0 * pi * turnsPerPoint * i;
        trace.real.append(radius * std::cos(angle) + noise * normal(random));
        trace.imag.append(radius * std::sin(angle) + noise * normal(random));
    }
    return trace;
}

inline Trace randomTrace(Random &random, Kind kind, int count)
{
    const auto turns = [&](double low, double high) { return uniform(random, low, high) / count; };
    const auto scaled = [](Trace trace, double factor, double shift) {
        for (double &value : trace.real)
            value = value * factor + shift;
        for (double &value : trace.imag)
            value = value * factor + shift;
        return trace;
    };
    Trace trace = spiral(count, turns(0.1, 8.0));
    switch (kind) {
    case Smooth:
        break;
    case Noisy:
        trace = spiral(count, turns(0.1, 8.0), std::pow(10.0, uniform(random, -5.0, 0.0)),
                       static_cast<unsigned>(random()));
        break;
    case Aliased:
        trace = spiral(count, uniform(random, 0.1, 0.9));
        break;
    case Steps: // a few levels, as a coarse converter gives them
        for (int i = 0; i < count; ++i) {
            trace.real[i] = std::round(trace.real[i] * 8.0) / 8.0;
            trace.imag[i] = std::round(trace.imag[i] * 8.0) / 8.0;
        }
        break;
    case Repeated: // each point several times, and the ends meet
        for (int i = 0; i < count; ++i) {
            trace.real[i] = trace.real[i - i % 5];
            trace.imag[i] = trace.imag[i - i % 5];
        }
        trace.real.last() = trace.real.first();
        trace.imag.last() = trace.imag.first();
        break;
    case Straight: // to and fro on one line
        for (int i = 0; i < count; ++i) {
            trace.real[i] = uniform(random, -1.0, 1.0);
            trace.imag[i] = 0.5 * trace.real[i] + 0.1;
        }
        break;
    case Lattice: // many points equally far from everything
        for (int i = 0; i < count; ++i) {
            trace.real[i] = uniformInt(random, -3, 3) / 4.0;
            trace.imag[i] = uniformInt(random, -3, 3) / 4.0;
        }
        break;
    case Huge: // up to where squared pixels overflow
        return scaled(trace, std::pow(10.0, uniform(random, 3.0, 140.0)), 0.0);
    case Tiny:
        return scaled(trace, std::pow(10.0, uniform(random, -300.0, -3.0)), 0.0);
    case Offset:
        return scaled(trace, 1e-3, uniform(random, -1.0, 1.0));
    case KindCount:
        break;
    }
    return trace;
}

/// Makes a share of points not finite.
inline void punchGaps(Random &random, Trace &trace, double share)
{
    const double holes[] = {notANumber, infinity, -infinity};
    for (int i = 0; i < trace.real.size(); ++i) {
        if (uniform(random, 0.0, 1.0) < share)
            (uniformInt(random, 0, 1) ? trace.real : trace.imag)[i] =
                holes[uniformInt(random, 0, 2)];
    }
}

/// A view with square pixels onto some part of the plane.
inline SmithRender::Viewport squareViewport(double centreX, double centreY, double halfHeight,
                                            int width, int height, double devicePixelRatio = 1.0)
{
    SmithRender::Viewport viewport;
    const double halfWidth = halfHeight * width / height;
    viewport.xMin = centreX - halfWidth;
    viewport.xMax = centreX + halfWidth;
    viewport.yMin = centreY - halfHeight;
    viewport.yMax = centreY + halfHeight;
    viewport.width = width;
    viewport.height = height;
    viewport.devicePixelRatio = devicePixelRatio;
    return viewport;
}

inline SmithRender::Viewport randomViewport(Random &random)
{
    const double ratios[] = {1.0, 1.0, 1.25, 2.0};
    return squareViewport(uniform(random, -1.0, 1.0), uniform(random, -1.0, 1.0),
                          1.05 / std::pow(20.0, uniform(random, 0.0, 1.0)),
                          uniformInt(random, 20, 200), uniformInt(random, 20, 200),
                          ratios[uniformInt(random, 0, 3)]);
}

} // namespace TraceSamples
