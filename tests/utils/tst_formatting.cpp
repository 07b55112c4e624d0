// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <utils/formatting.h>

#include <QLocale>
#include <QtTest>

#include <cmath>
#include <limits>

#include <vnatest.h>

class tst_Formatting : public VnaTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void toString_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<int>("precision");
        QTest::addColumn<QString>("text");

        QTest::newRow("one zero trimmed") << 1.5 << 3 << QStringLiteral("1.5");
        QTest::newRow("point trimmed") << 100.0 << 2 << QStringLiteral("100");
        QTest::newRow("zeros before the point stay") << 10.0 << 1 << QStringLiteral("10");
        QTest::newRow("rounded") << 0.1234 << 2 << QStringLiteral("0.12");
        QTest::newRow("rounded to zero") << 1e-7 << 3 << QStringLiteral("0");
        QTest::newRow("sign of a rounded zero stays") << -1e-7 << 3 << QStringLiteral("-0");
        QTest::newRow("zero") << 0.0 << 3 << QStringLiteral("0");
        QTest::newRow("precision 0") << 2500.0 << 0 << QStringLiteral("2500");
        QTest::newRow("half goes away from zero") << 2.5 << 0 << QStringLiteral("3");
        QTest::newRow("never an exponent")
            << 1e22 << 3 << QStringLiteral("10000000000000000000000");
        QTest::newRow("no group separators") << -1234567.25 << 3 << QStringLiteral("-1234567.25");
        QTest::newRow("infinite") << -qInf() << 3 << QStringLiteral("-inf");
        QTest::newRow("not a number") << qQNaN() << 3 << QStringLiteral("nan");
    }

    void toString()
    {
        QFETCH(double, value);
        QFETCH(int, precision);
        // The locale of the process must not show.
        for (const QLocale &locale :
             {QLocale::c(), QLocale(QLocale::German), QLocale(QLocale::Arabic)}) {
            QLocale::setDefault(locale);
            QTEST(Utils::toString(value, precision), "text");
        }
        QLocale::setDefault(QLocale::c());
    }

    void negativePrecisionIsNotTrimmed()
    {
        QCOMPARE(Utils::toString(100.0, -1), QString::number(100.0, 'f', -1));
    }

    void scientificNotation_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<double>("mantissa");
        QTest::addColumn<int>("exponent");

        QTest::newRow("zero") << 0.0 << 0.0 << 0;
        QTest::newRow("below the threshold") << 5e-16 << 0.0 << 0;
        QTest::newRow("at the threshold") << 1e-15 << 1.0 << -15;
        QTest::newRow("one") << 1.0 << 1.0 << 0;
        QTest::newRow("ten") << 10.0 << 1.0 << 1;
        QTest::newRow("negative") << -2500.0 << -2.5 << 3;
        QTest::newRow("small") << 0.05 << 5.0 << -2;
        QTest::newRow("largest") << std::numeric_limits<double>::max() << 1.79769313486 << 308;
        QTest::newRow("infinite") << -qInf() << -qInf() << 0;
    }

    void scientificNotation()
    {
        QFETCH(double, value);
        QFETCH(double, mantissa);
        const auto result = Utils::getScientificNotation(value);
        QTEST(result.second, "exponent");
        if (std::isinf(mantissa))
            QCOMPARE(result.first, mantissa);
        else
            QVERIFY(std::abs(result.first - mantissa) < 1e-9);
    }

    void notANumberEnds()
    {
        QVERIFY(std::isnan(Utils::getScientificNotation(qQNaN()).first));
        QVERIFY(!Utils::isStep125Value(qQNaN()));
        QVERIFY(!Utils::isStep125Value(qInf()));
    }

    void step125Values()
    {
        for (const double value : {0.0, 1e-16, 0.002, 50.0, 1000.0, -5.0, 2e12, -5e30})
            QVERIFY2(Utils::isStep125Value(value), qPrintable(QString::number(value)));
        for (const double value : {3.0, 0.3, 7.5, -4.0, 1.00000001, 0.99999999999})
            QVERIFY2(!Utils::isStep125Value(value), qPrintable(QString::number(value, 'g', 12)));
    }
};

QTEST_APPLESS_MAIN(tst_Formatting)
#include "tst_formatting.moc"
