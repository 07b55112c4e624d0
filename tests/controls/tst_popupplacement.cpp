// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <controls/popupplacement_p.h>

#include <QtTest>

#include <vnatest.h>

class tst_PopupPlacement : public VnaTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void opensWhereThereIsRoom_data()
    {
        QTest::addColumn<QRect>("owner");
        QTest::addColumn<QSize>("popup");
        QTest::addColumn<int>("gap");
        QTest::addColumn<QPoint>("expected");

        // The screen begins at 100, 50 and is 800 x 480.
        const QSize list(150, 200);
        QTest::newRow("below") << QRect(200, 100, 100, 40) << list << 0 << QPoint(200, 139);
        QTest::newRow("below, beside the edge")
            << QRect(200, 100, 100, 40) << list << 1 << QPoint(200, 140);
        QTest::newRow("just below") << QRect(200, 286, 100, 40) << list << 0 << QPoint(200, 325);
        QTest::newRow("no longer below")
            << QRect(200, 287, 100, 40) << list << 0 << QPoint(200, 87);
        QTest::newRow("above, beside the edge")
            << QRect(200, 287, 100, 40) << list << 1 << QPoint(200, 86);
        QTest::newRow("at the right edge")
            << QRect(850, 100, 50, 40) << list << 0 << QPoint(745, 139);
        QTest::newRow("left of the screen")
            << QRect(60, 100, 50, 40) << list << 0 << QPoint(105, 139);
        QTest::newRow("no room above either")
            << QRect(200, 200, 100, 40) << QSize(150, 400) << 0 << QPoint(200, 55);
        QTest::newRow("larger than the screen")
            << QRect(200, 200, 100, 40) << QSize(2000, 9000) << 0 << QPoint(105, 55);
    }

    void opensWhereThereIsRoom()
    {
        QFETCH(QRect, owner);
        QFETCH(QSize, popup);
        QFETCH(int, gap);
        QTEST(Controls::popupTopLeft(owner, popup, QRect(100, 50, 800, 480), gap), "expected");
    }

    void noScreenMeansThePrimaryOne()
    {
        const QRect primary = QGuiApplication::primaryScreen()->availableGeometry();
        QCOMPARE(Controls::availableGeometryAt({-90000, 5}), primary);
        QCOMPARE(Controls::availableGeometryAt(primary.center()), primary);
    }
};

QTEST_MAIN(tst_PopupPlacement)
#include "tst_popupplacement.moc"
