// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
/*! \file
    Where the labels of a grid go that follows the view: to rim and real axis while these are in
    view, else to the view's edges; the coarsest lines first, and none over another. */
#pragma once

#include <base/testexport_p.h>

#include <smithchart/viewgrid_p.h>

#include <QSizeF>
#include <QString>

#include <functional>

namespace SmithChart
{

/// What the values at the lines are.
enum class GridUnit {
    Normalised, ///< "0.5", "j0.5"
    Ohms, ///< "25", "j25", "1k"
    Siemens, ///< "20m", "j20m"
};

/// The text at a line.
[[nodiscard]] VNAWIDGETS_TEST_EXPORT QString gridLabelText(GridPart part, double value,
                                                           GridUnit unit);

/// Which of the two charts a grid is.
enum class GridChart {
    Impedance,
    Admittance, ///< the same lines turned by half a turn
};

/*! Maps between the plane of the reflection coefficient and the pixels of a view, counted from its
    upper left corner. To the lines of the admittance chart, the plane appears turned. */
class VNAWIDGETS_TEST_EXPORT GridMapping
{
public:
    GridMapping(const GridView &view, GridChart chart)
        : m_view(view)
        , m_sign(chart == GridChart::Impedance ? 1.0 : -1.0)
    {
    }

    /// The view as the chart's own lines see it: what viewGridLines() wants.
    [[nodiscard]] GridView chartView() const;
    [[nodiscard]] QRectF pixelRect() const; ///< all of the view
    [[nodiscard]] QPointF toPixel(const QPointF &chartPoint) const;
    /// The part of the chart's plane within a rectangle of pixels.
    [[nodiscard]] QRectF toChart(const QRectF &pixels) const;

private:
    GridView m_view;
    double m_sign;
};

struct ViewGridLabel {
    GridPart part = GridPart::Real;
    double value = 0.0;
    QString text;
    QRectF rect; ///< pixels of the view
};

struct ViewGridLabelRules {
    double reference = 1.0; ///< as in ViewGridRules
    GridUnit unit = GridUnit::Normalised;
    bool asSecondChart = false; ///< above the axis and inside the rim, where both charts are shown
    int mostOfAPart = 12; ///< so many labels of resistances, and so many of reactances
    std::function<QSizeF(const QString &)> measure; ///< the pixels that a text takes
};

/*! Appends the labels of a chart's lines to \a labels, none of which is touched by those to come.
    Lines that find no place remain without. */
VNAWIDGETS_TEST_EXPORT void appendViewGridLabels(const QVector<ViewGridLine> &lines,
                                                 const GridMapping &mapping,
                                                 const ViewGridLabelRules &rules,
                                                 QVector<ViewGridLabel> &labels);

} // namespace SmithChart
