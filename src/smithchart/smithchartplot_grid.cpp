// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "smithchartplot_p.h"

#include "gridgeometry.h"
#include "smithchartlayers_p.h"

#include <cmath>
#include <utility>

namespace
{

constexpr int samplesPerCircle = 720;
constexpr int labelPointSize = 8;

QColor gridColor()
{
    return QColor(120, 120, 120, 255);
}

QPen gridPen()
{
    QPen pen(gridColor());
    pen.setStyle(Qt::DashLine);
    pen.setWidthF(1.0);
    return pen;
}

QPen boundaryPen()
{
    QPen pen = gridPen();
    pen.setStyle(Qt::SolidLine);
    return pen;
}

bool onGridLayer(const QCPLayerable *object)
{
    const QString name = object->layer() ? object->layer()->name() : QString();
    return name == SmithLayers::grid() || name == SmithLayers::boundary();
}

/// Adds grid items and curves to one pair of axes.
class GridBuilder
{
public:
    GridBuilder(QCustomPlot *plot, QCPAxis *xAxis, QCPAxis *yAxis)
        : m_plot(plot)
        , m_xAxis(xAxis)
        , m_yAxis(yAxis)
    {
    }

    void addCircle(double centerX, double radius, const QPen &pen, const QString &layer) const
    {
        auto *const ellipse = new QCPItemEllipse(m_plot);
        placeInPlot(ellipse, layer);
        attach(ellipse->topLeft, centerX - radius, radius);
        attach(ellipse->bottomRight, centerX + radius, -radius);
        ellipse->setPen(pen);
        ellipse->setBrush(Qt::NoBrush);
    }

    void addLine(const QVector<double> &x, const QVector<double> &y) const
    {
        auto *const curve = new QCPCurve(m_xAxis, m_yAxis);
        curve->setName(QStringLiteral("smith grid"));
        curve->setLayer(SmithLayers::grid());
        curve->setData(x, y); // the parameter of each point is its index
        curve->setPen(gridPen());
        curve->removeFromLegend();
        curve->setSelectable(QCP::stNone);
    }

    void addChart(const SmithChart::ChartGrid &chart, double side,
                  const QVector<double> &resistances) const
    {
        for (const double r : resistances) {
            if (std::abs(r) > 1e-12) // r = 0 is the rim itself, drawn by the boundary
                addCircle(side * r / (r + 1.0), 1.0 / (r + 1.0), gridPen(), SmithLayers::grid());
        }
        for (auto i = resistances.size(); i < chart.circles.x.size(); ++i)
            addLine(chart.circles.x.at(i), chart.circles.y.at(i));
    }

    void addLabels(const SmithChart::GridLabels &labels) const
    {
        for (int i = 0; i < labels.text.size(); ++i) {
            auto *const label = new QCPItemText(m_plot);
            placeInPlot(label, SmithLayers::grid());
            attach(label->position, labels.x.at(i), labels.y.at(i));
            label->setText(labels.text.at(i));
            label->setColor(gridColor());
            label->setFont(QFont(m_plot->font().family(), labelPointSize));
            label->setPadding(QMargins(1, 1, 1, 1));
            label->setPen(Qt::NoPen);
            label->setBrush(Qt::NoBrush);
            label->setPositionAlignment(SmithChart::labelAlignment(labels.x.at(i), labels.y.at(i)));
        }
    }

private:
    void placeInPlot(QCPAbstractItem *item, const QString &layer) const
    {
        item->setLayer(layer);
        item->setClipAxisRect(m_xAxis->axisRect());
        item->setSelectable(false);
    }

    void attach(QCPItemPosition *position, double x, double y) const
    {
        position->setType(QCPItemPosition::ptPlotCoords);
        position->setAxes(m_xAxis, m_yAxis);
        position->setCoords(x, y);
    }

    QCustomPlot *m_plot;
    QCPAxis *m_xAxis;
    QCPAxis *m_yAxis;
};

} // namespace

