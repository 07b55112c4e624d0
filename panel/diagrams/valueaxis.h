// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <panel/model/traces.h>

#include <plot/qcp.h>

namespace Panel
{

/// The axis beside a Cartesian diagram: a line and a number at each division of a scale, or at every
/// second or fifth where they have no room, and an arrow at the reference.
class ValueAxis
{
public:
    /// Sets up the y axis of the plot, which owns the arrow.
    explicit ValueAxis(QCustomPlot *plot);

    /// Writes the scale of a trace beside an axis rectangle of so many pixels.
    void write(const Trace &trace, int height);
    void setColors(const QColor &arrow, const QColor &numbers);

private:
    QCPAxis *m_axis;
    QSharedPointer<QCPAxisTickerFixed> m_ticker;
    QCPItemLine *m_arrow;
};

} // namespace Panel
