// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sweepbar.h"

#include <panel/ground/look.h>
#include <panel/ground/numbertext.h>
#include <panel/model/panelmodel.h>

#include <widgets/rectangularbottomwidget.h>

#include <QPainter>
#include <QVBoxLayout>

namespace Panel
{

namespace
{

/// The speed is told this often, in milliseconds.
constexpr qint64 s_speedInterval = 500;
constexpr int s_lineWidth = 2;

} // namespace

SweepBar::SweepBar(const PanelModel *model, QWidget *parent)
    : QWidget(parent)
    , m_model(model)
    , m_bar(new RectangularBottomWidget)
{
    setAccessibleName(tr("Sweep"));
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, s_lineWidth, 0, 0);
    column->addWidget(m_bar);
    connect(m_model, &PanelModel::tracesChanged, this, &SweepBar::showRange);
    connect(m_model, &PanelModel::activeTraceChanged, this, &SweepBar::showRange);
    connect(m_model, &PanelModel::stimulusChanged, this, &SweepBar::showRange);
    connect(m_model, &PanelModel::networkUpdated, this, &SweepBar::showRange);
    // What was counted was another sweep's.
    for (const auto signal :
         {&PanelModel::networksChanged, &PanelModel::sourceChanged, &PanelModel::sweepChanged})
        connect(m_model, signal, this, [this] {
            m_clock.invalidate();
            setProgress(0.0);
            showSpeed(QString());
            showRange();
        });
    connect(m_model, &PanelModel::sourceStateChanged, this, [this] {
        m_clock.invalidate();
        showSpeed(m_model->isStale() ? tr("Old data") : QString());
    });
    connect(m_model, &PanelModel::sweepingChanged, this, [this] {
        if (!m_model->isSweeping() && m_clock.isValid())
            showSpeed(tr("Hold"));
        m_clock.invalidate();
    });
    showSpeed(QString());
    showRange();
}

/// That of the active trace, as the keys of page Stimulus have it.
void SweepBar::showRange()
{
    const Trace *active = m_model->activeTrace();
    const Stimulus range = active ? m_model->stimulus(*active) : Stimulus{qQNaN(), qQNaN()};
    m_bar->updateRange(frequencyText(range.start), frequencyText(range.stop));
}

void SweepBar::setProgress(double progress)
{
    // Drawn to the end for one frame only, a line would flicker.
    progress = progress < 1.0 || m_progress > 0.0 ? progress : 0.0;
    if (progress == m_progress)
        return;
    m_progress = progress;
    update(0, 0, width(), s_lineWidth);
}

void SweepBar::countSweeps(int sweeps)
{
    if (!m_clock.isValid()) {
        m_clock.start();
        m_sweeps = 0;
        return;
    }
    m_sweeps += sweeps;
    const qint64 elapsed = m_clock.elapsed();
    if (elapsed < s_speedInterval || !m_model->isSweeping())
        return;
    const double speed = m_sweeps * 1000.0 / double(elapsed);
    showSpeed(tr("Speed: %1 sweeps/s").arg(speed, 0, 'f', speed < 9.95 ? 1 : 0));
    m_clock.start();
    m_sweeps = 0;
}

void SweepBar::showSpeed(const QString &speed)
{
    m_speed = speed;
    m_bar->setSweepSpeedText(speed);
    m_bar->setSweepSpeedVisible(!speed.isEmpty());
}

void SweepBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(0, 0, width(), s_lineWidth, currentLook().bar);
    painter.fillRect(0, 0, qRound(m_progress * width()), s_lineWidth, currentLook().accent);
}

} // namespace Panel
