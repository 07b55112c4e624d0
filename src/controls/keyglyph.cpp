// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "keyglyph_p.h"

#include "drawnicon.h"

#include <QPainter>
#include <QPainterPath>
#include <QPointer>
#include <QWidget>

namespace Controls
{

namespace
{

/// The square of a glyph, about its middle.
constexpr double s_side = 2.2;

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

} // namespace

QIcon keyGlyphIcon(KeyGlyph glyph, const QWidget *key)
{
    return drawnIcon(
        s_side,
        [glyph, key = QPointer<const QWidget>(key)](QPainter *painter, QIcon::Mode mode,
                                                    QIcon::State) {
            const QPalette palette = key ? key->palette() : QPalette();
            const QColor &color =
                palette.color(mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active,
                              QPalette::ButtonText);
            painter->translate(s_side / 2.0, s_side / 2.0);
            if (glyph == KeyGlyph::Backspace) {
                painter->strokePath(backspace(),
                                    QPen(color, 0.17, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
            } else {
                const double turns[] = {90.0, -90.0, 180.0, 0.0}; // down, up, left, right
                painter->rotate(turns[int(glyph) - int(KeyGlyph::Down)]);
                painter->fillPath(arrow(), color);
            }
        });
}

} // namespace Controls
