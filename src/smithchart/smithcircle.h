// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <vnawidgets_export.h>

#include <plot/qcp.h>

#include <QPen>
#include <QPointer>
#include <QString>

#include <memory>
#include <optional>

/*! A circle that engineers draw into a Smith chart, for reference: constant VSWR, magnitude of
    reflection, quality, resistance, reactance, conductance or susceptance (normalised), or a free
    one for noise, gain and stability.

    It lies over the grid and under the traces, takes no clicks, and shows nothing until it is given
    a value. It belongs to the plot: remove it with QCustomPlot::removeItem(). A setter that is
    given a value without a circle returns false and changes nothing.

    \code
    auto *circle = new SmithCircle(plot->xAxis, plot->yAxis);
    circle->setVswr(2.0);
    circle->setLabel(QStringLiteral("VSWR 2"));
    \endcode */
class VNAWIDGETS_EXPORT SmithCircle : public QCPAbstractItem
{
    Q_OBJECT

public:
    /// On the axes of a chart (real and imaginary part); both must have the same plot.
    SmithCircle(QCPAxis *xAxis, QCPAxis *yAxis);
    ~SmithCircle() override;

    bool setVswr(double vswr); ///< above 1
    bool setReflection(double magnitude); ///< above 0
    bool setQuality(double q); ///< above 0: both arcs of |X| / R, within the chart
    bool setResistance(double r); ///< at least 0
    bool setReactance(double x); ///< other than 0
    bool setConductance(double g); ///< at least 0
    bool setSusceptance(double b); ///< other than 0
    /// A free circle in the plane of the reflection coefficient; it may reach out of the chart.
    bool setCircle(const QPointF &centre, double radius);

    /// Drawn at the highest point in view. Default: none.
    void setLabel(const QString &label);
    /// What stands beside the circle.
    QString label() const;
    /// Of circle and label; without one, the default, both take the theme's text colour.
    void setPen(std::optional<QPen> pen);
    /// The pen; none: the theme's text colour.
    std::optional<QPen> pen() const;

    /// -1: a circle is never hit.
    double selectTest(const QPointF &pos, bool onlySelectable,
                      QVariant *details = nullptr) const override;

protected:
    /// Draws circle and label, as far as they are in view.
    void draw(QCPPainter *painter) override;

private:
    class Private;
    const std::unique_ptr<Private> d;
};
