// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "viewgriditem_p.h"

#include "circle_p.h"
#include "polylines_p.h"

#include <QFontMetricsF>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

using namespace SmithChart;

namespace
{

constexpr int labelPointSize = 8;
constexpr double straightnessPx = 0.15; ///< how far drawn lines may stray from the circles
constexpr double spacingOfBothPx = 40.0; ///< where two charts lie over each other
constexpr int strengths = 6;

/// How strong a line of a weight is drawn, of 0 to strengths - 1: by octaves of its spacing.
int strengthOf(double weight)
{
    constexpr double faintestPx = 30.0;
    const double octaves = std::log2(std::max(weight / faintestPx, 1.0));
    return std::min(static_cast<int>(octaves * 1.5), strengths - 1);
}

QPen penOf(const QPen &base, int strength)
{
    constexpr double faintest = 0.45;
    QColor color = base.color();
    color.setAlpha(
        qRound(color.alpha() * (faintest + (1.0 - faintest) * strength / (strengths - 1))));
    QPen pen = base;
    pen.setStyle(Qt::SolidLine);
    pen.setColor(color);
    return pen;
}

/// The pen of the admittance chart where both are shown: one cannot read two grids of one colour.
QPen admittancePen(const GridLook &look)
{
    QPen pen = look.linePen;
    pen.setColor(QColor(84, 128, 176, look.linePen.color().alpha()));
    return look.admittancePen.value_or(pen);
}

} // namespace

GridView gridViewOf(const QCPAxis *xAxis, const QCPAxis *yAxis)
{
    if (!xAxis || !yAxis)
        return {};
    const QCPRange x = xAxis->range();
    const QCPRange y = yAxis->range();
    return {QRectF(x.lower, y.lower, x.size(), y.size()), xAxis->axisRect()->width() / x.size()};
}

ViewGridItem::ViewGridItem(QCPAxis *xAxis, QCPAxis *yAxis, const Content &content)
    : QCPAbstractItem(xAxis->parentPlot())
    , m_xAxis(xAxis)
    , m_yAxis(yAxis)
    , m_content(content)
{
    setClipAxisRect(xAxis->axisRect());
    setSelectable(false);
}

double ViewGridItem::selectTest(const QPointF &pos, bool onlySelectable, QVariant *details) const
{
    Q_UNUSED(pos)
    Q_UNUSED(onlySelectable)
    Q_UNUSED(details)
    return -1.0;
}

QFont ViewGridItem::labelFont() const
{
    return m_content.look.labelFont ? *m_content.look.labelFont
                                    : QFont(mParentPlot->font().family(), labelPointSize);
}

void ViewGridItem::draw(QCPPainter *painter)
{
    const GridView view = gridViewOf(m_xAxis, m_yAxis);
    if (!view.isUsable())
        return;
    if (view.rect != m_view.rect || view.pixelsPerUnit != m_view.pixelsPerUnit)
        update(view);
    const QPointF corner = m_xAxis->axisRect()->topLeft();
    painter->translate(corner);
    for (const Strokes &strokes : qAsConst(m_strokes)) {
        painter->setPen(strokes.pen);
        for (const QPolygonF &line : strokes.lines)
            painter->drawPolyline(line);
    }
    painter->setFont(labelFont());
    for (int i = 0; i < m_labels.size(); ++i) {
        const bool isSecond = i >= m_firstSecondLabel;
        painter->setPen(isSecond ? admittancePen(m_content.look).color()
                                 : m_content.look.labelColor);
        painter->drawText(m_labels.at(i).rect, Qt::AlignCenter, m_labels.at(i).text);
    }
    painter->translate(-corner);
}

void ViewGridItem::update(const GridView &view)
{
    m_view = view;
    m_strokes.clear();
    m_labels.clear();
    if (m_content.impedance)
        addChart(GridChart::Impedance, view, m_content.look.linePen);
    m_firstSecondLabel =
        m_content.impedance ? static_cast<int>(m_labels.size()) : std::numeric_limits<int>::max();
    if (m_content.admittance) {
        addChart(GridChart::Admittance, view,
                 m_content.impedance ? admittancePen(m_content.look) : m_content.look.linePen);
    }
    const GridMapping mapping(view, GridChart::Impedance);
    QPolygonF realAxis;
    realAxis << mapping.toPixel({-1.0, 0.0}) << mapping.toPixel({1.0, 0.0});
    m_strokes.append(Strokes{penOf(m_content.look.linePen, strengths - 1), {realAxis}});
    cutOutLabels();
}

