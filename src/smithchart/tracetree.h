// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vnawidgets_export.h>

#include <smithchart/decimation.h>

#include <cstddef>
#include <memory>

namespace SmithRender
{

/*! Answers decimate() and nearestIndex() for one trace at many viewports, in about the time it
   takes to draw the points kept rather than to read the points given.

    Ramer-Douglas-Peucker always splits a run at the farthest point; the tolerance only says when to
   stop. Where pixels are square, a change of view scales all distances alike, so the splits are the
   same at every view: a tree that is grown as far as some view has asked for. Whatever it cannot
   answer that way, such as a view without square pixels, it leaves to the plain routines.

    Results are those of the plain routines. Only where two points are equally far to within the
   rounding of pixel coordinates may the other one be kept.

    The source is shared, not copied, and nothing is computed before the first question. Copies
   share what has been grown. For one thread at a time, copies included. */
class VNAWIDGETS_EXPORT TraceTree
{
public:
    TraceTree();

    /// Takes up another trace, cut to the shorter of both. The memory of what was grown is reused
    /// for it; an empty trace gives it back.
    void setSource(const QVector<double> &real, const QVector<double> &imag);

    /// As SmithRender::decimate() of the source.
    [[nodiscard]] DecimationResult decimate(const Viewport &viewport) const;
    /// As SmithRender::nearestIndex() of the source.
    [[nodiscard]] int nearestIndex(const Viewport &viewport, const QPointF &pointer,
                                   double *squaredDistance = nullptr) const;

    /// Bytes held beyond the source.
    size_t memoryUsed() const;

private:
    class Private;
    std::shared_ptr<Private> d;
};

} // namespace SmithRender
