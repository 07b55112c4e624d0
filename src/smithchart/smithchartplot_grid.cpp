// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "smithchartplot_p.h"

#include "gridgeometry.h"
#include "smithchartlayers_p.h"
#include "viewgriditem_p.h"

#include <controls/thememanager.h>

#include <cmath>
#include <utility>

namespace
{

constexpr int samplesPerCircle = 720;
constexpr int labelPointSize = 8;

/// Names the chart that a part of a grid belongs to, for two charts may share a plot.
constexpr char ownerProperty[] = "smithChart";

using Owner = QPointer<QObject>;

bool onGridLayer(const QCPLayerable *object)
{
    const QString name = object->layer() ? object->layer()->name() : QString();
    return name == SmithLayers::grid() || name == SmithLayers::boundary();
}

/// Whether the chart that made this part of a grid is gone.
bool isOrphaned(const QObject *object)
{
    const QVariant owner = object->property(ownerProperty);
    return owner.isValid() && owner.value<Owner>().isNull();
}

/// Removes what lies on the grid's layers and meets a condition.
template<typename Condition>
void removeFromGrid(QCustomPlot *plot, const Condition &condition)
{
    for (int i = plot->plottableCount() - 1; i >= 0; --i) {
        if (onGridLayer(plot->plottable(i)) && condition(plot->plottable(i)))
            plot->removePlottable(i);
    }
    for (int i = plot->itemCount() - 1; i >= 0; --i) {
        if (onGridLayer(plot->item(i)) && condition(plot->item(i)))
            plot->removeItem(i);
    }
}

/// Adds a chart's grid items and curves to its axes.
class GridBuilder
{
public:
    GridBuilder(QObject *chart, QCustomPlot *plot, QCPAxis *xAxis, QCPAxis *yAxis,
                const SmithChart::GridLook &look)
        : m_owner(QVariant::fromValue(Owner(chart)))
        , m_plot(plot)
        , m_xAxis(xAxis)
        , m_yAxis(yAxis)
        , m_look(look)
    {
    }

    /// Puts an item where it belongs.
    void adopt(QCPAbstractItem *item, const QString &layer) const
    {
        item->setProperty(ownerProperty, m_owner);
        item->setLayer(layer);
        item->setClipAxisRect(m_xAxis->axisRect());
        item->setSelectable(false);
    }

    void addCircle(double centerX, double radius, const QPen &pen, const QString &layer) const
    {
        auto *const ellipse = new QCPItemEllipse(m_plot);
        adopt(ellipse, layer);
        attach(ellipse->topLeft, centerX - radius, radius);
        attach(ellipse->bottomRight, centerX + radius, -radius);
        ellipse->setPen(pen);
        ellipse->setBrush(Qt::NoBrush);
    }

    void addLine(const QVector<double> &x, const QVector<double> &y) const
    {
        auto *const curve = new QCPCurve(m_xAxis, m_yAxis);
        curve->setProperty(ownerProperty, m_owner);
        curve->setName(QStringLiteral("smith grid"));
        curve->setLayer(SmithLayers::grid());
        curve->setData(x, y); // the parameter of each point is its index
        curve->setPen(m_pen);
        curve->setSelectable(QCP::stNone);
    }

    /// The lines to come are drawn with this pen.
    void setPen(const QPen &pen) { m_pen = pen; }

    void addChart(const SmithChart::ChartGrid &chart, double side,
                  const QVector<double> &resistances) const
    {
        for (const double r : resistances) {
            if (std::abs(r) > 1e-12) // r = 0 is the rim itself, drawn by the boundary
                addCircle(side * r / (r + 1.0), 1.0 / (r + 1.0), m_pen, SmithLayers::grid());
        }
        for (auto i = resistances.size(); i < chart.circles.x.size(); ++i)
            addLine(chart.circles.x.at(i), chart.circles.y.at(i));
    }

