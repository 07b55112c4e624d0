// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cartesian.h"

#include <platform/layoutmanagerprofile.h>
#include <smithchart/smithchartplot.h>

#include <QPointF>

#include <cmath>

namespace Panel
{

/// How many lines the grid of a Smith chart has: those of a preset, or as many as its part in view
/// has room for.
enum class GridDensity {
    Basic,
    Standard,
    Detailed,
    Automatic,
};
constexpr int gridDensityCount = 4;

/// What the lines of an automatic grid are labelled with.
enum class GridLabels {
    Ohms, ///< and siemens
    Normalised,
};
constexpr int gridLabelsCount = 2;

/// A circle on the Smith chart, in units of reflection, that traces must stay in or keep out of.
struct LimitCircle {
    QPointF centre;
    double radius = 0.0; ///< 0: there is none
    bool keepOut = false;

    bool isNone() const { return !(radius > 0.0); }
    friend bool operator==(const LimitCircle &a, const LimitCircle &b)
    {
        return a.centre == b.centre && a.radius == b.radius && a.keepOut == b.keepOut;
    }
};

/// How the user wants to see the traces, whatever they are: the same for all diagrams.
class ViewSettings : public QObject
{
    Q_OBJECT

public:
    explicit ViewSettings(QObject *parent = nullptr);

    /// One, two or four diagrams; two side by side at the start.
    Graph::LayoutManagerProifle *layoutProfile() { return &m_layout; }
    Graph::LayoutType diagramLayout() const { return m_layout.layoutType(); }
    SmithChartPlot::GridMode gridMode() const { return m_gridMode; }
    GridDensity density() const { return m_density; }
    GridLabels gridLabels() const { return m_gridLabels; }
    /// The standing wave ratio whose circle is drawn, or 0.
    double vswrCircle() const { return m_vswrCircle; }
    /// What traces on a Smith chart are judged by.
    const LimitCircle &limitCircle() const { return m_limitCircle; }
    /// The standing wave ratio all along the circle, or 0 of one that is not around the centre.
    double vswrRadius() const;
    /// The standing wave ratio that traces on a Smith chart must not exceed, or 0.
    double vswrLimit() const { return m_limitCircle.keepOut ? 0.0 : vswrRadius(); }
    /// As it was chosen.
    ReadoutFormat readoutFormat() const { return m_readoutFormat; }
    /// What that means on the present grid of a Smith chart or a polar diagram: never Automatic.
    ReadoutFormat effectiveReadoutFormat(DiagramKind kind) const;
    /// Whether taps and drags reach the active trace only, and not the one under the pointer.
    bool onlyActiveTrace() const { return m_onlyActiveTrace; }

    /// The fall or rise at whose ends a bandwidth is read of the selected marker, in dB, or 0.
    double bandwidthDecibels() const { return m_bandwidthDecibels; }

    /// How Cartesian diagrams spread the frequencies.
    FrequencyScale frequencyScale() const { return m_frequencyScale; }
    /// Whether all markers are read in one table, in place of the read-outs of each diagram.
    bool markerTable() const { return m_markerTable; }

    void setFrequencyScale(FrequencyScale scale) { set(m_frequencyScale, scale); }
    void setMarkerTable(bool shown) { set(m_markerTable, shown); }
    /// Anything but a finite number above 0 ends it.
    void setBandwidthDecibels(double decibels)
    {
        set(m_bandwidthDecibels, std::isfinite(decibels) && decibels > 0.0 ? decibels : 0.0);
    }
    /// Shows one diagram alone, or those of before again.
    void toggleSingleDiagram();
    /// Whether that has hidden the others, and not the choice of a layout.
    bool isMaximized() const { return m_maximized; }
    void setGridMode(SmithChartPlot::GridMode mode) { set(m_gridMode, mode); }
    void setDensity(GridDensity density) { set(m_density, density); }
    void setGridLabels(GridLabels labels) { set(m_gridLabels, labels); }
    /// Anything but a finite ratio above 1 takes the circle, or the limit, away.
    void setVswrCircle(double ratio) { set(m_vswrCircle, ratioOrNone(ratio)); }
    void setVswrLimit(double ratio);
    /// One that is not finite, or has no radius above 0, takes the limit away.
    void setLimitCircle(const LimitCircle &circle);
    void setReadoutFormat(ReadoutFormat format) { set(m_readoutFormat, format); }
    void setOnlyActiveTrace(bool only) { set(m_onlyActiveTrace, only); }

Q_SIGNALS:
    /// One of them is another; the layout too.
    void changed();

private:
    static double ratioOrNone(double ratio)
    {
        return std::isfinite(ratio) && ratio > 1.0 ? ratio : 0.0;
    }

    template<typename T>
    void set(T &member, T value)
    {
        if (value == member)
            return;
        member = value;
        Q_EMIT changed();
    }

    Graph::LayoutManagerProifle m_layout;
    Graph::LayoutType m_layoutBefore = Graph::LayoutType::SideBySide; ///< one diagram alone
    bool m_maximized = false;
    SmithChartPlot::GridMode m_gridMode = SmithChartPlot::Impedance;
    GridDensity m_density = GridDensity::Automatic;
    GridLabels m_gridLabels = GridLabels::Ohms;
    double m_vswrCircle = 0.0;
    LimitCircle m_limitCircle;
    double m_bandwidthDecibels = 0.0;
    ReadoutFormat m_readoutFormat = ReadoutFormat::Automatic;
    bool m_onlyActiveTrace = false;
    FrequencyScale m_frequencyScale = FrequencyScale::Linear;
    bool m_markerTable = false;
};

} // namespace Panel
