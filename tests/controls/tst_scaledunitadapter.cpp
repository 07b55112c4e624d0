// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <controls/scaledunitadapter.h>

#include <QLocale>
#include <QRandomGenerator>
#include <QtTest>

#include <cmath>

#include <vnatest.h>

using Controls::ScaledUnitAdapter;

namespace
{

QVector<ScaledUnitAdapter::Unit> timeUnits()
{
    return {{QStringLiteral("s"), 1.0},
            {QStringLiteral("ms"), 1e-3},
            {QStringLiteral("\u00b5s"), 1e-6},
            {QStringLiteral("ns"), 1e-9}};
}

QVector<ScaledUnitAdapter::Unit> frequencyUnits()
{
    return {{QStringLiteral("GHz"), 1e9},
            {QStringLiteral("MHz"), 1e6},
            {QStringLiteral("kHz"), 1e3},
            {QStringLiteral("Hz"), 1.0}};
}

} // namespace

class tst_ScaledUnitAdapter : public VnaTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void readsNumbersExactly_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("value");
        const auto row = [](const char *text, double value) {
            QTest::newRow(text) << QString::fromUtf8(text) << value;
        };
        row("470ns", 470e-9);
        row("4.7 \u00b5s", 4.7e-6);
        row("-2.5MS", -2.5e-3);
        row("1e3ms", 1.0);
        row(".5s", 0.5);
        row("5.s", 5.0);
        row("7", 7.0); // in the unit on show, which is s
    }

    void readsNumbersExactly()
    {
        QFETCH(QString, text);
        QLocale::setDefault(QLocale(QLocale::German));
        ScaledUnitAdapter adapter(timeUnits());
        adapter.setRealValue(1.0);
        QTEST(adapter.convertToBase(text), "value");
        QLocale::setDefault(QLocale::c());
    }

    void refusesWhatIsNoNumber()
    {
        ScaledUnitAdapter adapter(timeUnits());
        for (const char *text : {"", "-", "s", "--5s", "1.2.3s", "1,5s", "nan", "inf", "1e400s",
                                 "5m", "5 s s", "\u0663s", "0x10s"}) {
            const QString typed = QString::fromUtf8(text);
            QVERIFY2(std::isnan(adapter.convertToBase(typed)), text);
        }
    }

    void choosesAndKeepsUnits()
    {
        ScaledUnitAdapter adapter(frequencyUnits());
        QCOMPARE(adapter.getInputText(), QStringLiteral("0Hz"));
        adapter.setRealValue(2.45e9);
        QCOMPARE(adapter.getInputText(), QStringLiteral("2.45GHz"));
        adapter.setRealValue(-999.0);
        QCOMPARE(adapter.getInputText(), QStringLiteral("-999Hz"));
        adapter.setRealValue(0.25);
        QCOMPARE(adapter.getInputText(), QStringLiteral("0.25Hz"));
        QCOMPARE(adapter.convertFromBaseValue(2.45e9, QStringLiteral("mhz")),
                 QStringLiteral("2450MHz"));

        QCOMPARE(adapter.convertFromBaseValue(-1e-9, QStringLiteral("Hz")), QStringLiteral("0Hz"));

        adapter.setPreserveTrailingZeros(true);
        adapter.setUnitDecimals(QStringLiteral("GHz"), 6);
        adapter.setRealValue(2.45e9);
        QCOMPARE(adapter.getInputText(), QStringLiteral("2.450000GHz"));
        adapter.setRealValue(2.45e6);
        QCOMPARE(adapter.getInputText(), QStringLiteral("2.450MHz"));
    }

    void uselessUnitsAreLeftOut()
    {
        ScaledUnitAdapter adapter({{QString(), 1.0},
                                   {QStringLiteral("m"), 0.0},
                                   {QStringLiteral("k"), qQNaN()},
                                   {QStringLiteral("V"), 1.0}});
        QCOMPARE(adapter.availableUnits(), QStringList{QStringLiteral("V")});

        ScaledUnitAdapter bare({});
        bare.setRealValue(3.5);
        QCOMPARE(bare.getInputText(), QStringLiteral("3.5"));
        QCOMPARE(bare.convertToBase(QStringLiteral("-4")), -4.0);
    }

    void formatsWhatItReads()
    {
        QRandomGenerator random(20260);
        for (const auto &units : {timeUnits(), frequencyUnits()}) {
            ScaledUnitAdapter adapter(units);
            for (int round = 0; round < 5000; ++round) {
                const auto &unit = units.at(random.bounded(units.size()));
                const int decimals = random.bounded(10);
                adapter.setDecimals(decimals);
                const double value = (random.generateDouble() - 0.5)
                    * std::pow(10.0, random.bounded(7)) * unit.factor;
                const QString text = adapter.convertFromBaseValue(value, unit.name);
                QString key = unit.name;
                const double back = adapter.convertInputTextToValue(text, key);
                // Half a digit of the last place shown, and the rounding of the arithmetic.
                const double allowed =
                    0.5 * std::pow(10.0, -decimals) * unit.factor + std::abs(value) * 1e-14;
                QVERIFY2(std::abs(back - value) <= allowed, qPrintable(text));
                // A second round changes nothing any more.
                QCOMPARE(adapter.convertFromBaseValue(back, unit.name), text);
            }
        }
    }
};

QTEST_GUILESS_MAIN(tst_ScaledUnitAdapter)
#include "tst_scaledunitadapter.moc"
