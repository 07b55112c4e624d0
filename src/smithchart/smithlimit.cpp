// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "smithlimit.h"

#include "indexedtrace_p.h"
#include "smithchartlayers_p.h"
#include "smithchartplot_p.h"
#include "viewgriditem_p.h"

#include <controls/thememanager.h>

#include <QTransform>

#include <limits>

using SmithChart::LimitArea;
using SmithChart::LimitResult;

namespace
{

/// A part of the picture on the axes of a chart; never hit.
class LimitItem : public QCPAbstractItem
{
public:
    LimitItem(QCPAxis *xAxis, QCPAxis *yAxis, const QString &layer)
        : QCPAbstractItem(xAxis->parentPlot())
        , m_xAxis(xAxis)
        , m_yAxis(yAxis)
    {
        setSelectable(false);
        setClipAxisRect(xAxis->axisRect());
        setLayer(layer);
    }

    double selectTest(const QPointF &, bool, QVariant *) const override { return -1.0; }
    QCPAxis *xAxis() const { return m_xAxis; }
    QCPAxis *yAxis() const { return m_yAxis; }

    QColor color; ///< of the theme without

private:
    QPointer<QCPAxis> m_xAxis;
    QPointer<QCPAxis> m_yAxis;
};

class AreaItem : public LimitItem
{
public:
    using LimitItem::LimitItem;

    QPainterPath outline; ///< in the plane of the reflection coefficient

protected:
    void draw(QCPPainter *painter) override
    {
        const SmithChart::GridView view = gridViewOf(xAxis(), yAxis());
        if (!view.isUsable())
            return;
        const double scale = view.pixelsPerUnit;
        const QPointF corner = xAxis()->axisRect()->topLeft();
        const QTransform toPixel(scale, 0.0, 0.0, -scale, corner.x() - view.rect.left() * scale,
                                 corner.y() + view.rect.bottom() * scale);
        const QColor border =
            color.isValid() ? color : Controls::ThemeManager::instance()->textColor();
        QColor fill = border;
        fill.setAlpha(31); // an eighth: traces show through
        painter->setPen(QPen(border, 1.0));
        painter->setBrush(fill);
        painter->drawPath(toPixel.map(outline));
    }
};

class FailureItem : public LimitItem
{
public:
    using LimitItem::LimitItem;

    SmithRender::IndexedTrace trace; ///< what fails, stretch after stretch, with gaps between
    QVector<double> real;
    QVector<double> imag;

protected:
    void draw(QCPPainter *painter) override
    {
        if (!xAxis() || !yAxis() || real.isEmpty())
            return;
        painter->setPen(QPen(color, 2.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        QPolygonF line;
        const auto finishLine = [&] {
            if (line.size() == 1)
                painter->drawPoint(line.first());
            else if (!line.isEmpty())
                painter->drawPolyline(line);
            line.clear();
        };
        const QVector<int> kept =
            trace.decimate(SmithChartPlotPrivate::viewportOf(xAxis(), yAxis())).keptIndices;
        for (const int i : kept) {
            if (qIsFinite(real.at(i)))
                line.append({xAxis()->coordToPixel(real.at(i)), yAxis()->coordToPixel(imag.at(i))});
            else
                finishLine();
        }
        finishLine();
    }
};

} // namespace

class SmithLimit::Private
{
public:
    AreaItem *areaItem() const { return static_cast<AreaItem *>(m_areaItem.data()); }
    FailureItem *failureItem() const { return static_cast<FailureItem *>(m_failureItem.data()); }

