// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "network.h"
#include "sweep.h"

namespace Panel
{

/*! A device under test that exists only as a circuit model: it drifts slowly and its measurement is
    noisy, so that every sweep gives new data.

    The circuit is computed once for a sweep, in portions by prepare(), because a million points
   take a while; a frame then costs a few nanoseconds a point. A frame depends on its number alone.
   No thread is needed, and any one may be used.

    \code
    SimulatedDevice device(SimulatedDevice::Filter, sweep);
    while (!device.isPrepared())
        device.prepare(4096);
    model.setNetworks({device.frame(0)});
    \endcode */
class SimulatedDevice
{
public:
    enum Kind {
        Antenna, ///< one port
        Filter, ///< two ports
        Cable, ///< one port; open at the far end, with much noise
    };

    SimulatedDevice(Kind kind, const Sweep &sweep);

    /// What the panel calls it.
    static QString name(Kind kind);
    /// The frequencies at which there is something to see, with so many points.
    static Sweep usualSweep(Kind kind, int points);
    /// What the noise cannot exceed, as a share of a full reflection.
    static double noise(Kind kind);

    /// Computes so many further points of the circuit, or what is left of them.
    void prepare(int points);
    bool isPrepared() const { return m_prepared == m_total; }
    /// The measurement of this number. The device must be prepared.
    Network frame(quint64 number) const;

private:
    Kind m_kind;
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
