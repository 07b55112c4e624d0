// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <plot/qcp.h>

#include <QStringList>

namespace Panel
{

/*! The frequency axis of a Cartesian diagram: its grid of ten divisions, and below it the
    frequencies at the left edge, in the middle and at the right edge with the width of a division.

    The texts follow the axis rectangle by themselves, wherever a layout puts it. */
class FrequencyAxis
{
public:
    static constexpr int divisions = 10;

    /// Sets up the x axis of the plot, which owns the texts.
    explicit FrequencyAxis(QCustomPlot *plot);

    QCPRange range() const { return m_axis->range(); }
    void setRange(const QCPRange &hertz);
    /// What stands below the diagram, from left to right.
    QStringList texts() const;
    void setLook(const QFont &font, const QColor &color);
    /// Leaves the middle frequency out where there is no room for it. To be called when the plot has
    /// been laid out.
    void fit();
    /// The height that the texts need below the axis rectangle, in pixels.
    static int heightFor(const QFontMetrics &metrics) { return metrics.height() + 6; }

private:
    QCPAxis *m_axis;
    QCPItemText *m_left;
    QCPItemText *m_centre;
    QCPItemText *m_right;
    QString m_centreText;
    QString m_divisionText;
};

} // namespace Panel
