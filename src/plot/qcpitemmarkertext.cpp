// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "qcpitemmarkertext_p.h"

QCPItemMarkerText::QCPItemMarkerText(QCustomPlot *parentPlot, Plot::QCPItemTracerMarker *tracer)
    : QCPItemText(parentPlot)
    , m_tracer(tracer)
{
}

double QCPItemMarkerText::selectTest(const QPointF &pos, bool onlySelectable,
                                     QVariant *details) const
{
    return anchorVisible() ? QCPItemText::selectTest(pos, onlySelectable, details) : -1.0;
}

void QCPItemMarkerText::draw(QCPPainter *painter)
{
    if (anchorVisible())
        QCPItemText::draw(painter);
}
