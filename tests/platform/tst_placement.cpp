// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/placement.h>

#include <vnatest.h>

using namespace VnaTest;

class tst_Placement : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void boundedTopLeft()
    {
        // The bounds are 800 x 480 at (100, 50) with a margin of 5: 105..895 by 55..525.
        const QSize popup(200, 100);
        const std::tuple<const char *, QPoint, QSize, QPoint> rows[] = {
            {"inside", {300, 200}, popup, {300, 200}},
            {"exactly bottom right", {695, 425}, popup, {695, 425}},
            {"one past bottom right", {696, 426}, popup, {695, 425}},
            {"top left", {-5000, 0}, popup, {105, 55}},
            {"too wide", {300, 200}, {900, 100}, {105, 200}},
            {"too high", {300, 200}, {100, 471}, {300, 55}},
            {"empty", {2000, 2000}, {0, 0}, {895, 525}},
        };
        for (const auto &[name, wanted, size, expected] : rows) {
            const Row row(QLatin1String{name});
            QCOMPARE(Utils::boundedTopLeft(wanted, size, {100, 50, 800, 480}, 5), expected);
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
        const QPair<QWidget *, QPoint> cases[] = {
            {&child, {0, 0}}, {&sibling, {50, 40}}, {&top, host.mapToGlobal(QPoint())}};
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

            Utils::centerWidgetInHost(widget, nullptr);
            Utils::clampWidgetToHost(widget, nullptr);
            QCOMPARE(widget->pos(), base);
        }
        Utils::centerWidgetInHost(nullptr, &host);
        Utils::clampWidgetToHost(nullptr, &host);
    }
};

QTEST_MAIN(tst_Placement)
#include "tst_placement.moc"
