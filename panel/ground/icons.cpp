// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "icons.h"

#include <controls/thememanager.h>

#include <QPainter>
#include <QPainterPath>

// Outside the namespace, because the macro declares a global function.
static void registerVnaResources()
{
    Q_INIT_RESOURCE(vnaresources);
}

namespace Panel
{

void registerIcons()
{
    registerVnaResources();
}

QIcon icon(const char *name)
{
    const bool light = Controls::ThemeManager::instance()->isLightTheme();
    return QIcon(QStringLiteral(":/image/resource/") + QLatin1String(name)
                 + QLatin1String(light ? "_light.svg" : ".svg"));
}

QPixmap mark(int side, const QColor &color, double ratio)
{
    QPixmap pixmap(qRound(side * ratio), qRound(side * ratio));
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, qMax(1.2, side / 60.0)));
    const double radius = side / 2.0 - 2.0;
    painter.translate(side / 2.0, side / 2.0);
    QPainterPath edge;
    edge.addEllipse(QPointF(0.0, 0.0), radius, radius);
    painter.drawPath(edge);
    painter.setClipPath(edge);
    painter.drawLine(QPointF(-radius, 0.0), QPointF(radius, 0.0));
    painter.drawEllipse(QPointF(radius / 2.0, 0.0), radius / 2.0, radius / 2.0);
    painter.drawEllipse(QPointF(radius, radius), radius, radius);
    painter.drawEllipse(QPointF(radius, -radius), radius, radius);
    return pixmap;
}

} // namespace Panel
