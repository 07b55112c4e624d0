// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "coverageboostcurve_p.h"

#include <controls/thememanager.h>

#include <algorithm>

CoverageBoostCurve::CoverageBoostCurve(QCPAxis *keyAxis, QCPAxis *valueAxis)
    : QCPCurve(keyAxis, valueAxis)
{
}

void CoverageBoostCurve::drawCurveLine(QCPPainter *painter, const QVector<QPointF> &lines) const
{
    double offset = 0.0;
    if (Controls::ThemeManager::instance()->currentTheme() == Controls::ThemeManager::Light
        && painter->device())
        offset = 0.25 / std::max(painter->device()->devicePixelRatioF(), 1.0);

    QCPCurve::drawCurveLine(painter, lines);
    if (offset > 0.0) {
        painter->save();
        painter->translate(offset, offset);
        QCPCurve::drawCurveLine(painter, lines);
        painter->restore();
    } else {
        QCPCurve::drawCurveLine(painter, lines);
    }
}