    void requestReplot() const
    {
        if (m_chart)
            m_chart->d->requestQueuedReplot();
    }
    /// Draws the failing stretches of a trace.
    void showFailures(const QVector<double> &real, const QVector<double> &imag)
    {
        FailureItem *const item = failureItem();
        if (!item)
            return;
        item->real.clear();
        item->imag.clear();
        constexpr double gap = std::numeric_limits<double>::quiet_NaN();
        for (const LimitResult::Stretch &stretch : qAsConst(m_result.failing)) {
            item->real += real.mid(stretch.first, stretch.last - stretch.first + 1);
            item->imag += imag.mid(stretch.first, stretch.last - stretch.first + 1);
            item->real.append(gap);
            item->imag.append(gap);
        }
        item->trace.setSource(item->real, item->imag);
        requestReplot();
    }

    QPointer<SmithChartPlot> m_chart;
    QPointer<QCPAbstractItem> m_areaItem;
    QPointer<QCPAbstractItem> m_failureItem;
    LimitArea m_area;
    std::optional<SmithChart::StimulusRange> m_range;
    LimitResult m_result;
    std::optional<bool> m_verdict; ///< of the last test
    bool m_visible = true;
};

SmithLimit::SmithLimit(SmithChartPlot *chart)
    : QObject(chart)
    , d(std::make_unique<Private>())
{
    d->m_chart = chart;
    if (!chart || !chart->d->axisRect())
        return;
    QCustomPlot *const plot = chart->getPlot();
    QCPAxis *const x = chart->xAxis();
    QCPAxis *const y = chart->yAxis();
    d->m_areaItem = new AreaItem(
        x, y, SmithLayers::ensure(plot, SmithLayers::references(), SmithLayers::grid()));
    d->m_failureItem = new FailureItem(
        x, y, SmithLayers::ensure(plot, SmithLayers::failures(), SmithLayers::activeTracers()));
    d->failureItem()->color = Qt::red;
    connect(Controls::ThemeManager::instance(), &Controls::ThemeManager::themeChanged, this,
            [this] { d->requestReplot(); });
}

SmithLimit::~SmithLimit()
{
    for (const QPointer<QCPAbstractItem> &item : {d->m_areaItem, d->m_failureItem}) {
        if (item)
            item->parentPlot()->removeItem(item);
    }
}

void SmithLimit::setArea(const LimitArea &area)
{
    d->m_area = area;
    if (AreaItem *const item = d->areaItem())
        item->outline = area.outline();
    d->m_result = {};
    d->m_verdict.reset();
    d->showFailures({}, {});
}

LimitArea SmithLimit::area() const
{
    return d->m_area;
}

void SmithLimit::setStimulusRange(std::optional<SmithChart::StimulusRange> range)
{
    d->m_range = range;
}

void SmithLimit::setColors(const QColor &area, const QColor &failing)
{
    if (AreaItem *const item = d->areaItem())
        item->color = area;
    if (FailureItem *const item = d->failureItem())
        item->color = failing;
    d->requestReplot();
}

void SmithLimit::setVisible(bool visible)
{
    d->m_visible = visible;
    for (const QPointer<QCPAbstractItem> &item : {d->m_areaItem, d->m_failureItem}) {
        if (item)
            item->setVisible(visible);
    }
    d->requestReplot();
}

bool SmithLimit::isVisible() const
{
    return d->m_visible;
}

LimitResult SmithLimit::test(int traceId)
{
    const QVector<double> *stimulus = nullptr;
    const QVector<double> *real = nullptr;
    const QVector<double> *imag = nullptr;
    d->m_result = {};
    if (d->m_chart && d->m_chart->sourceCurveData(traceId, stimulus, real, imag)) {
        d->m_result = d->m_range ? d->m_area.test(*real, *imag, *stimulus, *d->m_range)
                                 : d->m_area.test(*real, *imag);
        d->showFailures(*real, *imag);
    } else {
        d->showFailures({}, {});
    }
    LimitResult result = d->m_result;
    if (d->m_verdict != result.passed()) {
        d->m_verdict = result.passed();
        Q_EMIT verdictChanged(result.passed());
    }
    return result;
}

LimitResult SmithLimit::result() const
{
    return d->m_result;
}
