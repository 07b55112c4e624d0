// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <panel/model/measurementsource.h>

#include <functional>

namespace Panel
{

class Wire;

/*! One family of instruments, spoken to over a wire by the thread that waits for the answers.

    What goes wrong is the wire's trouble; after it an analyser is of no more use but to end().

    \code
    if (analyser.begin() && analyser.apply(settings))
        analyser.sweep(network, [](double) { });
    analyser.end();
    \endcode */
class Analyser
{
public:
    /// Told of a sweep that is so far; the network has what was measured of it.
    using Progress = std::function<void(const Network &network, double progress)>;

    explicit Analyser(Wire &wire)
        : m_wire(wire)
    {
    }
    virtual ~Analyser() = default;

    /// Asks who is there, what it can and how it is set.
    virtual bool begin() = 0;
    /// Sets what can be set, and asks what came of it.
    virtual bool apply(const MeasurementSettings &wanted) = 0;
    /// Measures one sweep into a network, which may hold the one before.
    virtual bool sweep(Network &network, const Progress &progress) = 0;
    /// Leaves the instrument as it was found, as far as that can be done.
    virtual void end() = 0;

    /// "LibreVNA 1.6.1": what the other end calls itself.
    QString identity() const { return m_identity; }
    /// What it says of its own calibration; empty where it says nothing.
    QString calibration() const { return m_calibration; }
    const SourceLimits &limits() const { return m_limits; }
    const MeasurementSettings &settings() const { return m_settings; }

protected:
    /// Beyond the time that a sweep takes, in milliseconds.
    static constexpr int sweepGrace = 4500;
    /// In the order of a network.
    static constexpr const char *parameters[] = {"S11", "S21", "S12", "S22"};

    /// Makes the network one of the present sweep, without values but those it has.
    void prepare(Network &network, int ports) const;

    Wire &m_wire;
    QString m_identity;
    QString m_calibration;
    SourceLimits m_limits;
    MeasurementSettings m_settings;
};

/// Evenly spaced frequencies in Hz, both ends included.
QVector<double> evenFrequencies(const Sweep &sweep);

} // namespace Panel
