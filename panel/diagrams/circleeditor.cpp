// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "circleeditor.h"

#include <panel/ground/numbertext.h>

#include <plot/qcp.h>

#include <QtMath>

#include <cmath>

namespace Panel
{

namespace
{

/// Straight pieces that the circle is followed in.
constexpr int s_arcs = 72;
/// Of reflection.
constexpr double s_newRadius = 0.2;
constexpr double s_smallestRadius = 0.01;
constexpr double s_largestRadius = 2.0;
constexpr double s_division = 0.1;
constexpr double s_finestStep = 0.001;
/// In pixels.
constexpr double s_nearCentre = 8.0;
constexpr double s_finestRatio = 0.01;

} // namespace

CircleEditor::CircleEditor(PanelModel *model, SmithView *view)
    : LimitEditor(model, view)
{
}

QPointF CircleEditor::pixelsOf(const QPointF &gamma) const
{
    const QCustomPlot *plot = m_view->plot();
    return {plot->xAxis->coordToPixel(gamma.x()), plot->yAxis->coordToPixel(gamma.y())};
}

/// The reflection that a pixel is.
double CircleEditor::pixel() const
{
    return m_view->coordinates({1.0, 0.0}).x() - m_view->coordinates({0.0, 0.0}).x();
}

QVector<LimitEditor::Grip> CircleEditor::grips() const
{
    const LimitCircle &shown = circle();
    if (!edited() || shown.isNone())
        return {};
    const QPointF border(std::cos(m_angle), std::sin(m_angle));
    return {{0, LimitPart::Whole, pixelsOf(shown.centre)},
            {0, LimitPart::Border, pixelsOf(shown.centre + shown.radius * border)}};
}

QPolygonF CircleEditor::outline(int) const
{
    QPolygonF result;
    for (int i = 0; i <= s_arcs; ++i) {
        const double angle = i * 2.0 * M_PI / s_arcs;
        result << pixelsOf(circle().centre
                           + circle().radius * QPointF(std::cos(angle), std::sin(angle)));
    }
    return result;
}

void CircleEditor::begin(const Grip &)
{
    m_before = circle();
}

void CircleEditor::restore()
{
    m_model->viewSettings()->setLimitCircle(m_before);
}

/// Within the chart.
void CircleEditor::setCentre(const QPointF &gamma)
{
    LimitCircle moved = circle();
    const double magnitude = std::hypot(gamma.x(), gamma.y());
    moved.centre = gamma / qMax(1.0, magnitude);
    m_model->viewSettings()->setLimitCircle(moved);
}

void CircleEditor::setRadius(double radius)
{
    LimitCircle sized = circle();
    sized.radius = qBound(s_smallestRadius, radius, s_largestRadius);
    m_model->viewSettings()->setLimitCircle(sized);
}

void CircleEditor::move(const Grip &grip, const QPointF &pixels)
{
    if (!edited() || circle().isNone())
        return;
    const QPointF from = m_view->coordinates(grip.place);
    const QPointF to = m_view->coordinates(grip.place + pixels);
    const double step = qMax(s_finestStep, roundStep(pixel()));
    if (grip.part == LimitPart::Whole) {
        const QPointF centre = m_before.centre + to - from;
        const bool atCentre = std::hypot(centre.x(), centre.y()) <= s_nearCentre * pixel();
        setCentre(atCentre ? QPointF()
                           : QPointF(snapped(centre.x(), {}, 0.0, step),
                                     snapped(centre.y(), {}, 0.0, step)));
        return;
    }
    const QPointF before = from - m_before.centre, now = to - m_before.centre;
    m_angle = std::atan2(now.y(), now.x());
    const double radius =
        m_before.radius + std::hypot(now.x(), now.y()) - std::hypot(before.x(), before.y());
    if (!m_before.centre.isNull() || !(radius < 1.0 - pixel()) || radius < s_smallestRadius) {
        setRadius(snapped(radius, {1.0}, s_nearCentre * pixel(), step));
        return;
    }
    const double ratio = (1.0 + radius) / (1.0 - radius);
    const double perPixel = 2.0 * pixel() / ((1.0 - radius) * (1.0 - radius));
    m_model->viewSettings()->setVswrLimit(qMax(
        1.0 + s_finestRatio, snapped(ratio, {}, 0.0, qMax(s_finestRatio, roundStep(perPixel)))));
}

void CircleEditor::step(const Grip &grip, const QPointF &divisions)
{
    if (grip.part == LimitPart::Whole)
        setCentre(circle().centre + s_division * divisions);
    else
        setRadius(circle().radius + s_division * (divisions.x() + divisions.y()));
}

QString CircleEditor::add(const QPointF &position)
{
    const QPointF gamma = m_view->coordinates(position);
    if (std::hypot(gamma.x(), gamma.y()) > 1.0)
        return {};
    if (!circle().isNone())
        return tr("There is one limit circle for all Smith charts.");
    const double step = qMax(s_finestStep, roundStep(pixel()));
    m_model->viewSettings()->setLimitCircle(
        {{snapped(gamma.x(), {0.0}, s_nearCentre * pixel(), step),
          snapped(gamma.y(), {0.0}, s_nearCentre * pixel(), step)},
         s_newRadius,
         false});
    editing()->select(0, LimitPart::Whole);
    return {};
}

void CircleEditor::remove(int)
{
    m_model->viewSettings()->setLimitCircle({});
}

QString CircleEditor::text(const Grip &grip) const
{
    if (grip.limit < 0)
        return {};
    const LimitCircle &shown = circle();
    const QString side = shown.keepOut ? QStringLiteral("\u2265 ") : QStringLiteral("\u2264 ");
    const double ratio = m_model->viewSettings()->vswrRadius();
    if (ratio > 1.0)
        return tr("VSWR %1").arg(side + QString::number(ratio, 'f', 2));
    const double magnitude = std::hypot(shown.centre.x(), shown.centre.y());
    const double degrees = qRadiansToDegrees(std::atan2(shown.centre.y(), shown.centre.x()));
    return tr("\u0393 %1 \u2220 %2\u00b0, radius %3")
        .arg(numberText(magnitude, 3), numberText(degrees, 1), side + numberText(shown.radius, 3));
}

} // namespace Panel
