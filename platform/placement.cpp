// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <platform/placement.h>

#include <QWidget>

#include <algorithm>

namespace Utils
{

namespace
{

/// The host's rectangle in the coordinates that \a widget is moved in.
QRect hostRect(const QWidget *widget, const QWidget *host)
{
    const QPoint global = host->mapToGlobal(QPoint());
    return {widget->isWindow() ? global : widget->parentWidget()->mapFromGlobal(global),
            host->size()};
}

/// The widget's size with its frame. Qt reports one pixel too few before a window is first shown.
QSize outerSize(const QWidget *widget)
{
    return widget->frameGeometry().size().expandedTo(widget->size());
}

} // namespace

QPoint boundedTopLeft(QPoint wanted, QSize size, QRect bounds, int margin)
{
    const QRect inner = bounds.adjusted(margin, margin, -margin, -margin);
    const int maxX = inner.x() + inner.width() - size.width();
    const int maxY = inner.y() + inner.height() - size.height();
    return {std::max(inner.x(), std::min(wanted.x(), maxX)),
            std::max(inner.y(), std::min(wanted.y(), maxY))};
}

void centerWidgetInHost(QWidget *widget, QWidget *host)
{
    if (!widget || !host)
        return;
    const QRect area = hostRect(widget, host);
    const QSize size = outerSize(widget);
    const QPoint centred(area.x() + (area.width() - size.width()) / 2,
                         area.y() + (area.height() - size.height()) / 2);
    widget->move(boundedTopLeft(centred, size, area, 0));
}

void clampWidgetToHost(QWidget *widget, QWidget *host)
{
    if (!widget || !host)
        return;
    widget->move(
        boundedTopLeft(widget->pos(), widget->frameGeometry().size(), hostRect(widget, host), 0));
}

} // namespace Utils
