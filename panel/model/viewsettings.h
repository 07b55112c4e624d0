// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "traceformat.h"

#include <platform/layoutmanagerprofile.h>
#include <smithchart/smithchartplot.h>

namespace Panel
{

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
    SmithChart::Preset density() const { return m_density; }
    /// As it was chosen.
    ReadoutFormat readoutFormat() const { return m_readoutFormat; }
    /// What that means on the present grid: never Automatic.
    ReadoutFormat effectiveReadoutFormat() const;
    /// Whether taps and drags reach the active trace only, and not the one under the pointer.
    bool onlyActiveTrace() const { return m_onlyActiveTrace; }

    void setGridMode(SmithChartPlot::GridMode mode) { set(m_gridMode, mode); }
    void setDensity(SmithChart::Preset density) { set(m_density, density); }
    void setReadoutFormat(ReadoutFormat format) { set(m_readoutFormat, format); }
    void setOnlyActiveTrace(bool only) { set(m_onlyActiveTrace, only); }

Q_SIGNALS:
    /// One of them is another; the layout too.
    void changed();

private:
    template<typename T>
    void set(T &member, T value)
    {
        if (value == member)
            return;
        member = value;
        Q_EMIT changed();
    }

    Graph::LayoutManagerProifle m_layout;
    SmithChartPlot::GridMode m_gridMode = SmithChartPlot::Impedance;
    SmithChart::Preset m_density = SmithChart::Standard;
    ReadoutFormat m_readoutFormat = ReadoutFormat::Automatic;
    bool m_onlyActiveTrace = false;
};

} // namespace Panel
