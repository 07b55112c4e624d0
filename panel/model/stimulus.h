// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
/*! \file
    The span of frequencies on show, and how it follows each of the four numbers that describe it. */
#pragma once

namespace Panel
{

/// From start to stop, in Hz.
struct Stimulus {
    double start = 0.0;
    double stop = 0.0;

    double center() const { return start + (stop - start) / 2.0; }
    double span() const { return stop - start; }

    friend bool operator==(const Stimulus &a, const Stimulus &b)
    {
        return a.start == b.start && a.stop == b.stop;
    }
    friend bool operator!=(const Stimulus &a, const Stimulus &b) { return !(a == b); }
};

/// A range in which a single frequency stands in the middle: wide enough to be labelled in Hz at
/// every magnification.
Stimulus around(double hertz);

/// \name One number changed, within the limits of what can be shown and with a smallest span
///@{
/// A start too near to the stop, or beyond it, takes it along.
Stimulus withStart(Stimulus stimulus, double start, const Stimulus &limits,
                   double smallestSpan = 0.0);
/// A stop too near to the start, or below it, takes it along.
Stimulus withStop(Stimulus stimulus, double stop, const Stimulus &limits,
                  double smallestSpan = 0.0);
/// The span stays, or becomes what the limits leave on both sides.
Stimulus withCenter(Stimulus stimulus, double center, const Stimulus &limits,
                    double smallestSpan = 0.0);
/// The centre stays, or moves until the span fits.
Stimulus withSpan(Stimulus stimulus, double span, const Stimulus &limits,
                  double smallestSpan = 0.0);
///@}

} // namespace Panel
