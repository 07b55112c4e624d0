// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "glyphs.h"

#include <controls/drawnicon.h>

#include <QPainter>
#include <QPainterPath>

namespace Panel
{

namespace
{

/// Glyphs are drawn on a square of this side.
constexpr double s_side = 24.0;

void addLine(QPainterPath &path, const QVector<QPointF> &points)
{
    path.moveTo(points.first());
    for (const QPointF &point : points)
        path.lineTo(point);
}

QPainterPath outline(Glyph glyph)
{
    QPainterPath path;
    switch (glyph) {
    case Glyph::Stimulus: // a span between two ends
        addLine(path, {{3, 6}, {3, 18}});
        addLine(path, {{21, 6}, {21, 18}});
        addLine(path, {{6, 12}, {18, 12}});
        addLine(path, {{9, 9}, {6, 12}, {9, 15}});
        addLine(path, {{15, 9}, {18, 12}, {15, 15}});
        break;
    case Glyph::Trace:
        path.moveTo(3, 14);
        path.cubicTo(7, -2, 9, 2, 12, 12);
        path.cubicTo(15, 22, 17, 26, 21, 10);
        break;
    case Glyph::Math: // a sum sign
        addLine(path, {{18, 7}, {18, 4}, {6, 4}, {13, 12}, {6, 20}, {18, 20}, {18, 17}});
        break;
    case Glyph::Scale:
        addLine(path, {{12, 3}, {12, 21}});
        addLine(path, {{8, 7}, {12, 3}, {16, 7}});
        addLine(path, {{8, 17}, {12, 21}, {16, 17}});
        break;
    case Glyph::Marker:
        addLine(path, {{4, 6}, {20, 6}, {12, 20}, {4, 6}});
        break;
    case Glyph::Limits: // a response between two steps
        addLine(path, {{2, 5}, {8, 5}, {8, 10}, {16, 10}, {16, 5}, {22, 5}});
        path.moveTo(3, 20);
        path.cubicTo(9, 20, 8, 14, 12, 14);
        path.cubicTo(16, 14, 15, 20, 21, 20);
        break;
    case Glyph::Display:
        for (const QPointF &corner :
             {QPointF(4, 4), QPointF(13, 4), QPointF(4, 13), QPointF(13, 13)})
            path.addRect(QRectF(corner, QSizeF(7, 7)));
        break;
    case Glyph::Sweep:
        path.arcMoveTo(QRectF(4, 4, 16, 16), 40);
        path.arcTo(QRectF(4, 4, 16, 16), 40, 290);
        addLine(path, {{18.5, 2.5}, {18.5, 7.5}, {13.5, 7.5}});
        break;
    case Glyph::System: // three sliders
        for (const double y : {6.0, 12.0, 18.0}) {
            const double knob = y == 12.0 ? 15.0 : 9.0;
            addLine(path, {{3, y}, {knob - 2, y}});
            addLine(path, {{knob + 2, y}, {21, y}});
            path.addEllipse(QPointF(knob, y), 2, 2);
        }
        break;
    case Glyph::Open: // a folder
        addLine(path, {{3, 19}, {3, 5}, {9, 5}, {11, 8}, {21, 8}, {21, 19}, {3, 19}});
        break;
    case Glyph::Save: // into a tray
        addLine(path, {{12, 3}, {12, 14}});
        addLine(path, {{7.5, 9.5}, {12, 14}, {16.5, 9.5}});
        addLine(path, {{3, 14}, {3, 20}, {21, 20}, {21, 14}});
        break;
    case Glyph::Screenshot: // a camera
        path.addRoundedRect(QRectF(3, 7, 18, 13), 2, 2);
        addLine(path, {{8, 7}, {9.5, 4}, {14.5, 4}, {16, 7}});
        path.addEllipse(QPointF(12, 13.5), 3.5, 3.5);
        break;
    }
    return path;
}

} // namespace

QIcon glyphIcon(Glyph glyph, const QColor &off, const QColor &on)
{
    return Controls::drawnIcon(
        s_side, [glyph, off, on](QPainter *painter, QIcon::Mode, QIcon::State state) {
            painter->strokePath(outline(glyph),
                                QPen(state == QIcon::On ? on : off, 1.8, Qt::SolidLine,
                                     Qt::RoundCap, Qt::RoundJoin));
        });
}

} // namespace Panel