void SmithChartPlot::generateSmithChartGridExtended(
    QVector<QVector<double>> &impedanceCircleX, QVector<QVector<double>> &impedanceCircleY,
    QVector<QVector<double>> &admittanceCircleX, QVector<QVector<double>> &admittanceCircleY,
    QVector<double> &boundaryX, QVector<double> &boundaryY, QVector<double> &realAxisX,
    QVector<double> &realAxisY, QVector<double> &impedanceLabelX, QVector<double> &impedanceLabelY,
    QVector<QString> &impedanceLabelText, QVector<double> &admittanceLabelX,
    QVector<double> &admittanceLabelY, QVector<QString> &admittanceLabelText,
    const QVector<double> &resistances, const QVector<double> &reactances, int samples)
{
    SmithChart::Grid grid = SmithChart::gridGeometry(resistances, reactances, samples);
    impedanceCircleX = std::move(grid.impedance.circles.x);
    impedanceCircleY = std::move(grid.impedance.circles.y);
    admittanceCircleX = std::move(grid.admittance.circles.x);
    admittanceCircleY = std::move(grid.admittance.circles.y);
    boundaryX = std::move(grid.boundaryX);
    boundaryY = std::move(grid.boundaryY);
    realAxisX = std::move(grid.realAxisX);
    realAxisY = std::move(grid.realAxisY);
    impedanceLabelX = std::move(grid.impedance.labels.x);
    impedanceLabelY = std::move(grid.impedance.labels.y);
    impedanceLabelText = std::move(grid.impedance.labels.text);
    admittanceLabelX = std::move(grid.admittance.labels.x);
    admittanceLabelY = std::move(grid.admittance.labels.y);
    admittanceLabelText = std::move(grid.admittance.labels.text);
}

void SmithChartPlotPrivate::addSmithChartGrid()
{
    QCustomPlot *const plot = this->plot();
    if (!axisRect() || !plot->layer(SmithLayers::grid()))
        return;
    const SmithChart::GridValues values = SmithChart::gridValues(m_preset);
    const SmithChart::Grid grid =
        SmithChart::gridGeometry(values.resistances, values.reactances, samplesPerCircle);
    const GridBuilder builder(plot, m_xAxis, m_yAxis);

    if (m_showImpedanceGrid)
        builder.addChart(grid.impedance, 1.0, values.resistances);
    if (m_showAdmittanceGrid)
        builder.addChart(grid.admittance, -1.0, values.resistances);
    builder.addCircle(0.0, 1.0, boundaryPen(),
                      plot->layer(SmithLayers::boundary()) ? SmithLayers::boundary()
                                                           : SmithLayers::grid());
    builder.addLine(grid.realAxisX, grid.realAxisY);
    if (m_showImpedanceGrid)
        builder.addLabels(grid.impedance.labels);
    if (m_showAdmittanceGrid)
        builder.addLabels(grid.admittance.labels);

    for (QCPAxis *axis : {m_xAxis.data(), m_yAxis.data()}) {
        axis->setTicks(false);
        axis->setTickLabels(false);
        axis->grid()->setVisible(false);
    }
    requestQueuedReplot();
}

void SmithChartPlotPrivate::clearSmithChartGrid()
{
    QCustomPlot *const plot = this->plot();
    if (!plot)
        return;
    for (int i = plot->plottableCount() - 1; i >= 0; --i) {
        if (onGridLayer(plot->plottable(i)))
            plot->removePlottable(i);
    }
    for (int i = plot->itemCount() - 1; i >= 0; --i) {
        if (onGridLayer(plot->item(i)))
            plot->removeItem(i);
    }
}

void SmithChartPlotPrivate::rebuildSmithChartGrid()
{
    if (!plot())
        return;
    clearSmithChartGrid();
    const QPointer<SmithChartPlot> self(q);
    addSmithChartGrid();
    if (self)
        applyFixedView();
}

SmithChartPlot::GridMode SmithChartPlot::gridMode() const
{
    return d->m_gridMode;
}

void SmithChartPlot::setGridMode(GridMode mode)
{
    if (mode == d->m_gridMode || !d->plot())
        return;
    d->m_gridMode = mode;
    d->syncGridFlags();
    const QPointer<SmithChartPlot> self(this);
    d->rebuildSmithChartGrid();
    if (self)
        d->setGridVisible(d->anyCurveVisible());
}

/// Derives what to show from the mode; a value that is no mode leaves it as it was.
void SmithChartPlotPrivate::syncGridFlags()
{
    switch (m_gridMode) {
    case SmithChartPlot::Impedance:
    case SmithChartPlot::Admittance:
    case SmithChartPlot::ImpedanceAndAdmittance:
        m_showImpedanceGrid = m_gridMode != SmithChartPlot::Admittance;
        m_showAdmittanceGrid = m_gridMode != SmithChartPlot::Impedance;
        break;
    }
}

void SmithChartPlotPrivate::setGridVisible(bool visible)
{
    QCustomPlot *const plot = this->plot();
    if (!plot)
        return;
    for (int i = 0; i < plot->plottableCount(); ++i) {
        if (onGridLayer(plot->plottable(i)))
            plot->plottable(i)->setVisible(visible);
    }
    for (int i = 0; i < plot->itemCount(); ++i) {
        if (onGridLayer(plot->item(i)))
            plot->item(i)->setVisible(visible);
    }
}