    /// With \a apart, the labels lie above the axis and inside the rim.
    void addLabels(const SmithChart::GridLabels &labels, bool apart) const
    {
        constexpr double insideRim = 0.94;
        for (int i = 0; i < labels.text.size(); ++i) {
            const double x = labels.x.at(i);
            const double y = labels.y.at(i);
            const Qt::Alignment alignment = SmithChart::labelAlignment(x, y);
            const bool onAxis = alignment == (Qt::AlignTop | Qt::AlignHCenter);
            auto *const label = new QCPItemText(m_plot);
            adopt(label, SmithLayers::grid());
            if (!apart)
                attach(label->position, x, y);
            else if (onAxis)
                attach(label->position, x, -y);
            else
                attach(label->position, x * insideRim, y * insideRim);
            label->setText(labels.text.at(i));
            label->setColor(m_look.labelColor);
            label->setFont(m_look.labelFont ? *m_look.labelFont
                                            : QFont(m_plot->font().family(), labelPointSize));
            label->setPadding(QMargins(1, 1, 1, 1));
            label->setPen(Qt::NoPen);
            label->setBrush(Qt::NoBrush);
            label->setPositionAlignment(apart && onAxis ? Qt::AlignBottom | Qt::AlignHCenter
                                                        : alignment);
        }
    }

private:
    void attach(QCPItemPosition *position, double x, double y) const
    {
        position->setType(QCPItemPosition::ptPlotCoords);
        position->setAxes(m_xAxis, m_yAxis);
        position->setCoords(x, y);
    }

