// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <panel/ground/highcontrast.h>
#include <panel/ground/look.h>
#include <panel/ground/tracecolors.h>

#include <controls/thememanager.h>

#include <vnatest.h>

using namespace Panel;

class tst_TraceColors : public VnaTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { setUpApplication(); }
    void differenceIsThatOfThePublishedPairs();
    void everybodyTellsTracesApart();
    void whatIsReadStandsOut();
    void highContrast();
};

void tst_TraceColors::differenceIsThatOfThePublishedPairs()
{
    const auto differ = [](QRgb a, QRgb b) { return colorDifference(QColor(a), QColor(b)); };
    // By an independent program of the same paper, for sRGB under D65.
    QVERIFY(qAbs(differ(0x000000, 0xffffff) - 100.0) < 0.01);
    QVERIFY(qAbs(differ(0xff0000, 0x00ff00) - 86.6082) < 0.01);
    QVERIFY(qAbs(differ(0x0000ff, 0x8000ff) - 9.2123) < 0.01);
    QVERIFY(qAbs(differ(0x808080, 0x808880) - 6.8018) < 0.01);
    QCOMPARE(differ(0x123456, 0x123456), 0.0);
    QVERIFY(qAbs(contrast(Qt::black, Qt::white) - 21.0) < 1e-4);
    QVERIFY(qAbs(contrast(QColor(0x77, 0x77, 0x77), Qt::white) - 4.48) < 0.005);
    // Red and green are one hue without cones for long or for middle waves, and stay two without
    // those for short ones.
    const QColor red(0xc0, 0x30, 0x30), green(0x60, 0x80, 0x20);
    for (const Sight sight : {Sight::Protan, Sight::Deutan})
        QVERIFY(colorDifference(seen(red, sight), seen(green, sight))
                < 0.6 * colorDifference(red, green));
    QVERIFY(colorDifference(seen(red, Sight::Tritan), seen(green, Sight::Tritan)) > 30.0);
}

void tst_TraceColors::everybodyTellsTracesApart()
{
    for (const auto theme : {Controls::ThemeManager::Dark, Controls::ThemeManager::Light}) {
        Controls::ThemeManager::instance()->setTheme(theme);
        const QVector<QColor> traces = currentLook().traces;
        QVERIFY(traces.size() >= 8);
        for (const Sight sight : {Sight::Normal, Sight::Protan, Sight::Deutan, Sight::Tritan}) {
            for (int i = 0; i < traces.size(); ++i) {
                for (int j = 0; j < i; ++j) {
                    const double apart =
                        colorDifference(seen(traces.at(i), sight), seen(traces.at(j), sight));
                    QVERIFY2(apart >= 12.0,
                             qPrintable(QStringLiteral("%1 and %2 differ by %3 for sight %4")
                                            .arg(traces.at(i).name(), traces.at(j).name())
                                            .arg(apart)
                                            .arg(int(sight))));
                }
            }
        }
    }
}

void tst_TraceColors::whatIsReadStandsOut()
{
    for (const auto theme : {Controls::ThemeManager::Dark, Controls::ThemeManager::Light}) {
        Controls::ThemeManager::instance()->setTheme(theme);
        const Look look = currentLook();
        const auto standsOut = [](const QColor &text, const QColor &ground, double wanted) {
            QVERIFY2(contrast(text, ground) >= wanted,
                     qPrintable(QStringLiteral("%1 on %2: %3")
                                    .arg(text.name(), ground.name())
                                    .arg(contrast(text, ground))));
        };
        for (const QColor &text : QVector<QColor>{look.text, look.dimText} + look.traces) {
            standsOut(text, look.background, 4.5);
            standsOut(text, look.bar, look.traces.contains(text) ? 3.0 : 4.5);
        }
        for (const QColor &line : QVector<QColor>{look.pass, look.fail, look.accent})
            QVERIFY2(contrast(line, look.background) >= 3.0, qPrintable(line.name()));
    }
}

void tst_TraceColors::highContrast()
{
    auto *theme = Controls::ThemeManager::instance();
    for (const auto which : {Controls::ThemeManager::Dark, Controls::ThemeManager::Light}) {
        theme->setTheme(which);
        const Look before = currentLook();
        QVERIFY(before.pen(2, 0).style() == Qt::SolidLine);
        setHighContrast(true);
        const Look look = currentLook();
        for (const QColor &text : {look.text, look.dimText, look.border, look.accent}) {
            QVERIFY2(contrast(text, look.background) >= 7.0, qPrintable(text.name()));
            QVERIFY2(contrast(text, look.bar) >= 7.0, qPrintable(text.name()));
        }
        // A switch that is off is filled.
        QVERIFY(contrast(look.text, theme->getColor(QStringLiteral("disabledCheckedColor")))
                >= 7.0);
        QVERIFY(look.pen(2, 0).style() == Qt::CustomDashLine);
        QVERIFY(look.pen(1, 0).style() == Qt::SolidLine);
        setHighContrast(false);
        QCOMPARE(currentLook().text, before.text);
        QCOMPARE(currentLook().border, before.border);
        setTraceDashes(true);
        QVERIFY(currentLook().pen(2, 0).style() == Qt::CustomDashLine);
        QCOMPARE(currentLook().pen(2, 0).color(), before.pen(2, 0).color());
        setTraceDashes(false);
    }
}

QTEST_MAIN(tst_TraceColors)
#include "tst_tracecolors.moc"
