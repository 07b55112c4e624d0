// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "qcpitemtracermarker.h"

#include <cmath>

namespace Plot
{

namespace
{

constexpr double equilateralHalfWidth = 0.57735; ///< tan 30 degrees, of the height
constexpr double narrowHalfWidth = 0.2679; ///< tan 15 degrees, of the height
constexpr double apexHitRadiusSquared = 64.0; ///< 8 pixels

/// On which side of the line from \a b to \a a the point \a p lies.
double side(const QPointF &p, const QPointF &a, const QPointF &b)
{
    return (p.x() - b.x()) * (a.y() - b.y()) - (a.x() - b.x()) * (p.y() - b.y());
}

} // namespace

struct QCPItemTracerMarker::Private {
    TracerShape shape = Equilateral;
    bool pointingDown = true;
};

QCPItemTracerMarker::QCPItemTracerMarker(QCustomPlot *parentPlot)
    : QCPItemTracer(parentPlot)
    , d(std::make_unique<Private>())
{
    setStyle(QCPItemTracer::tsNone); // the base class is not to draw anything of its own
}

QCPItemTracerMarker::~QCPItemTracerMarker() = default;

void QCPItemTracerMarker::setShape(TracerShape shape)
{
    d->shape = shape;
}

TracerShape QCPItemTracerMarker::shape() const
{
    return d->shape;
}

void QCPItemTracerMarker::setPointingDown(bool down)
{
    d->pointingDown = down;
}

bool QCPItemTracerMarker::isPointingDown() const
{
    return d->pointingDown;
}

double QCPItemTracerMarker::selectTest(const QPointF &pos, bool onlySelectable,
                                       QVariant *details) const
{
    Q_UNUSED(details)
    if (!anchorInsideAxisRect() || (onlySelectable && !mSelectable))
        return -1.0;
    if (hitInsideTriangle(pos))
        return 0.0;
    const QPointF way = pos - position->pixelPosition();
    const double squared = QPointF::dotProduct(way, way);
    return squared <= apexHitRadiusSquared ? std::sqrt(squared) : -1.0;
}

bool QCPItemTracerMarker::anchorInsideAxisRect() const
{
    if (!position->axisRect())
        return false;
    const QPointF anchor = position->pixelPosition();
    // contains() takes a NaN for inside, and painting at one is undefined.
    return std::isfinite(anchor.x()) && std::isfinite(anchor.y())
        && QRectF(position->axisRect()->rect()).contains(anchor);
}

void QCPItemTracerMarker::draw(QCPPainter *painter)
{
    if (!anchorInsideAxisRect())
        return;
    QPointF triangle[3];
    computeTriangleVertices(triangle[0], triangle[1], triangle[2]);
    // The selected pen and brush stay unused: whoever owns the marker shows selection by the normal
    // ones.
    painter->setPen(mPen);
    painter->setBrush(mBrush);
    painter->drawPolygon(triangle, 3, Qt::OddEvenFill);
}

void QCPItemTracerMarker::computeTriangleVertices(QPointF &apex, QPointF &left,
                                                  QPointF &right) const
{
    apex = position->pixelPosition();
    const double height = mSize > 1.0 ? mSize : 1.0;
    const double halfWidth =
        height * (d->shape == Equilateral ? equilateralHalfWidth : narrowHalfWidth);
    const double base = apex.y() + (d->pointingDown ? -height : height);
    left = QPointF(apex.x() - halfWidth, base);
    right = QPointF(apex.x() + halfWidth, base);
}

bool QCPItemTracerMarker::hitInsideTriangle(const QPointF &pos) const
{
    QPointF apex;
    QPointF left;
    QPointF right;
    computeTriangleVertices(apex, left, right);
    const double d1 = side(pos, apex, left);
    const double d2 = side(pos, left, right);
    const double d3 = side(pos, right, apex);
    const bool anyNegative = d1 < 0 || d2 < 0 || d3 < 0;
    const bool anyPositive = d1 > 0 || d2 > 0 || d3 > 0;
    return !(anyNegative && anyPositive);
}

} // namespace Plot
