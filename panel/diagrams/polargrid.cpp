// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "polargrid.h"

#include "polarlines.h"

#include <panel/ground/look.h>
#include <panel/ground/numbertext.h>

#include <QtMath>

#include <cmath>

namespace Panel
{

namespace
{

/// How far a chord may leave its circle, in pixels.
constexpr double s_chordError = 0.1;

/// The part of a circle that is seen, as straight pieces: painters have no arcs of 60,000 pixels.
QPolygonF arc(const PolarPlace &place, const PolarLines::Circle &circle)
{
    const double radius = qMax(1.0, circle.share * place.radius);
    const double piece = 2.0 * qRadiansToDegrees(std::acos(1.0 - s_chordError / radius));
    const double turn = circle.seen.to - circle.seen.from;
    const int pieces = qMax(2, qCeil(turn / piece));
    QPolygonF points;
    for (int i = 0; i <= pieces; ++i)
        points << place.at(circle.share, circle.seen.from + turn * i / pieces);
    return points;
}

} // namespace

PolarGrid::PolarGrid(QCustomPlot *plot)
    : QCPAbstractItem(plot)
{
    setLayer(QStringLiteral("grid"));
    setSelectable(false);
    setClipToAxisRect(false);
}

void PolarGrid::setScale(double full, int divisions)
{
    m_full = full;
    m_divisions = divisions;
}

void PolarGrid::setLook(const QFont &labels)
{
    m_font = labels;
}

void PolarGrid::draw(QCPPainter *painter)
{
    const QCPAxis *x = parentPlot()->xAxis, *y = parentPlot()->yAxis;
    PolarPlace place;
    place.centre = {x->coordToPixel(0.0), y->coordToPixel(0.0)};
    place.radius = x->coordToPixel(1.0) - x->coordToPixel(0.0);
    place.seen = QRectF(parentPlot()->axisRect()->rect());
    place.labels = QRectF(parentPlot()->rect());
    const QFontMetricsF metrics(m_font);
    const QSizeF label(metrics.horizontalAdvance(QStringLiteral("\u2212150\u00b0")),
                       metrics.height());
    const PolarLines lines = polarLines(place, m_divisions, label);

    const Look look = currentLook();
    QColor faint = look.border;
    faint.setAlphaF(0.5);
    painter->save();
    painter->setAntialiasing(true);
    painter->setClipRect(place.seen.adjusted(-1.0, -1.0, 1.0, 1.0));
    painter->setBrush(Qt::NoBrush);
    for (const PolarLines::Circle &circle : lines.circles) {
        painter->setPen(qFuzzyCompare(circle.share, 1.0) ? look.border : faint);
        painter->drawPolyline(arc(place, circle));
    }
    painter->setPen(faint);
    for (const PolarLines::Ray &ray : lines.rays)
        painter->drawLine(ray.line);
    painter->restore();
    painter->setFont(m_font);
    for (const PolarLines::Circle &circle : lines.circles) {
        if (circle.isLabelled)
            drawLabel(painter, circle.label, QString::number(circle.share * m_full, 'g', 5));
    }
    for (const PolarLines::Ray &ray : lines.rays) {
        if (ray.isLabelled)
            drawLabel(painter, ray.label,
                      withMinusSigns(QString::number(ray.degrees, 'g', 5)) + QChar(0x00b0));
    }
}

/// A text on a ground of its own, so that lines do not run through it.
void PolarGrid::drawLabel(QCPPainter *painter, const QPointF &middle, const QString &text) const
{
    const QFontMetricsF metrics(m_font);
    QRectF box(0.0, 0.0, metrics.horizontalAdvance(text) + 2.0, metrics.height());
    box.moveCenter(middle);
    const Look look = currentLook();
    QColor ground = look.background;
    ground.setAlphaF(0.75);
    painter->fillRect(box, ground);
    painter->setPen(look.dimText);
    painter->drawText(box, Qt::AlignCenter, text);
}

} // namespace Panel
