// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <panel/model/network.h>
#include <panel/model/source.h>

#include <array>
#include <complex>

namespace Panel
{

/*! A device under test that exists only as a circuit model: it drifts slowly and its measurement is
    noisy, so that every sweep gives new data.

    The circuit is computed once, as far as points have been measured; from then on a point costs a
   few nanoseconds. No thread is needed, and any one may be used.

    \code
    SimulatedDevice device(Source::Filter, sweep);
    Network network = device.preview();
    device.measure(network, 0, sweep.points, 0);
    model.beginMeasurement(network);
    \endcode */
class SimulatedDevice
{
public:
    /// The source must be a simulated one. Others than the antenna ignore the tuning.
    SimulatedDevice(Source source, const Sweep &sweep, double tuning = defaultTuning);

    /// What the noise cannot exceed, as a share of a full reflection.
    static double noise(Source source);

    int points() const { return int(m_frequencies.size()); }
    /// What a quick look finds: measured at some points only, and straight lines between them.
    Network preview() const;
    /// Measures the points from `from` to below `to`. Where the device has drifted to, and the
    /// noise, follow from the moment: the number of a display frame.
    void measure(Network &network, int from, int to, quint64 moment);

private:
    using Values = std::array<std::complex<double>, 4>;

    Values circuitAt(double hertz) const;
    void prepare(int points);

    Source m_source;
    double m_tuning;
    /// How far the circuit drifts each way, in points of the sweep.
    double m_drift;
    int m_margin; ///< whole points that the drift needs beyond each end
    int m_total;
    int m_prepared = 0;
    double m_start;
    double m_step;
    QVector<double> m_frequencies;
    /// The circuit without noise over the sweep and its margins, in the order of a network.
    QVector<Parameter> m_circuit;
};

} // namespace Panel
