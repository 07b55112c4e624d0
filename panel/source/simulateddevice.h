// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <panel/model/network.h>
#include <panel/model/sweep.h>

#include <array>
#include <complex>

namespace Panel
{

/*! A device under test that exists only as a circuit model: it drifts slowly and its measurement is
    noisy, so that every sweep gives new data.

    The circuit is computed once, as far as points have been measured; from then on a point costs a
   few nanoseconds. No thread is needed, and any one may be used.

    \code
    SimulatedDevice device(SimulatedDevice::Filter, sweep);
    Network network = device.preview();
    device.measure(network, 0, sweep.points, 0);
    model.setNetworks({network});
    \endcode */
class SimulatedDevice
{
public:
    enum Kind {
        Antenna, ///< one port; can be tuned
        Filter, ///< two ports
        Cable, ///< one port; open at the far end, with much noise
    };

    /// What an antenna's lower resonance can be tuned to, in Hz: both stay in its usual sweep.
    static constexpr double lowestTuning = 2.0e9;
    static constexpr double highestTuning = 2.9e9;
    static constexpr double usualTuning = 2.45e9;

    /// Other devices than the antenna ignore the tuning.
    SimulatedDevice(Kind kind, const Sweep &sweep, double tuning = usualTuning);

    /// What the panel calls it.
    static QString name(Kind kind);
    /// The frequencies at which there is something to see, with so many points.
    static Sweep usualSweep(Kind kind, int points);
    /// What the noise cannot exceed, as a share of a full reflection.
    static double noise(Kind kind);

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

    Kind m_kind;
    double m_tuning;
    /// How far the circuit drifts each way, in points of the sweep.
    int m_margin;
    int m_total;
    int m_prepared = 0;
    double m_start;
    double m_step;
    QVector<double> m_frequencies;
    /// The circuit without noise over the sweep and its margins, in the order of a network.
    QVector<Parameter> m_circuit;
};

} // namespace Panel
