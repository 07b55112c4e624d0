// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <base/testexport_p.h>
#include <plot/qcp.h>
#include <smithrender/strokemask_p.h>

/*! Draws the lines of a plottable on a raster image: all of them are gathered in a mask, which then is
    painted once. Noisy lines draw over the same pixels many times, and wide ones take painters 20
    times as long as thin ones. */
class VNAWIDGETS_TEST_EXPORT LineMask
{
public:
    /// For a painter and a pen that suit().
    LineMask(QCPPainter *painter, const QPen &pen);

    /// Whether \a pen on \a painter is nothing but a solid line on a raster image, no wider than masks
    /// draw it.
    static bool suits(const QCPPainter *painter, const QPen &pen);
    /// The width of \a pen on \a painter, in device pixels, at least 1.
    static double deviceWidth(const QCPPainter *painter, const QPen &pen);

    /*! Begins with an empty mask for lines that are cut at \a bounds and seen in \a seen, both in
        pixels of the widget; each is drawn with so many strokes. False where no mask is so large: there
        is nothing to be drawn by it then. */
    bool begin(const QRectF &bounds, const QRectF &seen, int strokes);

    /// From pixels of the widget to those of the mask.
    double toMaskX(double x) const { return x * scaleX() + m_shift.x(); }
    double toMaskY(double y) const { return y * scaleY() + m_shift.y(); }
    /// Device pixels in a pixel of the widget.
    double scaleX() const { return m_toDevice.m11(); }
    double scaleY() const { return m_toDevice.m22(); }

    SmithRender::StrokeMask &mask() { return m_mask; }

    /// Paints what has been gathered.
    void paint();

private:
    QCPPainter *m_painter;
    QPen m_pen;
    QTransform m_toDevice;
    QPoint m_corner; ///< of the mask, in device pixels
    QPointF m_shift;
    SmithRender::StrokeMask &m_mask;
};
