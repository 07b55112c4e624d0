// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <utils/formatting.h>

#include <QLocale>
#include <QtTest>

#include <cmath>
#include <limits>

#include <tables.h>
#include <vnatest.h>

class tst_Formatting : public VnaTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void toString_data()
    {
        VnaTest::columns<double, int, QString>("value", "precision", "text");
        VnaTest::row("one zero trimmed", 1.5, 3, "1.5");
        VnaTest::row("point trimmed", 100.0, 2, "100");
        VnaTest::row("zeros before the point stay", 10.0, 1, "10");
        VnaTest::row("rounded", 0.1234, 2, "0.12");
        VnaTest::row("rounded to zero", 1e-7, 3, "0");
        VnaTest::row("sign of a rounded zero stays", -1e-7, 3, "-0");
        VnaTest::row("zero", 0.0, 3, "0");
        VnaTest::row("precision 0", 2500.0, 0, "2500");
        VnaTest::row("half goes away from zero", 2.5, 0, "3");
        VnaTest::row("negative precision", 100.0, -1, QString::number(100.0, 'f', -1));
        VnaTest::row("never an exponent", 1e22, 3, "10000000000000000000000");
        VnaTest::row("no group separators", -1234567.25, 3, "-1234567.25");
        VnaTest::row("infinite", -qInf(), 3, "-inf");
        VnaTest::row("not a number", qQNaN(), 3, "nan");
    }

    void toString()
    {
        QFETCH(double, value);
        QFETCH(int, precision);
        // The locale of the process must not show.
        for (const auto language : {QLocale::German, QLocale::Arabic, QLocale::C}) {
            QLocale::setDefault(language);
            QTEST(Utils::toString(value, precision), "text");
        }
    }

    void scientificNotation_data()
    {
        VnaTest::columns<double, double, int>("value", "mantissa", "exponent");
        VnaTest::row("zero", 0.0, 0.0, 0);
        VnaTest::row("below the threshold", 5e-16, 0.0, 0);
        VnaTest::row("at the threshold", 1e-15, 1.0, -15);
        VnaTest::row("one", 1.0, 1.0, 0);
        VnaTest::row("ten", 10.0, 1.0, 1);
        VnaTest::row("negative", -2500.0, -2.5, 3);
        VnaTest::row("small", 0.05, 5.0, -2);
        VnaTest::row("largest", std::numeric_limits<double>::max(), 1.79769313486, 308);
        VnaTest::row("infinite", -qInf(), -qInf(), 0);
        VnaTest::row("not a number", qQNaN(), qQNaN(), 0);
    }

    void scientificNotation()
    {
        QFETCH(double, value);
        QFETCH(double, mantissa);
        const auto result = Utils::getScientificNotation(value);
        QTEST(result.second, "exponent");
        if (std::isfinite(mantissa))
            QVERIFY(std::abs(result.first - mantissa) < 1e-9);
        else
            QCOMPARE(result.first, mantissa);
    }

    void step125Values()
    {
        for (const double value : {0.0, 1e-16, 0.002, 50.0, 1000.0, -5.0, 2e12, -5e30})
            QVERIFY2(Utils::isStep125Value(value), qPrintable(QString::number(value)));
        for (const double value : {3.0, 0.3, 7.5, -4.0, 1.00000001, 0.99999999999, qInf(), qQNaN()})
            QVERIFY2(!Utils::isStep125Value(value), qPrintable(QString::number(value, 'g', 12)));
    }
};

QTEST_APPLESS_MAIN(tst_Formatting)
#include "tst_formatting.moc"
