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

/// The speed is told this often, in milliseconds.
constexpr qint64 s_speedInterval = 500;

QLabel *addField(QHBoxLayout *row, const QString &name, QLabel **nameField = nullptr)
{
    auto *nameLabel = new QLabel(name);
    nameLabel->setObjectName(QStringLiteral("dim"));
    auto *value = new QLabel;
    value->setAccessibleName(name);
    if (nameField)
        *nameField = nameLabel;
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
    row->addStretch(1);
    m_points = addField(row, tr("Points"));
    row->addStretch(1);
    m_speed = addField(row, tr("Speed"), &m_speedName);
    m_gapAfterSpeed = row->count();
    row->addStretch(1);
    m_stop = addField(row, tr("Stop"));
    showSpeed(QString());
    connect(m_model, &PanelModel::activeTraceChanged, this, &SweepBar::refresh);
    connect(m_model, &PanelModel::stimulusChanged, this, &SweepBar::refresh);
    connect(m_model, &PanelModel::networksChanged, this, [this] {
        m_clock.invalidate();
        showSpeed(QString());
    });
    connect(m_model, &PanelModel::networkUpdated, this, &SweepBar::countSweep);
    connect(m_model, &PanelModel::sweepingChanged, this, [this] {
        if (!m_model->isSweeping() && m_clock.isValid())
            showSpeed(tr("Hold"));
        m_clock.invalidate();
    });
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

void SweepBar::countSweep()
{
    refresh();
    if (!m_clock.isValid()) {
        m_clock.start();
        m_sweeps = 0;
        return;
    }
    ++m_sweeps;
    const qint64 elapsed = m_clock.elapsed();
    if (elapsed < s_speedInterval || !m_model->isSweeping())
        return;
    const double speed = m_sweeps * 1000.0 / double(elapsed);
    showSpeed(tr("%1 sweeps/s").arg(speed, 0, 'f', speed < 9.95 ? 1 : 0));
    m_clock.start();
    m_sweeps = 0;
}

void SweepBar::showSpeed(const QString &speed)
{
    m_speedName->setVisible(!speed.isEmpty());
    m_speed->setVisible(!speed.isEmpty());
    m_speed->setText(speed);
    // Without the speed there is one gap less, or the points would not stand in the middle.
    static_cast<QHBoxLayout *>(layout())->setStretch(m_gapAfterSpeed, speed.isEmpty() ? 0 : 1);
}

} // namespace Panel
