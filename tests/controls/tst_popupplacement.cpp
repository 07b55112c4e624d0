// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <controls/popupplacement_p.h>

#include <vnatest.h>

using namespace VnaTest;

class tst_PopupPlacement : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void opensWhereThereIsRoom()
    {
        const QSize list(150, 200);
        const struct {
            const char *name;
            QRect owner;
            QSize popup;
            int gap;
            QPoint expected;
        } rows[] = {
            {"below", {200, 100, 100, 40}, list, 0, {200, 139}},
            {"below, beside the edge", {200, 100, 100, 40}, list, 1, {200, 140}},
            {"just below", {200, 286, 100, 40}, list, 0, {200, 325}},
            {"no longer below", {200, 287, 100, 40}, list, 0, {200, 87}},
            {"above, beside the edge", {200, 287, 100, 40}, list, 1, {200, 86}},
            {"at the right edge", {850, 100, 50, 40}, list, 0, {745, 139}},
            {"left of the screen", {60, 100, 50, 40}, list, 0, {105, 139}},
            {"no room above either", {200, 200, 100, 40}, {150, 400}, 0, {200, 55}},
            {"larger than the screen", {200, 200, 100, 40}, {2000, 9000}, 0, {105, 55}},
        };
        for (const auto &row : rows) {
            const Row name(QLatin1String(row.name));
            const QRect screen(100, 50, 800, 480);
            QCOMPARE(Controls::popupTopLeft(row.owner, row.popup, screen, row.gap), row.expected);
        }
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
