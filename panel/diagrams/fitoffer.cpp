// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fitoffer.h"

namespace Panel
{

FitOffer::FitOffer(QWidget *diagram)
    : QPushButton(diagram)
{
    setObjectName(QStringLiteral("fitTrace"));
    setAutoDefault(false);
    hide();
}

void FitOffer::offer(const QVector<Candidate> &candidates)
{
    m_trace = 0;
    for (const auto &[trace, drawn] : candidates) {
        const bool above = drawn.lowest > trace.scale.top;
        const bool below = drawn.highest < bottom(trace.format, trace.scale);
        if (!above && !below)
            continue;
        m_trace = trace.id;
        const QString name = trace.label() + QLatin1Char(' ') + parameterName(trace.to, trace.from);
        setText(above ? tr("%1 lies above: fit").arg(name) : tr("%1 lies below: fit").arg(name));
        adjustSize();
        place();
        break;
    }
    if (m_trace == 0)
        setDown(false); // a finger that is on it does not press the next one
    setVisible(m_trace != 0);
}

void FitOffer::setCorner(const QPoint &topRight)
{
    m_topRight = topRight;
    place();
}

void FitOffer::place()
{
    move(m_topRight - QPoint(width(), 0));
}

} // namespace Panel
