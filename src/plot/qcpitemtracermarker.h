// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <vnawidgets_export.h>

#include <plot/qcp.h>

#include <memory>

namespace Plot
{

/// How wide a marker's triangle is.
enum TracerShape : int {
    Narrow = 0, ///< an apex of 30 degrees
    Equilateral = 1, ///< as high as the tracer's size
};

/*! The triangle of a marker: its apex touches the marked point.

    It is neither drawn nor hit while the point lies outside the plot's axis rectangle, so that a
    marker that is panned out does not lie over axes and margins. It knows nothing of traces,
    numbers or selection; a Plot::Marker places and colours it.

    \code
    auto *tracer = new Plot::QCPItemTracerMarker(plot);
    tracer->position->setCoords(0.2, -0.1);
    tracer->setPen(QPen(Qt::yellow, 1.5));
    tracer->setPointingDown(true);
    \endcode */
class VNAWIDGETS_EXPORT QCPItemTracerMarker : public QCPItemTracer
{
    Q_OBJECT

public:
    /// An equilateral triangle above its point, owned by \a parentPlot.
    explicit QCPItemTracerMarker(QCustomPlot *parentPlot);
    ~QCPItemTracerMarker() override;

    /// Sets what it is drawn as.
    void setShape(TracerShape shape);
    /// What it is drawn as; a triangle at first.
    TracerShape shape() const;

    /// True (the default): the triangle stands above its point; false: it hangs below.
    void setPointingDown(bool down);
    /// Whether its tip points down.
    bool isPointingDown() const;

    /// 0 inside the triangle, up to 8 the distance in pixels from the apex, else -1.
    double selectTest(const QPointF &pos, bool onlySelectable,
                      QVariant *details = nullptr) const override;

    /// Whether the marked point lies inside its axis rectangle, so that the marker is to be seen.
    bool anchorInsideAxisRect() const;

protected:
    /// Draws the shape around the position.
    void draw(QCPPainter *painter) override;

private:
    void computeTriangleVertices(QPointF &apex, QPointF &left, QPointF &right) const;
    bool hitInsideTriangle(const QPointF &pos) const;

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace Plot
