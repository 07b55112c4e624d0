// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <plot/qcp.h>

/*! The curve of a trace: strokes its line twice where that is a device pixel wide.

    A thin anti-aliased line spreads over two pixel rows and looks faint; the second stroke gives it
    full coverage. On a light background that is not enough, so there the second one is shifted by a
    quarter of a device pixel.

    On a raster image, both strokes of all segments are gathered in a LineMask. Elsewhere, and with
    pens that are not plain lines, QCPCurve draws. */
class CoverageBoostCurve : public QCPCurve
{
    Q_OBJECT

public:
    CoverageBoostCurve(QCPAxis *keyAxis, QCPAxis *valueAxis);

protected:
    void draw(QCPPainter *painter) override;
    void drawCurveLine(QCPPainter *painter, const QVector<QPointF> &lines) const override;

private:
    double secondStrokeOffset(const QCPPainter *painter) const;
    bool isThin(const QCPPainter *painter) const;
    bool isPlainLine(const QCPPainter *painter) const;
    bool drawByMask(QCPPainter *painter) const;
};
