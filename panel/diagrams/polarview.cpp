// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "polarview.h"

#include "polargrid.h"

#include <panel/model/cartesian.h>

namespace Panel
{

namespace
{

/// For the labels around the outermost circle, in pixels.
constexpr QMargins s_margins(30, 17, 30, 17);

} // namespace

PolarView::PolarView(const PanelModel *model, const DiagramId &id, QWidget *parent)
    : PlaneView(model, id, s_margins, parent)
{
    plot()->setAccessibleName(tr("Polar diagram"));
    makeChart(SmithChart::Basic);
    // In place of the Smith chart's grid, which is cheap where it follows the view and is not drawn.
    chart()->setGridFollowsView(true);
    for (const char *layer : {"smithGrid", "smithBoundary"})
        plot()->layer(QLatin1String(layer))->setVisible(false);
    m_grid = new PolarGrid(plot());
    loadTraces();
    recolor();
    connect(m_model, &PanelModel::traceScaleChanged, this, [this](int traceId) {
        if (!follows(traceId))
            return;
        updateTraces(m_model->trace(traceId)->network);
        if (m_model->drawnMemory(*m_model->trace(traceId)))
            showMemory(*m_model->trace(traceId));
        showScale();
    });
}

void PolarView::showScale()
{
    const Trace *active = activeTrace();
    if (active && m_grid)
        m_grid->setScale(fullScale(*active), traits(active->format).divisions);
    replotLater();
}

void PolarView::showActiveTrace()
{
    PlaneView::showActiveTrace();
    showScale();
}

void PolarView::recolor()
{
    PlaneView::recolor();
    QFont labels = font();
    labels.setPixelSize(qMax(9, QFontInfo(labels).pixelSize() - 2));
    m_grid->setLook(labels);
    replotLater();
}

QStringList PolarView::titleParts() const
{
    const Trace *active = activeTrace();
    if (!active)
        return {};
    return QStringList{
               formatName(active->format), divisionText(active->format, active->scale.perDivision),
               tr("full scale %1").arg(cartesianReferenceText(fullScale(*active), active->format))}
    + otherScales(*active);
}

} // namespace Panel
