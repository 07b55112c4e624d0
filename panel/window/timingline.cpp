// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "timingline.h"

#include <panel/diagrams/diagrams.h>
#include <panel/diagrams/diagramview.h>

#include <plot/qcp.h>

namespace Panel
{

TimingLine::TimingLine(const Diagrams *diagrams, QWidget *parent)
    : ElidedLabel(Qt::ElideRight, parent)
    , m_diagrams(diagrams)
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
    int points = 0;
    double newData = 0.0, replot = 0.0;
    for (const DiagramView *view : m_diagrams->views()) {
        points += view->drawnPoints();
        newData += view->dataMilliseconds();
        replot += view->plot()->replotTime();
    }
    setText(tr("%1 points drawn \u00b7 new data %2 \u00b7 replot %3")
                .arg(QString::number(points), milliseconds(newData), milliseconds(replot)));
}

} // namespace Panel
