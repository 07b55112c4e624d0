// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <plot/linemask_p.h>

#include <vnatest.h>

#include <QPicture>

#include <functional>

namespace
{

using Change = std::function<void(QCPPainter &painter, QPen &pen)>;

} // namespace

Q_DECLARE_METATYPE(Change)

/// Which lines are drawn by a mask, and where there can be one.
class tst_LineMask : public VnaTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void suits_data()
    {
        QTest::addColumn<bool>("suits");
        QTest::addColumn<Change>("change");
        const auto row = [](const char *name, bool suits, const Change &change) {
            QTest::newRow(name) << suits << change;
        };
        row("plain", true, [](QCPPainter &, QPen &) {});
        row("half transparent pen", true,
            [](QCPPainter &, QPen &pen) { pen.setColor(QColor(0, 0, 0, 128)); });
        row("twice as large", true, [](QCPPainter &painter, QPen &) { painter.scale(2.0, 2.0); });
        row("aliased", false, [](QCPPainter &painter, QPen &) { painter.setAntialiasing(false); });
        row("half transparent", false,
            [](QCPPainter &painter, QPen &) { painter.setOpacity(0.5); });
        row("other composition", false, [](QCPPainter &painter, QPen &) {
            painter.setCompositionMode(QPainter::CompositionMode_Multiply);
        });
        row("vectorised", false,
            [](QCPPainter &painter, QPen &) { painter.setMode(QCPPainter::pmVectorized); });
        row("not cosmetic", false,
            [](QCPPainter &painter, QPen &) { painter.setMode(QCPPainter::pmNonCosmetic); });
        row("turned", false, [](QCPPainter &painter, QPen &) { painter.rotate(30.0); });
        row("dashed", false, [](QCPPainter &, QPen &pen) { pen.setStyle(Qt::DashLine); });
        row("flat ends", false, [](QCPPainter &, QPen &pen) { pen.setCapStyle(Qt::FlatCap); });
        row("gradient", false,
            [](QCPPainter &, QPen &pen) { pen.setBrush(QLinearGradient(0.0, 0.0, 9.0, 9.0)); });
        row("as wide as can be", true, [](QCPPainter &, QPen &pen) { pen.setWidthF(8.0); });
        row("too wide", false, [](QCPPainter &, QPen &pen) { pen.setWidthF(8.5); });
        row("too wide when larger", false, [](QCPPainter &painter, QPen &pen) {
            painter.scale(2.0, 2.0);
            pen.setWidthF(5.0);
            pen.setCosmetic(false);
        });
    }
    void suits()
    {
        QFETCH(bool, suits);
        QFETCH(Change, change);
        QImage image(32, 32, QImage::Format_ARGB32_Premultiplied);
        QCPPainter painter;
        QVERIFY(painter.begin(&image));
        painter.setAntialiasing(true);
        QPen pen(Qt::black);
        pen.setCapStyle(Qt::RoundCap);
        change(painter, pen);
        QCOMPARE(LineMask::suits(&painter, pen), suits);
    }

    void onlyOfImages()
    {
        QPen pen(Qt::black);
        pen.setCapStyle(Qt::RoundCap);
        QPicture picture;
        QCPPainter painter;
        QVERIFY(painter.begin(&picture));
        painter.setAntialiasing(true);
        QVERIFY(!LineMask::suits(&painter, pen));
    }

    void boundsThatHaveNoMask()
    {
        QImage image(32, 32, QImage::Format_ARGB32_Premultiplied);
        QCPPainter painter;
        QVERIFY(painter.begin(&image));
        painter.setAntialiasing(true);
        LineMask mask(&painter, QPen(Qt::black));
        const QRectF whole(0.0, 0.0, 32.0, 32.0);
        for (const QRectF &bounds :
             {QRectF(), QRectF(0.0, 0.0, 32.0, -32.0), QRectF(0.0, 0.0, 5000.0, 32.0),
              QRectF(0.0, 0.0, 32.0, 5000.0), QRectF(1e9, 0.0, 32.0, 32.0),
              QRectF(0.0, -1e9, 32.0, 32.0), QRectF(qQNaN(), 0.0, 32.0, 32.0)})
            QVERIFY(!mask.begin(bounds, whole, 1));
        QVERIFY(mask.begin(whole, whole, 1));
    }
};

QTEST_MAIN(tst_LineMask)
#include "tst_linemask.moc"
