// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <smithchart/viewport.h>

#include <QVector>

/// The data that the benchmarks work on.
namespace Bench
{

struct Trace {
    QVector<double> real;
    QVector<double> imag;
};

/// A spiral from the rim inwards, with normally distributed noise of \a noisePx pixels in both
/// directions, as seen in fullView().
Trace spiral(int count, double turns, double noisePx = 0.0, unsigned seed = 1);

/// The same of three turns with noise whose standard deviation is a share of the chart's radius.
Trace noisySweep(int count, double noise, unsigned seed);

/// A cable that is open at its end and loses most of the signal at the last of the frequencies.
Trace lossyLine(int count, double turns);

/// Steps in all directions, with a standard deviation of a share of the chart's radius both ways,
/// which turn back at its rim.
Trace randomWalk(int count, double step, unsigned seed);

/// The same seven points again and again, all far apart.
Trace sevenPoints(int count);

/// The figure of two sines of \a xPeriods and \a yPeriods periods.
Trace lissajous(int count, double xPeriods, double yPeriods);

/// The whole chart on 800 x 800 pixels, magnified by \a zoom, at a tolerance of half a pixel.
SmithRender::Viewport fullView(double zoom = 1.0);

/// That tolerance in the units of the data at zoom 1.
double tolerance();

} // namespace Bench
