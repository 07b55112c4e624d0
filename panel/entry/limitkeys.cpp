// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "limitkeys.h"

#include "softkey.h"

#include <panel/ground/numbertext.h>
#include <panel/model/panelmodel.h>

#include <widgets/switchbutton.h>

namespace Panel
{

LimitKeys::LimitKeys(PanelModel *model, const PanelKeys &keys, QObject *parent)
    : QObject(parent)
    , m_model(model)
    , m_keys(keys)
{
    connect(keys.editLimits, &SwitchButton::statusChanged, this, &LimitKeys::setOn);
    connect(keys.limitSide, &SoftKey::clicked, this, &LimitKeys::turnSide);
    connect(keys.removeLimit, &SoftKey::clicked, this, &LimitKeys::remove);
    connect(model->limitEditing(), &LimitEditing::changed, this, &LimitKeys::show);
    connect(model, &PanelModel::limitsChanged, this, &LimitKeys::show);
    connect(model->viewSettings(), &ViewSettings::changed, this, &LimitKeys::show);
    connect(model, &PanelModel::tracesChanged, this, &LimitKeys::show);
    // What was selected is another trace's.
    connect(model, &PanelModel::activeTraceChanged, this, [this] {
        m_model->limitEditing()->deselect();
        show();
    });
    show();
}

/// The trace whose limit line is selected, or null.
const Trace *LimitKeys::lineOwner() const
{
    const Trace *active = m_model->activeTrace();
    return active && isLimitOf(*active, m_model->limitEditing()->limit()) ? active : nullptr;
}

bool LimitKeys::isCircleSelected() const
{
    const Trace *active = m_model->activeTrace();
    return active && active->onSmithChart() && m_model->limitEditing()->limit() == 0
        && !m_model->viewSettings()->limitCircle().isNone();
}

void LimitKeys::setOn(bool on)
{
    m_model->limitEditing()->setOn(on);
    const Trace *active = m_model->activeTrace();
    if (!on || !active)
        return;
    bool any = active->onSmithChart() && !m_model->viewSettings()->limitCircle().isNone();
    for (int i = 0; i < active->limits.size(); ++i)
        any = any || isLimitOf(*active, i);
    if (!any)
        Q_EMIT said(active->kind() == DiagramKind::Polar
                        ? tr("A polar diagram has no limits.")
                        : tr("Two taps on a free place of the diagram add a limit."));
}

void LimitKeys::turnSide()
{
    if (const Trace *trace = lineOwner()) {
        QVector<LimitLine> limits = trace->limits;
        LimitLine &line = limits[m_model->limitEditing()->limit()];
        line.upper = !line.upper;
        m_model->setLimits(trace->id, limits);
    } else if (isCircleSelected()) {
        LimitCircle circle = m_model->viewSettings()->limitCircle();
        circle.keepOut = !circle.keepOut;
        m_model->viewSettings()->setLimitCircle(circle);
    }
}

void LimitKeys::remove()
{
    if (const Trace *trace = lineOwner()) {
        QVector<LimitLine> limits = trace->limits;
        limits.remove(m_model->limitEditing()->limit());
        m_model->limitEditing()->deselect();
        m_model->setLimits(trace->id, limits);
    } else if (isCircleSelected()) {
        m_model->limitEditing()->deselect();
        m_model->viewSettings()->setLimitCircle({});
    }
}

void LimitKeys::show()
{
    m_keys.editLimits->setStatus(m_model->limitEditing()->isOn());
    m_keys.editLimits->setEnabled(m_model->activeTrace());
    QString side = nothingText();
    if (const Trace *trace = lineOwner())
        side = trace->limits.at(m_model->limitEditing()->limit()).upper ? tr("below") : tr("above");
    else if (isCircleSelected())
        side = m_model->viewSettings()->limitCircle().keepOut ? tr("outside") : tr("inside");
    const bool selected = lineOwner() || isCircleSelected();
    for (SoftKey *key : {m_keys.limitSide, m_keys.removeLimit})
        key->setEnabled(selected);
    m_keys.limitSide->setValue(side);
    m_keys.removeLimit->setValue(selected ? QStringLiteral("\u00d7") : nothingText());
}

} // namespace Panel
