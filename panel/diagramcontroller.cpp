// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagramcontroller.h"

#include "cartesianview.h"
#include "diagrams.h"
#include "markertable.h"
#include "panelmodel.h"
#include "panelwindow.h"
#include "softkey.h"
#include "sweepkeys.h"

namespace Panel
{

DiagramController::DiagramController(PanelModel *model, PanelWindow *window, QObject *parent)
    : QObject(parent)
{
    Diagrams *diagrams = window->diagrams();
    SoftKey *layout = window->sweepKeys()->diagramsKey();
    layout->setChoices({tr("Both"), tr("Smith"), tr("Cartesian")});
    layout->setChoice(diagrams->diagramLayout());
    connect(layout, &SoftKey::choicePicked, this, [diagrams, layout](int index) {
        diagrams->setDiagramLayout(Diagrams::Layout(index));
        layout->setChoice(index);
    });

    CartesianView *view = window->cartesianView();
    SoftKey *format = window->sweepKeys()->formatKey();
    format->setChoices({tr("Log mag"), tr("Phase")});
    format->setChoice(int(view->format()));
    connect(format, &SoftKey::choicePicked, this, [view, format](int index) {
        view->setFormat(CartesianFormat(index));
        format->setChoice(index);
    });

    connect(view->markerTable(), &MarkerTable::selectionRequested, model,
            &PanelModel::selectMarker);
    connect(view, &CartesianView::markerSelectionRequested, model, &PanelModel::selectMarker);
    connect(view, &CartesianView::markerMoveRequested, model, &PanelModel::moveMarker);
    connect(view, &CartesianView::pointPicked, model, [model](int traceId, double index) {
        model->setActiveTrace(traceId);
        model->addMarker(traceId, index);
    });
    connect(view, &CartesianView::tapped, model, [model] {
        model->selectMarker(0, 0);
        if (const Trace *trace = model->activeTrace(Trace::Transmission))
            model->setActiveTrace(trace->id);
    });
}

} // namespace Panel
