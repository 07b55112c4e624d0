// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "panelcontroller.h"

#include "chartgestures.h"
#include "diagramcontroller.h"
#include "filecontroller.h"
#include "markertable.h"
#include "messagebar.h"
#include "numerickeys.h"
#include "panelmodel.h"
#include "panelwindow.h"
#include "smithview.h"
#include "softkey.h"
#include "softkeymenu.h"
#include "sweepcontroller.h"
#include "tracebar.h"

#include <controls/thememanager.h>

#include <QAbstractButton>
#include <QShortcut>

#include <cmath>

namespace Panel
{

PanelController::PanelController(PanelModel *model, PanelWindow *window, QObject *parent)
    : QObject(parent)
    , m_model(model)
    , m_window(window)
    , m_sweeps(new SweepController(model, window, this))
    , m_files(new FileController(model, window, this))
{
    auto *gestures = new ChartGestures(model, window->smithView(), this);
    SoftKey *pointer = window->pointerKey();
    pointer->setChoices({tr("All traces"), tr("Active only")});
    pointer->setChoice(gestures->onlyActiveTrace());
    connect(pointer, &SoftKey::choicePicked, gestures, [pointer, gestures](int index) {
        gestures->setOnlyActiveTrace(index == 1);
        pointer->setChoice(index);
    });
    new DiagramController(model, window, this);
    new NumericKeys(model, window, m_sweeps, this);
    connect(m_sweeps, &SweepController::fileRequested, this, &PanelController::showFileDialog);
    connectKeys();
    addShortcuts();
    showMarker();
}

void PanelController::connectKeys()
{
    SmithView *view = m_window->smithView();
    connect(m_window->traceBar(), &TraceBar::activationRequested, m_model,
            &PanelModel::setActiveTrace);
    connect(m_window->fileKey(), &SoftKey::clicked, this, &PanelController::showFileDialog);
    connect(m_window->emptyPageButton(), &QAbstractButton::clicked, this,
            &PanelController::showFileDialog);
    connect(m_window->themeButton(), &QAbstractButton::clicked, Controls::ThemeManager::instance(),
            &Controls::ThemeManager::toggleTheme);

    SoftKey *grid = m_window->gridKey();
    grid->setChoices({tr("Impedance"), tr("Admittance"), tr("Both")});
    grid->setChoice(view->gridMode());
    connect(grid, &SoftKey::choicePicked, view, [grid, view](int index) {
        view->setGridMode(SmithChartPlot::GridMode(index));
        grid->setChoice(index);
    });

    SoftKey *density = m_window->densityKey();
    density->setChoices({tr("Basic"), tr("Standard"), tr("Detailed")});
    density->setChoice(view->density());
    connect(density, &SoftKey::choicePicked, view, [density, view](int index) {
        view->setDensity(SmithChart::Preset(index));
        density->setChoice(index);
    });

    connect(m_window->traceKey(), &SoftKey::clicked, this, [this] {
        if (const Trace *trace = m_model->activeTrace())
            m_model->setTraceVisible(trace->id, !trace->visible);
    });

    m_window->markerKey()->setChoices({tr("Add"), tr("Remove"), tr("Remove all")});
    connect(m_window->markerKey(), &SoftKey::choicePicked, this, &PanelController::onMarkerPicked);
    connect(view->markerTable(), &MarkerTable::selectionRequested, m_model,
            &PanelModel::selectMarker);
    connect(m_model, &PanelModel::selectedMarkerChanged, this, &PanelController::showMarker);
    connect(m_model, &PanelModel::markersExhausted, this, [this](int traceId) {
        m_window->messageBar()->setMessage(
            tr("Trace %1 has all its %2 markers: remove one to set another.")
                .arg(traceId)
                .arg(PanelModel::markersPerTrace));
    });
}

void PanelController::addShortcuts()
{
    const auto add = [this](const QKeySequence &keys, auto action) {
        connect(new QShortcut(keys, m_window), &QShortcut::activated, this, action);
    };
    add(QKeySequence::Open, [this] { showFileDialog(); });
    add(QKeySequence::Quit, [this] { m_window->close(); });
    add(Qt::CTRL | Qt::Key_T, [] { Controls::ThemeManager::instance()->toggleTheme(); });
    add(QKeySequence(Qt::CTRL | Qt::Key_PageDown), [this] { m_window->softKeys()->turnPage(1); });
    add(QKeySequence(Qt::CTRL | Qt::Key_PageUp), [this] { m_window->softKeys()->turnPage(-1); });
    add(Qt::Key_F11,
        [this] { m_window->setWindowState(m_window->windowState() ^ Qt::WindowFullScreen); });
}

bool PanelController::openFiles(const QStringList &paths)
{
    return m_files->openFiles(paths);
}

void PanelController::showFileDialog()
{
    m_files->showFileDialog();
}

void PanelController::onMarkerPicked(int index)
{
    // In the order of the key's list.
    enum { Add, Remove, RemoveAll };
    const Trace *trace = m_model->activeTrace();
    if (!trace)
        return;
    if (index == Add) {
        // Each further marker halves the largest gap that the ones before have left.
        static constexpr double places[PanelModel::markersPerTrace] = {0.5,   0.25,  0.75,
                                                                       0.125, 0.625, 0.375};
        const int count = int(m_model->activeMarkers().size());
        const int last = m_model->network(*trace).points() - 1;
        m_model->addMarker(trace->id,
                           std::floor(last * places[qMin(count, PanelModel::markersPerTrace - 1)]));
    } else if (index == Remove) {
        if (const Marker *marker = m_model->selectedMarker())
            m_model->removeMarker(marker->trace, marker->number);
    } else if (index == RemoveAll) {
        for (const Marker &marker : m_model->activeMarkers())
            m_model->removeMarker(marker.trace, marker.number);
    }
}

void PanelController::showMarker()
{
    const Marker *marker = m_model->selectedMarker();
    m_window->markerKey()->setValue(marker ? tr("M%1").arg(marker->number) : tr("None"));
}

} // namespace Panel
