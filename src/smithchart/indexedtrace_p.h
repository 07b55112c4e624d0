// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <base/testexport_p.h>
#include <smithchart/decimation.h>

#include <cstddef>
#include <memory>

namespace SmithRender
{

/*! A trace with an index over its points: answers decimate() and nearestIndex() at many viewports,
    in about the time it takes to draw the points kept rather than to read the points given. The
    answers are those of the plain routines, which also give them where the index cannot, such as in
    a view without square pixels; LineGeneralisationTree says which ties it may decide otherwise.

    The source is shared, not copied, and nothing is computed before the first question. Copies
    share what has been grown. For one thread at a time, copies included. */
class VNAWIDGETS_TEST_EXPORT IndexedTrace
{
public:
    IndexedTrace();

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
