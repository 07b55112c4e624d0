// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sweepsource.h"

namespace Panel
{

class PanelModel;

/// Feeds the model with the sweeps of the simulated source that it names, and with none while it
/// shows files.
class SweepController : public QObject
{
    Q_OBJECT

public:
    explicit SweepController(PanelModel *model, QObject *parent = nullptr);

Q_SIGNALS:
    /// The sweep has got so far; the model has its points.
    void progressed(double progress);
    void sweepCompleted();

private:
    void start();
    void show(const Network &frame, double progress);

    PanelModel *m_model;
    SweepSource m_source;
    /// The next frame is the first of another source.
    bool m_newSource = false;
};

} // namespace Panel
