// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QBrush>
#include <QColor>
#include <QFont>
#include <QPen>

#include <optional>

namespace SmithChart
{

/// The colour of grid and labels where a host sets no other.
inline QColor defaultGridColor()
{
    return QColor(120, 120, 120, 255);
}

/*! How a Smith chart's grid looks. The default is the look without any setting; what has no value
    stays with the plot. */
struct GridLook {
    /// Of the lines. The grid that follows the view draws them solid, the finer the fainter.
    QPen linePen{QBrush(defaultGridColor()), 1.0, Qt::DashLine};
    /// Of the admittance lines where both charts are shown; as linePen without a value.
    std::optional<QPen> admittancePen;
    QPen boundaryPen{QBrush(defaultGridColor()), 1.0, Qt::SolidLine}; ///< of the rim
    QColor labelColor = defaultGridColor(); ///< of all labels
    std::optional<QFont> labelFont; ///< the plot's own family in 8 points without a value
    std::optional<QBrush> background; ///< of the plot
    /// Draws the admittance labels on the other side of axis and rim, so that those of both charts
    /// do not lie over each other. The grid that follows the view always does.
    bool labelsApart = false;
};

} // namespace SmithChart
