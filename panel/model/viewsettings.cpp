// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "viewsettings.h"

namespace Panel
{

ViewSettings::ViewSettings(QObject *parent)
    : QObject(parent)
{
    m_layout.setLayoutType(Graph::LayoutType::SideBySide);
    connect(&m_layout, &Graph::LayoutManagerProifle::layoutTypeChanged, this, [this] {
        m_maximized = m_maximized && diagramLayout() == Graph::LayoutType::Single;
        Q_EMIT changed();
    });
}

double ViewSettings::vswrRadius() const
{
    const double radius = m_limitCircle.radius;
    if (m_limitCircle.isNone() || !m_limitCircle.centre.isNull() || radius >= 1.0)
        return 0.0;
    // As it was entered, without the rounding of a radius.
    constexpr double digits = 1e9;
    return std::round((1.0 + radius) / (1.0 - radius) * digits) / digits;
}

void ViewSettings::setVswrLimit(double ratio)
{
    const double wanted = ratioOrNone(ratio);
    setLimitCircle({{}, wanted > 1.0 ? (wanted - 1.0) / (wanted + 1.0) : 0.0, false});
}

void ViewSettings::setLimitCircle(const LimitCircle &circle)
{
    const bool valid = std::isfinite(circle.centre.x()) && std::isfinite(circle.centre.y())
        && std::isfinite(circle.radius) && circle.radius > 0.0;
    set(m_limitCircle, valid ? circle : LimitCircle());
}

void ViewSettings::toggleSingleDiagram()
{
    const Graph::LayoutType now = diagramLayout();
    if (now != Graph::LayoutType::Single)
        m_layoutBefore = now;
    m_maximized = now != Graph::LayoutType::Single;
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
