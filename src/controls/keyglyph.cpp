// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "keyglyph_p.h"

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPointer>
#include <QWidget>

namespace Controls
{

namespace
{

/// Within a square of 2 x 2 about the middle, pointing to the right.
QPainterPath arrow()
{
    QPainterPath path;
    path.addPolygon(QVector<QPointF>{{-0.5, -0.75}, {0.75, 0.0}, {-0.5, 0.75}});
    path.closeSubpath();
    return path;
}

QPainterPath backspace()
{
    QPainterPath path;
    path.addPolygon(
        QVector<QPointF>{{-1.0, 0.0}, {-0.4, -0.65}, {1.0, -0.65}, {1.0, 0.65}, {-0.4, 0.65}});
    path.closeSubpath();
    path.moveTo(0.0, -0.3);
    path.lineTo(0.6, 0.3);
    path.moveTo(0.6, -0.3);
    path.lineTo(0.0, 0.3);
    return path;
}

class Engine : public QIconEngine
{
public:
    Engine(KeyGlyph glyph, const QWidget *key)
        : m_glyph(glyph)
        , m_key(key)
    {
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State) override
    {
        const QPalette palette = m_key ? m_key->palette() : QPalette();
        const QColor &color = palette.color(
            mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active, QPalette::ButtonText);
        const double unit = qMin(rect.width(), rect.height()) / 2.2;
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(QRectF(rect).center());
        painter->scale(unit, unit);
        if (m_glyph == KeyGlyph::Backspace) {
            painter->strokePath(backspace(),
                                QPen(color, 0.17, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        } else {
            const double turns[] = {90.0, -90.0, 180.0, 0.0}; // down, up, left, right
            painter->rotate(turns[int(m_glyph) - int(KeyGlyph::Down)]);
            painter->fillPath(arrow(), color);
        }
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

    QIconEngine *clone() const override { return new Engine(*this); }

private:
    KeyGlyph m_glyph;
    QPointer<const QWidget> m_key;
};

} // namespace

QIcon keyGlyphIcon(KeyGlyph glyph, const QWidget *key)
{
    return QIcon(new Engine(glyph, key));
}

} // namespace Controls