    QVariant m_owner;
    QCustomPlot *m_plot;
    QCPAxis *m_xAxis;
    QCPAxis *m_yAxis;
    SmithChart::GridLook m_look;
    QPen m_pen;
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
    removeFromGrid(plot, isOrphaned);
    if (m_gridFollowsView)
        addViewGrid();
    else
        addPresetGrid();
    for (QCPAxis *axis : {m_xAxis.data(), m_yAxis.data()}) {
        axis->setTicks(false);
        axis->setTickLabels(false);
        axis->grid()->setVisible(false);
    }
    requestQueuedReplot();
}

QString SmithChartPlotPrivate::boundaryLayer() const
{
    return plot()->layer(SmithLayers::boundary()) ? SmithLayers::boundary() : SmithLayers::grid();
}

void SmithChartPlotPrivate::addPresetGrid()
{
    const SmithChart::GridValues values = SmithChart::gridValues(m_preset);
    const SmithChart::Grid grid =
        SmithChart::gridGeometry(values.resistances, values.reactances, samplesPerCircle);
    const bool both = m_showImpedanceGrid && m_showAdmittanceGrid;
    GridBuilder builder(q, plot(), m_xAxis, m_yAxis, m_gridLook);
    // A grid is in no legend, and to take each of its lines out again costs as much as the line.
    const bool addsToLegend = plot()->autoAddPlottableToLegend();
    plot()->setAutoAddPlottableToLegend(false);

    builder.setPen(m_gridLook.linePen);
    if (m_showImpedanceGrid)
        builder.addChart(grid.impedance, 1.0, values.resistances);
    if (m_showAdmittanceGrid) {
        if (both)
            builder.setPen(m_gridLook.admittancePen.value_or(m_gridLook.linePen));
        builder.addChart(grid.admittance, -1.0, values.resistances);
        builder.setPen(m_gridLook.linePen);
    }
    builder.addCircle(0.0, 1.0, m_gridLook.boundaryPen, boundaryLayer());
    builder.addLine(grid.realAxisX, grid.realAxisY);
    plot()->setAutoAddPlottableToLegend(addsToLegend);
    if (m_showImpedanceGrid)
        builder.addLabels(grid.impedance.labels, false);
    if (m_showAdmittanceGrid)
        builder.addLabels(grid.admittance.labels, both && m_gridLook.labelsApart);
}

void SmithChartPlotPrivate::addViewGrid()
{
    const GridBuilder builder(q, plot(), m_xAxis, m_yAxis, m_gridLook);
    builder.adopt(
        new ViewGridItem(m_xAxis, m_yAxis,
                         {m_showImpedanceGrid, m_showAdmittanceGrid, m_gridReference, m_gridLook}),
        SmithLayers::grid());
    builder.adopt(new ViewRimItem(m_xAxis, m_yAxis, m_gridLook.boundaryPen), boundaryLayer());
}

/// Whether something on the grid's layers is no part of another chart that shares the plot.
bool SmithChartPlotPrivate::isOurs(const QObject *object) const
{
    const QVariant property = object->property(ownerProperty);
    const QObject *const owner = property.value<Owner>();
    return !owner || owner == q;
}

void SmithChartPlotPrivate::clearSmithChartGrid()
{
    removeFromGrid(plot(), [this](const QObject *object) { return isOurs(object); });
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
    d->applyGridChange();
    if (self)
        Q_EMIT gridModeChanged(mode);
}

bool SmithChartPlot::gridFollowsView() const
{
    return d->m_gridFollowsView;
}

void SmithChartPlot::setGridFollowsView(bool follows)
{
    if (follows == d->m_gridFollowsView)
        return;
    d->m_gridFollowsView = follows;
    d->applyGridChange();
}

std::optional<double> SmithChartPlot::gridReference() const
{
    return d->m_gridReference;
}

bool SmithChartPlot::setGridReference(std::optional<double> ohms)
{
    if (ohms && !(std::isfinite(*ohms) && *ohms > 0.0))
        return false;
    if (ohms != d->m_gridReference) {
        d->m_gridReference = ohms;
        if (d->m_gridFollowsView)
            d->applyGridChange();
    }
    return true;
}

SmithChart::GridLook SmithChartPlot::gridLook() const
{
    return d->m_gridLook;
}

void SmithChartPlot::setGridLook(const SmithChart::GridLook &look)
{
    d->m_gridLook = look;
    QCustomPlot *const plot = d->plot();
    if (plot && look.background)
        plot->setBackground(*look.background);
    d->applyGridChange();
}

bool SmithChartPlot::followsTheme() const
{
    return bool(d->m_themeConnection);
}

void SmithChartPlot::setFollowsTheme(bool follows)
{
    if (follows == followsTheme())
        return;
    if (!follows) {
        disconnect(std::exchange(d->m_themeConnection, {}));
        return;
    }
    using Controls::ThemeManager;
    d->m_themeConnection = connect(ThemeManager::instance(), &ThemeManager::themeChanged, this,
                                   [this] { d->applyTheme(); });
    d->applyTheme();
}

void SmithChartPlotPrivate::applyTheme()
{
    const auto *const theme = Controls::ThemeManager::instance();
    SmithChart::GridLook look = m_gridLook;
    look.linePen.setColor(theme->gridColor());
    if (look.admittancePen)
        look.admittancePen->setColor(theme->gridColor());
    look.boundaryPen.setColor(theme->borderColor());
    look.labelColor = theme->getColor(QStringLiteral("dimTextColor"));
    look.background = theme->backgroundColor();
    for (QCPAxis *axis : {m_xAxis.data(), m_yAxis.data()}) {
        if (axis)
            axis->setBasePen(Qt::NoPen);
    }
    q->setGridLook(look);
}

/// Builds the grid anew, shown while a trace is.
void SmithChartPlotPrivate::applyGridChange()
{
    const QPointer<SmithChartPlot> self(q);
    rebuildSmithChartGrid();
    if (self)
        setGridVisible(anyCurveVisible());
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
        if (onGridLayer(plot->plottable(i)) && isOurs(plot->plottable(i)))
            plot->plottable(i)->setVisible(visible);
    }
    for (int i = 0; i < plot->itemCount(); ++i) {
        if (onGridLayer(plot->item(i)) && isOurs(plot->item(i)))
            plot->item(i)->setVisible(visible);
    }
}
