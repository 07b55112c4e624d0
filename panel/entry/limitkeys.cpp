// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "limitkeys.h"

#include "numerickeys.h"
#include "softkey.h"
#include "units.h"

#include <panel/ground/numbertext.h>
#include <panel/model/panelmodel.h>

#include <widgets/switchbutton.h>

#include <utility>

namespace Panel
{

namespace
{

/// Of the numbers of a circle, in units of reflection.
constexpr int s_circleDecimals = 3;
constexpr double s_smallestRadius = 0.001;
constexpr double s_farthestFromCentre = 2.0;

} // namespace

LimitKeys::LimitKeys(PanelModel *model, const PanelKeys &keys, NumericKeys *numbers,
                     QObject *parent)
    : QObject(parent)
    , m_model(model)
    , m_keys(keys)
    , m_numbers(numbers)
{
    connect(keys.editLimits, &SwitchButton::statusChanged, this, &LimitKeys::setOn);
    connect(keys.limitSide, &SoftKey::clicked, this, &LimitKeys::turnSide);
    connect(keys.removeLimit, &SoftKey::clicked, this, &LimitKeys::remove);
    connect(keys.limitRadius, &SoftKey::clicked, this, [this] {
        editCircle(m_keys.limitRadius, s_smallestRadius,
                   [](LimitCircle &circle) -> double & { return circle.radius; });
    });
    connect(keys.limitReal, &SoftKey::clicked, this, [this] {
        editCircle(m_keys.limitReal, -s_farthestFromCentre,
                   [](LimitCircle &circle) -> double & { return circle.centre.rx(); });
    });
    connect(keys.limitImag, &SoftKey::clicked, this, [this] {
        editCircle(m_keys.limitImag, -s_farthestFromCentre,
                   [](LimitCircle &circle) -> double & { return circle.centre.ry(); });
    });
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

void LimitKeys::editCircle(SoftKey *key, double lowest, double &(*number)(LimitCircle &))
{
    LimitCircle circle = m_model->viewSettings()->limitCircle();
    auto *adapter = new NumberAdapter(s_circleDecimals);
    adapter->setRange(lowest, s_farthestFromCentre);
    adapter->setRealValue(number(circle));
    m_numbers->edit(key, adapter, {0.1, 0.01, 0.001}, [this, number](double value) {
        LimitCircle changed = m_model->viewSettings()->limitCircle();
        number(changed) = value;
        m_model->viewSettings()->setLimitCircle(changed);
    });
}

/// The numbers of the circle stand on the page of a trace that it is a limit of.
void LimitKeys::showCircle()
{
    const Trace *active = m_model->activeTrace();
    const LimitCircle &circle = m_model->viewSettings()->limitCircle();
    const std::pair<SoftKey *, double> numbers[] = {{m_keys.limitRadius, circle.radius},
                                                    {m_keys.limitReal, circle.centre.x()},
                                                    {m_keys.limitImag, circle.centre.y()}};
    for (const auto &[key, number] : numbers) {
        key->setVisible(active && active->onSmithChart());
        // Without a circle there is no centre, and its radius makes one.
        key->setEnabled(key == m_keys.limitRadius || !circle.isNone());
        key->setValue(circle.isNone()
                          ? nothingText()
                          : withMinusSigns(QString::number(number, 'f', s_circleDecimals)));
    }
}

void LimitKeys::show()
{
    showCircle();
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
