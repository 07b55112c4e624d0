// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sweepsource.h"

namespace Panel
{

class PanelModel;

/// Feeds the model with the sweeps of the source that it names, and with none while it shows files;
/// tells the source what the user sets, and the model what the source makes of it.
class SweepController : public QObject
{
    Q_OBJECT

public:
    /// The instrument is what Source::Instrument stands for; without one that source gives nothing.
    explicit SweepController(PanelModel *model, MeasurementSource *instrument,
                             QObject *parent = nullptr);

Q_SIGNALS:
    /// The sweep has got so far; the model has its points.
    void progressed(double progress);
    /// So many sweeps have been measured whole since the last time.
    void sweepsCompleted(int sweeps);

private:
    void follow(MeasurementSource *source);
    void start();
    void show(const Network &frame, double progress, int sweeps);
    MeasurementSettings settings() const;

    PanelModel *m_model;
    SweepSource m_simulation;
    MeasurementSource *m_instrument;
    MeasurementSource *m_source = nullptr; ///< that the model names; null for files
    /// The next frame is the first of another source.
    bool m_newSource = false;
};

} // namespace Panel
