// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "displaykeys.h"

#include "softkey.h"
#include "valuechoices.h"

#include <panel/model/panelmodel.h>

namespace Panel
{

namespace
{

/// Standing wave ratios to choose from.
const ValueChoices &ratios()
{
    static const ValueChoices choices{{1.1, 1.2, 1.3, 1.5, 1.7, 2.0, 2.5, 3.0, 5.0, 10.0}};
    return choices;
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
    keys.frequencyScale->setChoices({tr("Linear"), tr("Logarithmic")});
    connect(keys.frequencyScale, &SoftKey::choicePicked, settings,
            [settings](int index) { settings->setFrequencyScale(FrequencyScale(index)); });
    keys.density->setChoices({tr("Basic"), tr("Standard"), tr("Detailed"), tr("Automatic")});
    connect(keys.density, &SoftKey::choicePicked, settings,
            [settings](int index) { settings->setDensity(GridDensity(index)); });
    keys.gridLabels->setChoices({tr("Ohms"), tr("Normalised")});
    connect(keys.gridLabels, &SoftKey::choicePicked, settings,
            [settings](int index) { settings->setGridLabels(GridLabels(index)); });
    const QStringList names = ratios().names(tr("Off"), QStringLiteral("%1"));
    keys.vswrCircle->setChoices(names);
    connect(keys.vswrCircle, &SoftKey::choicePicked, settings,
            [settings](int index) { settings->setVswrCircle(ratios().valueOf(index)); });
    keys.vswrLimit->setChoices(names);
    connect(keys.vswrLimit, &SoftKey::choicePicked, settings,
            [settings](int index) { settings->setVswrLimit(ratios().valueOf(index)); });
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

/// A circle that was dragged may have any ratio, or none.
void DisplayKeys::showVswrLimit()
{
    const ViewSettings *settings = m_model->viewSettings();
    const double ratio = settings->vswrLimit();
    const int choice = ratios().choiceOf(ratio);
    if (settings->limitCircle().isNone() || choice > 0)
        m_keys.vswrLimit->setChoice(choice);
    else
        m_keys.vswrLimit->setChoice(-1,
                                    ratio > 1.0 ? QString::number(ratio, 'g', 4) : tr("Circle"));
}

void DisplayKeys::showSettings()
{
    const ViewSettings *settings = m_model->viewSettings();
    m_keys.grid->setChoice(settings->gridMode());
    m_keys.frequencyScale->setChoice(int(settings->frequencyScale()));
    m_keys.density->setChoice(int(settings->density()));
    // A preset has its own labels.
    const bool automatic = settings->density() == GridDensity::Automatic;
    m_keys.gridLabels->setChoice(int(automatic ? settings->gridLabels() : GridLabels::Normalised));
    m_keys.vswrCircle->setChoice(ratios().choiceOf(settings->vswrCircle()));
    showVswrLimit();
    m_keys.pointer->setChoice(settings->onlyActiveTrace());
    const Trace *active = m_model->activeTrace();
    for (SoftKey *key : {m_keys.grid, m_keys.density, m_keys.pointer, m_keys.vswrCircle,
                         m_keys.vswrLimit, m_keys.frequencyScale})
        key->setEnabled(active);
    m_keys.gridLabels->setEnabled(active && automatic);
    m_keys.whole->setEnabled(active && !m_model->zoom(m_model->diagramOf(active->id)).isWhole());
}

} // namespace Panel
