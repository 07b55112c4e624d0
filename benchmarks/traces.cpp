// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "traces.h"

#include <cmath>
#include <random>

namespace Bench
{

namespace
{

constexpr double pi = 3.14159265358979323846;
constexpr double halfRange = 1.05;
constexpr int sizePx = 800;
constexpr double pixel = 2.0 * halfRange / sizePx;

} // namespace

Trace spiral(int count, double turns, double noisePx, unsigned seed)
{
    std::mt19937 random(seed);
    std::normal_distribution<double> noise(0.0, 1.0);
    Trace trace;
    for (int i = 0; i < count; ++i) {
        const double radius = 0.95 - 0.8 * i / count;
        const double angle = 2.0 * pi * turns * i / count;
        trace.real.append(radius * std::cos(angle) + noisePx * pixel * noise(random));
        trace.imag.append(radius * std::sin(angle) + noisePx * pixel * noise(random));
    }
    return trace;
}

Trace noisySweep(int count, double noise, unsigned seed)
{
    return spiral(count, 3.0, noise / pixel, seed);
}

Trace lossyLine(int count, double turns)
{
    Trace trace;
    for (int i = 0; i < count; ++i) {
        const double radius = 0.95 * std::exp(-3.0 * i / count);
        const double angle = -2.0 * pi * turns * i / count;
        trace.real.append(radius * std::cos(angle));
        trace.imag.append(radius * std::sin(angle));
    }
    return trace;
}

Trace randomWalk(int count, double step, unsigned seed)
{
    std::mt19937 random(seed);
    std::normal_distribution<double> steps(0.0, step);
    Trace trace;
    double x = 0.0;
    double y = 0.0;
    for (int i = 0; i < count; ++i) {
        const double dx = steps(random);
        const double dy = steps(random);
        const bool leaves = std::hypot(x + dx, y + dy) > 1.0;
        x += leaves ? -dx : dx;
        y += leaves ? -dy : dy;
        trace.real.append(x);
        trace.imag.append(y);
    }
    return trace;
}

Trace sevenPoints(int count)
{
    const Trace seven = spiral(7, 2.4);
    Trace trace;
    for (int i = 0; i < count; ++i) {
        trace.real << seven.real.at(i % 7);
        trace.imag << seven.imag.at(i % 7);
    }
    return trace;
}

Trace lissajous(int count, double xPeriods, double yPeriods)
{
    Trace trace;
    for (int i = 0; i < count; ++i) {
        const double phase = 2.0 * pi * i / count;
        trace.real.append(0.95 * std::sin(xPeriods * phase));
        trace.imag.append(0.95 * std::sin(yPeriods * phase + 0.5));
    }
    return trace;
}

SmithRender::Viewport fullView(double zoom)
{
    SmithRender::Viewport viewport;
    viewport.xMin = viewport.yMin = -halfRange / zoom;
    viewport.xMax = viewport.yMax = halfRange / zoom;
    viewport.width = viewport.height = sizePx;
    return viewport;
}

double tolerance()
{
    return fullView().tolerancePx * pixel;
}

} // namespace Bench
