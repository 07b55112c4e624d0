// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <smithchart/viewport.h>

#include <QDebug>

namespace SmithRender
{

QDebug operator<<(QDebug debug, const Viewport &viewport)
{
    const QDebugStateSaver saver(debug);
    debug.nospace() << "SmithRender::Viewport(" << viewport.xMin << ".." << viewport.xMax << ", "
                    << viewport.yMin << ".." << viewport.yMax << ", " << viewport.width << 'x'
                    << viewport.height << " at " << viewport.devicePixelRatio << ", within "
                    << viewport.tolerancePx << " px)";
    return debug;
}

} // namespace SmithRender
