// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <utils/formatting.h>

#include <cmath>
#include <limits>

#include <vnatest.h>

using namespace VnaTest;

class tst_Formatting : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void toString_data()
    {
        columns<double, int, QString>("value", "precision", "text");
        row("one zero trimmed", 1.5, 3, "1.5");
        row("point trimmed", 100.0, 2, "100");
        row("zeros before the point stay", 10.0, 1, "10");
        row("rounded to zero", 1e-7, 3, "0");
        row("sign of a rounded zero stays", -1e-7, 3, "-0");
        row("half goes away from zero", 2.5, 0, "3");
        row("negative precision", 100.0, -1, QString::number(100.0, 'f', -1));
        row("never an exponent", 1e22, 3, "10000000000000000000000");
        row("no group separators", -1234567.25, 3, "-1234567.25");
        row("infinite", -qInf(), 3, "-inf");
        row("not a number", qQNaN(), 3, "nan");
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

    void scientificNotation()
    {
        struct Expected {
            double value, mantissa;
            int exponent;
        };
        for (const auto &[value, mantissa, exponent] :
             {Expected{0.0, 0.0, 0},
              {5e-16, 0.0, 0},
              {1e-15, 1.0, -15},
              {1.0, 1.0, 0},
              {10.0, 1.0, 1},
              {-2500.0, -2.5, 3},
              {0.05, 5.0, -2},
              {std::numeric_limits<double>::max(), 1.79769313486, 308},
              {-qInf(), -qInf(), 0},
              {qQNaN(), qQNaN(), 0}}) {
            const Row row(QString::number(value));
            const auto result = Utils::getScientificNotation(value);
            QCOMPARE(result.second, exponent);
            if (std::isfinite(mantissa))
                QVERIFY(std::abs(result.first - mantissa) < 1e-9);
            else
                QCOMPARE(result.first, mantissa);
        }
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
