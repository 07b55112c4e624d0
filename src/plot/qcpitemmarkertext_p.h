// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <plot/qcp.h>
#include <plot/qcpitemtracermarker.h>

#include <QPointer>

/// The label of a marker: drawn and hit only while its marker's point lies inside the axis
/// rectangle.
class QCPItemMarkerText : public QCPItemText
{
    Q_OBJECT

public:
    QCPItemMarkerText(QCustomPlot *parentPlot, Plot::QCPItemTracerMarker *tracer);

    double selectTest(const QPointF &pos, bool onlySelectable,
                      QVariant *details = nullptr) const override;

protected:
    void draw(QCPPainter *painter) override;

private:
    bool anchorVisible() const { return m_tracer && m_tracer->anchorInsideAxisRect(); }

    QPointer<Plot::QCPItemTracerMarker> m_tracer;
};
