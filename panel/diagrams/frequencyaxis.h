// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <panel/model/cartesian.h>
#include <panel/model/diagramplan.h>

#include <plot/qcp.h>

#include <QStringList>

namespace Panel
{

/*! The frequency axis of a Cartesian diagram: its grid of ten divisions, and below it the
    frequencies at the left edge, in the middle and at the right edge with the width of a division.
    A logarithmic axis has its grid at round frequencies, with those that have room written below.

    The texts follow the axis rectangle by themselves, wherever a layout puts it. */
class FrequencyAxis
{
public:
    static constexpr int divisions = 10;

    /// Sets up the x axis of the plot, which owns the texts.
    explicit FrequencyAxis(QCustomPlot *plot);

    /// Shows the part of these frequencies, in Hz, that a zoom leaves; true if it is another one. A
    /// logarithmic axis wants them above zero, and is linear otherwise.
    bool show(const QCPRange &whole, const Zoom &zoom, FrequencyScale scale);
    FrequencyScale scale() const;
    /// The part on show, and what it is a part of.
    QCPRange range() const { return m_axis->range(); }
    QCPRange whole() const { return m_whole; }
    /// The zoom that magnifies what lies around a frequency, which stays where it is.
    Zoom zoomedAt(double hertz, const Zoom &before, double factor) const;
    /// The zoom that shifts the part on show, so that one frequency stands where another one was.
    Zoom shifted(double hertz, double to, const Zoom &before) const;
    /// What stands below the diagram, from left to right.
    QStringList texts() const;
    void setLook(const QFont &font, const QColor &color);
    /// Sets the width of a division, or the middle frequency as well, on a line below where there is
    /// no room beside both ends. To be called when the plot has been laid out.
    void fit();
    /// The height that the texts need below the axis rectangle of a plot of this width, in pixels.
    static int heightFor(const QFontMetrics &metrics, int width);

private:
    void setRange(const QCPRange &hertz);
    Zoom zoomFor(double centre, double factor) const;
    double along(double hertz) const;
    QCPRange along(const QCPRange &hertz) const;
    double hertzAt(double along) const;

    QCPAxis *m_axis;
    QCPRange m_whole = {0.0, 1.0};
    QCPItemText *m_left;
    QCPItemText *m_centre;
    QCPItemText *m_right;
    QString m_centreText;
    QString m_divisionText;
};

} // namespace Panel
