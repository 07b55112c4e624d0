// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "drawnicon.h"

#include <QIconEngine>
#include <QPainter>

namespace Controls
{

namespace
{

class DrawingEngine : public QIconEngine
{
public:
    DrawingEngine(double side, const IconDrawing &draw)
        : m_side(side)
        , m_draw(draw)
    {
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        const double unit = qMin(rect.width(), rect.height()) / m_side;
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(QRectF(rect).center());
        painter->scale(unit, unit);
        painter->translate(-m_side / 2.0, -m_side / 2.0);
        m_draw(painter, mode, state);
        painter->restore();
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, pixmap.rect(), mode, state);
        return pixmap;
    }

    QIconEngine *clone() const override { return new DrawingEngine(*this); }

private:
    double m_side;
    IconDrawing m_draw;
};

} // namespace

QIcon drawnIcon(double side, const IconDrawing &draw)
{
    return QIcon(new DrawingEngine(side, draw));
}

} // namespace Controls
