// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "network.h"
#include "source.h"

#include <QObject>

namespace Panel
{

/// All that can be set of a measurement.
struct MeasurementSettings {
    Sweep sweep;
    Acquisition acquisition;
    double tuning = defaultTuning; ///< of the device under test, in Hz

    friend bool operator==(const MeasurementSettings &a, const MeasurementSettings &b)
    {
        return a.sweep == b.sweep && a.acquisition == b.acquisition && a.tuning == b.tuning;
    }
    friend bool operator!=(const MeasurementSettings &a, const MeasurementSettings &b)
    {
        return !(a == b);
    }
};

/// How it stands with what measures.
struct SourceState {
    enum Phase {
        Idle, ///< nothing was asked for
        Connecting,
        Ready, ///< it measures, or could at once
        Lost, ///< it was there, or never came; it is tried again
        Refused, ///< it is there and of no use; nothing is tried again
    };

    Phase phase = Idle;
    QString identity; ///< what it calls itself; empty while not known
    QString calibration; ///< what it says of its own calibration; empty where it says nothing
    QString trouble; ///< why there are no data, a sentence; empty while all is well
};

/*! What measures networks: a simulated device, or an instrument at the end of a cable. The panel
    knows nothing else of it, and never waits for it.

    It lives in the panel's thread. What it is told is done when it can be; what comes of it, a
    source tells by its signals, never from within a call.

    \code
    connect(source, &MeasurementSource::swept, this, [this](const Network &frame) { ... });
    source->start(settings);
    source->setSettings(otherSettings);
    source->stop();
    \endcode */
class MeasurementSource : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Which device the next start is for; an instrument has an address.
    virtual void choose(Source source, const QString &address) = 0;
    /// Measures from now on. A simulated device is set to the settings; an instrument keeps its
    /// own, and tells them by settled(). Frames of what ran before do not come any more.
    virtual void start(const MeasurementSettings &settings) = 0;
    virtual void stop() = 0;
    /// Goes on with these settings. What the source makes of them, settled() tells.
    virtual void setSettings(const MeasurementSettings &settings) = 0;
    /// While held, the last frame stays; a start gives one frame even so.
    virtual void setHeld(bool held) = 0;
    /// Measures one sweep while held.
    virtual void measureOnce() = 0;

    /// What can be set; known once the source is ready.
    virtual SourceLimits limits() const = 0;
    virtual SourceState state() const = 0;

Q_SIGNALS:
    /// Points have been measured; at a progress of 1 the sweep is complete. So many sweeps were
    /// completed since the last frame.
    void swept(const Panel::Network &frame, double progress, int sweeps);
    /// What the source has made of its settings, which need not be what was asked for.
    void settled(const Panel::MeasurementSettings &settings);
    /// State or limits are others than before.
    void stateChanged();
    /// A sentence for the user.
    void said(const QString &sentence);
};

} // namespace Panel
