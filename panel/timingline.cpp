// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "timingline.h"

#include "smithview.h"

#include <plot/qcp.h>

namespace Panel
{

TimingLine::TimingLine(const SmithView *view, QWidget *parent)
    : ElidedLabel(Qt::ElideRight, parent)
    , m_view(view)
{
    setObjectName(QStringLiteral("dim"));
    setAccessibleName(tr("Timing"));
    setContentsMargins(10, 2, 10, 4);
    setVisible(false);
    // Slow enough to be read.
    m_timer.setInterval(250);
    connect(&m_timer, &QTimer::timeout, this, &TimingLine::refresh);
}

void TimingLine::showEvent(QShowEvent *event)
{
    ElidedLabel::showEvent(event);
    refresh();
    m_timer.start();
}

void TimingLine::hideEvent(QHideEvent *event)
{
    ElidedLabel::hideEvent(event);
    m_timer.stop();
}

void TimingLine::refresh()
{
    const auto milliseconds = [](double value) {
        return QString::number(value, 'f', 2) + QStringLiteral(" ms");
    };
    setText(tr("%1 points drawn \u00b7 new data %2 \u00b7 replot %3")
                .arg(QString::number(m_view->drawnPoints()),
                     milliseconds(m_view->dataMilliseconds()),
                     milliseconds(m_view->plot()->replotTime())));
}

} // namespace Panel
