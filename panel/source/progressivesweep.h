// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "simulateddevice.h"

namespace Panel
{

/*! A simulated device that is swept point by point, over and over: at any time there are the new
    points up to where the sweep has got, and beyond them those of the sweep before (NaN in the
    first).

    Frames are handed out shared. Two take turns, so that the next points are written to the one
    that the receiver has let go of: a frame costs its new points, whatever the length of the sweep.

    \code
    ProgressiveSweep sweep(Source::Cable, range, defaultTuning);
    sweep.setAverages(16);
    sweep.advance(1601);
    show(sweep.frame(), sweep.progress());
    \endcode */
class ProgressiveSweep
{
public:
    ProgressiveSweep(Source source, const Sweep &sweep, double tuning);

    /// Measures so many further points, at most to the end of the sweep; after it, the next one
    /// begins.
    void advance(int points);
    /// What has been measured.
    const Network &frame() const { return m_frames[m_current]; }
    /// The share of the sweep that is measured; 1 when it is complete.
    double progress() const { return double(m_position) / m_device.points(); }
    /// Begins a sweep over the device as it is now; what was measured stays until it is swept
    /// anew.
    void setTuning(double tuning);
    /// How many sweeps are averaged, 1 for none; begins anew. The mean of all sweeps until there are
    /// so many, then each new one counts for its share: what has changed fades in.
    void setAverages(int averages);

private:
    void average(Network &frame, const Network &mean) const;

    Source m_source;
    Sweep m_sweep;
    SimulatedDevice m_device;
    Network m_frames[2];
    int m_current = 0;
    int m_position = 0; ///< points of the present sweep that are measured
    int m_averages = 1;
    int m_sweeps = 0; ///< that the averages have, with the present one
    /// What the frame handed out has and the other one lacks.
    int m_from = 0, m_to = 0;
    quint64 m_moment = 0;
};

} // namespace Panel
