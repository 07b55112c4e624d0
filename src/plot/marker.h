// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <vnawidgets_export.h>

#include <plot/qcp.h>
#include <plot/qcpitemtracermarker.h>

#include <QBrush>
#include <QPen>

#include <memory>

namespace Plot
{

/// On which side of its point a marker stands: below for PointingUp, above for every other value.
enum MarkerType : int {
    PointingDown = 0,
    PointingUp = 1,
};

/*! A marker on a trace: a triangle whose apex touches the marked point, and a text beside it.

    It works on QCPCurve and on QCPGraph, and draws on the layer "markers", which it keeps topmost.
    It owns its two items: destroying the marker takes them off the plot, so it can be moved but not
    copied. Items or a plot that are gone before the marker are survived. It is not selectable,
    draggable or numbered by itself; SmithChartPlot adds that.

    \code
    Plot::Marker marker(plot, 101, Plot::PointingDown);
    marker.setPosition(graph, 42.5); // half-way between the points 42 and 43
    marker.setColors(QPen(Qt::yellow, 1.5), Qt::NoBrush);
    marker.getLabel()->setText(QStringLiteral("1"));
    \endcode */
class VNAWIDGETS_EXPORT Marker
{
public:
    /// A marker without items: id -1, pointing down.
    Marker();
    /// A marker with its two items on \a plot, not yet placed and without text; a null plot gives
    /// no items.
    Marker(QCustomPlot *plot, int id, MarkerType type);
    ~Marker();
    /// Takes the other's items over, and leaves it without.
    Marker(Marker &&other) noexcept;
    /// The same; items of its own leave the plot.
    Marker &operator=(Marker &&other) noexcept;

    /// The number that the host gave.
    int getId() const;
    /// Which way it points.
    MarkerType getType() const;
    /// The text item, or null.
    QCPItemText *getLabel() const;
    /// The triangle item, or null.
    QCPItemTracer *getTracer() const;
    /// Whether both items exist and are visible.
    bool isVisible() const;

    /// Shows or hides triangle and label.
    void setVisible(bool visible);
    /// Sets which way it points.
    void setType(MarkerType type);
    /// Sets what it is drawn as.
    void setShape(TracerShape shape);
    /// Draws the triangle with \a pen and \a brush and the text in the pen's colour. Does not
    /// replot.
    void setColors(const QPen &pen, const QBrush &brush);

    /// Places the marker on a data point; a fraction interpolates towards the next one, and an
    /// index outside the data counts as its end. False without data. Does not replot.
    bool setPosition(QCPCurve *curve, double index);
    /// The same on a graph.
    bool setPosition(QCPGraph *graph, double index);
    /// Places the marker at plot coordinates on the plottable's axes; false, without moving it, for
    /// coordinates that are not finite. Does not replot.
    bool setPositionCoordinates(QCPCurve *curve, double x, double y);
    /// The same on a graph.
    bool setPositionCoordinates(QCPGraph *graph, double x, double y);

private:
    Q_DISABLE_COPY(Marker)

    template<typename Plottable>
    bool placeAtIndex(Plottable *plottable, double index);
    bool placeAtCoordinates(QCPAbstractPlottable *plottable, double x, double y);
    void createItems(QCustomPlot *plot);
    void removeItems();
    void updateLabelPlacement();
    void queueReplot();

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace Plot