void ViewGridItem::addChart(GridChart chart, const GridView &view, const QPen &pen)
{
    const bool both = m_content.impedance && m_content.admittance;
    const bool isImpedance = chart == GridChart::Impedance;
    double reference = 1.0;
    GridUnit unit = GridUnit::Normalised;
    if (m_content.referenceOhms) {
        reference = isImpedance ? *m_content.referenceOhms : 1.0 / *m_content.referenceOhms;
        unit = isImpedance ? GridUnit::Ohms : GridUnit::Siemens;
    }
    const GridMapping mapping(view, chart);
    const GridView chartView = mapping.chartView();
    ViewGridRules grid;
    grid.reference = reference;
    if (both)
        grid.spacingPx = spacingOfBothPx;
    const QVector<ViewGridLine> lines = viewGridLines(chartView, grid);

    std::array<Strokes, strengths> byStrength;
    for (const ViewGridLine &line : lines) {
        const GridArc arc = gridArc(line, reference);
        QVector<QPolygonF> &target =
            byStrength[static_cast<std::size_t>(strengthOf(line.weight))].lines;
        for (const ArcStretch &stretch : arc.within(chartView.rect)) {
            QPolygonF polygon;
            for (const QPointF &point : arc.points(stretch, straightnessPx / view.pixelsPerUnit))
                polygon.append(mapping.toPixel(point));
            target.append(polygon);
        }
    }
    for (int strength = 0; strength < strengths; ++strength) {
        Strokes &strokes = byStrength[static_cast<std::size_t>(strength)];
        strokes.pen = penOf(pen, strength);
        m_strokes.append(strokes);
    }

    const QFontMetricsF metrics(labelFont(), mParentPlot);
    ViewGridLabelRules rules;
    rules.reference = reference;
    rules.unit = unit;
    rules.asSecondChart = both && !isImpedance;
    rules.measure = [&metrics](const QString &text) {
        return QSizeF(std::ceil(metrics.horizontalAdvance(text)) + 4.0, metrics.height());
    };
    appendViewGridLabels(lines, mapping, rules, m_labels);
}

/// Lines stop before the labels, whatever the background is: so far before that none reads as a
/// minus sign, and between a label and the view's edge nothing is left of them.
void ViewGridItem::cutOutLabels()
{
    constexpr double signPx = 8.0; // a minus sign and its space
    QVector<QRectF> holes;
    for (const ViewGridLabel &label : qAsConst(m_labels))
        holes.append(label.rect.adjusted(-signPx, 0.0, signPx, 0.0));
    for (Strokes &strokes : m_strokes)
        strokes.lines = linesOutside(strokes.lines, holes);
}

ViewRimItem::ViewRimItem(QCPAxis *xAxis, QCPAxis *yAxis, const QPen &pen)
    : QCPAbstractItem(xAxis->parentPlot())
    , m_xAxis(xAxis)
    , m_yAxis(yAxis)
    , m_pen(pen)
{
    setClipAxisRect(xAxis->axisRect());
    setSelectable(false);
}

double ViewRimItem::selectTest(const QPointF &pos, bool onlySelectable, QVariant *details) const
{
    Q_UNUSED(pos)
    Q_UNUSED(onlySelectable)
    Q_UNUSED(details)
    return -1.0;
}

void ViewRimItem::draw(QCPPainter *painter)
{
    const GridView view = gridViewOf(m_xAxis, m_yAxis);
    if (!view.isUsable())
        return;
    const GridMapping mapping(view, GridChart::Impedance);
    const QPointF corner = m_xAxis->axisRect()->topLeft();
    painter->setPen(m_pen);
    for (QPolygonF line :
         circleLines({{0.0, 0.0}, 1.0}, view.rect, false, straightnessPx / view.pixelsPerUnit)) {
        for (QPointF &point : line)
            point = mapping.toPixel(point) + corner;
        painter->drawPolyline(line);
    }
}
