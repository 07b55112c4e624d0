// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/placement.h>

#include <QWidget>
#include <QtTest>

#include <vnatest.h>

class tst_Placement : public VnaTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void boundedTopLeft_data()
    {
        QTest::addColumn<QPoint>("wanted");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QPoint>("expected");

        // The bounds are 800 x 480 at (100, 50) with a margin of 5: 105..895 by 55..525.
        const QSize popup(200, 100);
        QTest::newRow("inside") << QPoint(300, 200) << popup << QPoint(300, 200);
        QTest::newRow("exactly bottom right") << QPoint(695, 425) << popup << QPoint(695, 425);
        QTest::newRow("one past bottom right") << QPoint(696, 426) << popup << QPoint(695, 425);
        QTest::newRow("top left") << QPoint(-5000, 0) << popup << QPoint(105, 55);
        QTest::newRow("too wide") << QPoint(300, 200) << QSize(900, 100) << QPoint(105, 200);
        QTest::newRow("too high") << QPoint(300, 200) << QSize(100, 471) << QPoint(300, 55);
        QTest::newRow("empty") << QPoint(2000, 2000) << QSize(0, 0) << QPoint(895, 525);
    }

    void boundedTopLeft()
    {
        QFETCH(QPoint, wanted);
        QFETCH(QSize, size);
        QFETCH(QPoint, expected);
        QCOMPARE(Utils::boundedTopLeft(wanted, size, QRect(100, 50, 800, 480), 5), expected);
    }

    void nearestOfAll()
    {
        // No other allowed position is nearer than the one returned.
        const QRect bounds(-3, 2, 9, 8);
        const QSize size(3, 4);
        for (int x = -8; x < 12; ++x) {
            for (int y = -8; y < 14; ++y) {
                const QPoint found = Utils::boundedTopLeft(QPoint(x, y), size, bounds, 1);
                QVERIFY(bounds.adjusted(1, 1, -1, -1).contains(QRect(found, size)));
                for (int ax = -2; ax <= 2; ++ax) {
                    for (int ay = 3; ay <= 5; ++ay) {
                        QVERIFY((found - QPoint(x, y)).manhattanLength()
                                <= (QPoint(ax, ay) - QPoint(x, y)).manhattanLength());
                    }
                }
            }
        }
    }

    void childAndWindowAreCentredAndClampedAlike()
    {
        QWidget window;
        window.setGeometry(120, 80, 600, 400);
        QWidget host(&window);
        host.setGeometry(50, 40, 400, 300);

        // A child of the host, a child of its window and a window of its own.
        QWidget child(&host);
        QWidget sibling(&window);
        QWidget top(nullptr, Qt::FramelessWindowHint);
        const QPoint origin = host.mapToGlobal(QPoint());
        const QVector<QPair<QWidget *, QPoint>> cases{
            {&child, QPoint(0, 0)}, {&sibling, QPoint(50, 40)}, {&top, origin}};
        for (const auto &[widget, base] : cases) {
            widget->resize(101, 100);
            Utils::centerWidgetInHost(widget, &host);
            QCOMPARE(widget->pos() - base, QPoint(149, 100));

            widget->move(base + QPoint(-30, 250));
            Utils::clampWidgetToHost(widget, &host);
            QCOMPARE(widget->pos() - base, QPoint(0, 200));

            // Larger than its host: the top left stays reachable.
            widget->resize(500, 320);
            Utils::centerWidgetInHost(widget, &host);
            QCOMPARE(widget->pos(), base);
            widget->move(base + QPoint(20, -20));
            Utils::clampWidgetToHost(widget, &host);
            QCOMPARE(widget->pos(), base);
        }
    }

    void nullIsIgnored()
    {
        QWidget widget;
        widget.move(3, 4);
        Utils::centerWidgetInHost(nullptr, &widget);
        Utils::centerWidgetInHost(&widget, nullptr);
        Utils::clampWidgetToHost(nullptr, &widget);
        Utils::clampWidgetToHost(&widget, nullptr);
        QCOMPARE(widget.pos(), QPoint(3, 4));
    }
};

QTEST_MAIN(tst_Placement)
#include "tst_placement.moc"
