// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagramcontroller.h"

#include "softkey.h"
#include <panel/diagrams/chartgestures.h>
#include <panel/diagrams/diagrams.h>
#include <panel/diagrams/smithview.h>
#include <panel/model/panelmodel.h>
#include <panel/window/panelwindow.h>

namespace Panel
{

DiagramController::DiagramController(PanelModel *model, PanelWindow *window, QObject *parent)
    : QObject(parent)
    , m_model(model)
    , m_window(window)
{
    for (DiagramView *view : window->diagrams()->allViews())
        adopt(view);
    connect(window->diagrams(), &Diagrams::viewMade, this, &DiagramController::adopt);
    connectKeys();
    connect(model->viewSettings(), &ViewSettings::changed, this, &DiagramController::showSettings);
    connect(model, &PanelModel::tracesChanged, this, &DiagramController::showSettings);
    showSettings();
}

void DiagramController::connectKeys()
{
    const PanelKeys &keys = m_window->keys();
    ViewSettings *settings = m_model->viewSettings();
    keys.grid->setChoices({tr("Impedance"), tr("Admittance"), tr("Both")});
    connect(keys.grid, &SoftKey::choicePicked, settings,
            [settings](int index) { settings->setGridMode(SmithChartPlot::GridMode(index)); });
    keys.density->setChoices({tr("Basic"), tr("Standard"), tr("Detailed")});
    connect(keys.density, &SoftKey::choicePicked, settings,
            [settings](int index) { settings->setDensity(SmithChart::Preset(index)); });
    keys.pointer->setChoices({tr("All traces"), tr("Active only")});
    connect(keys.pointer, &SoftKey::choicePicked, settings,
            [settings](int index) { settings->setOnlyActiveTrace(index == 1); });
}

void DiagramController::adopt(DiagramView *view)
{
    new ChartGestures(m_model, view);
    auto *smith = qobject_cast<SmithView *>(view);
    if (!smith)
        return;
    // On the Smith chart the scale of a trace is how far the chart is magnified.
    connect(smith, &DiagramView::viewChanged, m_model, [this, smith] {
        for (const int id : smith->traceIds())
            m_model->setTraceScale(id, {1.0 / smith->zoom(), 1.0});
    });
    connect(m_model, &PanelModel::traceScaleChanged, smith, [this, smith](int id) {
        if (!smith->traceIds().contains(id))
            return;
        const double zoom = 1.0 / m_model->trace(id)->scale.perDivision;
        if (std::abs(zoom - smith->zoom()) > 1e-9 * zoom)
            smith->setZoom(zoom);
    });
}

void DiagramController::showSettings()
{
    const PanelKeys &keys = m_window->keys();
    const ViewSettings *settings = m_model->viewSettings();
    keys.grid->setChoice(settings->gridMode());
    keys.density->setChoice(settings->density());
    keys.pointer->setChoice(settings->onlyActiveTrace());
    for (SoftKey *key : {keys.grid, keys.density, keys.pointer})
        key->setEnabled(m_model->activeTrace());
}

} // namespace Panel
