// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sweepbar.h"

#include "format.h"
#include "panelmodel.h"

#include <QHBoxLayout>
#include <QLabel>

namespace Panel
{

namespace
{

QLabel *addField(QHBoxLayout *row, const QString &name)
{
    auto *nameLabel = new QLabel(name);
    nameLabel->setObjectName(QStringLiteral("dim"));
    auto *value = new QLabel;
    value->setAccessibleName(name);
    row->addWidget(nameLabel);
    row->addWidget(value);
    return value;
}

} // namespace

SweepBar::SweepBar(const PanelModel *model, QWidget *parent)
    : QFrame(parent)
    , m_model(model)
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(12, 6, 12, 6);
    m_start = addField(row, tr("Start"));
    row->addStretch();
    m_points = addField(row, tr("Points"));
    row->addStretch();
    m_stop = addField(row, tr("Stop"));
    connect(m_model, &PanelModel::activeTraceChanged, this, &SweepBar::refresh);
    connect(m_model, &PanelModel::stimulusChanged, this, &SweepBar::refresh);
    refresh();
}

void SweepBar::refresh()
{
    const Trace *trace = m_model->activeTrace();
    const QString none = QStringLiteral("\u2013");
    m_start->setText(trace ? frequencyText(m_model->stimulus(*trace).start) : none);
    m_points->setText(trace ? QString::number(m_model->network(*trace).frequencies.size()) : none);
    m_stop->setText(trace ? frequencyText(m_model->stimulus(*trace).stop) : none);
}

} // namespace Panel
