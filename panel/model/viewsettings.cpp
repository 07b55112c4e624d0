// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "viewsettings.h"

namespace Panel
{

ViewSettings::ViewSettings(QObject *parent)
    : QObject(parent)
{
    m_layout.setLayoutType(Graph::LayoutType::SideBySide);
    connect(&m_layout, &Graph::LayoutManagerProifle::layoutTypeChanged, this,
            &ViewSettings::changed);
}

void ViewSettings::toggleSingleDiagram()
{
    const Graph::LayoutType now = diagramLayout();
    if (now != Graph::LayoutType::Single)
        m_layoutBefore = now;
    m_layout.setLayoutType(now == Graph::LayoutType::Single ? m_layoutBefore
                                                            : Graph::LayoutType::Single);
}

ReadoutFormat ViewSettings::effectiveReadoutFormat(DiagramKind kind) const
{
    if (m_readoutFormat != ReadoutFormat::Automatic)
        return m_readoutFormat;
    if (kind == DiagramKind::Polar)
        return ReadoutFormat::MagnitudePhase;
    return m_gridMode == SmithChartPlot::Admittance ? ReadoutFormat::Admittance
                                                    : ReadoutFormat::Impedance;
}

} // namespace Panel
