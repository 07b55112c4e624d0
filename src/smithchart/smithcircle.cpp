// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "smithcircle.h"

#include "circle_p.h"
#include "smithchartlayers_p.h"
#include "viewgriditem_p.h"

#include <controls/thememanager.h>

#include <QFontMetricsF>

#include <algorithm>

using namespace SmithChart;

class SmithCircle::Private
{
public:
    /// Takes up other circles; false if there are none.
    bool set(SmithCircle *item, const QVector<Circle> &circles, bool insideChart)
    {
        if (circles.isEmpty())
            return false;
        m_circles = circles;
        m_insideChart = insideChart;
        changed(item);
        return true;
    }
    bool set(SmithCircle *item, const std::optional<Circle> &circle, bool insideChart)
    {
        return set(item, circle ? QVector<Circle>{*circle} : QVector<Circle>(), insideChart);
    }
    static void changed(SmithCircle *item)
    {
        QCustomPlot *const plot = item->parentPlot();
        if (!plot->size().isEmpty()) // without a size it would only complain
            plot->replot(QCustomPlot::rpQueuedReplot);
    }

    QPointer<QCPAxis> m_xAxis;
    QPointer<QCPAxis> m_yAxis;
    QVector<Circle> m_circles;
    bool m_insideChart = true;
    QString m_label;
    std::optional<QPen> m_pen;
};

SmithCircle::SmithCircle(QCPAxis *xAxis, QCPAxis *yAxis)
    : QCPAbstractItem(xAxis->parentPlot())
    , d(std::make_unique<Private>())
{
    d->m_xAxis = xAxis;
    d->m_yAxis = yAxis;
    setSelectable(false);
    setClipAxisRect(xAxis->axisRect());
    setLayer(SmithLayers::ensure(parentPlot(), SmithLayers::references(), SmithLayers::grid()));
    connect(Controls::ThemeManager::instance(), &Controls::ThemeManager::themeChanged, this,
            [this] { Private::changed(this); });
}

SmithCircle::~SmithCircle() = default;

bool SmithCircle::setVswr(double vswr)
{
    return d->set(this, vswrCircle(vswr), false);
}

bool SmithCircle::setReflection(double magnitude)
{
    return d->set(this, reflectionCircle(magnitude), false);
}

bool SmithCircle::setQuality(double q)
{
    return d->set(this, qualityCircles(q), true);
}

bool SmithCircle::setResistance(double r)
{
    return d->set(this, resistanceCircle(r), true);
}

bool SmithCircle::setReactance(double x)
{
    return d->set(this, reactanceCircle(x), true);
}

bool SmithCircle::setConductance(double g)
{
    return d->set(this, conductanceCircle(g), true);
}

bool SmithCircle::setSusceptance(double b)
{
    return d->set(this, susceptanceCircle(b), true);
}

bool SmithCircle::setCircle(const QPointF &centre, double radius)
{
    const Circle circle{centre, radius};
    return d->set(this, circle.isUsable() ? std::optional<Circle>(circle) : std::nullopt, false);
}

void SmithCircle::setLabel(const QString &label)
{
    d->m_label = label;
    Private::changed(this);
}

QString SmithCircle::label() const
{
    return d->m_label;
}

void SmithCircle::setPen(std::optional<QPen> pen)
{
    d->m_pen = std::move(pen);
    Private::changed(this);
}

std::optional<QPen> SmithCircle::pen() const
{
    return d->m_pen;
}

double SmithCircle::selectTest(const QPointF &pos, bool onlySelectable, QVariant *details) const
{
    Q_UNUSED(pos)
    Q_UNUSED(onlySelectable)
    Q_UNUSED(details)
    return -1.0;
}

void SmithCircle::draw(QCPPainter *painter)
{
    const GridView view = gridViewOf(d->m_xAxis, d->m_yAxis);
    if (!view.isUsable())
        return;
    const QPen pen = d->m_pen.value_or(QPen(Controls::ThemeManager::instance()->textColor(), 1.0));
    painter->setPen(pen);
    constexpr double straightnessPx = 0.15;
    const GridMapping mapping(view, GridChart::Impedance);
    const QRectF area = d->m_xAxis->axisRect()->rect();
    std::optional<QPointF> highest;
    for (const Circle &circle : qAsConst(d->m_circles)) {
        for (QPolygonF line : circleLines(circle, view.rect, d->m_insideChart,
                                          straightnessPx / view.pixelsPerUnit)) {
            for (QPointF &point : line) {
                point = mapping.toPixel(point) + area.topLeft();
                if (!highest || point.y() < highest->y())
                    highest = point;
            }
            painter->drawPolyline(line);
        }
    }
    if (!highest || d->m_label.isEmpty())
        return;
    const QFont font(parentPlot()->font().family(), 8);
    const QFontMetricsF metrics(font, parentPlot());
    QRectF text(0.0, 0.0, metrics.horizontalAdvance(d->m_label) + 4.0, metrics.height());
    text.moveCenter(*highest - QPointF(0.0, text.height() / 2.0 + 1.0));
    text.moveLeft(
        std::clamp(text.left(), area.left(), std::max(area.left(), area.right() - text.width())));
    text.moveTop(std::max(text.top(), area.top()));
    painter->setFont(font);
    painter->drawText(text, Qt::AlignCenter, d->m_label);
}
