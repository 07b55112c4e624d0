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
    connect(model, &PanelModel::tracesChanged, this, &LimitKeys::show);
    // What was selected is another trace's.
    connect(model, &PanelModel::activeTraceChanged, this, [this] {
        m_model->limitEditing()->deselect();
        show();
    });
    show();
}

void LimitKeys::setOn(bool on)
{
    m_model->limitEditing()->setOn(on);
    const Trace *active = m_model->activeTrace();
    bool any = false;
    for (int i = 0; active && i < active->limits.size(); ++i)
        any = any || isLimitOf(*active, i);
    if (on && active && active->overFrequency() && !any)
        Q_EMIT said(tr("Two taps on a free place of the diagram add a limit line."));
}

void LimitKeys::turnSide()
{
    const Trace &active = *m_model->activeTrace();
    QVector<LimitLine> limits = active.limits;
    LimitLine &line = limits[m_model->limitEditing()->limit()];
    line.upper = !line.upper;
    m_model->setLimits(active.id, limits);
}

void LimitKeys::remove()
{
    const Trace &active = *m_model->activeTrace();
    QVector<LimitLine> limits = active.limits;
    limits.remove(m_model->limitEditing()->limit());
    m_model->limitEditing()->deselect();
    m_model->setLimits(active.id, limits);
}

void LimitKeys::show()
{
    const LimitEditing *editing = m_model->limitEditing();
    const Trace *active = m_model->activeTrace();
    m_keys.editLimits->setStatus(editing->isOn());
    m_keys.editLimits->setEnabled(active);
    const bool selected = active && isLimitOf(*active, editing->limit());
    for (SoftKey *key : {m_keys.limitSide, m_keys.removeLimit})
        key->setEnabled(selected);
    m_keys.limitSide->setValue(!selected                                       ? nothingText()
                                   : active->limits.at(editing->limit()).upper ? tr("below")
                                                                               : tr("above"));
    m_keys.removeLimit->setValue(selected ? QStringLiteral("\u00d7") : nothingText());
}

} // namespace Panel
