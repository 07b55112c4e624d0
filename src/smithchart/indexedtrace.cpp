// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "indexedtrace_p.h"

#include "viewportprojection_p.h"

#include <smithrender/boundingvolumehierarchy_p.h>
#include <smithrender/linegeneralisationtree_p.h>

#include <algorithm>

namespace SmithRender
{

class IndexedTrace::Private
{
public:
    /// Builds what has to be read of all points, once.
    void build()
    {
        if (isBuilt)
            return;
        volumes.build(x, y, count);
        tree.build(x, y, count, volumes);
        isBuilt = true;
    }

    // Shared with the caller; read only through the pointers, as QVector's own access would detach.
    QVector<double> real;
    QVector<double> imag;
    const double *x = nullptr;
    const double *y = nullptr;
    int count = 0;
    int lastKept = 0; ///< about as many as the next view keeps
    bool isBuilt = false;
    BoundingVolumeHierarchy volumes;
    LineGeneralisationTree tree;
};

IndexedTrace::IndexedTrace()
    : d(std::make_shared<Private>())
{
}

void IndexedTrace::setSource(const QVector<double> &real, const QVector<double> &imag)
{
    if (d.use_count() > 1)
        d = std::make_shared<Private>();
    if (real.isEmpty() || imag.isEmpty()) {
        *d = Private();
        return;
    }
    d->real = real;
    d->imag = imag;
    d->x = d->real.constData();
    d->y = d->imag.constData();
    d->count = static_cast<int>(std::min(real.size(), imag.size()));
    d->isBuilt = false; // what is built next reuses the memory
}

DecimationResult IndexedTrace::decimate(const Viewport &viewport) const
{
    if (showsAllPoints(d->count, viewport))
        return SmithRender::decimate(d->real, d->imag, viewport);
    d->build();
    const Projection projection = projectionOf(viewport);
    if (!d->tree.fits(projection, viewport.tolerancePx))
        return SmithRender::decimate(d->real, d->imag, viewport);

    DecimationResult result;
    result.keptIndices.reserve(d->lastKept);
    d->tree.simplify(projection, viewport.tolerancePx, result.keptIndices);
    d->lastKept = static_cast<int>(result.keptIndices.size());
    result.decimated = result.keptIndices.size() < d->count;
    return result;
}

int IndexedTrace::nearestIndex(const Viewport &viewport, const QPointF &pointer,
                               double *squaredDistance) const
{
    NearestScan scan = scanFor(viewport, pointer, d->x, d->y);
    if (d->count > 0 && viewport.isUsable()) {
        d->build();
        d->volumes.nearest(scan);
    }
    return nearestOf(scan, viewport, squaredDistance);
}

size_t IndexedTrace::memoryUsed() const
{
    return sizeof(Private) + d->volumes.memoryUsed() + d->tree.memoryUsed();
}

} // namespace SmithRender
