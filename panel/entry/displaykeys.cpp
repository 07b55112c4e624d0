// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "displaykeys.h"

#include "softkey.h"

#include <panel/model/panelmodel.h>

#include <QLocale>

#include <algorithm>
#include <array>

namespace Panel
{

namespace
{

/// Standing wave ratios to choose from.
constexpr std::array<double, 7> s_ratios{1.1, 1.2, 1.5, 2.0, 3.0, 5.0, 10.0};

/// The place of a ratio in the list, behind Off; Off for one that is not in it.
int choiceOf(double ratio)
{
    const auto found = std::find(s_ratios.begin(), s_ratios.end(), ratio);
    return found == s_ratios.end() ? 0 : int(found - s_ratios.begin()) + 1;
}

} // namespace

DisplayKeys::DisplayKeys(PanelModel *model, const PanelKeys &keys, QObject *parent)
    : QObject(parent)
    , m_model(model)
    , m_keys(keys)
{
    ViewSettings *settings = model->viewSettings();
    keys.grid->setChoices({tr("Impedance"), tr("Admittance"), tr("Both")});
    connect(keys.grid, &SoftKey::choicePicked, settings,
            [settings](int index) { settings->setGridMode(SmithChartPlot::GridMode(index)); });
    keys.density->setChoices({tr("Basic"), tr("Standard"), tr("Detailed"), tr("Automatic")});
    connect(keys.density, &SoftKey::choicePicked, settings,
            [settings](int index) { settings->setDensity(GridDensity(index)); });
    keys.gridLabels->setChoices({tr("Ohms"), tr("Normalised")});
    connect(keys.gridLabels, &SoftKey::choicePicked, settings,
            [settings](int index) { settings->setGridLabels(GridLabels(index)); });
    QStringList ratios{tr("Off")};
    for (const double ratio : s_ratios)
        ratios << QLocale::c().toString(ratio);
    keys.vswrCircle->setChoices(ratios);
    connect(keys.vswrCircle, &SoftKey::choicePicked, settings, [settings](int index) {
        settings->setVswrCircle(index > 0 ? s_ratios.at(size_t(index - 1)) : 0.0);
    });
    keys.vswrLimit->setChoices(ratios);
    connect(keys.vswrLimit, &SoftKey::choicePicked, settings, [settings](int index) {
        settings->setVswrLimit(index > 0 ? s_ratios.at(size_t(index - 1)) : 0.0);
    });
    keys.pointer->setChoices({tr("All traces"), tr("Active only")});
    connect(keys.pointer, &SoftKey::choicePicked, settings,
            [settings](int index) { settings->setOnlyActiveTrace(index == 1); });
    connect(keys.whole, &SoftKey::clicked, model, [model] {
        if (const Trace *trace = model->activeTrace())
            model->setZoom(model->diagramOf(trace->id), Zoom());
    });
    connect(settings, &ViewSettings::changed, this, &DisplayKeys::showSettings);
    for (const auto signal : {&PanelModel::tracesChanged, &PanelModel::activeTraceChanged})
        connect(model, signal, this, &DisplayKeys::showSettings);
    connect(model, &PanelModel::zoomChanged, this, &DisplayKeys::showSettings);
    showSettings();
}

void DisplayKeys::showSettings()
{
    const ViewSettings *settings = m_model->viewSettings();
    m_keys.grid->setChoice(settings->gridMode());
    m_keys.density->setChoice(int(settings->density()));
    m_keys.gridLabels->setChoice(int(settings->gridLabels()));
    m_keys.vswrCircle->setChoice(choiceOf(settings->vswrCircle()));
    m_keys.vswrLimit->setChoice(choiceOf(settings->vswrLimit()));
    m_keys.pointer->setChoice(settings->onlyActiveTrace());
    const Trace *active = m_model->activeTrace();
    for (SoftKey *key :
         {m_keys.grid, m_keys.density, m_keys.pointer, m_keys.vswrCircle, m_keys.vswrLimit})
        key->setEnabled(active);
    m_keys.gridLabels->setEnabled(active && settings->density() == GridDensity::Automatic);
    m_keys.whole->setEnabled(active && !m_model->zoom(m_model->diagramOf(active->id)).isWhole());
}

} // namespace Panel
